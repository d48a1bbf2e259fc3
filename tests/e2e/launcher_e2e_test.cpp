#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "tests/e2e/scene.h"
#include "tests/support/files.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;
using Builds = std::vector<std::string>;

namespace {

const char* const kApp = ".Corvimo/Corvimo.app";
const char* const kClientOfApp = ".Corvimo/Corvimo.app/Contents/MacOS/corvimo-ui";
const char* const kRegistrationTool =
    "PlatformTools/System/Library/Frameworks/CoreServices.framework/Frameworks/"
    "LaunchServices.framework/Support/lsregister";

bool IsRunning(pid_t pid) {
    return kill(pid, 0) == 0;
}

void ExpectInstalled(const Scene& scene, const std::string& build) {
    TreeSnapshot tree = Snapshot(scene / kApp);
    EXPECT_EQ(9u, tree.size());
    EXPECT_EQ("file 755 #", tree["Contents/MacOS/corvimo-ui"].substr(0, 10));
    EXPECT_EQ("file 644 " + build, tree["Contents/Resources/gr\xC3\xB6\xC3\x9F"
                                        "e.txt"]);
    EXPECT_EQ("link Resources", tree["Contents/current"]);
    EXPECT_EQ("dir", tree["Contents/empty"]);
}

void ExpectNoBackup(const Scene& scene) {
    for (const std::string& name : NamesIn(scene / ".Corvimo")) {
        EXPECT_EQ(std::string::npos, name.find("_tmp")) << name;
    }
}

// Runs a launcher whose package cannot be installed over the client of build 100.
void ExpectOldClientRestored(Scene& scene) {
    const TreeSnapshot before = Snapshot(scene / kApp);
    EXPECT_EQ(0, scene.Run());
    EXPECT_EQ(Builds{"100"}, scene.StartedBuilds(1));
    EXPECT_EQ(before, Snapshot(scene / kApp));
    ExpectNoBackup(scene);
    EXPECT_TRUE(scene.Logged("ERROR launcher: Failed to upgrade package"));
}

}  // namespace

TEST(Launcher, UpgradesARunningClientWhateverTheHomeIsCalled) {
    const struct {
        const char* home;
        const char* link;
        const char* language;
    } rows[] = {{"home", "", ""},
                {"it's a \"home\" with $pecial letters", "", "C"},
                {"gr\xC3\xB6\xC3\x9F"
                 "e \xE5\xAE\xB6",
                 "", ""},
                {"home", "way", "de_XX.UTF-8"}};
    for (const auto& row : rows) {
        Scene scene(row.home, row.link);
        scene.environment["LANG"] = row.language;
        scene.InstallClient("100");
        scene.CarryClient("101");
        const pid_t old_client = scene.StartClient(scene / kClientOfApp, scene / ".Corvimo");
        EXPECT_EQ(0, scene.Run()) << row.home;
        EXPECT_FALSE(IsRunning(old_client)) << row.home;
        EXPECT_EQ((Builds{"100", "101"}), scene.StartedBuilds(2)) << row.home;
        ExpectInstalled(scene, "101");
        ExpectNoBackup(scene);
        EXPECT_EQ("the person's data", ReadFile(scene / ".Corvimo/data/file"));
    }
}

TEST(Launcher, LogsTheRoadOfAnUpgrade) {
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("101");
    EXPECT_EQ(0, scene.Run());
    EXPECT_EQ(Builds{"101"}, scene.StartedBuilds(1));
    const std::string resources = scene.Bundle("Resources");
    EXPECT_EQ((Records{"INFO main: >>> user_lumaport_path = " + (scene / ".Lumaport"),
                       "INFO main: >>> user_lumaport_app_path = ",
                       "INFO main: >>> user_lumaport_resource_path = " +
                           (scene / ".Lumaport/Lumaport.app/Contents/Resources"),
                       "INFO main: >>> user_lumaport_data_path = ",
                       "INFO main: >>> user_lumaport_working_dir_path = ",
                       "INFO main: >>> user_lumaport_corvimo_ui_path = ",
                       "INFO main: >>> root_resource_path = " + resources,
                       "DEBUG launcher: running",
                       "INFO cloud-service: target_version = (, , 101, )",
                       "INFO cloud-service: source_version = (, , 100, )",
                       "DEBUG mac/mac-service: Source version: ('100', '')",
                       "DEBUG mac/mac-service: Target version: ('101', '')",
                       "DEBUG mac/mac-service: source version = 100, target version = 101",
                       "DEBUG mac/mac-service: local appdata exist",
                       "DEBUG mac/mac-service: pid file '" + (scene / ".Corvimo/ui.pid") +
                           "' does not exist, no need to terminate",
                       "INFO cloud-service: extract package: '" + scene.Package() + "' -> '" +
                           (scene / kApp) + "'",
                       "DEBUG extractor: decompress from '" + scene.Package() + "' to '" +
                           (scene / kApp) + "'",
                       "INFO cloud-service: user installation is ready, removing backup app",
                       "INFO cloud-service: removing aged app folder " + (scene / ".Lumaport/app"),
                       "DEBUG launcher: done"}),
              scene.Log());
    const std::string log = ReadFile(scene / ".Corvimo/log/launcher.log");
    for (const char* place : {"main(106)", "main(107)", "main(108)", "main(109)", "main(110)",
                              "main(111)", "main(112)", "launcher(89)", "launcher(117)"}) {
        EXPECT_NE(std::string::npos, log.find(place)) << place;
    }
}

TEST(Launcher, InstallsForTheFirstTimeAndThenOnlyWhatIsNewer) {
    Scene scene;
    scene.CarryClient("101");
    EXPECT_EQ(0, scene.Run());
    EXPECT_EQ(Builds{"101"}, scene.StartedBuilds(1));
    ExpectInstalled(scene, "101");
    const TreeSnapshot before = Snapshot(scene / kApp);
    std::size_t starts = 1;
    for (const char* carried : {"101", "100", ""}) {
        scene.CarryClient(carried);
        ++starts;
        EXPECT_EQ(0, scene.Run());
        EXPECT_EQ(Builds(starts, "101"), scene.StartedBuilds(starts)) << carried;
        EXPECT_EQ(before, Snapshot(scene / kApp)) << carried;
        EXPECT_TRUE(scene.Logged("DEBUG launcher: no need to upgrade"));
    }
}

TEST(Launcher, TakesOverFromTheOlderProduct) {
    Scene scene;
    scene.CarryClient("101");
    WriteDeep(scene / ".Lumaport/data/deep/file", "the person's data");
    WriteDeep(scene / ".Lumaport/app/x", "");
    Scene older("home2");
    older.InstallClient("9");
    const pid_t old_client = scene.StartClient(older / kClientOfApp, scene / ".Lumaport");
    EXPECT_EQ(0, scene.Run());
    EXPECT_FALSE(IsRunning(old_client));
    EXPECT_EQ((Builds{"9", "101"}), scene.StartedBuilds(2));
    ExpectInstalled(scene, "101");
    EXPECT_EQ("the person's data", ReadFile(scene / ".Corvimo/data/deep/file"));
    EXPECT_FALSE(fs::exists(scene / ".Lumaport"));
}

TEST(Launcher, RestoresTheOldClientWhenThePackageIsBad) {
    void (*const spoil[])(const Scene&) = {
        [](const Scene& scene) { fs::remove(scene.Package()); },
        [](const Scene& scene) { WriteFile(scene.Package(), ""); },
        [](const Scene& scene) { WriteFile(scene.Package(), "no archive"); },
        [](const Scene& scene) {
            fs::resize_file(scene.Package(), fs::file_size(scene.Package()) / 2);
        },
        [](const Scene& scene) {
            scene.CarryClient("101", [](ArchiveBuilder& package) {
                package.File("Contents/../../../outside", "");
            });
        },
    };
    for (const auto& spoil_package : spoil) {
        Scene scene;
        scene.InstallClient("100");
        scene.CarryClient("101");
        spoil_package(scene);
        ExpectOldClientRestored(scene);
        EXPECT_FALSE(fs::exists(scene / "outside"));
    }
}

TEST(Launcher, RestoresTheOldClientWhenTheDiskIsFull) {
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        GTEST_SKIP() << "cannot mount a small volume here";
    }
    Scene scene;
    fs::create_directory(scene / ".Corvimo");
    ASSERT_EQ(0, mount("none", (scene / ".Corvimo").c_str(), "tmpfs", 0, "size=1m"));
    scene.InstallClient("100");
    scene.CarryClient("101", [](ArchiveBuilder& package) {
        package.File("Contents/large", std::string(2 << 20, 'x'));
    });
    ExpectOldClientRestored(scene);
    EXPECT_EQ(0, umount2((scene / ".Corvimo").c_str(), MNT_DETACH));
}

TEST(Launcher, TakesAnyContentInItsSmallFiles) {
    const std::string binary(
        "\x7F"
        "ELF\0\xFF\n=\0",
        9);
    const std::string long_line(3 << 20, 'x');
    for (const std::string& content : {std::string(), binary, long_line}) {
        Scene scene;
        scene.InstallClient("100");
        scene.CarryClient("101");
        WriteFile(scene / kApp + "/Contents/Resources/INFO", content);
        WriteFile(scene / ".Corvimo/ui.pid", content);
        WriteFile(scene.Bundle("Resources/log/launcher.debug"), content);
        EXPECT_EQ(0, scene.Run());
        EXPECT_EQ(Builds{"101"}, scene.StartedBuilds(1));
        WriteFile(scene.Bundle("Resources/INFO"), content);
        EXPECT_EQ(0, scene.Run());
        EXPECT_EQ((Builds{"101", "101"}), scene.StartedBuilds(2));
    }
}

TEST(Launcher, RunsToItsEndWhereNothingCanBeWritten) {
    Scene plain_file;
    WriteFile(plain_file / ".Corvimo", "a plain file");
    plain_file.CarryClient("101");
    EXPECT_EQ(0, plain_file.Run());
    EXPECT_EQ("a plain file", ReadFile(plain_file / ".Corvimo"));

    Scene closed;
    closed.InstallClient("100");
    closed.CarryClient("101");
    WriteFile(closed / "started", "");
    ASSERT_EQ(0, chmod((closed / "started").c_str(), 0666));
    const TreeSnapshot before = Snapshot(closed / ".Corvimo");
    closed.as_ordinary_user = true;  // The home folder and the bundle are root's.
    EXPECT_EQ(0, closed.Run());
    EXPECT_EQ(Builds{"100"}, closed.StartedBuilds(1));
    EXPECT_EQ(before, Snapshot(closed / ".Corvimo"));
}

TEST(Launcher, LeavesAtOnceWhileAnotherRuns) {
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("101");
    WriteFile(
        scene.Bundle(kRegistrationTool),
        "#!/bin/sh\ntouch \"$HOME/held\"\nwhile [ -e \"$HOME/held\" ]; do sleep 0.05; done\n");
    const pid_t first = scene.Start();
    while (!fs::exists(scene / "held")) {
        usleep(10'000);
    }
    EXPECT_EQ(0, scene.Run());
    EXPECT_EQ("DEBUG main: app has already launched, return", scene.Log().back());
    EXPECT_NE(std::string::npos,
              ReadFile(scene / ".Corvimo/log/launcher.log").find("main(154): app has"));
    fs::remove(scene / "held");
    EXPECT_EQ(0, scene.WaitFor(first));
    EXPECT_EQ(Builds{"101"}, scene.StartedBuilds(1));
}

TEST(Launcher, KeepsItsDescriptorsFromTheProgramsThatItStarts) {
    // Notes what it is started with where a client notes its build.
    const char* const recorder =
        "#!/bin/sh\necho $(ls /proc/self/fd) | tr -d ' ' | sed \"s/$/ $$/\" >>\"$HOME/started\"\n";
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("101");
    WriteFile(scene.Bundle(kRegistrationTool), recorder);
    WriteFile(scene.Bundle("PlatformTools/usr/bin/open"), recorder);
    const std::string home = scene / ".";
    ASSERT_EQ(0, std::system(("HOME=" + home + " " + scene.Bundle(kRegistrationTool)).c_str()));
    EXPECT_EQ(0, scene.Run());
    const Builds inherited = scene.StartedBuilds(3);
    EXPECT_EQ(Builds(3, inherited.front()), inherited);
}

TEST(Launcher, RemovesADeepOldClientWhateverTheLimitOnStacks) {
    Scene scene;
    scene.InstallClient("100");
    scene.CarryClient("101");
    std::string path = scene / kApp;
    while (path.size() < 4000) {
        path += "/d";
        fs::create_directory(path);
    }
    rlimit limit;
    ASSERT_EQ(0, getrlimit(RLIMIT_STACK, &limit));
    const rlimit small = {256 << 10, limit.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_STACK, &small));
    EXPECT_EQ(0, scene.Run());
    ASSERT_EQ(0, setrlimit(RLIMIT_STACK, &limit));
    ExpectInstalled(scene, "101");
    ExpectNoBackup(scene);
}
