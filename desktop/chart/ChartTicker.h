#pragma once

#include <qcustomplot.h>

namespace caudalera {

/// Ticks with as many decimals as their step asks for, the same on the whole axis, written with
/// the program's decimal separator.
class ChartTicker : public QCPAxisTicker {
public:
    explicit ChartTicker(QString separator) : separator_(std::move(separator)) {}

    /// Positions that are whole numbers (ranks, months) get no ticks between them.
    void setWholeNumbers(bool whole) { whole_ = whole; }

protected:
    double getTickStep(const QCPRange& range) override;
    int getSubTickCount(double tickStep) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                         int precision) override;

private:
    QString separator_;
    bool whole_ = false;
    double step_ = 1;
};

} // namespace caudalera
