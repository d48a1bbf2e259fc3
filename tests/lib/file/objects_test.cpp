#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "lib/file/file-op.h"
#include "tests/support/few_descriptors.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

TEST(PathText, ParentBaseNameAndParentFolder) {
    const char* const names[][3] = {{"", "/", ""},     {"a", "/", "a"}, {"/a", "/", "a"},
                                    {"a/b", "a", "b"}, {"/", "/", ""},  {"/a/b/", "/a/b", ""}};
    for (const auto& [path, parent, base] : names) {
        EXPECT_EQ(parent, FSParentPath(path)) << path;
        EXPECT_EQ(base, FSBaseName(path)) << path;
    }
    EXPECT_TRUE(FSIsParentFolder("/a", "/a") && FSIsParentFolder("/a", "/a/b"));
    for (const char* stranger : {"/ab", "/", "/b/a", "a"}) {
        EXPECT_FALSE(FSIsParentFolder("/a", stranger)) << stranger;
    }
}

TEST(GetFileInfo, TellsEveryType) {
    const TempDir dir;
    WriteFile(dir / "file", "12345");
    fs::create_symlink("nowhere", dir / "link");
    ASSERT_EQ(0, mkfifo((dir / "fifo").c_str(), 0600));
    ASSERT_EQ(0, mknod((dir / "socket").c_str(), S_IFSOCK | 0600, 0));
    const std::pair<std::string, uint32_t> rows[] = {
        {dir / "file", FILE_TYPE_REGULAR}, {dir.path(), FILE_TYPE_DIR},
        {dir / "link", FILE_TYPE_LINK},    {dir / "fifo", FILE_TYPE_FIFO},
        {"/dev/null", FILE_TYPE_DEVICE},   {dir / "socket", FILE_TYPE_SOCKET}};
    for (const auto& [path, type] : rows) {
        _FILE_INFO_tag info;
        ASSERT_EQ(0, GetFileInfo(path, info)) << path;
        EXPECT_EQ(type, info.type) << path;
    }
}

TEST(GetFileInfo, DescribesTheLinkItself) {
    const TempDir dir;
    fs::create_directory(dir / "real");
    fs::create_symlink("real", dir / "way");
    fs::create_symlink("nowhere", dir / "real/link");
    ASSERT_EQ(0, lchown((dir / "real/link").c_str(), 12, 34));
    ASSERT_EQ(0, FSUTime(dir / "real/link", 5, 1234567890));
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo(dir / "way/link", info));
    EXPECT_EQ(dir / "real/link", info.path);
    EXPECT_EQ(7, info.size);
    EXPECT_EQ(1234567890, info.mtime);
    EXPECT_EQ(S_IFLNK | 0777U, info.mode);
    EXPECT_EQ(std::pair(12U, 34U), std::pair(info.uid, info.gid));
}

TEST(GetFileInfo, MissingIsNoFailureButAnUnreachablePathIs) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    _FILE_INFO_tag info;
    info.exists = true;
    EXPECT_EQ(-1, GetFileInfo(dir / "file/below", info));
    EXPECT_TRUE(info.exists);
    EXPECT_EQ(0, GetFileInfo(dir / "none", info));
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(dir / "none", info.path);
}

TEST(IsFileExist, ExactAsksForTheStoredPath) {
    const TempDir dir;
    WriteDeep(dir / "folder/caf\xC3\xA9", "");
    fs::create_symlink("folder", dir / "link");
    fs::create_symlink("nowhere", dir / "dangling");
    const std::tuple<std::string, bool, bool> rows[] = {
        {dir.path() + "//folder", true, false},
        {dir / "folder/", true, false},
        {fs::relative(dir / "folder"), true, false},
        {dir / "link/caf\xC3\xA9", true, false},
        {dir / "dangling", true, true},
        {dir / "folder/caf\xC3\xA9/x", false, false},
        {"", false, false},
    };
    for (const rlim_t descriptors : {64U, 3U}) {  // Without a free one it takes the slower way.
        const FewDescriptors few(descriptors);
        for (const auto& [path, exists, exact] : rows) {
            EXPECT_EQ(exists, IsFileExist(path, false)) << path;
            EXPECT_EQ(exact, IsFileExist(path, true)) << path;
        }
    }
    _FILE_INFO_tag info;
    info.exists = true;
    EXPECT_EQ(0, FSStat(dir / "folder/", info, true));
    EXPECT_FALSE(info.exists);
}
