#include "parser/second/animations.h"

#include "language/property_words.h"
#include "parser/second/file_parse.h"
#include "parser/second/literals.h"
#include "parser/second/names.h"

namespace pozhil::second {
namespace {

namespace property = language::property;

constexpr const char* TARGETS = "இலக்கு";
constexpr const char* TRIGGER = "நிலைமை";
constexpr const char* CURVE = "வகை";

/// The word that a value gives, as a text or as a name.
std::string wordOf(const Expression& value) {
    if (const auto* text = nodeCast<StringLiteral>(&value)) {
        return text->value;
    }
    const auto* name = nodeCast<VariableAccess>(&value);
    return name == nullptr ? "" : name->name;
}

} // namespace

std::unique_ptr<AnimationNode> AnimationGrammar::parseAnimation(const language::Widget& /*widget*/) {
    tokens_.advance();
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    auto animation = std::make_unique<AnimationNode>();
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RPAREN) && !tokens_.isAtEnd()) {
        siblings.next();
        recovery_.attemptItem([&] { parseItem(*animation); });
        tokens_.accept(TokenType::COMMA);
    }
    consumeClosing(TokenType::RPAREN, opening);
    return animation;
}

void AnimationGrammar::parseItem(AnimationNode& animation) {
    const std::string& word = tokens_.advance().value;
    if (word == TARGETS) {
        tokens_.accept(TokenType::COLON);
        parseTargets(animation);
        return;
    }
    consumeColon();
    const ExpressionPtr value = parse_.expressions.parseInner();
    if (word == TRIGGER) {
        animation.condition = wordOf(*value);
    } else if (word == property::DURATION) {
        animation.duration = writtenNumber(*value).value_or(0);
    } else if (word == CURVE) {
        animation.curve = wordOf(*value);
    }
}

void AnimationGrammar::parseTargets(AnimationNode& animation) {
    const std::size_t opening = tokens_.position();
    consumeOpening("'இலக்கு'-க்குப் பின் '('");
    Parts siblings(height_);
    while (!tokens_.check(TokenType::RPAREN) && !tokens_.isAtEnd()) {
        siblings.next();
        recovery_.attemptItem([&] { parseTarget(animation); });
        tokens_.accept(TokenType::COMMA);
    }
    consumeClosing(TokenType::RPAREN, opening);
}

void AnimationGrammar::parseTarget(AnimationNode& animation) {
    const std::string& name = tokens_.advance().value;
    consumeColon();
    const ExpressionPtr value = parse_.expressions.parseInner();
    if (const std::optional<float> number = writtenNumber(*value)) {
        animation.numericTargets[name] = *number;
    } else {
        animation.stringTargets[name] = wordOf(*value);
    }
}

} // namespace pozhil::second
