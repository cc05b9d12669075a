#pragma once

#include "parser/second/property_values.h"

namespace pozhil::second {

using WidgetPtr = std::unique_ptr<WidgetNode>;

/// Widgets: what stands between their brackets, in the order and on the lines that one likes.
class WidgetGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// The widget that comes next.
    /// \throws SyntaxFault
    WidgetPtr parseWidget();

    /// The same where a value stands.
    /// \throws SyntaxFault
    ExpressionPtr parseWidgetExpression();

    /// Whether the word of a widget and its bracket come next.
    bool isWidgetWordAhead() const;

    /// Whether a widget comes next where any value may: in an application, and with a property, which no call has.
    bool isWidgetAhead() const;

private:
    /// A widget in the making.
    struct Draft {
        const language::Widget& row;
        WidgetNode& node;
        PropertyList properties;
        /// Whether another pair of brackets comes after this one.
        bool hasFurtherBracket = false;
    };

    const language::Widget& consumeWord();
    void parseItems(Draft& draft);
    void parseItem(Draft& draft);
    bool tryParsePart(Draft& draft);
    void parseOwnProperty(Draft& draft);
    void keepProperty(Draft& draft, WrittenProperty property);
    void parseHandler(Draft& draft);
    ExpressionPtr asFunction(std::size_t opening, StatementList statements);
    void checkRequired(const Draft& draft, std::size_t first);
    void parseText(Draft& draft);
    void checkOtherPart(const Draft& draft);
    void parseChild(Draft& draft);
    bool takesText(const Draft& draft) const;
};

} // namespace pozhil::second
