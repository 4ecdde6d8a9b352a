#include "viewer/ViewerWindow.h"

#include "desktop/style/Style.h"
#include "viewer/HitDelegate.h"
#include "viewer/SiteMap.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace caudalera::viewer {

namespace {

constexpr int pageRole = Qt::UserRole;

QWidget* pane(std::initializer_list<QWidget*> below) {
    auto* widget = new QWidget;
    auto* column = new QVBoxLayout(widget);
    const int margin = style::halfUnit();
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    for (QWidget* each : below)
        column->addWidget(each);
    return widget;
}

QListWidget* listOf(const char* name, const QString& description) {
    auto* list = new QListWidget;
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(description);
    list->setWordWrap(true);
    return list;
}

QLineEdit* fieldOf(const char* name, const QString& hint) {
    auto* field = new QLineEdit;
    field->setObjectName(QLatin1String(name));
    field->setPlaceholderText(hint);
    field->setClearButtonEnabled(true);
    return field;
}

} // namespace

ViewerWindow::ViewerWindow(const QString& path)
    : file_(path), browser_(new PageBrowser(file_)), panes_(new QTabWidget) {
    setObjectName(QStringLiteral("ayuda"));
    setWindowTitle(file_.title().isEmpty() ? QStringLiteral("Ayuda") : file_.title());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* bar = new QToolBar;
    buildActions(*bar);
    column->addWidget(bar);

    panes_->setObjectName(QStringLiteral("panes"));
    panes_->addTab(contentsPane(), QStringLiteral("&Contenido"));
    panes_->addTab(indexPane(), QStringLiteral("Í&ndice"));
    panes_->addTab(searchPane(), QStringLiteral("&Buscar"));
    browser_->setObjectName(QStringLiteral("page"));
    auto* splitter = new QSplitter;
    splitter->addWidget(panes_);
    splitter->addWidget(browser_);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({34 * style::unit(), 84 * style::unit()});
    column->addWidget(splitter, 1);

    fillContents();
    fillIndex();
    fillSearch();
    connect(browser_, &PageBrowser::pageChanged, this, &ViewerWindow::followPage);
    const QSize wanted(120 * style::unit(), 84 * style::unit());
    resize(wanted.boundedTo(QSizeF(screen()->availableSize() * 0.9).toSize()));
    browser_->setFocus();
}

QAction* ViewerWindow::action(QToolBar& bar, const QString& icon, const QString& text,
                              const QKeySequence& keys) {
    QAction* added = bar.addAction(style::icon(icon), text);
    added->setObjectName(icon);
    added->setShortcut(keys);
    added->setToolTip(keys.isEmpty() ? text
                                     : QStringLiteral("%1 (%2)").arg(
                                           text, keys.toString(QKeySequence::NativeText)));
    return added;
}

void ViewerWindow::buildActions(QToolBar& bar) {
    bar.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar.setIconSize(QSize(2, 2) * style::unit());
    QAction* back = action(bar, QStringLiteral("Atras"), QStringLiteral("Atrás"),
                           QKeySequence(QKeySequence::Back));
    QAction* forward = action(bar, QStringLiteral("Adelante"), QStringLiteral("Adelante"),
                              QKeySequence(QKeySequence::Forward));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(action(bar, QStringLiteral("Menu"), QStringLiteral("Inicio"),
                   QKeySequence(Qt::ALT | Qt::Key_Home)),
            &QAction::triggered, this, [this] { openTopic({}); });
    bar.addSeparator();
    connect(action(bar, QStringLiteral("Alejar"), QStringLiteral("Más pequeño"),
                   QKeySequence(Qt::CTRL | Qt::Key_Minus)),
            &QAction::triggered, this, [this] { browser_->zoomOut(); });
    connect(action(bar, QStringLiteral("Acercar"), QStringLiteral("Más grande"),
                   QKeySequence(Qt::CTRL | Qt::Key_Plus)),
            &QAction::triggered, this, [this] { browser_->zoomIn(); });
    bar.addSeparator();
    QAction* copy = action(bar, QStringLiteral("Copiar"), QStringLiteral("Copiar"), {});
    copy->setEnabled(false);
    connect(browser_, &QTextEdit::copyAvailable, copy, &QAction::setEnabled);
    connect(copy, &QAction::triggered, browser_, &QTextEdit::copy);
    QAction* printing = action(bar, QStringLiteral("Imprimir"), QStringLiteral("Imprimir"),
                               QKeySequence(QKeySequence::Print));
    connect(printing, &QAction::triggered, this, &ViewerWindow::print);
    // A print server may take its time, which the window does not wait for.
    constexpr int afterTheStart = 300;
    QTimer::singleShot(afterTheStart, printing, [printing] {
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            return;
        printing->setEnabled(false);
        printing->setToolTip(QStringLiteral("No hay ninguna impresora"));
    });
    auto* find = new QAction(this);
    find->setObjectName(QStringLiteral("Buscar"));
    find->setShortcut(QKeySequence(QKeySequence::Find));
    addAction(find);
    connect(find, &QAction::triggered, this, [this] {
        panes_->setCurrentIndex(2);
        query_->setFocus();
        query_->selectAll();
    });
}

QWidget* ViewerWindow::contentsPane() {
    contents_ = new QTreeWidget;
    contents_->setObjectName(QStringLiteral("contents"));
    contents_->setHeaderHidden(true);
    const auto open = [this](const QTreeWidgetItem* item) {
        if (const QString page = item->data(0, pageRole).toString(); !page.isEmpty())
            browser_->openPage(page);
    };
    connect(contents_, &QTreeWidget::itemClicked, this, open);
    connect(contents_, &QTreeWidget::itemActivated, this, open);
    return pane({contents_});
}

QWidget* ViewerWindow::indexPane() {
    indexFilter_ = fieldOf("indexFilter", QStringLiteral("Palabra"));
    index_ = listOf("index", QStringLiteral("Índice"));
    connect(indexFilter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        for (int row = 0; row < index_->count(); ++row) {
            index_->setRowHidden(
                row, !folded(index_->item(row)->text()).contains(folded(text.trimmed())));
        }
    });
    const auto open = [this](const QListWidgetItem* item) {
        browser_->openPage(item->data(pageRole).toString());
    };
    connect(index_, &QListWidget::itemClicked, this, open);
    connect(index_, &QListWidget::itemActivated, this, open);
    connect(indexFilter_, &QLineEdit::returnPressed, this, [this, open] {
        for (int row = 0; row < index_->count(); ++row) {
            if (!index_->isRowHidden(row)) {
                open(index_->item(row));
                return;
            }
        }
    });
    return pane({indexFilter_, index_});
}

QWidget* ViewerWindow::searchPane() {
    query_ = fieldOf("query", QStringLiteral("Palabras que se buscan"));
    hits_ = listOf("hits", QStringLiteral("Páginas halladas"));
    hits_->setItemDelegate(new HitDelegate(hits_));
    hits_->setResizeMode(QListView::Adjust);
    hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(query_, &QLineEdit::textChanged, this, &ViewerWindow::search);
    connect(query_, &QLineEdit::returnPressed, this, [this] { showHit(0); });
    connect(hits_, &QListWidget::itemClicked, this, [this] { showHit(hits_->currentRow()); });
    connect(hits_, &QListWidget::itemActivated, this, [this] { showHit(hits_->currentRow()); });
    return pane({query_, hits_});
}

void ViewerWindow::fillContents() {
    QList<QTreeWidgetItem*> path = {contents_->invisibleRootItem()};
    const auto entries = readSiteMap(file_.read(file_.contentsFile()));
    for (const SiteMapEntry& entry : entries) {
        while (path.size() > entry.level)
            path.removeLast();
        auto* item = new QTreeWidgetItem(path.constLast(), {entry.name});
        item->setData(0, pageRole, entry.page);
        item->setToolTip(0, entry.name);
        path.append(item);
    }
}

void ViewerWindow::fillIndex() {
    const auto entries = readSiteMap(file_.read(file_.indexFile()));
    for (const SiteMapEntry& entry : entries) {
        auto* item = new QListWidgetItem(entry.name, index_);
        item->setData(pageRole, entry.page);
    }
}

void ViewerWindow::fillSearch() {
    const QStringList pages = file_.pages();
    for (const QString& page : pages)
        search_.add(page, QString::fromUtf8(file_.read(page)));
}

void ViewerWindow::search() {
    hits_->clear();
    const auto found = search_.find(query_->text());
    for (const HelpSearch::Hit& hit : found) {
        auto* item = new QListWidgetItem(hit.title, hits_);
        item->setData(pageRole, hit.page);
        item->setData(HitDelegate::excerptRole, hit.excerpt);
    }
    if (found.isEmpty() && !queryWords(query_->text()).isEmpty()) {
        auto* none =
            new QListWidgetItem(QStringLiteral("Ninguna página tiene esas palabras."), hits_);
        none->setFlags(Qt::NoItemFlags);
    }
}

void ViewerWindow::showHit(int row) {
    const QListWidgetItem* item = hits_->item(row);
    if (!item || item->data(pageRole).isNull())
        return;
    browser_->openPage(item->data(pageRole).toString());
    browser_->mark(queryWords(query_->text()));
}

void ViewerWindow::openTopic(const QString& topic) {
    if (!file_.isOpen()) {
        browser_->setPlainText(QStringLiteral("No se puede leer el archivo de ayuda."));
        return;
    }
    const QString path = topic.startsWith(QLatin1Char('/')) ? topic : QLatin1Char('/') + topic;
    const QString page = path.section(QLatin1Char('#'), 0, 0);
    browser_->openPage(file_.read(page).isEmpty() ? file_.firstPage() : path);
}

void ViewerWindow::followPage() {
    browser_->mark({});
    const QString page = browser_->page();
    for (QTreeWidgetItemIterator each(contents_); *each && !page.isEmpty(); ++each) {
        if ((*each)->data(0, pageRole).toString() != page)
            continue;
        for (QTreeWidgetItem* above = (*each)->parent(); above; above = above->parent())
            above->setExpanded(true);
        contents_->setCurrentItem(*each);
        contents_->scrollToItem(*each);
        return;
    }
}

void ViewerWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral("Imprimir"));
    if (dialog.exec() == QDialog::Accepted)
        browser_->document()->print(&printer);
}

} // namespace caudalera::viewer
