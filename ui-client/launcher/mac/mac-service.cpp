#include "mac/mac-service.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <thread>

#include "lib/config.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/error_text.h"
#include "lib/platform/platform.h"
#include "lib/platform/process.h"
#include "registered_path.h"

#define LOG_SOURCE "mac/mac-service"

namespace {

using std::chrono::system_clock;

const std::string kLogComponent = "service_debug";

constexpr int kDefaultTimeout = 10000;

// How long the client may take to end after SIGTERM: 15 rounds of one second, each with a probe.
constexpr int kStopRounds = 15;
constexpr std::chrono::seconds kRound(1);

// The pause between two probes of a process that has ended but still has its number.
constexpr std::chrono::milliseconds kZombiePause(5);

// The tolerance when the time of a file is compared with the start of a process. FAT volumes store
// times in units of two seconds, and `ModificationTime` drops fractions of a second.
constexpr std::chrono::seconds kFileTimeTolerance(2);

constexpr const char* kRegistrationTool =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
    "lsregister";
constexpr const char* kOpenTool = "/usr/bin/open";

// Returns the decimal number at the beginning of a text, cut to 32 bits, or 0 if there is none.
int32_t LeadingNumber(const std::string& text) {
    return static_cast<int32_t>(std::strtol(text.c_str(), nullptr, 10));
}

// Reads the client's process id from its pid file. Returns nothing if the file names no process.
std::optional<pid_t> ReadPid(const std::string& pid_file) {
    if (!IsFileExist(pid_file, false)) {
        LOG_MSG(DEBUG, "pid file '%s' does not exist, no need to terminate", pid_file.c_str());
        return std::nullopt;
    }
    Config config;
    if (config.read(pid_file) < 0) {
        LOG_MSG(NOTE, "Failed to read pid file '%s', not exist ?", pid_file.c_str());
        return std::nullopt;
    }
    const std::string value = config.entries["pid"];
    if (value.empty()) {
        return std::nullopt;
    }
    const pid_t pid = LeadingNumber(value);
    // kill() would send a signal to a whole process group for 0 or a negative number. Cutting a
    // large number to 32 bits can give such a number, so this check comes after it.
    if (pid <= 0) {
        LOG_MSG(NOTE, "pid '%s' in '%s' names no process, nothing to terminate", value.c_str(),
                pid_file.c_str());
        return std::nullopt;
    }
    return pid;
}

std::optional<system_clock::time_point> ModificationTime(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return system_clock::from_time_t(status.st_mtime);
}

bool LiesIn(const std::string& folder, const std::string& executable) {
    std::string stored = folder;
    return FSGetRealPath(stored) == 0 && FSIsParentFolder(stored, executable);
}

// Returns whether a process may be the client that has written the pid file. The file stays behind
// when the client crashes or the system restarts. The number in it may then belong to any other
// program.
//
// A process may be the client on either of two conditions:
//  - It was started before the file was last changed. This also holds for a client that is a
//    script, whose executable is the interpreter.
//  - Its executable lies in the folder of the file. This also holds when the clock was set forward
//    while the client ran, which makes its start look later than the change of the file.
// If the system tells neither the time nor the executable, the process counts as the client.
bool MayBeClient(const PlatformProcess& process, const std::string& folder,
                 const std::string& pid_file) {
    const auto written = ModificationTime(pid_file);
    const bool is_time_known = process.start_time.has_value() && written.has_value();
    if (!is_time_known && process.executable.empty()) {
        return true;
    }
    const bool is_old_enough =
        is_time_known && *process.start_time <= *written + kFileTimeTolerance;
    return is_old_enough || LiesIn(folder, process.executable);
}

// Returns whether a process may be the client. Logs which program it is if not.
bool IsClient(pid_t pid, const std::string& folder, const std::string& pid_file) {
    const PlatformProcess process = PlatformInspectProcess(pid);
    if (pid != getpid() && MayBeClient(process, folder, pid_file)) {
        return true;
    }
    const std::string& program = process.executable;
    LOG_MSG(NOTE, "pid %d in '%s' belongs to '%s', not to the client, nothing to terminate", pid,
            pid_file.c_str(), program.empty() ? "another program" : program.c_str());
    return false;
}

// Sends SIGTERM. Returns 0 or the error number: ESRCH if there is no such process. Logs any other
// error.
int SendSigterm(pid_t pid) {
    if (kill(pid, SIGTERM) == 0) {
        return 0;
    }
    const int error = errno;
    if (error != ESRCH) {
        LOG_MSG(ERROR, "kill: %s (%d)", PlatformErrorText(error).c_str(), error);
    }
    return error;
}

// Probes a process. Returns whether it is gone: it has ended, and its parent has waited for it.
bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

void SleepSecond() {
    unsigned seconds = 1;
    while (seconds > 0) {
        seconds = sleep(seconds);  // A signal ends a sleep early.
    }
}

// Waits at most one second until a process is gone. Returns whether it is gone.
bool WaitOneRound(pid_t pid, ProcessWatch& watch) {
    if (IsGone(pid)) {
        return true;
    }
    if (!watch.IsWatching()) {
        SleepSecond();
        return false;
    }
    const auto end_of_round = std::chrono::steady_clock::now() + kRound;
    if (!watch.WaitForEnd(kRound)) {
        std::this_thread::sleep_until(end_of_round);  // A wait that fails returns early.
        return false;
    }
    // The process has ended. It stays a zombie until its parent waits for it, maybe for ever.
    while (!IsGone(pid)) {
        if (std::chrono::steady_clock::now() >= end_of_round) {
            return false;
        }
        std::this_thread::sleep_for(kZombiePause);
    }
    return true;
}

// Waits at most `kStopRounds` seconds until a process is gone. Returns whether it is gone.
bool WaitUntilGone(pid_t pid, ProcessWatch& watch) {
    for (int round = 0; round < kStopRounds; ++round) {
        if (WaitOneRound(pid, watch)) {
            return true;
        }
    }
    return false;
}

// Returns whether the number still names the process that was inspected at that time. The system
// gives a number to another process only after the first one has ended.
bool IsStillSameProcess(pid_t pid, ProcessWatch& watch, system_clock::time_point inspection_time) {
    if (watch.IsWatching()) {
        return !watch.HasEnded();
    }
    const auto start_time = PlatformInspectProcess(pid).start_time;
    return !start_time.has_value() || *start_time <= inspection_time;
}

}  // namespace

MacService::MacService() {
    timeout = kDefaultTimeout;
    user_app_path = RegisteredPathUtf8("user_corvimo_app_path");
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
    const std::string pid_file = (folder + QLatin1String("/ui.pid")).toStdString();
    const std::optional<pid_t> pid = ReadPid(pid_file);
    if (!pid.has_value()) {
        return;
    }
    // The watch is made before the inspection. So it cannot watch a process that gets the number
    // after the inspection.
    ProcessWatch watch(*pid);
    const auto inspection_time = system_clock::now();
    if (!IsClient(*pid, folder.toStdString(), pid_file)) {
        return;
    }
    if (SendSigterm(*pid) == ESRCH || WaitUntilGone(*pid, watch)) {
        return;
    }
    if (IsStillSameProcess(*pid, watch, inspection_time)) {
        static_cast<void>(kill(*pid, SIGKILL));  // The installation goes on whether it ends or not.
    }
}

bool MacService::PerUserBinPathExist() {
    const std::string path = RegisteredPathUtf8("user_corvimo_ui_path");
    return access(path.c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin() {
    const std::string bundle = RegisteredPathUtf8("user_corvimo_app_path");
    const pid_t registration =
        PlatformStartTool(PlatformToolPath(kRegistrationTool), {"-u", bundle}, false);
    if (registration < 0 || PlatformWaitForTool(registration) != 0) {
        LOG_MSG(ERROR, "Cannot unregister bundle, %s", bundle.c_str());
    }
    return PlatformStartTool(PlatformToolPath(kOpenTool), {"-n", "-a", bundle}, true) < 0 ? -1 : 0;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}
