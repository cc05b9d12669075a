#include "parser/second/property_values.h"

#include "base/scoped_value.h"
#include "language/alignments.h"
#include "language/colours.h"
#include "language/second/written_values.h"
#include "parser/second/file_parse.h"
#include "parser/second/literals.h"
#include "parser/second/names.h"
#include "parser/second/suggestion.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace pozhil::second {
namespace {

using language::ValueKind;
using language::WidgetProperty;

constexpr const char* COLOUR_OBJECT = "நிறம்";
constexpr const char* WHOLE_NUMBER = "முழு எண்";

/// What a property of this kind takes, for messages.
const char* nameOf(ValueKind kind) {
    switch (kind) {
    case ValueKind::Number: return "எண்";
    case ValueKind::Size: return "எண் அல்லது விழுக்காடு";
    case ValueKind::Text: return "உரை";
    case ValueKind::Truth: return "'மெய்' அல்லது 'பொய்'";
    case ValueKind::Colour: return "நிறம்";
    case ValueKind::Alignment: return "சீரமைப்புச் சொல்";
    case ValueKind::Path: return "கோப்பின் பெயர்";
    case ValueKind::Variable: return "மேற்கோளுக்குள் ஒரு பெயர்";
    case ValueKind::Handler: return "செயல்";
    case ValueKind::Widget: return "விட்ஜெட்";
    case ValueKind::List: return "பட்டியல்";
    case ValueKind::Place: return "மாறி";
    case ValueKind::Name: return "பெயர்";
    case ValueKind::Value: break;
    }
    return "மதிப்பு";
}

/// Whether a literal of this kind is a value of the property; anything else is known when the program runs.
bool takes(ValueKind kind, LiteralKind literal) {
    switch (kind) {
    case ValueKind::Number: return literal == LiteralKind::Number;
    case ValueKind::Size: return literal == LiteralKind::Number || literal == LiteralKind::Percentage;
    case ValueKind::Text:
    case ValueKind::Path:
    case ValueKind::Variable: return literal == LiteralKind::Text;
    case ValueKind::Truth: return literal == LiteralKind::Truth;
    case ValueKind::Colour:
    case ValueKind::Alignment: return false;
    case ValueKind::Handler: return literal == LiteralKind::Function;
    case ValueKind::List: return literal == LiteralKind::List;
    case ValueKind::Place: return false;
    default: return true;
    }
}

/// The word that a value gives: a plain name, or the last of two joined by a dot.
std::optional<std::string_view> wordOf(const Expression& value) {
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        return get->member.value;
    }
    const auto* name = nodeCast<VariableAccess>(&value);
    return name == nullptr ? std::nullopt : std::optional<std::string_view>(name->name);
}

/// Whether \p value is a member, but not of the name by which colours go.
bool isOtherMember(const Expression& value) {
    const auto* get = nodeCast<GetExpression>(&value);
    const auto* object = get == nullptr ? nullptr : nodeCast<VariableAccess>(get->object.get());
    return get != nullptr && (object == nullptr || object->name != COLOUR_OBJECT);
}

/// The word of its own that the value of a property is chosen by; nothing for any other value. Alignments aren't texts.
std::optional<std::string_view> chosenWord(const WidgetProperty& property, const Expression& value) {
    const auto* text = nodeCast<StringLiteral>(&value);
    const bool isColour = property.kind == ValueKind::Colour;
    if (property.kind == ValueKind::Alignment) {
        return wordOf(value);
    }
    if (!isColour && property.choices.size() == 0) {
        return std::nullopt;
    }
    if (text != nullptr) {
        return text->value;
    }
    return isColour && isOtherMember(value) ? std::nullopt : wordOf(value);
}

bool isPlace(const Expression& value) {
    return nodeCast<VariableAccess>(&value) != nullptr || nodeCast<GetExpression>(&value) != nullptr ||
           nodeCast<IndexExpression>(&value) != nullptr;
}

template <class Row> std::vector<std::string_view> wordsOf(language::Rows<Row> rows) {
    std::vector<std::string_view> words;
    std::transform(rows.begin(), rows.end(), std::back_inserter(words), [](const Row& row) { return row.word; });
    return words;
}

} // namespace

bool PropertyGrammar::isPropertyAhead() const {
    return isWord(tokens_.peek()) && tokens_.peek(1).type == TokenType::COLON;
}

WrittenProperty PropertyGrammar::parseProperty(PropertyList& list) {
    const std::size_t first = tokens_.position();
    if (!isPropertyAhead()) {
        failHere(fault::NO_SIGN, {"'பண்பு: மதிப்பு'", tokens_.shown(first)});
    }
    const std::string& name = tokens_.advance().value;
    tokens_.advance();
    WrittenProperty written;
    written.nameRange = tokens_.rangeOf(first);
    const auto row = std::find_if(list.known.begin(), list.known.end(),
                                  [&](const WidgetProperty* one) { return one->name == name; });
    if (row == list.known.end()) {
        noteUnknown(list, name, written.nameRange);
        static constexpr WidgetProperty ANYTHING = {"", "", ValueKind::Value, {"", ""}};
        written.value = parseValue(list, ANYTHING);
        return written;
    }
    written.value = parseValue(list, **row);
    written.valueRange = tokens_.rangeFrom(first + 2);
    if (!list.written.insert((*row)->name).second) {
        note(fault::PROPERTY_TWICE, written.nameRange, {name});
        return written;
    }
    written.row = *row;
    return written;
}

void PropertyGrammar::noteUnknown(const PropertyList& list, std::string_view name, ByteRange range) {
    std::vector<std::string_view> names;
    std::transform(list.known.begin(), list.known.end(), std::back_inserter(names),
                   [](const WidgetProperty* row) { return row->name; });
    SecondFault unknown =
        recovery_.faultAt(fault::UNKNOWN_PROPERTY, range, {std::string(list.owner), std::string(name)});
    suggestNearest(unknown, name, names);
    recovery_.note(std::move(unknown));
}

/// The value of a property, checked as far as it is written out.
ExpressionPtr PropertyGrammar::parseValue(const PropertyList& list, const WidgetProperty& property) {
    const std::size_t first = tokens_.position();
    const bool mayBeWidget =
        property.kind == ValueKind::Widget || property.kind == ValueKind::Handler || property.kind == ValueKind::Value;
    if (mayBeWidget && parse_.widgets.isWidgetWordAhead()) {
        return parse_.widgets.parseWidgetExpression();
    }
    if (property.kind == ValueKind::Name) {
        const Token name = consumeName("பெயர்");
        return make<VariableAccess>(first, name.value);
    }
    if (property.kind == ValueKind::Widget) {
        failHere(fault::NO_WIDGET, {tokens_.shown(first)});
    }
    const ScopedValue<bool> percentages(parse_.takesPercentages, property.kind == ValueKind::Size);
    ExpressionPtr value = parse_.expressions.parseInner();
    const ByteRange range = tokens_.rangeFrom(first);
    checkValue(list, property, *value, range);
    return property.kind == ValueKind::Colour ? asColour(std::move(value), first) : std::move(value);
}

/// A text that begins with "#", and the name of a colour, are colours where a property takes one.
ExpressionPtr PropertyGrammar::asColour(ExpressionPtr value, std::size_t first) {
    const auto* text = nodeCast<StringLiteral>(value.get());
    const auto* name = nodeCast<VariableAccess>(value.get());
    const bool isHex = text != nullptr && !text->value.empty() && text->value.front() == '#';
    if (isHex || name != nullptr) {
        return make<ColorExpression>(first, isHex ? text->value : name->name, isHex);
    }
    return value;
}

void PropertyGrammar::checkValue(const PropertyList& list, const WidgetProperty& property, const Expression& value,
                                 ByteRange range) {
    const auto* choice = nodeCast<TernaryExpression>(&value);
    if (const auto word = chosenWord(property, value)) {
        checkWord(property, *word, range);
    } else if (choice == nullptr || language::second::isWritten(list.owner, property)) {
        checkLiteral(list, property, value, range);
    } else {
        for (const Expression* branch : {choice->thenBranch.get(), choice->elseBranch.get()}) {
            const auto place = parse_.places.of(*branch);
            checkValue(list, property, *branch, place ? place->range : range);
        }
    }
}

/// A word that stands for a colour, an alignment, or one of several choices.
void PropertyGrammar::checkWord(const WidgetProperty& property, std::string_view word, ByteRange range) {
    const auto tell = [&](int number, const std::vector<std::string_view>& known) {
        SecondFault unknown = recovery_.faultAt(number, range, {std::string(word)});
        suggestNearest(unknown, word, known);
        recovery_.note(std::move(unknown));
    };
    if (property.kind == ValueKind::Colour) {
        if (!isHexColour(word) && language::findColourWord(word) == nullptr) {
            tell(fault::UNKNOWN_COLOUR, wordsOf(language::colourWords()));
        }
    } else if (property.kind == ValueKind::Alignment) {
        if (language::findAlignment(word) == nullptr) {
            tell(fault::UNKNOWN_ALIGNMENT, wordsOf(language::alignments()));
        }
    } else {
        checkChoice(property.name, word, {property.choices.begin(), property.choices.end()}, range);
    }
}

void PropertyGrammar::checkChoice(std::string_view property, std::string_view word,
                                  const std::vector<std::string_view>& choices, ByteRange range) {
    if (std::find(choices.begin(), choices.end(), word) != choices.end()) {
        return;
    }
    SecondFault unknown = recovery_.faultAt(fault::UNKNOWN_CHOICE, range, {std::string(property), std::string(word)});
    suggestNearest(unknown, word, choices);
    recovery_.note(std::move(unknown));
}

/// A value that isn't a word of the property's own.
void PropertyGrammar::checkLiteral(const PropertyList& list, const WidgetProperty& property, const Expression& value,
                                   ByteRange range) {
    const LiteralKind literal = literalKind(value);
    const bool isWrongPlace = property.kind == ValueKind::Place && !isPlace(value);
    if (literal == LiteralKind::Percentage) {
        return; // told where it stands
    }
    const bool isUnknown = literal == LiteralKind::None && language::second::isWritten(list.owner, property);
    const bool isNoWhole =
        language::second::isWhole(list.owner, property) && nodeCast<NumberLiteral>(&value) == nullptr;
    const bool isWrong = literal != LiteralKind::None && !takes(property.kind, literal);
    if (isWrong || isWrongPlace) {
        note(fault::WRONG_KIND, range, {std::string(property.name), nameOf(property.kind), literalName(literal)});
    } else if (isUnknown || isNoWhole) {
        note(fault::NO_LITERAL, range, {std::string(property.name), isNoWhole ? WHOLE_NUMBER : nameOf(property.kind)});
    }
}

void PropertyGrammar::store(PropertyMap& properties, std::string key, WrittenProperty property) {
    const auto kept = properties.insert_or_assign(std::move(key), std::move(property.value)).first;
    notePlace(&kept->first, property.nameRange);
}

} // namespace pozhil::second
