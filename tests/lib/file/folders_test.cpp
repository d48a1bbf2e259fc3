#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <tuple>

#include "lib/file/file-op.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

TEST(FSMKDir, ResultsAndMessages) {
    const TempDir dir;
    WriteFile(dir / "file", "");
    fs::create_directory(dir / "folder");
    fs::create_symlink("folder", dir / "link");
    const std::string not_folder =
        "FSMKDir: Create a folder but local file system is not directory '" + dir.path();
    const std::string unreachable = "FSMKDir: Failed to to file info '" + dir.path();
    const std::string no_parent = " errno : No such file or directory";
    // clang-format off
    const std::tuple<std::string, bool, int, std::string> rows[] = {
        {"",                              true,  -1, ""},
        {dir / "folder",                  false, 0,  ""},
        {dir / "one",                     false, 0,  ""},
        {dir / "x/y",                     false, -2, "path = " + dir.path() + "/x/y" + no_parent},
        {dir / "d/e/",                    true,  0,  ""},
        {fs::relative(dir.path()) / "f//g",   true,  0,  ""},
        {dir / "link/below/b",            true,  0,  ""},
        {dir / "file",                    true,  -1, not_folder + "/file' (1)"},
        {dir / "link",                    true,  -1, not_folder + "/link' (3)"},
        {dir / "file/below",              true,  -1, unreachable + "/file/below'"},
        {"/proc/x/y",                     true,  -2, "path = /proc/x/y" + no_parent},
    };
    // clang-format on
    for (const auto& [path, recursive, result, message] : rows) {
        const CapturedLog log;
        EXPECT_EQ(result, FSMKDir(path, recursive)) << path;
        EXPECT_TRUE(result != -2 || errno == ENOENT) << path;
        EXPECT_EQ(message.empty() ? Records() : Records{"ERROR file-op: " + message}, log.All());
        EXPECT_TRUE(result != 0 || fs::is_directory(path)) << path;
    }
}

TEST(FSMKDirFromRoot, CreatesLevelByLevelBelowTheRoot) {
    const TempDir dir;
    const std::string& root = dir.path();
    const std::tuple<std::string, std::string, int> rows[] = {{root + "/a/b", root, 0},
                                                              {root, root, 0},
                                                              {root, root + "/x", -1},
                                                              {root + "x/b", root, -1},
                                                              {root + "/c", root + "/", -1}};
    for (const auto& [target, below, result] : rows) {
        const CapturedLog log;
        EXPECT_EQ(result, FSMKDirFromRoot(target, below)) << target;
        EXPECT_EQ(result == 0 ? 0U : 1U, log.All().size()) << target;
    }
    EXPECT_TRUE(fs::is_directory(dir / "a/b"));
    EXPECT_FALSE(fs::exists(root + "x"));
}
