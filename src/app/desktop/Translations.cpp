#include "app/desktop/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace {

bool load(const QString& language, const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QLocale(language), name, QStringLiteral("_"), folder))
        return false;
    auto* installed = translator.release();
    installed->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(installed);
}

} // namespace

// One language at a time: given the whole list, QTranslator would prefer an exact match such as
// "de" to an earlier partial one such as "en-GB" for our "en".
QString Translations::install(const QStringList& languages) {
    // English has texts of its own too: those with a number.
    for (const QString& language : languages + QStringList(QStringLiteral("en"))) {
        if (!load(language, QStringLiteral("folvero"), QStringLiteral(":/translations")))
            continue;
        // Dialogs in another language than the window's would not help.
        load(language, QStringLiteral("qtbase"),
             QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return language;
    }
    return {};
}
