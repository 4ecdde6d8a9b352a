#include "desktop/windows/Splitter.h"

#include "desktop/style/Style.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QTableView>
#include <algorithm>

namespace caudalera {

namespace {

/// A part of a splitter, which asks its content only for sizes by themselves: here sentences that
/// wrap have their height, and grids of a few rows end the part below them.
class Pane : public QWidget {
public:
    Pane(QLayout* content, Qt::Orientation orientation) : orientation_(orientation) {
        setLayout(content);
    }

    QSize minimumSizeHint() const override {
        const QSize smallest = layout()->totalMinimumSize();
        if (!layout()->hasHeightForWidth())
            return smallest;
        const int width = std::max(this->width(), smallest.width());
        return smallest.expandedTo({0, layout()->totalMinimumHeightForWidth(width)});
    }

protected:
    bool event(QEvent* event) override {
        const bool known = QWidget::event(event);
        if (event->type() == QEvent::LayoutRequest && orientation_ == Qt::Vertical)
            endBelowGrids();
        return known;
    }

    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        if (layout()->hasHeightForWidth())
            updateGeometry();
    }

private:
    void endBelowGrids() {
        int spare = 0;
        bool grids = false;
        for (const QTableView* grid : findChildren<QTableView*>(Qt::FindDirectChildrenOnly)) {
            if (grid->maximumHeight() == QWIDGETSIZE_MAX)
                return;
            grids = true;
            spare += std::max(grid->maximumHeight() - grid->sizeHint().height(), 0);
        }
        if (grids)
            setMaximumHeight(std::max(sizeHint().height() + spare, minimumSizeHint().height()));
    }

    Qt::Orientation orientation_;
};

/// What the border is moved by: a bar in its middle.
class Grip : public QSplitterHandle {
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const int length = 5 * style::unit();
        const int width = std::max(style::halfUnit() - 1, 2);
        QRectF bar(QPointF(),
                   orientation() == Qt::Vertical ? QSizeF(length, width) : QSizeF(width, length));
        bar.moveCenter(QRectF(rect()).center());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(underMouse() ? style::accent() : palette().color(QPalette::Shadow));
        painter.drawRoundedRect(bar, width / 2.0, width / 2.0);
    }
    void enterEvent(QEnterEvent* event) override {
        QSplitterHandle::enterEvent(event);
        update();
    }
    void leaveEvent(QEvent* event) override {
        QSplitterHandle::leaveEvent(event);
        update();
    }
};

} // namespace

Splitter::Splitter(Qt::Orientation orientation) : QSplitter(orientation) {
    setChildrenCollapsible(false);
    setHandleWidth(style::unit() + style::halfUnit());
}

void Splitter::add(QLayout* content) {
    addWidget(new Pane(content, orientation()));
    setStretchFactor(count() - 1, 1);
}

QSplitterHandle* Splitter::createHandle() {
    return new Grip(orientation(), this);
}

} // namespace caudalera
