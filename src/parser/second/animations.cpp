#include "parser/second/animations.h"

#include "language/property_words.h"
#include "language/second/animations.h"
#include "parser/second/file_parse.h"
#include "parser/second/literals.h"

namespace pozhil::second {
namespace {

namespace property = language::property;

/// The word that a value gives, as a text, a name or a colour.
std::string wordOf(const Expression& value) {
    if (const auto* colour = nodeCast<ColorExpression>(&value)) {
        return colour->isHex ? colour->hexValue : colour->colorName;
    }
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        return get->member.value;
    }
    if (const auto* text = nodeCast<StringLiteral>(&value)) {
        return text->value;
    }
    const auto* name = nodeCast<VariableAccess>(&value);
    return name == nullptr ? "" : name->name;
}

} // namespace

std::unique_ptr<AnimationNode> AnimationGrammar::parseAnimation(const language::Widget& widget) {
    const std::size_t first = tokens_.position();
    if (language::second::animationTargets(widget).empty()) {
        SecondFault misplaced = recovery_.faultAt(fault::MISPLACED_CHILD, tokens_.rangeOf(first),
                                                  {std::string(widget.word), std::string(property::ANIMATION)});
        misplaced.remedy = "'உரை', 'பொத்தான்', 'பெட்டி' ஆகிய மூன்றும்தான் அசையும்; அவற்றில் ஒன்றுக்குள்ள எழுது மச்சி!";
        throw SyntaxFault{std::move(misplaced)};
    }
    tokens_.advance();
    auto animation = std::make_unique<AnimationNode>();
    PropertyList list{property::ANIMATION, {}};
    for (const language::WidgetProperty& row : language::second::animationProperties()) {
        list.known.push_back(&row);
    }
    parse_.properties.parseItems([&] { parseItem(*animation, widget, list); });
    return animation;
}

void AnimationGrammar::parseItem(AnimationNode& animation, const language::Widget& widget, PropertyList& list) {
    if (tokens_.peek().value == language::second::ANIMATION_TARGETS) {
        tokens_.advance();
        tokens_.accept(TokenType::COLON);
        parseTargets(animation, widget);
        return;
    }
    const WrittenProperty written = parse_.properties.parseProperty(list);
    if (written.row == nullptr) {
        return;
    }
    const std::string word = wordOf(*written.value);
    if (written.row->name == property::DURATION) {
        animation.duration = writtenNumber(*written.value).value_or(0);
    } else if (written.row->name == language::second::ANIMATION_CURVE) {
        checkCurve(written, word);
        animation.curve = word;
    } else {
        animation.condition = word;
    }
}

void AnimationGrammar::checkCurve(const WrittenProperty& written, const std::string& name) {
    const std::string curve(written.row->name);
    if (name.empty()) {
        note(fault::NO_LITERAL, written.valueRange, {curve, "வளைவின் பெயர்"});
    } else {
        parse_.properties.checkChoice(curve, name, language::second::curveNames(), written.valueRange);
    }
}

/// ( targets )
void AnimationGrammar::parseTargets(AnimationNode& animation, const language::Widget& widget) {
    PropertyList list{language::second::ANIMATION_TARGETS, language::second::animationTargets(widget)};
    parse_.properties.parseItems([&] { parseTarget(animation, list); });
}

void AnimationGrammar::parseTarget(AnimationNode& animation, PropertyList& list) {
    const WrittenProperty written = parse_.properties.parseProperty(list);
    if (written.row == nullptr) {
        return;
    }
    if (const std::optional<float> number = writtenNumber(*written.value)) {
        animation.numericTargets[std::string(written.row->name)] = *number;
    } else {
        animation.stringTargets[std::string(written.row->name)] = wordOf(*written.value);
    }
}

} // namespace pozhil::second
