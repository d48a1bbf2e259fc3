// The launcher, with each of its calls failing and killed at each of them. A run takes a sample of the
// calls; with CORVIMO_WHOLE_MATRIX set it takes all of them.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "tests/e2e/scene.h"
#include "tests/support/files.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

namespace {

constexpr int kKill = 0;
constexpr long kTries = CORVIMO_TRIES;
const std::vector<int> kErrors = {EIO, ENOSPC, EACCES, EMFILE, ENOMEM, EINTR};

const char* const kApp = ".Corvimo/Corvimo.app";
const char* const kData[] = {"data/file", "data/deep/other"};

// Short enough for a snapshot to hold it as it stands.
const char* const kClient =
    "#!/bin/sh\n"
    "echo \"$(sed -n 's/^build_version=//p' \"${0%/*}/../Resources/INFO\") $$\" "
    ">>\"$HOME/started\"\n";

struct Scenario {
    const char* name;
    int files;
    bool has_old_client;  // Else it has the older product.
    bool package_is_bad;
    bool is_on_another_volume;
};
constexpr Scenario kScenarios[] = {
    {"upgrade", 4, true, false, false},
    {"upgrade_with_a_bad_package", 4, true, true, false},
    {"migration", 4, false, false, false},
    {"migration_to_another_volume", 4, false, false, true},
};
constexpr Scenario kLargeUpgrade = {"large_upgrade", 300, true, false, false};

// One person's machine, to be put back to its beginning again and again.
class Stage : public Scene {
public:
    explicit Stage(const Scenario& scenario) : scenario_(scenario) {
        fs::create_directory(*this / ".Corvimo");
        if (scenario_.is_on_another_volume) {
            is_mounted_ = unshare(CLONE_NEWNS) == 0 &&
                          mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                          mount("none", (*this / ".Corvimo").c_str(), "tmpfs", 0, "mode=755") == 0;
        }
        EXPECT_EQ("", InstallationFault("100"));
        old_tree_ = Snapshot(*this / kApp);
        fs::copy(*this / kApp, *this / "old", kAsTheyAre);
    }
    ~Stage() {
        if (is_mounted_) {
            umount2((*this / ".Corvimo").c_str(), MNT_DETACH);
        }
    }

    bool IsComplete() const { return is_mounted_ == scenario_.is_on_another_volume; }

    long CountCalls(const std::string& call) {
        Reset();
        Carry("101", scenario_.package_is_bad);
        EXPECT_EQ(0, RunWithFault(call, 0, kKill));
        return std::stol(ReadFile(*this / "calls"));
    }

    // Has one call fail. Says what is wrong then, or after the next starts; nothing if all is well.
    std::string Fault(const std::string& call, long number, int error) {
        Reset();
        const TreeSnapshot new_tree = Carry("101", scenario_.package_is_bad);
        if (RunWithFault(call, number, error) != (error == kKill ? -1 : 0)) {
            return "crashed, hung or not killed";
        }
        const TreeSnapshot app = Snapshot(*this / kApp);
        const auto aside = Backups();
        const bool may_be_aside = error == kKill || scenario_.package_is_bad;
        if (scenario_.has_old_client && app != new_tree && app != old_tree_ &&
            !(may_be_aside && std::count(aside.begin(), aside.end(), old_tree_) == 1)) {
            return "no whole client";
        }
        if (!HasData()) {
            return "data gone";
        }
        if (error != kKill && app == new_tree) {
            return "";
        }
        std::string fault = InstallationFault("101");
        fault += InstallationFault("102");
        fault += Backups().empty() ? "" : "backup left ";
        return fault + (error == kKill && fs::exists(*this / ".Lumaport") ? "not migrated" : "");
    }

private:
    static constexpr auto kAsTheyAre =
        fs::copy_options::recursive | fs::copy_options::copy_symlinks;

    void Reset() {
        for (const std::string& name : NamesIn(*this / ".Corvimo")) {
            fs::remove_all(*this / (".Corvimo/" + name));
        }
        fs::remove_all(*this / ".Lumaport");
        if (scenario_.has_old_client) {
            fs::copy(*this / "old", *this / kApp, kAsTheyAre);
        }
        for (const char* const file : kData) {
            WriteDeep(*this / (scenario_.has_old_client ? ".Corvimo/" : ".Lumaport/") + file, file);
        }
    }

    // Makes the launcher's package and gives the tree that it must become.
    TreeSnapshot Carry(const std::string& build, bool is_bad) {
        TreeSnapshot tree;
        ArchiveBuilder package(Package(), ArchiveBuilder::ZIP);
        const auto add = [&](const std::string& name, const std::string& content, bool runs) {
            package.File(name, content, runs ? 0755 : 0644);
            tree[name] = (runs ? "file 755 " : "file 644 ") + content;
            for (fs::path path = name; (path = path.parent_path()) != "";) {
                tree[path] = "dir";
            }
        };
        add("Contents/Info.plist", "<key>CFBundleExecutable</key><string>corvimo-ui</string>",
            false);
        add("Contents/MacOS/corvimo-ui", kClient, true);
        for (int i = 0; i < scenario_.files; ++i) {
            const std::string name =
                "Contents/" + std::to_string(i / 20) + "/" + std::to_string(i) + "-" + build;
            add(name, name, i % 3 == 0);
            package.SymbolicLink(name + "-link", "../Info.plist");
            tree[name + "-link"] = "link ../Info.plist";
        }
        if (is_bad) {
            package.File("Contents/../../outside", "");
        }
        const std::string info = "[Version]\nbuild_version=" + build + "\n";
        add("Contents/Resources/INFO", info, false);
        package.Finish();
        WriteFile(Bundle("Resources/INFO"), info);
        return tree;
    }

    // Waits for what the launcher has started, too.
    int RunToTheEnd() {
        const int status = Run();
        while (waitpid(-1, nullptr, 0) > 0) {
        }
        return status;
    }

    int RunWithFault(const std::string& call, long number, int error) {
        environment = {{"LD_PRELOAD", CORVIMO_FAULT_LIBRARY},
                       {"ASAN_OPTIONS", "verify_asan_link_order=0"},
                       {"FAULT_CALL", call},
                       {"FAULT_NUMBER", std::to_string(number)},
                       {"FAULT_ERROR", std::to_string(error)},
                       {"FAULT_REPORT", *this / "calls"}};
        const int status = RunToTheEnd();
        environment.clear();
        return status;
    }

    // What is wrong after an ordinary start with a good package.
    std::string InstallationFault(const std::string& build) {
        const TreeSnapshot tree = Carry(build, false);
        fs::remove(*this / "started");
        if (RunToTheEnd() != 0 || Snapshot(*this / kApp) != tree) {
            return build + " not installed ";
        }
        if (StartedBuilds(1) != std::vector<std::string>{build}) {
            return build + " not opened ";
        }
        return build != "100" && !HasData() ? "data gone " : "";
    }

    std::vector<TreeSnapshot> Backups() const {
        std::vector<TreeSnapshot> trees;
        for (const std::string& name : NamesIn(*this / ".Corvimo")) {
            if (name.find("_tmp") != std::string::npos) {
                trees.push_back(Snapshot(*this / (".Corvimo/" + name)));
            }
        }
        return trees;
    }

    bool HasData() const {
        return std::all_of(std::begin(kData), std::end(kData), [this](const char* file) {
            const auto is_in = [&](const std::string& folder) {
                return fs::exists(*this / (folder + file)) &&
                       ReadFile(*this / (folder + file)) == file;
            };
            return is_in(".Corvimo/") || is_in(".Lumaport/");
        });
    }

    const Scenario scenario_;
    bool is_mounted_ = false;
    TreeSnapshot old_tree_;
};

struct Case {
    std::string call;
    Scenario scenario;
    long sample;
    long shard = 0;
    long shards = 1;
};

std::string NameOf(const Case& row) {
    return row.call + "_" + row.scenario.name +
           (row.shards > 1 ? "_" + std::to_string(row.shard) : "");
}

void PrintTo(const Case& row, std::ostream* stream) {
    *stream << NameOf(row);
}

std::vector<Case> AllCases() {
    std::vector<Case> cases;
    for (const char* const call : {"open", "read", "write", "fsync", "rename", "mkdir", "unlink",
                                   "opendir", "readdir", "lstat", "fork", "kill"}) {
        const std::string name = call;
        for (const Scenario& scenario : kScenarios) {
            if (scenario.is_on_another_volume || name != "fsync") {
                // Of the looks at the old client and the old data, one more than another may matter.
                cases.push_back({name, scenario, name == "lstat" ? 5 * kTries : kTries});
            }
        }
    }
    for (long shard = 0; shard < 4; ++shard) {
        cases.push_back({"kill", kLargeUpgrade, 4 * kTries + 4, shard, 4});
    }
    return cases;
}

}  // namespace

class Matrix : public testing::TestWithParam<Case> {};

TEST_P(Matrix, LosesNothing) {
    const auto& [name, scenario, sample, shard, shards] = GetParam();
    Stage stage(scenario);
    if (!stage.IsComplete()) {
        GTEST_SKIP() << "cannot mount a volume here";
    }
    const std::string call = name == "kill" ? "change" : name;
    const std::vector<int> errors = name == "kill" ? std::vector<int>{kKill} : kErrors;
    const bool is_whole = std::getenv("CORVIMO_WHOLE_MATRIX") != nullptr;
    const long count = stage.CountCalls(call);
    const long steps = is_whole ? count : std::min(count, sample);
    int tried = 0;
    int good = 0;
    for (long step = shard; step < steps; step += shards) {
        const long number = 1 + (2 * step + 1) * count / (2 * steps);
        for (std::size_t i = 0; i < errors.size(); ++i) {
            if (is_whole || static_cast<std::size_t>(step) % errors.size() == i) {
                const std::string fault = stage.Fault(call, number, errors[i]);
                EXPECT_EQ("", fault) << "call " << number << ", error " << errors[i];
                ++tried;
                good += fault.empty() ? 1 : 0;
            }
        }
    }
    EXPECT_LT(0, tried);
    std::cout << "figure: " << NameOf(GetParam()) << ": " << good << " of " << tried << "\n";
}

INSTANTIATE_TEST_SUITE_P(Call, Matrix, testing::ValuesIn(AllCases()),
                         [](const auto& test) { return NameOf(test.param); });
