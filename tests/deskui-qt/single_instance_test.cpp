#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <list>
#include <map>
#include <string>

#include "child.h"
#include "tests/support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

bool RunIn(const TempDir& folder, const std::string& commands) {
    return std::system(("cd '" + folder.path() + "' && " + commands).c_str()) == 0;
}

TEST(QtSingleApplicationTest, OneOfManyIsTheInstanceUntilItIsKilled) {
    const TempDir home;
    std::list<Child> racers;
    while (racers.size() < 8) {
        racers.emplace_back(home.path());
    }
    std::multimap<std::string, Child*> answers;
    for (Child& racer : racers) {
        answers.emplace(racer.ReadLine(), &racer);
    }
    EXPECT_EQ(answers.count("running"), 7U);
    ASSERT_EQ(answers.count("alone"), 1U);
    answers.find("alone")->second->kill();
    answers.find("alone")->second->waitForFinished();
    EXPECT_EQ(fs::status(home / ".Corvimo").permissions(), fs::perms{0700});
    EXPECT_EQ(fs::status(home / ".Corvimo/launcher.lock").permissions(), fs::perms{0600});
    EXPECT_EQ(Child(home.path()).ReadLine(), "alone");
}

TEST(QtSingleApplicationTest, IsOnePerHomeFolderHoweverItIsReached) {
    const TempDir folder;
    ASSERT_TRUE(RunIn(folder, "mkdir 'ho me ä' other && ln -s 'ho me ä' link"));
    Child first(folder / "ho me ä");
    EXPECT_EQ(first.ReadLine(), "alone");
    EXPECT_EQ(Child(folder / "link").ReadLine(), "running");
    EXPECT_EQ(Child(folder / "other").ReadLine(), "alone");
}

TEST(QtSingleApplicationTest, LeavesNoLockToTheProgramsItStarts) {
    const TempDir home;
    Child child(home.path());
    EXPECT_EQ(child.ReadLine(), "alone");
    child.ReadLine();
    child.write("!now cat\n");
    ASSERT_EQ(child.ReadLine(), "now cat");
    EXPECT_EQ(Child(home.path()).ReadLine(), "alone");
}

TEST(QtSingleApplicationTest, LocksOnlyARealFileInAPrivateFolder) {
    // clang-format off
    const std::pair<const char*, bool> rows[] = {
        {"mkdir -m 0755 .Corvimo", true}, {"mkdir -m 0700 real && ln -s real .Corvimo", true},
        {"mkdir -m 0770 .Corvimo", false}, {"mkdir -m 0702 .Corvimo", false}, {"rmdir $PWD", false},
        {"mkdir -m 0700 .Corvimo .Corvimo/launcher.lock", false}, {"touch .Corvimo", false},
        {"mkdir -m 0700 .Corvimo && ln -s ../target .Corvimo/launcher.lock", false},
        {"mkdir -m 0755 .Corvimo && chown 12345 .Corvimo", false},
    };
    // clang-format on
    for (const auto& [preparation, locks] : rows) {
        SCOPED_TRACE(preparation);
        const TempDir home;
        if (!RunIn(home, preparation)) {
            GTEST_SKIP() << preparation << ": giving a folder away takes the rights of root";
        }
        Child first(home.path());
        EXPECT_EQ(first.ReadLine(), "alone");
        EXPECT_EQ(Child(home.path()).ReadLine(), locks ? "running" : "alone");
        EXPECT_EQ(fs::is_regular_file(home / ".Corvimo/launcher.lock"), locks);
    }
}

}  // namespace
