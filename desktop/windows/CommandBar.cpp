#include "desktop/windows/CommandBar.h"

#include "desktop/controls/ContainerViews.h"
#include "desktop/style/Style.h"
#include "shell/window/Window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QWidget>
#include <vector>

namespace caudalera {

QWidget* commandBar(Window& window, ViewSet& views, QWidget& parent, int widest) {
    auto* bar = new QWidget(&parent);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(style::unit());
    const int margin = style::unit();
    const QSize buttonSize(11 * style::unit(), 7 * style::halfUnit());
    std::vector<QWidget*> buttons;
    for (std::size_t i = 0; i < window.commands.size(); ++i) {
        const Window::CommandGroup& group = window.commands[i];
        QWidget* box = group.frame ? &views.of(*group.frame).widget() : new QWidget(bar);
        auto* inside = new QHBoxLayout(box);
        if (group.frame) {
            inside->setContentsMargins(margin, margin, margin, margin);
        } else {
            inside->setContentsMargins(0, 0, 0, margin + QGroupBox().contentsMargins().bottom());
        }
        inside->setSpacing(style::halfUnit());
        for (Button* button : group.buttons) {
            QWidget& widget = views.of(*button).widget();
            widget.setMinimumSize(widget.sizeHint().expandedTo(buttonSize));
            inside->addWidget(&widget);
            buttons.push_back(&widget);
        }
        inside->addStretch(1);
        // What leads out of the window stands apart, at the right.
        if (i + 1 == window.commands.size())
            row->addStretch(1);
        // Without a title above it a box is lower: they all end on one line.
        row->addWidget(box, 0, Qt::AlignBottom);
    }
    if (bar->sizeHint().width() > widest) {
        for (QWidget* button : buttons)
            button->setMinimumWidth(0);
    }
    return bar;
}

} // namespace caudalera
