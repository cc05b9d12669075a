// What the widgets of a page call in each frame: the progress of animations, and the digits of a counting text.

#include "generator/web/runtime/runtime.h"

#include <gtest/gtest.h>

namespace {

const float WINDOW = 600.0f;
const float ONE_FRAME = 1.0f / 60.0f;

float progress(unsigned long long id, const std::string& condition, bool active, float y, float duration = 1000.0f) {
    return updateProgress(id, condition, active, y, WINDOW, duration);
}

TEST(Progress, StepsForwardWhileActiveAndBackBehindIt) {
    EXPECT_FLOAT_EQ(progress(1, "மவுஸ்_மேலே", true, 10), ONE_FRAME);
    EXPECT_FLOAT_EQ(progress(1, "மவுஸ்_மேலே", true, 10), 2 * ONE_FRAME);
    EXPECT_FLOAT_EQ(progress(1, "மவுஸ்_மேலே", false, 10), ONE_FRAME);
    EXPECT_FLOAT_EQ(progress(1, "மவுஸ்_மேலே", false, 10), 0.0f);
    EXPECT_FLOAT_EQ(progress(1, "மவுஸ்_மேலே", false, 10), 0.0f);
}

TEST(Progress, StopsAtTheEnd) {
    for (int frame = 0; frame < 61; ++frame) {
        progress(2, "hover", true, 10);
    }
    EXPECT_FLOAT_EQ(progress(2, "hover", true, 10), 1.0f);
}

TEST(Progress, JumpsWithoutADuration) {
    EXPECT_FLOAT_EQ(progress(3, "hover", true, 10, 0.0f), 1.0f);
    EXPECT_FLOAT_EQ(progress(3, "hover", false, 10, 0.0f), 0.0f);
    EXPECT_FLOAT_EQ(progress(3, "hover", true, 10, -5.0f), 1.0f);
}

TEST(AutomaticProgress, WaitsForTheViewAndThenStaysOn) {
    for (const std::string condition : {"தானாக", "auto"}) {
        const unsigned long long id = condition == "auto" ? 5 : 4;
        EXPECT_FLOAT_EQ(progress(id, condition, true, WINDOW - 50.0f), 0.0f) << "in the margin of 50 pixels";
        EXPECT_FLOAT_EQ(progress(id, condition, true, 0.0f), 0.0f) << "at the very top";
        EXPECT_FLOAT_EQ(progress(id, condition, true, -1.0f), 0.0f);
        EXPECT_FLOAT_EQ(progress(id, condition, false, WINDOW - 51.0f), ONE_FRAME);
        EXPECT_FLOAT_EQ(progress(id, condition, false, 5000.0f), 2 * ONE_FRAME) << "scrolled away again";
    }
}

TEST(Progress, IsKeptPerWidget) {
    EXPECT_FLOAT_EQ(progress(6, "hover", true, 10), ONE_FRAME);
    EXPECT_FLOAT_EQ(progress(7, "hover", true, 10), ONE_FRAME);
}

TEST(CurveValues, FollowTheNamedCurve) {
    EXPECT_FLOAT_EQ(getCurveValue("ease_in", 0.5f), 0.25f);
    EXPECT_FLOAT_EQ(getCurveValue("கன_தொடக்கம்", 0.5f), 0.125f);
    EXPECT_FLOAT_EQ(getCurveValue("இல்லாதது", 0.3f), 0.3f);
}

TEST(SplitText, CutsOutTheDigits) {
    struct Case {
        const char* text;
        const char* prefix;
        const char* suffix;
    };
    const Case cases[] = {{"ரூ. 1,250 மட்டும்", "ரூ. ", " மட்டும்"},
                          {"42", "", ""},
                          {"7 நாள்", "", " நாள்"},
                          {"எண் இல்லை", "எண் இல்லை", ""},
                          {"", "", ""},
                          {"௧௨", "௧௨", ""}};
    for (const Case& one : cases) {
        const TextParts parts = splitText(one.text);
        EXPECT_EQ(parts.prefix, one.prefix) << one.text;
        EXPECT_EQ(parts.suffix, one.suffix) << one.text;
    }
}

} // namespace
