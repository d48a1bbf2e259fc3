#include <gtest/gtest.h>
#include <signal.h>

#include <cerrno>
#include <filesystem>

#include "UIPathManager.h"
#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/private_home.h"

namespace fs = std::filesystem;

namespace {

const std::string kError = "ERROR cloud-service: ";

// The one process that there is for the code under test.
struct {
    int error_while_alive = ESRCH;
    int probes_alive = 0;
    std::string calls;  // "PID:SIGNAL " and "sleep:SECONDS ".
} process;

}  // namespace

// They take the place of the system's: no signal leaves this program, and no time passes in it.
extern "C" int kill(pid_t pid, int signal) noexcept {
    process.calls += std::to_string(pid) + ":" + std::to_string(signal) + " ";
    errno = signal == SIGTERM || process.probes_alive-- > 0 ? process.error_while_alive : ESRCH;
    return errno == 0 ? 0 : -1;
}

extern "C" unsigned sleep(unsigned seconds) {
    process.calls += "sleep:" + std::to_string(seconds) + " ";
    return 0;
}

TEST(StopService, FollowsTheAnswersOfTheSystem) {
    // clang-format off
    const struct { int error, probes_alive; std::string last_call; Records records; } rows[] = {
        {ESRCH,  0, "",       {}},
        {0,      2, "812:0 ", {}},
        {0,     15, "812:9 ", {}},
        {EPERM, 15, "812:9 ", {"ERROR mac/mac-service: kill: Operation not permitted (1)"}},
    };
    // clang-format on
    const PrivateHome home;
    WriteDeep(home / ".Corvimo/ui.pid", "# client\npid = 812\nother=1\n");
    for (const auto& row : rows) {
        process = {row.error, row.probes_alive, ""};
        const CapturedLog log;
        MacService().StopService();
        const QString probes = QStringLiteral("812:0 sleep:1 ").repeated(row.probes_alive);
        EXPECT_EQ("812:15 " + probes.toStdString() + row.last_call, process.calls);
        EXPECT_EQ(row.records, log.All());
    }
}

TEST(StopService, SignalsNobodyWithoutOneProcess) {
    const PrivateHome home;
    const std::string path = home / ".Lumaport/ui.pid";
    const std::string source = "NOTE mac/mac-service: ";
    std::vector<std::pair<std::string, Records>> rows = {
        {"# only a comment\nother=1\n", {}},
        {"pid=''\n", {}},
        {"pid\n", {source + "Failed to read pid file '" + path + "', not exist ?"}}};
    for (const std::string value : {"abc", "0", "-812", "4294967296", "4294967295"}) {
        rows.push_back({"pid=" + value,
                        {source + "pid '" + value + "' in '" + path +
                         "' names no process, nothing to terminate"}});
    }
    for (const auto& [content, records] : rows) {
        WriteDeep(path, content);
        process = {};
        const CapturedLog log;
        MacService().StopServiceByPath(QString::fromStdString(home / ".Lumaport"));
        EXPECT_EQ("", process.calls) << content;
        EXPECT_EQ(records, log.All());
    }
}

TEST(IsNeedUpgrade, ComparesTheBuildNumbersOfTheVersionGroups) {
    const std::tuple<std::string, std::string, bool> rows[] = {
        {"99", "101", true}, {"", "", false},    {"12a", "12", false},
        {"x", "0", false},   {"-5", "-4", true}, {"4294967296", "1", true}};
    const PrivateHome home;
    home.InstallClient();
    for (const auto& [source, target, expected] : rows) {
        WriteDeep(home.app + "/Contents/Resources/INFO",
                  "build_version=0\n[Version]\nbuild_version=" + source + "\n");
        WriteFile(home.folder / "INFO",
                  "[Other]\nbuild_version=999\n[Version]\nbuild_version = " + target + "\n");
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(expected, service.IsNeedUpgrade()) << source << " -> " << target;
    }
    fs::remove(home.app + "/Contents/MacOS/corvimo-ui");
    EXPECT_TRUE(MacService().IsNeedUpgrade());
}

TEST(PrepareUserEnv, RollsBackWhatCannotBeUnpacked) {
    const PrivateHome home;
    home.Pack({{"Contents/new", "new"}, {"../outside", ""}});
    const CapturedLog log;
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    home.InstallClient();
    const TreeSnapshot before = Snapshot(home / ".Corvimo");
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(before, Snapshot(home / ".Corvimo"));
    const std::string why = "ERROR extractor: archive_read_extract2 failed: 'Path contains '..''";
    const std::string failed = kError + "Failed to extract package, ";
    EXPECT_EQ((Records{why, failed + "and no old installation to rollback", why,
                       failed + "rollback to old installation"}),
              log.All());
}

TEST(PrepareUserEnv, InstallsOnlyWithANameForTheBackup) {
    const PrivateHome home;
    home.InstallClient();
    home.Pack({{"new", "101"}});
    Records expected;
    for (const char* const number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        const std::string name = home.app + "_tmp" + number;
        WriteDeep(name + "/leftover", "");
        expected.push_back(kError + "failed to backup app from '" + home.app + "' -> '" + name +
                           "'");
    }
    expected.push_back(expected.back() + " at max retries, exiting");
    const TreeSnapshot before = Snapshot(home / ".Corvimo");
    const CapturedLog log;
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(expected, log.All());
    EXPECT_EQ(before, Snapshot(home / ".Corvimo"));

    fs::remove_all(home.app + "_tmp9");
    EXPECT_EQ(0, MacService().PrepareUserEnv());
    EXPECT_EQ(std::vector<std::string>{"Corvimo.app"}, NamesIn(home / ".Corvimo"));
}

TEST(MigrateService, LosesNoData) {
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {".Corvimo", ".Corvimo/data/file", "Failed to move data to Corvimo folder"},
        {"file/.Corvimo", "file", "Failed to create Corvimo folder"}};
    for (const auto& [new_folder, in_the_way, message] : rows) {
        const PrivateHome home;
        UIPathManager::getInstance()->setPath(QStringLiteral("user_corvimo_path"),
                                              QString::fromStdString(home / new_folder));
        WriteDeep(home / ".Lumaport/data/a/file", "data");
        WriteDeep(home / in_the_way, "new");
        const TreeSnapshot before = Snapshot(home / ".");
        const CapturedLog log;
        MacService().MigrateService();
        EXPECT_EQ(before, Snapshot(home / "."));
        EXPECT_EQ(kError + message, log.All().back());
    }
}

TEST(MigrateService, LeavesALinkAloneAndRemovesAFile) {
    const PrivateHome home;
    const CapturedLog log;
    WriteDeep(home / "elsewhere/data/file", "data");
    fs::create_directory_symlink("elsewhere", home / ".Lumaport");
    MacService().MigrateService();
    EXPECT_EQ("data", ReadFile(home / ".Lumaport/data/file"));
    fs::remove(home / ".Lumaport");
    WriteFile(home / ".Lumaport", "no folder");
    MacService().MigrateService();
    EXPECT_FALSE(fs::exists(home / ".Lumaport"));
    EXPECT_EQ(Records(), log.All());
}
