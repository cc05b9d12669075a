// Texts of sizes that the page computes, and where an alignment puts content.

#include "generator/first/first_edition.h"
#include "generator/web/write/sizes.h"
#include "parser/parser.h"
#include "scanner/lexer.h"
#include "support/generating.h"

#include <gtest/gtest.h>

using namespace pozhil;

namespace {

/// An application around one widget.
class Page {
public:
    explicit Page(const std::string& widget)
        : source_("வலைதளம் (\n தலைமை () குமரி (" + widget + ") வரையறை ()\n)\n"),
          parser_(Lexer(source_, PATH).tokenize(), source_, PATH), program_(parser_.parse()),
          edition_(program_, parser_.functions(), parser_.structs(), parser_.abstractStructs(), PATH, source_) {}

    EditionWriter& edition() { return edition_; }

    const WidgetNode* root() const {
        const auto* app = dynamic_cast<const WebAppNode*>(program_.statements.at(0).get());
        return dynamic_cast<const WidgetNode*>(app->uiBody.get());
    }

private:
    inline static const std::string PATH = "நிரல்.பொழில்";

    std::string source_;
    Parser parser_;
    Program program_;
    FirstEdition edition_;
};

/// The text of a size that no source has.
std::string sizeText(const Expression* size, const std::string& base) {
    return processPercentage(Page("").edition(), size, base);
}

/// The text of the width that a button of the source asks for.
std::string sizeText(const std::string& size) {
    Page page("பொத்தான்(அகலம்: " + size + ")");
    return processPercentage(page.edition(), page.root()->properties.at("அகலம்").get(), "B");
}

TEST(SizeTexts, AreConstantsPercentagesOrChoices) {
    EXPECT_EQ(sizeText("120"), "120.0f");
    EXPECT_EQ(sizeText("௧௨"), "12.0f");
    EXPECT_EQ(sizeText("50%"), "(B * 0.500000f)");
    EXPECT_EQ(sizeText("\"12.5%\""), "(B * 0.125000f)");
    EXPECT_EQ(sizeText("(120)"), "(120.0f)");
    EXPECT_EQ(sizeText("திரை_அகலம் பெரிது 800 ? 400 : 90%"), "((winWidth > 800.0f) ? 400.0f : (B * 0.900000f))");
    EXPECT_EQ(sizeText("திரை_உயரம்"), "winHeight");
    EXPECT_EQ(sizeText("அளவு_எண்"), "fn_get_double(global_vars[\"அளவு_எண்\"])");
}

TEST(SizeTexts, TakeTheNumberAsItStands) {
    EXPECT_EQ(sizeText(test::number("62.5").get(), "B"), "62.5f");
    EXPECT_EQ(sizeText("௫௦%"), "(B * 0.500000f)");
    EXPECT_EQ(sizeText("100%"), "(B * 1.000000f)");
    EXPECT_EQ(sizeText(nullptr, "B"), "");
}

TEST(SizeTexts, TakeAnyTextAsTheirBase) {
    EXPECT_EQ(sizeText(std::make_unique<PercentageLiteral>("25%").get(), "(forcedW > 0.0f ? forcedW : winWidth)"),
              "((forcedW > 0.0f ? forcedW : winWidth) * 0.250000f)");
}

TEST(SizeTexts, AreEmptyForAnythingElse) {
    EXPECT_EQ(sizeText("\"120\""), "");
    EXPECT_EQ(sizeText("62.5"), "");
    EXPECT_EQ(sizeText("நீளம்(அ)"), "");
    EXPECT_EQ(sizeText("அ சமம் 1 ? \"பெரிய\" : 5"), "");
}

TEST(SizeTexts, KnowEveryComparison) {
    const std::pair<const char*, const char*> words[] = {{"சமம்", "=="},   {"சமமில்லை", "!="},   {"பெரிது", ">"},
                                                         {"சிறிது", "<"}, {"பெரிதுசமம்", ">="}, {"சிறிதுசமம்", "<="},
                                                         {"கூட்டு", "=="}};
    for (const auto& [word, symbol] : words) {
        EXPECT_EQ(sizeText("(1 " + std::string(word) + " 2)"), "((1.0f " + std::string(symbol) + " 2.0f))");
    }
}

TEST(SizeTexts, ChooseInsideChoices) {
    EXPECT_EQ(sizeText("திரை_அகலம் சிறிது 600 ? 100% : (திரை_உயரம் பெரிதுசமம் 500 ? \"50%\" : 300)"),
              "((winWidth < 600.0f) ? (B * 1.000000f) : (((winHeight >= 500.0f) ? (B * 0.500000f) : 300.0f)))");
}

TEST(Alignment, PutsContentInNinePlaces) {
    for (int place = 0; place < 9; ++place) {
        const auto [x, y] = getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(place));
        EXPECT_FLOAT_EQ(x, static_cast<float>(place % 3 - 1));
        EXPECT_FLOAT_EQ(y, static_cast<float>(place / 3 - 1));
    }
    EXPECT_EQ(getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(9)), std::pair(-1.0F, -1.0F));
}

} // namespace
