#pragma once

#include "desktop/controls/ControlView.h"

#include <QFrame>
#include <QLabel>

#include <vector>

namespace caudalera {

/// A text that is cut short where its room is too narrow, and then shows whole as a tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setWhole(const QString& text);
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isCut() const;
};

/// The strip at the foot of a window below a fine line: the panels of its status bar at the left,
/// what the window tells of itself at the right.
class StatusView : public ControlView {
public:
    StatusView(StatusBar& bar, QWidget* parent);

    void sync() override;

private:
    std::vector<ElidedLabel*> panels_;
    ElidedLabel* state_;
};

} // namespace caudalera
