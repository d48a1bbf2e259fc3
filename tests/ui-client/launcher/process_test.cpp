// How the running client is found and ended, and how the new one is started.
#include <gtest/gtest.h>
#include <signal.h>

#include <QTest>
#include <cerrno>

#include "mac/mac-service.h"
#include "tests/support/captured_log.h"
#include "tests/support/files.h"
#include "tests/support/private_home.h"
#include "tests/support/recorded_signals.h"
#include "tests/support/tree.h"

using Calls = std::vector<std::string>;

TEST(StopService, FollowsTheAnswersOfTheSystem) {
    const Records denied = {"ERROR mac/mac-service: kill: Operation not permitted (1)"};
    // clang-format off
    const struct { int error, probes_alive; const char* last_call; Records records; } rows[] = {
        {ESRCH, -1, "kill 812 15", {}},
        {0,      0, "kill 812 0",  {}},
        {0,      2, "kill 812 0",  {}},
        {0,     15, "kill 812 9",  {}},
        {EPERM, 15, "kill 812 9",  denied},
    };
    // clang-format on
    for (const auto& row : rows) {
        const PrivateHome home;
        WriteDeep(home / ".Corvimo/ui.pid", "# client\npid = 812\nother=1\n");
        Calls expected(row.probes_alive < 0 ? 0 : 1, "kill 812 15");
        for (int i = 0; i < row.probes_alive; ++i) {
            expected.insert(expected.end(), {"kill 812 0", "sleep 1"});
        }
        expected.push_back(row.last_call);
        int probes = 0;
        const RecordedSignals signals([&](pid_t, int signal) {
            return signal == SIGTERM || probes++ < row.probes_alive ? row.error : ESRCH;
        });
        const CapturedLog log;
        MacService().StopService();
        EXPECT_EQ(expected, signals.calls);
        EXPECT_EQ(row.records, log.All());
    }
}

TEST(StopService, SignalsNobodyWithoutOneProcess) {
    const PrivateHome home;
    const std::string path = home / ".Lumaport/ui.pid";
    const Records unreadable = {"NOTE mac/mac-service: Failed to read pid file '" + path +
                                "', not exist ?"};
    std::vector<std::pair<std::string, Records>> rows = {
        {"", {}}, {"# only a comment\nother=1\n", {}}, {"pid=''\n", {}}, {"pid\n", unreadable}};
    for (const std::string value : {"abc", "0", "-812", "4294967296", "4294967295"}) {
        rows.push_back({"pid=" + value,
                        {"NOTE mac/mac-service: pid '" + value + "' in '" + path +
                         "' names no process, nothing to terminate"}});
    }
    for (const auto& [content, records] : rows) {
        WriteDeep(path, content);
        const RecordedSignals signals([](pid_t, int) { return ESRCH; });
        const CapturedLog log;
        MacService().StopServiceByPath(QString::fromStdString(home / ".Lumaport"));
        EXPECT_EQ(Calls(), signals.calls) << content;
        EXPECT_EQ(records, log.All()) << content;
    }
}

// The recorders in the place of the system's tools append what they are called with to the file
// named by TOOL_RECORD; a tool exits with the status in TOOL_STATUS.
TEST(LaunchPerUserBin, OpensTheBundleThoughItCannotBeUnregistered) {
    const PrivateHome home;
    qputenv("TOOL_RECORD", (home / "calls").c_str());
    qputenv("TOOL_STATUS", "7");
    const CapturedLog log;
    EXPECT_EQ(0, MacService().LaunchPerUserBin());
    const std::string expected = "lsregister -u " + home.app + "\nopen -n -a " + home.app + "\n";
    EXPECT_TRUE(QTest::qWaitFor([&] { return ReadFile(home / "calls") == expected; }, 10000));
    EXPECT_EQ(Records{"ERROR mac/mac-service: Cannot unregister bundle, " + home.app}, log.All());
}
