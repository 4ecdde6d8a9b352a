#include "desktop/windows/WindowView.h"

#include "desktop/grid/GridEditor.h"
#include "desktop/grid/GridView.h"
#include "desktop/style/Style.h"
#include "desktop/windows/CommandBar.h"
#include "desktop/windows/LayoutBuilder.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace caudalera {

namespace {

/// Share of the screen that a window with grids or a chart takes at first.
constexpr double shareOfScreen = 0.9;

bool grows(const Layout& layout) {
    return layout.stretch > 0 || std::any_of(layout.children.begin(), layout.children.end(), grows);
}

} // namespace

WindowView::WindowView(Session& session, Window& window)
    : session_(session), window_(window), views_(session, *this) {
    setObjectName(toQString(window.name()));
    build();
    orderFocus();
    sync();
    takeSmallestSize();
    takeFirstSize();
}

void WindowView::build() {
    auto* column = new QVBoxLayout(this);
    const int margin = style::unit() + style::halfUnit();
    column->setContentsMargins(margin, margin, margin, style::halfUnit());
    column->setSpacing(margin);
    column->addLayout(LayoutBuilder(views_).build(window_.layout), 1);
    if (!window_.commands.empty())
        column->addWidget(commandBar(window_, views_, *this));
    for (Control* control : window_.controls()) {
        if (control->kind() == ControlKind::status)
            column->addWidget(&views_.of(*control).widget());
    }
}

void WindowView::orderFocus() {
    for (const auto& view : views_.all()) {
        if (QWidget* target = view->focusTarget())
            focusChain_.push_back({target, &view->control()});
        if (const auto* grid = dynamic_cast<GridControlView*>(view.get());
            grid && grid->view().editor())
            focusChain_.push_back({grid->view().editor(), grid->grid().editor});
    }
    for (std::size_t i = 0; i < focusChain_.size(); ++i) {
        focusChain_[i].widget->installEventFilter(this);
        if (i > 0)
            QWidget::setTabOrder(focusChain_[i - 1].widget, focusChain_[i].widget);
    }
}

bool WindowView::event(QEvent* event) {
    const bool known = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        takeSmallestSize();
    return known;
}

void WindowView::takeSmallestSize() {
    const QSize smallest = layout()->totalMinimumSize();
    setMinimumSize(
        smallest.expandedTo({0, layout()->totalMinimumHeightForWidth(smallest.width())}));
}

void WindowView::takeFirstSize() {
    const QSize available = screen()->availableSize();
    const QSize wanted = layout()->totalSizeHint();
    QSize size = wanted;
    if (grows(window_.layout))
        size = wanted.expandedTo(QSizeF(available * shareOfScreen).toSize());
    // Leaves room for the frame that the window manager puts around it.
    resize(size.boundedTo(available - QSize(2, 5) * style::unit()));
}

void WindowView::sync() {
    if (const QString title = toQString(window_.caption); windowTitle() != title)
        setWindowTitle(title);
    for (const auto& view : views_.all())
        view->sync();
    syncFocus();
}

void WindowView::syncFocus() {
    for (const Focusable& each : focusChain_) {
        if (each.control == window_.focus() && each.widget != focusWidget())
            each.widget->setFocus(Qt::OtherFocusReason);
    }
}

void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    session_.act([this] { session_.program().close(window_); });
}

bool WindowView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        focused(watched, static_cast<QFocusEvent*>(event)->reason());
    // What a widget does when it is left finds the model's keyboard at the next one already.
    if (event->type() == QEvent::FocusOut)
        focused(QApplication::focusWidget(), static_cast<QFocusEvent*>(event)->reason());
    return QWidget::eventFilter(watched, event);
}

void WindowView::focused(const QObject* widget, Qt::FocusReason reason) {
    // A window that comes forward or a closing menu gives back a focus that never left.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
        reason == Qt::MenuBarFocusReason)
        return;
    for (const Focusable& each : focusChain_) {
        if (each.widget == widget && each.control != window_.focus())
            session_.act([&] { session_.program().focus(*each.control); });
    }
}

} // namespace caudalera
