#include "ui/ChoiceList.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int gap = 6;

// Beneath a button, which a click on it chooses, too.
class Purpose : public QLabel {
public:
    Purpose(const QString& text, QRadioButton& button) : QLabel(text), iButton(button) {
        setObjectName(QStringLiteral("hint"));
        setIndent(button.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                  button.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
    }

private:
    void mousePressEvent(QMouseEvent* /*event*/) override { iButton.click(); }

    QRadioButton& iButton;
};

} // namespace

ChoiceList::ChoiceList(QWidget* parent)
    : QWidget(parent), group(new QButtonGroup(this)), iLayout(new QVBoxLayout(this)) {
    iLayout->setContentsMargins(0, gap, 0, gap);
    iLayout->setSpacing(0);
}

void ChoiceList::add(int id, const QString& name, const QString& purpose) {
    auto* button = new QRadioButton(name);
    button->setAccessibleDescription(purpose);
    group->addButton(button, id);
    if (iLayout->count() > 0)
        iLayout->addSpacing(gap);
    iLayout->addWidget(button);
    iLayout->addWidget(new Purpose(purpose, *button));
}
