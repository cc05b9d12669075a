// Animated buttons and boxes: how far they have come in a frame, and what that moves.

#include "support/web_generating.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

using namespace pozhil::test;
using testing::HasSubstr;
using testing::Not;

namespace {

std::string button(const std::string& animation) {
    return frameOf("நெடுவரிசை(பொத்தான்(உரை: \"அ\", அசைவூட்டம்(" + animation + ")))");
}

std::string box(const std::string& animation) {
    return frameOf("நெடுவரிசை(பெட்டி(அகலம்: 50, உயரம்: 50, அசைவூட்டம்(" + animation + ")))");
}

TEST(AnimationProgress, IsAskedForInEachFrame) {
    const std::string animation = "நிலைமை: \"hover\", காலம்: 300, வகை: \"துள்ளல்\"";
    for (const auto& [text, hover] :
         {std::pair{button(animation), std::string("isHover")}, {box(animation), "isBoxHover"}}) {
        expectInOrder(
            text, {"bool " + hover + " = ", "bool animActive = false;\n", "std::string aCond = \"hover\";\n",
                   "if (aCond == \"மவுஸ்_மேலே\" || aCond == \"hover\" || aCond == \"சுட்டி_மேல்\") animActive = " + hover +
                       ";\n",
                   "if (aCond == \"தானாக\") animActive = true;\n", "float progress = updateProgress(",
                   "ULL, aCond, animActive, currentY, winHeight, 300.0f);\n",
                   "float t = getCurveValue(\"துள்ளல்\", progress);\n"});
    }
}

TEST(AnimationProgress, IsEvenAndAtOnceWithoutCurveAndDuration) {
    expectInOrder(button("நிலைமை: \"தானாக\""), {"std::string aCond = \"தானாக\";\n", ", winHeight, 0.0f);\n",
                                                "float t = getCurveValue(\"linear\", progress);\n"});
}

TEST(AnimationProgress, IsEachWidgetsOwn) {
    const std::string animated = "பொத்தான்(உரை: \"அ\", அசைவூட்டம்(நிலைமை: \"hover\"))";
    const std::string text = frameOf("நெடுவரிசை(" + animated + ", " + animated + ")");
    const std::regex call("updateProgress\\((\\d+)ULL");
    std::vector<std::string> numbers;
    for (std::sregex_iterator found(text.begin(), text.end(), call), end; found != end; ++found) {
        numbers.push_back((*found)[1]);
    }
    ASSERT_EQ(numbers.size(), 2U);
    EXPECT_NE(numbers[0], numbers[1]);
}

TEST(AnimationProgress, IsNothingToAWidgetWithoutAnimation) {
    EXPECT_THAT(frameOf("பொத்தான்(உரை: \"அ\")"), Not(HasSubstr("updateProgress(")));
    EXPECT_THAT(frameOf("பெட்டி(அகலம்: 50)"), Not(HasSubstr("updateProgress(")));
}

TEST(AnimationTargets, MoveTheirSideByTheCurve) {
    struct Target {
        const char* name;
        std::vector<std::string> lines;
    };
    const Target targets[] = {
        {"அகலம்", {"btnW = lerp(btnW, 40.0f, t);\n"}},
        {"உயரம்", {"btnH = lerp(btnH, 40.0f, t);\n"}},
        {"வளைவு", {"radius = lerp(radius, 40.0f, t);\n"}},
        {"விரிவு",
         {"float scale = lerp(1.0f, 40.0f, t);\n", "btnX -= (btnW * scale - btnW) / 2.0f;\n",
          "btnY -= (btnH * scale - btnH) / 2.0f;\n", "btnW *= scale;\n", "btnH *= scale;\n"}},
        {"கி_நகர்வு", {"btnX = lerp(btnX, btnX + 40.0f, t);\n"}},
        {"நெ_நகர்வு", {"btnY = lerp(btnY, btnY + 40.0f, t);\n"}},
    };
    for (const Target& target : targets) {
        const std::string text = button("நிலைமை: \"hover\", இலக்கு(" + std::string(target.name) + ": 40)");
        std::vector<std::string> pieces = target.lines;
        pieces.insert(pieces.begin(), "float t = ");
        pieces.push_back("nvgRoundedRect(vg, btnX, btnY, btnW, btnH, radius);");
        expectInOrder(text, pieces);
    }
}

TEST(AnimationTargets, KeepTheirFractionsAndPassOverUnknownNames) {
    const std::string text = button("நிலைமை: \"hover\", இலக்கு(விரிவு: 1.2, சுழற்சி: 45)");
    EXPECT_THAT(text, HasSubstr("float scale = lerp(1.0f, 1.2f, t);"));
    EXPECT_THAT(text, Not(HasSubstr("45.0f")));
}

TEST(AnimationTargets, FadeToTheirColour) {
    for (const std::string name : {"பொபின்னணி", "பின்னணி", "பெட்டிபின்னணி"}) {
        expectInOrder(button("நிலைமை: \"hover\", இலக்கு(" + name + ": \"#0000FF\")"),
                      {"float t = ", "nvgRGBA(r, g, b, a)", "NVGcolor targetCol = nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f);\n",
                       "lerpColor(", ", targetCol, t)", "nvgFillColor(vg, nvgRGBA(r, g, b, a));"});
    }
    for (const std::string name : {"பின்னணி", "பெட்டிபின்னணி"}) {
        expectInOrder(box("நிலைமை: \"hover\", இலக்கு(" + name + ": \"நீலம்\")"),
                      {"float t = ", "NVGcolor targetCol = nvgRGBAf(0.0f, 0.0f, 1.0f, 1.0f);\n", "lerpColor(",
                       ", targetCol, t)"});
    }
    EXPECT_THAT(box("நிலைமை: \"hover\", இலக்கு(பொபின்னணி: \"நீலம்\")"), Not(HasSubstr("lerpColor(")));
}

} // namespace
