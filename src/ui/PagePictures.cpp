#include "ui/PagePictures.h"

#include "pages/ImportPDFOperation.h"

#include <utility>

namespace {

// Enough for the list of pages on a screen of two pixels a point.
constexpr int pictureDPI = 28;
constexpr int pictureQuality = 65;

} // namespace

PagePictures::~PagePictures() {
    clear();
}

void PagePictures::draw(int document, const QString& pdf, const QByteArray& password) {
    auto operation = std::make_shared<ImportPDFOperation>(pdf, QStringLiteral("ALL"), pictureDPI,
                                                          pictureQuality);
    OpenedPDF opened;
    opened.password = password;
    operation->setDocument(std::move(opened));
    iOperations[document] = operation;
    operation->setFinishedObserver([this, document, weak = std::weak_ptr(operation)] {
        QMetaObject::invokeMethod(
            this, [this, document, ended = weak.lock()] { finished(document, ended); },
            Qt::QueuedConnection);
    });
    iQueue.addOperation(operation);
}

void PagePictures::clear() {
    iQueue.cancelAllOperations();
    iOperations.clear();
}

void PagePictures::finished(int document, const std::shared_ptr<ImportPDFOperation>& operation) {
    const auto own = iOperations.find(document);
    if (!operation || own == iOperations.end() || own->second != operation ||
        !operation->book().pageSource)
        return;
    for (const auto& page : operation->book().pageSource->normalPages())
        Q_EMIT arrived(document, page->pageIndex() - 1, page->pageFilePath());
}
