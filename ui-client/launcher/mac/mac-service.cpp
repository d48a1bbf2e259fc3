#include "mac/mac-service.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <system_error>
#include <thread>

#include "lib/config.h"
#include "lib/file/file-op.h"
#include "lib/log.h"
#include "lib/platform/platform.h"
#include "lib/platform/process.h"

#define LOG_SOURCE "mac/mac-service"

namespace {

using std::chrono::system_clock;

const std::string kLogComponent = "service_debug";

constexpr int kDefaultTimeout = 10000;
constexpr int kStopRounds = 15;
constexpr std::chrono::seconds kRound(1);
constexpr std::chrono::milliseconds kPauseForParent(5);

// Volumes keep the times of files in units of up to two seconds, and here whole seconds are compared.
constexpr std::chrono::seconds kFileTimeTolerance(2);

constexpr const char* kRegistrationTool =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
    "lsregister";
constexpr const char* kOpenTool = "/usr/bin/open";

// The leading decimal number of a text, cut to 32 bits; 0 where there is none.
int32_t LeadingNumber(const std::string& text) {
    return static_cast<int32_t>(std::strtol(text.c_str(), nullptr, 10));
}

// Reads the client's process id. None when there is nothing to stop.
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
    // The number is checked after it was cut to 32 bits, which may have made 0 or -1 of a large one.
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

// Whether the process may have written the pid file: it was started before the file was last changed,
// or it runs a program of the folder. A pid file outlives its client, after a crash or a restart of the
// system, and then its number may belong to any program of the person.
//
// The second condition holds where the clock was set forward while the client ran, which makes its start
// look later than the file. The first one holds for a client that is run by an interpreter. Where the
// system tells neither, the process counts as the client.
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

bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

// Asks the process to end. Returns whether to wait for it: false when it is already gone.
bool SendSigterm(pid_t pid) {
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

void SleepSecond() {
    unsigned seconds = 1;
    while (seconds > 0) {
        seconds = sleep(seconds);  // A signal that arrives meanwhile ends a sleep early.
    }
}

// Probes the process and waits for its end, together for at most a second. Returns whether it is gone.
bool IsGoneWithinRound(pid_t pid, ProcessWatch& watch) {
    if (IsGone(pid)) {
        return true;
    }
    if (!watch.IsWatching()) {
        SleepSecond();
        return false;
    }
    const auto end_of_round = std::chrono::steady_clock::now() + kRound;
    if (!watch.WaitForEnd(kRound)) {
        std::this_thread::sleep_until(end_of_round);  // The wait may have failed.
        return false;
    }
    // It has ended, and answers the probe until its parent has waited for it. That may take a moment,
    // or for ever.
    while (!IsGone(pid)) {
        if (std::chrono::steady_clock::now() >= end_of_round) {
            return false;
        }
        std::this_thread::sleep_for(kPauseForParent);
    }
    return true;
}

bool IsGoneInTime(pid_t pid, ProcessWatch& watch) {
    for (int round = 0; round < kStopRounds; ++round) {
        if (IsGoneWithinRound(pid, watch)) {
            return true;
        }
    }
    return false;
}

// Whether the number still names the process that got SIGTERM at that time. A number is not given away
// before its process has ended.
bool IsStillSameProcess(pid_t pid, ProcessWatch& watch, system_clock::time_point sigterm_time) {
    return watch.IsWatching()
               ? !watch.HasEnded()
               : PlatformInspectProcess(pid).start_time.value_or(sigterm_time) <= sigterm_time;
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
    const std::string pid_file = (folder + QLatin1String("/ui.pid")).toStdString();
    const std::optional<pid_t> pid = ReadPid(pid_file);
    if (!pid.has_value()) {
        return;
    }
    ProcessWatch watch(*pid);
    const auto sigterm_time = system_clock::now();
    if (!IsClient(*pid, folder.toStdString(), pid_file) || !SendSigterm(*pid) ||
        IsGoneInTime(*pid, watch)) {
        return;
    }
    if (IsStillSameProcess(*pid, watch, sigterm_time)) {
        static_cast<void>(kill(*pid, SIGKILL));  // The installation goes on whatever comes of it.
    }
}

bool MacService::PerUserBinPathExist() {
    const std::string path = RegisteredPath("user_corvimo_ui_path").toStdString();
    return access(path.c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin() {
    const std::string bundle = RegisteredPath("user_corvimo_app_path").toStdString();
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
