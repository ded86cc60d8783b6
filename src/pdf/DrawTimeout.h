#pragma once

#include "pdf/DrawablePage.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mupdf/fitz.h>
#include <mutex>
#include <stop_token>
#include <thread>

// Aborts MuPDF's work on a page, through the abort flag of its cookie, when it times out or is
// stopped.
class DrawTimeout {
public:
    explicit DrawTimeout(const DrawControl& control);

    fz_cookie* cookie() { return &iCookie; }

    // Throws PlatformException: pageTimeout or pageStopped.
    void throwIfEnded() const;

private:
    bool isStopped() const { return iControl.stop && *iControl.stop; }
    void watch(const std::stop_token& ended);

    const DrawControl iControl;
    const std::chrono::steady_clock::time_point iDeadline;
    fz_cookie iCookie{};
    std::atomic<bool> iTimedOut{false};
    std::mutex iMutex;
    std::condition_variable_any iWake;
    std::jthread iThread; // ends with this object
};
