#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Which rule a widget goes by, and where a widget can begin.
class WidgetGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// A widget, whatever its first token: what has no rule of its own has the general form.
    WidgetPtr parseWidget();

    /// Whether a word stands here that begins a widget where a value is expected: only with its bracket, which may
    /// follow on a later line.
    bool isWidgetAhead() const;

    /// A widget where a value is expected.
    ExpressionPtr parseWidgetExpression();
};

} // namespace pozhil
