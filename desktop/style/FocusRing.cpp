#include "desktop/style/FocusRing.h"

#include "desktop/style/Style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QTextEdit>

namespace caudalera::style {

namespace {

/// Puts the ring above what stands around the control: on its own level it would be cut off where
/// the control fills what it stands in.
class AboveAll : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_FocusFrame_AboveWidget
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin
                   ? FocusRing::width
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

class Ring : public QFocusFrame {
public:
    Ring() {
        auto* style = new AboveAll;
        style->setParent(this);
        setStyle(style);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(accent(), FocusRing::width));
        constexpr double half = FocusRing::width / 2.0;
        constexpr double round = 3;
        painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), round, round);
    }
};

/// What the ring stands around while a widget has the keyboard; nullptr if it needs none: a page of
/// text shows its caret, a cell's own frame is that of its grid, and a menu marks its entry.
QWidget* ringed(QWidget* focused) {
    if (!focused || focused->isWindow() || qobject_cast<QTextEdit*>(focused) ||
        qobject_cast<QMenuBar*>(focused))
        return nullptr;
    QWidget* around = focused->parentWidget();
    if (auto* list = qobject_cast<QComboBox*>(around))
        return list;
    if (auto* grid = around ? qobject_cast<QAbstractItemView*>(around->parentWidget()) : nullptr)
        return grid;
    return focused;
}

} // namespace

FocusRing::FocusRing(QApplication& application) : QObject(&application) {
    connect(&application, &QApplication::focusChanged, this,
            [this](QWidget* /*left*/, QWidget* focused) { follow(focused); });
}

void FocusRing::follow(QWidget* focused) {
    QWidget* around = ringed(focused);
    if (!around) {
        if (frame_)
            frame_->setWidget(nullptr);
        return;
    }
    if (!frame_)
        frame_ = new Ring;
    frame_->setWidget(around);
}

} // namespace caudalera::style
