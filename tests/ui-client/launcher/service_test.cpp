#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <regex>
#include <thread>

#include "UIPathManager.h"
#include "client_bundle.h"
#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/private_home.h"

namespace fs = std::filesystem;

namespace {

const std::string kError = "ERROR cloud-service: ";

// No process has this number. It is greater than the largest one of Linux, 4194304.
constexpr pid_t kNoProcess = 4200000;

// How kill() and sleep() answer the code under test.
struct {
    int error_while_alive = ESRCH;
    int probes_alive = 0;
    // A child of this test, to which its signals are sent. The fields above have no meaning then.
    pid_t child = 0;
    bool is_number_reused = false;  // By another process, after the child's end.
    std::string calls;              // "SIGNAL " and "sleep:SECONDS ".
} process;

// A child process that ends some time after SIGTERM, or never. Another thread waits for its end,
// and reaps it some time later.
class Child {
public:
    Child(double seconds_to_end, double seconds_to_reap) : pid_(Fork(seconds_to_end)) {
        reaper_ = std::thread([this, seconds_to_reap] {
            siginfo_t info;
            EXPECT_EQ(0, waitid(P_PID, static_cast<id_t>(pid_), &info, WEXITED | WNOWAIT));
            std::this_thread::sleep_for(std::chrono::duration<double>(seconds_to_reap));
            EXPECT_EQ(pid_, waitpid(pid_, &status_, 0));
        });
        process = {0, 0, pid_, false, ""};
    }
    pid_t Pid() const { return pid_; }
    int Status() {
        reaper_.join();
        return status_;
    }

private:
    static pid_t Fork(double seconds_to_end) {
        seconds = seconds_to_end;
        const auto before = signal(SIGTERM, EndLater);  // The child inherits the handler.
        const pid_t pid = fork();
        while (pid == 0) {
            alarm(300);  // So a test that does not end the child does not hang.
            pause();
        }
        signal(SIGTERM, before);
        return pid;
    }
    static void EndLater(int) {
        if (seconds >= 0) {
            usleep(static_cast<useconds_t>(seconds * 1e6));
            _exit(0);
        }
    }

    static double seconds;
    const pid_t pid_;
    int status_ = 0;
    std::thread reaper_;
};
double Child::seconds = 0;

}  // namespace

// These two functions replace those of the C library. Signals are sent to the child only.
extern "C" int kill(pid_t pid, int signal) noexcept {
    process.calls += std::to_string(signal) + " ";
    if (pid == process.child && pid > 0) {
        const auto result = static_cast<int>(syscall(SYS_kill, pid, signal));
        return process.is_number_reused ? 0 : result;
    }
    errno = signal == SIGTERM || process.probes_alive-- > 0 ? process.error_while_alive : ESRCH;
    return errno == 0 ? 0 : -1;
}

extern "C" unsigned sleep(unsigned seconds) {
    process.calls += "sleep:" + std::to_string(seconds) + " ";
    return 0;
}

TEST(StopService, ProcessThatCannotBeWatchedIsProbedEverySecondAndThenKilled) {
    // clang-format off
    const struct { int error, probes_alive; std::string last_call; Records records; } rows[] = {
        {ESRCH,  0, "",   {}},
        {0,      2, "0 ", {}},
        {0,     15, "9 ", {}},
        {EPERM, 15, "9 ", {"ERROR mac/mac-service: kill: Operation not permitted (1)"}},
    };
    // clang-format on
    const PrivateHome home;
    WriteDeep(home / ".Corvimo/ui.pid",
              "# client\npid = " + std::to_string(kNoProcess) + "\nother=1\n");
    for (const auto& row : rows) {
        process = {row.error, row.probes_alive, 0, false, ""};
        const CapturedLog log;
        MacService().StopService();
        const QString probes = QStringLiteral("0 sleep:1 ").repeated(row.probes_alive);
        EXPECT_EQ("15 " + probes.toStdString() + row.last_call, process.calls);
        EXPECT_EQ(row.records, log.All());
    }
}

// On a busy machine the client may need one round more. Two rows take 15 seconds each.
TEST(StopService, ClientThatEndsIsNotWaitedForAnyLongerAndAnotherIsKilled) {
    // clang-format off
    const struct { double seconds_to_end, seconds_to_reap; bool is_reused; int status; std::string calls; } rows[] = {
        {0.1, 0,   false, 0,       "15 0 (0 ){1,99}"},  // Far less than a second after its end.
        {1.5, 0,   false, 0,       "15 0 0 (0 )+"},
        {0.1, 1.5, false, 0,       "15 (0 )+"},         // It is a zombie for 1.5 s.
        {-1,  0,   false, SIGKILL, "15 (0 ){15}9 "},
        {0.1, 0,   true,  0,       "15 (0 )+"},         // Another process has its number.
    };
    // clang-format on
    const PrivateHome home;
    for (const auto& row : rows) {
        Child child(row.seconds_to_end, row.seconds_to_reap);
        process.is_number_reused = row.is_reused;
        WriteDeep(home / ".Corvimo/ui.pid", "pid=" + std::to_string(child.Pid()));
        MacService().StopService();
        EXPECT_EQ(row.status, child.Status());
        // The regular expression would take too long for the many probes of a second.
        EXPECT_TRUE(std::regex_match(process.calls.substr(0, 603), std::regex(row.calls)))
            << process.calls;
        EXPECT_EQ(row.status == SIGKILL, process.calls.find('9') != std::string::npos);
    }
}

TEST(StopService, ProcessThatCannotHaveWrittenThePidFileGetsNoSignal) {
    const PrivateHome home;
    const std::string folder = home / ".Corvimo";
    const std::string path = folder + "/ui.pid";
    const std::string self = fs::read_symlink("/proc/self/exe");
    fs::create_directories(folder);
    const std::string in_folder = folder + "/program";
    fs::copy_file("/bin/sleep", in_folder);
    const char* const argv[] = {"sleep", "60", nullptr};
    pid_t program = 0;
    ASSERT_EQ(0, posix_spawn(&program, in_folder.c_str(), nullptr, nullptr,
                             const_cast<char* const*>(argv), environ));
    Child child(0, 0);
    const pid_t zombie = fork();  // The system does not tell its executable.
    if (zombie == 0) {
        _exit(0);
    }
    ASSERT_EQ(0, waitid(P_PID, static_cast<id_t>(zombie), nullptr, WEXITED | WNOWAIT));
    const std::string other =
        "' belongs to '" + self + "', not to the client, nothing to terminate";
    // clang-format off
    const struct { pid_t pid; int file_age; std::string calls, record; } rows[] = {
        {child.Pid(), 60, "", "pid " + std::to_string(child.Pid()) + " in '" + path + other},
        {getpid(), 0, "", "pid " + std::to_string(getpid()) + " in '" + path + other},
        {zombie, 60, "", "pid " + std::to_string(zombie) + " in '" + path + "' belongs to 'another program', not to the client, nothing to terminate"},
        {program, 60, "15 0 (0 )*", ""},
        {child.Pid(), 0, "15 0 (0 )*", ""},
    };
    // clang-format on
    for (const auto& row : rows) {
        WriteFile(path, "pid=" + std::to_string(row.pid));
        fs::last_write_time(path,
                            fs::file_time_type::clock::now() - std::chrono::seconds(row.file_age));
        process.calls = "";
        process.child = row.pid == program ? program : child.Pid();
        std::thread reaper([&] { row.pid == program ? waitpid(program, nullptr, 0) : 0; });
        const CapturedLog log;
        MacService().StopService();
        reaper.join();
        EXPECT_TRUE(std::regex_match(process.calls, std::regex(row.calls))) << process.calls;
        EXPECT_EQ(row.record.empty() ? Records() : Records{"NOTE mac/mac-service: " + row.record},
                  log.All());
    }
    EXPECT_EQ(0, child.Status());
    EXPECT_EQ(zombie, waitpid(zombie, nullptr, 0));
}

TEST(StopService, PidFileThatNamesNoProcessSendsNoSignal) {
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

TEST(IsNeedUpgrade, WithAGreaterBuildOrNoExecutableIsTrue) {
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

TEST(PrepareUserEnv, WithoutAFreeBackupNameFailsAndWithOneInstalls) {
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
    WriteDeep(home.app + "_tmp3/leftover", "");
    MacService().RemoveLeftovers();
    EXPECT_EQ(std::vector<std::string>{"Corvimo.app"}, NamesIn(home / ".Corvimo"));
}

TEST(InspectBundle, BundleWithoutAnExecutableOrAWholeNumberAsItsBuildIsIncomplete) {
    // clang-format off
    const struct { const char* info; fs::perms mode; ClientBundle::State state; } rows[] = {
        {"[Version]\nbuild_version=12\n", fs::perms::owner_all, ClientBundle::kWhole},
        {"[Version]\nbuild_version=12\n", fs::perms::owner_read, ClientBundle::kIncomplete},
        {"[Version]\nbuild_version=12a\n", fs::perms::owner_all, ClientBundle::kIncomplete},
        {"[Other]\nbuild_version=12\n", fs::perms::owner_all, ClientBundle::kIncomplete},
    };
    // clang-format on
    for (const auto& row : rows) {
        const TempDir bundle;  // A new one for each row, because QSettings caches what it has read.
        WriteFile(bundle / "run", "");
        WriteFile(bundle / "INFO", row.info);
        fs::permissions(bundle / "run", row.mode);
        EXPECT_EQ(row.state, InspectBundle(bundle.path(), {"/run", "/INFO"}).state) << row.info;
    }
}

TEST(MigrateService, WithNoPlaceForTheDataChangesNothing) {
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

TEST(MigrateService, OldFolderThatIsALinkStaysAndAFileIsRemoved) {
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

TEST(FSCopyPath, TreeWithAnEntryThatCannotBeCopiedIsCopiedUpToIt) {
    const PrivateHome home;
    const CapturedLog log;
    MacService service;
    const std::string from = home / "from", to = home / "new/to", link = "/link";
    WriteDeep(from + "/a/deep/file", "1");
    WriteFile(from + "/b", "2");
    EXPECT_EQ(0, service.FSCopyPath(from, to));
    EXPECT_EQ(Snapshot(from), Snapshot(to));
    fs::remove_all(to);
    fs::create_symlink("missing", from + link);
    EXPECT_EQ(-1, service.FSCopyPath(from, to));
    for (auto entry = fs::directory_iterator(from); entry->path() != from + link; ++entry) {
        EXPECT_NE(0U, fs::remove_all(to / entry->path().filename())) << *entry;
    }
    EXPECT_TRUE(fs::is_empty(to));
    EXPECT_EQ(-1, service.FSCopyPath(from + link, to));
    EXPECT_EQ(-1, service.FSCopyPath(to + link, to));
    const std::string failed = kError + "FSCopyPath: failed to copy from '" + from + "/link' to '";
    const Records records = log.All();
    ASSERT_EQ(5U, records.size());  // The first and the third are of FSCopy.
    EXPECT_EQ(failed + to + "/link'", records[1]);
    EXPECT_EQ(failed + to + "'", records[3]);
    EXPECT_EQ(kError + "FSCopyPath: source path '" + to + "/link' does not exist", records[4]);
}
