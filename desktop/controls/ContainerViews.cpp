#include "desktop/controls/ContainerViews.h"

#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QGroupBox>
#include <QLabel>
#include <QStatusBar>
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

QWidget* TabsView::focusTarget() const {
    return tabs().tabBar();
}

void TabsView::sync() {
    ControlView::sync();
    const int tab = static_cast<Tabs&>(control()).tab();
    if (tabs().currentIndex() != tab)
        tabs().setCurrentIndex(tab);
}

StatusView::StatusView(StatusBar& control, QWidget* parent)
    : ControlView(control, *new QStatusBar(parent)) {
    auto& bar = static_cast<QStatusBar&>(widget());
    bar.setObjectName(toQString(control.name()));
    bar.setSizeGripEnabled(false);
    for (std::size_t i = 0; i < control.panels.size(); ++i) {
        panels_.push_back(new QLabel(&bar));
        panels_.back()->setTextFormat(Qt::PlainText);
        bar.addWidget(panels_.back(), 1);
    }
    // As high as a line of text also while it is empty.
    bar.setMinimumHeight(bar.fontMetrics().height() + style::unit());
}

void StatusView::sync() {
    ControlView::sync();
    const auto& texts = static_cast<StatusBar&>(control()).panels;
    for (std::size_t i = 0; i < panels_.size() && i < texts.size(); ++i) {
        if (const QString text = toQString(texts[i]); panels_[i]->text() != text)
            panels_[i]->setText(text);
    }
}

} // namespace caudalera
