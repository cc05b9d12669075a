#include "driver/settings.h"

#include <cstdlib>

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

} // namespace
