#include "ui/FlashTemplateModel.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/PropertyCellDelegate.h"
#include "ui/ValueEditor.h"

#include "base/NotificationCenter.h"
#include "support/TemplateLibrary.h"

#include <QAbstractItemModelTester>
#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString property(const QString& key, const QString& value, const QString& attributes,
                 const QString& source = {}) {
    return QString("<property %1><key>%2</key><title>Title of %2</title><desc>About %2</desc>"
                   "<value>%3</value><valueSource>%4</valueSource><defaultValue/>"
                   "<aTitle>Yes, please</aTitle></property>")
        .arg(attributes, key, value, source);
}

const QString properties = TemplateLibrary::composite(
    "group", property("words", "Hello", "type='pt_text'") +
                 property("count", "4", "type='pt_number'", "-1..400 s") +
                 property("color", "0xff8000", "type='pt_color'") +
                 property("choice", "b", "type='pt_list'", "a,b,c") +
                 property("picture", "old.png", "type='pt_file'", "Image files|*.jpg;*.png") +
                 property("flag", "No", "type='pt_text' aType='check'"));

// The editor over a template with a property of every kind, without a window around it.
class Editor : public testing::Test {
protected:
    Editor() {
        library.addTemplate("float", properties);
        tmpl = std::make_shared<FlashTemplate>();
        delegate.setFlashTmpl(tmpl);
        subscription = NotificationCenter::defaultCenter().addObserver(
            QString::fromUtf16(FlashTmplProValueChangedNotification), nullptr,
            [this](const Notification& message) {
                changed << static_cast<const FlashTemplateProperty*>(message.object)->key();
            });
    }

    FlashTemplateProperty* item(const QString& key) const {
        for (const auto& child : tmpl->properties()[0]->childProperties()) {
            if (child->key() == key)
                return child.get();
        }
        return nullptr;
    }
    QString value(const QString& key) const { return tmpl->propertyValueFor(key, {}); }
    template <typename Kind>
    std::shared_ptr<Kind> cell(const QString& key) {
        const std::shared_ptr<Cell> made = delegate.dataCellForTableColumn(valueColumn, item(key));
        return std::dynamic_pointer_cast<Kind>(made);
    }

    const QString valueColumn = "value";
    TemplateLibrary library;
    std::shared_ptr<FlashTemplate> tmpl;
    FlashTemplateOutlineDelegate delegate;
    QStringList changed;
    NotificationCenter::Subscription subscription;
};

// The same in a view that is shown.
class EditorView : public Editor {
protected:
    EditorView() : model(delegate), cells(new PropertyCellDelegate(view)) {
        view.setModel(&model);
        view.setItemDelegate(cells);
        view.resize(500, 400);
        view.setColumnWidth(0, 200);
        view.expandAll();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    QModelIndex index(const QString& key) const { return model.valueForKey(key); }
    QPoint at(const QString& key, int fromLeft) const {
        const QRect rect = view.visualRect(index(key));
        return {fromLeft >= 0 ? rect.left() + fromLeft : rect.right() + fromLeft,
                rect.center().y()};
    }
    void click(const QString& key, int fromLeft) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at(key, fromLeft));
    }
    // The editors in the rows.
    QWidgetList editors() const {
        auto open = view.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        open.removeIf([](const QWidget* editor) { return !editor->isVisible(); });
        return open;
    }
    bool waitForNoEditor() const {
        return QTest::qWaitFor([this] { return editors().isEmpty(); });
    }

    FlashTemplateOutline view;
    FlashTemplateModel model;
    QAbstractItemModelTester contract{&model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
    PropertyCellDelegate* cells;
};

} // namespace

TEST_F(Editor, ShowsTheTree) {
    FlashTemplateProperty* group = delegate.child(0, nullptr);
    EXPECT_EQ(group, tmpl->properties()[0].get());
    EXPECT_EQ(delegate.numberOfChildrenOfItem(nullptr), 1);
    EXPECT_EQ(delegate.numberOfChildrenOfItem(group), 6);
    EXPECT_EQ(delegate.child(5, group), item("flag"));
    EXPECT_EQ(delegate.child(6, group), nullptr);
    EXPECT_TRUE(delegate.isItemExpandable(group));
    EXPECT_FALSE(delegate.isItemExpandable(item("words")));
}

TEST_F(Editor, ShowsTitlesAndValues) {
    item("flag")->setValue("enable");
    const std::tuple<QString, FlashTemplateProperty*, QVariant> cases[] = {
        {"key", item("words"), "Title of words"},
        {"value", item("words"), "Hello"},
        {"value", item("picture"), "go go bay,hello world....just ok"},
        {"value", item("flag"), 1},
    };
    for (const auto& [column, item, shown] : cases)
        EXPECT_EQ(delegate.objectValueForTableColumn(column, item), shown);
    item("flag")->setValue("No");
    EXPECT_EQ(delegate.objectValueForTableColumn(valueColumn, item("flag")), 0);
}

TEST_F(Editor, HasACellForEachKind) {
    for (const char* key : {"words", "count"})
        EXPECT_EQ(cell<Cell>(key), nullptr);
    EXPECT_EQ(cell<FlashTmplColorCell>("color")->color(), QColor(255, 128, 0));
    EXPECT_EQ(cell<FlashTmplColorCell>("color")->title(), "0xff8000");
    const auto file = cell<FlashTmplFileCell>("picture");
    EXPECT_EQ(file->title(), "old.png");
    const auto flag = cell<ButtonCell>("flag");
    EXPECT_EQ(flag->title(), "Yes, please");
    item("choice")->setValue("c");
    const auto choice = cell<PopUpButtonCell>("choice");
    EXPECT_EQ(choice->itemTitles(), (QStringList{"a", "b", "c"}));
    EXPECT_EQ(choice->indexOfSelectedItem(), 1);

    item("flag")->setValue("YES");
    item("picture")->setValue("new.png");
    delegate.willDisplayCell(*flag, valueColumn, item("flag"));
    delegate.willDisplayCell(*file, valueColumn, item("picture"));
    delegate.willDisplayCell(*choice, valueColumn, item("choice"));
    EXPECT_TRUE(flag->state());
    EXPECT_EQ(file->title(), "new.png");
    EXPECT_EQ(choice->indexOfSelectedItem(), 2);
    item("choice")->setValue("unknown");
    EXPECT_EQ(cell<PopUpButtonCell>("choice")->indexOfSelectedItem(), -1);
}

TEST_F(EditorView, EverySettingIsReachedAndEditedWithTheKeyboardAlone) {
    delegate.setColorPanel([](const QColor&, const auto&) { return QColor(1, 2, 3); });
    delegate.setFilePanel([](const QString&, const QStringList&) { return "/new.png"; });
    view.setFocus();
    const auto press = [&](const QString& key, Qt::Key with) {
        view.setCurrentIndex(model.index(0, FlashTemplateModel::key));
        while (FlashTemplateModel::item(view.currentIndex())->key() != key)
            QTest::keyClick(&view, Qt::Key_Down);
        EXPECT_EQ(view.currentIndex().column() == FlashTemplateModel::value, key != "group");
        QTest::keyClick(&view, with);
    };
    const auto type = [&](const QString& typed, Qt::Key end) {
        ASSERT_EQ(editors().size(), 1);
        auto* edit = qobject_cast<QLineEdit*>(editors().first());
        EXPECT_EQ(edit->text(), FlashTemplateModel::item(view.currentIndex())->value());
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, end);
    };
    int typed = 0;
    for (const char* key : {"words", "count", "color", "picture"}) {
        for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
            press(key, with);
            const QString text =
                key == "color"_L1 ? u"0x10000%1"_s.arg(++typed) : QString::number(++typed);
            type(text, Qt::Key_Return);
            EXPECT_TRUE(waitForNoEditor());
            EXPECT_EQ(value(key), text) << key;
        }
    }
    press("words", Qt::Key_Space);
    type("by", Qt::Key_Tab);
    EXPECT_EQ(value("words"), "by");
    QTest::keyClicks(editors().value(0), "05");
    QTest::keyClick(editors().value(0), Qt::Key_Left);
    QTest::keyClicks(editors().value(0), ",8");
    QTest::keyClick(editors().value(0), Qt::Key_Backtab);
    EXPECT_EQ(value("count"), "0.85") << "players know no comma";
    type("0,8", Qt::Key_Return);
    EXPECT_TRUE(waitForNoEditor());
    EXPECT_EQ(value("words"), "0,8");
    press("color", Qt::Key_F2);
    type("0x112233", Qt::Key_Tab);
    EXPECT_EQ(view.currentIndex(), index("choice"));
    EXPECT_TRUE(waitForNoEditor()) << "it has no text to type";
    press("color", Qt::Key_Space);
    EXPECT_EQ(value("color"), "0x010203");
    press("picture", Qt::Key_Space);
    EXPECT_EQ(value("picture"), "/new.png");
    QString was = value("choice");
    for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space}) {
        for (const auto end : {Qt::Key_Escape, Qt::Key_Return}) {
            press("choice", with);
            const auto* list = qobject_cast<QComboBox*>(editors().value(0));
            ASSERT_TRUE(list && QTest::qWaitFor([&] { return list->view()->isVisible(); }));
            QTest::keyClick(list->view(), was == "c" ? Qt::Key_Up : Qt::Key_Down);
            QTest::keyClick(list->view(), end);
            EXPECT_TRUE(waitForNoEditor());
            EXPECT_EQ(value("choice") == was, end == Qt::Key_Escape);
        }
        was = value("choice");
    }
    const QModelIndex group = model.index(0, FlashTemplateModel::key);
    for (const bool isOpen : {false, true}) {
        press("group", Qt::Key_Space);
        EXPECT_EQ(view.isExpanded(group), isOpen);
    }
    QTest::keyClick(&view, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(view.isExpanded(group)) << "a key of the menu";
    for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space}) {
        const QString before = value("flag");
        press("flag", with);
        EXPECT_NE(value("flag"), before);
    }
}

TEST_F(EditorView, ValuesAreCheckedWhileTheyAreTyped) {
    struct Case {
        const char *key, *typed, *stored;
        bool ends = true;
    };
    const Case cases[] = {{"count", "-5000", "-1"},
                          {"count", "9999", "400"},
                          {"count", "1x,5", "1.5"},
                          {"count", "-", "1.5", false},
                          {"color", "Red", "0xff0000"},
                          {"color", "#0a0", "0x00aa00"},
                          {"color", "C0C0C0", "0xC0C0C0"},
                          {"color", "#12", "0xC0C0C0", false},
                          {"color", "transparent", "0xC0C0C0", false}};
    for (const auto& [key, typed, stored, ends] : cases) {
        for (const auto end : {Qt::Key_Return, Qt::Key_Tab}) {
            view.setCurrentIndex(index(key));
            view.edit(index(key));
            QWidget* edit = editors().value(0);
            QTest::keyClicks(edit, typed);
            QTest::keyClick(edit, end);
            EXPECT_EQ(QTest::qWaitFor([&] { return !editors().contains(edit); }, ends ? 5000 : 50),
                      ends)
                << typed;
            EXPECT_EQ(value(key), stored) << typed;
            EXPECT_TRUE(ends || edit->property("isWrong").toBool());
            while (!editors().isEmpty()) {
                QTest::keyClick(editors().first(), Qt::Key_Escape);
                EXPECT_TRUE(waitForNoEditor());
            }
        }
    }
    EXPECT_TRUE(ValueEditor::hint(*item("count")).contains("-1 to 400 s"));
    EXPECT_TRUE(ValueEditor::hint(*item("picture")).contains("old.png does not exist"));
}

TEST_F(EditorView, SwatchAndButtonStayFreeWhileTheTextIsEdited) {
    const auto room = [this](const QString& key) {
        EXPECT_TRUE(waitForNoEditor());
        view.setCurrentIndex(index(key));
        view.edit(index(key));
        const QRect rect = editors().value(0)->geometry();
        QTest::keyClick(editors().value(0), Qt::Key_Escape);
        return rect;
    };
    EXPECT_GE(room("color").left(), at("color", 20).x());
    EXPECT_LE(room("picture").right(), at("picture", -14).x());
}

TEST_F(EditorView, SettingsAreEditedWithTheMouse) {
    for (const char* wanted : {"YES", "NO"}) {
        click("flag", 12);
        EXPECT_EQ(value("flag"), wanted);
    }
    click("choice", 12);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !editors().isEmpty(); }));
    auto* list = qobject_cast<QComboBox*>(editors().first());
    list->setCurrentIndex(2);
    Q_EMIT list->activated(2);
    EXPECT_EQ(value("choice"), "c");
    delegate.setColorPanel([](const QColor& initial, const auto&) {
        EXPECT_EQ(initial, QColor(255, 128, 0));
        return QColor(1, 2, 3);
    });
    click("color", 12);
    EXPECT_EQ(value("color"), "0x010203");
}

TEST_F(EditorView, TheButtonChoosesAFileAndCancellingClearsIt) {
    std::optional<QString> answer = "/new.png";
    delegate.setFilePanel([&](const QString& proposed, const QStringList& types) {
        EXPECT_EQ(proposed, value("picture"));
        EXPECT_EQ(types, (QStringList{"", "jpg", "png"}));
        return answer;
    });
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at("picture", -8));
    QTest::mouseMove(view.viewport(), at("picture", 30));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at("picture", 30));
    EXPECT_EQ(value("picture"), "old.png") << "released outside";
    click("picture", -8);
    EXPECT_EQ(value("picture"), "/new.png");
    answer = std::nullopt;
    click("picture", -8);
    EXPECT_EQ(value("picture"), "");
    EXPECT_EQ(changed, (QStringList{"picture", "picture"}));
}

TEST_F(EditorView, TheButtonLightsUpUnderThePointer) {
    const auto look = [&] { return view.viewport()->grab().toImage(); };
    QTest::mouseMove(view.viewport(), at("words", 5));
    const QImage before = look();
    QTest::mouseMove(view.viewport(), at("picture", -8));
    EXPECT_TRUE(QTest::qWaitFor([&] { return look() != before; }));
    QTest::mouseMove(view.viewport(), at("words", 5));
    EXPECT_TRUE(QTest::qWaitFor([&] { return look() == before; }));
    QTest::mouseMove(view.viewport(), at("picture", -8));
    EXPECT_TRUE(QTest::qWaitFor([&] { return look() != before; }));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view.viewport(), &leave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return look() == before; }));
}
