#include "app/desktop/RecentFiles.h"
#include "app/desktop/StartPanel.h"
#include "desktop/DesktopProgram.h"

namespace {

class Start : public DesktopProgram {
protected:
    StartPanel& panel() const { return *window().start; }
    // What it offers to open again, by the texts of the buttons.
    QStringList offered() const {
        QStringList names;
        for (const auto* button : panel().findChildren<QToolButton*>()) {
            if (button->isVisible() && !button->text().isEmpty())
                names << button->text().trimmed();
        }
        return names;
    }
};

} // namespace

TEST_F(Start, SaysHowToBeginWhileTheDemoBookIsShown) {
    for (int pages = 1; pages <= 4; ++pages)
        RecentFiles::add(pdf(pages), {});
    launch();
    EXPECT_TRUE(panel().isVisible());
    EXPECT_EQ(offered(), QStringList({"4 pages.pdf", "3 pages.pdf", "2 pages.pdf"}));
    fileToOpen = pdf(1);
    QTest::mouseClick(panel().btnChoose, Qt::LeftButton);
    ASSERT_TRUE(waitForImport());
    EXPECT_FALSE(panel().isVisible());
    window().menu->newProject->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(offered(), QStringList({"1 pages.pdf", "4 pages.pdf", "3 pages.pdf"}));
    for (auto* button : panel().findChildren<QToolButton*>()) {
        if (button->text().endsWith("4 pages.pdf"))
            button->click();
    }
    ASSERT_TRUE(waitForImport());
    EXPECT_EQ(configuration().at("Ppts").children.size(), 4u);
}
