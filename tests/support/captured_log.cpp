#include "tests/support/captured_log.h"

#include <regex>
#include <sstream>

#include "tests/support/files.h"

Records ReadRecords(const std::string& log_file) {
    static const std::regex record(
        R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d \([ \d]{5,}:[ \d]{5}\) \[(\w+)\] (\S+)\(\d+\): (.*))");
    Records records;
    std::istringstream lines(ReadFile(log_file));
    for (std::string line; std::getline(lines, line);) {
        records.push_back(std::regex_replace(line, record, "$1 $2: $3"));
    }
    return records;
}

CapturedLog::CapturedLog(Logger::Level most_verbose) {
    std::string levels;
    for (const char* component : {"launcher", "service", "extractor", "file_op"}) {
        levels += std::string(component) + "_debug=" + std::to_string(most_verbose) + "\n";
    }
    WriteFile(folder_ / "levels", levels);
    Logger::Initialize(Logger::TYPE_FILE, folder_ / "log", folder_ / "levels", 2,
                       Logger::SCOPE_PROCESS);
}

CapturedLog::~CapturedLog() {
    Logger::Initialize(Logger::TYPE_STDERR, "", "", 0, Logger::SCOPE_NONE);
}

Records CapturedLog::Without(const std::string& text) const {
    Records rest;
    for (const std::string& record : All()) {
        if (record.find(text) == std::string::npos) {
            rest.push_back(record);
        }
    }
    return rest;
}
