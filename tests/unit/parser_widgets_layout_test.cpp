// Widgets that lay out others: lists of properties, lists of children, and how the two are told apart.

#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string first = "(Widget உரை (\"உரை\" (String \"அ\")))";
const std::string second = "(Widget உரை (\"உரை\" (String \"ஆ\")))";
const std::string twoTexts = "உரை(\"அ\"), உரை(\"ஆ\")";

struct Layout {
    std::string word;
    std::string className;
};

/// What can carry an alignment.
const Layout aligned[] = {{"நெடுவரிசை", "Column"}, {"கிடைவரிசை", "Row"}, {"அடுக்கி", "Widget"}, {"மடிப்பு", "Widget"}};
/// All that take their lists in the same two shapes.
const Layout layouts[] = {{"நெடுவரிசை", "Column"},
                          {"கிடைவரிசை", "Row"},
                          {"அடுக்கி", "Widget"},
                          {"மடிப்பு", "Widget"},
                          {"பட்டியல்_காட்சி", "ListView"}};

std::string node(const Layout& layout, const std::string& parts) {
    return "(" + layout.className + " " + layout.word + parts + ")";
}

TEST(Layout, HoldsItsChildrenDirectly) {
    for (const Layout& layout : layouts) {
        EXPECT_EQ(widgetTree(layout.word + "()"), node(layout, ""));
        EXPECT_EQ(widgetTree(layout.word + "(" + twoTexts + ")"), node(layout, " " + first + " " + second));
        EXPECT_EQ(widgetTree(layout.word + "\n(\n    உரை(\"அ\")\n\n        உரை(\"ஆ\"),,\n)"),
                  node(layout, " " + first + " " + second));
    }
}

TEST(Layout, HoldsPropertiesBeforeItsChildren) {
    for (const Layout& layout : layouts) {
        EXPECT_EQ(widgetTree(layout.word + "(இடைவெளி: 8, அகலம்: 50% உயரம்: 5)(" + twoTexts + ")"),
                  node(layout, " (\"அகலம்\" (Percentage 50%)) (\"இடைவெளி\" (Number 8)) (\"உயரம்\" (Number 5)) " + first +
                                   " " + second));
        EXPECT_EQ(widgetTree(layout.word + "(உயரம்: 5)"), node(layout, " (\"உயரம்\" (Number 5))"));
        EXPECT_EQ(widgetTree(layout.word + "(அகலம்: 5)()"), node(layout, " (\"அகலம்\" (Number 5))"));
        EXPECT_EQ(widgetTree(layout.word + "(அசைவூட்டம்(காலம்: 300), இடைவெளி: 8)()"),
                  node(layout, " (\"இடைவெளி\" (Number 8)) (Animation 300 linear)"));
        EXPECT_EQ(widgetTree(layout.word + "(\n    அடையாளம்: \"இ\"\n    உருளும்பட்டை: மெய்\n)\n(\n    உரை(\"அ\")\n)\n"),
                  node(layout, " (\"அடையாளம்\" (String \"இ\")) (\"உருளும்பட்டை\" (Boolean மெய்)) " + first));
    }
}

TEST(Layout, AlignsItsChildren) {
    for (const Layout& layout : aligned) {
        EXPECT_EQ(widgetTree(layout.word + "(சீரமைப்பு: மையம்)(" + twoTexts + ")"),
                  node(layout, " align=4 " + first + " " + second));
        EXPECT_EQ(widgetTree(layout.word + "(இடைவெளி: 8, சீரமைப்பு: கீழ்_வலது)()"),
                  node(layout, " align=8 (\"இடைவெளி\" (Number 8))"));
        EXPECT_EQ(widgetTree(layout.word + "(சீரமைப்பு: \"மையம்\")()"), node(layout, ""));
        EXPECT_EQ(widgetFault(layout.word + "(சீரமைப்பு மையம்)()"), "பொழி-202 வரி 2");
    }
    EXPECT_EQ(widgetTree("பட்டியல்_காட்சி(சீரமைப்பு: மையம்)(உரை(\"அ\"))"),
              "(ListView பட்டியல்_காட்சி (\"சீரமைப்பு\" மையம்) " + first + ")");
}

TEST(Layout, PassesOverWhatIsNoProperty) {
    for (const Layout& layout : layouts) {
        EXPECT_EQ(widgetTree(layout.word + "(இடைவெளி: 8, பின்னணி: \"அ\", 5, இ)(" + twoTexts + ")"),
                  node(layout, " (\"இடைவெளி\" (Number 8)) " + first + " " + second));
    }
}

TEST(Layout, LeavesTheLinesBehindItToItsSurroundings) {
    EXPECT_EQ(tree("செயல் இ():\n    நெடுவரிசை(இடைவெளி: 8)\n    விடு\nவிடு\n"),
              "(FunctionDefinition இ () (Block (Column நெடுவரிசை (\"இடைவெளி\" (Number 8))) (Pass))) (Pass)");
    EXPECT_EQ(widgetTree("கிடைவரிசை(\n    நெடுவரிசை(இடைவெளி: 8)\n    உரை(\"அ\")\n)"),
              "(Row கிடைவரிசை (Column நெடுவரிசை (\"இடைவெளி\" (Number 8))) " + first + ")");
}

TEST(Layout, ABracketMayCloseOnTheLastLineInside) {
    EXPECT_EQ(
        widgetTree(
            "நெடுவரிசை(\n    கிடைவரிசை(\n        உரை(\"அ\",\n            அகலம்: 5),\n        உரை(\"ஆ\"))\n    உரை(\"அ\"))"),
        "(Column நெடுவரிசை (Row கிடைவரிசை (Widget உரை (\"அகலம்\" (Number 5)) (\"உரை\" (String \"அ\"))) " + second +
            ") " + first + ")");
    EXPECT_EQ(fault("எனில் அ:\n    நெடுவரிசை(\n        உரை(\n            \"அ\")\nவிடு"), "பொழி-204 வரி 4");
}

TEST(Layout, ASectionInsideItTellsOfAnOpenBracket) {
    for (const Layout& layout : aligned) {
        for (const std::string section : {"வரையறை", "குமரி", "தலைமை"}) {
            EXPECT_EQ(widgetFault(layout.word + "(\nஉரை(\"அ\")\nஉரை(\n\"ஆ\")\n" + section + "("), "பொழி-204 வரி 4");
            EXPECT_EQ(widgetFault(layout.word + "(\n\n" + section + "("), "பொழி-204 வரி 2");
            EXPECT_EQ(widgetFault(layout.word + "(இடைவெளி: 8)(\nஉரை(\"அ\")\n" + section + "("), "பொழி-204 வரி 3");
        }
    }
    EXPECT_EQ(widgetTree("பட்டியல்_காட்சி(தலைமை())"), "(ListView பட்டியல்_காட்சி (Widget தலைமை))");
}

TEST(Layout, ReportsItsBrackets) {
    for (const Layout& layout : layouts) {
        EXPECT_EQ(widgetFault(layout.word), "பொழி-203 வரி 2");
        EXPECT_EQ(fault("வலைதளம் (குமரி(" + layout.word + "(\nஉரை(\"அ\")\n"), "பொழி-204 வரி 3");
        EXPECT_EQ(fault("வலைதளம் (குமரி(" + layout.word + "(இடைவெளி: 8\n"), "பொழி-204 வரி 2");
        EXPECT_EQ(widgetFault(layout.word + "(\"அ\")"), "பொழி-203 வரி 2");
        EXPECT_EQ(widgetFault(layout.word + "(உரை(\"அ\"), இடைவெளி: 8)"), "பொழி-203 வரி 2");
        EXPECT_EQ(fault("எனில் அ:\n    வலைதளம் (குமரி(" + layout.word + "(\nஉரை(\"அ\")"), "பொழி-204 வரி 2");
    }
}

TEST(GridView, HoldsPropertiesThenChildren) {
    EXPECT_EQ(widgetTree("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 3, இவெ(உயரம்: 5, அகலம்: 6), அகலம்: 7 உயரம்: 8, கி_இவெ: 9)(" +
                         twoTexts + ")"),
              "(GridView கட்டம்_காட்சி (\"cols\" (Number 3)) (\"h_gap\" (Number 6)) (\"height\" (Number 8)) "
              "(\"v_gap\" (Number 5)) (\"width\" (Number 7)) (\"கி_இவெ\" (Number 9)) " +
                  first + " " + second + ")");
    EXPECT_EQ(
        widgetTree(
            "கட்டம்_காட்சி(\n    cols: 3\n    அசைவூட்டம்(காலம்: 5)\n    இடைவெளி: இவெ(அகலம்: 5)\n)\n(\n    உரை(\"அ\")\n)"),
        "(GridView கட்டம்_காட்சி (\"cols\" (Number 3)) "
        "(\"இடைவெளி\" (WidgetValue (Widget இவெ (\"அகலம்\" (Number 5))))) (Animation 5 linear) " +
            first + ")");
    EXPECT_EQ(widgetTree("கட்டம்_காட்சி()()"), "(GridView கட்டம்_காட்சி)");
    EXPECT_EQ(widgetTree("கட்டம்_காட்சி(5 \"அ\" வளைவு: 5, இவெ(அ: 5 வளைவு: 6))()"), "(GridView கட்டம்_காட்சி)");
}

TEST(GridView, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி(\nஅகலம்: 5)"), "பொழி-203 வரி 3");
    EXPECT_EQ(widgetFault("நெடுவரிசை(கட்டம்_காட்சி(\nஅகலம்: 5\n)\n\n    உரை(\"அ\"))"), "பொழி-203 வரி 6");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி(\nஅகலம் 5)()"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி(\ncols 5)()"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி(\nஇவெ: 5)()"), "பொழி-203 வரி 3");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி(\nஇவெ(உயரம் 5))()"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("கட்டம்_காட்சி()(\nஉரை(\"அ\")\nவரையறை("), "பொழி-204 வரி 3");
}

TEST(Expanded, HoldsPropertiesAndChildren) {
    EXPECT_EQ(widgetTree("விரிவாக்கம்(உரை(\"அ\"))"), "(Expanded விரிவாக்கம் " + first + ")");
    EXPECT_EQ(
        widgetTree("விரிவாக்கம்(\n    பங்கு: 2,\n    உரை(\"அ\")\n    அடையாளம்: \"இ\" அசைவூட்டம்(காலம்: 5)\n    உரை(\"ஆ\")\n)"),
        "(Expanded விரிவாக்கம் (\"flex\" (Number 2)) (\"அடையாளம்\" (String \"இ\")) (Animation 5 linear) " + first + " " +
            second + ")");
    EXPECT_EQ(widgetTree("விரிவாக்கம்(5 \"அ\" அகலம்: 5, பக்கம்())"), "(Expanded விரிவாக்கம் (Widget பக்கம்))");
    EXPECT_EQ(widgetTree("விரிவாக்கம்()"), "(Expanded விரிவாக்கம்)");
}

TEST(Flexible, TakesItsShareAsANumber) {
    EXPECT_EQ(widgetTree("நெகிழ்வு(உரை(\"அ\"))"), "(Flexible நெகிழ்வு flex=1 " + first + ")");
    EXPECT_EQ(widgetTree("நெகிழ்வு(பங்கு: 3, உரை(\"அ\"), அடையாளம்: \"இ\")"),
              "(Flexible நெகிழ்வு flex=3 (\"அடையாளம்\" (String \"இ\")) " + first + ")");
    EXPECT_EQ(widgetTree("நெகிழ்வு(விகிதம்: 4)"), "(Flexible நெகிழ்வு flex=4)");
    EXPECT_EQ(widgetTree("நெகிழ்வு(விகிதம் 4)"), "(Flexible நெகிழ்வு flex=1)");
    EXPECT_EQ(widgetTree("நெகிழ்வு(பங்கு: 2.5)"), "(Flexible நெகிழ்வு flex=1)");
    EXPECT_EQ(widgetTree("நெகிழ்வு(பங்கு: இ)"), "(Flexible நெகிழ்வு flex=1)");
    EXPECT_EQ(widgetTree("நெகிழ்வு(பங்கு: ௩)"), "(Flexible நெகிழ்வு flex=3)");
    EXPECT_EQ(widgetTree("நெகிழ்வு(பங்கு: 99999999999)"), "(Flexible நெகிழ்வு flex=2147483647)");
    EXPECT_EQ(widgetTree("பங்கு(உரை(\"அ\"))"), "(Flexible நெகிழ்வு flex=1 " + first + ")");
}

TEST(Flexible, ReportsItsFaults) {
    for (const std::string word : {"விரிவாக்கம்", "நெகிழ்வு"}) {
        EXPECT_EQ(widgetFault(word), "பொழி-203 வரி 2");
        EXPECT_EQ(widgetFault(word + "(\nபங்கு 2)"), "பொழி-202 வரி 3");
        EXPECT_EQ(fault("வலைதளம் (குமரி(" + word + "(\nஉரை(\"அ\")\n"), "பொழி-204 வரி 3");
    }
}

TEST(Spacer, MayDoWithoutABracket) {
    EXPECT_EQ(widgetTree("நெடுவரிசை(வெற்றிடம், வெற்றிடம்\nஉரை(\"அ\"))"),
              "(Column நெடுவரிசை (Widget வெற்றிடம்) (Widget வெற்றிடம்) " + first + ")");
    EXPECT_EQ(widgetTree("வெற்றிடம்()"), "(Widget வெற்றிடம்)");
    EXPECT_EQ(widgetTree("வெற்றிடம்(பங்கு: 2, உயரம்: 5 அகலம்: 6, அடையாளம்: \"இ\", அசைவூட்டம்(காலம்: 5))"),
              "(Widget வெற்றிடம் (\"flex\" (Number 2)) (\"அகலம்\" (Number 6)) (\"அடையாளம்\" (String \"இ\")) "
              "(\"உயரம்\" (Number 5)) (Animation 5 linear))");
    EXPECT_EQ(widgetTree("வெற்றிடம்(அளவு: 5, 6 \"அ\")"), "(Widget வெற்றிடம் (\"உயரம்\" (Number 5)))");
}

TEST(Spacer, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("வெற்றிடம்(\nவரையறை("), "பொழி-204 வரி 2");
    EXPECT_EQ(widgetFault("வெற்றிடம்(\nஉயரம் 5)"), "பொழி-202 வரி 3");
}

TEST(Padding, KeepsTheSpellingOfItsWord) {
    for (const std::string word : {"உள்_இவெ", "உள்_இவே"}) {
        EXPECT_EQ(widgetTree(word + "(அளவு: 8)(உரை(\"அ\"))"),
                  "(Padding " + word + " padding=8 (\"அளவு\" (Number 8)) " + first + ")");
        EXPECT_EQ(widgetTree(word + "()"), "(Padding " + word + ")");
        EXPECT_EQ(widgetTree(word + "(\n    அளவு: இ\n    அடையாளம்: \"ஈ\"\n)\n(\n    உரை(\"அ\")\n)"),
                  "(Padding " + word + " (\"அடையாளம்\" (String \"ஈ\")) (\"அளவு\" இ) " + first + ")");
        EXPECT_EQ(widgetTree(word + "(அளவு: 2.5)"), "(Padding " + word + " (\"அளவு\" (Double 2.5)))");
    }
}

TEST(Padding, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("உள்_இவெ"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("உள்_இவெ(\nஅளவு 8)"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("உள்_இவெ(\nஉயரம்: 8)"), "பொழி-204 வரி 3");
    EXPECT_EQ(widgetFault("உள்_இவெ(\nஉரை(\"அ\"))"), "பொழி-204 வரி 3");
    EXPECT_EQ(widgetFault("உள்_இவெ(அளவு: 8)(\n)"), "பொழி-203 வரி 3");
    EXPECT_EQ(widgetFault("உள்_இவெ(அளவு: 8)(\nஉரை(\"அ\")\nஉரை(\"ஆ\"))"), "பொழி-204 வரி 4");
}

} // namespace
