#include "launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressBar>
#include <QTest>

#include "lib/platform/platform.h"
#include "notify_adapter.h"
#include "strtable.h"
#include "tests/support/files.h"
#include "tests/support/private_home.h"

// Tests of widgets need an application object, and no screen.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();  // The build lists them, without the environment of a test.
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    PlatformUseUtf8CharacterType();
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}

namespace {

struct Dialog : testing::Test {
    const PrivateHome home;
    Launcher launcher;
    // There is no other window.
    ProcessingProgressDialog* const dialog =
        qobject_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
};

}  // namespace

TEST_F(Dialog, IsAsDesignedAndNothingThatAPersonDoesHidesIt) {
    EXPECT_EQ("Corvimo Client", dialog->windowTitle().toStdString());
    EXPECT_EQ("Corvimo Client is initializing...", dialog->labelText().toStdString());
    EXPECT_EQ(QSize(400, 80), dialog->minimumSize());
    EXPECT_EQ(QSize(400, 80), dialog->maximumSize());
    EXPECT_EQ(100, dialog->maximum());
    EXPECT_FALSE(dialog->isModal() || dialog->autoReset() || dialog->isVisible());
    EXPECT_EQ(0x3000U, static_cast<unsigned>(dialog->windowFlags()) & 0xFFFFF000U);

    dialog->show();
    dialog->setValue(50);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->close());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(50, dialog->value());
}

TEST_F(Dialog, FollowsProgressInWholePercent) {
    const int rows[][3] = {
        {200, 50, 25}, {3, 2, 66}, {0, 5, 66}, {-100, -50, 66}, {2000000000, 1900000000, 95}};
    for (const auto& [total, steps, value] : rows) {
        Notify_Adapter::GetInstance()->UpdateProgress(total, steps);
        EXPECT_EQ(value, dialog->value()) << steps << " of " << total;
    }
}

// What stands in the place of the system's tools notes how it is called.
TEST_F(Dialog, ShowsEachPercentOfAnInstallationOnceThenTheClientIsOpened) {
    qputenv("TOOL_RECORD", (home / "calls").c_str());
    qputenv("TOOL_STATUS", "7");  // Unregistering fails, which stops nothing.
    home.Pack(std::vector<Entry>(250, {"file", ""}));
    int percent = 0;
    QObject::connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                     [&percent](int value) { EXPECT_EQ(++percent, value); });
    launcher.Run();
    launcher.Start();
    EXPECT_EQ(0, QApplication::exec());
    EXPECT_EQ(100, percent);
    const std::string calls = "lsregister -u " + home.app + "\nopen -n -a " + home.app + "\n";
    EXPECT_TRUE(QTest::qWaitFor([&] { return ReadFile(home / "calls") == calls; }, 10000));
}

TEST_F(Dialog, IsNeverShownWhenThereIsNothingToDo) {
    struct : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            shows += event->type() == QEvent::Show ? 1 : 0;
            return false;
        }
        int shows = 0;
    } filter;
    dialog->installEventFilter(&filter);
    home.InstallClient();
    launcher.Run();
    launcher.Start();
    EXPECT_EQ(0, QApplication::exec());
    EXPECT_EQ(0, filter.shows);
}
