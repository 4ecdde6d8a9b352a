#pragma once

#include <QScrollArea>

namespace caudalera {

/// The content of a window, which scrolls where the window is too small for it. It asks for the
/// room of its content as if it did not scroll.
class ContentArea : public QScrollArea {
    Q_OBJECT

public:
    ContentArea(QLayout* content, QWidget* parent);

    /// The smallest size at which nothing of the content is cut.
    QSize smallestContent() const;
    /// What it asks for at least is never more than this: beyond it scrolls.
    void setLargestMinimum(const QSize& size);
    /// `size` no larger than `largest`, with room for a scroll bar beside what has to scroll.
    QSize bounded(QSize size, const QSize& largest) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize largestMinimum_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

} // namespace caudalera
