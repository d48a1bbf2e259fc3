#include <gtest/gtest.h>

#include <filesystem>

#include "UIPathManager.h"
#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/private_home.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

namespace {

const std::string kError = "ERROR cloud-service: ";

// Shows the versions and records the order of the steps in place of taking them.
struct ProbedService : MacService {
    using Service::source_build_version;
    using Service::source_minor_version;
    using Service::target_build_version;

    void StopService() override { steps += "stop "; }
    void MigrateService() override { steps += "migrate "; }
    int PrepareUserEnv() override {
        steps += "install";
        return 7;
    }

    std::string steps;
};

}  // namespace

TEST(Versions, AreReadFromTheVersionGroupAlone) {
    const PrivateHome home;
    WriteDeep(home.app + "/Contents/Resources/INFO",
              "build_version=9\n[Other]\nminor_version=8\n[Version]\nmajor_version = 1\n"
              "build_version=100\nicon_overlay_version=\"a b\"\n");
    ProbedService service;
    service.source_minor_version = "kept";
    const CapturedLog log(Logger::INFO);
    service.PreUpgrade();
    EXPECT_EQ((Records{"INFO cloud-service: target_version = (, , , )",
                       "INFO cloud-service: source_version = (1, kept, 100, a b)"}),
              log.All());
}

TEST(IsNeedUpgrade, ComparesBuildNumbersAsIntegers) {
    // clang-format off
    const struct { const char *source, *target; bool has_client, expected; } rows[] = {
        {"100", "101", true, true},  {"101", "101", true, false}, {"102", "101", true, false},
        {"99", "101", true, true},   {"", "1", true, true},       {"", "", true, false},
        {"12a", "12", true, false},  {"x", "0", true, false},     {" -5", "-4", true, true},
        {"101", "101", false, true}, {"102", "101", false, true}, {"4294967296", "1", true, true},
    };
    // clang-format on
    for (const auto& row : rows) {
        const PrivateHome home;
        WriteDeep(home.app + "/Contents/MacOS/" + (row.has_client ? "corvimo-ui" : "other"), "");
        ProbedService service;
        service.source_build_version = row.source;
        service.target_build_version = row.target;
        EXPECT_EQ(row.expected, service.IsNeedUpgrade()) << row.source << " -> " << row.target;
    }
}

TEST(HandlePackageUpgrade, TakesTheStepsOfTheSituation) {
    // clang-format off
    const struct { const char *client, *old_product, *steps; } rows[] = {
        {"Contents/MacOS/corvimo-ui", "none",      "stop install"},
        {"Contents/MacOS/corvimo-ui", ".Lumaport", "stop install"},
        {"none",                      "none",      "install"},
        {"none",                      ".Lumaport", "migrate install"},
    };
    // clang-format on
    for (const auto& row : rows) {
        const PrivateHome home;
        WriteDeep(home.app + "/" + row.client, "");
        fs::create_directory(home / row.old_product);
        ProbedService service;
        EXPECT_EQ(7, service.HandlePackageUpgrade());
        EXPECT_EQ(row.steps, service.steps);
    }
}

TEST(PrepareUserEnv, ReplacesTheOldBundleAndClearsLeftovers) {
    const PrivateHome home;
    home.InstallClient("100");
    home.Package().File("new", "101").Finish();
    WriteDeep(home.app + "_tmp/leftover", "");
    WriteDeep(home.app + "_tmp3/leftover", "");
    EXPECT_EQ(0, MacService().PrepareUserEnv());
    EXPECT_EQ((TreeSnapshot{{"new", "file 644 101"}}), Snapshot(home.app));
    EXPECT_EQ((Records{"Corvimo.app", "Corvimo.app_tmp3"}), NamesIn(home / ".Corvimo"));
}

TEST(PrepareUserEnv, RollsBackWhatCannotBeUnpacked) {
    const PrivateHome home;
    home.Package().File("Contents/new", "new").File("../outside", "").Finish();
    const CapturedLog log;
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ("new", ReadFile(home.app + "/Contents/new"));
    home.InstallClient("100");
    const TreeSnapshot before = Snapshot(home / ".Corvimo");
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(before, Snapshot(home / ".Corvimo"));
    const std::string failed = kError + "Failed to extract package, ";
    EXPECT_EQ((Records{failed + "and no old installation to rollback",
                       failed + "rollback to old installation"}),
              log.Without(" extractor: "));
}

TEST(PrepareUserEnv, InstallsNothingWithoutANameForTheBackup) {
    const PrivateHome home;
    home.InstallClient("100");
    home.Package().File("new", "101").Finish();
    Records expected;
    for (const char* const number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        const std::string name = home.app + "_tmp" + number;
        WriteDeep(name + "/leftover", "");
        expected.push_back(kError + "failed to backup app from '" + home.app + "' -> '" + name +
                           "'");
    }
    expected.push_back(expected.back() + " at max retries, exiting");
    const TreeSnapshot before = Snapshot(home / ".Corvimo");
    const CapturedLog log;
    EXPECT_EQ(-1, MacService().PrepareUserEnv());
    EXPECT_EQ(expected, log.All());
    EXPECT_EQ(before, Snapshot(home / ".Corvimo"));
}

TEST(MigrateService, LosesNoData) {
    // clang-format off
    const struct { const char *in_the_way, *new_folder, *message; } rows[] = {
        {"unrelated",          ".Corvimo",      nullptr},
        {".Corvimo/data/file", ".Corvimo",      "Failed to move data to Corvimo folder"},
        {"file",               "file/.Corvimo", "Failed to create Corvimo folder"},
    };
    // clang-format on
    for (const auto& row : rows) {
        const PrivateHome home;
        UIPathManager::getInstance()->setPath(QStringLiteral("user_corvimo_path"),
                                              QString::fromStdString(home / row.new_folder));
        WriteDeep(home / ".Lumaport/data/a/file", "data");
        WriteDeep(home / row.in_the_way, "new");
        const TreeSnapshot before = Snapshot(home / ".");
        const CapturedLog log;
        MacService().MigrateService();
        if (row.message == nullptr) {
            EXPECT_EQ("data", ReadFile(home / ".Corvimo/data/a/file"));
            EXPECT_FALSE(fs::exists(home / ".Lumaport"));
        } else {
            EXPECT_EQ(before, Snapshot(home / "."));
            EXPECT_EQ(Records{kError + row.message}, log.Without(" file-op: "));
        }
    }
}

TEST(FSCopyPath, CopiesATreeUpToTheFirstFailure) {
    const PrivateHome home;
    WriteDeep(home / "from/a/file", "content");
    EXPECT_EQ(0, MacService().FSCopyPath(home / "from", home / "x/to"));
    EXPECT_EQ((TreeSnapshot{{"a", "dir"}, {"a/file", "file 644 content"}}),
              Snapshot(home / "x/to"));
    fs::create_symlink("nowhere", home / "from/a/link");
    const CapturedLog log;
    EXPECT_EQ(-1, MacService().FSCopyPath(home / "from", home / "to"));
    const std::string failed = kError + "FSCopyPath: failed to copy from '";
    EXPECT_EQ((Records{failed + (home / "from/a/link' to '") + (home / "to/a/link'"),
                       failed + (home / "from/a' to '") + (home / "to/a'")}),
              log.Without(" file-op: "));
}
