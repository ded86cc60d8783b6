#pragma once

#include "library/BookResult.h"
#include "library/LibraryLayout.h"
#include "library/search/LibraryIndexer.h"
#include "output/BookLayout.h"
#include "output/WebScript.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>

// A library of books that have only what a search reads.
class TestLibrary {
public:
    // A page's words are all in its first line, 10 points for each letter.
    void add(const QString& id, const QStringList& pages, const QStringList& labels = {}) {
        QJsonArray texts;
        for (const QString& text : pages) {
            texts.append(text);
            const QJsonArray line{
                0, 0, 100 * text.size(), 120, 0, 0, QJsonArray{text, 0, 100 * text.size()}};
            QJsonArray lines; // clang takes an array in braces for a copy of it
            lines.append(line);
            const QJsonObject data{{"size", QJsonArray{6000, 8000}}, {"lines", lines}};
            write(id, BookLayout::text(int(texts.size())), WebScript::json(data));
        }
        write(id, BookLayout::searchText, WebScript::json(texts));
        write(id, BookLayout::metadata,
              WebScript::json(
                  QJsonObject{{"text", true}, {"labels", QJsonArray::fromStringList(labels)}}));
        note(id, int(pages.size()));
    }
    // The result of a book with that many pages, as after it was made anew.
    void note(const QString& id, int pages) {
        BookResult result;
        result.id = id;
        result.facts.title = "Title of " + id;
        result.state = BookResult::State::made;
        result.inputs = QByteArray::number(++iEditions);
        result.made = BookResult::Made{};
        result.made->pages = pages;
        EXPECT_TRUE(result.write(layout).isNull());
    }
    void remove(const QString& id) {
        EXPECT_TRUE(QFile::remove(layout.result(id)));
        EXPECT_TRUE(QDir(layout.book(id)).removeRecursively());
    }
    SegmentWriter::Report index(const LibraryIndexer::Options& options = {}) const {
        return LibraryIndexer::update(layout, options);
    }

private:
    void write(const QString& id, const QString& path, const QByteArray& json) const {
        TestFiles::write(layout.book(id) + '/' + path, WebScript::file(path, json));
    }

    QTemporaryDir iFolder;
    int iEditions = 0;

public:
    LibraryLayout layout{iFolder.path()};
};
