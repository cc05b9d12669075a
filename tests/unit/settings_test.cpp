#include "driver/settings.h"

#include <cstdlib>

#include <utility>

#include <gmock/gmock.h>

using namespace pozhil;
using testing::ElementsAre;

namespace {

TEST(ModuleDirectories, AreAFixedOneAndThenThatOfTheInstallation) {
    unsetenv("POZHIL_MODULES");
    EXPECT_THAT(settings::moduleDirectories("/இடம்"),
                ElementsAre("/home/pozhiluser/Pozhil/தொகுப்புகள்", "/இடம்/தொகுப்புகள்"));
}

TEST(ModuleDirectories, TheUserMayReplaceTheFirst) {
    setenv("POZHIL_MODULES", "/என் அடைவு", 1);
    EXPECT_THAT(settings::moduleDirectories("/இடம்"), ElementsAre("/என் அடைவு", "/இடம்/தொகுப்புகள்"));
    unsetenv("POZHIL_MODULES");
}

TEST(Hints, AreShownUnlessTheUserSaysNought) {
    unsetenv("POZHIL_HINTS");
    EXPECT_TRUE(settings::showsHints());
    setenv("POZHIL_HINTS", "", 1);
    EXPECT_TRUE(settings::showsHints());
    setenv("POZHIL_HINTS", "0", 1);
    EXPECT_FALSE(settings::showsHints());
    unsetenv("POZHIL_HINTS");
}

TEST(CompilerFlags, AreTheWordsOfTheUser) {
    unsetenv("POZHIL_CXXFLAGS");
    unsetenv("POZHIL_EMFLAGS");
    EXPECT_THAT(settings::cxxFlags(), ElementsAre());
    EXPECT_THAT(settings::emFlags(), ElementsAre());
    setenv("POZHIL_CXXFLAGS", " -O2  '-DA=a b'", 1);
    setenv("POZHIL_EMFLAGS", "-O3 \"-s A=1\" ", 1);
    EXPECT_THAT(settings::cxxFlags(), ElementsAre("-O2", "-DA=a b"));
    EXPECT_THAT(settings::emFlags(), ElementsAre("-O3", "-s A=1"));
    unsetenv("POZHIL_CXXFLAGS");
    unsetenv("POZHIL_EMFLAGS");
}

TEST(WordsOfTheCompiler, AreShownAndHiddenAsTheUserSays) {
    using settings::ToolchainWords;
    unsetenv("POZHIL_SHOW_CXX");
    EXPECT_EQ(settings::toolchainWords(), ToolchainWords::Default);
    setenv("POZHIL_SHOW_CXX", "0", 1);
    EXPECT_EQ(settings::toolchainWords(), ToolchainWords::Hidden);
    setenv("POZHIL_SHOW_CXX", "1", 1);
    EXPECT_EQ(settings::toolchainWords(), ToolchainWords::Shown);
    for (const char* value : {"", "00", "no"}) {
        setenv("POZHIL_SHOW_CXX", value, 1);
        EXPECT_EQ(settings::toolchainWords(), ToolchainWords::Default) << value;
    }
    unsetenv("POZHIL_SHOW_CXX");
}

TEST(Server, ListensWhereTheUserSays) {
    unsetenv("POZHIL_HOST");
    EXPECT_EQ(settings::serverHost(), "");
    for (const auto& [value, host] :
         {std::pair{"", ""}, {"127.0.0.1", "127.0.0.1"}, {"localhost", "127.0.0.1"}, {"x", "x"}}) {
        setenv("POZHIL_HOST", value, 1);
        EXPECT_EQ(settings::serverHost(), host);
    }
    unsetenv("POZHIL_HOST");
}

TEST(Server, IsStrictOnlyIfTheUserSaysSo) {
    unsetenv("POZHIL_STRICT");
    EXPECT_FALSE(settings::isServerStrict());
    setenv("POZHIL_STRICT", "1", 1);
    EXPECT_TRUE(settings::isServerStrict());
    for (const char* value : {"", "0", "11", "yes"}) {
        setenv("POZHIL_STRICT", value, 1);
        EXPECT_FALSE(settings::isServerStrict()) << value;
    }
    unsetenv("POZHIL_STRICT");
}

} // namespace
