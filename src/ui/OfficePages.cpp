#include "ui/OfficePages.h"

#include "base/PlatformException.h"
#include "pdf/OfficeDocument.h"
#include "system/Files.h"
#include "system/TemporaryFolders.h"

#include <QDir>
#include <QProgressDialog>
#include <vector>

class OfficePages::Conversion : public Operation {
public:
    struct Job {
        QString file;
        QString pdf;
        Message failure; // null when it was made
    };
    explicit Conversion(std::vector<Job> jobs) : iJobs(std::move(jobs)) {}

    void main() override {
        for (Job& job : iJobs) {
            try {
                OfficeDocument::convert(job.file, job.pdf, [this] { return isCancelled(); });
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
    if (!iFolder.isNull())
        TemporaryFolders::remove(iFolder);
    iFolder = QString();
}

void OfficePages::make(const QStringList& files, const Done& done) {
    std::vector<Conversion::Job> jobs;
    try {
        for (const QString& file : files) {
            if (!OfficeDocument::isOne(file) || iPDFs.contains(file))
                continue;
            if (iFolder.isNull())
                iFolder = TemporaryFolders::make(QStringLiteral("Folvero"));
            // The program keeps files of its own beside each PDF.
            const QString folder = Files::join(iFolder, QString::number(++iCount));
            QDir().mkdir(folder);
            jobs.push_back({file, Files::join(folder, QStringLiteral("document.pdf")), {}});
        }
    } catch (const PlatformException& failure) {
        done({failure.message().local()});
        return;
    }
    if (jobs.empty()) {
        done({});
        return;
    }
    iProgress = new QProgressDialog(&iWindow);
    iProgress->setWindowModality(Qt::WindowModal);
    iProgress->setLabelText(tr("LibreOffice is making the pages…"));
    iProgress->setRange(0, 0);
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
        if (job.failure.isNull())
            iPDFs[job.file] = job.pdf;
        else
            failures << job.failure.local();
    }
    done(failures);
}
