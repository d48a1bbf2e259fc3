#include <gtest/gtest.h>

#include <QApplication>
#include <QProgressBar>
#include <QTest>
#include <cstdlib>
#include <numeric>

#include "launcher.h"
#include "notify_adapter.h"
#include "tests/support/private_home.h"

namespace {

ProcessingProgressDialog* FindDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) {
            return dialog;
        }
    }
    return nullptr;
}

}  // namespace

TEST(Launcher, DialogIsAsDesignedAndNothingThatAPersonDoesHidesIt) {
    const PrivateHome home;
    const Launcher launcher;
    ProcessingProgressDialog* const dialog = FindDialog();
    ASSERT_NE(nullptr, dialog);
    EXPECT_EQ("Corvimo Client", dialog->windowTitle().toStdString());
    EXPECT_EQ("Corvimo Client is initializing...", dialog->labelText().toStdString());
    EXPECT_EQ(QSize(400, 80), dialog->minimumSize());
    EXPECT_EQ(QSize(400, 80), dialog->maximumSize());
    EXPECT_EQ(100, dialog->maximum());
    EXPECT_FALSE(dialog->isModal() || dialog->autoReset() || dialog->isVisible());
    EXPECT_TRUE(dialog->autoClose());
    EXPECT_EQ(4000, dialog->minimumDuration());
    EXPECT_EQ(0x3000U, static_cast<unsigned>(dialog->windowFlags()) & 0xFFFFF000U);

    dialog->show();
    dialog->setValue(50);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->close());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(50, dialog->value());
}

TEST(Launcher, BarFollowsProgressInWholePercent) {
    const PrivateHome home;
    const Launcher launcher;
    const ProcessingProgressDialog* const dialog = FindDialog();
    ASSERT_NE(nullptr, dialog);
    const int rows[][3] = {{200, 50, 25},   {3, 2, 66},    {0, 5, 66},
                           {-100, -50, 66}, {100, 70, 70}, {2000000000, 1900000000, 95},
                           {100, 100, 100}};
    for (const auto& [total, steps, value] : rows) {
        Notify_Adapter::GetInstance()->UpdateProgress(total, steps);
        EXPECT_EQ(value, dialog->value()) << steps << " of " << total;
    }
}

TEST(Launcher, BarShowsEveryPercentOfAnInstallationOnce) {
    setenv("TOOL_RECORD", "/dev/null", 1);
    setenv("TOOL_STATUS", "0", 1);
    const PrivateHome home;
    ArchiveBuilder package = home.Package();
    for (int i = 0; i < 250; ++i) {
        package.File(std::to_string(i), "");
    }
    package.Finish();
    Launcher launcher;
    ProcessingProgressDialog* const dialog = FindDialog();
    ASSERT_NE(nullptr, dialog);
    std::vector<int> values;
    QObject::connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                     [&values](int value) { values.push_back(value); });
    launcher.Run();
    launcher.Start();
    EXPECT_EQ(0, QApplication::exec());
    std::vector<int> every_percent(100);
    std::iota(every_percent.begin(), every_percent.end(), 1);
    EXPECT_EQ(every_percent, values);
}
