#include "output/PublishRun.h"

#include "base/Log.h"
#include "base/PlatformException.h"

namespace {

struct Cancelled {};

constexpr Log runLog("PublishRun");

} // namespace

void PublishTarget::checkCancelled() const {
    if (isCancelled && isCancelled())
        throw Cancelled();
}

PublishOutcome PublishRun::commit(const BookLayout& layout, const PublishSteps& steps,
                                  const std::function<bool()>& isCancelled,
                                  const QString& workingFolder) {
    PublishOutcome outcome;
    try {
        PublishTransaction transaction(layout.folder(), workingFolder);
        PublishTarget target{layout, transaction, isCancelled};
        stage(target, steps);
        target.checkCancelled();
        transaction.commit();
        outcome.counts = transaction.counts();
    } catch (const PlatformException& failure) {
        outcome.errors << failure.message();
    } catch (const Cancelled&) {
        outcome.wasCancelled = true;
    }
    return outcome;
}

void PublishRun::stage(PublishTarget& target, const PublishSteps& steps) {
    for (const PublishStep& step : steps) {
        runLog.debug(QStringLiteral("publishing: %1").arg(QLatin1String(step.name)));
        step.work(target);
    }
}
