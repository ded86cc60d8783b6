// Styles of the user's own in the desktop program.

#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/StyleSaver.h"
#include "system/Files.h"
#include "template/StyleFolders.h"
#include "ui/FlashTemplateModel.h"
#include "ui/SelectTemplateWindowDelegate.h"

void BrisleafAppDelegate::makeStyleSaver() {
    const auto leftOut = [this] {
        QStringList keys{QStringLiteral("pageWidth"), QStringLiteral("pageHeight"),
                         QStringLiteral("languageSetting")};
        if (!iIsDirectionChosen)
            keys << QStringLiteral("RightToLeft");
        return keys;
    };
    iStyleSaver = std::make_unique<StyleSaver>(StyleSaver::Program{
        *iWindow, [this]() -> const FlashTemplate& { return *iFlashTmpl; }, leftOut,
        [this](const QString& stylePath) { chooseStyle(stylePath); }, iQuestions.replace});
    connect(iSelecteTmplWindow.get(), &SelectTemplateWindowDelegate::styleMoved, this,
            &BrisleafAppDelegate::styleWasMoved);
}

// The values of the book stay.
void BrisleafAppDelegate::styleWasMoved(const QString& from, const QString& to) {
    if (from != StyleFolders::ownFor(iFlashTmpl->tmplName(), iFlashTmpl->styleName()))
        return;
    iFlashTmpl->setStyleName(to.isNull() ? QString() : Files::lastPathComponent(to));
    iHistory.setStylePath(to);
    iDefaults.read(*iFlashTmpl);
    iOutline->reloadValues();
}
