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
    ExpressionPtr value;
};

/// The properties of widgets, headers and styles: a name, a colon and a value of the kind that the property takes.
class PropertyGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// Whether a name with a colon comes next.
    bool isPropertyAhead() const;

    /// The property that comes next. What is wrong with its name or value is told.
    /// \throws SyntaxFault
    WrittenProperty parseProperty(PropertyList& list);

    /// Keeps a property of \p list, and where its name stands.
    void store(PropertyMap& properties, std::string key, WrittenProperty property);

    /// Tells what is wrong with a value of a property, if it shows.
    void checkValue(const language::WidgetProperty& property, const Expression& value, ByteRange range);

    /// Tells of a property that \p list doesn't know.
    void noteUnknown(const PropertyList& list, std::string_view name, ByteRange range);

private:
    ExpressionPtr parseValue(const language::WidgetProperty& property);
    ExpressionPtr asColour(ExpressionPtr value, std::size_t first);
    void checkColour(const language::WidgetProperty& property, const Expression& value, ByteRange range);
    void checkAlignment(const language::WidgetProperty& property, const Expression& value, ByteRange range);
};

} // namespace pozhil::second
