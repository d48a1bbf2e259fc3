#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "lib/file/file-op.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

// Called with the name of every entry that is listed, before the caller sees it.
std::function<void(const std::string&)> on_listed;

}  // namespace

extern "C" dirent* readdir(DIR* stream) {
    static const auto real = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir"));
    dirent* const entry = real(stream);
    if (entry != nullptr && on_listed) {
        on_listed(entry->d_name);
    }
    return entry;
}

TEST(FSRemove, WhenAFolderIsSwappedForALinkTheLinksTargetStays) {
    for (const std::string swap_at : {"victim", "file"}) {
        SCOPED_TRACE("before it is opened, or while it is listed: " + swap_at);
        const TempDir dir;
        WriteDeep(dir / "tree/victim/file", "");
        WriteDeep(dir / "foreign/file", "kept");
        on_listed = [&](const std::string& listed) {
            if (listed == swap_at) {
                on_listed = nullptr;
                fs::rename(dir / "tree/victim", dir / "aside");
                fs::create_symlink(dir / "foreign", dir / "tree/victim");
            }
        };
        EXPECT_EQ(-3, FSRemove(dir / "tree", false));
        EXPECT_EQ(nullptr, on_listed);
        EXPECT_EQ("kept", ReadFile(dir / "foreign/file"));
    }
}

TEST(FSRemove, WhenAParentIsMovedMeanwhileNothingElseIsRemoved) {
    const TempDir dir;
    std::string path = dir / "tree";
    for (int level = 0; level < 100; ++level) {
        path += "/d";
    }
    WriteDeep(path + "/file", "");
    WriteDeep(dir / "foreign/file", "kept");
    on_listed = [&](const std::string& listed) {
        if (listed == "file") {
            on_listed = nullptr;
            fs::rename(dir / "tree/d/d", dir / "foreign/d");
        }
    };
    EXPECT_EQ(-3, FSRemove(dir / "tree", false));
    EXPECT_EQ("kept", ReadFile(dir / "foreign/file"));
}

TEST(FSRemove, RemovesATreeDeeperThanAPathReachesWithFewDescriptors) {
    const TempDir dir;
    fs::create_directory(dir / "tree");
    int folder = open((dir / "tree").c_str(), O_RDONLY);
    const int first_free = folder;
    for (int level = 0; level < 2200; ++level) {
        ASSERT_EQ(0, mkdirat(folder, "d", 0777));
        ASSERT_EQ(0, symlinkat("..", folder, "link"));
        const int below = openat(folder, "d", O_RDONLY);
        close(folder);
        folder = below;
    }
    close(folder);
    struct rlimit usual;
    ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &usual));
    struct rlimit tight = usual;
    tight.rlim_cur = first_free + 18;
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &tight));
    EXPECT_EQ(0, FSRemove(dir / "tree", false));
    setrlimit(RLIMIT_NOFILE, &usual);
    EXPECT_FALSE(fs::exists(dir / "tree"));
}

TEST(FSRemove, ListsAFolderAgainWhereAFileAppearedDuringTheListing) {
    const TempDir dir;
    WriteDeep(dir / "tree/file", "");
    on_listed = [&](const std::string& listed) {
        if (listed == "file") {
            on_listed = nullptr;
            WriteFile(dir / "tree/late", "");
        }
    };
    EXPECT_EQ(0, FSRemove(dir / "tree", false));
    EXPECT_FALSE(fs::exists(dir / "tree"));
}

TEST(FSRemove, LeavesWhatCannotBeOpenedAndRemovesTheRest) {
    const uid_t user = geteuid() == 0 ? 65534 : geteuid();
    const TempDir dir;
    WriteDeep(dir / "tree/closed/file", "kept");
    for (const char name : std::string("abcdefgh")) {
        WriteDeep(dir / "tree/" + name + "/file", "");
    }
    const auto remove = [&](const std::string& path) {
        std::exit(setuid(user) != 0 ? 1 : -10 * FSRemove(dir / path, false));
    };
    for (const fs::path& path : fs::recursive_directory_iterator(dir.path())) {
        ASSERT_EQ(0, chown(path.c_str(), user, getegid()));
    }
    ASSERT_EQ(0, chmod(dir.path().c_str(), 0777));
    ASSERT_EQ(0, chmod((dir / "tree/closed").c_str(), 0));
    EXPECT_EXIT(remove("tree/closed"), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(remove("tree"), testing::ExitedWithCode(30), "");
    EXPECT_EQ(std::vector<std::string>{"closed"}, NamesIn(dir / "tree"));
    EXPECT_EQ("kept", ReadFile(dir / "tree/closed/file"));
}
