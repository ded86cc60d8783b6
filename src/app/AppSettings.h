#pragma once

#include <QObject>
#include <QSize>
#include <QString>

// The user's last choices, kept across runs. One shared object, for the main thread; each declared
// property is a stored setting of the same name, in order of declaration.
class AppSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString lastImportedFile READ lastImportedFile WRITE setLastImportedFile)
    Q_PROPERTY(int importPageRangeType READ importPageRangeType WRITE setImportPageRangeType)
    Q_PROPERTY(QString importPageRange READ importPageRange WRITE setImportPageRange)
    Q_PROPERTY(int importQualityLevel READ importQualityLevel WRITE setImportQualityLevel)
    Q_PROPERTY(QString lastOutputFileFolder READ lastOutputFileFolder WRITE setLastOutputFileFolder)
    Q_PROPERTY(QString lastOutputFileName READ lastOutputFileName WRITE setLastOutputFileName)
    Q_PROPERTY(QString lastOutputFileTitle READ lastOutputFileTitle WRITE setLastOutputFileTitle)
    Q_PROPERTY(int outputType READ outputType WRITE setOutputType)
    Q_PROPERTY(int importBookmark READ importBookmark WRITE setImportBookmark)
    Q_PROPERTY(int importLinks READ importLinks WRITE setImportLinks)
    Q_PROPERTY(int PageWidth READ PageWidth WRITE setPageWidth)
    Q_PROPERTY(int PageHeight READ PageHeight WRITE setPageHeight)

public:
    // Loads the stored settings. The page size always starts at 1080 by 1440: it belongs to the
    // document imported in this run.
    AppSettings();

    // The shared object, created on first use (thread-safe).
    static AppSettings& shareInstance();

    void saveSettings();
    void loadSettings();
    void autoSave();
    void autoLoad();

    QString lastImportedFile() const { return iLastImportedFile; }
    void setLastImportedFile(const QString& path) { iLastImportedFile = path; }
    int importPageRangeType() const { return iImportPageRangeType; }
    void setImportPageRangeType(int type) { iImportPageRangeType = type; }
    QString importPageRange() const { return iImportPageRange; }
    void setImportPageRange(const QString& range) { iImportPageRange = range; }
    int importQualityLevel() const { return iImportQualityLevel; }
    void setImportQualityLevel(int level) { iImportQualityLevel = level; }
    QString lastOutputFileFolder() const { return iLastOutputFileFolder; }
    void setLastOutputFileFolder(const QString& folder) { iLastOutputFileFolder = folder; }
    QString lastOutputFileName() const { return iLastOutputFileName; }
    void setLastOutputFileName(const QString& name) { iLastOutputFileName = name; }
    QString lastOutputFileTitle() const { return iLastOutputFileTitle; }
    void setLastOutputFileTitle(const QString& title) { iLastOutputFileTitle = title; }
    int outputType() const { return iOutputType; }
    void setOutputType(int type) { iOutputType = type; }
    int importBookmark() const { return iImportBookmark; }
    void setImportBookmark(int on) { iImportBookmark = on; }
    int importLinks() const { return iImportLinks; }
    void setImportLinks(int on) { iImportLinks = on; }

    // Points.
    int PageWidth() const { return iPageWidth; }
    void setPageWidth(int width) { iPageWidth = width; }
    int PageHeight() const { return iPageHeight; }
    void setPageHeight(int height) { iPageHeight = height; }
    QSize pageSize() const { return {iPageWidth, iPageHeight}; }
    void setPageSize(QSize size) {
        iPageWidth = size.width();
        iPageHeight = size.height();
    }

private:
    QString iLastImportedFile;
    int iImportPageRangeType = 0;
    QString iImportPageRange;
    int iImportQualityLevel = 0;
    QString iLastOutputFileFolder;
    QString iLastOutputFileName;
    QString iLastOutputFileTitle;
    int iOutputType = 0;
    int iImportBookmark = 0;
    int iImportLinks = 0;
    int iPageWidth = 0;
    int iPageHeight = 0;
};
