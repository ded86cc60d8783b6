#pragma once

#include <QTemporaryDir>

// A home with settings, data and caches for a test program and all that it starts, and machine-wide
// folders for the program itself, so that whoever runs it finds nothing changed. To be made before
// the application.
class OwnFolders {
public:
    OwnFolders();

private:
    QTemporaryDir iRoot;
};
