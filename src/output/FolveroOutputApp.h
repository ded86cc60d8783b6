#pragma once

#include "output/FolveroOutput.h"

// Writes a book as a Mac application: a bundle made from the application shell among the resources,
// with the book in its resource folder.
//
// A run replaces an existing bundle of the same name as a whole, at its end, or not at all.
class FolveroOutputApp : public FolveroOutput {
public:
    FolveroOutputApp() = default;
    // The bundle is created in the folder; its name has the extension "app" in place of toName's.
    FolveroOutputApp(std::shared_ptr<FlashPageSource> pageSource,
                     std::shared_ptr<FlashTemplate> flashTemplate, const QString& saveToFolder,
                     const QString& toName);

    // Creates the folder when it is missing.
    void ouputTheBook() override;

    // The bundle, unless it contains a book.
    QStringList foreignFiles() const override;
    // Without its program an application can't be opened.
    Message missingPart() const override;

    QString outputHTMLFileName() const override;
    // Path of the bundle.
    QString outputFileName() const override;

private:
    // Makes the bundle at a working path, from which it is moved to its own. False when that failed
    // or was cancelled.
    bool publishInto(const QString& working);
};
