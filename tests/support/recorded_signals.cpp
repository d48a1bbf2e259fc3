#include "tests/support/recorded_signals.h"

#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

RecordedSignals::RecordedSignals(Answer answer_to_kill) : answer(std::move(answer_to_kill)) {
    active = this;
}

RecordedSignals::~RecordedSignals() {
    active = nullptr;
}

extern "C" int kill(pid_t pid, int signal) noexcept {
    RecordedSignals* const active = RecordedSignals::active;
    if (active == nullptr) {
        if (pid <= 0) {
            std::abort();
        }
        return static_cast<int>(syscall(SYS_kill, pid, signal));
    }
    active->calls.push_back("kill " + std::to_string(pid) + " " + std::to_string(signal));
    errno = active->answer(pid, signal);
    return errno == 0 ? 0 : -1;
}

extern "C" unsigned sleep(unsigned seconds) {
    RecordedSignals::active->calls.push_back("sleep " + std::to_string(seconds));
    return 0;
}
