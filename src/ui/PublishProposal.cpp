#include "ui/PublishProposal.h"

#include "app/PublishedBooks.h"
#include "system/Files.h"
#include "ui/OutputWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QStandardPaths>

void PublishProposal::fill(OutputWindow& sheet, const QString& document,
                           const QString& documentName, bool isOtherDocument) {
    const auto propose = [](QLineEdit* field, const QString& text, bool always) {
        if (always || field->text().isEmpty())
            field->setText(text);
    };
    const auto book = isOtherDocument ? PublishedBooks::of(document) : std::nullopt;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString parent = QFileInfo::exists(documents) ? documents : QDir::homePath();
    propose(sheet.txtOutputFolder, book ? book->folder : Files::join(parent, documentName),
            isOtherDocument);
    propose(sheet.txtTitle, book ? book->title : documentName, isOtherDocument);
    propose(sheet.txtOutputName, book ? book->name : QStringLiteral("index"), book.has_value());
    if (isOtherDocument) {
        sheet.txtAddress->setText(book ? book->url : QString());
        sheet.txtSample->setText(book ? book->previewPages : QString());
    }
}

void PublishProposal::remember(const OutputWindow& sheet, const QString& document,
                               const QString& place) {
    PublishedBooks::add(document, {sheet.txtOutputFolder->text(), sheet.txtOutputName->text(),
                                   sheet.txtTitle->text(), sheet.txtAddress->text().trimmed(),
                                   sheet.txtSample->text().trimmed(), place});
}
