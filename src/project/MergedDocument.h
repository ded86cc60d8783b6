#pragma once

#include "pdf/MergePlan.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

// Pages of several documents and pictures as one document, in a temporary folder that goes with
// this object. Documents of office programs are converted by LibreOffice.
class MergedDocument {
public:
    // pages: of those files; empty for all. name: a file name, after which the document is called.
    // stopped is polled and cancels; it may be empty. Throws PlatformException, also when a file is
    // changed meanwhile.
    MergedDocument(const QStringList& files, std::vector<MergePlan::Page> pages,
                   const QByteArray& password, const QString& name,
                   const std::function<bool()>& stopped);
    ~MergedDocument();
    MergedDocument(const MergedDocument&) = delete;
    MergedDocument& operator=(const MergedDocument&) = delete;

    const QString& path() const { return iPath; }

private:
    QString readable(const QString& file, int index, const std::function<bool()>& stopped) const;
    void merge(const QStringList& files, std::vector<MergePlan::Page> pages,
               const QByteArray& password, const std::function<bool()>& stopped) const;

    QString iFolder;
    QString iPath;
};
