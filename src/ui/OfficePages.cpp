#include "ui/OfficePages.h"

#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"

#include <QProgressDialog>
#include <vector>

class OfficePages::Conversion : public Operation {
public:
    struct Job {
        QString file;
        std::shared_ptr<const ConvertedDocument> made;
        Message failure; // when nothing was made
    };
    explicit Conversion(std::vector<Job> jobs) : iJobs(std::move(jobs)) {}

    void main() override {
        for (Job& job : iJobs) {
            try {
                job.made =
                    std::make_shared<ConvertedDocument>(job.file, [this] { return isCancelled(); });
            } catch (const PlatformException& failure) {
                job.failure = failure.message();
            }
        }
    }

    // Once it is finished.
    const std::vector<Job>& jobs() const { return iJobs; }

private:
    std::vector<Job> iJobs;
};

OfficePages::OfficePages(QWidget& window) : iWindow(window) {}

OfficePages::~OfficePages() {
    clear();
}

void OfficePages::clear() {
    iQueue.cancelAllOperations();
    iQueue.waitFor(-1);
    iPDFs.clear();
}

void OfficePages::make(const QStringList& files, const Done& done) {
    std::vector<Conversion::Job> jobs;
    for (const QString& file : files) {
        const auto known = iPDFs.find(file);
        const bool isThere = known != iPDFs.end() && (*known)->isCurrent();
        if (OfficeDocument::isOne(file) && !isThere)
            jobs.push_back({file, {}, {}});
    }
    if (jobs.empty()) {
        done({});
        return;
    }
    iProgress = new QProgressDialog(&iWindow);
    iProgress->setWindowModality(Qt::WindowModal);
    iProgress->setLabelText(tr("LibreOffice is making the pages…"));
    iProgress->setRange(0, 0);
    // At once: the program takes seconds to start, and nobody is to go on without the pages.
    iProgress->show();
    const auto conversion = std::make_shared<Conversion>(std::move(jobs));
    connect(iProgress, &QProgressDialog::canceled, this, [this] { iQueue.cancelAllOperations(); });
    conversion->setFinishedObserver([this, done, weak = std::weak_ptr(conversion)] {
        QMetaObject::invokeMethod(
            this, [this, done, ended = weak.lock()] { take(ended, done); }, Qt::QueuedConnection);
    });
    iQueue.addOperation(conversion);
}

void OfficePages::take(const std::shared_ptr<Conversion>& conversion, const Done& done) {
    delete iProgress;
    if (!conversion || conversion->isCancelled())
        return;
    QStringList failures;
    for (const auto& job : conversion->jobs()) {
        if (job.made)
            iPDFs[job.file] = job.made;
        else
            failures << job.failure.local();
    }
    done(failures);
}
