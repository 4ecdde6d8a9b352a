#pragma once

#include <QObject>
#include <QPoint>
#include <qcustomplot.h>

class QKeyEvent;

namespace caudalera {

/// Moves through a drawing: a left drag moves it, a drag with Shift zooms into the rectangle it
/// draws, the wheel zooms at the pointer (over an axis along that one alone), a double click goes
/// back to the whole. Nobody gets lost: something of a curve stays in sight, at most a quarter of
/// the sight lies beyond an end of the whole, and a step of an axis stays one that its numbers can
/// tell.
class ChartNavigation : public QObject {
    Q_OBJECT

public:
    explicit ChartNavigation(QCustomPlot& plot);

    /// The drawing with its margins, which is shown at once.
    void setWhole(const QCPRange& x, const QCPRange& y);
    void showAll();
    /// Whether something else than the whole is in sight.
    bool departs() const;
    /// Arrows, plus and minus, 0 and Home; false for any other key.
    bool takeKey(const QKeyEvent& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct View {
        QCPRange x;
        QCPRange y;
    };

    /// Goes as far as the limits let.
    void show(const View& wanted);
    bool showsACurve(const View& view) const;
    View inSight() const;
    /// Moves by shares of what is in sight, to the right and upwards.
    void move(double right, double up);
    void zoom(double factor, QPointF about, Qt::Orientations along);
    void press(const QMouseEvent& event);
    void drag(const QMouseEvent& event);
    void wheel(const QWheelEvent& event);

    QCustomPlot& plot_;
    View whole_;
    /// Where the left button went down and what was in sight then.
    std::optional<QPoint> pressed_;
    View before_;
    bool dragging_ = false;
};

} // namespace caudalera
