#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <map>
#include <tuple>

#include "lib/file/file-op.h"
#include "lib/platform/linux/file_system_type.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/ordinary_user.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

TEST(Listing, GivesEveryEntryWithItsType) {
    const TempDir dir;
    WriteFile(dir / "file", "12345");
    fs::create_symlink("file", dir / "link");
    const std::map<std::string, uint32_t> types = {{".", FILE_TYPE_DIR},
                                                   {"..", FILE_TYPE_DIR},
                                                   {"file", FILE_TYPE_REGULAR},
                                                   {"link", FILE_TYPE_LINK}};
    for (const int options : {0, 1}) {
        DIR_HANDLE handle;
        ASSERT_EQ(0, FSOpenDir(dir.path(), options, handle));
        std::map<std::string, uint32_t> listed;
        for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1; listed[entry.name] = entry.type) {
            EXPECT_TRUE(entry.name != "file" || entry.size == 5 * options);
        }
        FSCloseDir(handle);
        EXPECT_EQ(types, listed);
    }
}

TEST(Utilities, FailWithTheirMessages) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    const std::string file = dir / "file";
    const std::string none = dir / "none";
    const std::string no_such = "No such file or directory";
    const std::string code = "' (code: 2, msg: " + no_such + ")";
    std::string output = "before";
    const std::string fits(1023, 'x');
    fs::create_symlink(fits, dir / "fits");
    fs::create_symlink(fits + "x", dir / "long");
    DIR_HANDLE handle;
    EXPECT_EQ(1, FSFsync(none));
    EXPECT_EQ(0, FSFsync(file));
    EXPECT_FALSE(isMountPoint(file) || IsMSDOS(file));
    const std::pair<std::function<int()>, std::string> rows[] = {
        {[&] { return FSOpenDir(none, 0, handle); },
         "FSOpenDir: Failed to open directory '" + none + "'. " + no_such},
        {[&] { return FSFsync(file + "/x"); },
         "FSFsync: open(" + file + "/x): Not a directory (20)"},
        {[&] { return FSMktemp(std::string(4096, 'x'), output); },
         "mkstemp(" + std::string(4095, 'x') + "): Invalid argument"},
        {[&] { return FSCreateSymbolicLink("to", none + "/x"); },
         "FSCreateSymbolicLink: Failed to create symbolic link 'to' -> '" + none + "/x" + code},
        {[&] { return FSReadSymbolicLink(none, output); },
         "FSReadSymbolicLink: Failed to read symbolic link '" + none + code},
        {[&] { return FSReadSymbolicLink(dir / "long", output); },
         "FSReadSymbolicLink: path of '" + (dir / "long") + "' is more than 1024"},
    };
    for (const auto& [call, message] : rows) {
        const CapturedLog log;
        EXPECT_EQ(-1, call()) << message;
        EXPECT_EQ(Records{"ERROR file-op: " + message}, log.All());
    }
    EXPECT_EQ("before", output);
    EXPECT_EQ(0, FSReadSymbolicLink(dir / "fits", output));
    EXPECT_EQ(fits, output);
}

TEST(Utilities, TemporaryFilesAndPaths) {
    const TempDir dir;
    std::string path;
    ASSERT_EQ(0, FSMktemp(dir.path(), path));
    EXPECT_EQ(fs::perms(0644), fs::status(path).permissions());
    ASSERT_EQ(0, FSCreateTempPath("f", path));
    EXPECT_EQ(10U, path.size());
}

TEST(Utilities, PermissionTestsTellOnlyRefusals) {
    const TempDir dir;
    fs::permissions(dir.path(), fs::perms(0755));
    const std::string secret = dir / "secret";
    WriteFile(secret, "");
    fs::permissions(secret, fs::perms(0200));
    EXPECT_EQ(1, RunAsOrdinaryUser([&] { return int{isFileLocked(secret, R_OK)}; }));
    EXPECT_EQ(0, RunAsOrdinaryUser([&] { return int{hasFilePermission(secret, R_OK)}; }));
    EXPECT_EQ(0, RunAsOrdinaryUser([&] { return int{isFileLocked(secret, F_OK)}; }));
    EXPECT_FALSE(isFileLocked(dir / "none", R_OK));
}

TEST(Utilities, LinksAreFollowedWhereTheyShouldBe) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    fs::create_symlink("file", dir / "link");
    std::string path = dir / "link";
    EXPECT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ(dir / "file", path);

    EXPECT_EQ(0, FSChown(dir / "link", 12, 34));
    EXPECT_EQ(0, FSUTime(dir / "link", 1, 99));
    EXPECT_EQ(0, FSChmod(dir / "link", 0611));
    _FILE_INFO_tag link;
    _FILE_INFO_tag file;
    ASSERT_EQ(0, GetFileInfo(dir / "link", link));
    ASSERT_EQ(0, GetFileInfo(dir / "file", file));
    EXPECT_EQ(std::tuple(12U, 34U, 99), std::tuple(link.uid, link.gid, link.mtime));
    EXPECT_EQ(getuid(), file.uid);
    EXPECT_EQ(S_IFREG | 0611U, file.mode);
}

TEST(FileSystemTypes, NetworkAndFatVolumesHaveTheirNames) {
    const std::pair<unsigned long, const char*> rows[] = {
        {0x6969, "nfs"},       {0x517B, "smbfs"}, {0xFF534D42, "smbfs"},
        {0xFE534D42, "smbfs"}, {0x4D44, "msdos"}, {0xEF53 /* ext4 */, "other"}};
    for (const auto& [magic, name] : rows) {
        EXPECT_STREQ(name, FileSystemTypeName(magic)) << std::hex << magic;
    }
}
