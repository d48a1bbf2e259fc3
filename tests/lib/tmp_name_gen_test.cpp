#include "lib/tmp_name_gen.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

TEST(TmpNameGen, DrawsDistinctNamesFromAllCharactersEvenly) {
    std::set<std::string> names = {TmpNameGen().getTmpName(), TmpNameGen().getTmpName()};
    std::map<char, double> count;
    for (int i = 0; i < 16000; ++i) {
        const std::string name = TmpNameGen::getInstance()->getTmpName();
        EXPECT_EQ(name.size(), 8U);
        names.insert(name);
        for (const char c : name) {
            ++count[c];
        }
    }
    EXPECT_EQ(names.size(), 16002U);
    EXPECT_EQ(count.size(), 64U);
    for (const char c :
         std::string("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_")) {
        EXPECT_NEAR(count[c], 2000, 300) << c;  // 300 are 7 deviations.
    }
}
