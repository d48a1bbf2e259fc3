#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/vfs.h>

#include <filesystem>
#include <map>

#include "lib/file/file-op.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

static unsigned file_system_number;  // Or 0: no file system is found.

// Takes the place of the system's.
extern "C" int statfs(const char*, struct statfs* status) noexcept {
    status->f_type = static_cast<decltype(status->f_type)>(file_system_number);
    return file_system_number == 0 ? -1 : 0;
}

TEST(Volumes, OnANetworkOrOfTheFatTypeAreToldAndFailuresLogged) {
    const CapturedLog log;
    const std::map<unsigned, std::pair<bool, bool>> rows = {
        {0x6969, {true, false}},
        {0xFF534D42, {true, false}},  // NFS and CIFS.
        {0x4D44, {false, true}},
        {0, {false, false}}};
    for (const auto& [number, told] : rows) {
        file_system_number = number;
        EXPECT_EQ(told, std::pair(isMountPoint("/"), IsMSDOS("/"))) << std::hex << number;
    }
    EXPECT_EQ(3U, log.All().size());
}

TEST(FSRemove, WithAVolumeMountedInsideATreeLeavesThatVolumeAlone) {
    const TempDir dir;
    const std::string volume = dir / "tree/volume";
    std::filesystem::create_directories(volume);
    std::filesystem::create_directories(dir / "foreign");
    if (unshare(CLONE_NEWNS) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        GTEST_SKIP() << "Mounting is not permitted.";
    }
    for (const unsigned long flag : {0UL, static_cast<unsigned long>(MS_BIND)}) {
        ASSERT_EQ(0, mount((dir / "foreign").c_str(), volume.c_str(), "tmpfs", flag, nullptr));
        WriteFile(volume + "/file", "kept");
        EXPECT_EQ(-3, FSRemove(dir / "tree", false)) << flag;
        EXPECT_EQ("kept", ReadFile(volume + "/file"));
        EXPECT_EQ(0, umount(volume.c_str()));
    }
}
