#pragma once

#include "ui/IKBTmplStyleItem.h"
#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTmplItemCell.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class NameWindow;
class TmplListModel;
class TmplRowPainter;
class TmplStylesModel;

// Controls the template chooser: lists the templates of the library and the styles of the selected
// one. The sheet ends with 1 for a choice, available from selectedStyle(), and with 0 without one.
// A template that can't be loaded is listed, but can't be chosen.
class SelectTemplateWindowDelegate : public QObject {
    Q_OBJECT

public:
    explicit SelectTemplateWindowDelegate(QWidget* parent = nullptr);
    ~SelectTemplateWindowDelegate() override;

    SelectTemplateWindow& window() const { return *iWindow; }
    // Reloads the library and selects that template, ignoring case, and the style with that folder
    // if it belongs to the template.
    void prepairToTmpl(const QString& name, const QString& currentStylePath = QString());
    // Shows the sheet on its parent; onEnd gets the return code.
    void beginSheet(std::function<void(int)> onEnd);
    // Path of the chosen style's picture, in the style's folder; a null text without a choice. The
    // picture itself may be missing.
    QString selectedStyle();
    // Index of the style that was last chosen or requested.
    quint32 selectedItemIndex() const { return iSelectedItemIndex; }

    void onOK();
    void onCancel();
    // The displayed styles stay until another template is selected.
    void onRefresh();
    // For the selected style, if it is one of the user's own.
    void onRename();
    void onDelete();

    // Asks for a style's new name.
    NameWindow& nameWindow() const { return *iNameWindow; }
    // How the user is asked whether to delete a style.
    void
    setAskToDelete(std::function<bool(const QString& message, const QString& information)> ask) {
        iAskToDelete = std::move(ask);
    }

    // The template list. A row for a template nested in another one's folder exists, but is hidden.
    int numberOfRowsInTableView() const { return int(iTmplListData.size()); }
    QString objectValueForTableColumn(const QString& column, int row) const;
    std::unique_ptr<SelectTmplItemCell> dataCellForTableColumn(const QString& column,
                                                               int row) const;
    void tableViewSelectionDidChange();

    // The style browser.
    int numberOfItemsInImageBrowser() const { return int(iTmplStylesData.size()); }
    const IKBTmplStyleItem& itemAtIndex(int index) const { return *iTmplStylesData.at(index); }
    // Chooses the style and ends the sheet.
    void cellWasDoubleClickedAtIndex(int index);

    // Why a template can't be used; a null text when it can.
    QString failureOf(const QString& tmplName) const;
    // The icon file of the template in that folder.
    static QString iconFileIn(const QString& tmplPath);

Q_SIGNALS:
    // A style of the user's own was renamed or, when to is null, deleted. The paths of its folder.
    void styleMoved(const QString& from, const QString& to);

private:
    void awakeFromNib();
    void wire();
    void reloadTmplList();
    void reloadTable();
    void reloadStylesForTmpl(const QString& name);
    const QHash<QString, QString>& failures() const;
    void showStyles();
    void selectRow(int row);
    bool isListed(const QString& tmplName) const;
    bool canChoose() const;
    void showState();
    QString notice() const;
    QString selectedStylePath() const;
    QString styleFailure() const;
    void selectStyle(const QString& path);
    void takeMovedStyle(const QString& from, const QString& to);
    void endSheet(int returnCode);

    QPointer<SelectTemplateWindow> iWindow;
    NameWindow* iNameWindow;
    std::function<bool(const QString&, const QString&)> iAskToDelete;
    std::vector<std::unique_ptr<IKBTmplStyleItem>> iTmplStylesData;
    QStringList iTmplListData;
    quint32 iSelectedItemIndex = 0;
    // The template whose styles are displayed, and the book's current style.
    QString iShownTmpl;
    QString iCurrentStylePath;
    // By template; none until first needed.
    mutable std::optional<QHash<QString, QString>> iFailures;
    TmplListModel* iTmplModel;
    TmplStylesModel* iStylesModel;
    TmplRowPainter* iRowPainter;
    std::function<void(int)> iOnEnd;
};
