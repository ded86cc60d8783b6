#include "Fuzz.h"
#include "base/PlatformException.h"
#include "project/ProjectFile.h"
#include "project/ProjectFiles.h"
#include "project/ProjectJSON.h"

namespace {

void check(const Project& project) {
    const QByteArray written = ProjectJSON::written(project);
    Fuzz::require(ProjectJSON::written(ProjectJSON::read(written)) == written,
                  "a project that was read is written and read the same");
    for (const Project::File& document : project.documents)
        Fuzz::require(document.path.startsWith('/'), "documents have full paths");
    for (const MergePlan::Page& page : project.pages) {
        Fuzz::require(page.source < int(project.documents.size()), "pages are of documents");
        Fuzz::require(page.rotation % 90 == 0, "pages are turned by quarters");
    }
    const auto located = ProjectFiles::locate(project, QStringLiteral("/nowhere"));
    Fuzz::require(located.project.documents.size() == project.documents.size(),
                  "documents that are missing stay in the project");
}

} // namespace

// A project's file, and its description alone, which the fuzzer would seldom reach through the
// checksums of an archive. The first byte tells which it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fuzz::Input input(data, size);
    const bool isArchive = (input.byte() & 1) == 0;
    try {
        check(isArchive ? ProjectFile::read(Fuzz::fileWith(input.rest()))
                        : ProjectJSON::read(input.rest()));
    } catch (const PlatformException&) {
        // A file that is no project.
    }
    return 0;
}
