#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

struct PublishOptions;

// Several documents and pictures as one document, in a temporary folder that goes with this object.
class MergedInput {
public:
    // The files of the inputs, those of a folder by name, when they have to be merged: when there
    // are several, or the only one is a picture. Empty for one document. Throws CommandError for a
    // folder without any.
    static QStringList files(const PublishOptions& options);

    // Null for one document. Throws CommandError, also when a file is changed meanwhile.
    static std::unique_ptr<MergedInput> of(const PublishOptions& options);

    MergedInput(const QStringList& files, const QByteArray& password, const QString& name);
    ~MergedInput();
    MergedInput(const MergedInput&) = delete;
    MergedInput& operator=(const MergedInput&) = delete;

    const QString& path() const { return iPath; }

private:
    void merge(const QStringList& files, const QByteArray& password) const;

    QString iFolder;
    QString iPath;
};
