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
    /// Whether its bracket may stand further out than its first line.
    bool closesFreely = false;
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
    {"பெட்டி(அழுத்தினால்(", "அ()", "", true},
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
    for (const OpenList& list : lists) {
        const std::string rest = closing(list.opening) + list.behind;
        EXPECT_EQ(widgetTree("    " + list.opening + "\n\n            " + list.item + "\n    " + rest),
                  widgetTree(list.opening + list.item + rest))
            << list.opening;
    }
}

/// An interface whose root, a box of other widgets, begins in the third column of indentation.
std::string indented(const std::string& items) {
    return "வலைதளம் (\n    தலைமை()\n    குமரி(\n        பெட்டி(\n" + items + "    வரையறை()\n)\n";
}

TEST(WidgetBrackets, OfABoxesPressHandlerMayCloseFurtherOut) {
    EXPECT_EQ(fault(indented("            அழுத்தினால்(அ()\n    ))\n    )\n")), "none");
    EXPECT_EQ(fault(indented("            அழுத்தினால்(அ()\n    ),\n        அகலம்: 5\n    ))\n")), "none");
    // The lines after it are counted from there on, so that one step further out is too far again.
    EXPECT_EQ(fault(indented("            அழுத்தினால்(அ()\n    ),\n  அகலம்: 5\n))\n")), "பொழி-111 வரி 7");
    EXPECT_EQ(fault(indented("            அழுத்தினால்(அ()\n    ),\nஅகலம்: 5\n))\n")), "none");
}

TEST(WidgetBrackets, OfOtherPressHandlersMayNot) {
    EXPECT_EQ(fault(indented("            உரைபொத்தான்(அழுத்தினால்(அ()\n    ))\n    ))\n")), "பொழி-204 வரி 5");
    EXPECT_EQ(fault(indented("            பொத்தான்(அழுத்தினால்(அ()\n    ))\n    ))\n")), "பொழி-204 வரி 5");
}

TEST(WidgetBrackets, LinesAfterALayoutsFirstListMayStandFurtherOut) {
    for (const std::string layout : {"நெடுவரிசை", "கிடைவரிசை", "அடுக்கி", "மடிப்பு", "பட்டியல்_காட்சி"}) {
        EXPECT_EQ(fault(indented("            " + layout + "(அகலம்: 5)\n    )\n    )\n")), "none") << layout;
        EXPECT_EQ(fault(indented("            " + layout + "(அகலம்: 5)\n    உரை(\"அ\"))\n    )\n")), "none") << layout;
        EXPECT_EQ(fault(indented("            " + layout + "(உரை())\n    )\n    )\n")), "பொழி-204 வரி 5") << layout;
    }
    EXPECT_EQ(fault(indented("            எச்சரிக்கை(அகலம்: 5)\n    )\n    )\n")), "none");
    EXPECT_EQ(fault(indented("            உரை(\"அ\")\n    )\n    )\n")), "பொழி-204 வரி 5");
}

TEST(WidgetBrackets, LinesAfterALayoutThatIsAStatementsValueBelongToTheBlock) {
    const std::string tail = "அ = நெடுவரிசை(அகலம்: 5)\n";
    EXPECT_EQ(fault("எனில் ஆ:\n    " + tail + "    விடு\n"), "none");
    EXPECT_EQ(fault("எனில் ஆ:\n    " + tail + "விடு\n"), "none");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி()\n    வரையறை(\n        செயல் ஆ():\n            " + tail +
                    "        விடு\n    )\n)\n"),
              "none");
}

TEST(WidgetBrackets, OfAnAnimationMayStandFurtherOut) {
    const std::string animation = "            அசைவூட்டம்(\n    காலம்: 5\n    )\n";
    EXPECT_EQ(fault(indented(animation + "        அகலம்: 5\n    ))\n")), "none");
    EXPECT_EQ(fault(indented(animation + "        உரை(\n            அகலம்: 5\n        )\n    ))\n")), "none");
    EXPECT_EQ(fault(indented("            அசைவூட்டம்(\n                காலம்: 5),\n            அகலம்: 5\n        ))\n")),
              "none");
}

TEST(WidgetBrackets, OfDataMayStandFurtherOut) {
    const std::string data = "            அ: {\n    \"ஆ\": 5\n    }\n";
    EXPECT_EQ(fault(indented(data + "        அகலம்: 5\n    ))\n")), "none");
    const std::string press = "            பொத்தான்(அழுத்தினால்(நிகழ்நேர.தரவுசேர்(\"அ\") {\n    \"ஆ\": 5\n    }";
    EXPECT_EQ(fault(indented(press + "\n        அச்சிடு(1)\n    ))))\n")), "none");
    const std::string read = "            பொத்தான்(அழுத்தினால்(நிகழ்நேர.தரவுபடி(\"அ\") {\n    அச்சிடு(1)\n    }";
    EXPECT_EQ(fault(indented(read + "\n        அச்சிடு(1)\n    ))))\n")), "none");
}

TEST(WidgetBrackets, NoLineInsideStandsFurtherOutThanTheFirst) {
    for (const OpenList& list : lists) {
        const std::string before = "எனில் அ:\n    வலைதளம் (குமரி(" + list.opening;
        EXPECT_EQ(fault(before + "\n\n" + list.item), "பொழி-204 வரி 3") << list.opening;
        // With the bracket taken, it is those around it that are missing at the end of the file.
        const std::string second = list.closesFreely ? "பொழி-204 வரி 3" : "பொழி-204 வரி 2";
        EXPECT_EQ(fault(before + list.item + "\n)"), second) << list.opening << list.item;
    }
}

} // namespace
