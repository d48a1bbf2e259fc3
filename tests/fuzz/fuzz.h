// What the fuzz targets share. Each is one source file.
#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "lib/platform/unique_fd.h"

/// Ends the run, and so reports the input, when a property does not hold.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A file that is in memory alone and has a path all the same.
class MemoryFile {
public:
    explicit MemoryFile(const std::string& content) : fd_(memfd_create("input", MFD_CLOEXEC)) {
        const ssize_t written = write(fd_.Get(), content.data(), content.size());
        Require(written == static_cast<ssize_t>(content.size()));
    }
    std::string path() const { return "/proc/self/fd/" + std::to_string(fd_.Get()); }

private:
    UniqueFd fd_;
};

/// What a target defines: checks its properties on one input.
void Check(const std::string& input);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    Check(std::string(data, data + size));
    return 0;
}
