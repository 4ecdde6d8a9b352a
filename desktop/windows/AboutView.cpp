#include "desktop/windows/AboutView.h"

#include "desktop/style/Style.h"
#include "desktop/style/Title.h"
#include "desktop/windows/Placement.h"
#include "shell/main/frmacerc.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <qcustomplot.h>

namespace caudalera {

namespace {

/// Of the text's own.
constexpr double sizeOfName = 2.4;

} // namespace

AboutView::AboutView(Session& session, frmacerc& window)
    : session_(session), window_(window), views_(session, *this) {
    setObjectName(toQString(window.name()));
    build();
    sync();
    takeSize();
    views_.of(window_.bsalir).widget().setFocus();
    placement::centreOn(*this, QApplication::activeWindow());
}

void AboutView::build() {
    auto* column = new QVBoxLayout(this);
    const int margin = 3 * style::unit();
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(style::halfUnit());

    QWidget& logo = views_.of(window_.imgLogo).widget();
    logo.setObjectName(toQString(window_.imgLogo.name()));
    logo.setFixedSize(20 * style::unit(), 20 * style::unit());
    column->addWidget(&logo, 0, Qt::AlignHCenter);
    QLabel* name = line("nombre", QStringLiteral("Caudalera"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * sizeOfName);
    large.setWeight(QFont::DemiBold);
    name->setFont(large);
    QPalette accented = name->palette();
    accented.setColor(QPalette::WindowText, style::accent());
    name->setPalette(accented);
    column->addWidget(name);
    column->addWidget(line("version", QStringLiteral("Versión " CAUDALERA_VERSION)));
    column->addSpacing(style::unit());
    QWidget& product = views_.of(window_.lblProducto).widget();
    if (auto* label = qobject_cast<QLabel*>(&product))
        label->setAlignment(Qt::AlignCenter);
    column->addWidget(&product);
    column->addSpacing(style::unit());
    column->addWidget(
        line("licencia", QStringLiteral("Software libre, licencia GPL versión 3 o posterior")));
    column->addWidget(line("hechoCon", QStringLiteral("Hecho en C++ con Qt %1 y QCustomPlot %2")
                                           .arg(QString::fromLatin1(qVersion()),
                                                QStringLiteral(QCUSTOMPLOT_VERSION_STR))));
    column->addSpacing(2 * style::unit());
    QWidget& close = views_.of(window_.bsalir).widget();
    close.setMinimumSize(close.sizeHint().expandedTo({14 * style::unit(), 7 * style::halfUnit()}));
    column->addWidget(&close, 0, Qt::AlignHCenter);
}

void AboutView::takeSize() {
    const QSize wanted = layout()->totalSizeHint();
    const int width = std::max(style::titleWidth(windowTitle()), wanted.width());
    const bool wraps = layout()->hasHeightForWidth();
    setFixedSize(width, wraps ? layout()->totalHeightForWidth(width) : wanted.height());
}

QLabel* AboutView::line(const char* name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

void AboutView::sync() {
    if (const QString title = toQString(window_.caption); windowTitle() != title)
        setWindowTitle(title);
    for (const auto& view : views_.all())
        view->sync();
}

void AboutView::closeEvent(QCloseEvent* event) {
    event->ignore();
    session_.act([this] { session_.program().close(window_); });
}

void AboutView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        session_.act([this] { session_.program().click(window_.bsalir); });
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace caudalera
