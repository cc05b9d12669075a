#include "driver/translation.h"
#include "front_end/front_end.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace {

/// The source text that the first line of the emitted text with \p piece in it was written for.
std::string originOf(const std::string& source, const std::string& piece) {
    const pozhil::ParsedSource parsed = pozhil::parseSource(pozhil::makeSource("நிரல்.பொழில்", source), {});
    const pozhil::OutputText output = pozhil::generateText(parsed);
    const std::size_t at = output.text.find(piece, output.runtimeLength);
    EXPECT_NE(at, std::string::npos) << piece;
    const auto line = 1 + std::count(output.text.begin(), output.text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    const void* node = output.origins.ofLine(output.text, static_cast<std::size_t>(line));
    const auto place = parsed.parser->places().ofAddress(node);
    return place ? source.substr(place->range.begin, place->range.end - place->range.begin) : "";
}

TEST(OriginOfALine, IsItsStatement) {
    const std::string source = "அ = 1\nஎனில் அ சமம் 1:\n    அச்சிடு(அ)\nஇல்லைஎனில் அ சமம் 2:\n    ஆ = அ\n";
    EXPECT_EQ(originOf(source, "global_vars[\"அ\"] = std::any(1LL)"), "அ = 1");
    EXPECT_EQ(originOf(source, "std::cout"), "அச்சிடு(அ)");
    EXPECT_EQ(originOf(source, "global_vars[\"ஆ\"] ="), "ஆ = அ");
    EXPECT_EQ(originOf(source, "if (").substr(0, 15), std::string("எனில் அ சமம் 1:").substr(0, 15));
}

TEST(OriginOfALine, IsAMemberOfAStructure) {
    const std::string source = "கட்டமைப்பு பை:\n    எடை = 5\n    செயல் கூறு(தான்):\n        திரும்பு 7\nப = பை()\n";
    EXPECT_EQ(originOf(source, "properties[\"எடை\"] ="), "எடை = 5");
    EXPECT_EQ(originOf(source, "return std::any(7LL)"), "திரும்பு 7");
    EXPECT_EQ(originOf(source, "std::any fn_பை_கூறு(").substr(0, 9), std::string("செயல்").substr(0, 9));
}

TEST(OriginOfALine, IsAWidgetOrItsProperty) {
    const std::string source =
        "வலைதளம் (\n    தலைமை ()\n    குமரி (\n        பொத்தான்(உரை: \"அ\", அழுத்தினால்: () => செல்க(\"ஆ\"))\n"
        "    )\n    வரையறை ()\n)\n";
    EXPECT_EQ(originOf(source, "std::any callback ="), "() => செல்க(\"ஆ\")");
    EXPECT_EQ(originOf(source, "// பொத்தான்").substr(0, 24), std::string("பொத்தான்(").substr(0, 24));
}

TEST(OriginOfALine, IsNothingForTheRuntime) {
    EXPECT_EQ(originOf("அ = 1\n", "int main()"), "");
}

} // namespace
