#pragma once

#include "language/second/widgets.h"
#include "parser/second/grammar.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// The properties that may stand in one bracket, and those that do.
struct PropertyList {
    /// The word before the bracket.
    std::string_view owner;
    std::vector<const language::WidgetProperty*> known;
    std::set<std::string_view> written{};
};

/// A property as it is written.
struct WrittenProperty {
    /// Null if there is no such property, or if it stood there before.
    const language::WidgetProperty* row = nullptr;
    ByteRange nameRange;
    ByteRange valueRange;
    ExpressionPtr value;
};

/// The properties of widgets, headers and styles: a name, a colon and a value of the kind that the property takes.
class PropertyGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// Takes a bracket, runs \p parseOne for each of the items in it, and takes its end. Commas may stand between the
    /// items.
    /// \throws SyntaxFault if there is no bracket, or nothing closes it
    template <class ParseOne> void parseItems(const ParseOne& parseOne) {
        const std::size_t opening = tokens_.position();
        consumeOpening("'('");
        Parts siblings(height_);
        while (!tokens_.check(TokenType::RPAREN) && !tokens_.isAtEnd()) {
            siblings.next();
            recovery_.attemptItem(parseOne);
            tokens_.accept(TokenType::COMMA);
        }
        consumeClosing(TokenType::RPAREN, opening);
    }

    /// Whether a name with a colon comes next.
    bool isPropertyAhead() const;

    /// The property that comes next. What is wrong with its name or value is told.
    /// \throws SyntaxFault
    WrittenProperty parseProperty(PropertyList& list);

    /// Keeps a property of \p list, and where its name stands.
    void store(PropertyMap& properties, std::string key, WrittenProperty property);

    /// Tells what is wrong with a value of a property, if it shows.
    void checkValue(const PropertyList& list, const language::WidgetProperty& property, const Expression& value,
                    ByteRange range);

    /// Tells of a word that isn't among those that a property chooses from.
    void checkChoice(std::string_view property, std::string_view word, const std::vector<std::string_view>& choices,
                     ByteRange range);

    /// Tells of a property that \p list doesn't know.
    void noteUnknown(const PropertyList& list, std::string_view name, ByteRange range);

private:
    ExpressionPtr parseValue(const PropertyList& list, const language::WidgetProperty& property);
    ExpressionPtr asColour(ExpressionPtr value, std::size_t first);
    void checkLiteral(const PropertyList& list, const language::WidgetProperty& property, const Expression& value,
                      ByteRange range);
    void checkWord(const language::WidgetProperty& property, std::string_view word, ByteRange range);
};

} // namespace pozhil::second
