// The exact existence test, against the C library's resolution of the same path.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <array>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <string>

#include "lib/file/file-op.h"

namespace {

constexpr int kLevels = 8;

/// A folder `kLevels` levels below the root; it goes with the process.
class DeepFolder {
public:
    DeepFolder() {
        // As stored: the exact test is to succeed.
        const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
        top_ = (temporary / "file_bench.XXXXXX").string();
        if (mkdtemp(top_.data()) == nullptr) {
            std::perror("mkdtemp");
            std::exit(1);
        }
        path_ = top_;
        for (auto level = std::count(top_.begin(), top_.end(), '/'); level < kLevels; ++level) {
            path_ += "/level-" + std::to_string(level);
        }
        std::filesystem::create_directories(path_);
    }
    ~DeepFolder() { std::filesystem::remove_all(top_); }
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string top_;
    std::string path_;
};

const std::string& DeepPath() {
    static const DeepFolder folder;
    return folder.path();
}

void ExistExactly(benchmark::State& state) {
    const std::string& path = DeepPath();
    for (auto _ : state) {
        if (!IsFileExist(path, true)) {
            state.SkipWithError("the folder is gone");
        }
    }
}

void ExistExactlyPeer(benchmark::State& state) {
    const std::string& path = DeepPath();
    std::array<char, PATH_MAX> resolved;
    for (auto _ : state) {
        if (realpath(path.c_str(), resolved.data()) == nullptr) {
            state.SkipWithError("the folder is gone");
        }
    }
}

BENCHMARK(ExistExactly);
BENCHMARK(ExistExactlyPeer);

}  // namespace
