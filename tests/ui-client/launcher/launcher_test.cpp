#include "launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressBar>
#include <QTest>

#include "lib/platform/platform.h"
#include "notify_adapter.h"
#include "strtable.h"
#include "tests/support/captured_log.h"
#include "tests/support/private_home.h"

// Widgets need an application object. The offscreen platform needs no display.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();  // The build lists the tests, maybe without a usable Qt platform.
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    PlatformUseUtf8CharacterType();
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}

namespace {

struct Dialog : testing::Test {
    Dialog() {
        // The tools in the place of the system's note how they are called, and fail.
        qputenv("TOOL_RECORD", (home / "calls").c_str());
        qputenv("TOOL_STATUS", "7");
    }

    // Runs the launcher to its end, and checks that both tools were called.
    void Run() {
        launcher.Run();
        launcher.Start();
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_FALSE(dialog->isVisible());
        const std::string calls = "lsregister -u " + home.app + "\nopen -n -a " + home.app + "\n";
        EXPECT_TRUE(QTest::qWaitFor([&] { return ReadFile(home / "calls") == calls; }, 60000));
        EXPECT_EQ(Records{"ERROR mac/mac-service: Cannot unregister bundle, " + home.app},
                  log.All());
    }

    const PrivateHome home;
    const CapturedLog log;
    Launcher launcher;
    // The program has no other window.
    ProcessingProgressDialog* const dialog =
        qobject_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
};

}  // namespace

TEST_F(Dialog, AfterEscapeAndCloseIsStillVisibleAndAsDesigned) {
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

TEST_F(Dialog, AfterProgressShowsWholePercent) {
    const int rows[][3] = {
        {200, 50, 25}, {3, 2, 66}, {0, 5, 66}, {-100, -50, 66}, {2000000000, 1900000000, 95}};
    for (const auto& [total, steps, value] : rows) {
        Notify_Adapter::GetInstance()->UpdateProgress(total, steps);
        EXPECT_EQ(value, dialog->value()) << steps << " of " << total;
    }
}

TEST_F(Dialog, DuringAnInstallationShowsEachPercentOnceThenTheClientIsOpened) {
    home.Pack(std::vector<Entry>(250, {"file", ""}));
    int percent = 0;
    QObject::connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                     [&percent](int value) { EXPECT_EQ(++percent, value); });
    Run();
    EXPECT_EQ(100, percent);
}

TEST_F(Dialog, WithNothingToInstallIsNeverShown) {
    home.InstallClient();
    Run();
    EXPECT_FALSE(dialog->testAttribute(Qt::WA_WState_Created));  // Set by the first show().
}
