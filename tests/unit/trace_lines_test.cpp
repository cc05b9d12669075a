#include "driver/native/trace_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using pozhil::linesOfOutputText;
using pozhil::translateAddresses;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* SYMBOLS = "0000000000401000 T main\n0000000000401100 t helper\n0000000000402000 W inlined\n"
                                "0000000000403000 D data\n";
constexpr const char* OTHER_SYMBOLS = "0000000000501010 T main\n0000000000501210 t helper\n"
                                      "0000000000402000 W inlined\n";

TEST(TranslatedAddresses, KeepTheirDistanceFromTheBeginningOfTheirFunction) {
    EXPECT_THAT(translateAddresses("401100\n4010ff\n401000\n40201a\n", SYMBOLS, OTHER_SYMBOLS),
                ElementsAre("501210", "50110f", "501010", "40201a"));
}

TEST(TranslatedAddresses, LeaveOutWhatLiesInNoFunctionOfBothBuilds) {
    EXPECT_THAT(translateAddresses("400fff\n401001\n", SYMBOLS, "0000000000501210 t helper\n"), IsEmpty());
    EXPECT_THAT(translateAddresses("401001\n", "", OTHER_SYMBOLS), IsEmpty());
    EXPECT_THAT(translateAddresses("401001\n", SYMBOLS, ""), IsEmpty());
}

TEST(TranslatedAddresses, TakeNothingFromLinesThatAreNone) {
    EXPECT_THAT(translateAddresses("\nஅ\n-1\n401001", SYMBOLS, OTHER_SYMBOLS), ElementsAre("501011"));
    EXPECT_THAT(translateAddresses("401001\n", "401000\n401000 \n401000 T\n401000 T \nமெய்\n", OTHER_SYMBOLS),
                IsEmpty());
}

TEST(TranslatedAddresses, CountDataForNoFunction) {
    EXPECT_THAT(translateAddresses("403004\n", SYMBOLS, "0000000000403000 D data\n0000000000402000 W inlined\n"),
                ElementsAre("403004"));
}

TEST(LinesOfTheOutputText, AreThoseThatAddr2lineNamesInItsOrder) {
    EXPECT_THAT(linesOfOutputText("/அ/.நிலையற்ற/generated.cpp:70\n??:0\n/usr/include/any:452\n"
                                  "generated.cpp:1203 (discriminator 2)\n??:?\ngenerated.cpp:?\nmygenerated.cpp\n"),
                ElementsAre(70, 1203));
    EXPECT_THAT(linesOfOutputText(""), IsEmpty());
}

} // namespace
