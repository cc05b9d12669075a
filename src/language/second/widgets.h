#pragma once

#include "language/rows.h"
#include "language/widgets.h"

#include <string_view>
#include <vector>

/// The widgets of the second edition: those of the first with their properties, and what only the second has.
namespace pozhil::language::second {

/// The word of what stands for widgets, one for each element of a list.
constexpr std::string_view EACH = "ஒவ்வொன்றும்";
constexpr std::string_view EACH_LIST = "பட்டியல்";
constexpr std::string_view EACH_ELEMENT = "உருப்படி";
constexpr std::string_view EACH_KEY = "சாவி";

/// The name by which the index of an element is known beside it.
constexpr std::string_view EACH_INDEX = "இடம்";

/// The property that says whether a widget is there.
constexpr std::string_view SHOWN = "தெரிய";

/// The property of a page's header that says whether texts shrink with the window, and its value by which they don't.
constexpr std::string_view TEXT_SCALE = "எழுத்தளவு";
constexpr std::string_view STEADY_TEXTS = "நிலையான";

/// The property of a header that says whether variables keep their values when a newer build is loaded.
constexpr std::string_view STATE_KEPT = "நிலை_காப்பு";

/// The key that may stand before a style block.
constexpr std::string_view STYLE_KEY = "பாணி";

using WidgetProperties = std::vector<const WidgetProperty*>;

/// The widget of this word, null if there is none.
const Widget* findWidget(std::string_view word);

/// The words of all widgets and their items, with which a word is compared that is none.
std::vector<std::string_view> widgetWords();

/// The property that \p widget has under this name, null if it has none.
/// \param style the word of the style block that it stands in; empty between the widget's own brackets
const WidgetProperty* findProperty(const Widget& widget, std::string_view style, std::string_view name);

/// All that findProperty finds. They live as long as the program.
const WidgetProperties& propertiesOf(const Widget& widget, std::string_view style);

/// The words of the style blocks that stand between the brackets of \p widget.
std::vector<std::string_view> stylesOf(const Widget& widget);

/// Whether the property of this name holds what happens on a press or change, in any widget.
bool isHandler(std::string_view name);

/// Whether any widget, style or header has a property of this name.
bool isProperty(std::string_view name);

/// Whether any widget has a style block of this word.
bool isStyle(std::string_view word);

/// The properties of an application's header.
Rows<WidgetProperty> headerProperties();

/// The properties of the connection to a database.
Rows<WidgetProperty> databaseProperties();

} // namespace pozhil::language::second
