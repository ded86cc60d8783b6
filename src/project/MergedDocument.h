#pragma once

#include "base/Message.h"
#include "pdf/MergePlan.h"
#include "project/ConvertedDocument.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

// Pages of several documents and pictures as one document, in a temporary folder that goes with
// this object. Documents of office programs are converted by LibreOffice.
class MergedDocument {
public:
    // The password of a file, in UTF-8; empty for none.
    using PasswordOf = std::function<QByteArray(const QString& file)>;
    // What becomes of a file that can't be read. Only where all pages of all files are used may it
    // be left out; one that needs a password never is.
    enum class Unreadable { fails, isLeftOut };

    // pages: of those files; empty for all. name: a file name, after which the document is called.
    // stopped is polled and cancels; it may be empty. converted: those that need not be converted
    // again unless they were changed; gets those that were, also when this fails. Throws
    // PlatformException, also when a file is changed meanwhile or no file is left.
    MergedDocument(const QStringList& files, std::vector<MergePlan::Page> pages,
                   const PasswordOf& passwordOf, const QString& name,
                   const std::function<bool()>& stopped, Unreadable unreadable = Unreadable::fails,
                   ConvertedDocuments* converted = nullptr);
    ~MergedDocument();
    MergedDocument(const MergedDocument&) = delete;
    MergedDocument& operator=(const MergedDocument&) = delete;

    const QString& path() const { return iPath; }
    // The files that it consists of, and why the others were left out.
    const QStringList& files() const { return iFiles; }
    const Messages& leftOut() const { return iLeftOut; }
    // All that were converted.
    const ConvertedDocuments& converted() const { return iConverted; }

private:
    void take(const QStringList& files, const PasswordOf& passwordOf,
              const std::function<bool()>& stopped, Unreadable unreadable,
              ConvertedDocuments& converted);
    void convert(const QString& file, const std::function<bool()>& stopped,
                 ConvertedDocuments& converted);
    QString readable(const QString& file) const;
    void write(std::vector<MergePlan::Page> pages, const std::function<bool()>& stopped) const;
    void leaveOutUnreadable(const std::function<bool()>& stopped);

    QString iFolder;
    QString iPath;
    QStringList iFiles;
    std::vector<MergePlan::Source> iSources; // of the files
    ConvertedDocuments iConverted;
    Messages iLeftOut;
};
