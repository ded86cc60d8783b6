#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Feeds.h"
#include "library/catalogue/SiteFiles.h"
#include "library/catalogue/XMLDocument.h"

#include "base/PlatformException.h"

#include <QFile>
#include <QUrl>
#include <algorithm>

namespace {

QString day(const QDateTime& time) {
    return time.toUTC().date().toString(Qt::ISODate);
}

QString withoutScheme(const QString& address) {
    return address.section(QStringLiteral("://"), 1);
}

// Harvesters read through the gateway, whose address goes before that of the file.
QString baseAddress(const CatalogueSite& site) {
    const QString own = QString::fromUtf8(site.address(CatalogueLayout::oai));
    const QString& gateway = site.settings.gateway;
    if (gateway.isEmpty())
        return own;
    return gateway + (gateway.endsWith(u'/') ? QString() : QStringLiteral("/")) +
           withoutScheme(own);
}

void writeIdentity(XMLDocument& xml, const CatalogueSite& site) {
    QDateTime earliest;
    for (int number = 0; number < site.books.count(); ++number) {
        const QDateTime changed = site.books.at(number).changed;
        earliest = earliest.isValid() ? std::min(earliest, changed) : changed;
    }
    if (!earliest.isValid())
        earliest = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    xml.start("Identify");
    xml.text("oai:repositoryName", site.settings.title);
    xml.text("oai:baseURL", baseAddress(site));
    xml.text("oai:protocolVersion", QStringLiteral("2.0"));
    xml.text("oai:adminEmail", site.settings.contact);
    xml.text("oai:earliestDatestamp", day(earliest));
    xml.text("oai:deletedRecord", QStringLiteral("no"));
    xml.text("oai:granularity", QStringLiteral("YYYY-MM-DD"));
    xml.end();
    xml.start("ListMetadataFormats");
    xml.start("oai:metadataFormat");
    xml.text("oai:metadataPrefix", QStringLiteral("oai_dc"));
    xml.text("oai:schema", QStringLiteral("http://www.openarchives.org/OAI/2.0/oai_dc.xsd"));
    xml.text("oai:metadataNamespace",
             QStringLiteral("http://www.openarchives.org/OAI/2.0/oai_dc/"));
    xml.end();
    xml.end();
}

void writeRecord(XMLDocument& xml, const CatalogueSite& site, const CatalogueBook& book) {
    const BookFacts& facts = book.facts;
    const QString host = QUrl(site.settings.address).host(QUrl::FullyEncoded);
    xml.start("oai:record");
    xml.start("oai:header");
    xml.text("oai:identifier", QStringLiteral("oai:%1:%2").arg(host, book.id));
    xml.text("oai:datestamp", day(book.changed));
    xml.end();
    xml.start("oai:metadata");
    xml.start("oai_dc:dc");
    xml.text("dc:title", facts.title);
    for (const QString& author : facts.authors())
        xml.text("dc:creator", author);
    for (const QString& subject : facts.subjects())
        xml.text("dc:subject", subject);
    xml.text("dc:date", facts.date);
    xml.text("dc:type", QStringLiteral("Text"));
    xml.text("dc:format", QStringLiteral("text/html"));
    xml.text("dc:identifier", QString::fromUtf8(site.bookAddress(book)));
    xml.text("dc:language", facts.language);
    xml.text("dc:rights", facts.rights);
    xml.end();
    xml.end();
    xml.end();
}

} // namespace

void Feeds::writeRepository(const CatalogueSite& site, const QString& workFile) {
    QFile file(workFile);
    errno = 0;
    if (file.open(QIODevice::WriteOnly)) {
        XMLDocument xml(&file);
        xml.start(
            "Repository",
            {{"xmlns", QStringLiteral("http://www.openarchives.org/OAI/2.0/static-repository")},
             {"xmlns:oai", QStringLiteral("http://www.openarchives.org/OAI/2.0/")},
             {"xmlns:oai_dc", QStringLiteral("http://www.openarchives.org/OAI/2.0/oai_dc/")},
             {"xmlns:dc", QStringLiteral("http://purl.org/dc/elements/1.1/")},
             {"xmlns:xsi", QStringLiteral("http://www.w3.org/2001/XMLSchema-instance")},
             {"xsi:schemaLocation",
              QStringLiteral("http://www.openarchives.org/OAI/2.0/static-repository "
                             "http://www.openarchives.org/OAI/2.0/static-repository.xsd "
                             "http://www.openarchives.org/OAI/2.0/oai_dc/ "
                             "http://www.openarchives.org/OAI/2.0/oai_dc.xsd")}});
        writeIdentity(xml, site);
        xml.start("ListRecords", {{"metadataPrefix", QStringLiteral("oai_dc")}});
        for (int number = 0; number < site.books.count(); ++number)
            writeRecord(xml, site, site.books.at(number));
        xml.finish();
        if (file.flush()) {
            file.close();
            site.files.take(CatalogueLayout::oai, workFile);
            return;
        }
    }
    throw PlatformException(ErrorKind::publishing,
                            Message::about(workFile, Message::ofLastSystemError()));
}
