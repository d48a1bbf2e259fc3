#include <gtest/gtest.h>

#include <filesystem>

#include "extractor.h"
#include "notify_adapter.h"
#include "tests/support/archive_builder.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;
using Shown = std::vector<std::string>;

namespace {

// An archive, a destination, and everything that an extraction says and shows.
struct ExtractorTest : testing::Test {
    ExtractorTest() {
        extractor.archive_path = dir / "archive";
        extractor.destination = dir / "out";
        fs::create_directory(extractor.destination);
        auto* const adapter = Notify_Adapter::GetInstance();
        QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, &context,
                         [this](int all, int n) {
                             shown.push_back(std::to_string(n) + "/" + std::to_string(all));
                         });
        QObject::connect(adapter, &Notify_Adapter::sigUpdateDialogText, &context,
                         [this](const QString& text) { shown.push_back(text.toStdString()); });
    }

    TempDir dir;
    CapturedLog log;
    QObject context;
    Extractor extractor;
    Shown shown;
};

const char* const kText = "Corvimo Client is initializing...";

}  // namespace

TEST_F(ExtractorTest, UnpacksEveryFormatOverWhatIsInTheWay) {
    fs::create_directory_symlink("out", dir / "way");
    extractor.destination = dir / "way/app";
    WriteDeep(dir / "out/app/file", "old and longer");
    fs::create_symlink("/etc/z", dir / "out/app/replaced");
    for (const auto format : {ArchiveBuilder::ZIP, ArchiveBuilder::TAR, ArchiveBuilder::TAR_GZ,
                              ArchiveBuilder::SEVEN_ZIP}) {
        ArchiveBuilder archive(extractor.archive_path, format);
        archive.File("file", "new").File("replaced", "", 0755).SymbolicLink("link", "file");
        archive.File("/etc/z", "below the destination").Finish();
        shown.clear();
        EXPECT_EQ(0, extractor.Extract()) << format;
        EXPECT_EQ((Shown{kText, "1/4", "2/4", "3/4", "4/4"}), shown);
        EXPECT_EQ((TreeSnapshot{{"etc", "dir"},
                                {"etc/z", "file 644 below the destination"},
                                {"file", "file 644 new"},
                                {"link", "link file"},
                                {"replaced", "file 755 "}}),
                  Snapshot(dir / "out/app"));
    }
    EXPECT_EQ(Records(), log.All());
}

TEST_F(ExtractorTest, LinksAFileThatIsReachedThroughALink) {
    fs::create_directory_symlink("out", dir / "way");
    extractor.destination = dir / "way";
    ArchiveBuilder archive(extractor.archive_path, ArchiveBuilder::TAR);
    archive.File("file", "x").HardLink("second", "file").Finish();
    EXPECT_EQ(0, extractor.Extract());
    EXPECT_EQ("x", ReadFile(dir / "out/second"));
    EXPECT_TRUE(fs::is_symlink(dir / "way"));
}

TEST_F(ExtractorTest, RefusesWhatIsNoArchiveOrLeadsOutside) {
    const std::string total = "ERROR extractor: Failed to calculate total file numbers, ret: ";
    const std::string open = "ERROR extractor: archive_read_open_filename failed: '";
    WriteFile(dir / "text", "This is a text and no archive.");
    ArchiveBuilder(dir / "empty", ArchiveBuilder::TAR).Finish();
    ArchiveBuilder(dir / "up", ArchiveBuilder::ZIP).File("1", "").File("a/../../2", "").Finish();
    const std::pair<std::string, Records> rows[] = {
        {dir / "none", {open + "Failed to open '" + (dir / "none") + "''", total + "-1"}},
        {dir / "text", {open + "Unrecognized archive format'", total + "-1"}},
        {dir / "empty", {total + "0"}},
        {dir / "up", {"ERROR extractor: archive_read_extract2 failed: 'Path contains '..''"}},
        {"", {"ERROR extractor: Invalid Argument"}},
    };
    for (const auto& [path, records] : rows) {
        const CapturedLog own_log;
        extractor.archive_path = path;
        EXPECT_EQ(-1, extractor.Extract()) << path;
        EXPECT_EQ(records, own_log.All());
    }
    EXPECT_EQ((Shown{kText, kText, kText, kText, "1/2"}), shown);
    EXPECT_EQ((TreeSnapshot{{"1", "file 644 "}}), Snapshot(dir / "out"));
}
