#include "app/desktop/SheetChoices.h"

#include "ui/ImportWindow.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <cstdlib>

namespace {

// The choice whose quality is next to that one.
int levelFor(int quality, int levels) {
    int best = 0;
    for (int level = 1; level < levels; ++level) {
        if (std::abs(ImportWindowDelegate::qualityForLevel(level) - quality) <
            std::abs(ImportWindowDelegate::qualityForLevel(best) - quality))
            best = level;
    }
    return best;
}

} // namespace

Project::Import SheetChoices::importOf(const ImportWindow& sheet) {
    Project::Import import;
    import.isRangeTyped = sheet.pageRangeType->checkedId() == ImportWindow::typedPages;
    import.range = sheet.txtPageRange->text();
    import.quality = ImportWindowDelegate::qualityForLevel(sheet.importQuality->currentIndex());
    import.spreads = Spreads(sheet.spreads->currentIndex());
    import.links = sheet.btnImportLinks->isChecked();
    import.bookmarks = sheet.btnImportBookMark->isChecked();
    return import;
}

void SheetChoices::set(ImportWindow& sheet, const Project::Import& import) {
    sheet.pageRangeType
        ->button(import.isRangeTyped ? ImportWindow::typedPages : ImportWindow::allPages)
        ->setChecked(true);
    sheet.txtPageRange->setText(import.range);
    sheet.importQuality->setCurrentIndex(levelFor(import.quality, sheet.importQuality->count()));
    sheet.spreads->setCurrentIndex(int(import.spreads));
    sheet.btnImportLinks->setChecked(import.links);
    sheet.btnImportBookMark->setChecked(import.bookmarks);
}

Project::Publish SheetChoices::publishOf(const OutputWindow& sheet) {
    const int type = sheet.mOutputType->checkedId();
    Project::Publish publish;
    publish.folder = sheet.txtOutputFolder->text();
    publish.name = sheet.txtOutputName->text();
    publish.title = sheet.txtTitle->text();
    publish.kind = type == OutputWindow::htmlBook      ? Project::Kind::html
                   : type == OutputWindow::application ? Project::Kind::app
                                                       : Project::Kind::web;
    publish.singleFile = type == OutputWindow::webBookInOneFile;
    publish.url = sheet.txtAddress->text().trimmed();
    publish.previewPages = sheet.txtSample->text().trimmed();
    return publish;
}

void SheetChoices::set(OutputWindow& sheet, const Project::Publish& publish) {
    sheet.txtOutputFolder->setText(publish.folder);
    sheet.txtOutputName->setText(publish.name);
    sheet.txtTitle->setText(publish.title);
    const auto type = publish.kind == Project::Kind::html  ? OutputWindow::htmlBook
                      : publish.kind == Project::Kind::app ? OutputWindow::application
                      : publish.singleFile                 ? OutputWindow::webBookInOneFile
                                                           : OutputWindow::webBook;
    sheet.mOutputType->button(type)->setChecked(true);
    sheet.txtAddress->setText(publish.url);
    sheet.txtSample->setText(publish.previewPages);
}
