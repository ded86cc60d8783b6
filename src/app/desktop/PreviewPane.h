#pragma once

#include <QFrame>
#include <vector>

class PreviewView;
class QButtonGroup;
class QLabel;
class QToolButton;

// The preview with a bar above it, in which the user chooses the size of the window that the book
// is shown in: all the space there is, or that of a usual desktop, tablet or phone, which is scaled
// down where it does not fit. The choice is stored.
class PreviewPane : public QFrame {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);

    PreviewView* view() const { return iView; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* bar();
    QToolButton* button(const QString& text, const QString& iconName);
    QSize chosenSize() const;
    void choose();
    void place();
    void setCaptions(Qt::ToolButtonStyle style);
    void fitBar();
    void updateColors();

    PreviewView* iView;
    QWidget* iStage;
    QWidget* iBar;
    QButtonGroup* iSizes;
    QToolButton* iTurn;
    QLabel* iSize;
    std::vector<std::pair<QToolButton*, QString>> iIcons;
};
