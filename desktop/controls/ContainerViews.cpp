#include "desktop/controls/ContainerViews.h"

#include "desktop/session/Session.h"

#include <QGroupBox>
#include <QTabBar>
#include <QTabWidget>

namespace caudalera {

FrameView::FrameView(Frame& frame, QWidget* parent) : ControlView(frame, *new QGroupBox(parent)) {
    box().setObjectName(toQString(frame.name()));
}

QGroupBox& FrameView::box() const {
    return static_cast<QGroupBox&>(widget());
}

void FrameView::sync() {
    ControlView::sync();
    const QString title = toQString(control().caption);
    if (box().title() != title)
        box().setTitle(title);
}

TabsView::TabsView(Session& session, Tabs& control, QWidget* parent)
    : ControlView(control, *new QTabWidget(parent)) {
    tabs().setObjectName(toQString(control.name()));
    QObject::connect(&tabs(), &QTabWidget::currentChanged, &session, [&session, &control](int tab) {
        session.act([&] { session.program().chooseTab(control, tab); });
    });
}

QTabWidget& TabsView::tabs() const {
    return static_cast<QTabWidget&>(widget());
}

int TabsView::pageOf(const QWidget& widget) const {
    int page = tabs().count() - 1;
    while (page >= 0 && !tabs().widget(page)->isAncestorOf(&widget))
        --page;
    return page >= 0 && widget.isVisibleTo(tabs().widget(page)) ? page : -1;
}

QWidget* TabsView::focusTarget() const {
    return tabs().tabBar();
}

void TabsView::sync() {
    ControlView::sync();
    const int tab = static_cast<Tabs&>(control()).tab();
    if (tabs().currentIndex() != tab)
        tabs().setCurrentIndex(tab);
}

} // namespace caudalera
