#include "worker/MergeService.h"

#include "pdf/PDFLimits.h"
#include "pdf/PDFSerialization.h"
#include "worker/Answer.h"
#include "worker/PDFMerger.h"
#include "worker/WorkerSandbox.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <iostream>
#include <string>

namespace {

MergePlan planFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return PDFSerialization::unpack<MergePlan>(file.readAll());
}

} // namespace

void serveMerging(const char* output) {
    std::string line;
    if (!std::getline(std::cin, line))
        return;
    const QString file = QFile::decodeName(output);
    const MergePlan plan =
        planFrom(QFile::decodeName(QByteArray::fromBase64(QByteArray::fromStdString(line))));
    QImageReader::supportedImageFormats(); // loads plugins, which the sandbox would hide
    QStringList files;
    for (const MergePlan::Source& source : plan.sources)
        files << source.path;
    enterWorkerSandbox(files, QFileInfo(file).path(), PDFLimits::maxMergedSize);
    answerWith(PDFLimits::maxMergeTime, [&] {
        PDFMerger merger(plan);
        merger.write(file);
        return PDFSerialization::pack(merger.pageCount());
    });
}
