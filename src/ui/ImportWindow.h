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

// The import sheet's controls. What they do is its delegate's business.
class ImportWindow : public Sheet {
    Q_OBJECT

public:
    // The ids of the two choices of pages.
    enum PageRangeType { allPages = 0, typedPages = 1 };

    explicit ImportWindow(QWidget* parent = nullptr);

    QLineEdit* txtImportFile;
    QPushButton* btnBrowseFile;
    QPushButton* btnOpenFile;
    QButtonGroup* pageRangeType;
    QLineEdit* txtPageRange;
    QComboBox* importQuality;
    QCheckBox* btnImportBookMark;
    QCheckBox* btnImportLinks;
    QLabel* lblInfo;
    QProgressBar* prgBar;
    // Why the last import brought nothing; hidden while there is nothing to say.
    QLabel* lblFailure;
    QPushButton* btnOK;

private:
    void makeFileField();
    QWidget* pagesRow();
    QWidget* progressRow();
};
