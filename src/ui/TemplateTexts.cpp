#include "ui/TemplateTexts.h"

#include <QCoreApplication>

namespace {

// The texts to translate are collected from the library when the translations are updated.
QString translated(const char* context, const QString& text) {
    // An empty source text would return the header of the translation file.
    return text.isEmpty() ? text : QCoreApplication::translate(context, text.toUtf8().constData());
}

// Each word of a name.
QString capitalised(const QString& tmplName) {
    QString name = tmplName.toLower();
    bool atStart = true;
    for (QChar& letter : name) {
        if (atStart)
            letter = letter.toUpper();
        atStart = !letter.isLetterOrNumber();
    }
    return name;
}

} // namespace

QString TemplateTexts::shown(const QString& text) {
    return translated("TemplateProperty", text);
}

QString TemplateTexts::templateName(const QString& tmplName) {
    return translated("TemplateName", capitalised(tmplName));
}

QString TemplateTexts::styleName(const QString& styleName) {
    return translated("StyleName", styleName);
}
