// The cost of a record that is written, against spdlog writing the same text to a file of its own,
// with its basic sink and with the one that rotates; and of a record that is suppressed, against
// one lookup in a map of thresholds.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "lib/log.h"

#define LOG_SOURCE "log_bench"

namespace {

const std::string kLogComponent = "service_debug";

constexpr const char* kFrom = "/home/person/.Corvimo/Corvimo.app/Contents/Resources/a.png";
constexpr const char* kTo = "/home/person/.Corvimo/Corvimo.app_tmp/Contents/Resources/a.png";

// As the launcher rotates its log.
constexpr int kFilesKept = 50;
constexpr std::size_t kRotationSize = 5 << 20;

/// A folder that goes with the process.
class ScratchFolder {
public:
    ScratchFolder() : path_(std::filesystem::temp_directory_path() / "log_bench.XXXXXX") {
        if (mkdtemp(path_.data()) == nullptr) {
            std::perror("mkdtemp");
            std::exit(1);
        }
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

const ScratchFolder& Scratch() {
    static const ScratchFolder folder;
    return folder;
}

/// Starts the product's logger with thresholds in its file's own syntax.
void StartLogger(const std::string& thresholds) {
    std::ofstream(Scratch() / "levels") << thresholds;
    Logger::Initialize(Logger::TYPE_FILE, Scratch() / "product.log", Scratch() / "levels",
                       kFilesKept, Logger::SCOPE_PROCESS);
}

void StartWriting(const benchmark::State& /*state*/) {
    StartLogger("service_debug=7\n");
}

void StartSuppressing(const benchmark::State& /*state*/) {
    StartLogger("service_debug=4\nextractor_debug=4\nfile_op_debug=4\nlauncher_debug=4\n");
}

std::shared_ptr<spdlog::logger> peer;

void StartPeer(std::shared_ptr<spdlog::logger> logger) {
    peer = std::move(logger);
    peer->set_pattern("%Y-%m-%dT%H:%M:%S (%5P:%5t) [%l] %v");
    peer->flush_on(spdlog::level::trace);
}

void StartBasicPeer(const benchmark::State& /*state*/) {
    spdlog::drop_all();
    StartPeer(spdlog::basic_logger_mt("peer", Scratch() / "peer.log", true));
}

void StartRotatingPeer(const benchmark::State& /*state*/) {
    spdlog::drop_all();
    StartPeer(spdlog::rotating_logger_mt("peer", Scratch() / "rotated.log", kRotationSize,
                                         kFilesKept - 1));
}

void WriteRecord(benchmark::State& state) {
    for (auto _ : state) {
        LOG_MSG(INFO, "copy from '%s' to '%s'", kFrom, kTo);
    }
    state.SetItemsProcessed(state.iterations());
}

void WriteRecordPeer(benchmark::State& state) {
    for (auto _ : state) {
        peer->info(LOG_SOURCE "({}): copy from '{}' to '{}'", __LINE__, kFrom, kTo);
    }
    state.SetItemsProcessed(state.iterations());
}

void WriteRecordRotatingPeer(benchmark::State& state) {
    WriteRecordPeer(state);
}

void SuppressRecord(benchmark::State& state) {
    const std::string path = "/home/person/.Corvimo/Corvimo.app";
    for (auto _ : state) {
        LOG_MSG(DEBUG, "Input file path = [%s].", path.c_str());
    }
}

void SuppressRecordPeer(benchmark::State& state) {
    const std::map<std::string, int> thresholds = {{"default_component", 4},
                                                   {"service_debug", 4},
                                                   {"extractor_debug", 4},
                                                   {"file_op_debug", 4},
                                                   {"launcher_debug", 4}};
    for (auto _ : state) {
        benchmark::DoNotOptimize(thresholds.find(kLogComponent)->second);
    }
}

BENCHMARK(WriteRecord)->Setup(StartWriting)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK(WriteRecordPeer)->Setup(StartBasicPeer)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK(WriteRecordRotatingPeer)->Setup(StartRotatingPeer)->Threads(1)->Threads(4)->UseRealTime();
BENCHMARK(SuppressRecord)->Setup(StartSuppressing);
BENCHMARK(SuppressRecordPeer);

}  // namespace
