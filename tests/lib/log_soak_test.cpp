#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numeric>
#include <thread>
#include <vector>

#include "lib/log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

// With CORVIMO_WHOLE_MATRIX set, a million records of each thread: they just fit the files.
TEST(LogSoak, LosesTearsAndRepeatsNothing) {
    const int count = std::getenv("CORVIMO_WHOLE_MATRIX") != nullptr ? 1'000'000 : 50'000;
    const TempDir folder;
    const std::string path = folder / "log";
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, path, "", 50, Logger::SCOPE_PROCESS));
    std::vector<int> next(8);  // The number of each thread's next record.
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < next.size(); ++thread) {
        threads.emplace_back([thread, count] {
            for (int number = 0; number < count; ++number) {
                Logger::LogMsg(Logger::ERROR, "soak", "%zu %d\n", thread, number);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    Logger::Initialize(Logger::InitConfig());

    const std::size_t rotations = NamesIn(folder.path()).size() - 1;
    EXPECT_GE(5242880U + 64U, std::filesystem::file_size(path + "_0"));  // No record uncounted.
    for (std::size_t age = rotations + 1; age-- > 0;) {
        std::ifstream file(age == 0 ? path : path + "_" + std::to_string(age - 1));
        for (std::string line; std::getline(file, line);) {
            const std::string text = line.substr(std::string("2000-01-01T00:00:00 ").size());
            const std::size_t thread = std::stoul(text);
            ASSERT_EQ(std::to_string(thread) + " " + std::to_string(next.at(thread)++), text);
        }
    }
    EXPECT_EQ(std::vector<int>(next.size(), count), next);
    std::cout << "figure: records_whole_over_" << rotations
              << "_rotations: " << std::accumulate(next.begin(), next.end(), 0) << " of "
              << next.size() * static_cast<std::size_t>(count) << "\n";
}
