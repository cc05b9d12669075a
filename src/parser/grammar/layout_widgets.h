#pragma once

#include "parser/grammar/widget_family.h"

namespace pozhil {

/// Widgets that lay out others.
class LayoutGrammar : public WidgetFamily {
public:
    using WidgetFamily::WidgetFamily;

    WidgetPtr parseColumn(const Token& word);
    WidgetPtr parseRow(const Token& word);
    WidgetPtr parseListView(const Token& word);

    /// அடுக்கி and மடிப்பு, which have no class of their own.
    WidgetPtr parsePlainLayout(const Token& word);

    /// கட்டம்_காட்சி ( properties ) ( children )
    WidgetPtr parseGridView(const Token& word);

    WidgetPtr parseExpanded(const Token& word);
    WidgetPtr parseFlexible(const Token& word);

    /// வெற்றிடம் [ ( properties ) ]
    WidgetPtr parseSpacer(const Token& word);

    /// word ( [ அளவு : value ] ) [ ( child ) ]. The kind keeps the spelling of its word, since only one of them draws.
    WidgetPtr parsePadding(const Token& word);

private:
    void parseLayout(WidgetNode& widget, const Token& word);
    void parseChildren(WidgetNode& widget, std::int32_t line, int level);
    void parseGridProperty(GridViewNode& grid);
    void parseGridGaps(GridViewNode& grid);
    template <class TryParseShare> void parseFlexItems(WidgetNode& widget, const TryParseShare& tryParseShare);
    void parseSpacerItem(WidgetNode& spacer, std::int32_t line);
    void parsePaddingItem(PaddingNode& padding);
};

} // namespace pozhil
