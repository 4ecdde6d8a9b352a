#pragma once

#include <qcustomplot.h>

namespace caudalera {

/// Ticks with as many decimals as their step asks for, the same on the whole axis, written with
/// the program's decimal separator.
class ChartTicker : public QCPAxisTicker {
public:
    explicit ChartTicker(QString separator) : separator_(std::move(separator)) {}

    /// Positions that are whole numbers (ranks, months) get no ticks between them, unless few of
    /// them are in sight.
    void setWholeNumbers(bool whole) { whole_ = whole; }
    /// So many ticks, or one for each of a few whole numbers.
    int ticksOf(const QCPRange& range, int usual) const;
    /// A position on the axis with the decimals that tell its smallest ticks apart.
    QString reading(double value) const;

protected:
    double getTickStep(const QCPRange& range) override;
    int getSubTickCount(double tickStep) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                         int precision) override;

private:
    QString written(double value, double step) const;

    QString separator_;
    bool whole_ = false;
    double step_ = 1;
    /// Of the ticks between the labels, where there are any.
    double smallStep_ = 1;
};

} // namespace caudalera
