#pragma once

#include "cli/PublishOptions.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <memory>

class FlashTemplate;

// Finds out whether books are as "folvero publish" would make them. What many books share is read
// once.
class CurrentBooks {
public:
    // The password is that of all documents that have none of their own.
    explicit CurrentBooks(PasswordOptions password);

    // Throws CommandError for options of "folvero publish" that it would refuse for any document.
    void check(const QStringList& options);

    struct State {
        QByteArray inputs;       // digest of what the book depends on; empty without a document
        bool isUpToDate = false; // the book is there, complete, and made of the same
    };
    // For arguments of "folvero publish". Throws CommandError for those that it would refuse.
    State of(const QStringList& arguments);

private:
    std::shared_ptr<FlashTemplate> templateFor(const PublishOptions& options);

    PasswordOptions iPassword;
    QByteArray iResources;
    std::map<QString, std::shared_ptr<FlashTemplate>> iTemplates; // by the options that make it
};
