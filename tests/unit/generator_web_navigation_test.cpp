// Bars and tabs: items counted before the page runs, the press by index, the selected item.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(BottomNavigation, StandsAtTheBottomOfTheWindow) {
    expectInOrder(frameOf("அடிப்பகுதி()"),
                  {"float winW = winWidth; float winH = winHeight;", "float navH = 64.0f; float navY = winH - navH;",
                   "nvgRect(vg, 0, navY-4, winW, 4);",
                   "nvgBoxGradient(vg, 0, navY-2, winW, navH, 0, 4, nvgRGBA(0,0,0,30), nvgRGBA(0,0,0,0))",
                   "nvgRect(vg, 0, navY, winW, navH);", "nvgFillColor(vg, nvgRGBA(255, 255, 255, 255));",
                   "int itemCount = 0;", "float itemW = winW / (float)(itemCount > 0 ? itemCount : 1);",
                   "int currentIndex = (int)0.0f;", "bool isNavClicked = g_mouseClicked && (my >= navY);",
                   "int clickedIdx = (int)(mx / itemW);",
                   "nvgCircle(vg, clickedIdx * itemW + itemW / 2, navY + navH / 2, 20);", "nvgRGBA(0, 0, 0, 20)"});
}

TEST(BottomNavigation, EvaluatesItsHandlerWithoutCallingIt) {
    const std::string text = frameOf("அடிப்பகுதி(அழுத்தினால்: () => அ = 1, அடி_உருப்படி(உரை(\"முகப்பு\")))");
    expectInOrder(text, {"int itemCount = 1;", "if (clickedIdx >= 0 && clickedIdx < itemCount) {",
                         "std::any callback = std::function<std::any()>("});
    EXPECT_THAT(text, Not(HasSubstr("(callback)()")));
}

TEST(BottomNavigation, ShowsTheItemOfTheProperty) {
    EXPECT_THAT(frameOf("அடிப்பகுதி(அடிப்பகுதிதேர்வு: 2)"), HasSubstr("int currentIndex = (int)2.0f;"));
    EXPECT_THAT(frameOf("அடிப்பகுதி(அடிப்பகுதிதேர்வு: இடம்)"),
                HasSubstr("int currentIndex = (int)(float)fn_get_double(global_vars[\"இடம்\"]);"));
}

TEST(BottomNavigation, LaysOutItsItems) {
    const std::string text = frameOf("அடிப்பகுதி(அடி_உருப்படி(படம்(பாதை: \"வீடு.png\"), உரை(\"முகப்பு\")), "
                                     "அடி_உருப்படி(படம்(பாதை: \"assets/நான்.svg\"), உரை(பெயர்)))");
    expectInOrder(
        text, {"int itemCount = 2;", "float iX = 0 * itemW; float cX = iX + itemW / 2;",
               "float iconY = navY + 18.0f; float textY = navY + 44.0f;", "bool isSelected = (0 == currentIndex);",
               "std::string htmlColor = isSelected ? \"#2196F3\" : \"#757575\";", "static int navImg_3 = -1;",
               "if (navImg_3 == -1) navImg_3 = nvgCreateImage(vg, \"வீடு.png\", 0);",
               "nvgRect(vg, cX - 12, iconY - 12, 24, 24);",
               "nvgImagePattern(vg, cX - 12, iconY - 12, 24, 24, 0.0f, navImg_3, isSelected ? 1.0f : 0.5f)",
               "drawFixedText(cX, textY, \"முகப்பு\", htmlColor.c_str(), 11.0f, \"center\");", "float iX = 1 * itemW;",
               "if (navImg_4 == -1) navImg_4 = loadSVGImage(vg, \"assets/நான்.svg\", 24, 24);",
               "drawFixedText(cX, textY, fn_any_to_string(global_vars[\"பெயர்\"]).c_str(), "
               "htmlColor.c_str(), 11.0f, \"center\");"});
}

TEST(BottomNavigation, DrawsNoIconWithoutAPath) {
    EXPECT_THAT(frameOf("அடிப்பகுதி(அடி_உருப்படி(உரை(\"அ\")))"), Not(HasSubstr("navImg")));
}

TEST(TabBar, RunsAcrossTheWindow) {
    expectInOrder(frameOf("தத்தல்(தத்தல்_தேர்வு: 1, தத்தல்_உருப்படி(உரை: \"ஒன்று\"), தத்தல்_உருப்படி(உரை(\"இரண்டு\")))"),
                  {"float tbX = 0.0f; float tbY = 0.0f;",
                   "float tbW = winWidth; float tbH = 50.0f;",
                   "static int curTabIdx_2 = 1; int& curTabIdx = curTabIdx_2;",
                   "nvgRect(vg, tbX, tbY, tbW, tbH);",
                   "nvgFillColor(vg, nvgRGBA(33, 150, 243, 255));",
                   "nvgRect(vg, tbX, tbY+tbH, tbW, 6);",
                   "nvgBoxGradient(vg, tbX, tbY+tbH-2, tbW, 6, 0, 6, nvgRGBA(0,0,0,30), nvgRGBA(0,0,0,0))",
                   "int tabCount = 2;",
                   "float tabW = tbW / (float)(tabCount > 0 ? tabCount : 1);",
                   "int clickedTab = (int)((mx - tbX) / tabW);",
                   "nvgCircle(vg, tbX + clickedTab * tabW + tabW / 2, tbY + tbH / 2, 20);",
                   "nvgRGBA(255, 255, 255, 30)",
                   "curTabIdx = clickedTab;",
                   "nvgRect(vg, tbX + curTabIdx * tabW, tbY + tbH - 3.0f, tabW, 3);",
                   "float tx = tbX + 0 * tabW + tabW / 2; float ty = tbY + tbH / 2;",
                   "bool isSelected = (0 == curTabIdx);",
                   "std::string tColor = isSelected ? \"#FFFFFF\" : \"#E0E0E0\";",
                   "float fontSize = isSelected ? 15.0f : 14.0f;",
                   "drawFixedText(tx, ty, \"ஒன்று\", tColor.c_str(), fontSize, \"center\");",
                   "float tx = tbX + 1 * tabW",
                   "drawFixedText(tx, ty, \"இரண்டு\", tColor.c_str(), fontSize, \"center\");"});
}

TEST(TabBar, EvaluatesItsHandlerWithoutCallingIt) {
    const std::string text = frameOf("தத்தல்(அழுத்தினால்: () => அ = 1, தத்தல்_உருப்படி(\"அ\"))");
    expectInOrder(text, {"static int curTabIdx_2 = 0;", "if (clickedTab >= 0 && clickedTab < tabCount) {",
                         "curTabIdx = clickedTab;", "std::any callback = std::function<std::any()>("});
    EXPECT_THAT(text, Not(HasSubstr("(callback)()")));
}

TEST(TabBar, StartsWithTheTabOfTheProperty) {
    EXPECT_THAT(frameOf("தத்தல்(தத்தல்_தேர்வு: இடம்)"),
                HasSubstr("static int curTabIdx_2 = (int)(float)fn_get_double(global_vars[\"இடம்\"]);"));
}

TEST(NavigationBars, WithoutItemsHaveOneAsWideAsTheWindow) {
    expectInOrder(frameOf("அடிப்பகுதி()"),
                  {"int itemCount = 0;", "float itemW = winW / (float)(itemCount > 0 ? itemCount : 1);"});
    expectInOrder(frameOf("தத்தல்()"), {"int tabCount = 0;", "float tabW = tbW / (float)(tabCount > 0 ? tabCount : 1);"});
}

TEST(NavigationBars, TakeTheirColourFromTheStyleBlockOnly) {
    for (const auto& [kind, usual] :
         {std::pair{"அடிப்பகுதி", "nvgRGBA(255, 255, 255, 255)"}, std::pair{"தத்தல்", "nvgRGBA(33, 150, 243, 255)"}}) {
        const std::string bar = kind;
        for (const std::string style : {"style_பின்னணி: \"#FF0000\"", "உரைபாணி(பின்னணி: \"#FF0000\")"}) {
            const std::string text = frameOf(bar + "(" + style + ")");
            EXPECT_THAT(text, HasSubstr("nvgFillColor(vg, nvgRGBA(255, 0, 0, 255));")) << kind;
        }
        const std::string text = frameOf(bar + "(பின்னணி: \"#FF0000\")");
        EXPECT_THAT(text, HasSubstr("nvgFillColor(vg, " + std::string(usual) + ");")) << kind;
        EXPECT_THAT(text, Not(HasSubstr("nvgRGBA(255, 0, 0, 255)"))) << kind;
    }
}

TEST(NavigationBars, DrawAWidgetInPlaceOfAHandler) {
    for (const std::string bar : {"அடிப்பகுதி(அழுத்தினால்: உரை(\"மாற்றம்\"), அடி_உருப்படி(\"அ\"))",
                                  "தத்தல்(அழுத்தினால்: உரை(\"மாற்றம்\"), தத்தல்_உருப்படி(\"அ\"))"}) {
        const std::string text = frameOf(bar);
        EXPECT_THAT(text, HasSubstr("std::string(u8\"மாற்றம்\")"));
        EXPECT_THAT(text, Not(HasSubstr("callback")));
    }
}

TEST(TabBar, MovesTheRestOfAColumnBelowIt) {
    expectInOrder(
        frameOf("நெடுவரிசை(தத்தல்(), உரை(\"அ\"))"),
        {"float tbY = currentY;", "currentY += tbH;", "currentY += 50.0f + spacing;", "float textY = currentY;"});
    EXPECT_THAT(frameOf("தத்தல்()"), Not(HasSubstr("+= tbH"))) << "at the top of a page there is nothing to move";
}

} // namespace
