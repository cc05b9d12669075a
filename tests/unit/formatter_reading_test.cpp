/// What keeps the formatter from changing a program: two sources with the same words that mean different things.

#include "base/source_text.h"
#include "formatter/source_reading.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using formatter::haveSameForm;
using formatter::readSource;

namespace {

const std::string SECOND = "ஃ பொழில் 2\n";

formatter::SourceReading read(const std::string& text) {
    return readSource(makeSource("நிரல்.பொழில்", text), {});
}

bool areAlike(const std::string& a, const std::string& b) {
    return haveSameForm(read(a), read(b));
}

TEST(FormatterReading, TakesProgramsForTheSameWhateverTheirBlanks) {
    for (const std::string& marker : {std::string(), SECOND}) {
        EXPECT_TRUE(areAlike(marker + "எனில் மெய்:\n  விடு\n", marker + "\n\nஎனில்   மெய் :\n      விடு"));
    }
}

TEST(FormatterReading, TellsBlocksApart) {
    const std::string inside = "எனில் மெய்:\n    அ = 1\n    ஆ = 2\n";
    const std::string outside = "எனில் மெய்:\n    அ = 1\nஆ = 2\n";
    EXPECT_FALSE(areAlike(inside, outside));
    EXPECT_FALSE(areAlike(SECOND + inside, SECOND + outside));
}

TEST(FormatterReading, TellsStatementsApart) {
    EXPECT_FALSE(areAlike(SECOND + "அ = [1]\n(ஆ)\n", SECOND + "அ = [1](ஆ)\n"));
    EXPECT_FALSE(areAlike(SECOND + "அ = 1\n", SECOND + "அ = 1\nவிடு\n"));
}

TEST(FormatterReading, TellsEditionsApart) {
    EXPECT_FALSE(areAlike("அ = 1\n", SECOND + "அ = 1\n"));
}

TEST(FormatterReading, TrustsNoProgramWithFaults) {
    EXPECT_FALSE(areAlike("அ = (1\n", "அ = (1\n"));
    EXPECT_FALSE(areAlike("அ = 1\n", "அ = (1\n"));
    EXPECT_TRUE(read("\n" + SECOND).isFaulty);
}

} // namespace
