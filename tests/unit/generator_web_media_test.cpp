// Pictures and avatars: the text that they become.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(Picture, IsStretchedToItsBox) {
    expectInOrder(frameOf("படம்(பாதை: \"சின்னம்.png\", அகலம்: 40, உயரம்: 30%, வளைவு: 6)"),
                  {"float imgX = std::floor(0.0f); float imgY = std::floor(0.0f);",
                   "float tw = 100.0f; float th = 100.0f; float r = 0.0f;",
                   "tw = 40.0f;",
                   "th = ((forcedH > 0.0f ? forcedH : winHeight) * 0.300000f);",
                   "r = 6.0f;",
                   "if (forcedW > 0.0f) tw = forcedW;",
                   "if (forcedH > 0.0f) th = forcedH;",
                   "tw = responsiveW(tw, winWidth, 0.0f);",
                   "std::string path = \"சின்னம்.png\";",
                   "bool isGif = ",
                   "if (isGif) {",
                   "pozhil_place_gif(",
                   "static int img_",
                   " == \".svg\"",
                   "loadSVGImage(vg, path.c_str(), tw, th);",
                   "nvgCreateImage(vg, path.c_str(), NVG_IMAGE_GENERATE_MIPMAPS | NVG_IMAGE_NEAREST);",
                   "nvgImagePattern(vg, imgX, imgY, tw, th, 0.0f, img_",
                   "if (r > 0.1f) {",
                   "nvgRoundedRect(vg, imgX, imgY, tw, th, r);",
                   "nvgRect(vg, imgX, imgY, tw, th);",
                   "nvgFill(vg);"});
}

TEST(Picture, IsTheLogoWithoutAPath) {
    EXPECT_THAT(frameOf("படம்()"), HasSubstr("std::string path = \"logo.png\";"));
    EXPECT_THAT(frameOf("படம்(பாதை: கோப்பு)"), HasSubstr("std::string path = \"logo.png\";"));
}

TEST(Picture, FeelsThePointerTenPixelsAround) {
    EXPECT_THAT(frameOf("படம்(பாதை: \"அ.gif\")"),
                HasSubstr("bool isImgHover = mx >= imgX - 10 && mx <= imgX + tw + 10 && my >= imgY - 10 && "
                          "my <= imgY + th + 10;"));
}

TEST(Picture, IsCreatedOnce) {
    expectInOrder(frameOf("படம்(பாதை: \"அ.svg\")"),
                  {" = -1;", " == -1) {", "if (path.size() >= 4 && path.substr(path.size() - 4) == \".svg\") {",
                   "loadSVGImage(vg, path.c_str(), tw, th);", "} else {", "nvgCreateImage(", " > 0) {"});
}

TEST(Picture, ThatMovesIsAnElementOfTheBrowser) {
    expectInOrder(generatedText(app("", "படம்(பாதை: \"அ.gif\")")),
                  {"void pozhil_place_gif(", "document.createElement('img')", "el.className = 'pozhil-input';",
                   "el.style.position = 'absolute';", "el.style.pointerEvents = 'none';",
                   "el.style.objectFit = 'cover';", "el.style.zIndex = '1500';", "el.dataset.isHoveredState = 'false';",
                   "FS.analyzePath(path).exists", "FS.readFile(path)", "'image/gif'", "el.src = el.dataset.rawSrc;",
                   "el.dataset.rawSrc + '?t=' + new Date().getTime()", "el.style.display = 'block';", "window.scrollX",
                   "window.scrollY", "el.style.borderRadius = ", "el.dataset.touched = '1';",
                   "std::string imgId = \"gif_"});
}

TEST(Avatar, IsAGreyDisc) {
    const std::string text = frameOf("வட்டபடம்()");
    expectInOrder(text,
                  {"float caX = std::floor(0.0f); float caY = std::floor(0.0f);", "float diameter = 48.0f;",
                   "if (forcedW > 0.0f) diameter = forcedW;", "if (forcedH > 0.0f) diameter = forcedH;",
                   "diameter = responsiveW(diameter, winWidth, 0.0f);", "float radius = diameter / 2.0f;",
                   "int br = 200, bg = 200, bb = 200, ba = 255;", "nvgCircle(vg, caX + radius, caY + radius, radius);",
                   "nvgFillColor(vg, nvgRGBA(br, bg, bb, ba));", "nvgFill(vg);"});
    EXPECT_THAT(text, Not(HasSubstr("nvgStroke(vg)")));
}

TEST(Avatar, TakesTheFirstOfItsSizes) {
    EXPECT_THAT(frameOf("வட்டபடம்(வளைவு: 30)"), HasSubstr("float diameter = 60.0f;"));
    const std::string height = frameOf("வட்டபடம்(வளைவு: 30, உயரம்: 70)");
    expectInOrder(height, {"float diameter = 60.0f;", "diameter = 70.0f;"});
    const std::string width = frameOf("வட்டபடம்(அகலம்: 80, உயரம்: 70)");
    EXPECT_THAT(width, HasSubstr("diameter = 80.0f;"));
    EXPECT_THAT(width, Not(HasSubstr("diameter = 70.0f;")));
    EXPECT_THAT(frameOf("வட்டபடம்(வளைவு: 30.5)"), HasSubstr("float diameter = 61.0f;"));
    EXPECT_THAT(frameOf("வட்டபடம்(அகலம்: 10%)"),
                HasSubstr("diameter = ((forcedW > 0.0f ? forcedW : winWidth) * 0.100000f);"));
    EXPECT_THAT(frameOf("வட்டபடம்(உயரம்: 10%)"),
                HasSubstr("diameter = ((forcedH > 0.0f ? forcedH : winHeight) * 0.100000f);"));
}

TEST(Avatar, TakesItsLookFromItsStyleFirst) {
    constexpr const char* STYLE = "உரைபாணி(வளைவு: 20, பின்னணி: \"#0A0B0C\")";
    expectInOrder(frameOf("வட்டபடம்(" + std::string(STYLE) + ", வளைவு: 30, பின்னணி: நிறம்.சிவப்பு)"),
                  {"float diameter = 40.0f;", "int br = 10, bg = 11, bb = 12, ba = 255;"});
    EXPECT_THAT(frameOf("வட்டபடம்(பின்னணி: நிறம்.சிவப்பு)"), HasSubstr("int br = 255, bg = 0, bb = 0, ba = 255;"));
    EXPECT_THAT(frameOf("வட்டபடம்(பின்னணி: \"#00000080\")"), HasSubstr("ba = 128;"));
}

TEST(Avatar, HasABlackBorderOfAnyWidth) {
    expectInOrder(frameOf("வட்டபடம்(கரை_அளவு: 1.5)"), {"radius + (1.5f / 2.0f));", "nvgRGBAf(0.0f, 0.0f, 0.0f, 1.0f)",
                                                     "nvgStrokeWidth(vg, 1.5f);", "nvgStroke(vg);"});
    EXPECT_THAT(frameOf("வட்டபடம்(கரை_அளவு: 0)"), Not(HasSubstr("nvgStroke(vg)")));
}

TEST(Avatar, ShowsNothingButItsFirstChild) {
    const std::string text = frameOf("வட்டபடம்(வட்டபடம்(), படம்(பாதை: \"அ.png\"), உரை(\"ஆ\"))");
    EXPECT_THAT(text, Not(HasSubstr("nvgCreateImage")));
    EXPECT_THAT(text, Not(HasSubstr("drawFixedText")));
    EXPECT_THAT(frameOf("வட்டபடம்(படம்())"), Not(HasSubstr("nvgCreateImage"))) << "no path, no picture";
}

TEST(Avatar, ShowsAPictureOrInitials) {
    expectInOrder(frameOf("வட்டபடம்(படம்(பாதை: \"நான்.png\"), கரை_அளவு: 4, கரை_நிறம்: \"#FF0000\")"),
                  {"static int avatarImg_", "nvgCreateImage(vg, \"நான்.png\", 0);", "nvgCircle(",
                   "nvgImagePattern(vg, caX, caY, diameter, diameter, 0.0f, avatarImg_", "} else {",
                   "nvgRGBA(br, bg, bb, ba)", "nvgCircle(vg, caX + radius, caY + radius, radius + (4.0f / 2.0f));",
                   "nvgStrokeColor(vg, nvgRGBAf(1.0f, 0.0f, 0.0f, 1.0f));", "nvgStrokeWidth(vg, 4.0f);"});
    EXPECT_THAT(
        frameOf("வட்டபடம்(உரை(\"அ.ஆ\"), பின்னணி: நிறம்.பச்சை)"),
        HasSubstr("drawFixedText(caX + radius, caY + radius + 2.0f, \"அ.ஆ\", \"#FFFFFF\", radius, \"center\");"));
    EXPECT_THAT(frameOf("வட்டபடம்(உரை(பெயர்))"),
                HasSubstr("caY + radius + 2.0f, fn_any_to_string(global_vars[\"பெயர்\"]).c_str(), \"#FFFFFF\""));
}

} // namespace
