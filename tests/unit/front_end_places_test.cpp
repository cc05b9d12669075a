#include "front_end/front_end.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using testing::ElementsAre;

namespace {

std::string textOf(const SourceText& source, ByteRange range) {
    return source.text.substr(range.begin, range.end - range.begin);
}

/// The texts of all tokens of a source.
std::vector<std::string> tokenTexts(const std::string& source) {
    const ParsedSource parsed = parseSource(makeSource("நிரல்.பொழில்", source), {});
    const ScannedSource& scanned = parsed.parser->scanned();
    EXPECT_EQ(scanned.places.size(), scanned.tokens.size());
    std::vector<std::string> texts;
    for (const ByteRange& range : scanned.places) {
        texts.push_back(textOf(*scanned.source, range));
    }
    return texts;
}

/// A parsed source that tells the text of its nodes.
class NodePlace : public testing::Test {
protected:
    void parse(const std::string& text) { parsed_ = parseSource(makeSource("நிரல்.பொழில்", text), options_); }

    template <class Node> std::string text(const Node* node) const {
        const auto place = parsed_.parser->places().of(*node);
        return place ? textOf(*place->source, place->range) : "no place";
    }
    template <class Node> std::string text(const std::unique_ptr<Node>& node) const { return text(node.get()); }

    template <class Node> const Node& statement(std::size_t index) const {
        return dynamic_cast<const Node&>(*parsed_.program.statements.at(index));
    }

    FrontEndOptions options_;
    ParsedSource parsed_;
};

template <class Node, class Pointer> const Node& as(const Pointer& pointer) {
    return dynamic_cast<const Node&>(*pointer);
}

TEST(TokenPlaces, AreTheTextsOfTheTokens) {
    EXPECT_THAT(tokenTexts("பெயர் = \"அ ஆ\" ஃ குறிப்பு\n"), ElementsAre("பெயர்", "=", "\"அ ஆ\"", "\n", ""));
    EXPECT_THAT(tokenTexts("அ = ['ஆ', 5%, 1.5, ௧௨]"),
                ElementsAre("அ", "=", "[", "'ஆ'", ",", "5%", ",", "1.5", ",", "௧௨", "]", ""));
    EXPECT_THAT(tokenTexts("அ = ஆ => 1"), ElementsAre("அ", "=", "ஆ", "=>", "1", ""));
}

TEST(TokenPlaces, OfIndentationAndTheEndHoldNothing) {
    EXPECT_THAT(tokenTexts("எனில் அ:\n    விடு\nவிடு"),
                ElementsAre("எனில்", "அ", ":", "\n", "", "விடு", "\n", "", "விடு", ""));
    EXPECT_THAT(tokenTexts(""), ElementsAre(""));
    EXPECT_THAT(tokenTexts("எனில் அ:\n    விடு"), ElementsAre("எனில்", "அ", ":", "\n", "", "விடு", "", ""));
}

TEST(TokenPlaces, CountTheBytesOfTheText) {
    const ParsedSource parsed = parseSource(makeSource("", "ஃ கு\n  \nஅ = 1\n"), {});
    const auto& places = parsed.parser->scanned().places;
    ASSERT_EQ(places.size(), 5U);
    EXPECT_EQ(places[0].begin, 14U);
    EXPECT_EQ(places[0].end, 17U);
    EXPECT_EQ(places[4].begin, 22U);
    EXPECT_EQ(places[4].end, 22U);
}

TEST_F(NodePlace, OfAnOperatorReachesFromItsFirstOperandToItsLast) {
    parse("அச்சிடு(1 கூட்டு அ பெருக்கு கழி 3 , ஆ )\n");
    const auto& print = statement<PrintStatement>(0);
    EXPECT_EQ(text(&print), "அச்சிடு(1 கூட்டு அ பெருக்கு கழி 3 , ஆ )");
    const auto& sum = as<BinaryExpression>(print.arguments[0]);
    EXPECT_EQ(text(&sum), "1 கூட்டு அ பெருக்கு கழி 3");
    EXPECT_EQ(text(sum.left), "1");
    EXPECT_EQ(text(sum.right), "அ பெருக்கு கழி 3");
    const auto& minus = as<UnaryExpression>(as<BinaryExpression>(sum.right).right);
    EXPECT_EQ(text(&minus), "கழி 3");
    EXPECT_EQ(text(minus.right), "3");
    EXPECT_EQ(text(print.arguments[1]), "ஆ");
}

TEST_F(NodePlace, OfAChainGrowsWithEachLink) {
    parse("அ.ஆ(1)[ 2 ].இ()\n");
    const auto& call = as<CallExpression>(statement<ExpressionStatement>(0).expression);
    EXPECT_EQ(text(&call), "அ.ஆ(1)[ 2 ].இ()");
    const auto& get = as<GetExpression>(call.callee);
    EXPECT_EQ(text(&get), "அ.ஆ(1)[ 2 ].இ");
    const auto& index = as<IndexExpression>(get.object);
    EXPECT_EQ(text(&index), "அ.ஆ(1)[ 2 ]");
    EXPECT_EQ(text(index.index), "2");
    EXPECT_EQ(text(as<CallExpression>(index.object).callee), "அ.ஆ");
}

TEST_F(NodePlace, OfValuesIsTheirWholeText) {
    parse("அச்சிடு([1, 2,], {\"அ\": 1}, (3), \"#fff\", 'ஆ', வினை இ: 4, (ஈ, உ) => 5, மெய் எனில் 6 இல்லைஎனில் 7)\n");
    const auto& arguments = statement<PrintStatement>(0).arguments;
    std::vector<std::string> texts;
    for (const auto& argument : arguments) {
        texts.push_back(text(argument));
    }
    EXPECT_THAT(texts, ElementsAre("[1, 2,]", "{\"அ\": 1}", "(3)", "\"#fff\"", "'ஆ'", "வினை இ: 4", "(ஈ, உ) => 5",
                                   "மெய் எனில் 6 இல்லைஎனில் 7"));
    EXPECT_EQ(text(as<GroupingExpression>(arguments[2]).inner), "3");
    EXPECT_EQ(text(as<MapLiteral>(arguments[1]).entries[0].second), "1");
}

TEST_F(NodePlace, OfAssignmentsBeginsAtTheTarget) {
    parse("அ = 1\nஅ.ஆ = 2\nஅ[0] = 3\n");
    EXPECT_EQ(text(parsed_.program.statements[0]), "அ = 1");
    const auto& member = as<SetMemberExpression>(statement<ExpressionStatement>(1).expression);
    EXPECT_EQ(text(&member), "அ.ஆ = 2");
    EXPECT_EQ(text(member.object), "அ");
    const auto& call = as<CallExpression>(statement<ExpressionStatement>(2).expression);
    EXPECT_EQ(text(&call), "அ[0] = 3");
    EXPECT_EQ(text(call.arguments[2]), "3");
}

TEST_F(NodePlace, OfABlockEndsWithItsLastStatement) {
    parse("எனில் அ:\n    விடு\n    எனில் ஆ:\n        தொடர்\nஇல்லைஎனில் இ:\n    நிறுத்து\n\n\nவிடு\n");
    const auto& branch = statement<IfStatement>(0);
    EXPECT_EQ(text(&branch), "எனில் அ:\n    விடு\n    எனில் ஆ:\n        தொடர்\nஇல்லைஎனில் இ:\n    நிறுத்து");
    EXPECT_EQ(text(branch.thenBranch), "விடு\n    எனில் ஆ:\n        தொடர்");
    EXPECT_EQ(text(branch.thenBranch->statements[1]), "எனில் ஆ:\n        தொடர்");
    EXPECT_EQ(text(branch.elseBranch), "இல்லைஎனில் இ:\n    நிறுத்து");
    EXPECT_EQ(text(parsed_.program.statements[1]), "விடு");
}

TEST_F(NodePlace, OfDefinitionsHoldsTheirMembers) {
    parse("கட்டமைப்பு அ:\n    ஆ = 1\n    ரகசியம் இ = 2\n    செயல் ஈ(தான்):\n        விடு\nவகை உ:\n    ஊ\nஅச்சிடு(உ.ஊ)\n");
    const auto& structure = statement<StructDefinitionStatement>(0);
    EXPECT_EQ(text(structure.fields[0]), "ஆ = 1");
    EXPECT_EQ(text(structure.fields[1]), "இ = 2");
    EXPECT_EQ(text(structure.fields[1]->initializer), "2");
    EXPECT_EQ(text(structure.methods[0]), "செயல் ஈ(தான்):\n        விடு");
    EXPECT_EQ(text(statement<PrintStatement>(1).arguments[0]), "உ.ஊ");
}

TEST_F(NodePlace, OfWidgetsReachesToTheirLastBracket) {
    parse("வலைதளம் (\n    தலைமை ()\n    குமரி (\n        நெடுவரிசை(அகலம்: 5)(\n            உரை(\"அ\"),\n"
          "            பொத்தான்(அழுத்தினால்(அச்சிடு 1))\n        )\n    )\n    வரையறை (\n        ஆ = 1\n    )\n)\n");
    const auto& app = statement<WebAppNode>(0);
    EXPECT_EQ(text(app.header), "தலைமை ()");
    EXPECT_EQ(text(app.definition), "வரையறை (\n        ஆ = 1\n    )");
    const auto& column = as<WidgetNode>(app.uiBody);
    EXPECT_EQ(text(&column).substr(0, 20), std::string("நெடுவரிசை(அகலம்").substr(0, 20));
    EXPECT_EQ(text(&column).back(), ')');
    EXPECT_EQ(text(column.properties.at("அகலம்")), "5");
    EXPECT_EQ(text(column.children[0]), "உரை(\"அ\")");
    EXPECT_EQ(text(as<WidgetNode>(column.children[1]).eventStatements[0]), "அச்சிடு 1");
}

TEST_F(NodePlace, OfImportedNodesIsInTheirOwnFile) {
    MemoryLoader loader;
    loader.set("தொகுதி.பொழில்", "ஃ ஒரு குறிப்பு\nஅச்சிடு(\"தொகுதி\")\n");
    options_.loader = &loader;
    parse("நூஇறக்கி \"தொகுதி\"\nஅச்சிடு(\"நிரல்\")\n");
    const auto imported = parsed_.parser->places().of(*parsed_.program.statements.at(0));
    ASSERT_TRUE(imported.has_value());
    EXPECT_EQ(imported->source->path, "தொகுதி.பொழில்");
    EXPECT_EQ(textOf(*imported->source, imported->range), "அச்சிடு(\"தொகுதி\")");
    const auto own = parsed_.parser->places().of(*parsed_.program.statements.at(1));
    ASSERT_TRUE(own.has_value());
    EXPECT_EQ(own->source, parsed_.source);
}

TEST(NodePlaces, AreNoneForTokensWithoutPlaces) {
    Parser parser({{TokenType::KEYWORD, "விடு", 1}, {TokenType::END_OF_FILE, "", 1}}, "", "");
    const Program program = parser.parse();
    EXPECT_FALSE(parser.places().of(*program.statements.at(0)).has_value());
}

} // namespace
