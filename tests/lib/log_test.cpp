#include "lib/log.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
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
const std::regex kTimestamp(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d )");

/// Writes a record without a prefix.
void Log(const std::string& text) {
    Logger::LogMsg(Logger::ERROR, kLogComponent, "%s", text.c_str());
}

/// A file's records without their timestamps.
std::string Texts(const std::string& path) {
    return std::regex_replace(ReadFile(path), kTimestamp, "");
}

class LoggerTest : public testing::Test {
protected:
    ~LoggerTest() override { Logger::Initialize(Logger::InitConfig()); }

    int32_t LogTo(const std::string& file, int rotate_count = 50) {
        return Logger::Initialize(Logger::TYPE_FILE, file, folder / "levels", rotate_count,
                                  Logger::SCOPE_PROCESS);
    }

    const TempDir folder;
    const std::string path = folder / "log";
};

TEST(LoggerDeathTest, LogsToStandardErrorBeforeInitialize) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // Starts the program anew.
    const auto log = [] {
        LOG_MSG(WARNING, "wanted");
        _exit(0);
    };
    EXPECT_EXIT(log(), testing::ExitedWithCode(0),
                "^....-..-..T..:..:.. \\(.*\\) \\[WARNING\\] log_test\\(.*\\): wanted\n$");
}

// The thresholds outlive a configuration, so each row has a component of its own.
TEST_F(LoggerTest, ThresholdsComeFromTheirFile) {
    const std::tuple<const char*, const char*, const char*, int> rows[] = {
        {"everything", "t3=7\n", "t3", 7},
        {"only errors", " t4 = 3 # terse\n", "t4", 3},
        {"no number", "t5=x\n", "t5", 0},
        {"another component", "t6=7\n", "t6_debug", 4},
        {"a malformed line", "t7=7\nt7\n", "t7", 4},
        {"no default for others", "default_component=7\n", "t8", 4},
    };
    for (const auto& [name, levels, component, threshold] : rows) {
        WriteFile(folder / "levels", levels);
        WriteFile(path, "");
        LogTo(path);
        std::string expected;
        for (int level = Logger::ERROR; level <= Logger::DEBUG; ++level) {
            Logger::LogMsg(Logger::Level(level), component, "%d", level);
            expected += level <= threshold ? std::to_string(level) : "";
        }
        EXPECT_EQ(Texts(path), expected) << name;
    }
}

TEST_F(LoggerTest, RecordsHaveTimePrefixAndMessage) {
    setenv("TZ", "FAR-05:45", 1);
    LogTo(path);
    int evaluated = 0;
    LOG_MSG_AT(5, ERROR, "%s %d", "two", ++evaluated);
    LOG_MSG_AT(7, NOTE, "unwanted %d", ++evaluated);
    EXPECT_EQ(evaluated, 1);
    const std::regex id("\\( *" + std::to_string(getpid()) + ": *\\d+\\)");
    EXPECT_EQ(std::regex_replace(Texts(path), id, "ID"), "ID [ERROR] log_test(5): two 1\n");
    struct tm stamp = {};
    ASSERT_NE(strptime(ReadFile(path).c_str(), "%Y-%m-%dT%H:%M:%S ", &stamp), nullptr);
    EXPECT_LE(std::abs(timegm(&stamp) - 20700 - time(nullptr)), 60);  // 5 hours 45 minutes.
    unsetenv("TZ");
}

TEST_F(LoggerTest, FileIsAppendedToPrivateAndNotInherited) {
    const mode_t mask = umask(0);
    LogTo(path);
    umask(mask);
    Log("first\n");
    LogTo(path);
    Log("second\n");
    EXPECT_EQ(Texts(path), "first\nsecond\n");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    EXPECT_NE(std::system(("ls -l /proc/self/fd | grep -q " + path).c_str()), 0);
}

TEST_F(LoggerTest, RotatesJustAboveTheLimit) {
    WriteFile(path, "");
    fs::resize_file(path, kMaxFileBytes - kTimestampBytes - 1);
    LogTo(path);  // Takes the file's size over.
    Log("x");
    EXPECT_EQ(NamesIn(folder.path()).size(), 1U);  // Exactly the limit.
    Log("x");
    EXPECT_EQ(fs::file_size(path + "_0"), kMaxFileBytes + kTimestampBytes + 1U);
}

TEST_F(LoggerTest, RotationKeepsTheNewestFiles) {
    for (const auto& [rotate_count, kept] : {std::pair(50, 49), {3, 2}, {1, 1}, {-1, 1}}) {
        const TempDir own;
        LogTo(own / "log", rotate_count);
        constexpr int kRotations = 55;
        for (int i = 1; i <= kRotations; ++i) {
            Log(std::to_string(i));
            ASSERT_EQ(Logger::Rotate(), 0);
        }
        EXPECT_EQ(static_cast<int>(NamesIn(own.path()).size()), kept + 1) << rotate_count;
        for (int i = 0; i < kept; ++i) {
            EXPECT_EQ(Texts(own / "log_" + std::to_string(i)), std::to_string(kRotations - i));
        }
    }
}

TEST_F(LoggerTest, FailedRotationDropsRecordsUntilInitialize) {
    LogTo(path, 1);
    fs::create_directories(path + "_0/in the way");
    errno = EDOM;
    Log(std::string(kMaxFileBytes, 'x'));
    Log("lost");
    EXPECT_EQ(errno, EDOM);
    EXPECT_EQ(fs::file_size(path), kMaxFileBytes + 0U + kTimestampBytes);
    WriteFile(path, "");
    EXPECT_EQ(LogTo(path), 0);
    Log("kept");
    EXPECT_EQ(Texts(path), "kept");
}

TEST_F(LoggerTest, FailedInitializeSilencesTheLogger) {
    for (const std::string& bad : {std::string(), folder.path(), folder / "missing/log"}) {
        EXPECT_EQ(LogTo(bad), -1) << bad;
        EXPECT_FALSE(Logger::IsNeedToLog(Logger::ERROR, kLogComponent));
        EXPECT_EQ(LogTo(path), 0);
        EXPECT_TRUE(Logger::IsNeedToLog(Logger::ERROR, kLogComponent));
    }
}

}  // namespace
