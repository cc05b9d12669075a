#include "language/widgets.h"

#include "language/property_words.h"
#include "language/widgets/families.h"

#include <unordered_map>

namespace pozhil::language {
namespace {

// clang-format off
constexpr WidgetProperty COMMON_PROPERTIES[] = {
    {property::WIDTH, "", ValueKind::Size, {"அகலம்", "width"}},
    {property::HEIGHT, "", ValueKind::Size, {"உயரம்", "height"}},
    {property::ID, "", ValueKind::Variable, {"பெயர்: `நகர்த்து` உருட்டும் இடம்; உள்ளீட்டின் மதிப்பு", "a name, to scroll to and to read inputs by"}},
    {property::VISIBILITY, "", ValueKind::Variable, {"ஒரு மாறியின் பெயர் (உரையாக): அது `பொய்` எனில் மறையும்", "the name of a variable, as a text; hidden while it is `பொய்`"}},
};
// clang-format on

using WidgetMap = std::unordered_map<std::string_view, const Widget*>;

const WidgetMap& widgetsByWord() {
    static const WidgetMap map = [] {
        WidgetMap byWord;
        for (const Widget& row : widgets()) {
            byWord.emplace(row.word, &row);
        }
        return byWord;
    }();
    return map;
}

} // namespace

const std::vector<Widget>& widgets() {
    static const std::vector<Widget> all = [] {
        std::vector<Widget> rows;
        for (const Rows<Widget>& family :
             {textWidgets(), inputWidgets(), layoutWidgets(), boxWidgets(), barWidgets(), indicatorWidgets()}) {
            rows.insert(rows.end(), family.begin(), family.end());
        }
        return rows;
    }();
    return all;
}

Rows<WidgetProperty> commonProperties() {
    return COMMON_PROPERTIES;
}

const Widget* findWidget(std::string_view word) {
    const auto found = widgetsByWord().find(word);
    return found == widgetsByWord().end() ? nullptr : found->second;
}

} // namespace pozhil::language
