#include "tests/e2e/scene.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "tests/support/files.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

namespace {

constexpr unsigned kNobody = 65534;
constexpr int kPolls = 1000;

const char* const kClient = R"(#!/bin/sh
trap 'exit 0' TERM
build=$(sed -n 's/^build_version=//p' "${0%/*}/../Resources/INFO")
echo "pid=$$" >"${PID_FOLDER:-$HOME/.Corvimo}/ui.pid"
echo "$build $$" >>"$HOME/started"
while :; do sleep 0.05; done
)";

const char* const kPropertyList =
    "<plist><dict><key>CFBundleExecutable</key>\n<string>corvimo-ui</string></dict></plist>\n";

std::string InfoText(const std::string& build) {
    return "[Version]\nbuild_version=" + build + "\n";
}

// One start of a client, as it has noted it itself.
struct StartNote {
    std::string build;
    pid_t pid = 0;
};

std::vector<StartNote> StartNotes(const std::string& file) {
    std::vector<StartNote> notes;
    if (fs::exists(file)) {
        std::istringstream lines(ReadFile(file));
        for (StartNote note; lines >> note.build >> note.pid;) {
            notes.push_back(note);
        }
    }
    return notes;
}

// The sanitizers' settings and what starts any program; nothing that tells of a language or a
// screen.
std::vector<std::string> BaseEnvironment() {
    std::vector<std::string> result = {"QT_QPA_PLATFORM=offscreen"};
    for (const char* name :
         {"PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS"}) {
        const char* const value = std::getenv(name);
        if (value != nullptr) {
            result.push_back(std::string(name) + "=" + value);
        }
    }
    return result;
}

}  // namespace

Scene::Scene(const std::string& home_name, const std::string& home_link)
    : home_(folder_ / home_name),
      told_home_(home_link.empty() ? home_ : folder_ / home_link),
      bundle_(folder_ / "Launcher.app") {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    chmod(folder_.path().c_str(), 0755);
    fs::create_directory(home_);
    if (!home_link.empty()) {
        fs::create_directory_symlink(home_name, told_home_);
    }
    fs::copy(CORVIMO_BUNDLE, bundle_, fs::copy_options::recursive);
    WriteDeep(Bundle("Resources/log/launcher.debug"),
              "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=4\n");
}

Scene::~Scene() {
    for (const StartNote& note : StartNotes(*this / "started")) {
        // Only a child of this process is one of its clients; a number that was reused is not.
        if (waitpid(note.pid, nullptr, WNOHANG) == 0) {
            kill(note.pid, SIGKILL);
            waitpid(note.pid, nullptr, 0);
        }
    }
}

void Scene::CarryClient(const std::string& build,
                        const std::function<void(ArchiveBuilder&)>& add) const {
    ArchiveBuilder package(Package(), ArchiveBuilder::ZIP);
    package.File("Contents/Info.plist", kPropertyList)
        .File("Contents/MacOS/corvimo-ui", kClient, 0755)
        .File(
            "Contents/Resources/gr\xC3\xB6\xC3\x9F"
            "e.txt",
            build)
        .SymbolicLink("Contents/current", "Resources")
        .Folder("Contents/empty/");
    if (add) {
        add(package);
    }
    package.File("Contents/Resources/INFO", InfoText(build)).Finish();
    WriteFile(Bundle("Resources/INFO"), InfoText(build));
}

void Scene::InstallClient(const std::string& build) const {
    const std::string app = *this / ".Corvimo/Corvimo.app/Contents";
    WriteDeep(app + "/MacOS/corvimo-ui", kClient);
    fs::permissions(app + "/MacOS/corvimo-ui", fs::perms(0755));
    WriteDeep(app + "/Info.plist", kPropertyList);
    WriteDeep(app + "/Resources/old.txt", build);
    WriteDeep(app + "/Resources/INFO", InfoText(build));
    WriteDeep(*this / ".Corvimo/data/file", "the person's data");
}

pid_t Scene::StartClient(const std::string& executable, const std::string& folder) {
    const std::size_t before = StartNotes(*this / "started").size();
    environment["PID_FOLDER"] = folder;
    const pid_t client = Spawn(executable);
    environment.erase("PID_FOLDER");
    if (StartedBuilds(before + 1).size() != before + 1) {
        throw std::runtime_error("the client has not started");
    }
    return client;
}

int Scene::Run() {
    return WaitFor(Start());
}

pid_t Scene::Start() {
    return Spawn(Bundle("MacOS/launcher"));
}

int Scene::WaitFor(pid_t launcher) {
    int status = 0;
    pid_t ended;
    do {
        ended = waitpid(-1, &status, 0);
    } while (ended > 0 && ended != launcher);
    return ended == launcher && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

pid_t Scene::Spawn(const std::string& program) const {
    std::vector<std::string> variables = BaseEnvironment();
    variables.push_back("HOME=" + told_home_);
    for (const auto& [name, value] : environment) {
        variables.push_back(name + "=" + value);
    }
    std::vector<char*> pointers;
    for (std::string& variable : variables) {
        pointers.push_back(variable.data());
    }
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (as_ordinary_user && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
            _exit(126);
        }
        execle(program.c_str(), program.c_str(), static_cast<char*>(nullptr), pointers.data());
        _exit(127);
    }
    return child;
}

std::vector<std::string> Scene::StartedBuilds(std::size_t count) const {
    std::vector<StartNote> notes;
    for (int i = 0; i < kPolls && notes.size() < count; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        notes = StartNotes(*this / "started");
    }
    std::vector<std::string> builds;
    for (const StartNote& note : notes) {
        builds.push_back(note.build);
    }
    return builds;
}

Records Scene::Log() const {
    return ReadRecords(*this / ".Corvimo/log/launcher.log");
}

bool Scene::Logged(const std::string& record) const {
    const Records records = Log();
    return std::find(records.begin(), records.end(), record) != records.end();
}
