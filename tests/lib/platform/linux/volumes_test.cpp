#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/vfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "lib/file/file-op.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

static unsigned file_system_number;

// Takes the place of the system's.
extern "C" int statfs(const char*, struct statfs* status) noexcept {
    status->f_type = static_cast<decltype(status->f_type)>(file_system_number);
    return 0;
}

TEST(Volumes, OnANetworkAndOfTheFatTypeAreTold) {
    const CapturedLog log;
    for (const unsigned number : {0x6969U, 0x517BU, 0xFF534D42U, 0xFE534D42U, 0x4D44U, 0xEF53U}) {
        file_system_number = number;  // The last one is that of ext4.
        EXPECT_EQ(number != 0x4D44 && number != 0xEF53, isMountPoint("/")) << std::hex << number;
        EXPECT_EQ(number == 0x4D44, IsMSDOS("/")) << std::hex << number;
    }
}

namespace {

enum ChildResult { kGood, kBad, kNoMounts };

// Runs in a process of its own: what it mounts goes with that.
ChildResult RemoveAroundAMount(const TempDir& dir) {
    WriteDeep(dir / "tree/folder/file", "");
    std::filesystem::create_directory(dir / "tree/volume");
    const int name_spaces = CLONE_NEWNS | (geteuid() == 0 ? 0 : CLONE_NEWUSER);
    if (unshare(name_spaces) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", (dir / "tree/volume").c_str(), "tmpfs", 0, nullptr) != 0) {
        return kNoMounts;
    }
    WriteFile(dir / "tree/volume/file", "kept");
    return FSRemove(dir / "tree", false) == -3 && ReadFile(dir / "tree/volume/file") == "kept"
               ? kGood
               : kBad;
}

}  // namespace

TEST(FSRemove, LeavesAnotherVolumeInsideATreeAlone) {
    const TempDir dir;
    const pid_t child = fork();
    if (child == 0) {
        _exit(RemoveAroundAMount(dir));
    }
    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    if (WEXITSTATUS(status) == kNoMounts) {
        GTEST_SKIP() << "Mounting is not permitted.";
    }
    EXPECT_EQ(kGood, status);
}
