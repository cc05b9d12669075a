// Widgets in one another: however deep, the parser ends in a diagnostic and not in the machine's stack.

#include "support/parsing.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

std::string repeated(int count, const std::string& text) {
    std::string all;
    for (int number = 0; number < count; ++number) {
        all += text;
    }
    return all;
}

/// What stands before and behind a widget that another one holds.
const std::pair<std::string, std::string> forms[] = {
    {"பொத்தான்(", ")"},
    {"நெடுவரிசை(", ")"},
    {"கிடைவரிசை(இடைவெளி: 5)(", ")"},
    {"அடுக்கி(", ")"},
    {"மடிப்பு(", ")"},
    {"பட்டியல்_காட்சி(", ")"},
    {"கட்டம்_காட்சி()(", ")"},
    {"விரிவாக்கம்(", ")"},
    {"நெகிழ்வு(", ")"},
    {"உள்_இவெ()(", ")"},
    {"பெட்டி(", ")"},
    {"அட்டை(", ")"},
    {"எச்சரிக்கை(", ")"},
    {"எச்சரிக்கை()(", ")"},
    {"அறிவிப்பு_பட்டை(செய்தி: ", ")"},
    {"பட்டியல்_உருப்படி(முன்னணி: ", ")"},
    {"உரைபொத்தான்(அ: ", ")"},
    {"உரை(பாணி(அகலம்: ", "))"},
    {"பொத்தான்(அழுத்தினால்(", "))"},
    {"பொத்தான்(அழுத்தினால்(விடு ", "))"},
    {"பொத்தான்(பொ_பாணி(அகலம்: ", "))"},
    {"அட்டை(அட்டை_பாணி(அ: ", "))"},
};

std::string nested(int count, const std::string& opening, const std::string& closing) {
    return repeated(count, opening) + "உரை(\"அ\")" + repeated(count, closing);
}

TEST(WidgetNesting, OfTenThousandWidgetsIsRefused) {
    for (const auto& [opening, closing] : forms) {
        EXPECT_EQ(widgetFault(nested(10000, opening, closing)), "பொழி-291 வரி 2") << opening;
        EXPECT_EQ(widgetFault(repeated(10000, opening)), "பொழி-291 வரி 2") << opening;
    }
}

TEST(WidgetNesting, OfThreeHundredWidgetsIsFine) {
    for (const auto& [opening, closing] : forms) {
        EXPECT_EQ(widgetFault(nested(300, opening, closing)), "none") << opening;
    }
    EXPECT_EQ(widgetFault(nested(900, "நெடுவரிசை(", ")")), "none");
}

TEST(WidgetNesting, WidgetsSideBySideDoNotAddUp) {
    const std::string deep = nested(400, "பெட்டி(", ")") + " ";
    for (const std::string opening :
         {"பொத்தான்(", "நெடுவரிசை(", "கட்டம்_காட்சி(அ: (1))(", "விரிவாக்கம்(", "பெட்டி(", "அட்டை(", "எச்சரிக்கை("}) {
        EXPECT_EQ(widgetFault(opening + deep + deep + deep + ")"), "none") << opening;
    }
    EXPECT_EQ(widgetFault("எச்சரிக்கை(" + deep + ")(" + deep + ")"), "none");
    EXPECT_EQ(widgetFault("நெடுவரிசை(" + repeated(5000, "உரை(\"அ\", அகலம்: 5)\n") + ")"), "none");
}

TEST(WidgetNesting, PartsOfAnApplicationDoNotAddUp) {
    const std::string deep = repeated(600, "(") + "1" + repeated(600, ")");
    const std::string widget = nested(600, "பெட்டி(", ")");
    EXPECT_EQ(fault("வலைதளம் (அ: " + deep + " தலைமை(அ: " + deep + ", ஆ: " + deep + ") குமரி(" + widget +
                    ") வரையறை(அ = " + deep + " ஆ = " + deep + ") தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(அ: " + deep + ")))"),
              "none");
}

TEST(DatabaseNesting, OfTenThousandFormsIsRefused) {
    EXPECT_EQ(fault(repeated(10000, "நிகழ்நேர.தரவுபடி(\"அ\") {")), "பொழி-291 வரி 1");
    EXPECT_EQ(fault("அ = " + repeated(10000, "நிகழ்நேர.தரவுசேர்(\"அ\") {அ: ")), "பொழி-291 வரி 1");
    EXPECT_EQ(fault("அ = " + repeated(10000, "நிகழ்நேர.தரவுஅழி(")), "பொழி-291 வரி 1");
}

} // namespace
