// The brackets of widgets and styles: how their lines may stand, and where a missing one is reported.

#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// Every list of properties or children, open, with a property or statement that it can hold.
struct OpenList {
    std::string opening;
    std::string item;
    /// What must follow its last bracket.
    std::string behind = "";
};

const OpenList lists[] = {
    {"பொத்தான்(", "அ: 1"},
    {"பொத்தான்(பாணி(", "அ: 1"},
    {"பொத்தான்(பொ_பாணி(", "அகலம்: 1"},
    {"பொத்தான்(தேடல்_பாணி(", "அ: 1"},
    {"பொத்தான்(எச்சரிக்கை_பாணி(", "அ: 1"},
    {"பொத்தான்(அழுத்தினால்(", "விடு"},
    {"பொத்தான்(அழுத்தினால்(", "அ()"},
    {"நெடுவரிசை(", "உரை()"},
    {"நெடுவரிசை(", "அ: 1"},
    {"கிடைவரிசை(அ: 1)(", "உரை()"},
    {"அடுக்கி(", "உரை()"},
    {"மடிப்பு(", "அ: 1"},
    {"பட்டியல்_காட்சி(", "உரை()"},
    {"கட்டம்_காட்சி(", "அ: 1", "()"},
    {"கட்டம்_காட்சி(இவெ(", "உயரம்: 1", "()"},
    {"கட்டம்_காட்சி()(", "உரை()"},
    {"விரிவாக்கம்(", "உரை()"},
    {"நெகிழ்வு(", "உரை()"},
    {"வெற்றிடம்(", "அ: 1"},
    {"உள்_இவெ(", "அளவு: 1"},
    {"உள்_இவெ()(", "உரை()"},
    {"பெட்டி(", "உரை()"},
    {"பெட்டி(சீரமைப்பு: மையம்)(", "உரை()"},
    {"பெட்டி(அழுத்தினால்(", "அ()"},
    {"அட்டை(", "உரை()"},
    {"அட்டை(அட்டை_பாணி(", "அ: 1"},
    {"பட்டியல்_உருப்படி(", "அ: 1"},
    {"பட்டியல்_உருப்படி(அழுத்தினால்(", "விடு"},
    {"எச்சரிக்கை(", "உரை()"},
    {"எச்சரிக்கை()(", "உரை()"},
    {"எச்சரிக்கை(எச்சரிக்கை_பாணி(", "அ: 1"},
    {"அறிவிப்பு_பட்டை(", "அ: 1"},
    {"உரைபொத்தான்(", "அ: 1"},
    {"உரைபொத்தான்(அழுத்தினால்(", "அ()"},
    {"உரைபொத்தான்(பாணி: உரைபொ_பாணி(", "அ: 1"},
};

/// The brackets that \p opening leaves open.
std::string closing(const std::string& opening) {
    std::string brackets;
    for (const char letter : opening) {
        if (letter == '(') {
            brackets += ')';
        } else if (letter == ')') {
            brackets.pop_back();
        }
    }
    return brackets;
}

TEST(WidgetBrackets, MayHoldLinesOfAnyIndentation) {
    for (const auto& [opening, item, behind] : lists) {
        const std::string rest = closing(opening) + behind;
        EXPECT_EQ(widgetTree("    " + opening + "\n\n            " + item + "\n    " + rest),
                  widgetTree(opening + item + rest))
            << opening;
    }
}

TEST(WidgetBrackets, NoLineInsideStandsFurtherOutThanTheFirst) {
    for (const OpenList& list : lists) {
        const std::string before = "எனில் அ:\n    வலைதளம் (குமரி(" + list.opening;
        EXPECT_EQ(fault(before + "\n\n" + list.item), "பொழி-204 வரி 3") << list.opening;
        EXPECT_EQ(fault(before + list.item + "\n)"), "பொழி-204 வரி 2") << list.opening << list.item;
    }
}

} // namespace
