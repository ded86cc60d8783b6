#include "system/LargeStackThread.h"

#include <exception>
#include <pthread.h>

namespace {

struct Job {
    const std::function<void()>& work;
    std::exception_ptr failure;
};

void* perform(void* argument) {
    auto& job = *static_cast<Job*>(argument);
    try {
        job.work();
    } catch (...) {
        job.failure = std::current_exception();
    }
    return nullptr;
}

} // namespace

bool runWithLargeStack(std::size_t stackBytes, const std::function<void()>& work) {
    Job job{work, nullptr};
    pthread_attr_t attributes;
    pthread_t thread{};
    ::pthread_attr_init(&attributes);
    const bool started = ::pthread_attr_setstacksize(&attributes, stackBytes) == 0 &&
                         ::pthread_create(&thread, &attributes, perform, &job) == 0;
    ::pthread_attr_destroy(&attributes);
    if (!started)
        return false;
    ::pthread_join(thread, nullptr);
    if (job.failure)
        std::rethrow_exception(job.failure);
    return true;
}
