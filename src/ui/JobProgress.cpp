#include "ui/JobProgress.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace std::chrono_literals;
using Minutes = std::chrono::duration<double, std::ratio<60>>;

// Before that, the first steps say little about the others.
constexpr std::chrono::milliseconds leastTaken = 4s;
constexpr double leastShare = 0.02;
constexpr int longHours = 90; // minutes from which on hours are told

} // namespace

void JobProgress::begin() {
    iShare = 0;
    iFirstShare = -1;
    iTimer.start();
    Q_EMIT moved(0);
}

void JobProgress::show(double share) {
    iShare = std::clamp(share, iShare, 1.0);
    if (!iTimer.isValid())
        return;
    if (iFirstShare < 0) {
        iFirstShare = iShare;
        iFirstTime = taken();
    }
    Q_EMIT moved(iShare);
}

void JobProgress::end(const QString& message) {
    if (!iTimer.isValid())
        return;
    const auto time = taken();
    iTimer.invalidate();
    Q_EMIT moved(-1);
    Q_EMIT ended(message, time);
}

QString JobProgress::text() const {
    if (!iTimer.isValid())
        return {};
    const double since = iShare - iFirstShare;
    if (iFirstShare < 0 || since <= 0)
        return textFor(iShare, 0ms);
    const std::chrono::duration<double, std::milli> whole = (taken() - iFirstTime) * iShare / since;
    return textFor(iShare, std::chrono::duration_cast<std::chrono::milliseconds>(whole));
}

// Rounded down, but not where the fraction is a little less only for how computers count.
int JobProgress::percentOf(double share) {
    constexpr double inaccuracy = 1e-6;
    return int(share * 100 + inaccuracy);
}

QString JobProgress::textFor(double share, std::chrono::milliseconds taken) {
    //: Share of a job that is done.
    const QString percent = tr("%1 %").arg(percentOf(share));
    if (taken < leastTaken || share < leastShare || share >= 1)
        return percent;
    const int minutes = int(std::ceil(Minutes(taken * (1 - share) / share).count()));
    const auto with = [&percent](const QString& left) {
        //: %1 is a percentage, %2 the time that is left.
        return tr("%1, %2").arg(percent, left);
    };
    if (minutes <= 1)
        return with(tr("less than a minute left"));
    if (minutes < longHours)
        return with(tr("about %n minute(s) left", nullptr, minutes));
    return with(tr("about %n hour(s) left", nullptr, int(std::lround(minutes / 60.0))));
}
