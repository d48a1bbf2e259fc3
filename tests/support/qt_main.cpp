#include <gtest/gtest.h>

#include <QApplication>

#include "lib/platform/platform.h"
#include "strtable.h"

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
