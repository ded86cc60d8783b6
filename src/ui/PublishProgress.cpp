#include "ui/PublishProgress.h"

#include "ui/JobProgress.h"

#include <QProgressBar>
#include <algorithm>

namespace {

constexpr int leastWidth = 340;
constexpr int steps = 1000;
// A page takes that much longer to draw than its files to write.
constexpr double shareOfPages = 0.9;

} // namespace

// Stays open until its job ends. Its bar is too low for a text.
PublishProgress::PublishProgress(QWidget* sheet, JobProgress& job, Appearance appearance)
    : QProgressDialog(sheet), iJob(job) {
    constexpr int patienceMilliseconds = 400;
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(patienceMilliseconds);
    setMinimumWidth(leastWidth);
    setAutoReset(false);
    setAutoClose(false);
    auto* bar = new QProgressBar;
    bar->setTextVisible(false);
    bar->setMaximum(steps);
    setBar(bar);
    if (appearance == atOnce)
        QProgressDialog::show();
}

void PublishProgress::showPages(int done, int total) {
    iShareOfPages = shareOfPages;
    advance(shareOfPages * done / std::max(1, total));
    const QString page = QString::number(std::min(done + 1, total));
    //: %1 is the page that is worked at, %2 the number of pages, %3 is like "37 %, about 2 minutes
    //: left".
    const QString howFar = tr("Page %1 of %2 – %3").arg(page, QString::number(total), iJob.text());
    setLabelText(tr("Making the pages of the book…") + u'\n' + howFar);
}

void PublishProgress::showFiles(double share) {
    advance(iShareOfPages + (1 - iShareOfPages) * share);
    setLabelText(tr("Writing the book…") + u'\n' + iJob.text());
}

// Not with setValue(), which processes events.
void PublishProgress::advance(double share) {
    iJob.show(share);
    findChild<QProgressBar*>()->setValue(int(share * steps));
}
