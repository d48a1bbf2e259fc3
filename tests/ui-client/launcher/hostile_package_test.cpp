#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <functional>

#include "lib/file/file-op.h"
#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/few_descriptors.h"
#include "tests/support/files.h"
#include "tests/support/private_home.h"
#include "tests/support/tree.h"

using Format = ArchiveBuilder::Format;

namespace {

using Formats = std::vector<Format>;
using Add = std::function<void(ArchiveBuilder&)>;

const Formats kAll = {ArchiveBuilder::ZIP, ArchiveBuilder::TAR, ArchiveBuilder::SEVEN_ZIP};
const Formats kZip = {ArchiveBuilder::ZIP};
const Formats kTar = {ArchiveBuilder::TAR};

std::string Levels(int count) {
    return QStringLiteral("d/").repeated(count).toStdString();
}

// A home with an old client, everything around it, which no package may touch, and few descriptors.
struct HostilePackage : testing::Test {
    HostilePackage() {
        WriteDeep(home / ".Corvimo/data/file", "data");
        WriteFile(home / "outside", "untouched");
        around = Snapshot(home / ".");
        home.InstallClient("100");
        before = Snapshot(home / ".");
    }

    // Installs the package, looks at what it has made and checks what holds after any package. The old
    // client is there again afterwards.
    int Install(const std::function<void()>& look = [] {}) {
        const int result = MacService().PrepareUserEnv();
        if (result == 0) {
            look();
            EXPECT_EQ(0, FSRemove(home.app, false));
            EXPECT_EQ(around, Snapshot(home / "."));
            home.InstallClient("100");
        }
        EXPECT_EQ(before, Snapshot(home / "."));
        return result;
    }

    const FewDescriptors few{64};
    const PrivateHome home;
    const CapturedLog log;
    TreeSnapshot around;
    TreeSnapshot before;
};

// How many files and links of a tree are missing in another, or different there.
std::ptrdiff_t CountDamaged(const TreeSnapshot& whole, const TreeSnapshot& other) {
    return std::count_if(whole.begin(), whole.end(), [&other](const auto& object) {
        const auto found = other.find(object.first);
        return object.second != "dir" && (found == other.end() || found->second != object.second);
    });
}

}  // namespace

TEST_F(HostilePackage, InstallsWholeOrLeavesTheOldClient) {
    const std::string up = "../../outside";
    // clang-format off
    const struct { const char* name; int result; Formats formats; Add add; } rows[] = {
        {"no entries", -1, kAll, [](auto&) {}},
        {"upwards", -1, kAll, [](auto& p) { p.File("a/../../../outside", "x"); }},
        {"absolute", 0, kAll, [&](auto& p) { p.File(home / "outside", "x"); }},
        {"over a link", 0, kAll, [&](auto& p) { p.SymbolicLink("l", up).File("l", "x"); }},
        {"through a link", 0, kAll, [](auto& p) { p.SymbolicLink("l", ".").File("l/f", "x"); }},
        {"hard link upwards", -1, kTar, [&](auto& p) { p.HardLink("l", up).File("l", "x"); }},
        {"absolute hard link", -1, kTar, [&](auto& p) { p.HardLink("l", home / "outside"); }},
        {"two links", -1, kTar, [&](auto& p) { p.SymbolicLink("l", up).HardLink("h", "l/."); }},
        {"fifo", 0, kTar, [](auto& p) { p.Special("fifo", S_IFIFO); }},
        {"device", 0, kTar, [](auto& p) { p.Special("device", S_IFCHR); }},
        {"name too long", -1, kAll, [](auto& p) { p.File(std::string(5000, 'n'), "x"); }},
        {"2,000 levels", 0, kAll, [](auto& p) { p.File(Levels(2000) + "f", ""); }},
        {"10,000 levels", -1, kAll, [](auto& p) { p.Folder("a/").File(Levels(10000), ""); }},
        {"not UTF-8", 0, kTar, [](auto& p) { p.File("a\xFF", "x"); }},
        {"not its UTF-8", -1, kZip, [](auto& p) { p.File("a", "").File("\xFF", ""); }},
        {"one name twice", 0, kAll, [](auto& p) { p.File("a", "1").File("a", "2"); }},
        {"file over folder", -1, kAll, [](auto& p) { p.File("a/b", "1").File("a", "2"); }},
        {"folder over file", -1, kAll, [](auto& p) { p.File("a", "1").File("a/b", "2"); }},
        {"the bundle itself", 0, kAll, [](auto& p) { p.File(".", "x"); }},
    };
    // clang-format on
    for (const auto& row : rows) {
        for (const Format format : row.formats) {
            SCOPED_TRACE(row.name + std::to_string(format));
            ArchiveBuilder package = home.Package(format);
            row.add(package);
            package.Finish();
            EXPECT_EQ(row.result, Install());
        }
    }
}

// Only a 7-Zip archive has checksums over everything: in a tar a content, in a zip a name or a mode may
// change unnoticed. That is one entry for one byte (and one more where a name becomes another's), and none
// for a cut.
TEST_F(HostilePackage, DamagedAnywhere) {
    for (const Format format : kAll) {
        ArchiveBuilder package = home.Package(format);
        for (char name = 'a'; name < 'h'; ++name) {
            package.File(std::string("folder/") + name, std::string(700, name));
        }
        package.SymbolicLink("link", "folder/a").File("run", "client 101", 0755).Finish();
        TreeSnapshot whole;
        ASSERT_EQ(0, Install([&] { whole = Snapshot(home.app); }));
        const std::string good = ReadFile(home.package);
        for (std::size_t i = 0; i < 250; ++i) {
            SCOPED_TRACE(std::to_string(format) + " " + std::to_string(i));
            std::string bad = good;
            if (i < 50) {
                bad.resize(good.size() * i / 50);
            } else {
                bad[good.size() * (i - 50) / 200] ^= 0x10;
            }
            WriteFile(home.package, bad);
            const int tolerated = i < 50 || format == ArchiveBuilder::SEVEN_ZIP ? 0 : 1;
            Install([&] { EXPECT_GE(tolerated, CountDamaged(whole, Snapshot(home.app))); });
        }
    }
}

// The last folders lie deeper than a path reaches: the link has been the way to them.
TEST_F(HostilePackage, WhatIsTooDeepToRemoveLeavesTheOldClientUnderABackupName) {
    const TreeSnapshot old = Snapshot(home.app);
    ArchiveBuilder package = home.Package(ArchiveBuilder::TAR);
    package.Folder(Levels(1900)).SymbolicLink("way", Levels(1900)).Folder("way/" + Levels(300));
    package.File("../outside", "x").Finish();
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(old, Snapshot(home.app + "_tmp"));
    EXPECT_EQ(0, FSRemove(home.app + "/way/d", false));
}

TEST_F(HostilePackage, WhatItMakesCanBeCopiedHoweverDeep) {
    ASSERT_EQ(0, FSMKDir(home / "from/" + Levels(2000), true));
    EXPECT_EQ(0, MacService().FSCopyPath(home / "from", home / "to"));
    EXPECT_EQ(0, FSRemove(home / "from", false));
    EXPECT_TRUE(IsFileExist(home / "to/" + Levels(2000), false));
    EXPECT_EQ(0, FSRemove(home / "to", false));
}
