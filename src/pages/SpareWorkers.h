#pragma once

#include "platform/ChildProcess.h"

#include <memory>
#include <vector>

// Page workers that are started before it is known what they are to draw: loading a program takes
// about as long as drawing a page, and can go on while a document is being opened. Those that
// nobody takes end with this object.
class SpareWorkers {
public:
    // Starts one for each core, but few. None where they can't be started.
    SpareWorkers();

    // One of them, or none when all are taken. It waits for its order.
    std::unique_ptr<ChildProcess> take();

private:
    std::vector<std::unique_ptr<ChildProcess>> iProcesses;
};
