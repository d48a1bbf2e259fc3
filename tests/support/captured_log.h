// The process-wide logger, taken over for one test.
#pragma once

#include <string>
#include <vector>

#include "lib/log.h"
#include "tests/support/temp_dir.h"

/// Each as "LEVEL source: message". A line that is no well-formed record is given as it stands.
using Records = std::vector<std::string>;

/// The records in a log file.
Records ReadRecords(const std::string& log_file);

/// Sends every record up to a level to a file of its own, from its construction on, and gives the
/// logger back to standard error at its end.
class CapturedLog {
public:
    explicit CapturedLog(Logger::Level most_verbose = Logger::NOTE);
    ~CapturedLog();

    /// The records so far: all, or those that do not hold a text.
    Records All() const { return ReadRecords(folder_ / "log"); }
    Records Without(const std::string& text) const;

private:
    TempDir folder_;
};
