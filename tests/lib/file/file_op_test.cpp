#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <numeric>
#include <tuple>

#include "lib/file/file-op.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

TEST(FileTypes, AreToldByAListingAndByGetFileInfo) {
    const TempDir dir;
    WriteFile(dir / "file", "12345");
    fs::create_symlink("nowhere", dir / "link");
    ASSERT_EQ(0, mkfifo((dir / "fifo").c_str(), 0600));
    ASSERT_EQ(0, mknod((dir / "socket").c_str(), S_IFSOCK | 0600, 0));
    const std::map<std::string, uint32_t> types = {
        {".", FILE_TYPE_DIR},     {"..", FILE_TYPE_DIR},       {"fifo", FILE_TYPE_FIFO},
        {"link", FILE_TYPE_LINK}, {"file", FILE_TYPE_REGULAR}, {"socket", FILE_TYPE_SOCKET}};
    DIR_HANDLE handle;
    ASSERT_EQ(0, FSOpenDir(dir.path(), 1, handle));
    std::map<std::string, uint32_t> listed;
    for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1; listed[entry.name] = entry.type) {
        _FILE_INFO_tag info;
        EXPECT_EQ(0, GetFileInfo(dir / entry.name, info));
        EXPECT_EQ(info.type, entry.type) << entry.name;
        EXPECT_TRUE(entry.name != "file" || entry.size == 5);
    }
    FSCloseDir(handle);
    EXPECT_EQ(types, listed);
}

TEST(IsFileExist, ExactAsksForTheStoredPath) {
    const TempDir dir;
    WriteDeep(dir / "folder/caf\xC3\xA9", "");
    fs::create_symlink("folder", dir / "link");
    fs::create_symlink("nowhere", dir / "dangling");
    const std::tuple<std::string, bool, bool> rows[] = {
        {dir / "folder/", true, false},
        {dir / "link/caf\xC3\xA9", true, false},
        {dir / "dangling", true, true},
        {dir / "folder/caf\xC3\xA9/x", false, false},
        {"", false, false},
    };
    for (const auto& [path, exists, exact] : rows) {
        EXPECT_EQ(exists, IsFileExist(path, false)) << path;
        EXPECT_EQ(exact, IsFileExist(path, true)) << path;
    }
}

TEST(FSCopy, CopiesEveryLengthWithTheModeAskedFor) {
    const TempDir dir;
    for (const std::size_t size : {100000U, 8193U, 8192U, 0U}) {  // Each over a longer one.
        std::string content(size, 'x');
        std::iota(content.begin(), content.end(), '\0');
        WriteFile(dir / "from", content);
        fs::permissions(dir / "from", fs::perms(0750));
        EXPECT_EQ(0, FSCopy(dir / "from", dir / "plain", false, false));
        EXPECT_EQ(0, FSCopy(dir / "from", dir / "alike", false, true));
        EXPECT_EQ(content, ReadFile(dir / "plain"));
        EXPECT_EQ(content, ReadFile(dir / "alike"));
    }
    EXPECT_EQ(fs::perms(0644), fs::status(dir / "plain").permissions());
    EXPECT_EQ(fs::perms(0750), fs::status(dir / "alike").permissions());
}

TEST(FSRename, OnOneVolume) {
    const TempDir dir;
    WriteDeep(dir / "from/file", "moved");
    WriteDeep(dir / "full/file", "stays");
    fs::create_symlink("from", dir / "way");
    EXPECT_EQ(-2, FSRename(dir / "none", dir / "to", false));
    EXPECT_EQ(-2, FSRename(dir / "way/file", dir / "to", true));
    EXPECT_EQ(-100, FSRename(dir / "from", dir / std::string(300, 'x'), false));
    EXPECT_EQ(-3, FSRename(dir / "from", dir / "full", false));
    EXPECT_EQ(0, FSRename(dir / "from", dir / "to", true));
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
    EXPECT_TRUE(fs::is_symlink(dir / "from/link"));
    EXPECT_NE(fs::exists(dir / "from/file"), fs::exists(to + "/file"));
    fs::remove_all(to);
}

TEST(FSRemove, RemovesTreesButFollowsNoLink) {
    const TempDir dir;
    WriteDeep(dir / "kept/file", "kept");
    WriteDeep(dir / "tree/deep/file", "");
    fs::create_symlink("../kept", dir / "tree/link");
    EXPECT_EQ(0, FSRemove(dir / "tree", false));
    EXPECT_FALSE(fs::exists(dir / "tree"));
    EXPECT_EQ("kept", ReadFile(dir / "kept/file"));
    EXPECT_EQ(0, FSRemove(dir / "none", false));
    EXPECT_EQ(-1, FSRemove(dir / "kept/file/below", false));
    EXPECT_EQ(-3, FSRemove("/proc/self/limits", false));  // Nobody may remove it.
}

TEST(FSMKDir, CreatesFoldersAndTakesNothingElseForOne) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    fs::create_directory(dir / "folder");
    fs::create_symlink("folder", dir / "link");
    const std::tuple<std::string, bool, int> rows[] = {
        {"/proc/x/y", true, -2},         {dir / "x/y", false, -2},
        {dir / "d/e/", true, 0},         {fs::relative(dir.path()) / "f//g", true, 0},
        {dir / "link/below/b", true, 0}, {dir / "file", true, -1},
        {dir / "link", true, -1},        {dir / "file/below", true, -1},
    };
    for (const auto& [path, recursive, result] : rows) {
        EXPECT_EQ(result, FSMKDir(path, recursive)) << path;
        EXPECT_TRUE(result != 0 || fs::is_directory(path)) << path;
    }
    EXPECT_EQ(0, FSMKDirFromRoot(dir / "a/b", dir.path()));
    EXPECT_TRUE(fs::is_directory(dir / "a/b"));
    EXPECT_EQ(-1, FSMKDirFromRoot(dir / "a", dir / "a/b"));
    EXPECT_EQ(-1, FSMKDirFromRoot(dir / "ab/c", dir / "a"));
}

TEST(Links, AreDescribedAndMostlyChangedThemselves) {
    const TempDir dir;
    WriteDeep(dir / "real/file", "");
    fs::create_symlink("real", dir / "way");
    std::string path = dir / "way/link";
    std::string target;
    ASSERT_EQ(0, FSCreateSymbolicLink("file", path));
    ASSERT_EQ(0, FSCreateSymbolicLink(std::string(1024, 'x'), dir / "long"));
    EXPECT_EQ(0, FSReadSymbolicLink(path, target));
    EXPECT_EQ(-1, FSReadSymbolicLink(dir / "long", target));
    EXPECT_EQ("file", target);
    EXPECT_EQ(0, FSChown(path, 12, 34));
    EXPECT_EQ(0, FSUTime(path, 1, 99));
    EXPECT_EQ(0, FSChmod(path, 0611));  // Of the file.
    _FILE_INFO_tag link;
    ASSERT_EQ(0, GetFileInfo(path, link));
    EXPECT_EQ(dir / "real/link", link.path);
    EXPECT_EQ(std::tuple(4, 99, S_IFLNK | 0777U, 12U, 34U),
              std::tuple(link.size, link.mtime, link.mode, link.uid, link.gid));
    EXPECT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ(dir / "real/file", path);
    _FILE_INFO_tag file;
    ASSERT_EQ(0, GetFileInfo(path, file));
    EXPECT_EQ(std::pair(S_IFREG | 0611U, getuid()), std::pair(file.mode, file.uid));
}

TEST(Permissions, TellOnlyRefusals) {
    const TempDir dir;
    std::string file;
    ASSERT_EQ(0, FSMktemp(dir.path(), file));
    EXPECT_EQ(fs::perms(0644), fs::status(file).permissions());
    EXPECT_TRUE(isFileLocked(file, X_OK));  // For everybody, root included.
    EXPECT_FALSE(isFileLocked(file, R_OK));
    EXPECT_FALSE(isFileLocked(dir / "none", X_OK));
}

TEST(Failures, AreLoggedWithTheirReason) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    const std::string none = dir / "none/x";
    const std::string reason = "No such file or directory";
    const CapturedLog log;
    EXPECT_EQ(-1, FSCopy(none, dir / "to", false, false));
    EXPECT_EQ(-2, FSMKDir(none, false));
    EXPECT_EQ(-1, FSFsync(dir / "file/x"));
    const std::string source = "ERROR file-op: ";
    EXPECT_EQ((Records{source + "CopyFile: open(" + none + "): " + reason + " (2)",
                       source + "path = " + none + " errno : " + reason,
                       source + "FSFsync: open(" + (dir / "file/x") + "): Not a directory (20)"}),
              log.All());
}
