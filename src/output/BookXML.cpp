#include "output/BookName.h"
#include "output/FolveroOutput.h"
#include "output/ImageSize.h"
#include "system/Files.h"
#include "util/XMLText.h"

#include <cstdint>

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

} // namespace

std::unique_ptr<pugi::xml_document> FolveroOutput::bookXML() const {
    auto document = std::make_unique<pugi::xml_document>();
    pugi::xml_node root = document->append_child("SlidePowerPoint");
    appendProperties(root);
    pugi::xml_node background = root.append_child("BackgroundConfig");
    appendBackgroundColor(background);
    appendBackgroundImage(background);
    appendBackgroundSound(background);
    appendPages(root);
    return document;
}

void FolveroOutput::SaveXMLProperties(pugi::xml_node parent, const QString& nodeName,
                                      const QString& key, const QString& defaultValue) const {
    append(parent, nodeName.toUtf8().constData(), templateValue(key, defaultValue));
}

void FolveroOutput::appendChildPropertyToNode(pugi::xml_node element,
                                              const FlashTemplateProperty& property) const {
    for (const auto& child : property.childProperties()) {
        if (!child)
            continue;
        const QString text = child->propertyType() == pt_file
                                 ? QStringLiteral("./%1/%2").arg(
                                       iResourceFolder, extFileURL(child->key(), child->value()))
                                 : child->value();
        append(element, "item", text);
        element.last_child().append_attribute("name").set_value(
            XMLText::legal(child->key()).toUtf8().constData());
        appendChildPropertyToNode(element, *child);
    }
}

QString FolveroOutput::templateValue(const QString& key, const QString& defaultValue) const {
    return iFlashTemplate ? iFlashTemplate->propertyValueFor(key, defaultValue) : defaultValue;
}

QString FolveroOutput::extFileURL(const QString& key, const QString& value) const {
    return iExterFilesFolder + u'/' + BookName::withExtensionOf(key, value);
}

void FolveroOutput::appendProperties(pugi::xml_node root) const {
    pugi::xml_node properties = root.append_child("Properties");
    append(properties, "Search", QStringLiteral("No"));
    append(properties, "IsExe", QStringLiteral("No"));
    append(properties, "Style", QStringLiteral("0"));
    for (const Row& row : optionRows)
        SaveXMLProperties(properties, QString::fromLatin1(row.element),
                          QString::fromLatin1(row.key), QString::fromLatin1(row.defaultValue));
}

void FolveroOutput::appendBackgroundColor(pugi::xml_node background) const {
    pugi::xml_node color = background.append_child("BackgroundColor");
    for (const Row& row : colorRows)
        SaveXMLProperties(color, QString::fromLatin1(row.element), QString::fromLatin1(row.key),
                          QString::fromLatin1(row.defaultValue));
}

void FolveroOutput::appendBackgroundImage(pugi::xml_node background) const {
    const QString scaled = QStringLiteral("Scale to fit");
    pugi::xml_node image = background.append_child("BackgroundImage");
    appendImage(image, QStringLiteral("Outer"), QStringLiteral("mainbgImgUrl"));
    SaveXMLProperties(image, QStringLiteral("OuterBackgroundPosition"),
                      QStringLiteral("mainbgImgPosition"), scaled);
    appendImage(image, QStringLiteral("Inner"), QStringLiteral("innerMainbgImgUrl"));
    SaveXMLProperties(image, QStringLiteral("InnerBackgroundPosition"),
                      QStringLiteral("innerMainbgImgPosition"), scaled);
}

void FolveroOutput::appendImage(pugi::xml_node parent, const QString& side,
                                const QString& key) const {
    const QString path = templateValue(key, QStringLiteral(""));
    const QSize size = path.isEmpty() ? QSize(0, 0) : ImageSize::inPoints(path);
    const auto name = [&side](const char* rest) {
        return (side + QString::fromLatin1(rest)).toLatin1();
    };
    append(parent, name("BackgroundFile").constData(),
           path.isEmpty() ? QString() : extFileURL(key, path));
    append(parent, name("ImgWidth").constData(), size.width());
    append(parent, name("ImgHeight").constData(), size.height());
}

void FolveroOutput::appendBackgroundSound(pugi::xml_node background) const {
    pugi::xml_node sound = background.append_child("BackgroundSound");
    const QString key = QStringLiteral("backgroundSoundURL");
    const QString path = templateValue(key, QStringLiteral(""));
    // A sound file without an extension is ignored.
    const bool hasExtension = !Files::pathExtension(path).isEmpty();
    append(sound, "SoundFile", hasExtension ? extFileURL(key, path) : QString());
    SaveXMLProperties(sound, QStringLiteral("SoundLoops"), QStringLiteral("backgroundSoundLoop"),
                      QStringLiteral("-1"));
}

void FolveroOutput::appendPages(pugi::xml_node root) const {
    const PixelSize size{iBook.pageSize.width(), iBook.pageSize.height()};
    const PixelSize thumbnail = thumbnailSize(size);
    pugi::xml_node pages = root.append_child("Ppts");
    if (!iBook.pageSource)
        return;
    for (const auto& entry : iBook.pageSource->pages()) {
        if (!entry)
            continue;
        const auto normal = iBook.pageSource->getNormalPageAtIndex(entry->pageIndex());
        // A page without a file keeps its place in the book under the name that it would have.
        const FlashPage& page = normal ? *normal : *entry;
        pugi::xml_node element = pages.append_child("Ppt");
        appendPage(element, "Normal", getNormalPageURL(page), size);
        appendPage(element, "Thumb", getThumbPageURL(page), thumbnail);
    }
}
