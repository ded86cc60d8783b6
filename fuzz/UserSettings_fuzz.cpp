#include "Fuzz.h"
#include "app/AppSettings.h"
#include "app/PublishedBooks.h"
#include "support/OwnFolders.h"
#include "support/TemplateLibrary.h"

#include <QCoreApplication>
#include <QMetaProperty>
#include <QSettings>

// The file of the user's settings, which may have been edited or damaged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const OwnFolders folders;
    static int run = 0;
    QCoreApplication::setOrganizationName("FolveroFuzz");
    // QSettings keeps some files in memory, by their names.
    QCoreApplication::setApplicationName(QString::number(++run % 100));
    TestFiles::write(QSettings().fileName(), Fuzz::Input(data, size).rest());

    AppSettings settings;
    settings.saveSettings();
    const AppSettings again;
    const QMetaObject& meta = AppSettings::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        Fuzz::require(meta.property(i).read(&settings) == meta.property(i).read(&again),
                      "saved settings are read again");

    const PublishedBooks::Book book{"/f", "n", "t", "u", "1", "/p"};
    const auto before = PublishedBooks::of("/other");
    PublishedBooks::add("/document", book);
    const auto after = PublishedBooks::of("/document");
    Fuzz::require(after && after->folder == "/f" && after->name == "n" && after->title == "t" &&
                      after->place == "/p",
                  "a book is remembered");
    const auto other = PublishedBooks::of("/other");
    Fuzz::require(other.has_value() == (before && before->place != "/p"), "others stay");
    return 0;
}
