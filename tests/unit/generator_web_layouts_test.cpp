// Columns, rows, stacks, wraps and what stands between their children: the text that they become.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string PICTURES = "(படம்(அகலம்: 30, உயரம்: 20) படம்(அகலம்: 50, உயரம்: 10))";

std::string inColumn(const std::string& child) {
    return frameOf("நெடுவரிசை(" + child + ")");
}

std::string inRow(const std::string& child) {
    return frameOf("கிடைவரிசை(" + child + ")");
}

// --- columns ---

TEST(Column, PlacesItsChildrenOneBelowTheOther) {
    expectInOrder(frameOf("நெடுவரிசை(இடைவெளி: 8)" + PICTURES),
                  {"float colX = 0.0f; float colY = 0.0f;\n",
                   "float containerW = (forcedW > 0.0f) ? forcedW : 50.0f;\n",
                   "if (forcedW < 0.0f) containerW = winWidth;\n",
                   "containerW = responsiveW(containerW, winWidth, 0.0f);\n",
                   "float containerH = (forcedH > 0.0f) ? forcedH : 38.0f;\n",
                   "if (forcedH < 0.0f) containerH = winHeight;\n",
                   "float colW = containerW;\n",
                   "float colH = containerH;\n",
                   "float alignX = -1.0f;\n",
                   "float alignY = -1.0f;\n",
                   "float totalContentH = 38.0f;\n",
                   "float startY = colY + (containerH - totalContentH) * (1.0f + alignY) / 2.0f;\n",
                   "float currentY = startY;\n",
                   "float fixedHeightSum = 0.0f;\n",
                   "float totalFlex = 0.0f;\n",
                   "float spacing = 0.0f;\n",
                   "spacing = 8.0f;\n",
                   "fixedHeightSum += 20.0f + spacing;\n",
                   "fixedHeightSum += 10.0f + spacing;\n",
                   "float remainingH = containerH - fixedHeightSum;\n",
                   "if (remainingH < 0.0f) remainingH = 0.0f;\n",
                   "float unitFlexH = (totalFlex > 0) ? (remainingH / totalFlex) : 0.0f;\n",
                   "float childW = 30.0f;\n",
                   "float childX = colX + (containerW - childW) * (1.0f + alignX) / 2.0f;\n",
                   "if (childW > containerW) childX = colX;\n",
                   "float savedForcedW = forcedW, savedForcedH = forcedH;\n",
                   "forcedW = -1.0f; forcedH = -1.0f;\n",
                   "std::floor(childX); float imgY = std::floor(currentY);",
                   "forcedW = savedForcedW; forcedH = savedForcedH;\n",
                   "currentY += 20.0f + spacing;\n",
                   "float childW = 50.0f;\n",
                   "currentY += 10.0f + spacing;\n"});
}

TEST(Column, TakesItsSizeFromNumbersAlone) {
    const std::string given = frameOf("நெடுவரிசை(அகலம்: 300, உயரம்: 200)" + PICTURES);
    expectInOrder(given, {"containerW = 300.0f;\n", "containerW = responsiveW(", "containerH = 200.0f;\n"});
    EXPECT_THAT(given, Not(HasSubstr("containerW = winWidth;")));
    EXPECT_THAT(given, Not(HasSubstr("containerH = winHeight;")));
    const std::string percent = frameOf("நெடுவரிசை(அகலம்: 50%, உயரம்: 50%)" + PICTURES);
    EXPECT_THAT(percent, Not(HasSubstr("0.500000f")));
    EXPECT_THAT(percent, Not(HasSubstr("containerW = winWidth;")));
}

TEST(Column, FillsTheWindowOnlyAsARoot) {
    const std::string inner = frameOf("அடுக்கி(நெடுவரிசை" + PICTURES + ")");
    EXPECT_THAT(inner, HasSubstr("float containerW = (forcedW > 0.0f) ? forcedW : 50.0f;\n"));
    EXPECT_THAT(inner, Not(HasSubstr("containerW = winWidth;")));
}

TEST(Column, TellsItsEndToWhoeverPlacedIt) {
    EXPECT_THAT(frameOf("அடுக்கி(நெடுவரிசை" + PICTURES + ")"), HasSubstr("childY = currentY;\n"));
    EXPECT_THAT(inColumn("நெடுவரிசை" + PICTURES), HasSubstr("currentY = currentY;\n"));
    EXPECT_THAT(frameOf("நெடுவரிசை" + PICTURES), Not(HasSubstr("0.0f = currentY")));
}

struct AlignmentCase {
    const char* word;
    const char* x;
    const char* y;
};

class Alignments : public testing::TestWithParam<AlignmentCase> {};

TEST_P(Alignments, OfAColumn) {
    const std::string text = frameOf("நெடுவரிசை(சீரமைப்பு: " + std::string(GetParam().word) + ")" + PICTURES);
    expectInOrder(text, {std::string("float alignX = ") + GetParam().x + ";\n",
                         std::string("float alignY = ") + GetParam().y + ";\n"});
}

TEST_P(Alignments, OfARow) {
    const std::string text = frameOf("கிடைவரிசை(சீரமைப்பு: " + std::string(GetParam().word) + ")" + PICTURES);
    const std::string y = GetParam().y;
    expectInOrder(text, {std::string("float alignX = ") + GetParam().x + ";\n", "float childH_val = 20.0f;\n",
                         y == "-1.0f"  ? "float childY = rowY;\n"
                         : y == "0.0f" ? "float childY = rowY + (containerH - childH_val) / 2.0f;\n"
                                       : "float childY = rowY + (containerH - childH_val);\n"});
}

TEST_P(Alignments, OfAStack) {
    expectInOrder(frameOf("அடுக்கி(சீரமைப்பு: " + std::string(GetParam().word) + ")" + PICTURES),
                  {std::string("(stackW - 30.0f) * (1.0f + ") + GetParam().x + ") / 2.0f + 0.0f;\n",
                   std::string("(stackH - 20.0f) * (1.0f + ") + GetParam().y + ") / 2.0f + 0.0f;\n"});
}

INSTANTIATE_TEST_SUITE_P(
    NinePlaces, Alignments,
    testing::Values(AlignmentCase{"மேல்_இடது", "-1.0f", "-1.0f"}, AlignmentCase{"மேல்_மையம்", "0.0f", "-1.0f"},
                    AlignmentCase{"மேல்_வலது", "1.0f", "-1.0f"}, AlignmentCase{"மைய_இடது", "-1.0f", "0.0f"},
                    AlignmentCase{"மையம்", "0.0f", "0.0f"}, AlignmentCase{"மைய_வலது", "1.0f", "0.0f"},
                    AlignmentCase{"கீழ்_இடது", "-1.0f", "1.0f"}, AlignmentCase{"கீழ்_மையம்", "0.0f", "1.0f"},
                    AlignmentCase{"கீழ்_வலது", "1.0f", "1.0f"}));

TEST(ColumnText, IsMeasuredByTheBrowser) {
    expectInOrder(inColumn("உரை(எண்ணிக்கை, உரைபாணி(அளவு: 20))"),
                  {"float childW = 130.0f;\n", "std::string _uTxt = fn_any_to_string(global_vars[\"எண்ணிக்கை\"]);\n",
                   "float _uRespSize = responsiveTextSize(20.0f, winWidth);\n",
                   "childW = getTextWidth(_uTxt.c_str(), _uRespSize);\n", "float childX = colX"});
    EXPECT_THAT(inColumn("உரை(\"அ\", உரைபாணி(அளவு: 0))"), HasSubstr("responsiveTextSize(16.0f, winWidth)"));
    EXPECT_THAT(inColumn("பொத்தான்(உரை: \"அ\")"), Not(HasSubstr("_uTxt"))) << "only a text is";
    EXPECT_THAT(inColumn("உரை()"), Not(HasSubstr("_uTxt")));
}

TEST(ColumnShares, GoToFlexibleChildren) {
    const std::string text = inColumn("விரிவாக்கம்(படம்()) வெற்றிடம்() நெகிழ்வு(பங்கு: 3, படம்(உயரம்: 20)) படம்(உயரம்: 10)");
    expectInOrder(text, {"float totalFlex = 5.0f;\n", "fixedHeightSum += 10.0f + spacing;\n", "forcedH = unitFlexH;\n",
                         "float childX = ", "float savedForcedW = forcedW, savedForcedH = forcedH;\n",
                         "forcedW = -1.0f; forcedH = -1.0f;\n", "std::floor(currentY);",
                         "forcedW = savedForcedW; forcedH = savedForcedH;\n", "currentY += unitFlexH + spacing;\n",
                         "forcedH = unitFlexH;\n", "currentY += unitFlexH + spacing;\n",
                         "forcedH = unitFlexH * 3.0f;\n", "std::floor(currentY);",
                         "currentY += unitFlexH * 3.0f + spacing;\n", "currentY += 10.0f + spacing;\n"});
    EXPECT_THAT(text, Not(HasSubstr("fixedHeightSum += 20.0f")));
}

TEST(ColumnShares, OfNoPartStayFlexible) {
    const std::string text = inColumn("நெகிழ்வு(பங்கு: 0, படம்(உயரம்: 20))");
    expectInOrder(text, {"float totalFlex = 0.0f;\n", "forcedH = unitFlexH * 0.0f;\n"});
    EXPECT_THAT(text, Not(HasSubstr("fixedHeightSum +=")));
}

TEST(ColumnGap, IsOfPixelsOrOfAPart) {
    expectInOrder(inColumn("இவெ(உயரம்: 30)"), {"fixedHeightSum += 30.0f + spacing;\n", "float current_hH = 0.0f;\n",
                                              "current_hH = 30.0f;\n", "currentY += current_hH + spacing;\n"});
    expectInOrder(inColumn("இவெ(உயரம்: 25%)"),
                  {"fixedHeightSum += (containerH * 0.250000f) + spacing;\n",
                   "current_hH = ((forcedH > 0.0f ? forcedH : containerH) * 0.250000f);\n"});
    expectInOrder(inColumn("இவெ(அகலம்: 30)"), {"float current_hH = 0.0f;\n    ", "currentY += current_hH + spacing;\n"});
}

TEST(ColumnChildren, WithoutAHeightDontMoveOn) {
    const std::string text = inColumn("கடவுமறை()");
    EXPECT_THAT(text, HasSubstr("fixedHeightSum += 0.0f + spacing;\n"));
    EXPECT_THAT(text, Not(HasSubstr("currentY += 0.0f")));
}

// --- scrolling ---

TEST(ScrollingColumn, TakesTheWheelClipsAndShowsABar) {
    const std::string text = frameOf("நெடுவரிசை(உருளும்பட்டை: மெய்)" + PICTURES);
    expectInOrder(
        text, {"float colH = winHeight;\n",
               "float contentH = 30.0f;\n",
               "if (contentH < colH) contentH = colH;\n",
               "static float scrollY_",
               "mouseX >= colX && mouseX <= colX + colW && mouseY >= colY && mouseY <= colY + colH && !g_isHoveringH",
               "float wheel = pozhil_take_wheel();\n",
               " += wheel;\n",
               "float maxScroll = contentH - colH;\n",
               "if (maxScroll < 0.0f) maxScroll = 0.0f;\n",
               "nvgSave(vg);\n",
               "nvgScissor(vg, colX, colY, colW, colH);\n",
               "float oldClipX = g_currentClipX",
               "g_currentClipX = colX; g_currentClipY = colY; g_currentClipW = colW; g_currentClipH = colH;\n",
               "if (!g_scrollToId.empty() && g_widgetPositions.count(g_scrollToId)) {\n",
               "float targetY_id = g_widgetPositions[g_scrollToId].y;\n",
               "float desiredY = colY + 50.0f;\n",
               "float error = targetY_id - desiredY;\n",
               " += error * 0.1f;\n",
               "bool hitLimit = false;\n",
               "<= 0.5f) {",
               "= 0.0f; hitLimit = (error < 0); }\n",
               ">= maxScroll - 0.5f) {",
               "= maxScroll; hitLimit = (error > 0); }\n",
               "if (std::abs(error) < 2.0f || hitLimit) g_scrollToId = \"\";\n",
               "float currentY = startY - scrollY_",
               "nvgRestore(vg);\n",
               "g_currentClipX = oldClipX; g_currentClipY = oldClipY; g_currentClipW = oldClipW; g_currentClipH = "
               "oldClipH;\n",
               "if (maxScroll > 0) {\n",
               "float barH = (colH / contentH) * colH;\n",
               "float barY = colY + (scrollY_",
               " / contentH) * colH;\n",
               "nvgRoundedRect(vg, colX + colW - 6, barY, 4, barH, 2);\n",
               "nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));\n"});
}

TEST(ScrollingRow, TakesBothWheelsAndLeavesRoom) {
    expectInOrder(frameOf("கிடைவரிசை(உருளும்பட்டை: மெய்)" + PICTURES),
                  {"float rowW = winWidth;\n", "float rowH = containerH;\n", "float contentW = 80.0f + 150.0f;\n",
                   "if (contentW < rowW) contentW = rowW;\n", "static float scrollX_",
                   "if (mouseX >= rowX && mouseX <= rowX + rowW && mouseY >= rowY && mouseY <= rowY + rowH) {\n",
                   "float wheel = pozhil_take_both_wheels();\n", "float maxScroll = contentW - rowW;\n",
                   "nvgScissor(vg, rowX, rowY, rowW, rowH);\n",
                   "float targetX_id = g_widgetPositions[g_scrollToId].x;\n", "float desiredX = rowX + 50.0f;\n",
                   "float currentX = startX - scrollX_", "nvgRestore(vg);\n",
                   "float barW = (rowW / contentW) * rowW;\n", "float barX = rowX + (scrollX_",
                   "nvgRoundedRect(vg, barX, rowY + rowH - 6, barW, 4, 2);\n"});
}

TEST(Scrolling, IsForTheWordTrueAlone) {
    for (const char* widget : {"நெடுவரிசை", "கிடைவரிசை"}) {
        for (const char* value : {"பொய்", "\"மெய்\"", "1"}) {
            const std::string text = frameOf(std::string(widget) + "(உருளும்பட்டை: " + value + ")" + PICTURES);
            EXPECT_THAT(text, Not(HasSubstr("nvgScissor"))) << widget << " " << value;
            EXPECT_THAT(text, Not(HasSubstr("maxScroll"))) << widget << " " << value;
        }
    }
}

// --- rows ---

TEST(Row, PlacesItsChildrenSideBySide) {
    const std::string text = frameOf("கிடைவரிசை(இடைவெளி: 8)" + PICTURES);
    expectInOrder(text, {"float rowX = 0.0f; float rowY = 0.0f;\n",
                         "float containerW = (forcedW > 0.0f) ? forcedW : 88.0f;\n",
                         "if (forcedW < 0.0f) containerW = winWidth;\n",
                         "float containerH = (forcedH > 0.0f) ? forcedH : 20.0f;\n",
                         "if (forcedH < 0.0f) containerH = winHeight;\n",
                         "float rowW = containerW;\n",
                         "float rowH = containerH;\n",
                         "float fixedWidthSum = 0.0f;\n",
                         "spacing = 8.0f;\n",
                         "fixedWidthSum += 30.0f + spacing;\n",
                         "fixedWidthSum += 50.0f + spacing;\n",
                         "float remainingW = containerW - fixedWidthSum;\n",
                         "float unitFlexW = (totalFlex > 0) ? (remainingW / totalFlex) : 0.0f;\n",
                         "float usedW = (totalFlex > 0.0f) ? containerW : fixedWidthSum;\n",
                         "float startX = rowX + (containerW - usedW) * (1.0f + alignX) / 2.0f;\n",
                         "float currentX = startX;\n",
                         "float current_wW = 30.0f;\n",
                         "forcedW = -1.0f; forcedH = -1.0f;\n",
                         "std::floor(currentX); float imgY = std::floor(childY);",
                         "currentX += current_wW + spacing;\n"});
    EXPECT_THAT(text, Not(HasSubstr("responsiveW(containerW")));
    const std::string inner = inColumn("கிடைவரிசை" + PICTURES);
    EXPECT_EQ(inner.find("currentY = "), inner.rfind("currentY = ")) << "it doesn't tell its end";
}

TEST(RowShares, AreImposedOnFlexibleChildren) {
    const std::string text = inRow("விரிவாக்கம்(படம்()) வெற்றிடம்() நெகிழ்வு(பங்கு: 2, படம்()) படம்(அகலம்: 10)");
    expectInOrder(text,
                  {"float totalFlex = 4.0f;\n", "forcedW = unitFlexW; forcedH = -1.0f;\n", "std::floor(currentX);",
                   "currentX += unitFlexW + spacing;\n", "currentX += unitFlexW + spacing;\n",
                   "float current_wW = unitFlexW * 2.0f;\n", "forcedW = current_wW; forcedH = -1.0f;\n",
                   "std::floor(currentX);", "currentX += current_wW + spacing;\n", "float current_wW = 10.0f;\n",
                   "forcedW = -1.0f; forcedH = -1.0f;\n"});
}

TEST(RowGap, IsOfPixelsOrOfAPart) {
    expectInOrder(inRow("இவெ(அகலம்: 25%)"),
                  {"fixedWidthSum += ((forcedW > 0.0f ? forcedW : containerW) * 0.250000f) + spacing;\n",
                   "current_wW = ((forcedW > 0.0f ? forcedW : containerW) * 0.250000f);\n",
                   "currentX += current_wW + spacing;\n"});
    expectInOrder(inRow("இவெ(அகலம்: 30)"), {"fixedWidthSum += 30.0f + spacing;\n", "current_wW = 30.0f;\n"});
}

// --- stacks, wraps, wrappers ---

TEST(Stack, ShiftsItsChildren) {
    expectInOrder(
        frameOf("அடுக்கி(சீரமைப்பு: மையம்)(படம்(அகலம்: 30, உயரம்: 20), "
                "பொத்தான்(உரை: \"அ\", நகர்வு_X: 15, நகர்வு_Y: கழி 7))"),
        {"float stackW = 80.0f; float stackH = 40.0f;\n", "float sStartX = 0.0f; float sStartY = 0.0f;\n",
         "float childX = sStartX + (stackW - 30.0f) * (1.0f + 0.0f) / 2.0f + 0.0f;\n",
         "float childY = sStartY + (stackH - 20.0f) * (1.0f + 0.0f) / 2.0f + 0.0f;\n",
         "forcedW = -1.0f; forcedH = -1.0f;\n", "std::floor(childX); float imgY = std::floor(childY);",
         "forcedW = savedForcedW; forcedH = savedForcedH;\n", "(stackW - 80.0f) * (1.0f + 0.0f) / 2.0f + 15.0f;\n",
         "(stackH - 40.0f) * (1.0f + 0.0f) / 2.0f + -7.0f;\n", "float btnX = childX; float btnY = childY;\n"});
}

TEST(Wrap, BreaksItsLines) {
    const std::string text = frameOf("மடிப்பு" + PICTURES);
    expectInOrder(text,
                  {"float wrapStartX = 0.0f;", "float rowMaxH = 0.0f;\n",
                   "float wrapMaxW = (forcedW > 0.0f) ? forcedW : winWidth;\n", "float spacing = 10.0f;\n",
                   "float childW = 30.0f; float childH = 20.0f;\n",
                   "if (curX + childW > wrapStartX + wrapMaxW && curX != wrapStartX) {\n", "curX = wrapStartX;\n",
                   "curY += rowMaxH + spacing;\n", "rowMaxH = 0.0f;\n", "if (childH > rowMaxH) rowMaxH = childH;\n",
                   "forcedW = -1.0f; forcedH = -1.0f;\n", "std::floor(curX); float imgY = std::floor(curY);",
                   "forcedW = savedForcedW; forcedH = savedForcedH;\n", "curX += childW + spacing;\n"});
    EXPECT_THAT(text, Not(HasSubstr("= curY + rowMaxH + spacing;")));
    EXPECT_THAT(inColumn("மடிப்பு(இடைவெளி: 4)" + PICTURES), HasSubstr("float spacing = 4.0f;\n"));
    EXPECT_THAT(inColumn("மடிப்பு" + PICTURES), HasSubstr("currentY = curY + rowMaxH + spacing;\n"));
}

TEST(Padding, ShiftsItsChildByItsInset) {
    EXPECT_THAT(frameOf("உள்_இவெ(அளவு: 25)(படம்())"),
                HasSubstr("float childX = 0.0f + 25.0f; float childY = 0.0f + 25.0f;\n"));
    EXPECT_THAT(frameOf("உள்_இவெ()(படம்())"), HasSubstr("float childX = 0.0f + 0.0f; float childY = 0.0f + 0.0f;\n"));
    EXPECT_THAT(frameOf("உள்_இவே(அளவு: 25)(படம்())"), Not(HasSubstr("imgX"))) << "the other spelling draws nothing";
}

TEST(Padding, InAPaddingStartsFromTheOuterOne) {
    expectInOrder(frameOf("உள்_இவெ(அளவு: 5)(உள்_இவெ(அளவு: 6)(படம்()))"),
                  {"float childX = 0.0f + 5.0f;", "float outerX = childX; float outerY = childY;\n",
                   "float childX = outerX + 6.0f; float childY = outerY + 6.0f;\n"});
}

TEST(FlexWrappers, DrawTheirFirstChildWhereTheyStand) {
    for (const char* wrapper : {"விரிவாக்கம்", "நெகிழ்வு"}) {
        const std::string text = frameOf(std::string(wrapper) + "(படம்(), வட்டபடம்())");
        EXPECT_THAT(text, HasSubstr("float imgX = std::floor(0.0f);")) << wrapper;
        EXPECT_THAT(text, Not(HasSubstr("caX"))) << wrapper;
    }
}

TEST(Gap, IsAComment) {
    EXPECT_THAT(frameOf("இவெ(உயரம்: 30)"), HasSubstr("    // இவெ (Spacer) - Space reserved\n"));
}

// --- layouts of many children ---

std::string texts(std::size_t count) {
    std::string children;
    for (std::size_t number = 0; number < count; ++number) {
        children += (number == 0 ? "உரை(\"" : ", உரை(\"") + std::to_string(number) + "\")";
    }
    return "(" + children + ")";
}

std::size_t functionsIn(const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(" [&] {\n", at)) != std::string::npos; ++at) {
        ++count;
    }
    return count;
}

class ManyChildren : public testing::TestWithParam<std::pair<const char*, std::size_t>> {};

TEST_P(ManyChildren, StandInFunctionsOfThirtyTwo) {
    const auto& [layout, loops] = GetParam();
    EXPECT_EQ(functionsIn(frameOf(layout + texts(32))), functionsIn(frameOf(layout + texts(1))));
    EXPECT_EQ(functionsIn(frameOf(layout + texts(33))), functionsIn(frameOf(layout + texts(1))) + 2 * loops);
    const std::string many = frameOf(layout + texts(100));
    EXPECT_EQ(functionsIn(many), functionsIn(frameOf(layout + texts(1))) + 4 * loops);
    EXPECT_THAT(many, HasSubstr("std::string(u8\"0\")"));
    EXPECT_THAT(many, HasSubstr("std::string(u8\"99\")"));
}

INSTANTIATE_TEST_SUITE_P(Layouts, ManyChildren,
                         testing::Values(std::pair("நெடுவரிசை", 2), std::pair("கிடைவரிசை", 2), std::pair("அடுக்கி", 1),
                                         std::pair("மடிப்பு", 1), std::pair("பெட்டி", 1), std::pair("அட்டை", 1),
                                         std::pair("பட்டியல்_காட்சி", 2)));

} // namespace
