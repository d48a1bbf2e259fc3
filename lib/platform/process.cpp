#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "lib/platform/process.h"
#include "lib/platform/retry.h"

// macOS declares it in no header.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace {

constexpr const char* kEmptyInput = "/dev/null";

// Owns the attributes and the file actions for posix_spawn. Each step returns whether it succeeded.
class SpawnSettings {
public:
    SpawnSettings()
        : has_attributes_(posix_spawnattr_init(&attributes_) == 0),
          has_actions_(posix_spawn_file_actions_init(&actions_) == 0) {}
    ~SpawnSettings() {
        if (has_attributes_) {
            posix_spawnattr_destroy(&attributes_);
        }
        if (has_actions_) {
            posix_spawn_file_actions_destroy(&actions_);
        }
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    bool Make(bool in_own_session) {
        return has_attributes_ && has_actions_ && SetSignals() && SetInput() &&
               SetFlags(in_own_session);
    }

    const posix_spawnattr_t* Attributes() const { return &attributes_; }
    const posix_spawn_file_actions_t* Actions() const { return &actions_; }

private:
    bool SetSignals() {
        sigset_t all;
        sigset_t none;
        return sigfillset(&all) == 0 && sigemptyset(&none) == 0 &&
               posix_spawnattr_setsigdefault(&attributes_, &all) == 0 &&
               posix_spawnattr_setsigmask(&attributes_, &none) == 0;
    }

    bool SetInput() {
        // Leaves the input unchanged if the file is missing, since posix_spawn would fail then.
        return access(kEmptyInput, R_OK) != 0 ||
               posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, kEmptyInput, O_RDONLY,
                                                0) == 0;
    }

    bool SetFlags(bool in_own_session) {
        const int flags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK |
                          (in_own_session ? POSIX_SPAWN_SETSID : 0);
        return posix_spawnattr_setflags(&attributes_, static_cast<short>(flags)) == 0;
    }

    posix_spawnattr_t attributes_;
    posix_spawn_file_actions_t actions_;
    const bool has_attributes_;
    const bool has_actions_;
};

}  // namespace

// Not by way of QProcess, because Qt 5.15 allocates memory between fork and exec. If another thread
// holds a lock of the allocator at that moment, the child waits forever. If fork fails with EAGAIN,
// QProcess::execute waits forever, too. posix_spawn is also faster, because it does not copy the
// page tables of this process.
pid_t PlatformStartTool(const std::string& tool, const std::vector<std::string>& arguments,
                        bool in_own_session) {
    // The casts are safe because posix_spawn does not change the arguments.
    std::vector<char*> argv = {const_cast<char*>(tool.c_str())};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    SpawnSettings settings;
    pid_t pid = -1;
    const bool is_started = settings.Make(in_own_session) &&
                            posix_spawn(&pid, tool.c_str(), settings.Actions(),
                                        settings.Attributes(), argv.data(), environ) == 0;
    return is_started ? pid : -1;
}

int PlatformWaitForTool(pid_t tool) {
    int status = 0;
    const pid_t ended = RetryInterrupted([&] { return waitpid(tool, &status, 0); });
    return ended == tool && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool ProcessWatch::WaitForEnd(std::chrono::milliseconds limit) {
    using std::chrono::steady_clock;
    const auto end = steady_clock::now() + limit;
    auto rest = limit;
    while (IsWatching() && !has_ended_) {
        const int count = AwaitEvent(rest);
        if (count >= 0) {
            has_ended_ = count > 0;
            break;
        }
        if (errno != EINTR) {
            fd_.Close();
        }
        rest = std::max(
            std::chrono::milliseconds(0),
            std::chrono::duration_cast<std::chrono::milliseconds>(end - steady_clock::now()));
    }
    return has_ended_;
}
