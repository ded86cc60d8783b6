#pragma once

#include "pdf/MergePlan.h"

#include <QAbstractListModel>
#include <QUndoStack>
#include <map>
#include <utility>
#include <vector>

// The pages that a book is made of, in their order, while the user arranges them. What is done to
// them can be undone.
class PagesModel : public QAbstractListModel {
    Q_OBJECT

public:
    struct Document {
        QString path;
        int pageCount = 1; // a picture has one
    };
    using Page = MergePlan::Page;
    using Pages = std::vector<Page>;
    // Rows of the model in ascending order, each once.
    using Rows = std::vector<int>;

    explicit PagesModel(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    // Forgets what could be undone. pages: as in a MergePlan; those that a document lacks are left
    // out. Without any, all pages of the documents.
    void reset(std::vector<Document> documents, Pages pages);

    // What a book of these pages is made of: the documents that have pages in it, and its pages;
    // none when they are all pages of these documents as they stand there.
    struct Used {
        QStringList documents;
        Pages pages;
    };
    Used used() const;

    const std::vector<Document>& documents() const { return iDocuments; }
    const Pages& pages() const { return iPages; }
    QUndoStack& history() { return iHistory; }

    // The file with the picture of a document's page, as it stands there; zero-based.
    void setPicture(int document, int index, const QString& file);

    static constexpr int pictureRole = Qt::UserRole;      // the file's path; null when not known
    static constexpr int rotationRole = Qt::UserRole + 1; // degrees clockwise

    // degrees: clockwise, a multiple of 90.
    void rotate(const Rows& rows, int degrees);
    void remove(const Rows& rows);
    // Before the row that has that number now; the number of rows for the end.
    void move(const Rows& rows, int before);
    void insertBlankPage(int before);
    void insertDocuments(const std::vector<Document>& documents, int before);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Pages are moved, files from outside copied.
    Qt::DropActions supportedDropActions() const override {
        return Qt::MoveAction | Qt::CopyAction;
    }
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    // Also by undoing; rows: those that were arranged, to be selected.
    void arranged(const PagesModel::Rows& rows);
    void filesWereDropped(const QStringList& files, int before);

private:
    class Arrangement;
    // rows: those that are concerned, before and after it.
    void arrange(const Rows& rowsBefore, Pages pages, const Rows& rows, const QString& text);
    void show(const Pages& pages, const Rows& rows);
    QString placeOf(const Page& page) const;

    std::vector<Document> iDocuments;
    Pages iPages;
    std::map<std::pair<int, int>, QString> iPictures;
    QUndoStack iHistory;
};
