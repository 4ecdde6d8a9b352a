#include "desktop/chart/ChartTicker.h"

#include <algorithm>
#include <cmath>

namespace caudalera {

namespace {

/// Past these a label takes the exponent form, since its zeros could not be counted at a glance.
constexpr double longestNumber = 1e7;
constexpr double smallestStep = 1e-5;

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

double ChartTicker::getTickStep(const QCPRange& range) {
    step_ = QCPAxisTicker::getTickStep(range);
    // Of the readable steps 1, 2, 2.5 and 5 times a power of ten, 2.5 is the one from 1 on that is
    // not whole.
    if (whole_)
        step_ = step_ == 2.5 ? 2 : std::max(1.0, step_);
    return step_;
}

int ChartTicker::getSubTickCount(double tickStep) {
    return whole_ && tickStep <= 1 ? 0 : QCPAxisTicker::getSubTickCount(tickStep);
}

QString ChartTicker::getTickLabel(double tick, const QLocale& /*locale*/, QChar /*formatChar*/,
                                  int /*precision*/) {
    // The ticks are multiples of the step up to rounding; the one at the origin is 0 itself.
    if (std::abs(tick) < step_ * 1e-6)
        return QStringLiteral("0");
    const bool plain = std::abs(tick) < longestNumber && step_ >= smallestStep;
    QString label = plain ? QString::number(tick, 'f', decimalsOf(step_))
                          : QString::number(tick, 'g', 6).toUpper();
    return label.replace(u'.', separator_);
}

} // namespace caudalera
