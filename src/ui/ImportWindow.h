#pragma once

#include "ui/Sheet.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;

// The controls of the import sheet; its delegate implements them.
class ImportWindow : public Sheet {
    Q_OBJECT

public:
    // IDs of the two page range buttons.
    enum PageRangeType { allPages = 0, typedPages = 1 };

    explicit ImportWindow(QWidget* parent = nullptr);

    QLineEdit* txtImportFile;
    QLabel* lblOthers; // the files after the one that the field names
    QPushButton* btnBrowseFile;
    QPushButton* btnOpenFile;
    QButtonGroup* pageRangeType;
    QLineEdit* txtPageRange;
    QComboBox* spreads; // items in the order of Spreads
    QComboBox* importQuality;
    QCheckBox* btnImportBookMark;
    QCheckBox* btnImportLinks;
    QLabel* lblInfo;
    QLabel* lblTimeLeft; // how much of the import is done, and how long the rest takes
    QProgressBar* prgBar;
    // Why the last import failed; hidden when there is nothing to show.
    QLabel* lblFailure;
    QPushButton* btnOK;

    // Paths of the files that are imported with the one in the field; empty for none.
    void showOthers(const QStringList& files);

private:
    static QComboBox* choice(const QStringList& items);
    void makeFileField();
    QWidget* pagesRow();
    QWidget* progressRow();
};
