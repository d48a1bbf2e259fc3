#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <numeric>

#include "lib/file/file-op.h"
#include "tests/support/captured_log.h"
#include "tests/support/few_descriptors.h"
#include "tests/support/files.h"
#include "tests/support/ordinary_user.h"
#include "tests/support/temp_dir.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

TEST(FSCopy, CopiesEveryLengthWithTheModeAskedFor) {
    umask(022);
    for (const std::size_t size : {0U, 8191U, 8192U, 8193U, 100000U}) {
        const TempDir dir;
        const bool moved = size % 2 == 1;
        const bool keeps_mode = size > 8192;
        std::string content(size, 'x');
        std::iota(content.begin(), content.end(), '\0');
        WriteFile(dir / "from", content);
        fs::permissions(dir / "from", fs::perms(0750));
        EXPECT_EQ(0, FSCopy(dir / "from", dir / "to", moved, keeps_mode));
        EXPECT_EQ(content, ReadFile(dir / "to"));
        EXPECT_EQ(fs::perms(keeps_mode ? 0750 : 0644), fs::status(dir / "to").permissions());
        EXPECT_NE(moved, fs::exists(dir / "from"));
    }
}

TEST(FSCopy, FailsWithItsCodeAndMessage) {
    const TempDir dir;
    const std::string from = dir / "from";
    WriteFile(from, "content");
    const std::tuple<std::string, std::string, int, std::string> rows[] = {
        {dir / "none", dir / "to", -1,
         "open(" + (dir / "none") + "): No such file or directory (2)"},
        {dir.path(), dir / "to", -1, "read: Is a directory (21)"},
        {from, "/dev/full", -2, "write: No space left on device (28)"},
    };
    for (const auto& [source, destination, result, message] : rows) {
        const CapturedLog log;
        EXPECT_EQ(result, FSCopy(source, destination, true, false)) << message;
        EXPECT_EQ(Records{"ERROR file-op: CopyFile: " + message}, log.All());
    }
    EXPECT_EQ("content", ReadFile(from));
}

TEST(FSRename, OnOneVolume) {
    const TempDir dir;
    WriteDeep(dir / "from/file", "moved");
    WriteDeep(dir / "full/file", "stays");
    fs::create_symlink("from", dir / "way");
    const std::tuple<std::string, std::string, bool, int> rows[] = {
        {dir / "none", dir / "to", false, -2},
        {dir / "way/file", dir / "to", true, -2},
        {dir / "from", dir / std::string(300, 'x'), false, -100},
        {dir / "from", dir / "full", false, -3},
        {dir / "from", dir / "to", true, 0},
    };
    for (const auto& [from, to, exact, result] : rows) {
        EXPECT_EQ(result, FSRename(from, to, exact)) << from << " " << to;
    }
    EXPECT_EQ("moved", ReadFile(dir / "to/file"));
    EXPECT_EQ("stays", ReadFile(dir / "full/file"));
}

TEST(FSRename, AcrossVolumesMergesAndStopsAtALinkWithoutLoss) {
    const TempDir dir;
    const std::string to = "/dev/shm/corvimo-test-" + std::to_string(getpid());
    WriteDeep(dir / "from/a/b/file", "one");
    WriteDeep(to + "/a/old", "two");
    EXPECT_EQ(0, FSRename(dir / "from", to, true));
    EXPECT_FALSE(fs::exists(dir / "from"));
    EXPECT_EQ("one", ReadFile(to + "/a/b/file"));
    EXPECT_EQ("two", ReadFile(to + "/a/old"));

    WriteDeep(dir / "from/file", "content");
    fs::create_symlink("file", dir / "from/link");
    EXPECT_EQ(-3, FSRename(dir / "from", to, false));
    EXPECT_EQ(-3, FSRename(dir / "from/link", to + "/link", false));
    EXPECT_TRUE(fs::is_symlink(dir / "from/link"));
    EXPECT_NE(fs::exists(dir / "from/file"), fs::exists(to + "/file"));
    fs::remove_all(to);
}

TEST(FSRemove, RemovesDeepTreesButFollowsNoLink) {
    const TempDir dir;
    WriteDeep(dir / "kept/file", "kept");
    WriteDeep(dir / "tree/file", "");
    fs::create_symlink("../kept", dir / "tree/link");
    for (std::string path = dir / "tree/d"; path.size() < 400; path += "/d") {
        fs::create_directory(path);
    }
    const FewDescriptors few(32);
    EXPECT_EQ(0, FSRemove(dir / "tree", false));
    EXPECT_FALSE(fs::exists(dir / "tree"));
    EXPECT_EQ("kept", ReadFile(dir / "kept/file"));
    EXPECT_EQ(0, FSRemove(dir / "none", false));
    EXPECT_EQ(-1, FSRemove(dir / "kept/file/below", false));
}

TEST(FSRemove, KeepsWhatItMayNotRemove) {
    const TempDir dir;
    fs::permissions(dir.path(), fs::perms(0755));
    WriteDeep(dir / "locked/file", "");
    EXPECT_EQ(3, RunAsOrdinaryUser([&] { return -FSRemove(dir / "locked", false); }));
    EXPECT_TRUE(fs::exists(dir / "locked/file"));
}
