#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <memory>

// Writes a ZIP archive. The same content gives the same bytes: files have no date of their own.
class ZipWriter {
public:
    enum class Method { deflated, stored };

    // Creates the archive, or replaces the file. What fails is known at the end.
    explicit ZipWriter(const QString& path);
    ~ZipWriter();
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    // name: the file's path in the archive, separated by slashes.
    void add(const QString& name, const QByteArray& data, Method method);
    // Null when the archive is complete. The comment, of bytes in ASCII, is its last bytes.
    Message finish(const QByteArray& comment);

private:
    struct Archive;

    void check(int result);

    std::unique_ptr<Archive> iArchive;
    Message iFailure;
};
