// What is installed from a package, and what a hostile package cannot do.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include "extractor.h"
#include "lib/file/file-op.h"
#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/private_home.h"

namespace fs = std::filesystem;

namespace {

using Formats = std::vector<std::string>;

const Formats kAll = {".zip", ".tar", ".7z"};

std::string Levels(int count) {
    return QStringLiteral("d/").repeated(count).toStdString();
}

// A home folder with an old client. No package may change what is around the client. The
// constructor limits the descriptors of the whole test program.
struct HostilePackage : testing::Test {
    HostilePackage() {
        const rlimit few = {64, 64};
        EXPECT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
        WriteDeep(home / ".Corvimo/data/file", "data");
        WriteFile(home / "outside", "untouched");
        around = Snapshot(home / ".");
        home.InstallClient();
        before = Snapshot(home / ".");
    }

    // Installs the package, and runs `check_app` after a success. Then checks what must hold for
    // every package, and leaves the old client installed.
    int Install(const std::function<void()>& check_app = [] {}) {
        const int result = MacService().PrepareUserEnv();
        if (result == 0) {
            check_app();
            EXPECT_EQ(0, FSRemove(home.app, false));
            EXPECT_EQ(around, Snapshot(home / "."));
            home.InstallClient();
        }
        EXPECT_EQ(before, Snapshot(home / "."));
        return result;
    }

    const PrivateHome home;
    const CapturedLog log;
    TreeSnapshot around;
    TreeSnapshot before;
};

// Returns how many files and links of a tree are missing in another tree, or different there.
std::ptrdiff_t CountDamaged(const TreeSnapshot& whole, const TreeSnapshot& other) {
    return std::count_if(whole.begin(), whole.end(), [&other](const auto& object) {
        const auto found = other.find(object.first);
        return object.second != "dir" && (found == other.end() || found->second != object.second);
    });
}

}  // namespace

TEST(ExtractPackage, WithOlderFilesInPlaceReplacesThemAndKeepsALinkAboveThem) {
    const PrivateHome home;
    fs::create_directory_symlink("way", home / ".Corvimo");
    WriteDeep(home / "way/Corvimo.app/file", "old and longer");
    fs::create_symlink("file", home / "way/Corvimo.app/run");
    for (const char* const format : {".zip", ".tar", ".tar.gz", ".7z"}) {
        home.Pack({{"file", "new"}, {"run", "", kExecutable}, {"link", "file", kSymbolicLink}},
                  format);
        EXPECT_EQ(0, MacService().ExtractPackage()) << format;
        EXPECT_EQ(
            (TreeSnapshot{{"file", "file 644 new"}, {"link", "link file"}, {"run", "file 755 "}}),
            Snapshot(home.app));
    }
    home.Pack({{"file", "x"}, {"second", "file", kHardLink}}, ".tar");
    EXPECT_EQ(0, MacService().ExtractPackage());
    EXPECT_EQ("x", ReadFile(home.app + "/second"));
    EXPECT_TRUE(fs::is_symlink(home / ".Corvimo"));
}

TEST_F(HostilePackage, InstallsWholeOrLeavesTheOldClient) {
    const std::string up = "../../outside";
    // clang-format off
    const struct { std::string name; int result; Formats formats; std::vector<Entry> entries; } rows[] = {
        {"no entries", -1, kAll, {}},
        {"upwards", -1, kAll, {{"a/../../../outside", "x"}}},
        {"absolute", 0, kAll, {{home / "outside", "x"}}},
        {"over a link", 0, kAll, {{"l", up, kSymbolicLink}, {"l", "x"}}},
        {"through a link", 0, kAll, {{"l", ".", kSymbolicLink}, {"l/f", "x"}}},
        {"hard link upwards", -1, {".tar"}, {{"l", up, kHardLink}, {"l", "x"}}},
        {"absolute hard link", -1, {".tar"}, {{"l", home / "outside", kHardLink}}},
        {"two links", -1, {".tar"}, {{"l", up, kSymbolicLink}, {"h", "l/.", kHardLink}}},
        {"fifo", 0, {".tar"}, {{"fifo", "", S_IFIFO | 0644}}},
        {"device", 0, {".tar"}, {{"device", "", S_IFCHR | 0644}}},
        {"name too long", -1, kAll, {{std::string(5000, 'n'), "x"}}},
        {"2,000 levels", 0, kAll, {{Levels(2000) + "f", ""}}},
        {"2,500 levels", -1, kAll, {{"a/", "", kFolder}, {Levels(2500), ""}}},
        {"not UTF-8", 0, {".tar"}, {{"a\xFF", "x"}}},
        {"not its UTF-8", -1, {".zip"}, {{"a", ""}, {"\xFF", ""}}},
        {"one name twice", 0, kAll, {{"a", "1"}, {"a", "2"}}},
        {"file over folder", -1, kAll, {{"a/b", "1"}, {"a", "2"}}},
        {"folder over file", -1, kAll, {{"a", "1"}, {"a/b", "2"}}},
        {"the bundle itself", 0, kAll, {{".", "x"}}},
    };
    // clang-format on
    for (const auto& row : rows) {
        for (const std::string& format : row.formats) {
            SCOPED_TRACE(row.name + format);
            home.Pack(row.entries, format);
            EXPECT_EQ(row.result, Install());
        }
    }
}

// Only 7-Zip has checksums over everything. A changed byte can change the content of one entry of a
// tar unnoticed, and the name or the mode of one entry of a zip. A cut is always noticed here,
// because no cut of the tar falls between two entries.
TEST_F(HostilePackage, DamagedAnywhereIsRefusedOrInstalledButForOneEntry) {
    std::vector<Entry> entries;
    for (char name = 'a'; name < 'h'; ++name) {
        entries.push_back({std::string("folder/") + name, std::string(700, name)});
    }
    entries.push_back({"link", "folder/a", kSymbolicLink});
    entries.push_back({"run", "client 101", kExecutable});
    for (const std::string& format : kAll) {
        home.Pack(entries, format);
        TreeSnapshot whole;
        ASSERT_EQ(0, Install([&] { whole = Snapshot(home.app); }));
        const std::string good = ReadFile(home.package);
        for (std::size_t i = 0; i < 250; ++i) {
            SCOPED_TRACE(format + " " + std::to_string(i));
            std::string bad = good;
            if (i < 50) {
                bad.resize(good.size() * i / 50);
            } else {
                bad[good.size() * (i - 50) / 200] ^= 0x10;
            }
            WriteFile(home.package, bad);
            const int tolerated = i < 50 || format == ".7z" ? 0 : 1;
            Install([&] { EXPECT_GE(tolerated, CountDamaged(whole, Snapshot(home.app))); });
        }
    }
}

// The path of the last 300 folders is longer than the system allows. They are created through the
// symbolic link.
TEST_F(HostilePackage, WithFoldersBeyondThePathLimitIsRemovedAfterAFailure) {
    home.Pack({{Levels(1900), "", kFolder},
               {"way", Levels(1900), kSymbolicLink},
               {"way/" + Levels(300), "", kFolder},
               {"../outside", "x"}},
              ".tar");
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(before, Snapshot(home / "."));
}

TEST_F(HostilePackage, WithAnEntryThatCannotBeExtractedLogsTheCause) {
    std::string content;
    for (unsigned i = 0; i < 9999; ++i) {
        content += static_cast<char>(i * i >> 7);
    }
    home.Pack({{"a", content}});
    fs::resize_file(home.package, fs::file_size(home.package) / 2);
    Install();
    fs::remove_all(home.app);
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    Extractor extractor;
    extractor.destination = home / "missing";
    extractor.archive_path = home.package;
    home.Pack({{"hard", "a", kHardLink}}, ".tar");
    EXPECT_EQ(-1, extractor.Extract());
    const std::string failed = "ERROR extractor: archive_read_extract2 failed: '";
    const std::string cause = "WARNING extractor: package reader: 'ZIP decompression failed (-5)'";
    const std::string then = "ERROR cloud-service: Failed to extract package, ";
    EXPECT_EQ((Records{failed + "'", cause, then + "rollback to old installation", failed + "'",
                       cause, then + "and no old installation to rollback",
                       failed + "Cannot resolve '" + home / "missing" + "''"}),
              log.All());
}
