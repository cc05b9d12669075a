#include "driver/web/page_fault.h"

#include <string>

#include <gmock/gmock.h>

using namespace pozhil;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// So many faults, each of a name of its own on a line of its own.
SecondFaults faults(std::size_t count) {
    constexpr int UNKNOWN_NAME = 551;
    std::string text = "ஃ பொழில் 2\n";
    for (std::size_t i = 1; i <= count; ++i) {
        text += "அ" + std::to_string(i) + "\n";
    }
    const SourcePtr source = makeSource("நிரல்.பொழில்", text);
    SecondFaults all;
    for (std::size_t i = 1; i <= count; ++i) {
        const std::string name = "அ" + std::to_string(i);
        const auto at = static_cast<std::uint32_t>(text.find(name + "\n"));
        all.push_back({UNKNOWN_NAME, {source, {at, at + static_cast<std::uint32_t>(name.size())}}, {name}});
    }
    return all;
}

TEST(PageFault, IsTheFirstWithItsPlace) {
    const BuildFault fault = pageFault(faults(3));
    EXPECT_EQ(fault.code, "பொழி-551");
    EXPECT_EQ(fault.file, "நிரல்.பொழில்");
    EXPECT_EQ(fault.line, 2);
    EXPECT_THAT(fault.description, HasSubstr("'அ1'"));
    EXPECT_THAT(fault.description, Not(HasSubstr("'அ2'")));
}

TEST(PageFault, SaysHowManyMoreThereAre) {
    EXPECT_THAT(pageFault(faults(1)).description, Not(HasSubstr("இன்னும்")));
    EXPECT_THAT(pageFault(faults(2)).description, EndsWith("\nஇன்னும் ஒரு பிழை உள்ளது; முனையத்தில் பார்க்கவும்."));
    EXPECT_THAT(pageFault(faults(3)).description, EndsWith("\nஇன்னும் 2 பிழைகள் உள்ளன; முனையத்தில் பார்க்கவும்."));
    EXPECT_THAT(pageFault(faults(MAX_TOLD_FAULTS)).description, HasSubstr("\nஇன்னும் 9 பிழைகள் உள்ளன;"));
}

/// Nobody has counted those beyond.
TEST(PageFault, SaysAtLeastHowManyWhereNoMoreWereLookedFor) {
    EXPECT_THAT(pageFault(faults(MAX_FOUND_FAULTS)).description, HasSubstr("\nஇன்னும் 10 பிழைகளாவது உள்ளன;"));
}

TEST(PageFault, OfTheFirstEditionIsAsItsBoxTellsIt) {
    Fault fault;
    fault.code = "பொழி-203";
    fault.file = "நிரல்.பொழில்";
    fault.line = 4;
    fault.details = "'('";
    const BuildFault told = pageFault(fault);
    EXPECT_EQ(told.code, "பொழி-203");
    EXPECT_EQ(told.file, "நிரல்.பொழில்");
    EXPECT_EQ(told.line, 4);
    EXPECT_EQ(told.description, descriptionOf(fault));
}

TEST(PageFault, ThatIsUntoldLeadsToTheConsole) {
    const BuildFault fault = untoldFault();
    EXPECT_EQ(fault.code + fault.file, "");
    EXPECT_EQ(fault.line, 0);
    EXPECT_THAT(fault.description, HasSubstr("முனையத்தில்"));
}

} // namespace
