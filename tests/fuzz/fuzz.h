// What the fuzz targets share. Each is one source file; a property that does not hold ends the run,
// and so reports the input.
#pragma once

#include <cassert>
#include <cstdint>
#include <string>

#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

/// What a target defines: checks its properties on one input.
void Check(const std::string& input);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    Check(std::string(data, data + size));
    return 0;
}
