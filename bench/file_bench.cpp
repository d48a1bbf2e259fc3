// The exact existence test, against the C library's resolution of the same path.

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <string>

#include "lib/file/file-op.h"

namespace {

/// A folder of a temporary one, some levels below the root; it goes with the process.
class DeepFolder {
public:
    explicit DeepFolder(long levels) {
        // As stored: the exact test is to succeed.
        const auto temporary = std::filesystem::canonical(std::filesystem::temp_directory_path());
        top_ = (temporary / "file_bench.XXXXXX").string();
        if (mkdtemp(top_.data()) == nullptr) {
            std::perror("mkdtemp");
            std::exit(1);
        }
        path_ = top_;
        auto level = std::count(top_.begin(), top_.end(), '/');
        if (level > levels) {
            static_cast<void>(std::fprintf(
                stderr, "file_bench: TMPDIR must be at most %ld levels deep\n", levels - 1));
            std::exit(1);
        }
        for (; level < levels; ++level) {
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

const std::string& PathOfLevels(long levels) {
    // Temporary folders are deeper than that on some systems; this one is on all of them, and no
    // link.
    static const std::string two_levels = "/usr/bin";
    static const DeepFolder four_levels(4);
    static const DeepFolder eight_levels(8);
    return levels == 2 ? two_levels : levels == 4 ? four_levels.path() : eight_levels.path();
}

void ExistExactly(benchmark::State& state) {
    const std::string& path = PathOfLevels(state.range(0));
    for (auto _ : state) {
        if (!IsFileExist(path, true)) {
            state.SkipWithError("the folder is gone");
        }
    }
}

void ExistExactlyPeer(benchmark::State& state) {
    const std::string& path = PathOfLevels(state.range(0));
    std::array<char, PATH_MAX> resolved;
    for (auto _ : state) {
        if (realpath(path.c_str(), resolved.data()) == nullptr) {
            state.SkipWithError("the folder is gone");
        }
    }
}

BENCHMARK(ExistExactly)->Arg(2)->Arg(4)->Arg(8);
BENCHMARK(ExistExactlyPeer)->Arg(2)->Arg(4)->Arg(8);

}  // namespace
