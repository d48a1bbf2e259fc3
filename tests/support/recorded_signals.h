// Stands between the code under test and the system's kill and sleep.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

/// While one exists, kill and sleep of this program only record themselves: no signal leaves it and
/// no time passes. Without one kill works, except that a pid of 0 or below ends the program, as does
/// a sleep: no test waits by the clock.
struct RecordedSignals {
    /// Answers a signal with 0 or an errno value.
    using Answer = std::function<int(pid_t pid, int signal)>;

    explicit RecordedSignals(Answer answer);
    ~RecordedSignals();

    const Answer answer;

    /// The calls so far, as "kill PID SIGNAL" and "sleep SECONDS".
    std::vector<std::string> calls;

    static inline RecordedSignals* active = nullptr;
};
