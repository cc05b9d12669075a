#include "support/parsing.h"
#include "support/tree_text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

std::string animation(const std::string& items) {
    return tree("பொத்தான்(அசைவூட்டம்(" + items + "))");
}

std::string expected(const std::string& parts) {
    return "(Widget பொத்தான் (Animation " + parts + "))";
}

/// The diagnostic for an animation whose items begin on line 2.
std::string animationFault(const std::string& items) {
    return fault("பொத்தான்(அசைவூட்டம்(\n" + items + "))");
}

using Kind = TokenType;

AnimationTargetNode target(std::vector<Token> tokens) {
    tokens.push_back({Kind::END_OF_FILE, "", 1});
    return Parser(std::move(tokens), "", "நிரல்.பொழில்").parseAnimationTarget();
}

Token number(const std::string& value) {
    return {Kind::NUMBER, value, 1};
}

const Token colon = {Kind::COLON, ":", 1};
const Token comma = {Kind::COMMA, ",", 1};
const Token opening = {Kind::LPAREN, "(", 1};
const Token closing = {Kind::RPAREN, ")", 1};
const Token plusWord = {Kind::KEYWORD, "கூட்டு", 1};
const Token minusWord = {Kind::KEYWORD, "கழி", 1};

TEST(Animation, TellsHowAWidgetMoves) {
    EXPECT_EQ(animation(""), expected("0 linear"));
    EXPECT_EQ(animation("காலம்: 300, வகை: \"துள்ளல்\", நிலைமை: \"hover\""), expected("300 துள்ளல் if hover"));
    EXPECT_EQ(animation("காலம்: 2.5 வகை: சீரான நிலைமை: தானாக"), expected("2.5 சீரான if தானாக"));
    EXPECT_EQ(animation("காலம்: ௩௦௦"), expected("300 linear"));
    EXPECT_EQ(animation("காலம்: 1, காலம்: 2"), expected("2 linear"));
    EXPECT_EQ(animation("நிலைமை: \"சுட்டி_மேல்\""), expected("0 linear if சுட்டி_மேல்"));
}

TEST(Animation, NamesItsTargets) {
    EXPECT_EQ(animation("இலக்கு(அகலம்: 200, விரிவு: 1.2 பின்னணி: \"#FF0000\", நிறம்: சிவப்பு)"),
              expected("0 linear அகலம்=200 விரிவு=1.2 நிறம்='சிவப்பு' பின்னணி='#FF0000'"));
    EXPECT_EQ(animation("இலக்கு: (அகலம்: 200)"), expected("0 linear அகலம்=200"));
    EXPECT_EQ(animation("இலக்கு()"), expected("0 linear"));
    EXPECT_EQ(animation("இலக்கு(அகலம்: 1, அகலம்: 2), இலக்கு(உயரம்: 3)"), expected("0 linear அகலம்=2 உயரம்=3"));
    EXPECT_EQ(animation("இலக்கு(அகலம்: மெய், \"உயரம்\": 5)"), expected("0 linear உயரம்=5"));
}

TEST(Animation, KnowsItsKeysByTheirText) {
    EXPECT_EQ(animation("\"காலம்\": 300, \"வகை\": அ, \"நிலைமை\": ஆ, \"இலக்கு\"(அகலம்: 5)"), expected("300 அ அகலம்=5 if ஆ"));
}

TEST(Animation, TheLastOfSeveralCounts) {
    EXPECT_EQ(tree("பொத்தான்(அசைவூட்டம்(காலம்: 5, வகை: அ), அசைவூட்டம்(காலம்: 6))"), "(Widget பொத்தான் (Animation 6 linear))");
}

TEST(Animation, MayBeLaidOutFreely) {
    EXPECT_EQ(animation("\n    காலம்\n        :\n            300\n    இலக்கு\n        (\n            அகலம்: 5)\n"),
              expected("300 linear அகலம்=5"));
    EXPECT_EQ(tree("பொத்தான்(\n    அசைவூட்டம்(\n        காலம்: 300)\n    \"அ\"\n)\nவிடு\n"),
              "(Widget பொத்தான் (\"உரை\" (String \"அ\")) (Animation 300 linear)) (Pass)");
}

TEST(Animation, DropsWhatItDoesNotKnow) {
    EXPECT_EQ(animation("வேகம்: 5, காலம்: 300"), expected("300 linear"));
    EXPECT_EQ(animation("வேகம் 5, காலம்: 300"), expected("300 linear"));
    EXPECT_EQ(animation("வேகம்: 5 காலம்: 300 தாமதம்"), expected("300 linear"));
    EXPECT_EQ(animation("காலம்: \"அ\", நிலைமை: 5, வகை: அ"), expected("0 அ"));
    EXPECT_EQ(animation("நிலைமை: சுட்டி_மேல்"), expected("0 linear"));
    EXPECT_EQ(animation("காலம்: கூட்டு 5"), expected("0 linear"));
    EXPECT_EQ(animation("காலம்: கூட்டு 5, வகை: அ"), expected("0 அ"));
    EXPECT_EQ(animation("காலம்: 5%, வகை: அ"), expected("0 அ"));
    EXPECT_EQ(animation("வேகம்\n    :\n    5, காலம்: 300"), expected("300 linear"));
    EXPECT_EQ(animation("வேகம் காலம்: 300, வகை: அ"), expected("0 அ"));
    EXPECT_EQ(animation("இலக்கு(அகலம்: 50%, உயரம்: சுட்டி_மேல், வளைவு: 5)"), expected("0 linear வளைவு=5"));
}

TEST(Animation, ReportsItsFaults) {
    EXPECT_EQ(fault("பொத்தான்(\nஅசைவூட்டம்: 5)"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("பொத்தான்(\nஅசைவூட்டம்\n(காலம்: 5))"), "பொழி-203 வரி 2");
    EXPECT_EQ(animationFault("காலம் 300"), "பொழி-202 வரி 2");
    EXPECT_EQ(animationFault("நிலைமை தானாக"), "பொழி-202 வரி 2");
    EXPECT_EQ(animationFault("வகை அ"), "பொழி-202 வரி 2");
    EXPECT_EQ(animationFault("வகை: 5"), "பொழி-262 வரி 2");
    EXPECT_EQ(animationFault("வகை:\nதுள்ளல்"), "பொழி-262 வரி 3");
    EXPECT_EQ(animationFault("வகை:\n\n"), "பொழி-262 வரி 4");
    EXPECT_EQ(animationFault("இலக்கு(அகலம்: கூட்டு\n5)"), "பொழி-202 வரி 3");
    EXPECT_EQ(animationFault("இலக்கு: 5"), "பொழி-203 வரி 2");
    EXPECT_EQ(animationFault("இலக்கு(\nஅகலம் 5)"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("பொத்தான்(\nஅசைவூட்டம்(\nஇலக்கு(அகலம்: 5"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("பொத்தான்(\nஅசைவூட்டம்(\nகாலம்: 5"), "பொழி-204 வரி 2");
}

TEST(AnimationTarget, HasAFieldForEachWord) {
    using Amount = std::optional<AnimationAmount>;
    const std::pair<Kind, Amount AnimationTargetNode::*> words[] = {
        {Kind::FADE_IN, &AnimationTargetNode::fadeIn},       {Kind::FADE_OUT, &AnimationTargetNode::fadeOut},
        {Kind::SCALE_UP, &AnimationTargetNode::scaleUp},     {Kind::SCALE_DOWN, &AnimationTargetNode::scaleDown},
        {Kind::SLIDE_LEFT, &AnimationTargetNode::slideLeft}, {Kind::SLIDE_RIGHT, &AnimationTargetNode::slideRight},
        {Kind::SLIDE_UP, &AnimationTargetNode::slideUp},     {Kind::SLIDE_DOWN, &AnimationTargetNode::slideDown},
        {Kind::ROTATE_CW, &AnimationTargetNode::rotateCw},   {Kind::ROTATE_CCW, &AnimationTargetNode::rotateCcw},
        {Kind::MOVE_X, &AnimationTargetNode::moveX},         {Kind::MOVE_Y, &AnimationTargetNode::moveY},
        {Kind::ANIM_WIDTH, &AnimationTargetNode::width},     {Kind::ANIM_HEIGHT, &AnimationTargetNode::height},
        {Kind::ANIM_RADIUS, &AnimationTargetNode::radius},
    };
    for (const auto& [word, field] : words) {
        const AnimationTargetNode result = target({opening, {word, "", 1}, colon, number("2.5"), closing});
        for (const auto& [other, otherField] : words) {
            EXPECT_EQ((result.*otherField).has_value(), other == word);
        }
        EXPECT_EQ((result.*field)->value, 2.5F);
        EXPECT_FALSE((result.*field)->isDelta);
        EXPECT_FALSE((result.*field)->isNegative);
    }
}

TEST(AnimationTarget, ASignMakesAnAmountRelative) {
    const AnimationTargetNode result = target({{Kind::TARGET, "", 1},
                                               opening,
                                               {Kind::MOVE_X, "", 1},
                                               plusWord,
                                               number("5"),
                                               comma,
                                               {Kind::MOVE_Y, "", 1},
                                               colon,
                                               minusWord,
                                               number("6"),
                                               {Kind::FADE_IN, "", 1},
                                               minusWord,
                                               {Kind::FADE_OUT, "", 1},
                                               plusWord});
    EXPECT_EQ(result.moveX->value, 5);
    EXPECT_TRUE(result.moveX->isDelta);
    EXPECT_FALSE(result.moveX->isNegative);
    EXPECT_EQ(result.moveY->value, 6);
    EXPECT_TRUE(result.moveY->isDelta);
    EXPECT_TRUE(result.moveY->isNegative);
    EXPECT_EQ(result.fadeIn->value, 0);
    EXPECT_TRUE(result.fadeIn->isNegative);
    EXPECT_TRUE(result.fadeOut->isDelta);
}

TEST(AnimationTarget, TakesColourAndFlags) {
    const AnimationTargetNode result = target({{Kind::ANIM_COLOR, "", 1},
                                               colon,
                                               {Kind::STRING, "#FF0000", 1},
                                               comma,
                                               {Kind::BOUNCE, "", 1},
                                               comma,
                                               {Kind::ELASTIC, "", 1},
                                               closing});
    EXPECT_EQ(result.color, "#FF0000");
    EXPECT_TRUE(result.bounce);
    EXPECT_TRUE(result.elastic);
    EXPECT_FALSE(target({}).bounce);
    EXPECT_FALSE(target({}).color.has_value());
}

TEST(AnimationTarget, DropsWhatItDoesNotKnow) {
    const AnimationTargetNode result = target({opening,
                                               {Kind::IDENTIFIER, "அ", 1},
                                               comma,
                                               {Kind::MOVE_X, "", 1},
                                               colon,
                                               {Kind::STRING, "அ", 1},
                                               {Kind::MOVE_Y, "", 1},
                                               number("5"),
                                               closing});
    EXPECT_EQ(result.moveX->value, 0);
    EXPECT_EQ(result.moveY->value, 5);
}

} // namespace
