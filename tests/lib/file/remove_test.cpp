#include <dirent.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "lib/file/file-op.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

// What another program does when an entry of this name is listed for the first time.
static struct {
    std::string name;
    std::function<void()> action;
} intrusion;

extern "C" dirent* readdir(DIR* stream) {
    static const auto real = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir"));
    dirent* const entry = real(stream);
    if (entry != nullptr && entry->d_name == intrusion.name) {
        intrusion.name.clear();
        intrusion.action();
    }
    return entry;
}

TEST(FSRemove, DuringAnIntrusionRemovesNothingOutsideTheTree) {
    const std::string deep = "tree/victim/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d/d";
    const auto swap = [] {
        fs::rename("tree/victim", "aside");
        fs::create_symlink("../foreign", "tree/victim");
    };
    const auto move_away = [](const std::string& folder) {
        fs::rename(folder, "foreign/moved");
        WriteDeep(folder + "/new", "");
        WriteFile("foreign/moved/late", "");
    };
    // At which entry another program does what, and the result.
    const std::tuple<std::string, std::function<void()>, int> rows[] = {
        {"victim", swap, -3},
        {"file", swap, -3},
        {"deep", [] { fs::rename("tree/victim/d/d", "foreign/d"); }, -3},
        {"file", [&] { move_away("tree/victim"); }, -3},
        {"shallow", [&] { move_away("tree/victim/other"); }, -3},
        {"deep", [&] { WriteFile(deep + "/late", ""), WriteFile(deep + "/../late", ""); }, 0},
    };
    for (const auto& [listed, action, result] : rows) {
        const TempDir dir;
        fs::current_path(dir.path());
        WriteDeep("tree/victim/file", "");
        WriteDeep(deep + "/deep", "");
        WriteDeep("tree/victim/other/shallow", "");
        WriteDeep("foreign/file", "kept");
        intrusion = {listed, action};
        EXPECT_EQ(result, FSRemove("tree/", false)) << listed;
        EXPECT_EQ("", intrusion.name);
        EXPECT_EQ("kept", ReadFile("foreign/file"));
        EXPECT_EQ(fs::exists("foreign/moved"), fs::exists("foreign/moved/late"));
        EXPECT_EQ(result != 0, fs::exists("tree"));
        fs::current_path("/");
    }
}

TEST(FSRemove, OfATreeDeeperThanAPathReachesNeedsFewDescriptors) {
    const TempDir dir;
    fs::current_path(dir.path());
    for (int level = 0; level < 2200; ++level) {
        fs::create_directory("d");
        fs::create_symlink("..", "link");
        ASSERT_EQ(0, chdir("d"));
    }
    fs::current_path("/");
    struct rlimit usual;
    ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &usual));
    const struct rlimit tight = {64, usual.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &tight));
    EXPECT_EQ(0, FSRemove(dir / "d", false));
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &usual));
    EXPECT_EQ(std::vector<std::string>{"link"}, NamesIn(dir.path()));
    EXPECT_EQ(0, FSRemove(dir / "link", false));
    EXPECT_EQ(0, FSRemove(dir / "none", false));
    EXPECT_EQ(-1, FSRemove("/dev/null/none", false));
    EXPECT_EQ(-3, FSRemove("/proc/self/limits", false));  // Nobody may remove it.
}

static void RemoveAroundAClosedFolder() {
    static_cast<void>(setuid(65534));  // Root may open every folder.
    const TempDir dir("/tmp");
    WriteDeep(dir / "tree/closed/file", "kept");
    for (const char name : std::string("abcdefgh")) {
        WriteDeep(dir / "tree/" + name + "/file", "");
    }
    fs::permissions(dir / "tree/closed", fs::perms::none);
    fs::permissions(dir.path(), fs::perms(0300));  // It may be searched, but not read.
    EXPECT_EQ(0, FSRemove(dir / "tree/closed", false));
    EXPECT_EQ(-3, FSRemove(dir / "tree", false));
    EXPECT_EQ(std::vector<std::string>{"closed"}, NamesIn(dir / "tree"));
    EXPECT_EQ(0, FSMakeFoldersWritable(dir.path()));
    EXPECT_EQ("kept", ReadFile(dir / "tree/closed/file"));
}

TEST(FSRemove, WhereAFolderCannotBeOpenedRemovesTheRest) {
    EXPECT_EXIT((RemoveAroundAClosedFolder(), std::exit(testing::Test::HasFailure())),
                testing::ExitedWithCode(0), "");
}
