#include <gtest/gtest.h>
#include <unistd.h>

#include <QProcess>
#include <QTextStream>
#include <cstdlib>
#include <filesystem>
#include <tuple>

#include "ArvendelLocale.h"
#include "DPIinfo.h"
#include "QtSingleApplication.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

const char* const kChildOption = "--child";

// A child process that runs this program again. It makes the single-instance application, and ends
// when its standard input is closed.
class Child : public QProcess {
public:
    // Starts the process on the offscreen platform. Its environment holds only the home folder, the
    // given variables ("NAME=value") and the settings of sanitizers.
    explicit Child(const TempDir& home, const QStringList& variables = {}) {
        const QStringList own = {"QT_QPA_PLATFORM=offscreen", ("HOME=" + home.path()).c_str()};
        setEnvironment(systemEnvironment().filter("SAN_OPTIONS=") + own + variables);
        start(QCoreApplication::applicationFilePath(), {kChildOption});
    }
    ~Child() override {
        closeWriteChannel();
        waitForFinished();
        EXPECT_EQ(exitCode(), 0) << qPrintable(readAllStandardError());
    }

    // Returns "running" or "alone", the default language and the display scale.
    std::string Answer() {
        waitForReadyRead();
        return readLine().trimmed().toStdString();
    }
};

int RunAsChild(int argc, char** argv) {
    const QtSingleApplication application(argc, argv, true);
    QTextStream(stdout) << (application.isRunning() ? "running " : "alone ")
                        << ArvendelLocale::getInstance()->getDefaultLanguage() << ' '
                        << DPIinfo::getInstance()->getDPI() << '\n';
    char byte = 0;
    return ::read(STDIN_FILENO, &byte, 1) == 0 ? 0 : 1;
}

TEST(ArvendelLocaleTest, ListOfLanguagesGivesTheFirstTranslatedOne) {
    // clang-format off
    const std::tuple<const char*, const char*> rows[] = {
        {"", "enu"}, {"xx,C,fr-CA", "fre"}, {"en-DE,de", "enu"}, {"fi,de-AT", "ger"},
        {"itx,dea,trk", "enu"}, {"-de,,de_DE", "enu"}, {"zh-CN", "chs"}, {"zh-Hans-HK", "chs"},
        {"zh-TW", "cht"}, {"zh-HK", "cht"}, {"zh-MO", "cht"}, {"ZH-HANT-SG", "cht"}, {"nb", "nor"},
        {"pt", "ptb"}, {"pt-Latn-BR", "ptb"}, {"pt-BR-u-ca", "ptb"}, {"pt-Latn-AO", "ptg"},
    };
    // clang-format on
    for (const auto& [languages, code] : rows) {
        const auto list = QString(languages).split(',');
        EXPECT_STREQ(qUtf8Printable(ArvendelLocale::codeForLanguages(list)), code) << languages;
    }
}

TEST(DPIinfoTest, LengthInPxIsScaledAndNothingElse) {
    // clang-format off
    const std::tuple<double, const char*, const char*> rows[] = {
        {1.25, "1px 2px 10px -2px;", "1px 3px 13px -3px;"}, {1e10, "9px", "90000000000px"},
        {2.0, "a{margin:10px 0px -2px .5px}b{top:+3PX}", "a{margin:20px 0px -4px 1px}b{top:6PX}"},
        {2.0, "#10px w10px w-10px é10px .10.5px 10px-a", "#10px w10px w-10px é10px .10.5px 10px-a"},
        {2.0, "'1px' 1px \"1px\\\" 1px\" 1px '1px", "'1px' 2px \"1px\\\" 1px\" 2px '2px"},
        {2.0, "/*1px\n'1px*/1px url(a 1px) curl(1px)", "/*1px\n'1px*/2px url(a 1px) curl(2px)"},
    };
    // clang-format on
    for (const auto& [factor, sheet, scaled] : rows) {
        EXPECT_STREQ(qUtf8Printable(DPIinfo::scaleStyleSheet(sheet, factor)), scaled) << sheet;
    }
}

TEST(Services, EnvironmentDecidesOnLanguageAndScale) {
    // clang-format off
    const std::tuple<const char*, const char*> rows[] = {
        {"", "enu 1"}, {"LANG=zh_HK.UTF-8", "cht 1"}, {"LANG=de_DE LC_MESSAGES=it_IT", "ita 1"},
        {"LC_MESSAGES=it_IT LC_ALL=no_NO", "nor 1"}, {"LANG=de_DE.UTF-8 LANGUAGE=xx:fr", "fre 1"},
        // Without the second variable, Qt 6 scales itself.
        {"QT_FONT_DPI=107 QT_ENABLE_HIGHDPI_SCALING=0", "enu 1"},
        {"QT_FONT_DPI=108 QT_ENABLE_HIGHDPI_SCALING=0", "enu 1.25"},
    };
    // clang-format on
    for (const auto& [variables, answer] : rows) {
        const TempDir home;
        Child child(home, QString(variables).split(' '));
        EXPECT_EQ(child.Answer(), std::string("alone ") + answer) << variables;
    }
}

TEST(QtSingleApplicationTest, SecondInstanceIsToldByALockOnAFileOfTheUserOnly) {
    // clang-format off
    const std::pair<const char*, bool> rows[] = {
        {"true", true}, {"mkdir -m 0700 real && ln -s real .Corvimo", true},
        {"mkdir -m 0777 .Corvimo", true}, {"mkdir .Corvimo && chown 12345 .Corvimo", true},
        {"rmdir $PWD", false}, {"mkdir .Corvimo && mkfifo .Corvimo/launcher.lock", false},
        {"mkdir -m 0700 .Corvimo .Corvimo/launcher.lock", false}, {"touch .Corvimo", false},
        {"mkdir -m 0700 .Corvimo && ln -s ../target .Corvimo/launcher.lock", false},
        {"mkdir .Corvimo && install -m 600 -o 12345 /dev/null .Corvimo/launcher.lock", false},
    };
    // clang-format on
    for (const auto& [preparation, locks] : rows) {
        SCOPED_TRACE(preparation);
        const TempDir home;
        if (std::system(("cd '" + home.path() + "' && " + preparation).c_str()) != 0) {
            GTEST_SKIP() << preparation << ": giving a folder away takes the rights of root";
        }
        Child first(home);
        EXPECT_EQ(first.Answer(), "alone enu 1");
        EXPECT_EQ(Child(home).Answer(), locks ? "running enu 1" : "alone enu 1");
        const fs::file_status lock = fs::symlink_status(home / ".Corvimo/launcher.lock");
        EXPECT_TRUE(!locks || lock.permissions() == fs::perms(0600));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string(argv[1]) == kChildOption) {
        return RunAsChild(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
