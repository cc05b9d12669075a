#include "front_end/front_end.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Strings = std::vector<std::string>;

std::string textOf(const SourcePlace& place) {
    return place.source->text.substr(place.range.begin, place.range.end - place.range.begin);
}

/// Code, line and text of each fault that the front end goes on after.
Strings faultsOf(const std::string& source, std::size_t maxFaults = 10, const SourceLoader* loader = nullptr) {
    FrontEndOptions options;
    options.maxFaults = maxFaults;
    options.loader = loader;
    const ParsedSource parsed = parseSource(makeSource("நிரல்.பொழில்", source), options);
    Strings faults;
    for (const FoundFault& found : parsed.faults) {
        faults.push_back(found.fault.code + " வரி " + std::to_string(found.fault.line) + " " + textOf(found.place));
    }
    return faults;
}

std::size_t statementsOf(const std::string& source) {
    FrontEndOptions options;
    options.maxFaults = 10;
    return parseSource(makeSource("நிரல்.பொழில்", source), options).program.statements.size();
}

TEST(Faults, OfTheCompilerEndWithTheFirst) {
    const SourcePtr source = makeSource("நிரல்.பொழில்", "அ 5\nஆ 6\n");
    try {
        parseSource(source, {});
        FAIL() << "no fault";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.code, "பொழி-208");
        EXPECT_EQ(fault.line, 1);
        EXPECT_EQ(fault.file, "நிரல்.பொழில்");
        EXPECT_EQ(fault.lineText, "அ 5");
    }
}

TEST(Faults, AreNoneInASourceInOrder) {
    EXPECT_THAT(faultsOf("அ = 1\nஅச்சிடு(அ)\n"), IsEmpty());
    EXPECT_THAT(faultsOf(""), IsEmpty());
}

TEST(Faults, OfOneStatementLeaveTheNextAlone) {
    EXPECT_THAT(faultsOf("அ 5\nஆ = 1\nஅச்சிடு(ஆ\nஆ 7\n"),
                ElementsAre("பொழி-208 வரி 1 அ", "பொழி-204 வரி 3 \n", "பொழி-208 வரி 4 ஆ"));
    EXPECT_EQ(statementsOf("அ 5\nஆ = 1\nஅச்சிடு(ஆ\nஆ = 7\n"), 2U);
}

TEST(Faults, InABlockLeaveItsOtherStatementsAndTheFunctionAlone) {
    EXPECT_THAT(faultsOf("செயல் அ():\n    ஆ 5\n    இ = 1\n    இ 6\nஈ 7\n"),
                ElementsAre("பொழி-208 வரி 2 ஆ", "பொழி-208 வரி 4 இ", "பொழி-208 வரி 5 ஈ"));
    EXPECT_EQ(statementsOf("செயல் அ():\n    ஆ 5\n    இ = 1\nஈ = 7\n"), 2U);
}

TEST(Faults, OfAHeadPassOverTheBlockBelow) {
    EXPECT_THAT(faultsOf("எனில் :\n    அ 5\n    எனில் ஆ:\n        இ 6\nஈ 7\n"),
                ElementsAre("பொழி-221 வரி 1 :", "பொழி-208 வரி 5 ஈ"));
}

TEST(Faults, OfAMissingBlockDontSwallowTheNextStatement) {
    EXPECT_THAT(faultsOf("எனில் மெய்:\nஅ 5\n"), ElementsAre("பொழி-202 வரி 2 அ", "பொழி-208 வரி 2 அ"));
}

TEST(Faults, InAStructureLeaveItKnown) {
    EXPECT_THAT(faultsOf("கட்டமைப்பு அ:\n    ஆ = )\n    இ = (\n    ஈ = 1\nகட்டமைப்பு உ(அ):\n    ஊ = 1\n"),
                ElementsAre("பொழி-201 வரி 2 )", "பொழி-201 வரி 3 \n"));
}

TEST(Faults, OfListItemsLeaveTheNextItemAlone) {
    EXPECT_THAT(faultsOf("வலைதளம் (\n    தலைமை ()\n    குமரி (\n        நெடுவரிசை (\n            உரை(அகலம்: ),\n"
                         "            உரை(\"அ\"),\n            உரை(உயரம்: ,)\n        )\n    )\n    வரையறை (\n"
                         "        அ 5\n        ஆ = 1\n    )\n)\nஇ 6\n"),
                ElementsAre("பொழி-201 வரி 5 )", "பொழி-201 வரி 7 ,", "பொழி-208 வரி 11 அ", "பொழி-208 வரி 15 இ"));
}

TEST(Faults, InBracketsEndAtTheClosingBracket) {
    EXPECT_THAT(faultsOf("வலைதளம் (தலைமை() குமரி(பொத்தான்(அழுத்தினால்(அச்சிடு )) ) வரையறை(அ 5))\nஇ 6\n"),
                ElementsAre("பொழி-201 வரி 1 )", "பொழி-208 வரி 1 அ", "பொழி-208 வரி 2 இ"));
}

TEST(Faults, AreAsManyAsAskedFor) {
    EXPECT_THAT(faultsOf("அ 1\nஅ 2\nஅ 3\n", 2), ElementsAre("பொழி-208 வரி 1 அ", "பொழி-208 வரி 2 அ"));
    EXPECT_THAT(faultsOf("அ 1\nஅ 2\nஅ 3\n", 1), ElementsAre("பொழி-208 வரி 1 அ"));
}

TEST(Faults, OfScannerAndParserComeInTheOrderOfTheText) {
    EXPECT_THAT(faultsOf("அ 1\nஆ = 'இ\nஈ 2\nஉ = 1.2.3\n"),
                ElementsAre("பொழி-208 வரி 1 அ", "பொழி-103 வரி 2 'இ", "பொழி-208 வரி 3 ஈ", "பொழி-104 வரி 4 1.2.3"));
}

TEST(Faults, OfTheScannerHaveNoEchoInTheParser) {
    EXPECT_THAT(faultsOf("அ = $ ஆ\nஇ 5\n"), ElementsAre("பொழி-101 வரி 1 $", "பொழி-208 வரி 2 இ"));
    EXPECT_THAT(faultsOf("அச்சிடு(\"அ\nஇ 5\n"), ElementsAre("பொழி-102 வரி 1 \"அ", "பொழி-208 வரி 2 இ"));
}

TEST(Faults, OfTheScannerAreGoneOnAfter) {
    EXPECT_THAT(faultsOf("அ = ''\nஆ = 12அ\nஇ = ௧2\nா = 1\nஈ = ஸரி\nஉ = 1\n"),
                ElementsAre("பொழி-105 வரி 1 ''", "பொழி-108 வரி 2 12அ", "பொழி-109 வரி 3 ௧2", "பொழி-106 வரி 4 ா",
                            "பொழி-115 வரி 5 ஸரி"));
}

TEST(Faults, OfIndentationKeepTheBlocksTogether) {
    EXPECT_THAT(faultsOf("எனில் அ:\n    விடு\n  விடு\nஆ 5\n"), ElementsAre("பொழி-111 வரி 3   ", "பொழி-208 வரி 4 ஆ"));
    EXPECT_THAT(faultsOf("எனில் அ:\n    விடு\n \tவிடு\nஆ 5\n"), ElementsAre("பொழி-110 வரி 3  \t", "பொழி-208 வரி 4 ஆ"));
}

TEST(Faults, OfAnOpenCommentLeaveTheLinesAfterIt) {
    EXPECT_THAT(faultsOf("அ = 1 ஃஃ குறிப்பு\nஆ 5\n"), ElementsAre("பொழி-118 வரி 1 ஃஃ குறிப்பு", "பொழி-208 வரி 2 ஆ"));
}

TEST(Faults, OfAnImportedFileStandAtItsImport) {
    MemoryLoader loader;
    loader.set("தொகுதி.பொழில்", "இ 7\nஈ = 'உ\nஊ 8\n");
    EXPECT_THAT(faultsOf("அ 5\nநூஇறக்கி \"தொகுதி\"\nஆ 6\n", 10, &loader),
                ElementsAre("பொழி-208 வரி 1 அ", "பொழி-208 வரி 1 இ", "பொழி-103 வரி 2 'உ", "பொழி-208 வரி 3 ஊ",
                            "பொழி-208 வரி 3 ஆ"));
}

TEST(Faults, OfAnImportedFileNameTheirSource) {
    MemoryLoader loader;
    loader.set("தொகுதி.பொழில்", "இ 7\n");
    FrontEndOptions options;
    options.loader = &loader;
    options.maxFaults = 10;
    const ParsedSource parsed = parseSource(makeSource("நிரல்.பொழில்", "நூஇறக்கி \"தொகுதி\"\n"), options);
    ASSERT_EQ(parsed.faults.size(), 1U);
    EXPECT_EQ(parsed.faults.front().place.source->path, "தொகுதி.பொழில்");
    EXPECT_EQ(parsed.faults.front().fault.file, "") << "the box names no file";
}

} // namespace
