#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// What the lists of all widgets have in common.
class WidgetFamily : public Grammar {
public:
    using Grammar::Grammar;

protected:
    /// How a press handler may be written.
    enum class PressForm {
        Value,
        ValueFreelyClosed, ///< a value whose closing bracket may stand further left than the widget
        ValueOrStatements
    };

    ~WidgetFamily() = default;

    /// The bracket of a widget's list.
    void openBracket();

    /// Takes the bracket of a further list of the same widget if it stands here or on a later line. If it doesn't, the
    /// lines in between are left to whatever the widget stands in.
    bool openFurtherBracket();

    /// Where no further list of the same widget follows: the lines up to the next item or bracket of the list around it,
    /// whose indentation means nothing here. Lines of the next statement are left alone.
    void skipLinesAfterList();

    /// சீரமைப்பு : word. Any other value leaves the alignment as it was.
    void parseAlignment(WidgetNode& widget);

    /// Takes அசைவூட்டம் and its block if they stand here.
    bool tryParseAnimation(WidgetNode& widget);

    /// The word of a style at the cursor and its block. Keys of these types are kept as style_key, anything else is
    /// passed over.
    void parseStyleBlock(WidgetNode& widget, TokenKinds kinds);

    /// அழுத்தினால் ( value ) or அழுத்தினால் : value, and for some widgets அழுத்தினால் ( statements ). Statements are told
    /// by their first word.
    void parsePressHandler(WidgetNode& widget, PressForm form);
};

} // namespace pozhil
