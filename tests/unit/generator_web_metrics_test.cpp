// Sizes of widgets before the page runs, and the texts of sizes that the page computes.

#include "generator/web/metrics.h"
#include "generator/web/sizes.h"
#include "parser/parser.h"
#include "scanner/lexer.h"

#include <gtest/gtest.h>

using namespace pozhil;

namespace {

/// An application around one widget.
class Page {
public:
    explicit Page(const std::string& widget)
        : source_("வலைதளம் (\n தலைமை () குமரி (" + widget + ") வரையறை ()\n)\n"),
          parser_(Lexer(source_, "நிரல்.பொழில்").tokenize(), source_, "நிரல்.பொழில்"), program_(parser_.parse()) {}

    const WidgetNode* root() const {
        const auto* app = dynamic_cast<const WebAppNode*>(program_.statements.at(0).get());
        return dynamic_cast<const WidgetNode*>(app->uiBody.get());
    }

private:
    std::string source_;
    Parser parser_;
    Program program_;
};

void expectSize(const std::string& widget, float width, float height) {
    const Page page(widget);
    WidgetMetrics metrics;
    EXPECT_FLOAT_EQ(metrics.calculateWidgetWidth(page.root()), width) << widget;
    EXPECT_FLOAT_EQ(metrics.calculateWidgetHeight(page.root()), height) << widget;
}

TEST(TextMetrics, GoByCodePointsAndSize) {
    expectSize("உரை(\"அஆஇ\", உரைபாணி(அளவு: 20))", 39, 20);
    expectSize("உரை(\"தமிழ்\")", 5 * 0.65F * 16, 16);
    expectSize("உரை(மாறி)", 10 * 0.65F * 16, 16);
}

TEST(ButtonMetrics, GrowWithTheTextAndHaveALeastWidth) {
    expectSize("பொத்தான்(உரை: \"அ\")", 80, 40);
    expectSize("பொத்தான்(உரை: \"அஆஇஈஉஊஎஏஐஒ\")", 32 + 10 * 0.45F * 16, 40);
    expectSize("பொத்தான்(அகலம்: 120, உயரம்: 30)", 120, 30);
    expectSize("பொத்தான்(அகலம்: 50%)", 0, 40);
}

TEST(BoxMetrics, HaveDefaults) {
    expectSize("பெட்டி()", 100, 100);
    expectSize("அட்டை()", 350, 200);
    expectSize("படம்()", 100, 100);
    expectSize("உரைபெட்டி()", 320, 60);
}

TEST(LayoutMetrics, AddUpChildrenAndGaps) {
    const std::string children = "படம்(அகலம்: 30, உயரம்: 20) படம்(அகலம்: 50, உயரம்: 10)";
    expectSize("நெடுவரிசை(இடைவெளி: 8)(" + children + ")", 50, 38);
    expectSize("கிடைவரிசை(இடைவெளி: 8)(" + children + ")", 88, 20);
    expectSize("அடுக்கி(" + children + ")", 50, 20);
    expectSize("மடிப்பு(" + children + ")", 0, 3 * 20 + 2 * 10);
}

TEST(LayoutMetrics, AreNothingWithoutChildren) {
    expectSize("நெடுவரிசை(இடைவெளி: 8)()", 0, 0);
    expectSize("கிடைவரிசை()", 0, 0);
}

TEST(LayoutMetrics, CountAPercentageAsNothing) {
    expectSize("கிடைவரிசை(படம்(அகலம்: 50%, உயரம்: 20) படம்(அகலம்: 50, உயரம்: 10))", 50, 20);
}

TEST(Metrics, AreZeroForWhatIsNoWidget) {
    WidgetMetrics metrics;
    EXPECT_FLOAT_EQ(metrics.calculateWidgetWidth(nullptr), 0);
    const PrintStatement statement({});
    EXPECT_FLOAT_EQ(metrics.calculateWidgetHeight(&statement), 0);
    const WidgetNode unknown("அறியாதது", {}, {}, சீரமைப்பு_வகை::மேல்_இடது);
    EXPECT_FLOAT_EQ(metrics.calculateWidgetWidth(&unknown), 0);
}

/// The text of the width that a button of the source asks for.
std::string sizeText(const std::string& size) {
    const Page page("பொத்தான்(அகலம்: " + size + ")");
    return processPercentage(page.root()->properties.at("அகலம்").get(), "B");
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

TEST(Alignment, PutsContentInNinePlaces) {
    for (int place = 0; place < 9; ++place) {
        const auto [x, y] = getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(place));
        EXPECT_FLOAT_EQ(x, static_cast<float>(place % 3 - 1));
        EXPECT_FLOAT_EQ(y, static_cast<float>(place / 3 - 1));
    }
    EXPECT_EQ(getAlignmentCoords(static_cast<சீரமைப்பு_வகை>(9)), std::pair(-1.0F, -1.0F));
}

} // namespace
