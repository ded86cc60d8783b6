#include "desktop/DesktopProgram.h"
#include "support/ExpectedText.h"
#include "ui/Panels.h"

namespace {

// What users see, hear or reach by keys. Sizes and places are left to the styles.
const QByteArrayList properties =
    QByteArray("windowTitle text informativeText icon title iconText placeholderText toolTip "
               "accessibleName "
               "accessibleDescription statusTip shortcut menuRole default autoDefault checkable "
               "checked readOnly wordWrap textFormat alignment textInteractionFlags focusPolicy "
               "frameShape movable toolButtonStyle contextMenuPolicy orientation textVisible "
               "childrenCollapsible maximum editTriggers acceptDrops horizontalScrollBarPolicy "
               "verticalScrollMode uniformItemSizes uniformRowHeights viewMode movement resizeMode "
               "mouseTracking windowModality tabChangesFocus autoRaise")
        .split(' ');

// What a field holds is the user's own, and the preview has title and icon of its page, once it has
// come.
QString valueOf(const QObject& object, const QByteArray& name) {
    if ((name == "text" && object.inherits("QLineEdit")) ||
        (name == "title" && object.inherits("QWebEngineView")))
        return {};
    const QVariant value = object.property(name);
    static const QRegularExpression usual("^(false|0|No|Non|Default|AutoText|TextHeur).*");
    return (value.userType() == QMetaType::QKeySequence ? value.value<QKeySequence>().toString()
                                                        : value.toString())
        .simplified()
        .remove(usual);
}

QString described(const QObject& object) {
    QStringList words{object.metaObject()->className(), object.objectName()};
    for (const QByteArray& name : properties) {
        if (const QString value = valueOf(object, name); !value.isEmpty())
            words << name + '=' + value;
    }
    if (object.property("shortcut").isValid() && !object.property("icon").value<QIcon>().isNull())
        words << "with an icon";
    const auto* widget = qobject_cast<const QWidget*>(&object);
    if (widget && widget->isHidden())
        words << "hidden";
    if (widget && widget->testAttribute(Qt::WA_TransparentForMouseEvents))
        words << "lets clicks through";
    if (object.property("enabled") == false)
        words << "disabled";
    const auto* list = qobject_cast<const QComboBox*>(&object);
    for (int i = 0; list && i < list->count(); ++i)
        words << '|' + list->itemText(i);
    const auto* layout = qobject_cast<const QBoxLayout*>(&object);
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (const int stretch = layout->stretch(i))
            words << QString("%1 stretches %2").arg(i).arg(stretch);
    }
    if (const auto* label = qobject_cast<const QLabel*>(&object); label && label->buddy())
        words << "for a" << described(*label->buddy());
    for (const QAction* action : widget ? widget->actions() : QList<QAction*>())
        words << '[' + action->text() + ']';
    return words.join(' ');
}

// Of the window and its sheets, without the parts that Qt's own widgets consist of.
QByteArrayList linesOf(const QWidget& window) {
    static const QRegularExpression own("^(qt_|QScrollBar|QComboBoxPrivate|QQuickWidget)");
    QByteArrayList lines{described(window).toUtf8()};
    for (const QObject* object : window.findChildren<QObject*>()) {
        const QString line = described(*object);
        if ((object->isWidgetType() || object->inherits("QAction") ||
             object->inherits("QBoxLayout")) &&
            !line.endsWith(' ') && !line.contains(own) && !object->objectName().contains(own) &&
            object->parent()->objectName() != "qt_menubar_ext_button")
            lines << line.toUtf8();
    }
    return lines;
}

class Windows : public DesktopProgram {
protected:
    // What an alert shows, and what a panel returns once it is filled in and its button is clicked.
    void ask(const QString& button, const std::function<QString()>& open) {
        QTimer::singleShot(0, [&] {
            QWidget* panel = QApplication::activeModalWidget();
            ASSERT_TRUE(panel);
            if (panel->inherits("QMessageBox"))
                lines << linesOf(*panel);
            if (auto* colors = qobject_cast<QColorDialog*>(panel))
                colors->setCurrentColor(Qt::green);
            else if (auto* field = panel->findChild<QLineEdit*>())
                field->setText(entered);
            for (auto* each : panel->findChildren<QPushButton*>()) {
                if (each->text().remove('&') == button)
                    each->click();
            }
        });
        lines << (button + ": " + open().replace(files.path(), "FOLDER")).toUtf8();
    }

    QByteArrayList lines;
    QString entered = files.path();
};

} // namespace

TEST_F(Windows, AreAsWrittenDown) {
    launch();
    program->ouputWindow().window().btnMore->setChecked(true);
    program->ouputWindow().window().showWebBookParts(true);
    lines = linesOf(window());
    const auto yesOrNo = [](bool yes) { return yes ? "yes" : "no"; };
    for (const char* button : {"Replace", "Cancel"})
        ask(button, [&] { return yesOrNo(Panels::askToReplace("<b>?", "<i>")); });
    for (const char* button : {"Open it", "No"})
        ask(button, [&] { return yesOrNo(Panels::askToOpen("<b>?", "<i>")); });
    for (const char* button : {"With text", "Without text", "Cancel"})
        ask(button, [&] {
            const auto answer = Panels::askForText("<b>?", "<i>");
            return answer ? yesOrNo(*answer) : "none";
        });
    ask("OK", [] { return Panels::showMessage("<b>", "<i>"), ""; });
    ask("OK", [] { return Panels::about(), ""; });
    for (const char* button : {"OK", "Cancel"})
        ask(button, [&] { return Panels::chooseColor(Qt::red).name(); });
    for (const char* button : {"Choose it", "Cancel"})
        ask(button, [&] { return Panels::chooseFolder("Choose it").value_or("none"); });
    entered = pdf(1);
    for (const char* button : {"Open", "Cancel"})
        ask(button, [&] { return Panels::chooseFile(path("any.pdf"), {"pdf"}).value_or("none"); });
    entered = path("new.txt");
    for (const char* button : {"Save", "Cancel"})
        ask(button, [&] { return Panels::chooseFileToSave(entered, {"txt"}).value_or("none"); });
    expectLinesOf(FOLVERO_WINDOWS_TEXT, lines << "");
}

TEST_F(Windows, TheColourPanelEndsWithTheProgram) {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    EXPECT_EQ(Panels::chooseColor(Qt::red), QColor(Qt::red));
    // Or no other window would open.
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
}
