#include "lib/file/file-op.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <tuple>

#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

static const std::string kError = "ERROR file-op: ";

// Writes in short pieces, as some volumes do.
extern "C" ssize_t write(int fd, const void* data, std::size_t size) {
    const struct iovec piece = {const_cast<void*>(data), std::min<std::size_t>(size, 5000)};
    return writev(fd, &piece, 1);
}

TEST(FileInfo, EqualityIgnoresOwnerModeAndDevice) {
    using Info = _FILE_INFO_tag;
    const Info info{"p", "n", 1, 2, 3, true, 4, 5, 6, 7};
    EXPECT_TRUE(info == (Info{"p", "n", 1, 2, 3, true}));
    EXPECT_TRUE(info != (Info{"x", "n", 1, 2, 3, true}) && info != (Info{"p", "x", 1, 2, 3, true}));
    EXPECT_TRUE(info != (Info{"p", "n", 0, 2, 3, true}) && info != (Info{"p", "n", 1, 0, 3, true}));
    EXPECT_TRUE(info != (Info{"p", "n", 1, 2, 0, true}) && info != (Info{"p", "n", 1, 2, 3}));
}

TEST(Paths, AreSplitAndComparedByTheirText) {
    const std::tuple<std::string, std::string, std::string> rows[] = {
        {"a", "/", "a"}, {"/a", "/", "a"}, {"/a/b", "/a", "b"}, {"/a/b/", "/a/b", ""}};
    for (const auto& [path, parent, name] : rows) {
        EXPECT_EQ(std::pair(parent, name), std::pair(FSParentPath(path), FSBaseName(path)));
    }
    EXPECT_TRUE(FSIsParentFolder("/a", "/a/b") && FSIsParentFolder("/a", "/a"));
    EXPECT_FALSE(FSIsParentFolder("/a", "/ab") || FSIsParentFolder("/b", "/a/b") ||
                 FSIsParentFolder("/a/b", "/a"));
}

TEST(FSReadDir, TellsWhatGetFileInfoTells) {
    const TempDir dir;
    WriteFile(dir / "file", "12345");
    fs::create_symlink("nowhere", dir / "link");
    ASSERT_EQ(0, mkfifo((dir / "fifo").c_str(), 0600));
    ASSERT_EQ(0, mknod((dir / "socket").c_str(), S_IFSOCK | 0600, 0));
    for (const int options : {0, 1}) {
        DIR_HANDLE handle;
        DIR_ENTRY entry;
        ASSERT_EQ(0, FSOpenDir(dir.path(), options, handle));
        int count = 0;
        for (; FSReadDir(handle, entry) == 1; ++count) {
            _FILE_INFO_tag info;
            EXPECT_EQ(0, GetFileInfo(dir / entry.name, info));
            const int factor = entry.name[0] == '.' ? 0 : options;  // "." has another stored path.
            EXPECT_EQ(std::tuple(info.type, factor * info.size, factor * info.mtime),
                      std::tuple(entry.type, entry.size, entry.mtime))
                << entry.name;
        }
        EXPECT_EQ(6, count);
        FSCloseDir(handle);
        FSCloseDir(handle);
        EXPECT_EQ(std::pair(-1, std::string()), std::pair(FSReadDir(handle, entry), handle.path));
    }
}

TEST(IsFileExist, OnAPathThatIsNotTheStoredOneDependsOnExact) {
    const TempDir dir;
    WriteDeep(dir / "folder/caf\xC3\xA9", "");
    fs::create_symlink("folder", dir / "link");
    fs::create_symlink("nowhere", dir / "dangling");
    const std::tuple<std::string, bool, bool> rows[] = {
        {dir / "folder/", true, false}, {dir / "link/caf\xC3\xA9", true, false},
        {dir / "dangling", true, true}, {dir / "folder/caf\xC3\xA9/x", false, false},
        {dir / "none", false, false},   {"", false, false},
    };
    for (const auto& [path, exists, exact] : rows) {
        _FILE_INFO_tag info{"before", "", 1, 2, 3, true, 4, 5, 6, 7};
        EXPECT_EQ(exists, IsFileExist(path, false)) << path;
        EXPECT_EQ(exact, IsFileExist(path, true)) << path;
        EXPECT_EQ(path.empty() ? -1 : 0, FSStat(path, info, true)) << path;
        EXPECT_EQ(exact || path.empty(), info.exists) << path;
        EXPECT_EQ(exact ? path : "before", info.path);
    }
}

TEST(FSCopy, OfEveryLengthGivesTheContentAndTheModeOrLogsTheReason) {
    const TempDir dir;
    for (const std::size_t size : {100000U, 8193U, 8192U, 0U}) {  // Each over a longer one.
        std::string content(size, 'x');
        std::iota(content.begin(), content.end(), '\0');
        WriteFile(dir / "from", content);
        fs::permissions(dir / "from", fs::perms(0750));
        EXPECT_EQ(0, FSCopy(dir / "from", dir / "plain", false, false));
        EXPECT_EQ(0, FSCopy(dir / "from", dir / "alike", false, true));
        EXPECT_EQ(content, ReadFile(dir / "plain"));
    }
    EXPECT_EQ(fs::perms(0644), fs::status(dir / "plain").permissions());
    EXPECT_EQ(fs::perms(0750), fs::status(dir / "alike").permissions());
    EXPECT_EQ(0, FSCopy(dir / "alike", dir / "moved", true, false));
    const CapturedLog log;
    WriteFile(dir / "from", "content");
    EXPECT_EQ(-2, FSCopy(dir / "from", "/dev/full", true, false));
    EXPECT_EQ(-1, FSCopy(dir / "from", dir / "none/x", true, false));
    EXPECT_EQ(-1, FSCopy(dir.path(), dir / "plain", true, false));
    EXPECT_EQ((std::vector<std::string>{"from", "moved", "plain"}), NamesIn(dir.path()));
    EXPECT_EQ(
        (Records{kError + "CopyFile: write: No space left on device (28)",
                 kError + "CopyFile: open(" + (dir / "none/x") + "): No such file or directory (2)",
                 kError + "CopyFile: read: Is a directory (21)"}),
        log.All());
}

TEST(FSRename, OnOneVolumeMovesOrTellsTheReason) {
    const TempDir dir;
    WriteDeep(dir / "from/file", "moved");
    WriteDeep(dir / "full/file", "");
    fs::create_symlink("from", dir / "way");
    EXPECT_EQ(-1, FSRename(dir / "from", "", false));
    EXPECT_EQ(-2, FSRename(dir / "none", dir / "to", false));
    EXPECT_EQ(-2, FSRename(dir / "way/file", dir / "to", true));
    EXPECT_EQ(-100, FSRename(dir / "from", dir / std::string(300, 'x'), false));
    EXPECT_EQ(-3, FSRename(dir / "from", dir / "full", false));
    EXPECT_EQ(0, FSRename(dir / "from", dir / "to", true));
    EXPECT_EQ("moved", ReadFile(dir / "to/file"));
}

TEST(FSRename, AcrossVolumesMergesAndStopsAtALinkWithoutLoss) {
    if (!fs::exists("/dev/shm")) {
        GTEST_SKIP() << "There is no second volume.";
    }
    const TempDir dir("/tmp");
    const TempDir volume("/dev/shm");
    WriteDeep(dir / "from/a/b/file", "one");
    WriteDeep(volume / "a/old", "two");
    EXPECT_EQ(0, FSRename(dir / "from", volume.path(), true));
    EXPECT_FALSE(fs::exists(dir / "from"));
    EXPECT_EQ("one", ReadFile(volume / "a/b/file"));
    EXPECT_EQ("two", ReadFile(volume / "a/old"));

    WriteDeep(dir / "from/file", "content");
    fs::create_symlink("file", dir / "from/link");
    EXPECT_EQ(-3, FSRename(dir / "from", volume.path(), false));
    EXPECT_TRUE(fs::is_symlink(dir / "from/link"));
    EXPECT_NE(fs::exists(dir / "from/file"), fs::exists(volume / "file"));
}

TEST(FSMKDir, OnAnythingButAFolderFailsAndLogsTheReason) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    fs::create_symlink(".", dir / "link");
    const std::tuple<std::string, bool, int> rows[] = {
        {"/proc/x/y", true, -2},         {dir / "x/y", false, -2},
        {dir / "d/e/", true, 0},         {fs::relative(dir.path()) / "f//g", true, 0},
        {dir / "link/below/b", true, 0}, {dir / "file", true, -1},
        {dir / "link", true, -1},        {dir / "file/below", true, -1},
        {dir.path(), false, 0},          {"", true, -1},
    };
    const CapturedLog log;
    for (const auto& [path, recursive, result] : rows) {
        EXPECT_EQ(result, FSMKDir(path, recursive)) << path;
        EXPECT_TRUE(result != 0 || fs::is_directory(path)) << path;
    }
    EXPECT_EQ(0, FSMKDirFromRoot(dir / "a/b", dir.path()));
    EXPECT_TRUE(fs::is_directory(dir / "a/b"));
    EXPECT_EQ(-1, FSMKDirFromRoot(dir / "a", dir / "a/b"));
    EXPECT_EQ(-1, FSMKDirFromRoot(dir / "ab/c", dir / "a"));
    EXPECT_EQ(-1, FSMKDirFromRoot(dir / "file/x", dir / "file"));
    EXPECT_EQ(8U, log.All().size());
    EXPECT_EQ(kError + "path = /proc/x/y errno : No such file or directory", log.All().front());
}

TEST(SymbolicLinks, AreDescribedAndMostlyChangedThemselves) {
    const uid_t user = geteuid() == 0 ? 12 : geteuid();  // Others cannot give a link away.
    const TempDir dir;
    const CapturedLog log;
    WriteDeep(dir / "real/file", "");
    fs::create_symlink("real", dir / "way");
    std::string path = dir / "way/link";
    std::string target;
    ASSERT_EQ(0, FSCreateSymbolicLink(std::string(1023, 'x'), dir / "longest"));
    ASSERT_EQ(0, FSCreateSymbolicLink(std::string(1024, 'x'), dir / "too long"));
    ASSERT_EQ(0, FSCreateSymbolicLink("file", path));
    EXPECT_EQ(0, FSReadSymbolicLink(dir / "longest", target));
    EXPECT_EQ(1023U, target.size());
    EXPECT_EQ(0, FSReadSymbolicLink(path, target));
    EXPECT_EQ(-1, FSReadSymbolicLink(dir / "too long", target));
    EXPECT_EQ("file", target);
    EXPECT_EQ(0, FSChown(path, user, getegid()));
    EXPECT_EQ(0, FSUTime(path, 1, 99));
    EXPECT_EQ(0, FSChmod(path, 0611));  // Of the file.
    _FILE_INFO_tag link;
    ASSERT_EQ(0, GetFileInfo(path, link));
    EXPECT_EQ(dir / "real/link", link.path);
    EXPECT_EQ(std::tuple(4, 99, S_IFLNK | 0777U, user, getegid()),
              std::tuple(link.size, link.mtime, link.mode, link.uid, link.gid));
    EXPECT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ(dir / "real/file", path);
    EXPECT_EQ(fs::perms(0611), fs::status(path).permissions());
    EXPECT_EQ(1U, log.All().size());
}

TEST(TemporaryFiles, HaveRandomNamesAndOnlyRefusedAccessIsTold) {
    const TempDir dir;
    std::string file;
    std::string path;
    ASSERT_EQ(0, FSMktemp(dir.path(), file));
    EXPECT_EQ(fs::perms(0644), fs::status(file).permissions());
    EXPECT_TRUE(isFileLocked(file, X_OK) && !hasFilePermission(file, X_OK));  // For root, too.
    EXPECT_TRUE(!isFileLocked(file, R_OK) && hasFilePermission(dir / "none", X_OK));
    EXPECT_EQ(0, FSCreateTempPath(dir.path(), path));
    EXPECT_EQ(std::pair((dir / "123456").size(), (dir / "12345678").size()),
              std::pair(file.size(), path.size()));
    EXPECT_EQ(std::vector<std::string>{FSBaseName(file)}, NamesIn(dir.path()));
    EXPECT_TRUE(FSTimeEqual(7, 7) && !FSTimeEqual(7, 8));
}

TEST(Failures, OfOneSystemCallAreToldAndLogged) {
    const std::string none = "/dev/null/none";
    std::string path = none;
    DIR_HANDLE handle;
    const CapturedLog log;
    EXPECT_EQ(1, FSFsync("/none"));
    EXPECT_EQ(-1, FSFsync(none));
    EXPECT_EQ(-1, FSFsync("/dev/null"));
    EXPECT_EQ(-1, FSOpenDir(none, 0, handle));
    EXPECT_EQ(-1, FSReadSymbolicLink(none, path));
    EXPECT_EQ(-1, FSMktemp(none, path));
    EXPECT_EQ(5U, log.All().size());
    EXPECT_EQ(-1, FSGetRealPath(path));
    EXPECT_EQ(none, path);
}
