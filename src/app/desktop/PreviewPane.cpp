#include "app/desktop/PreviewPane.h"

#include "app/desktop/PreviewView.h"
#include "ui/Icons.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWebEnginePage>

namespace {

const QString sizeKey = QStringLiteral("preview/size");
const QString turnedKey = QStringLiteral("preview/turned");

// Part of the stored settings.
enum Kind { wholeSpace, desktop, tablet, phone };

// In CSS pixels, as most are held; none for the window's own.
constexpr QSize sizes[] = {QSize(), {1440, 900}, {820, 1180}, {390, 844}};

constexpr int around = 14; // pixels between the edge of the stage and a scaled view
constexpr double leastZoom = 0.25;

bool canBeTurned(int kind) {
    return kind == tablet || kind == phone;
}

} // namespace

PreviewPane::PreviewPane(QWidget* parent)
    : QFrame(parent),
      iView(new PreviewView),
      iStage(new QWidget),
      iBar(nullptr),
      iSizes(new QButtonGroup(this)),
      iTurn(nullptr),
      iSize(new QLabel) {
    setObjectName(QStringLiteral("previewPane"));
    iStage->setObjectName(QStringLiteral("previewStage"));
    iStage->setAttribute(Qt::WA_StyledBackground);
    iStage->setMinimumSize(160, 120);
    iView->setParent(iStage);
    iStage->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    iBar = bar();
    layout->addWidget(iBar);
    layout->addWidget(iStage, 1);
    const QSettings settings;
    iTurn->setChecked(settings.value(turnedKey, false).toBool());
    QAbstractButton* stored = iSizes->button(settings.value(sizeKey, wholeSpace).toInt());
    (stored ? stored : iSizes->button(wholeSpace))->setChecked(true);
    connect(iSizes, &QButtonGroup::idClicked, this, &PreviewPane::choose);
    connect(iTurn, &QToolButton::clicked, this, &PreviewPane::choose);
    // Chromium keeps a zoom for each address.
    connect(iView->page(), &QWebEnginePage::loadFinished, this, &PreviewPane::place);
    updateColors();
    place();
}

QWidget* PreviewPane::bar() {
    auto* row = new QFrame;
    row->setObjectName(QStringLiteral("previewBar"));
    // It must not keep the preview from getting narrow.
    row->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    //: What a screen reader says when it comes to the buttons Window, Desktop, Tablet and Phone.
    row->setAccessibleName(tr("Size of the preview"));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 3, 10, 3);
    layout->setSpacing(2);
    const auto add = [&](Kind kind, const QString& text, const QString& tip, const char* icon) {
        auto* made = button(text, QString::fromLatin1(icon));
        made->setToolTip(tip);
        iSizes->addButton(made, kind);
        layout->addWidget(made);
    };
    //: A size of the preview: all the space that the window has for it.
    add(wholeSpace, tr("Window"), tr("Show the book in all the space there is"), "size-window");
    //: A size of the preview.
    add(desktop, tr("Desktop"), tr("Show the book as on a desktop screen"), "size-desktop");
    //: A size of the preview.
    add(tablet, tr("Tablet"), tr("Show the book as on a tablet"), "size-tablet");
    //: A size of the preview.
    add(phone, tr("Phone"), tr("Show the book as on a phone"), "size-phone");
    //: Turns the tablet or phone of the preview on its side.
    iTurn = button(tr("Turn"), QStringLiteral("size-turn"));
    iTurn->setToolTip(tr("Turn the tablet or phone on its side"));
    iTurn->setAccessibleName(iTurn->toolTip());
    layout->addSpacing(6);
    layout->addWidget(iTurn);
    layout->addStretch(1);
    iSize->setObjectName(QStringLiteral("previewSize"));
    layout->addWidget(iSize);
    return row;
}

QToolButton* PreviewPane::button(const QString& text, const QString& iconName) {
    auto* made = new QToolButton;
    made->setText(text);
    made->setIconSize({18, 18});
    made->setCheckable(true);
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::TabFocus);
    iIcons.emplace_back(made, iconName);
    return made;
}

void PreviewPane::setCaptions(Qt::ToolButtonStyle style) {
    for (QAbstractButton* made : iSizes->buttons())
        static_cast<QToolButton*>(made)->setToolButtonStyle(style);
}

// Without captions where there is no room for them.
void PreviewPane::fitBar() {
    setCaptions(Qt::ToolButtonTextBesideIcon);
    if (iBar->minimumSizeHint().width() > width())
        setCaptions(Qt::ToolButtonIconOnly);
}

QSize PreviewPane::chosenSize() const {
    const int kind = iSizes->checkedId();
    const QSize size = sizes[kind];
    return canBeTurned(kind) && iTurn->isChecked() ? size.transposed() : size;
}

void PreviewPane::choose() {
    QSettings settings;
    settings.setValue(sizeKey, iSizes->checkedId());
    settings.setValue(turnedKey, iTurn->isChecked());
    place();
}

void PreviewPane::place() {
    iTurn->setEnabled(canBeTurned(iSizes->checkedId()));
    const QSize size = chosenSize();
    const QRect stage = iStage->rect();
    iSize->setVisible(!size.isEmpty());
    if (size.isEmpty()) {
        iView->setGeometry(stage);
        iView->setZoomFactor(1);
        return;
    }
    const QSize room = stage.adjusted(around, around, -around, -around).size();
    const double zoom = std::max(leastZoom, std::min({1.0, double(room.width()) / size.width(),
                                                      double(room.height()) / size.height()}));
    QRect place({0, 0}, (QSizeF(size) * zoom).toSize());
    place.moveCenter(stage.center());
    iView->setGeometry(place);
    iView->setZoomFactor(zoom);
    //: The size of the preview in pixels, and how much it is scaled down.
    iSize->setText(tr("%1 × %2, %3 %")
                       .arg(size.width())
                       .arg(size.height())
                       .arg(QLocale().toString(zoom * 100, 'f', 0)));
}

bool PreviewPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == iStage && event->type() == QEvent::Resize) {
        fitBar();
        place();
    }
    return QFrame::eventFilter(watched, event);
}

void PreviewPane::updateColors() {
    for (const auto& [made, name] : iIcons)
        made->setIcon(Icons::icon(name, palette().color(QPalette::ButtonText)));
}

void PreviewPane::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}
