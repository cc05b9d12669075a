// Easing curves against values computed by other means, and the progress of animations.

#include "generator/web/runtime/runtime.h"

#include <array>

#include <gtest/gtest.h>

namespace {

const std::array<float, 5> PROGRESS = {0.0f, 0.25f, 0.5f, 0.75f, 1.0f};
const float TOLERANCE = 1e-5f;

struct CurveValues {
    const char* name;
    std::array<float, 5> values;
};

// clang-format off
const std::array<CurveValues, 43> NAMED_CURVES = {{
    {"சாதாரண", {{0.0f, 0.25f, 0.5f, 0.75f, 1.0f}}},
    {"இயல்பான", {{0.0f, 0.15625f, 0.5f, 0.84375f, 1.0f}}},
    {"மெது_தொடக்கம்", {{0.0f, 0.0625f, 0.25f, 0.5625f, 1.0f}}},
    {"மெது_முடிவு", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"மெது_மாற்றம்", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"அலை_தொடக்கம்", {{0.0f, 0.0761204675f, 0.292893219f, 0.617316568f, 1.0f}}},
    {"அலை_முடிவு", {{0.0f, 0.382683432f, 0.707106781f, 0.923879533f, 1.0f}}},
    {"அலை_மாற்றம்", {{0.0f, 0.146446609f, 0.5f, 0.853553391f, 1.0f}}},
    {"அழுத்த_தொடக்கம்", {{0.0f, 0.0625f, 0.25f, 0.5625f, 1.0f}}},
    {"அழுத்த_முடிவு", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"அழுத்த_மாற்றம்", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"கன_தொடக்கம்", {{0.0f, 0.015625f, 0.125f, 0.421875f, 1.0f}}},
    {"கன_முடிவு", {{0.0f, 0.578125f, 0.875f, 0.984375f, 1.0f}}},
    {"கன_மாற்றம்", {{0.0f, 0.0625f, 0.5f, 0.9375f, 1.0f}}},
    {"வேக_தொடக்கம்", {{0.0f, 0.00390625f, 0.0625f, 0.31640625f, 1.0f}}},
    {"வேக_முடிவு", {{0.0f, 0.68359375f, 0.9375f, 0.99609375f, 1.0f}}},
    {"வேக_மாற்றம்", {{0.0f, 0.03125f, 0.5f, 0.96875f, 1.0f}}},
    {"அதிவேக_தொடக்கம்", {{0.0f, 0.0009765625f, 0.03125f, 0.237304688f, 1.0f}}},
    {"அதிவேக_முடிவு", {{0.0f, 0.762695312f, 0.96875f, 0.999023438f, 1.0f}}},
    {"அதிவேக_மாற்றம்", {{0.0f, 0.015625f, 0.5f, 0.984375f, 1.0f}}},
    {"பாய்_தொடக்கம்", {{0.0f, 0.00552427173f, 0.03125f, 0.176776695f, 1.0f}}},
    {"பாய்_முடிவு", {{0.0f, 0.823223305f, 0.96875f, 0.994475728f, 1.0f}}},
    {"பாய்_மாற்றம்", {{0.0f, 0.015625f, 0.5f, 0.984375f, 1.0f}}},
    {"வட்ட_தொடக்கம்", {{0.0f, 0.0317541634f, 0.133974596f, 0.338562172f, 1.0f}}},
    {"வட்ட_முடிவு", {{0.0f, 0.661437828f, 0.866025404f, 0.968245837f, 1.0f}}},
    {"வட்ட_மாற்றம்", {{0.0f, 0.0669872981f, 0.5f, 0.933012702f, 1.0f}}},
    {"பின்வாங்கல்_தொடக்கம்", {{0.0f, -0.0641365625f, -0.0876975f, 0.182590312f, 1.0f}}},
    {"பின்வாங்கல்_முடிவு", {{0.0f, 0.817409688f, 1.0876975f, 1.06413656f, 1.0f}}},
    {"பின்வாங்கல்_மாற்றம்", {{0.0f, -0.0996818437f, 0.5f, 1.09968184f, 1.0f}}},
    {"துள்ளல்_தொடக்கம்", {{0.0f, 0.02734375f, 0.234375f, 0.52734375f, 1.0f}}},
    {"துள்ளல்", {{0.0f, 0.47265625f, 0.765625f, 0.97265625f, 1.0f}}},
    {"துள்ளல்_மாற்றம்", {{0.0f, 0.1171875f, 0.5f, 0.8828125f, 1.0f}}},
    {"மீட்சி_தொடக்கம்", {{0.0f, -0.00552427173f, -0.015625f, 0.0883883476f, 1.0f}}},
    {"மீட்சி", {{0.0f, 0.911611652f, 1.015625f, 1.00552427f, 1.00048828f}}},
    {"மீட்சி_மாற்றம்", {{0.0f, -0.0078125f, 0.5f, 1.0078125f, 1.00024414f}}},
    {"வேகம்_குறை", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"வேக_மெது", {{0.0f, 0.0625f, 0.5f, 0.9375f, 1.0f}}},
    {"நடு_மெது", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"பாய்ந்து_அமர்", {{0.0f, 0.47265625f, 0.765625f, 0.97265625f, 1.0f}}},
    {"நிதான_முடிவு", {{0.0f, 0.382683432f, 0.707106781f, 0.923879533f, 1.0f}}},
    {"நிதான_தொடக்கம்", {{0.0f, 0.0761204675f, 0.292893219f, 0.617316568f, 1.0f}}},
    {"மின்_வேகம்", {{0.0f, 0.03125f, 0.176776695f, 0.48713929f, 1.0f}}},
    {"சீறு", {{0.0f, 0.00390625f, 0.0625f, 0.31640625f, 1.0f}}},
}};

const std::array<CurveValues, 15> ALIASES = {{
    {"ease_in", {{0.0f, 0.0625f, 0.25f, 0.5625f, 1.0f}}},
    {"easeIn", {{0.0f, 0.0625f, 0.25f, 0.5625f, 1.0f}}},
    {"மெதுவா_தொடங்கு", {{0.0f, 0.0625f, 0.25f, 0.5625f, 1.0f}}},
    {"ease_out", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"easeOut", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"மெதுவா_முடி", {{0.0f, 0.4375f, 0.75f, 0.9375f, 1.0f}}},
    {"ease_in_out", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"easeInOut", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"மெதுவா_தொடங்கி_முடி", {{0.0f, 0.125f, 0.5f, 0.875f, 1.0f}}},
    {"ease_in_cubic", {{0.0f, 0.015625f, 0.125f, 0.421875f, 1.0f}}},
    {"easeInCubic", {{0.0f, 0.015625f, 0.125f, 0.421875f, 1.0f}}},
    {"ease_out_cubic", {{0.0f, 0.578125f, 0.875f, 0.984375f, 1.0f}}},
    {"easeOutCubic", {{0.0f, 0.578125f, 0.875f, 0.984375f, 1.0f}}},
    {"ease_in_out_cubic", {{0.0f, 0.0625f, 0.5f, 0.9375f, 1.0f}}},
    {"easeInOutCubic", {{0.0f, 0.0625f, 0.5f, 0.9375f, 1.0f}}},
}};
// clang-format on

void expect_curve(PozhilCurve curve, const CurveValues& expected) {
    for (std::size_t i = 0; i < PROGRESS.size(); i++) {
        EXPECT_NEAR(curve(PROGRESS[i]), expected.values[i], TOLERANCE) << expected.name << " at " << PROGRESS[i];
    }
}

TEST(Curves, EveryNameOfTheTable) {
    for (const CurveValues& expected : NAMED_CURVES) {
        expect_curve(பெறு_அசைவூட்ட_வளைவு(expected.name), expected);
        EXPECT_EQ(getEasingFunction(expected.name), பெறு_அசைவூட்ட_வளைவு(expected.name)) << expected.name;
    }
}

TEST(Curves, AliasesBelongToTheWiderFunction) {
    for (const CurveValues& expected : ALIASES) {
        expect_curve(getEasingFunction(expected.name), expected);
        EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு(expected.name)(0.25f), 0.25f) << expected.name << " is no name of the table";
    }
}

TEST(Curves, UnknownNamesAreTheIdentity) {
    for (const char* name : {"", "linear", "Ease_in", "மெது_மாற்றம் ", "ease_in_quad"}) {
        EXPECT_EQ(getEasingFunction(name)(0.3f), 0.3f) << name;
        EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு(name)(-2.0f), -2.0f) << name;
    }
}

TEST(Curves, ExactEnds) {
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("பாய்_தொடக்கம்")(0.0f), 0.0f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("பாய்_முடிவு")(1.0f), 1.0f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("பாய்_மாற்றம்")(0.0f), 0.0f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("பாய்_மாற்றம்")(1.0f), 1.0f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("மீட்சி_தொடக்கம்")(0.0f), 0.0f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("மீட்சி_தொடக்கம்")(1.0f), 1.0f);
}

TEST(Curves, HalvesMeet) {
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("மீட்சி_மாற்றம்")(0.5f), PozhilCurves::elasticOut(0.0f) * 0.5f + 0.5f);
    EXPECT_EQ(பெறு_அசைவூட்ட_வளைவு("நடு_மெது")(0.5f), 0.5f);
    EXPECT_NEAR(பெறு_அசைவூட்ட_வளைவு("நடு_மெது")(0.49999997f), 0.5f, TOLERANCE);
}

TEST(Curves, BackAndElasticLeaveTheRange) {
    EXPECT_LT(பெறு_அசைவூட்ட_வளைவு("பின்வாங்கல்_தொடக்கம்")(0.3f), 0.0f);
    EXPECT_GT(பெறு_அசைவூட்ட_வளைவு("பின்வாங்கல்_முடிவு")(0.7f), 1.0f);
    EXPECT_GT(பெறு_அசைவூட்ட_வளைவு("மீட்சி")(0.1f), 1.0f);
}

TEST(PlainFunctions, LerpAndLinear) {
    EXPECT_EQ(lerp(10.0f, 20.0f, 0.0f), 10.0f);
    EXPECT_EQ(lerp(10.0f, 20.0f, 0.25f), 12.5f);
    EXPECT_EQ(lerp(20.0f, 10.0f, 1.5f), 5.0f);
    EXPECT_EQ(easeLinear(0.3f), 0.3f);
}

class Progress : public testing::Test {
protected:
    void SetUp() override { g_animationStates.clear(); }
};

TEST_F(Progress, FreshStateHasItsDefaults) {
    const AnimationState state;
    EXPECT_EQ(state.startTime, 0.0);
    EXPECT_FALSE(state.isRunning);
    EXPECT_EQ(state.currentProgress, 0.0f);
    EXPECT_FALSE(state.hasTriggered);
}

TEST_F(Progress, WithoutADurationNothingHappens) {
    updateAnimationProgress(1, 0.0f);
    updateAnimationProgress(2, -1.0f);
    EXPECT_TRUE(g_animationStates.empty());
}

TEST_F(Progress, WithoutAWebRuntimeTheClockStands) {
    updateAnimationProgress(1, 2.0f);
    updateAnimationProgress(1, 2.0f);
    EXPECT_TRUE(g_animationStates[1].isRunning);
    EXPECT_EQ(g_animationStates[1].startTime, 0.0);
    EXPECT_EQ(g_animationStates[1].currentProgress, 0.0f);
    EXPECT_FALSE(g_animationStates[1].hasTriggered);
}

TEST_F(Progress, IsTheShareOfTheDurationThatHasPassed) {
    g_animationStates[1] = {-1.5, true, 0.0f, false};
    updateAnimationProgress(1, 3.0f);
    EXPECT_EQ(g_animationStates[1].currentProgress, 0.5f);
    updateAnimationProgress(1, 2.0f);
    EXPECT_EQ(g_animationStates[1].currentProgress, 0.75f);
}

TEST_F(Progress, IsCappedAndNeverStartsAgain) {
    g_animationStates[1] = {-10.0, true, 0.2f, false};
    updateAnimationProgress(1, 3.0f);
    EXPECT_EQ(g_animationStates[1].currentProgress, 1.0f);
    EXPECT_TRUE(g_animationStates[1].isRunning);
    g_animationStates[1].startTime = -1.0;
    updateAnimationProgress(1, 4.0f);
    EXPECT_EQ(g_animationStates[1].currentProgress, 1.0f);
}

TEST_F(Progress, AFinishedStateIsNotTouched) {
    g_animationStates[1] = {5.0, false, 1.0f, true};
    updateAnimationProgress(1, 4.0f);
    EXPECT_EQ(g_animationStates[1].startTime, 5.0);
    EXPECT_FALSE(g_animationStates[1].isRunning);
}

TEST_F(Progress, AppliedThroughTheCurveBetweenTheEnds) {
    g_animationStates[1] = {-1.0, true, 0.0f, false};
    EXPECT_FLOAT_EQ(applyAnimation(1, 2.0f, "linear", 10.0f, 30.0f), 20.0f);
    EXPECT_FLOAT_EQ(applyAnimation(1, 2.0f, "ease_in", 10.0f, 30.0f), 15.0f);
    EXPECT_FLOAT_EQ(applyAnimation(1, 2.0f, "மெது_முடிவு", 100.0f, 0.0f), 25.0f);
}

TEST_F(Progress, IsSharedByEqualIds) {
    g_animationStates[0xFFFFFFFFFFFFFFFFULL] = {-1.0, true, 0.0f, false};
    applyAnimation(0xFFFFFFFFFFFFFFFFULL, 4.0f, "linear", 0.0f, 1.0f);
    EXPECT_FLOAT_EQ(applyAnimation(0xFFFFFFFFFFFFFFFFULL, 0.0f, "linear", 0.0f, 8.0f), 2.0f);
    EXPECT_EQ(g_animationStates.size(), 1U);
}

TEST_F(Progress, WithoutADurationAppliesTheStart) {
    EXPECT_EQ(applyAnimation(3, 0.0f, "linear", 10.0f, 30.0f), 10.0f);
}

} // namespace
