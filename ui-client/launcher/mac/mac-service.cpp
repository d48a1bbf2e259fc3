#include "mac/mac-service.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <vector>

#include "lib/config.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "lib/platform/retry.h"

#define LOG_SOURCE "mac/mac-service"

// macOS declares it in no header.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace {

const std::string kLogComponent = "service_debug";

constexpr int kDefaultTimeout = 10000;
constexpr int kStopProbes = 15;
constexpr unsigned kSecondsBetweenProbes = 1;

constexpr const char* kRegistrationTool =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
    "lsregister";
constexpr const char* kOpenTool = "/usr/bin/open";

// Starts a tool, in a session of its own where asked for. Gives its process id, or -1 when it could not
// be started.
//
// Not QProcess: Qt 5.15 allocates memory between fork and exec, where a lock of the allocator that the
// dialog's thread held at that moment is never released again, and where the system has no room for
// another process it takes that for a start and waits without end. Nor does this copy the page tables
// of a process with fifty libraries.
pid_t StartTool(const std::string& tool, const std::vector<std::string>& arguments, bool detached) {
    std::vector<char*> argv = {const_cast<char*>(tool.c_str())};  // Nobody writes to them.
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    sigset_t ignored_here;
    static_cast<void>(sigemptyset(&ignored_here));
    for (const int signal : {SIGPIPE, SIGTERM, SIGHUP, SIGINT}) {
        static_cast<void>(sigaddset(&ignored_here, signal));
    }
    posix_spawnattr_t attributes;
    if (posix_spawnattr_init(&attributes) != 0) {
        return -1;
    }
    const int flags = POSIX_SPAWN_SETSIGDEF | (detached ? POSIX_SPAWN_SETSID : 0);
    pid_t pid = 0;
    const bool started =
        posix_spawnattr_setsigdefault(&attributes, &ignored_here) == 0 &&
        posix_spawnattr_setflags(&attributes, static_cast<short>(flags)) == 0 &&
        posix_spawn(&pid, tool.c_str(), nullptr, &attributes, argv.data(), environ) == 0;
    static_cast<void>(posix_spawnattr_destroy(&attributes));
    return started ? pid : -1;
}

// Waits for a tool to end. Whether it has succeeded.
bool HasSucceeded(pid_t tool) {
    int status = 0;
    const pid_t ended = RetryInterrupted([&] { return waitpid(tool, &status, 0); });
    return ended == tool && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// The leading decimal number of a text, cut to 32 bits; 0 where there is none.
int32_t LeadingNumber(const std::string& text) {
    return static_cast<int32_t>(std::strtol(text.c_str(), nullptr, 10));
}

// Reads the client's process id. False when there is nothing to stop.
bool ReadPid(const std::string& pid_file, pid_t& pid) {
    if (!IsFileExist(pid_file, false)) {
        LOG_MSG(DEBUG, "pid file '%s' does not exist, no need to terminate", pid_file.c_str());
        return false;
    }
    Config config;
    if (config.read(pid_file) < 0) {
        LOG_MSG(NOTE, "Failed to read pid file '%s', not exist ?", pid_file.c_str());
        return false;
    }
    const std::string value = config.entries["pid"];
    if (value.empty()) {
        return false;
    }
    pid = LeadingNumber(value);
    // Judged after the cut, which may have made 0 or -1 of a large number.
    if (pid <= 0) {
        LOG_MSG(NOTE, "pid '%s' in '%s' names no process, nothing to terminate", value.c_str(),
                pid_file.c_str());
        return false;
    }
    return true;
}

bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

void SleepSeconds(unsigned seconds) {
    while (seconds > 0) {
        seconds = sleep(seconds);  // A signal that arrives meanwhile ends a sleep early.
    }
}

// Asks the process to end. False when it is already gone.
bool Terminate(pid_t pid) {
    if (kill(pid, SIGTERM) == 0) {
        return true;
    }
    const int error = errno;
    if (error == ESRCH) {
        return false;
    }
    LOG_MSG(ERROR, "kill: %s (%d)", std::generic_category().message(error).c_str(), error);
    return true;
}

bool WaitUntilGone(pid_t pid) {
    for (int probe = 0; probe < kStopProbes; ++probe) {
        if (IsGone(pid)) {
            return true;
        }
        SleepSeconds(kSecondsBetweenProbes);
    }
    return false;
}

}  // namespace

MacService::MacService() {
    timeout = kDefaultTimeout;
    user_app_path = RegisteredPath("user_corvimo_app_path").toStdString();
}

MacService* MacService::GetInstace() {
    static MacService instance;
    return &instance;
}

void MacService::PreUpgrade() {
    Service::LoadTargetVersion();
    Service::LoadSourceVersion();
    LOG_MSG(DEBUG, "Source version: ('%s', '%s')", source_build_version.c_str(),
            source_icon_overlay_version.c_str());
    LOG_MSG(DEBUG, "Target version: ('%s', '%s')", target_build_version.c_str(),
            target_icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
    const int source = LeadingNumber(source_build_version);
    const int target = LeadingNumber(target_build_version);
    LOG_MSG(DEBUG, "source version = %d, target version = %d", source, target);
    return target > source || !PerUserBinPathExist();
}

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        LOG_MSG(DEBUG, "local appdata exist");
        StopService();
        return PrepareUserEnv();
    }
    const QString old_folder = RegisteredPath("user_lumaport_path");
    if (IsFileExist(QDir::toNativeSeparators(old_folder).toStdString(), true)) {
        StopServiceByPath(old_folder);
        MigrateService();
    }
    const int result = PrepareUserEnv();
    if (result == 0) {
        ForgetUnfinishedMove();
    }
    return result;
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0) {
        LOG_MSG(ERROR, "Failed to launch Lumaport UI");
    }
}

void MacService::StopService() {
    StopServiceByPath(RegisteredPath("user_corvimo_path"));
}

void MacService::StopServiceByPath(const QString& folder) {
    pid_t pid = 0;
    if (!ReadPid((folder + QLatin1String("/ui.pid")).toStdString(), pid) || !Terminate(pid)) {
        return;
    }
    if (!WaitUntilGone(pid)) {
        static_cast<void>(kill(pid, SIGKILL));  // The installation goes on whatever comes of it.
    }
}

bool MacService::PerUserBinPathExist() {
    const std::string path = RegisteredPath("user_corvimo_ui_path").toStdString();
    return access(path.c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin() {
    const std::string bundle = RegisteredPath("user_corvimo_app_path").toStdString();
    const pid_t registration =
        StartTool(PlatformToolPath(kRegistrationTool), {"-u", bundle}, false);
    if (registration < 0 || !HasSucceeded(registration)) {
        LOG_MSG(ERROR, "Cannot unregister bundle, %s", bundle.c_str());
    }
    return StartTool(PlatformToolPath(kOpenTool), {"-n", "-a", bundle}, true) < 0 ? -1 : 0;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}
