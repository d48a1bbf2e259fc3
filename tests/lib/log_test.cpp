#define DEBUG 1  // As some build systems do.
#include "lib/log.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <iostream>
#include <numeric>
#include <regex>
#include <tuple>

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

#define LOG_SOURCE "log_test"

namespace {

namespace fs = std::filesystem;

constexpr int kMaxFileBytes = 5242880;
constexpr int kTimestampBytes = 20;
const std::string kLogComponent = "log_test";

/// Writes a record without a prefix.
void Log(const std::string& text) {
    Logger::LogMsg(Logger::LEVEL_ERROR, kLogComponent, "%s", text.c_str());
}

/// Returns records without their timestamps.
std::string Unstamped(const std::string& records) {
    return std::regex_replace(records, std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d )"), "");
}

/// Logs at its end and, if wanted, at its beginning, if the environment asks for it.
struct AroundMain {
    explicit AroundMain(bool logs_begin) { is_asked&& logs_begin ? Log("begin") : void(); }
    ~AroundMain() { is_asked ? Log("end") : void(); }
    const bool is_asked = std::getenv("CORVIMO_LOG_AROUND_MAIN") != nullptr;
} before_any_record(false), around_main(true);

class LoggerTest : public testing::Test {
protected:
    ~LoggerTest() override { Logger::Initialize(Logger::InitConfig()); }

    int32_t LogTo(const std::string& file, int rotate_count = 50,
                  Logger::SafetyScope scope = Logger::SCOPE_PROCESS) {
        return Logger::Initialize(Logger::TYPE_FILE, file, folder / "levels", rotate_count, scope);
    }

    const TempDir folder;
    const std::string path = folder / "log";
};

using LogSoak = LoggerTest;

// The static objects are made before and after the logger's state, as in either order of linking.
TEST(LoggerDeathTest, StaticObjectLogsToStandardErrorBeforeAndAfterMain) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // Starts the program anew.
    setenv("CORVIMO_LOG_AROUND_MAIN", "1", 1);
    const auto end = [] {
        LOG_MSG(WARNING, "wanted");
        LOG_MSG(DEBUG, "unwanted");
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 1, Logger::SCOPE_NONE);
        static const AroundMain late(true);
        exit(0);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0),
                "^.{20}begin.*: wanted\n.{20}begin.{20}end.{20}end.{20}end$");
}

// The thresholds outlive a configuration, so each row has a component of its own.
TEST_F(LoggerTest, ComponentNamedInTheLevelsFileLogsUpToItsLevel) {
    const std::tuple<const char*, const char*, int> rows[] = {
        {"t3=7\n", "t3", 7},           {"t3=3\n", "t3", 3},     {"t5=x\n", "t5", 0},
        {"t6=7\n", "t6_debug", 4},     {"t7=7\nt7\n", "t7", 4}, {"default_component=7\n", "t8", 4},
        {"t9", "default_component", 4}};
    for (const auto& [levels, component, threshold] : rows) {
        WriteFile(folder / "levels", levels);
        LogTo(path);
        EXPECT_EQ(Logger::GetCompLevel(component), threshold) << levels;
    }
    Logger::LogMsg(Logger::LEVEL_ERROR, "t5", "silenced");
    EXPECT_EQ(Unstamped(ReadFile(path)), "");
}

TEST_F(LoggerTest, RecordInAFileHasPrefixAndLocalTimeForTheUserAlone) {
    setenv("TZ", "FAR-05:45", 1);
    LogTo(path);
    int evaluated = 0;
    LOG_MSG_AT(5, ERROR, "%s %d", "two", ++evaluated);
    LOG_MSG_AT(7, NOTE, "unwanted %d", ++evaluated);
    EXPECT_EQ(evaluated, 1);
    const std::regex id("\\( *" + std::to_string(getpid()) + ": *\\d{1,5}\\)");
    EXPECT_EQ(std::regex_replace(Unstamped(ReadFile(path)), id, "ID"),
              "ID [ERROR] log_test(5): two 1\n");
    struct tm stamp = {};
    ASSERT_NE(strptime(ReadFile(path).c_str(), "%Y-%m-%dT%H:%M:%S ", &stamp), nullptr);
    EXPECT_LE(std::abs(timegm(&stamp) - 20700 - time(nullptr)), 60);  // 5 hours 45 minutes.
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    unsetenv("TZ");
}

TEST_F(LoggerTest, FileAboveTheLimitIsRotatedAlsoIfAnotherWriterOfASharedOneHasMadeIt) {
    for (const bool is_shared : {false, true}) {
        const std::string content(kMaxFileBytes - kTimestampBytes - (is_shared ? 2 : 21), 'x');
        WriteFile(path, content + "\n");
        LogTo(path, 50, is_shared ? Logger::SCOPE_SHARED : Logger::SCOPE_PROCESS);
        fs::rename(path, folder / "renamed");
        WriteFile(path, is_shared ? content + "\n" : "");
        Log("");                            // Goes to the renamed file.
        ++*Logger::InitializeSharedData();  // As the other writer does.
        Log("x");                           // Makes a shared file as large as the limit.
        EXPECT_EQ(fs::remove(path + "_0"), !is_shared);
    }
}

// A limit on the size of files cuts a record as a full disk does.
TEST_F(LoggerTest, RecordCutByAFailedWriteIsEndedBeforeTheNextOne) {
    const std::string whole = std::string(4095, 'x') + "\n";  // Just needs a larger buffer.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit unlimited = {};
    getrlimit(RLIMIT_FSIZE, &unlimited);
    for (const bool is_next_process : {false, true}) {
        WriteFile(path, "");
        LogTo(path);
        Log(whole);
        const rlimit small = {fs::file_size(path) + kTimestampBytes + 3, unlimited.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        errno = 0;
        Log("cut here\n");
        Log("lost\n");
        EXPECT_EQ(errno, 0);
        setrlimit(RLIMIT_FSIZE, &unlimited);
        if (is_next_process) {
            LogTo(path);
        }
        Log("next\n");
        EXPECT_EQ(Unstamped(ReadFile(path)), whole + "cut\nnext\n");
    }
}

TEST_F(LoggerTest, RepeatedRotationKeepsTheNewestFiles) {
    for (const auto& [rotate_count, kept] : {std::pair(3, 2U), {1, 1U}, {-1, 1U}}) {
        const TempDir own;
        LogTo(own / "log", rotate_count);
        for (const char* text : {"1", "2", "3", "4"}) {
            Log(text);
            ASSERT_EQ(Logger::Rotate(), 0);
        }
        EXPECT_EQ(NamesIn(own.path()).size(), kept + 1U) << rotate_count;
        for (unsigned i = 0; i < kept; ++i) {
            EXPECT_EQ(Unstamped(ReadFile(own / "log_" + std::to_string(i))), std::to_string(4 - i));
        }
    }
}

TEST_F(LoggerTest, FailedInitializeOrRotationSilencesTheLoggerUntilInitialize) {
    for (const std::string& bad : {std::string(), folder.path(), folder / "missing/log"}) {
        EXPECT_EQ(LogTo(bad), -1) << bad;
        EXPECT_FALSE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, kLogComponent));
    }
    LogTo(path, 1);
    fs::create_directories(path + "_0/in the way");
    Log(std::string(kMaxFileBytes, 'x'));
    Log("lost");
    EXPECT_EQ(Logger::PrintToFilePointer("lost"), 0);
    EXPECT_EQ(fs::file_size(path), kMaxFileBytes + 0U + kTimestampBytes);
    EXPECT_EQ(LogTo(folder / "new"), 0);
    EXPECT_EQ(Logger::PrintToFilePointer("kept\n"), kTimestampBytes + 5);
    EXPECT_EQ(Logger::GetFileSize("/none"), 0);
    EXPECT_EQ(Unstamped(ReadFile(folder / "new")),
              "kept\nstat(/none): No such file or directory (2)\n");
}

TEST_F(LoggerTest, StreamReadToItsEndIsLoggedToEachOutputWithTheErrorIfAsked) {
    openlog("system", LOG_PERROR, LOG_USER);  // The system log prints to standard error, too.
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const std::tuple<int, int, int> rows[] = {{0, 0, 13}, {1, 6, 13}, {2, 4, 13}, {2, 4, 0}};
    for (const auto& [type, flags, error] : rows) {
        Logger::Initialize(Logger::Type(type), path, "", 1, Logger::SCOPE_SHARED);
        std::stringstream message("text");
        message.ignore(9) >> std::hex;
        errno = error;
        Logger::LogMsg3(Logger::LEVEL_ERROR, "any", message, Logger::ConfigFlag(flags));
        EXPECT_EQ(errno, error);
    }
    closelog();
    EXPECT_EQ(Unstamped(testing::internal::GetCapturedStdout()),
              "text, err=13:Permission denied\n");
    EXPECT_EQ(Unstamped(testing::internal::GetCapturedStderr()),
              "system: text\ntext, err=13:Permission deniedtext");
}

// With CORVIMO_WHOLE_MATRIX set, a million records of each thread: they just fit the files.
TEST_F(LogSoak, RecordsOfManyThreadsAreWholeAndAChildFindsTheLockFree) {
    const int count = std::getenv("CORVIMO_WHOLE_MATRIX") != nullptr ? 1'000'000 : 50'000;
    ASSERT_EQ(0, LogTo(path));
    std::vector<int> next(8);  // The number of each thread's next record.
    std::vector<std::future<void>> threads;
    for (std::size_t thread = 0; thread < next.size(); ++thread) {
        threads.push_back(std::async(std::launch::async, [thread, count] {
            for (int number = 0; number < count; ++number) {
                Logger::LogMsg(Logger::LEVEL_ERROR, "soak", "%zu %d\n", thread, number);
            }
        }));
    }
    int status = 0;
    for (int i = 0; i < 50 && status == 0; ++i) {
        if (fork() == 0) {
            alarm(60);
            Logger::Lock();  // As every record of the child would.
            _exit(Logger::ProcessId() == getpid() ? 0 : 1);
        }
        EXPECT_GT(wait(&status), 0);
    }
    EXPECT_EQ(status, 0);
    threads.clear();  // Waits until they end.
    const std::size_t rotations = NamesIn(folder.path()).size() - 1;
    EXPECT_GE(kMaxFileBytes + 64U, fs::file_size(path + "_0"));  // No record uncounted.
    for (std::size_t age = rotations + 1; age-- > 0;) {
        std::ifstream file(age == 0 ? path : path + "_" + std::to_string(age - 1));
        for (std::string line; std::getline(file, line);) {
            const std::string text = line.substr(kTimestampBytes);
            const std::size_t thread = std::stoul(text);
            ASSERT_EQ(std::to_string(thread) + " " + std::to_string(next.at(thread)++), text);
        }
    }
    EXPECT_EQ(std::vector<int>(next.size(), count), next);
    std::cout << "figure: records_whole_over_" << rotations
              << "_rotations: " << std::accumulate(next.begin(), next.end(), 0) << " of "
              << next.size() * static_cast<std::size_t>(count) << "\n";
}

}  // namespace
