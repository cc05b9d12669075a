#pragma once

#include "parser/grammar/widget_family.h"

namespace pozhil {

/// Widgets of the general form.
class GenericWidgetGrammar : public WidgetFamily {
public:
    using WidgetFamily::WidgetFamily;

    /// word ( properties, styles, children and values in any order ), the form of every widget without one of its own.
    WidgetPtr parseGenericWidget(const Token& word);

private:
    void parseGenericItem(WidgetNode& widget, int& positionals);
    bool tryParseGenericStyle(WidgetNode& widget);
    void parseButtonStyle(WidgetNode& widget);
    void parseTextStyle(WidgetNode& widget);
};

} // namespace pozhil
