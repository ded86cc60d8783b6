#pragma once

#include <QThreadPool>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

// A task that runs once on an operation queue.
class Operation {
public:
    virtual ~Operation() = default;

    // The work itself. Also called after a cancel; implementations check isCancelled().
    virtual void main() = 0;

    virtual void cancel() { iCancelled = true; }
    bool isCancelled() const { return iCancelled; }
    bool isFinished() const { return iFinished; }

    // Called once, on the operation's thread, when isFinished() has become true. Set it before the
    // operation is queued; switch to the main thread before touching a window.
    void setFinishedObserver(std::function<void()> observer) { iObserver = std::move(observer); }

    // Runs main() and marks the operation finished, even when main() throws (the exception is
    // logged).
    void start();

private:
    std::atomic<bool> iCancelled{false};
    std::atomic<bool> iFinished{false};
    std::function<void()> iObserver;
};

// Runs operations one at a time on its own thread. The destructor cancels the remaining ones and
// waits for them.
class OperationQueue {
public:
    OperationQueue();
    ~OperationQueue();
    OperationQueue(const OperationQueue&) = delete;
    OperationQueue& operator=(const OperationQueue&) = delete;

    void addOperation(std::shared_ptr<Operation> operation);
    void cancelAllOperations();
    // Waits at most that long, or for ever if it is negative; true when no operation is left.
    bool waitFor(int milliseconds);

    // Operations queued or running.
    std::size_t operationCount() const;

private:
    void forget(const Operation* operation);

    mutable std::mutex iMutex;
    std::vector<std::shared_ptr<Operation>> iOperations;
    QThreadPool iPool;
};
