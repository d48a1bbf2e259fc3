#include "lib/tmp_name_gen.h"

#include <gtest/gtest.h>

#include <set>

TEST(TmpNameGen, NamesAreDistinctAndUseAllCharacters) {
    std::set<std::string> names = {TmpNameGen().getTmpName(), TmpNameGen().getTmpName()};
    std::set<char> characters;
    for (int i = 0; i < 1000; ++i) {
        const std::string path = TmpNameGen::getInstance()->getTmpPath("folder/");
        const std::string name = path.substr(8);
        EXPECT_EQ(path, "folder//" + name);
        EXPECT_EQ(name.size(), 8U);
        names.insert(name);
        characters.insert(name.begin(), name.end());
    }
    EXPECT_EQ(names.size(), 1002U);
    EXPECT_EQ(std::string(characters.begin(), characters.end()),
              "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz");
}
