#pragma once

#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// A folder for a book, and the program that publishes into it.
class BookTest : public testing::Test {
protected:
    QString path(const QString& name) const { return iRoot.filePath(name); }
    QString book() const { return path("book"); }
    QString file(const QString& name) const { return book() + u'/' + name; }
    bool exists(const QString& name) const { return QFileInfo::exists(file(name)); }
    std::map<QString, QByteArray> contents() const { return BookReader::contentsBeneath(book()); }

    // The data that a script of a web book hands over under its name.
    QJsonDocument data(const QString& name) const {
        const QByteArray script = TestFiles::read(file(QString("files/%1.js").arg(name)));
        const QByteArray start = "folveroData(\"" + name.toUtf8() + "\", ";
        EXPECT_TRUE(script.startsWith(start)) << name.toStdString();
        return QJsonDocument::fromJson(script.mid(start.size()).chopped(3));
    }
    QJsonObject page(int number) const { return data(QString("text/%1").arg(number)).object(); }

    // Publishes a sample, or the document at an absolute path; classic unless options name a type.
    Program::Result publish(const QString& document, const QStringList& options = {}) const {
        const QDir samples(Program::sample({}));
        const QStringList type(options.filter("--type").isEmpty(), "--type=html");
        return Program::run(QStringList{"publish", samples.filePath(document), book()} + type +
                            options);
    }
    // The same, which must succeed.
    Program::Result published(const QString& document, const QStringList& options = {}) const {
        const auto result = publish(document, options);
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        return result;
    }

    QTemporaryDir iRoot;
};
