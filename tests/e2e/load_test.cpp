// Many launchers, at once and one after another.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <regex>
#include <sstream>

#include "lib/platform/unique_fd.h"
#include "tests/e2e/scene.h"
#include "tests/support/files.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

TEST(Load, OneOfManyLaunchersInstalls) {
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("101");
    WriteFile(scene.Bundle("PlatformTools/usr/bin/open"), "#!/bin/sh\n");
    // To be stopped first, which takes the second in which all of them start.
    scene.StartClient(scene / ".Corvimo/Corvimo.app/Contents/MacOS/corvimo-ui", scene / ".Corvimo");
    std::vector<pid_t> launchers(20);
    std::generate(launchers.begin(), launchers.end(), [&scene] { return scene.Start(); });
    std::map<pid_t, int> statuses;
    int status = 0;
    for (pid_t ended; (ended = waitpid(-1, &status, 0)) > 0;) {
        statuses[ended] = status;
    }
    for (const pid_t launcher : launchers) {
        EXPECT_EQ(0, statuses.at(launcher));
    }
    const std::regex record(R"([\dT:-]{19} \( *\d+: *\d+\) \[[A-Z]+\] \S+\(\d+\): .+)");
    std::istringstream lines(ReadFile(scene / ".Corvimo/log/launcher.log"));
    for (std::string line; std::getline(lines, line);) {
        EXPECT_TRUE(std::regex_match(line, record)) << line;
    }
    const std::vector<std::string> log = scene.Log();
    EXPECT_EQ(1, std::count(log.begin(), log.end(),
                            "INFO cloud-service: user installation is ready, removing backup app"));
    EXPECT_EQ("file 644 101",
              Snapshot(scene / ".Corvimo")["Corvimo.app/Contents/Resources/größe.txt"]);
}

// With CORVIMO_WHOLE_MATRIX set, a thousand times.
TEST(Load, RunsWithoutUpgradeLeaveNothingBehind) {
    constexpr std::size_t kFullLog = 5242880;
    const int count = std::getenv("CORVIMO_WHOLE_MATRIX") != nullptr ? 1000 : 7 * CORVIMO_TRIES;
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("100");
    WriteFile(scene.Bundle("PlatformTools/usr/bin/open"),
              "#!/bin/sh\nls -l /proc/$$/fd >>\"$HOME/.Corvimo/log/descriptors\"\n");
    fs::create_directory(scene / "tmp");
    fs::permissions(scene / "tmp", fs::perms::owner_all);
    scene.environment["TMPDIR"] = scene.environment["XDG_RUNTIME_DIR"] = scene / "tmp";
    ASSERT_EQ(0, scene.Run());
    const auto names = [&scene] {
        return std::vector{NamesIn(scene / "."), NamesIn(scene / ".Corvimo"),
                           NamesIn(scene / "tmp")};
    };
    const auto before = names();
    const std::string log = scene / ".Corvimo/log/launcher.log";
    WriteFile(log, std::string(kFullLog, '\n'));
    for (int i = 0; i < 49; ++i) {
        WriteFile(log + "_" + std::to_string(i), "");
    }
    for (int i = 0; i < count; ++i) {
        ASSERT_EQ(0, scene.Run());
    }
    while (waitpid(-1, nullptr, 0) >
           0) {  // What a run has left behind would be a child of this one.
    }
    EXPECT_EQ(before, names());
    const UniqueFd lock(open((scene / ".Corvimo/launcher.lock").c_str(), O_RDWR | O_CLOEXEC));
    EXPECT_EQ(0, flock(lock.Get(), LOCK_EX | LOCK_NB));
    EXPECT_EQ(50U + 1U, NamesIn(scene / ".Corvimo/log").size());
    EXPECT_EQ(kFullLog, ReadFile(log + "_0").find_first_not_of('\n')) << "no rotation";
    // The launcher's lock, log, wake-ups and package, as the program that it starts would show them.
    EXPECT_FALSE(std::regex_search(ReadFile(scene / ".Corvimo/log/descriptors"),
                                   std::regex(R"(-> \S*(launcher\.|eventfd|\.cpk))")));
    std::cout << "figure: runs_without_upgrade: " << count << " of " << count << "\n";
}
