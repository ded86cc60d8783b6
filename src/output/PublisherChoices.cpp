#include "output/PublisherChoices.h"

#include "output/BookLayout.h"
#include "output/BookName.h"
#include "pages/Book.h"
#include "pdf/PDFDocument.h"
#include "template/FlashTemplate.h"
#include "util/XMLText.h"

#include <QStringList>

namespace {

struct Button {
    const char* key;
    const char* names; // of the player's commands that go with it
};

constexpr Button buttons[] = {
    {"showContents", "contents"},
    {"showSearch", "search"},
    {"showReadingView", "reading"},
    {"showNotes", "bookmark notes mark"},
    {"showThumbnails", "thumbs"},
    {"showZoom", "zoomIn zoomOut"},
    {"showView", "view viewOne viewTwo viewWidth night"},
    {"showAutoPlay", "play"},
    {"showSound", "sound"},
    {"showShare", "share"},
    {"showKeep", "keep"},
    {"showPrint", "print"},
    {"showFullScreen", "full"},
    {"showHelp", "help"},
};

// That of the player's own style.
const QString usualAccent = QStringLiteral("0x2b5876");

QString valueOf(const FlashTemplate* flashTemplate, const char* key) {
    const QString none = QStringLiteral("");
    return flashTemplate ? flashTemplate->propertyValueFor(QString::fromLatin1(key), none).trimmed()
                         : none;
}

void appendUnlessEmpty(pugi::xml_node parent, const char* name, const QString& text) {
    if (!text.isEmpty())
        parent.append_child(name).text().set(XMLText::legal(text).toUtf8().constData());
}

} // namespace

bool PublisherChoices::offerDocument(const FlashTemplate* flashTemplate) {
    return StringUtil::valueAsBool(valueOf(flashTemplate, "offerDocument"));
}

Message PublisherChoices::documentLeftOut(const FlashTemplate* flashTemplate, const Book& book) {
    if (!offerDocument(flashTemplate) || !book.document || book.document->password().isEmpty())
        return {};
    return Message::translate("PublisherChoices", "it opens with a password only");
}

QString PublisherChoices::documentPath(const FlashTemplate* flashTemplate, const Book& book) {
    const bool isOffered = offerDocument(flashTemplate) && book.document &&
                           documentLeftOut(flashTemplate, book).isNull();
    return isOffered ? BookLayout::document : QString();
}

void PublisherChoices::append(pugi::xml_node properties, const FlashTemplate* flashTemplate,
                              const QString& document) {
    const QString logo = valueOf(flashTemplate, "logoFile");
    if (!logo.isEmpty()) {
        const QString name = BookName::withExtensionOf(QStringLiteral("logoFile"), logo);
        appendUnlessEmpty(properties, "LogoFile",
                          BookLayout::inFiles(BookLayout::in(BookLayout::settingsFiles, name)));
        appendUnlessEmpty(properties, "LogoLink", valueOf(flashTemplate, "logoLink"));
    }
    QStringList hidden;
    for (const Button& button : buttons) {
        // Whatever else stands in a settings file, the button is better there than missing.
        if (valueOf(flashTemplate, button.key).compare(QLatin1String("No"), Qt::CaseInsensitive) ==
            0)
            hidden << QString::fromLatin1(button.names);
    }
    appendUnlessEmpty(properties, "HiddenButtons", hidden.join(u' '));
    const QString view = valueOf(flashTemplate, "firstView");
    if (view.startsWith(u"One") || view.startsWith(u"Two"))
        appendUnlessEmpty(properties, "FirstView", view);
    const QString accent = valueOf(flashTemplate, "accentColor");
    if (accent.compare(usualAccent, Qt::CaseInsensitive) != 0)
        appendUnlessEmpty(properties, "AccentColor", accent);
    appendUnlessEmpty(properties, "DownloadFile", BookLayout::inFiles(document));
}
