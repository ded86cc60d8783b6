#include "pages/PageFilesOperation.h"

#include "base/PlatformException.h"

void PageFilesOperation::main() {
    const auto pages = iSource->pagesWithout(iKind);
    try {
        iSource->makeFiles(iKind, pages, iStop,
                           [&](int done) { iProgress(done, int(pages.size())); });
    } catch (const PlatformException& failure) {
        iFailure = failure.message();
    }
}

void PageFilesOperation::cancel() {
    Operation::cancel();
    iStop = true;
}
