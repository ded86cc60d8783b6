#include "base/Operation.h"

#include "base/Log.h"

void Operation::start() {
    try {
        main();
    } catch (const std::exception& failure) {
        Log("Operation")
            .error(QStringLiteral("operation failed: %1").arg(QString::fromUtf8(failure.what())));
    }
    iFinished = true;
    if (iObserver)
        iObserver();
}

OperationQueue::OperationQueue() {
    iPool.setMaxThreadCount(1);
    // Page drawing recurses through nested forms and groups; MuPDF expects a full-size stack.
    iPool.setStackSize(8U << 20);
}

OperationQueue::~OperationQueue() {
    cancelAllOperations();
    iPool.waitForDone();
}

void OperationQueue::addOperation(std::shared_ptr<Operation> operation) {
    {
        const std::lock_guard lock(iMutex);
        iOperations.push_back(operation);
    }
    iPool.start([this, operation = std::move(operation)] {
        operation->start();
        forget(operation.get());
    });
}

void OperationQueue::cancelAllOperations() {
    std::vector<std::shared_ptr<Operation>> operations;
    {
        const std::lock_guard lock(iMutex);
        operations = iOperations;
    }
    for (const auto& operation : operations)
        operation->cancel();
}

bool OperationQueue::waitFor(int milliseconds) {
    return iPool.waitForDone(milliseconds);
}

std::size_t OperationQueue::operationCount() const {
    const std::lock_guard lock(iMutex);
    return iOperations.size();
}

void OperationQueue::forget(const Operation* operation) {
    const std::lock_guard lock(iMutex);
    std::erase_if(iOperations, [operation](const auto& entry) { return entry.get() == operation; });
}
