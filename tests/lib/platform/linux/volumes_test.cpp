#include <gtest/gtest.h>
#include <sys/vfs.h>

#include "lib/file/file-op.h"

static unsigned file_system_number;

// Takes the place of the system's.
extern "C" int statfs(const char*, struct statfs* status) noexcept {
    status->f_type = static_cast<decltype(status->f_type)>(file_system_number);
    return 0;
}

TEST(Volumes, OnANetworkAndOfTheFatTypeAreTold) {
    for (const unsigned number : {0x6969U, 0x517BU, 0xFF534D42U, 0xFE534D42U, 0x4D44U, 0xEF53U}) {
        file_system_number = number;  // The last one is that of ext4.
        EXPECT_EQ(number != 0x4D44 && number != 0xEF53, isMountPoint("/")) << std::hex << number;
        EXPECT_EQ(number == 0x4D44, IsMSDOS("/")) << std::hex << number;
    }
}
