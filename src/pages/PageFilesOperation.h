#pragma once

#include "base/Operation.h"
#include "pages/FlashPageSource.h"

#include <atomic>
#include <functional>
#include <memory>

// Makes in the background what a kind of book needs of pages that were imported for another.
class PageFilesOperation : public Operation {
public:
    PageFilesOperation(std::shared_ptr<FlashPageSource> source, PageFiles kind)
        : iSource(std::move(source)), iKind(kind) {}

    // Called after each page, on the operation's thread. Set it before the operation is queued.
    void setProgress(std::function<void(int done, int total)> progress) {
        iProgress = std::move(progress);
    }

    void main() override;
    // Thread-safe. Also stops the page that is being drawn.
    void cancel() override;

    // Why it ended early; null when it did not, or was cancelled.
    const Message& failure() const { return iFailure; }

private:
    std::shared_ptr<FlashPageSource> iSource;
    PageFiles iKind;
    std::function<void(int, int)> iProgress = [](int, int) {};
    std::atomic<bool> iStop{false};
    Message iFailure;
};
