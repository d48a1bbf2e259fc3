#include "child.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QTextStream>
#include <cstdio>

#include "ArvendelLocale.h"
#include "DPIinfo.h"
#include "QtSingleApplication.h"

namespace {

constexpr char kChildOption[] = "--child";

int RunAsChild(int argc, char** argv) {
    const QtSingleApplication application(argc, argv, true);
    QTextStream(stdout) << (application.isRunning() ? "running" : "alone") << '\n'
                        << ArvendelLocale::getInstance()->getDefaultLanguage() << ' '
                        << DPIinfo::getInstance()->getDPI() << '\n';
    char byte = 0;
    return ::read(STDIN_FILENO, &byte, 1) == 1 ? ::execl("/bin/cat", "cat", nullptr) : 0;
}

}  // namespace

Child::Child(const std::string& home, const QStringList& variables) {
    const QStringList own = {"QT_QPA_PLATFORM=offscreen", ("HOME=" + home).c_str()};
    setEnvironment(systemEnvironment().filter("SAN_OPTIONS=") + own + variables);
    start(QCoreApplication::applicationFilePath(), {kChildOption});
}

Child::~Child() {
    closeWriteChannel();
    waitForFinished();
    EXPECT_TRUE(exitStatus() == CrashExit || exitCode() == 0) << qPrintable(readAllStandardError());
}

std::string Child::ReadLine() {
    while (!canReadLine() && waitForReadyRead()) {
    }
    return readLine().trimmed().toStdString();
}

int main(int argc, char** argv) {
    if (argc == 2 && std::string(argv[1]) == kChildOption) {
        return RunAsChild(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
