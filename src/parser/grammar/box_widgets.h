#pragma once

#include "parser/grammar/widget_family.h"

namespace pozhil {

/// Boxes: widgets with a look around what they hold.
class BoxGrammar : public WidgetFamily {
public:
    using WidgetFamily::WidgetFamily;

    /// பெட்டி ( items ), or பெட்டி ( சீரமைப்பு : word ) ( items )
    WidgetPtr parseContainer(const Token& word);

    /// அட்டை ( properties, style and children in any order )
    WidgetPtr parseCard(const Token& word);

    /// பட்டியல்_உருப்படி ( properties and a press handler ). Its parts are widgets that stand as values of properties.
    WidgetPtr parseListTile(const Token& word);

    /// உரைபொத்தான் ( properties, style and text )
    WidgetPtr parseTextButton(const Token& word);

private:
    void parseContainerItem(ContainerNode& container);
    void parseTextButtonItem(WidgetNode& button);
    ExpressionPtr parseTextButtonText();
    bool isTextButtonStyleAhead() const;
    void parseTextButtonStyle(WidgetNode& button);
};

} // namespace pozhil
