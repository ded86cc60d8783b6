#include "pages/WebFilesOperation.h"

#include "base/PlatformException.h"

void WebFilesOperation::main() {
    const auto pages = iSource->pagesWithoutWebFiles();
    try {
        iSource->makeWebFiles(pages, iStop, [&](int done) { iProgress(done, int(pages.size())); });
    } catch (const PlatformException& failure) {
        iFailure = failure.message();
    }
}

void WebFilesOperation::cancel() {
    Operation::cancel();
    iStop = true;
}
