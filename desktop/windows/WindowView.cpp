#include "desktop/windows/WindowView.h"

#include "desktop/controls/ContainerViews.h"
#include "desktop/grid/GridEditor.h"
#include "desktop/grid/GridView.h"
#include "desktop/style/Style.h"
#include "desktop/windows/CommandBar.h"
#include "desktop/windows/ContentArea.h"
#include "desktop/windows/LayoutBuilder.h"
#include "desktop/windows/Placement.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace caudalera {

WindowView::WindowView(Session& session, Window& window)
    : session_(session), window_(window), views_(session, *this), staleDress_(views_) {
    setObjectName(toQString(window.name()));
    build();
    orderFocus();
    sync();
    takeFirstPlace();
}

void WindowView::build() {
    auto* column = new QVBoxLayout(this);
    const int margin = style::unit() + style::halfUnit();
    column->setContentsMargins(0, 0, 0, style::halfUnit());
    column->setSpacing(0);
    auto* inside = new QVBoxLayout;
    inside->setContentsMargins(margin, margin, margin, margin);
    inside->setSpacing(margin);
    inside->addLayout(LayoutBuilder(views_).build(window_.layout), 1);
    content_ = new ContentArea(inside, this);
    column->addWidget(content_, 1);
    if (!window_.commands.empty()) {
        const int widest = placement::largestFirstSize(*this).width() - 2 * margin;
        QWidget* bar = commandBar(window_, views_, *this, widest);
        if (bar->minimumSizeHint().width() > widest) {
            // On a very narrow screen they scroll with the rest.
            inside->addWidget(bar);
        } else {
            bar->setContentsMargins(margin, 0, margin, margin);
            column->addWidget(bar);
        }
    }
    for (Control* control : window_.controls()) {
        if (control->kind() == ControlKind::status)
            column->addWidget(&views_.of(*control).widget());
    }
}

void WindowView::orderFocus() {
    std::vector<QWidget*> stops;
    for (const auto& view : views_.all()) {
        if (QWidget* target = view->focusTarget()) {
            focusChain_.push_back({target, &view->control()});
            stops.push_back(target);
        } else if (view->widget().focusPolicy() & Qt::TabFocus) {
            // The keyboard reaches it, and the model's stays where it is: a chart.
            stops.push_back(&view->widget());
        }
        if (const auto* grid = dynamic_cast<GridControlView*>(view.get());
            grid && grid->view().editor()) {
            focusChain_.push_back({grid->view().editor(), grid->grid().editor});
            stops.push_back(grid->view().editor());
        }
    }
    for (const Focusable& each : focusChain_)
        each.widget->installEventFilter(this);
    for (std::size_t i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops[i - 1], stops[i]);
}

bool WindowView::event(QEvent* event) {
    const bool known = QWidget::event(event);
    // Long work lets events through, also while this is being built.
    if (event->type() == QEvent::LayoutRequest && content_)
        takeSmallestSize();
    return known;
}

void WindowView::takeSmallestSize() {
    const QSize largest = placement::largestFirstSize(*this);
    const int around = layout()->totalMinimumSize().height() - content_->minimumSizeHint().height();
    content_->setLargestMinimum(largest - QSize(0, around));
    setMinimumSize(layout()->totalMinimumSize().boundedTo(largest));
}

QSize WindowView::smallestWithAllSeen() {
    for (const auto& view : views_.all())
        view->widget().setVisible(true);
    placement::remeasure(*content_);
    const QSize smallest = content_->smallestContent();
    for (const auto& view : views_.all())
        view->sync();
    placement::remeasure(*content_);
    return smallest;
}

void WindowView::takeFirstPlace() {
    const QSize smallest = smallestWithAllSeen();
    takeSmallestSize();
    const QSize content = content_->sizeHint();
    const QSize around = layout()->totalSizeHint() - content;
    const QSize wanted = content.expandedTo(smallest) + around;
    resize(content_->bounded(wanted, placement::largestFirstSize(*this)));
    ownSize_ = size();
    const QWidget* opener = QApplication::activeWindow();
    placement::centreOn(*this, opener ? opener->window() : nullptr);
}

void WindowView::sync() {
    if (const QString title = toQString(window_.caption); windowTitle() != title)
        setWindowTitle(title);
    for (const auto& view : views_.all())
        view->sync();
    staleDress_.sync(window_.staleResults());
    syncFocus();
    growForResults();
}

void WindowView::growForResults() {
    // The user's own size is his.
    if (!isVisible() || size() != ownSize_ || windowState() != Qt::WindowNoState)
        return;
    int lacking = 0;
    for (const auto& view : views_.all()) {
        if (const auto* grid = dynamic_cast<GridControlView*>(view.get()))
            lacking = std::max(lacking, grid->view().lackingWidth());
    }
    const int width =
        std::min(size().width() + lacking,
                 std::max(placement::largestFirstSize(*this).width(), size().width()));
    if (width == size().width())
        return;
    resize(width, height());
    ownSize_ = size();
    placement::bringOnScreen(*this);
}

void WindowView::syncFocus() {
    for (const Focusable& each : focusChain_) {
        if (each.control != window_.focus())
            continue;
        bringForward(*each.widget);
        if (each.widget != focusWidget())
            each.widget->setFocus(Qt::OtherFocusReason);
    }
}

void WindowView::bringForward(const QWidget& widget) {
    for (const auto& view : views_.all()) {
        auto* shown = dynamic_cast<TabsView*>(view.get());
        const int page = shown ? shown->pageOf(widget) : -1;
        auto* tabs = shown ? static_cast<Tabs*>(&shown->control()) : nullptr;
        if (page < 0 || page == tabs->tab())
            continue;
        tabs->preset(page);
        shown->sync();
    }
}

void WindowView::keyPressEvent(QKeyEvent* event) {
    // A box that has nothing but the command it is left by.
    const bool box = window_.commands.size() == 1 && window_.commands.front().buttons.size() == 1 &&
                     window_.commands.front().buttons.front() == window_.mainAction;
    if (event->key() == Qt::Key_Escape && box) {
        session_.act([this] { session_.program().click(*window_.mainAction); });
    } else if (!undoneByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

bool WindowView::undoneByKey(QKeyEvent& event) {
    // The keyboard may be at the command that changed the data.
    for (const auto& view : views_.all()) {
        auto* grid = dynamic_cast<GridControlView*>(view.get());
        if (grid && grid->view().isVisible() && grid->view().travelByKey(event))
            return true;
    }
    return false;
}

void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    session_.act([this] { session_.program().close(window_); });
}

bool WindowView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        // What is clicked is in sight, and must not move under the pointer.
        if (auto* widget = qobject_cast<QWidget*>(watched);
            reason != Qt::MouseFocusReason && content_->isAncestorOf(widget))
            content_->ensureWidgetVisible(widget);
        focused(watched, reason);
    }
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
