#include "parser/grammar/animation.h"

#include "base/number_text.h"
#include "parser/file_parse.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pozhil {
namespace {

/// The field of an animation's target that each word gives an amount for.
struct TargetWord {
    TokenType type;
    std::optional<AnimationAmount> AnimationTargetNode::*amount;
};

constexpr std::array<TargetWord, 15> TARGET_WORDS = {{
    {TokenType::FADE_IN, &AnimationTargetNode::fadeIn},
    {TokenType::FADE_OUT, &AnimationTargetNode::fadeOut},
    {TokenType::SCALE_UP, &AnimationTargetNode::scaleUp},
    {TokenType::SCALE_DOWN, &AnimationTargetNode::scaleDown},
    {TokenType::SLIDE_LEFT, &AnimationTargetNode::slideLeft},
    {TokenType::SLIDE_RIGHT, &AnimationTargetNode::slideRight},
    {TokenType::SLIDE_UP, &AnimationTargetNode::slideUp},
    {TokenType::SLIDE_DOWN, &AnimationTargetNode::slideDown},
    {TokenType::ROTATE_CW, &AnimationTargetNode::rotateCw},
    {TokenType::ROTATE_CCW, &AnimationTargetNode::rotateCcw},
    {TokenType::MOVE_X, &AnimationTargetNode::moveX},
    {TokenType::MOVE_Y, &AnimationTargetNode::moveY},
    {TokenType::ANIM_WIDTH, &AnimationTargetNode::width},
    {TokenType::ANIM_HEIGHT, &AnimationTargetNode::height},
    {TokenType::ANIM_RADIUS, &AnimationTargetNode::radius},
}};

bool isWordOrText(const Token& token) {
    return token.type == TokenType::STRING || token.type == TokenType::IDENTIFIER;
}

} // namespace

std::unique_ptr<AnimationNode> AnimationGrammar::parseAnimation() {
    const std::int32_t line = cursor_.peek().line;
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    const TokenCursor::FreeLayout block(cursor_);
    auto animation = std::make_unique<AnimationNode>();
    for (cursor_.skipLayout(); !cursor_.check(TokenType::RPAREN) && !cursor_.isAtEnd(); cursor_.skipLayout()) {
        parseAnimationItem(*animation);
        cursor_.skipLayout();
        cursor_.accept(TokenType::COMMA);
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204", line);
    return animation;
}

void AnimationGrammar::parseAnimationItem(AnimationNode& animation) {
    const Token& key = cursor_.advance();
    cursor_.skipLayout();
    if (key.value == "நிலைமை") {
        openAnimationValue();
        const Token& value = cursor_.advance();
        if (isWordOrText(value)) {
            animation.condition = value.value;
        }
    } else if (key.value == "காலம்" || key.type == TokenType::DURATION) {
        openAnimationValue();
        const Token& value = cursor_.advance();
        if (value.type == TokenType::NUMBER) {
            animation.duration = floatOf(value.value);
        }
    } else if (key.value == "வகை" || key.type == TokenType::ANIMATION_KIND) {
        openAnimationValue();
        if (!isWordOrText(cursor_.peek())) {
            cursor_.பிழை("பொழி-262", cursor_.peek().line);
        }
        animation.curve = cursor_.advance().value;
    } else if (key.value == "இலக்கு" || key.type == TokenType::TARGET) {
        cursor_.accept(TokenType::COLON);
        cursor_.skipLayout();
        parseAnimationTargets(animation);
    } else if (cursor_.accept(TokenType::COLON)) {
        cursor_.skipLayout();
        cursor_.advance();
    } else if (!cursor_.check(TokenType::RPAREN)) {
        cursor_.advance();
    }
}

/// The colon between a key and its value.
void AnimationGrammar::openAnimationValue() {
    cursor_.consume(TokenType::COLON, "பொழி-202");
    cursor_.skipLayout();
}

/// ( keys with numbers, names or texts ). A key is any word; a value of another kind is dropped.
void AnimationGrammar::parseAnimationTargets(AnimationNode& animation) {
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    for (cursor_.skipLayout(); !cursor_.check(TokenType::RPAREN) && !cursor_.isAtEnd(); cursor_.skipLayout()) {
        const std::string& key = cursor_.advance().value;
        cursor_.skipLayout();
        openAnimationValue();
        const Token& value = cursor_.advance();
        if (value.type == TokenType::NUMBER) {
            animation.numericTargets[key] = floatOf(value.value);
        } else if (isWordOrText(value)) {
            animation.stringTargets[key] = value.value;
        }
        cursor_.skipLayout();
        cursor_.accept(TokenType::COMMA);
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
}

AnimationTargetNode AnimationGrammar::parseAnimationTarget() {
    AnimationTargetNode target;
    cursor_.accept(TokenType::TARGET);
    cursor_.accept(TokenType::LPAREN);
    while (!cursor_.check(TokenType::RPAREN) && !cursor_.isAtEnd()) {
        const TokenType type = cursor_.advance().type;
        const auto* word = std::find_if(TARGET_WORDS.begin(), TARGET_WORDS.end(),
                                        [&](const TargetWord& row) { return row.type == type; });
        if (word != TARGET_WORDS.end()) {
            cursor_.accept(TokenType::COLON);
            target.*(word->amount) = parseAnimationAmount();
        } else if (type == TokenType::ANIM_COLOR) {
            cursor_.accept(TokenType::COLON);
            target.color = cursor_.advance().value;
        } else if (type == TokenType::BOUNCE || type == TokenType::ELASTIC) {
            (type == TokenType::BOUNCE ? target.bounce : target.elastic) = true;
        } else {
            continue;
        }
        cursor_.accept(TokenType::COMMA);
    }
    cursor_.accept(TokenType::RPAREN);
    return target;
}

/// [ கூட்டு ] number or கழி number: the signs make it relative. A value of another kind is dropped.
AnimationAmount AnimationGrammar::parseAnimationAmount() {
    AnimationAmount amount;
    amount.isNegative = cursor_.checkKeyword("கழி");
    amount.isDelta = amount.isNegative || cursor_.checkKeyword("கூட்டு");
    if (amount.isDelta) {
        cursor_.advance();
    }
    if (cursor_.check(TokenType::NUMBER)) {
        amount.value = floatOf(cursor_.advance().value);
    } else if (!amount.isDelta) {
        cursor_.advance();
    }
    return amount;
}

} // namespace pozhil
