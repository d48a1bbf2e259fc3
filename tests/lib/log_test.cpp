#include "lib/log.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numeric>
#include <regex>
#include <thread>
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

/// A file's records without their timestamps.
std::string Texts(const std::string& path) {
    return std::regex_replace(ReadFile(path), std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d )"), "");
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

using LogSoak = LoggerTest;

TEST(LoggerDeathTest, LogsToStandardErrorBeforeInitialize) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // Starts the program anew.
    const auto log = [] {
        LOG_MSG(WARNING, "wanted");
        _exit(0);
    };
    EXPECT_EXIT(log(), testing::ExitedWithCode(0), "\\[WARNING\\] log_test\\(.*\\): wanted\n$");
}

// The thresholds outlive a configuration, so each row has a component of its own.
TEST_F(LoggerTest, ThresholdsComeFromTheirFile) {
    const std::tuple<const char*, const char*, int> rows[] = {
        {"t3=7\n", "t3", 7},       {"t4=3\n", "t4", 3},     {"t5=x\n", "t5", 0},
        {"t6=7\n", "t6_debug", 4}, {"t7=7\nt7\n", "t7", 4}, {"default_component=7\n", "t8", 4}};
    for (const auto& [levels, component, threshold] : rows) {
        WriteFile(folder / "levels", levels);
        WriteFile(path, "");
        LogTo(path);
        std::string expected;
        for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level) {
            Logger::LogMsg(Logger::Level(level), component, "%d", level);
            expected += level <= threshold ? std::to_string(level) : "";
        }
        EXPECT_EQ(Texts(path), expected) << levels;
    }
}

TEST_F(LoggerTest, RecordsAreForTheUserAloneInLocalTime) {
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
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    unsetenv("TZ");
}

TEST_F(LoggerTest, RotatesJustAboveTheLimit) {
    WriteFile(path, std::string(kMaxFileBytes - kTimestampBytes - 2, 'x') + "\n");
    LogTo(path);  // Takes the file's size over.
    Log("x");
    EXPECT_EQ(NamesIn(folder.path()).size(), 1U);  // Exactly the limit.
    Log("x");
    EXPECT_EQ(fs::file_size(path + "_0"), kMaxFileBytes + kTimestampBytes + 1U);
}

// A limit on the size of files cuts a record as a full disk does.
TEST_F(LoggerTest, RecordCutByAFailedWriteIsEndedBeforeTheNextOne) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit unlimited = {};
    getrlimit(RLIMIT_FSIZE, &unlimited);
    for (const bool is_next_process : {false, true}) {
        WriteFile(path, "");
        LogTo(path);
        Log("whole\n");
        const rlimit small = {fs::file_size(path) + kTimestampBytes + 3, unlimited.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        Log("cut here\n");
        Log("lost\n");
        setrlimit(RLIMIT_FSIZE, &unlimited);
        if (is_next_process) {
            LogTo(path);
        }
        Log("next\n");
        EXPECT_EQ(Texts(path), "whole\ncut\nnext\n");
    }
}

TEST_F(LoggerTest, RotationKeepsTheNewestFiles) {
    for (const auto& [rotate_count, kept] : {std::pair(3, 2U), {1, 1U}, {-1, 1U}}) {
        const TempDir own;
        LogTo(own / "log", rotate_count);
        for (const char* text : {"1", "2", "3", "4"}) {
            Log(text);
            ASSERT_EQ(Logger::Rotate(), 0);
        }
        EXPECT_EQ(NamesIn(own.path()).size(), kept + 1U) << rotate_count;
        for (unsigned i = 0; i < kept; ++i) {
            EXPECT_EQ(Texts(own / "log_" + std::to_string(i)), std::to_string(4 - i));
        }
    }
}

TEST_F(LoggerTest, FailedRotationDropsRecordsUntilInitialize) {
    LogTo(path, 1);
    fs::create_directories(path + "_0/in the way");
    Log(std::string(kMaxFileBytes, 'x'));
    Log("lost");
    EXPECT_EQ(fs::file_size(path), kMaxFileBytes + 0U + kTimestampBytes);
    EXPECT_EQ(LogTo(folder / "new"), 0);
    Log("kept");
    EXPECT_EQ(Texts(folder / "new"), "kept");
}

TEST_F(LoggerTest, FailedInitializeSilencesTheLogger) {
    for (const std::string& bad : {std::string(), folder.path(), folder / "missing/log"}) {
        EXPECT_EQ(LogTo(bad), -1) << bad;
        EXPECT_FALSE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, kLogComponent));
        EXPECT_EQ(LogTo(path), 0);
        EXPECT_TRUE(Logger::IsNeedToLog(Logger::LEVEL_ERROR, kLogComponent));
    }
}

// With CORVIMO_WHOLE_MATRIX set, a million records of each thread: they just fit the files.
TEST_F(LogSoak, LosesTearsAndRepeatsNothing) {
    const int count = std::getenv("CORVIMO_WHOLE_MATRIX") != nullptr ? 1'000'000 : 50'000;
    ASSERT_EQ(0, LogTo(path));
    std::vector<int> next(8);  // The number of each thread's next record.
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < next.size(); ++thread) {
        threads.emplace_back([thread, count] {
            for (int number = 0; number < count; ++number) {
                Logger::LogMsg(Logger::LEVEL_ERROR, "soak", "%zu %d\n", thread, number);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
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
