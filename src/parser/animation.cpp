#include "base/number_text.h"
#include "parser/parser.h"

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

/// ( keys with values ), அசைவூட்டம் already taken. What it doesn't know is dropped.
std::unique_ptr<AnimationNode> Parser::parseAnimation() {
    const std::int32_t line = peek().line;
    consume(TokenType::LPAREN, "பொழி-203");
    auto animation = std::make_unique<AnimationNode>();
    for (skipLayout(); !check(TokenType::RPAREN) && !is_at_end(); skipLayout()) {
        parseAnimationItem(*animation);
        skipLayout();
        accept(TokenType::COMMA);
    }
    consume(TokenType::RPAREN, "பொழி-204", line);
    return animation;
}

void Parser::parseAnimationItem(AnimationNode& animation) {
    const Token& key = advance();
    skipLayout();
    if (key.value == "நிலைமை") {
        openAnimationValue();
        const Token& value = advance();
        if (isWordOrText(value)) {
            animation.condition = value.value;
        }
    } else if (key.value == "காலம்" || key.type == TokenType::DURATION) {
        openAnimationValue();
        const Token& value = advance();
        if (value.type == TokenType::NUMBER) {
            animation.duration = floatOf(value.value);
        }
    } else if (key.value == "வகை" || key.type == TokenType::ANIMATION_KIND) {
        openAnimationValue();
        if (!isWordOrText(peek())) {
            பிழை("பொழி-262", peek().line);
        }
        animation.curve = advance().value;
    } else if (key.value == "இலக்கு" || key.type == TokenType::TARGET) {
        accept(TokenType::COLON);
        skipLayout();
        parseAnimationTargets(animation);
    } else if (accept(TokenType::COLON)) {
        skipLayout();
        advance();
    } else if (!check(TokenType::RPAREN)) {
        advance();
    }
}

/// The colon between a key and its value.
void Parser::openAnimationValue() {
    consume(TokenType::COLON, "பொழி-202");
    skipLayout();
}

/// ( keys with numbers, names or texts ). A key is any word; a value of another kind is dropped.
void Parser::parseAnimationTargets(AnimationNode& animation) {
    consume(TokenType::LPAREN, "பொழி-203");
    for (skipLayout(); !check(TokenType::RPAREN) && !is_at_end(); skipLayout()) {
        const std::string& key = advance().value;
        skipLayout();
        openAnimationValue();
        const Token& value = advance();
        if (value.type == TokenType::NUMBER) {
            animation.numericTargets[key] = floatOf(value.value);
        } else if (isWordOrText(value)) {
            animation.stringTargets[key] = value.value;
        }
        skipLayout();
        accept(TokenType::COMMA);
    }
    consume(TokenType::RPAREN, "பொழி-204");
}

AnimationTargetNode Parser::parseAnimationTarget() {
    AnimationTargetNode target;
    accept(TokenType::TARGET);
    accept(TokenType::LPAREN);
    while (!check(TokenType::RPAREN) && !is_at_end()) {
        const TokenType type = advance().type;
        const auto* word = std::find_if(TARGET_WORDS.begin(), TARGET_WORDS.end(),
                                        [&](const TargetWord& row) { return row.type == type; });
        if (word != TARGET_WORDS.end()) {
            accept(TokenType::COLON);
            target.*(word->amount) = parseAnimationAmount();
        } else if (type == TokenType::ANIM_COLOR) {
            accept(TokenType::COLON);
            target.color = advance().value;
        } else if (type == TokenType::BOUNCE || type == TokenType::ELASTIC) {
            (type == TokenType::BOUNCE ? target.bounce : target.elastic) = true;
        } else {
            continue;
        }
        accept(TokenType::COMMA);
    }
    accept(TokenType::RPAREN);
    return target;
}

/// [ கூட்டு ] number or கழி number: the signs make it relative. A value of another kind is dropped.
AnimationAmount Parser::parseAnimationAmount() {
    AnimationAmount amount;
    amount.isNegative = checkKeyword("கழி");
    amount.isDelta = amount.isNegative || checkKeyword("கூட்டு");
    if (amount.isDelta) {
        advance();
    }
    if (check(TokenType::NUMBER)) {
        amount.value = floatOf(advance().value);
    } else if (!amount.isDelta) {
        advance();
    }
    return amount;
}

} // namespace pozhil
