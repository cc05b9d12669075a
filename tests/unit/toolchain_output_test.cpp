#include "driver/native/toolchain_output.h"

#include <gtest/gtest.h>

using pozhil::withoutSpellingWarnings;

namespace {

const std::string WARNING = "/அ/generated.cpp:18:10: warning: `fn_\\U00000b95' is not in NFC [-Wnormalized=]\n"
                            "   18 | std::any fn_<U+0B95>(std::any x) {\n"
                            "      |          ^~~~~~~~~~~\n";
const std::string FAULT = "/அ/generated.cpp: In function 'int main()':\n"
                          "/அ/generated.cpp:20:5: error: 'x' was not declared in this scope\n"
                          "   20 |     x = 1;\n"
                          "      |     ^\n";

TEST(ToolchainOutput, KeepsWhatHasNoSpellingWarning) {
    EXPECT_EQ(withoutSpellingWarnings(""), "");
    EXPECT_EQ(withoutSpellingWarnings(FAULT), FAULT);
    EXPECT_EQ(withoutSpellingWarnings("no line end"), "no line end");
}

TEST(ToolchainOutput, LosesSpellingWarningsAlone) {
    EXPECT_EQ(withoutSpellingWarnings(WARNING), "");
    EXPECT_EQ(withoutSpellingWarnings(WARNING + WARNING + FAULT + WARNING), FAULT);
    EXPECT_EQ(withoutSpellingWarnings(FAULT + WARNING + FAULT), FAULT + FAULT);
}

} // namespace
