#pragma once

#include "language/rows.h"
#include "language/token_type.h"
#include "language/widget_words.h"

#include <string_view>
#include <vector>

namespace pozhil::language {

/// What stands between the brackets of a widget, as the parser reads it. General is the form of every widget that has
/// none of its own.
enum class WidgetForm {
    General,
    Column,
    Row,
    PlainLayout,
    ListView,
    GridView,
    Expanded,
    Flexible,
    Spacer,
    Padding,
    Container,
    Card,
    ListTile,
    TextButton,
    Dialog,
    SnackBar
};

/// By what a widget is known where other things may stand as well. Where nothing but widgets may stand, any word begins
/// one.
enum class WidgetStart {
    Nothing,    ///< it isn't known there
    Kind,       ///< by the kind of its token
    Name,       ///< by its spelling, where it arrives as a plain name
    KindOrName, ///< by either
};

/// What a widget's word stands for.
enum class WidgetRole {
    Widget,
    Item,  ///< a part of a bar
    Style, ///< the look of the widget around it
    Key    ///< a key of other widgets, which may stand in a widget's place
};

/// Which widgets may stand between the brackets of a widget.
enum class WidgetChildren {
    None,
    One,
    Any,
    Text,        ///< a label
    TextOrImage, ///< a label, a picture or both
    TabItems,
    BottomItems
};

/// What kind of value a property takes.
enum class ValueKind {
    Number,
    Size, ///< a number of pixels, a percentage, or a choice between such by the size of the window
    Text,
    Truth,
    Colour,    ///< "#RRGGBB", "#RRGGBBAA" or a colour word
    Alignment, ///< one of nine words
    Path,      ///< of a file that is packed with the program
    Variable,  ///< the name of a variable or input, as a text
    Handler,   ///< what happens on a press or change
    Widget,
    List,
    Value, ///< any value
    Place, ///< what is read and written: a variable, an element or a member
    Name   ///< a new name
};

/// A property of a widget.
struct WidgetProperty {
    std::string_view name;
    /// The word of the style block that the property stands in; empty if it stands between the widget's own brackets.
    std::string_view style;
    ValueKind kind;
    Bilingual description;
    /// The words among which a text chooses; any text will do if there are none.
    Rows<std::string_view> choices = {};
};

/// One word of a widget.
struct Widget {
    std::string_view word;
    /// The kind by which the parser knows its token; IDENTIFIER if it has none.
    TokenType token;
    /// Whether the scanner knows the word. Others arrive as plain names.
    bool isKeyword;
    WidgetStart start;
    WidgetForm form;
    WidgetRole role;
    Rows<WidgetProperty> properties;
    Bilingual description;
    WidgetChildren children = WidgetChildren::None;
};

/// All words of widgets, family by family.
const std::vector<Widget>& widgets();

/// The properties that every widget has besides its own.
Rows<WidgetProperty> commonProperties();

/// The widget of this word, null if there is none.
const Widget* findWidget(std::string_view word);

} // namespace pozhil::language
