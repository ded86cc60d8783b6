#pragma once

#include <QMainWindow>

class DropHint;
class FlashTemplateOutline;
class MainMenu;
class MessageBar;
class ResultBar;
class PreviewView;
class QGroupBox;
class QPlainTextEdit;
class QPushButton;
class QSplitter;
class QToolButton;
class QUndoStack;
class SettingsSearch;
class StartPanel;

// The program's window: the template's settings with an explanation below them on the left, the
// live preview on the right. The controller implements its controls.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QUndoStack& edits);

    MainMenu* menu;
    MessageBar* messages;
    StartPanel* start;
    ResultBar* result;
    QPushButton* btnFloat;
    QToolButton* btnImportTmpl;
    QToolButton* btnExportTmpl;
    SettingsSearch* search;
    FlashTemplateOutline* outlineView;
    QGroupBox* toolTipBox;
    QPlainTextEdit* toolTip;
    PreviewView* webView;

    // Null for the demo book, which is shown before the first import.
    void setDocumentName(const QString& name);
    const QString& documentName() const { return iDocumentName; }

Q_SIGNALS:
    // Files and folders, as they were dropped.
    void filesDropped(const QStringList& paths);
    // On the half of the window where they are to be added to the book.
    void filesAdded(const QStringList& paths);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* editorSide();
    QWidget* templateRow();
    QWidget* tipBox();
    QWidget* previewSide();
    void restoreSizes();
    void saveSizes() const;

    QString iDocumentName;
    bool iHasDocument = false;
    DropHint* iDropHint;
    QSplitter* iSides;
    QSplitter* iEditorAndTip;
};
