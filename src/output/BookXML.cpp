#include "output/BookXML.h"

#include "output/BookLayout.h"
#include "output/BookName.h"
#include "output/ImageSize.h"
#include "output/PublisherChoices.h"
#include "output/UserConfig.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "util/NSData+CommonCrypto.h"
#include "util/XMLText.h"

#include <cstdint>
#include <sstream>

namespace {

struct Row {
    const char* element;
    const char* key;
    const char* defaultValue;
};

constexpr Row optionRows[] = {
    {"Top", "topMargin", "10"},
    {"Bottom", "bottomMargin", "10"},
    {"Left", "leftMargin", "10"},
    {"Right", "rightMargin", "10"},
    {"ThumbnailsBgColor", "mainColor", "0xffffff"},
    {"InitialShow", "InitialShow", "None"},
    {"FlashWindowsColor", "mainColor", "0xffffff"},
    {"PageBackgroundColor", "pageBackgroundColor", "0xffffff"},
    {"TutorialTitle", "TutorialTitle", "Folvero"},
    {"HidePageFrameBar", "hidePageFrameBar", "No"},
    {"PageRiseOrFallTime", "PageRiseOrFallTime", "0.5"},
    {"PageMoveTime", "pageMoveTime", "1"},
    {"SlideInterval", "SlideInterval", "1"},
    {"RightToLeft", "RightToLeft", "No"},
    {"AutoPlay", "AutoPlay", "No"},
    {"LoopPlay", "LoopPlay", "Yes"},
};

constexpr Row colorRows[] = {
    {"OuterGradiantColorA", "bgBeginColor", "0xC0C0C0"},
    {"OuterGradiantColorB", "bgEndColor", "0x808080"},
    {"OuterGradiantAngle", "bgMRotation", "90"},
    {"InnerGradiantColorA", "inBeginColor", "0xA3CFD1"},
    {"InnerGradiantColorB", "inEndColor", "0x408080"},
    {"InnerGradiantAngle", "inMRotation", "90"},
};

constexpr int widestWithoutThumbnail = 85;

struct PixelSize {
    std::int32_t width;
    std::int32_t height;
};

// Pages up to the width of a thumbnail are their own thumbnails.
PixelSize thumbnailSize(PixelSize page) {
    if (page.width <= widestWithoutThumbnail)
        return page;
    // Wraps around for absurd heights, as the 32-bit players do.
    const auto scaled = static_cast<std::int32_t>(static_cast<std::uint32_t>(page.height) * 85U);
    return {85, scaled / page.width};
}

void append(pugi::xml_node parent, const char* name, const QString& text) {
    parent.append_child(name).text().set(XMLText::legal(text).toUtf8().constData());
}

void append(pugi::xml_node parent, const char* name, int number) {
    append(parent, name, QString::number(number));
}

void appendPage(pugi::xml_node parent, const char* name, const QString& url, PixelSize size) {
    pugi::xml_node page = parent.append_child(name);
    append(page, "ImgPath", url);
    append(page, "Width", size.width);
    append(page, "Height", size.height);
}

// Appends elements with the template's values.
class Writer {
public:
    explicit Writer(const FlashTemplate* flashTemplate) : iTemplate(flashTemplate) {}

    QString value(const QString& key, const QString& defaultValue) const {
        return iTemplate ? iTemplate->propertyValueFor(key, defaultValue) : defaultValue;
    }
    void appendRow(pugi::xml_node parent, const Row& row) const {
        append(parent, row.element,
               value(QString::fromLatin1(row.key), QString::fromLatin1(row.defaultValue)));
    }

    void appendProperties(pugi::xml_node root) const;
    void appendBackground(pugi::xml_node root) const;

private:
    void appendImage(pugi::xml_node parent, const QByteArray& side, const QString& key) const;
    void appendSound(pugi::xml_node background) const;

    const FlashTemplate* iTemplate;
};

QString settingsFileURL(const QString& key, const QString& value) {
    return BookLayout::inFiles(
        BookLayout::in(BookLayout::settingsFiles, BookName::withExtensionOf(key, value)));
}

void Writer::appendProperties(pugi::xml_node root) const {
    pugi::xml_node properties = root.append_child("Properties");
    append(properties, "Search", QStringLiteral("No"));
    append(properties, "IsExe", QStringLiteral("No"));
    append(properties, "Style", QStringLiteral("0"));
    for (const Row& row : optionRows)
        appendRow(properties, row);
}

void Writer::appendBackground(pugi::xml_node root) const {
    pugi::xml_node background = root.append_child("BackgroundConfig");
    pugi::xml_node color = background.append_child("BackgroundColor");
    for (const Row& row : colorRows)
        appendRow(color, row);
    pugi::xml_node image = background.append_child("BackgroundImage");
    appendImage(image, "Outer", QStringLiteral("mainbgImgUrl"));
    appendRow(image, {"OuterBackgroundPosition", "mainbgImgPosition", "Scale to fit"});
    appendImage(image, "Inner", QStringLiteral("innerMainbgImgUrl"));
    appendRow(image, {"InnerBackgroundPosition", "innerMainbgImgPosition", "Scale to fit"});
    appendSound(background);
}

void Writer::appendImage(pugi::xml_node parent, const QByteArray& side, const QString& key) const {
    const QString path = value(key, QStringLiteral(""));
    const QSize size = path.isEmpty() ? QSize(0, 0) : ImageSize::inPoints(path);
    append(parent, side + "BackgroundFile",
           path.isEmpty() ? QString() : settingsFileURL(key, path));
    append(parent, side + "ImgWidth", size.width());
    append(parent, side + "ImgHeight", size.height());
}

void Writer::appendSound(pugi::xml_node background) const {
    pugi::xml_node sound = background.append_child("BackgroundSound");
    const QString key = QStringLiteral("backgroundSoundURL");
    const QString path = value(key, QStringLiteral(""));
    // A sound file without an extension is ignored.
    const bool hasExtension = !Files::pathExtension(path).isEmpty();
    append(sound, "SoundFile", hasExtension ? settingsFileURL(key, path) : QString());
    appendRow(sound, {"SoundLoops", "backgroundSoundLoop", "-1"});
}

} // namespace

std::unique_ptr<pugi::xml_document> BookXML::make(const FlashTemplate* flashTemplate,
                                                  const std::vector<PageURLs>& pages,
                                                  QSize pageSize, const QString& document) {
    auto xml = std::make_unique<pugi::xml_document>();
    pugi::xml_node root = xml->append_child("SlidePowerPoint");
    const Writer writer(flashTemplate);
    writer.appendProperties(root);
    PublisherChoices::append(root.last_child(), flashTemplate, document);
    writer.appendBackground(root);
    const PixelSize size{pageSize.width(), pageSize.height()};
    const PixelSize thumbnail = thumbnailSize(size);
    pugi::xml_node list = root.append_child("Ppts");
    for (const auto& [normalURL, thumbnailURL] : pages) {
        pugi::xml_node page = list.append_child("Ppt");
        appendPage(page, "Normal", normalURL, size);
        appendPage(page, "Thumb", thumbnailURL, thumbnail);
    }
    return xml;
}

QByteArray BookXML::text(const pugi::xml_document& configuration, unsigned format) {
    std::ostringstream text;
    configuration.save(text, "    ", format, pugi::encoding_utf8);
    return QByteArray::fromStdString(text.str());
}

QByteArray BookXML::enciphered(const pugi::xml_document& configuration, unsigned format) {
    return CommonCryptor::RC4EncryptedDataUsingKey(text(configuration, format), userConfigKey);
}

void BookXML::appendValue(pugi::xml_node parent, const QString& nodeName,
                          const FlashTemplate* flashTemplate, const QString& key,
                          const QString& defaultValue) {
    append(parent, nodeName.toUtf8().constData(), Writer(flashTemplate).value(key, defaultValue));
}

void BookXML::appendDescendants(pugi::xml_node element, const FlashTemplateProperty& property) {
    for (const auto& child : property.childProperties()) {
        if (!child)
            continue;
        const QString text =
            child->propertyType() == pt_file
                ? QStringLiteral("./") +
                      BookLayout::in(BookLayout::settingsFiles,
                                     BookName::withExtensionOf(child->key(), child->value()))
                : child->value();
        append(element, "item", text);
        element.last_child().append_attribute("name").set_value(
            XMLText::legal(child->key()).toUtf8().constData());
        appendDescendants(element, *child);
    }
}
