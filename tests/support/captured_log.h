// The process-wide logger, taken over for one test.
#pragma once

#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "lib/log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

/// Each as "LEVEL source: message". A line that is no well-formed record is given as it stands.
using Records = std::vector<std::string>;

/// Sends every record up to NOTE to a file of its own, from its construction on, and gives the
/// logger back to standard error at its end.
class CapturedLog {
public:
    CapturedLog() {
        WriteFile(folder_ / "levels", "service_debug=5\nextractor_debug=5\nfile_op_debug=5\n");
        Logger::Initialize(Logger::TYPE_FILE, folder_ / "log", folder_ / "levels", 2,
                           Logger::SCOPE_PROCESS);
    }
    ~CapturedLog() { Logger::Initialize(Logger::TYPE_STDERR, "", "", 0, Logger::SCOPE_NONE); }

    /// The records so far.
    Records All() const {
        static const std::regex prefix(R"(^\S+ \([ \d]+:[ \d]+\) \[(\w+)\] (\S+)\(\d+\): )");
        Records records;
        std::istringstream lines(ReadFile(folder_ / "log"));
        for (std::string line; std::getline(lines, line);) {
            records.push_back(std::regex_replace(line, prefix, "$1 $2: "));
        }
        return records;
    }

private:
    TempDir folder_;
};
