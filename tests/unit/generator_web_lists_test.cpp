// Lists, grids and list tiles: the text that they become.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(List, ScrollsItsChildrenInTheWindow) {
    expectInOrder(frameOf("பட்டியல்_காட்சி(படம்(அகலம்: 60, உயரம்: 30), இவெ(உயரம்: 8), வட்டபடம்())"),
                  {"float listStartX = 0.0f; float listStartY = 0.0f;",
                   "float spacing = 0.0f;",
                   "float totalContentHeight = 0.0f;",
                   "totalContentHeight += 30.0f;",
                   "totalContentHeight += 8.0f;",
                   "totalContentHeight += 48.0f;",
                   "nvgSave(vg);",
                   "nvgScissor(vg, listStartX, listStartY, winWidth, winHeight);",
                   "g_currentClipX = listStartX;",
                   "static float scrollOffset_",
                   "float wheel = pozhil_take_wheel();",
                   "float maxScroll = totalContentHeight - winHeight;",
                   "if (maxScroll < 0.0f) maxScroll = 0.0f;",
                   "float desiredY = listStartY + 50.0f;",
                   "float currentY = listStartY - scrollOffset_",
                   "float childX = listStartX + (winWidth - 60.0f) / 2.0f;",
                   "forcedW = -1.0f; forcedH = -1.0f;",
                   "std::floor(childX); float imgY = std::floor(currentY);",
                   "currentY += 30.0f;",
                   "currentY += 8.0f;",
                   "currentY += 48.0f;",
                   "nvgRestore(vg);",
                   "if (maxScroll > 0) {",
                   "float barH = (winHeight / totalContentHeight) * winHeight;",
                   "/ totalContentHeight) * winHeight;",
                   "nvgRoundedRect(vg, winWidth - 6, barY, 4, barH, 2);",
                   "nvgFillColor(vg, nvgRGBA(0, 0, 0, 100));"});
}

TEST(List, TellsItsPositionTwice) {
    const std::string text = frameOf("பட்டியல்_காட்சி(அடையாளம்: \"ப\")(படம்())");
    expectInOrder(text, {"g_widgetPositions[_wid]", "{ std::string _wid = fn_any_to_string(std::string(u8\"ப\")); if "
                                                    "(!_wid.empty()) g_widgetPositions[_wid] = {(float)(0.0f), "
                                                    "(float)(0.0f)}; }\n"});
}

TEST(Grid, HasFewerColumnsOnANarrowWindow) {
    expectInOrder(frameOf("கட்டம்_காட்சி(cols: 3, அகலம்: 600, இவெ(அகலம்: 8, உயரம்: 6))(படம்(உயரம்: 40))"),
                  {"int cols = 3;", "if (cols > 1) {", "if (winWidth <= 768.0f && cols >= 3) cols = 2;",
                   "if (winWidth <= 480.0f) cols = 1;", "float gapH = 8.0f; float gapV = 6.0f;",
                   "float gX = 0.0f; float gY = 0.0f;", "float gW = 600.0f;",
                   "float cellW = (gW - ((cols - 1) * gapH)) / cols;", "float curX = gX; float curY = gY;",
                   "std::floor(curX); float imgY = std::floor(curY);", "if (40.0f > maxRowH) maxRowH = 40.0f;",
                   "colIndex++;", "curX += cellW + gapH;", "if (colIndex >= cols) {", "colIndex = 0;", "curX = gX;",
                   "curY += maxRowH + gapV;", "maxRowH = 0.0f;"});
}

TEST(Grid, HasTwoColumnsAndMeasuresItselfByThree) {
    expectInOrder(frameOf("கட்டம்_காட்சி()(வட்டபடம்())"),
                  {"int cols = 2;", "float gapH = 10.0f; float gapV = 10.0f;", "float gW = 164.0f;"});
}

TEST(Grid, TakesItsColumnsFromAWholeNumber) {
    EXPECT_THAT(frameOf("கட்டம்_காட்சி(cols: 1)(வட்டபடம்())"), HasSubstr("int cols = 1;"));
    EXPECT_THAT(frameOf("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 5)(வட்டபடம்())"), HasSubstr("int cols = 5;"));
    EXPECT_THAT(frameOf("கட்டம்_காட்சி(cols: எண்)(வட்டபடம்())"), HasSubstr("int cols = 2;"));
    EXPECT_THAT(frameOf("கட்டம்_காட்சி(cols: 0)(வட்டபடம்())"), HasSubstr("int cols = 1;")) << "nothing divides by 0";
}

TEST(Grid, TakesTheLastOfItsGaps) {
    struct Row {
        const char* properties;
        const char* gaps;
    };
    constexpr Row ROWS[] = {
        {"இவெ(அகலம்: 8, உயரம்: 6), கி_இவெ: 3, நெ_இவெ: 4", "float gapH = 3.0f; float gapV = 4.0f;"},
        {"இவெ(அகலம்: 8, உயரம்: 6), கி_இவெ: 3", "float gapH = 3.0f; float gapV = 6.0f;"},
        {"இடைவெளி: இவெ(அகலம்: 8, உயரம்: 6)", "float gapH = 8.0f; float gapV = 6.0f;"},
        {"இடைவெளி: இவெ(அகலம்: 8, உயரம்: 6), v_gap: 2", "float gapH = 8.0f; float gapV = 2.0f;"},
        {"இடைவெளி: இவெ(உயரம்: 6)", "float gapH = 10.0f; float gapV = 6.0f;"},
        {"h_gap: 7.5, v_gap: எண்", "float gapH = 7.5f; float gapV = 10.0f;"},
    };
    for (const auto& [properties, gaps] : ROWS) {
        EXPECT_THAT(frameOf("கட்டம்_காட்சி(" + std::string(properties) + ")(வட்டபடம்())"), HasSubstr(gaps)) << properties;
    }
}

TEST(Grid, NeitherCutsOffNorScrollsNorMovesItsParentOn) {
    const std::string text = frameOf("நெடுவரிசை(கட்டம்_காட்சி(cols: 2)(வட்டபடம்()))");
    const std::size_t begin = text.find("int cols = 2;");
    const std::string grid = text.substr(begin, text.find("});", text.find("maxRowH = 0.0f;", begin)) - begin);
    for (const std::string other :
         {"nvgScissor", "nvgIntersectScissor", "pozhil_take_wheel", "currentY +=", "currentY ="}) {
        EXPECT_THAT(grid, Not(HasSubstr(other)));
    }
}

TEST(Tile, DrawsItsBodyAndAnswersThePointer) {
    expectInOrder(frameOf("பட்டியல்_உருப்படி(பின்னணி: \"#0A0B0C80\", அழுத்தினால்(அச்சிடு(\"அ\")))"),
                  {"float ltX = std::floor(0.0f); float ltY = std::floor(0.0f);",
                   "float ltW = 200.0f; float ltH = 56.0f;", "float radius = 8.0f;",
                   "ltW = responsiveW(ltW, winWidth, 0.0f);", "&& (!g_block_background_clicks || g_inside_overlay);",
                   "int r = 10, g = 11, b = 12;", "if (isHover) {", "pozhil_pointer_cursor();",
                   "r = std::max(0, r - 10); g = std::max(0, g - 10); b = std::max(0, b - 10);",
                   "if (g_mouseClicked) {", "std::cout << ", "nvgRoundedRect(vg, ltX, ltY, ltW, ltH, radius);",
                   "nvgFillColor(vg, nvgRGBA(r, g, b, 128));", "float currentContentX = ltX + 16.0f;"});
}

TEST(Tile, CallsItsHandlerBeforeItsStatements) {
    auto tile = make<WidgetNode>("பட்டியல்_உருப்படி", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    tile->properties["அழுத்தினால்"] = variable("செய்");
    tile->eventStatements = listOf(assignment("எ", number("1")));
    const std::string text = frameOf(std::move(tile));
    expectInOrder(text, {"if (g_mouseClicked) {", "std::any callback = global_vars[\"செய்\"];", "} catch (...) {"});
    EXPECT_THAT(text, Not(HasSubstr("global_vars[\"எ\"]")));
    const std::string plain = frameOf("பட்டியல்_உருப்படி(தலைப்பு: உரை(\"அ\"))");
    expectInOrder(plain, {"if (g_mouseClicked) {\n", "}\n", "}\n", "nvgBeginPath(vg);"});
    EXPECT_THAT(plain, Not(HasSubstr("callback")));
}

TEST(Tile, EndsWithAWidget) {
    auto tile = make<WidgetNode>("பட்டியல்_உருப்படி", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    tile->properties["பின்னணி_விட்ஜெட்"] =
        make<WidgetExpression>(make<WidgetNode>("மாற்றி", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது));
    expectInOrder(frameOf(std::move(tile)),
                  {"float currentContentX = ltX + 16.0f;", "float trailW = 48.0f;",
                   "float trailX = ltX + ltW - trailW - 16.0f;", "float trailY = ltY + (ltH - 28.0f) / 2.0f;",
                   "forcedW = -1.0f; forcedH = -1.0f;", "std::floor(trailX)", "forcedW = savedForcedW;"});
}

TEST(Tile, IsAsWideAsItSaysWhateverItsParentWants) {
    const std::string text = frameOf("பட்டியல்_உருப்படி(அகலம்: 50%, உயரம்: 80, வளைவு: 2)");
    expectInOrder(text, {"ltW = (winWidth * 0.500000f);", "ltH = 80.0f;", "float radius = 2.0f;"});
    EXPECT_THAT(text, Not(HasSubstr("ltW = forcedW")));
}

TEST(Tile, PutsItsPartsInTheirPlaces) {
    expectInOrder(frameOf("பட்டியல்_உருப்படி(முன்னணி: வட்டபடம்(), தலைப்பு: உரை(\"அ\"), துணைத்_தலைப்பு: உரை(\"ஆ\"))"),
                  {"float ltH = 72.0f;", "float leadY = std::floor(ltY + (ltH - 48.0f) / 2.0f);",
                   "forcedW = -1.0f; forcedH = -1.0f;",
                   "float caX = std::floor(currentContentX); float caY = std::floor(leadY);",
                   "currentContentX += 48.0f + 12.0f;", "float titleY = ltY + 12.0f;",
                   "float textX = currentContentX; float textY = titleY;", "float subY = ltY + ltH - 16.0f - 12.0f;",
                   "float textX = currentContentX; float textY = subY;"});
    EXPECT_THAT(frameOf("பட்டியல்_உருப்படி(தலைப்பு: உரை(\"அ\"))"), HasSubstr("float titleY = ltY + (ltH - 16.0f) / 2.0f;"));
}

} // namespace
