// Tests the contracts of lib/platform. One program tests the sources of this system, another one
// those of macOS on an emulation of its calls.
#include "lib/platform/platform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <langinfo.h>
#include <signal.h>

#include <clocale>
#include <filesystem>

#include "lib/platform/process.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

TEST(PlatformStoredPath, ResolvesFoldersAndTheFinalLinkByChoice) {
    const TempDir dir;
    fs::create_directory(dir / "caf\xC3\xA9");
    fs::create_symlink("caf\xC3\xA9", dir / "way");
    fs::create_symlink("none", dir / "way/link");
    fs::current_path(dir.path());
    // clang-format off
    const struct { std::string path; bool follow; std::string stored; } rows[] = {
        {"/", false, "/"},
        {"way", false, dir / "way"},
        {"./way/.", false, dir / "caf\xC3\xA9"},
        {dir / "way", true, dir / "caf\xC3\xA9"},
        {dir / "way/", false, dir / "caf\xC3\xA9"},
        {dir.path() + "//way/link", false, dir / "caf\xC3\xA9/link"},
        {dir / "way/link", true, ""},
        {dir / "none/x", false, ""},
    };
    // clang-format on
    for (const auto& row : rows) {
        std::string path = row.path;
        EXPECT_EQ(row.stored.empty(), PlatformStoredPath(path, row.follow, path) != 0) << path;
        EXPECT_EQ(row.stored.empty() ? row.path : row.stored, path);
    }
    fs::current_path("/");
}

TEST(PlatformFileSystemType, AfterAFailureIsUnchanged) {
    std::string type = "before";
    EXPECT_EQ(-1, PlatformFileSystemType("/none", type));
    EXPECT_EQ(std::pair(ENOENT, std::string("before")), std::pair(errno, type));
}

TEST(PlatformUseUtf8CharacterType, ChangesOnlyAnotherCharacterType) {
    for (const std::string before : {"C", "C.utf8"}) {
        setlocale(LC_ALL, "C");
        const bool is_there = setlocale(LC_CTYPE, before.c_str()) != nullptr;
        PlatformUseUtf8CharacterType();
        EXPECT_STREQ("UTF-8", nl_langinfo(CODESET));
        EXPECT_EQ(is_there && before != "C", setlocale(LC_CTYPE, nullptr) == before);
        EXPECT_STREQ("C", setlocale(LC_TIME, nullptr));
    }
}

TEST(PlatformStartTool, RunsAProgramWithWhatItIsGiven) {
    ASSERT_NE(nullptr, freopen("/bin/sh", "r", stdin));
    setenv("GIVEN", "1", 1);
    const std::string shell = PlatformToolPath("/bin/sh");
    const std::string script = "test \"$1,$GIVEN\" = 'a b,1' -a /dev/stdin -ef /dev/null && exit 7";
    const pid_t started = PlatformStartTool(shell, {"-c", script, "sh", "a b"}, false);
    EXPECT_EQ(7, PlatformWaitForTool(started));
    EXPECT_EQ(-1, PlatformWaitForTool(started));
    EXPECT_EQ(-1, PlatformStartTool("/none", {}, false));
}

static pid_t tool;

// An alarm ends the tool during the wait and interrupts the wait. The tool does not ignore SIGTERM,
// although this program does.
TEST(ProcessWatch, OfAnInspectedProcessTellsItsEnd) {
    signal(SIGALRM, [](int) { tool > 0 ? kill(tool, SIGTERM) : 0; });
    signal(SIGTERM, SIG_IGN);
    for (const bool in_own_session : {false, true}) {
        tool = PlatformStartTool("/bin/sleep", {"9"}, in_own_session);
        ASSERT_GT(tool, 0);
        EXPECT_EQ(in_own_session ? tool : getsid(0), getsid(tool));
        const PlatformProcess process = PlatformInspectProcess(tool);
        EXPECT_EQ(fs::canonical("/bin/sleep"), process.executable);
        EXPECT_TRUE(process.start_time.has_value());
        ProcessWatch watch(tool);
        EXPECT_FALSE(watch.HasEnded());
        alarm(1);
        EXPECT_TRUE(watch.WaitForEnd(std::chrono::seconds(8)));
        EXPECT_TRUE(watch.HasEnded());
        alarm(0);
        EXPECT_EQ(-1, PlatformWaitForTool(tool));
    }
    const pid_t nobody = 4200000;  // The system gives no number that large.
    EXPECT_FALSE(ProcessWatch(nobody).IsWatching());
    EXPECT_FALSE(PlatformInspectProcess(nobody).start_time.has_value());
    EXPECT_EQ("", PlatformInspectProcess(nobody).executable);
}
