#include "desktop/chart/ChartTicker.h"

#include <algorithm>
#include <cmath>

namespace caudalera {

namespace {

/// Past these a label takes the exponent form, since its zeros could not be counted at a glance.
constexpr double longestNumber = 1e7;
constexpr double smallestStep = 1e-5;
/// The months of a year each have their number.
constexpr int fewWholeNumbers = 12;
/// So few of them would leave an axis with one number or none.
constexpr double closeBy = 3;

/// Decimals that tell every multiple of the step apart: 0 for 20, 1 for 2.5, 2 for 0.05.
int decimalsOf(double step) {
    int decimals = 0;
    for (double scaled = step; decimals < 9; ++decimals, scaled *= 10) {
        if (std::abs(scaled - std::round(scaled)) < 1e-6 * scaled)
            break;
    }
    return decimals;
}

} // namespace

int ChartTicker::ticksOf(const QCPRange& range, int usual) const {
    const bool each = whole_ && range.size() > usual && range.size() <= fewWholeNumbers;
    return each ? fewWholeNumbers : usual;
}

double ChartTicker::getTickStep(const QCPRange& range) {
    step_ = QCPAxisTicker::getTickStep(range);
    // Close by, the numbers between tell where one is. Of the readable steps 1, 2, 2.5 and 5 times
    // a power of ten, 2.5 is the one from 1 on that is not whole.
    if (whole_ && range.size() >= closeBy)
        step_ = step_ == 2.5 ? 2 : std::max(1.0, step_);
    return step_;
}

int ChartTicker::getSubTickCount(double tickStep) {
    const int count = whole_ && tickStep == 1 ? 0 : QCPAxisTicker::getSubTickCount(tickStep);
    smallStep_ = tickStep / (count + 1);
    return count;
}

QString ChartTicker::getTickLabel(double tick, const QLocale& /*locale*/, QChar /*formatChar*/,
                                  int /*precision*/) {
    // The ticks are multiples of the step up to rounding; the one at the origin is 0 itself.
    if (std::abs(tick) < step_ * 1e-6)
        return QStringLiteral("0");
    return written(tick, step_);
}

QString ChartTicker::reading(double value) const {
    // What rounds to nothing has no sign.
    return written(std::abs(value) < smallStep_ / 2 ? 0 : value, smallStep_);
}

QString ChartTicker::written(double value, double step) const {
    const bool plain = std::abs(value) < longestNumber && step >= smallestStep;
    QString number;
    if (plain) {
        number = QString::number(value, 'f', decimalsOf(step));
    } else {
        // As many digits as tell a step from the next one.
        const double places = value == 0 ? 0 : std::log10(std::abs(value) / step);
        number = QString::number(value, 'g', std::clamp(static_cast<int>(places) + 2, 6, 15));
    }
    return number.toUpper().replace(u'.', separator_);
}

} // namespace caudalera
