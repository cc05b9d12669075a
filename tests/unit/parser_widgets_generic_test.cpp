// Widgets of the general form: values, properties, styles, press handlers and children in one list.

#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// The tree of an உரை with these items.
std::string textTree(const std::string& items) {
    return tree("உரை(" + items + ")");
}

std::string text(const std::string& parts) {
    return "(Widget உரை" + parts + ")";
}

std::string buttonTree(const std::string& items) {
    return tree("பொத்தான்(" + items + ")");
}

std::string button(const std::string& parts) {
    return "(Widget பொத்தான்" + parts + ")";
}

std::string textFault(const std::string& items) {
    return fault("\nஉரை(\n" + items + ")");
}

TEST(GenericWidget, CountsItsValues) {
    EXPECT_EQ(textTree(""), text(""));
    EXPECT_EQ(textTree("\"வணக்கம்\""), text(" (\"உரை\" (String \"வணக்கம்\"))"));
    EXPECT_EQ(textTree("\"அ\", \"ஆ\""), text(" (\"arg1\" (String \"ஆ\")) (\"உரை\" (String \"அ\"))"));
    EXPECT_EQ(textTree("அ ஆ 3"), text(" (\"arg1\" ஆ) (\"arg2\" (Number 3)) (\"உரை\" அ)"));
    EXPECT_EQ(textTree("உரை: \"அ\", \"ஆ\""), text(" (\"உரை\" (String \"ஆ\"))"));
    EXPECT_EQ(textTree("\"ஆ\", உரை: \"அ\""), text(" (\"உரை\" (String \"அ\"))"));
    EXPECT_EQ(textTree("1 கூட்டு 2, அகலம், (அ), அ(ஆ)"),
              text(" (\"arg1\" அகலம்) (\"arg2\" (Grouping அ)) (\"arg3\" (Call அ ஆ)) "
                   "(\"உரை\" (Binary (Number 1) கூட்டு (Number 2)))"));
    EXPECT_EQ(textTree("காட்சி_நிலை.அ"), text(" (\"உரை\" (Get காட்சி_நிலை அ))"));
}

TEST(GenericWidget, TakesPropertiesUnderTheirWords) {
    for (const std::string key :
         {"அடையாளம்",    "காட்சி_பெயர்", "பாதை",        "முன்னணி",      "style_தடிமன்", "id",           "தலைப்பு",
          "உரை",        "உயரம்",       "அளவு",        "அகலம்",        "குறிப்பு",     "தத்தல்_தேர்வு",   "அடிப்பகுதிதேர்வு",
          "பின்னணி",     "நிறம்",       "பெட்டிபின்னணி", "தேர்வு_நிறம்",  "தேர்வற்ற_நிறம்", "வளைவு",        "நிழல்",
          "விகிதம்",     "கரை_அளவு",   "கரை_நிறம்",    "பக்கம்",        "எழுத்து_நிறம்", "தேடல்_குறிப்பு", "தேடல்_படம்",
          "அழி_படம்",    "களப்பின்னணி",  "எழுத்தளவு",    "பொபின்னணி",    "பின்னணிபடம்",   "மாறியதால்",     "பலவரி",
          "உருளும்பட்டை", "பட்டியல்",     "மதிப்பு",      "குழு_மதிப்பு", "செயலிழப்பு"}) {
        EXPECT_EQ(textTree(key + ": 1"), text(" (\"" + key + "\" (Number 1))")) << key;
    }
}

TEST(GenericWidget, TakesAnyValueForAProperty) {
    EXPECT_EQ(textTree("அகலம்: 50%, உயரம்: அ எனில் 50% இல்லைஎனில் 100"),
              text(" (\"அகலம்\" (Percentage 50%)) (\"உயரம்\" (Ternary அ (Percentage 50%) (Number 100)))"));
    EXPECT_EQ(textTree("முன்னணி: படம்(பாதை: \"அ\")"),
              text(" (\"முன்னணி\" (WidgetValue (Widget படம் (\"பாதை\" (String \"அ\")))))"));
    EXPECT_EQ(textTree("பட்டியல்: [\"அ\", \"ஆ\"] மாறியதால்: () => அ()"),
              text(" (\"பட்டியல்\" (List (String \"அ\") (String \"ஆ\"))) (\"மாறியதால்\" (Lambda () (Call அ)))"));
    EXPECT_EQ(textTree("அகலம்: 1, அகலம்: 2"), text(" (\"அகலம்\" (Number 2))"));
}

TEST(GenericWidget, MixesPropertiesAndChildren) {
    EXPECT_EQ(buttonTree("உரை(\"அ\"), அகலம்: 5 படம்() உயரம்: 6, பக்கம்()"),
              button(" (\"அகலம்\" (Number 5)) (\"உயரம்\" (Number 6)) (Widget உரை (\"உரை\" (String \"அ\"))) (Widget படம்) "
                     "(Widget பக்கம்)"));
    EXPECT_EQ(buttonTree("தலைமை() குமரி()"), button(" (Widget தலைமை) (Widget குமரி)"));
    EXPECT_EQ(buttonTree("மடிப்பு(), வெற்றிடம்"), button(" (Widget மடிப்பு) (Widget வெற்றிடம்)"));
}

TEST(GenericWidget, MayBeLaidOutFreely) {
    EXPECT_EQ(tree("உரை\n(\n    \"அ\",\n        அகலம்: 1\n    உயரம்: 2\n\n,,\n)\nவிடு\n"),
              text(" (\"அகலம்\" (Number 1)) (\"உயரம்\" (Number 2)) (\"உரை\" (String \"அ\"))") + " (Pass)");
    EXPECT_EQ(fault("எனில் அ:\n    உரை(\n\"அ\")"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("உரை(\n    \"அ\"\nவிடு: 1\n)"), "பொழி-201 வரி 3");
}

TEST(GenericWidget, ReportsItsBracketsAtTheLineOfItsWord) {
    EXPECT_EQ(fault("\nஉரை(\n\"அ\"\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nபொத்தான்(\nஉரை\n\"அ\")"), "பொழி-203 வரி 3");
    EXPECT_EQ(textFault("]"), "பொழி-201 வரி 3");
    EXPECT_EQ(textFault("தலைப்பு"), "பொழி-201 வரி 3");
}

TEST(GenericWidget, TellsItsLine) {
    EXPECT_EQ(treeWithLines("\nபொத்தான்(\nஉரை(\n\"அ\"))"), "(Widget@2 பொத்தான் (Widget@3 உரை (\"உரை\" (String@4 \"அ\"))))");
    EXPECT_EQ(treeWithLines("\nஅ = உரை()"), "(Expression (Assignment@2 அ = (WidgetValue@2 (Widget@2 உரை))))");
}

TEST(GenericWidget, AnIdentityNeedsItsColon) {
    EXPECT_EQ(textFault("அடையாளம் \"அ\""), "பொழி-202 வரி 3");
    EXPECT_EQ(textFault("அடையாளம்"), "பொழி-202 வரி 3");
}

TEST(Alignment, IsGivenByAWord) {
    const std::string words[] = {"மேல்_இடது", "மேல்_மையம்", "மேல்_வலது", "மைய_இடது", "மையம்",
                                 "மைய_வலது", "கீழ்_இடது",  "கீழ்_மையம்",  "கீழ்_வலது"};
    for (int number = 0; number < 9; ++number) {
        const std::string align = number == 0 ? "" : " align=" + std::to_string(number);
        EXPECT_EQ(textTree("சீரமைப்பு: " + words[number]), text(align));
        EXPECT_EQ(textTree("சீரமைப்பு: அ." + words[number]), text(align));
        EXPECT_EQ(textTree("சீரமைப்பு: \"" + words[number] + "\""), text(""));
    }
    EXPECT_EQ(textTree("சீரமைப்பு: மையம், சீரமைப்பு: நடுவில் சீரமைப்பு: 5"), text(" align=4"));
    EXPECT_EQ(textFault("சீரமைப்பு மையம்"), "பொழி-202 வரி 3");
}

TEST(TextStyle, SetsTheFieldsOfTheStyle) {
    EXPECT_EQ(textTree("உரைபாணி(நிறம்: \"அ\")"), text(" (Style color=அ)"));
    EXPECT_EQ(textTree("உரைபாணி(நிறம்: சிவப்பு)"), text(" (Style color=சிவப்பு)"));
    EXPECT_EQ(textTree("உரைபாணி(நிறம்: \"#FF0000\")"), text(" (Style color=#FF0000)"));
    EXPECT_EQ(textTree("உரைபாணி(அளவு: 24)"), text(" (Style size=24)"));
    EXPECT_EQ(textTree("உரைபாணி(அளவு: 12.5)"), text(" (Style size=12.5)"));
    EXPECT_EQ(textTree("உரைபாணி(அளவு: ௨௪)"), text(" (Style size=24)"));
    EXPECT_EQ(textTree("உரைபாணி(தடிமன்: \"தடிமனான\")"), text(" (Style weight=700)"));
    EXPECT_EQ(textTree("உரைபாணி(தடிமன்: \"bold\")"), text(" (Style weight=700)"));
    EXPECT_EQ(textTree("உரைபாணி(தடிமன்: \"மெல்லிய\")"), text(" (Style weight=400)"));
    EXPECT_EQ(textTree("உரைபாணி(தடிமன்: 600)"), text(" (Style weight=600)"));
    for (const std::string key : {"சீரமைப்பு", "உரைசீரமைப்பு"}) {
        EXPECT_EQ(textTree("உரைபாணி(" + key + ": \"center\")"), text(" (Style align=center)"));
        EXPECT_EQ(textTree("உரைபாணி(" + key + ": மையம்)"), text(" (Style align=மையம்)"));
        EXPECT_EQ(textTree("உரைபாணி(" + key + ": அ.மையம்)"), text(" (Style align=மையம்)"));
    }
    EXPECT_EQ(textTree("உரைபாணி(எழுத்துரு: \"அ.ttf\")"), text(" (Style font=அ.ttf)"));
    EXPECT_EQ(textTree("உரைபாணி(அடிக்குறிப்பு: மெய்)"), text(" (Style underline=1)"));
    EXPECT_EQ(textTree("உரைபாணி(அடிக்குறிப்பு: மெய், அடிக்குறிப்பு: பொய்)"), text(""));
}

TEST(TextStyle, HandsOnWhatDescribesTheBox) {
    EXPECT_EQ(textTree("பாணி(அகலம்: 1, உயரம்: 2 வளைவு: 3 பின்னணி: \"அ\", நிழல்: ஆ)"),
              text(" (\"style_அகலம்\" (Number 1)) (\"style_உயரம்\" (Number 2)) (\"style_நிழல்\" ஆ) "
                   "(\"style_பின்னணி\" (String \"அ\")) (\"style_வளைவு\" (Number 3))"));
}

TEST(TextStyle, DropsWhatItDoesNotKnow) {
    EXPECT_EQ(textTree("பாணி(அ: 1, 5: 2, பாணி: 3)"), text(""));
    EXPECT_EQ(textTree("பாணி(நிறம்: 5, அளவு: \"அ\", தடிமன்: மெய், சீரமைப்பு: 1, எழுத்துரு: அ, அடிக்குறிப்பு: 1)"), text(""));
    EXPECT_EQ(textTree("பாணி(நிறம்: நிறம்.சிவப்பு)"), text(""));
}

TEST(TextStyle, IsOpenedByEachOfItsWords) {
    for (const std::string word : {"பாணி", "உரைபாணி", "தடிமன்", "அடிக்குறிப்பு"}) {
        EXPECT_EQ(textTree(word + "(அளவு: 20), \"அ\""), text(" (\"உரை\" (String \"அ\")) (Style size=20)")) << word;
        EXPECT_EQ(textFault(word + ": 5"), "பொழி-203 வரி 3") << word;
    }
    EXPECT_EQ(textFault("பாணி: பொ_பாணி(அகலம்: 1)"), "பொழி-203 வரி 3");
}

TEST(TextStyle, MayBeLaidOutFreely) {
    EXPECT_EQ(
        textTree(
            "\n    உரைபாணி(\n        அளவு\n        :\n        20,\n        தடிமன்:\n\n        600\n    )\n    \"அ\"\n"),
        text(" (\"உரை\" (String \"அ\")) (Style size=20 weight=600)"));
}

TEST(TextStyle, ReportsItsFaults) {
    for (const std::string key : {"\"அ\"", "எழுத்தளவு", "கரை_நிறம்", "சுற்று", "(", "மெய்"}) {
        EXPECT_EQ(textFault("உரைபாணி(\n" + key + ": 1)"), "பொழி-252 வரி 4") << key;
    }
    EXPECT_EQ(textFault("உரைபாணி(\nஅளவு 20)"), "பொழி-202 வரி 4");
    EXPECT_EQ(fault("உரை(\nஉரைபாணி(\nஅளவு: 20"), "பொழி-204 வரி 3");
    EXPECT_EQ(textFault("உரைபாணி \"அ\""), "பொழி-203 வரி 3");
}

TEST(ButtonStyle, KeepsItsWordsAsStyleProperties) {
    EXPECT_EQ(buttonTree("பொ_பாணி(பொபின்னணி: \"அ\", எழுத்து_நிறம்: 1 வளைவு: 2, நிழல்: 3, அகலம்: 4, உயரம்: 5)"),
              button(" (\"style_அகலம்\" (Number 4)) (\"style_உயரம்\" (Number 5)) (\"style_எழுத்து_நிறம்\" (Number 1)) "
                     "(\"style_நிழல்\" (Number 3)) (\"style_பின்னணி\" (String \"அ\")) (\"style_வளைவு\" (Number 2))"));
    for (const std::string key : {"மேம்படுத்தப்பட்ட_நிறம்", "கரை_நிறம்", "கரை_அளவு"}) {
        EXPECT_EQ(buttonTree("பொ_பாணி(" + key + ": 1)"), button(" (\"style_" + key + "\" (Number 1))")) << key;
    }
    EXPECT_EQ(buttonTree("பொ_பாணி(அளவு: 1, நிறம்: 2 \"அகலம்\" அ: 3)"), button(""));
}

TEST(ButtonStyle, ReportsItsFaults) {
    EXPECT_EQ(textFault("பொ_பாணி: 1"), "பொழி-203 வரி 3");
    EXPECT_EQ(textFault("பொ_பாணி(\nஅகலம் 1)"), "பொழி-202 வரி 4");
    EXPECT_EQ(fault("உரை(\nபொ_பாணி(\nஅகலம்: 1"), "பொழி-204 வரி 3");
}

TEST(SearchStyle, KeepsItsWordsAsStyleProperties) {
    for (const std::string key : {"அ", "அகலம்", "உயரம்", "களப்பின்னணி", "எழுத்தளவு", "வளைவு"}) {
        EXPECT_EQ(tree("தேடல்_பட்டை(தேடல்_பாணி(" + key + ": 1))"),
                  "(Widget தேடல்_பட்டை (\"style_" + key + "\" (Number 1)))");
    }
    EXPECT_EQ(tree("தேடுபொறி(தேடல்_பாணி(நிழல்: 1, பின்னணி: 2, அகலம் 3))"), "(Widget தேடுபொறி)");
    EXPECT_EQ(textFault("தேடல்_பாணி: 1"), "பொழி-203 வரி 3");
    EXPECT_EQ(fault("உரை(\nதேடல்_பாணி(\nஅகலம்: 1"), "பொழி-204 வரி 3");
}

TEST(AlertStyle, KeepsItsWordsInAnyWidget) {
    for (const std::string key : {"அ", "அகலம்", "உயரம்", "பின்னணி", "நிறம்", "வளைவு", "நிழல்"}) {
        EXPECT_EQ(buttonTree("எச்சரிக்கை_பாணி(" + key + ": 1)"), button(" (\"style_" + key + "\" (Number 1))"));
    }
    EXPECT_EQ(buttonTree("எச்சரிக்கை_பாணி(களப்பின்னணி: 1, எழுத்தளவு: 2)"), button(""));
}

TEST(PressHandler, IsAValue) {
    EXPECT_EQ(buttonTree("அழுத்தினால்(அ())"), button(" (\"அழுத்தினால்\" (Call அ))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்: () => அ()"), button(" (\"அழுத்தினால்\" (Lambda () (Call அ)))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்(\n    அ = 1\n)"), button(" (\"அழுத்தினால்\" (Assignment அ = (Number 1)))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்(செல்க(\"அ\"))"), button(" (\"அழுத்தினால்\" (Call செல்க (String \"அ\")))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: \"அ\")"),
              button(" (\"அழுத்தினால்\" (WidgetValue (SnackBar அறிவிப்பு_பட்டை (\"செய்தி\" (String \"அ\")))))"));
}

TEST(PressHandler, IsStatementsWhereAKeywordBeginsThem) {
    EXPECT_EQ(buttonTree("அழுத்தினால்(அச்சிடு(\"அ\"))"), button(" (Event (Print (String \"அ\")))"));
    EXPECT_EQ(
        buttonTree("அழுத்தினால்(\n    எனில் அ:\n        விடு\n    அ = 1\n    ஆ()\n)"),
        button(" (Event (If அ (Block (Pass)) null) (Expression (Assignment அ = (Number 1))) (Expression (Call ஆ)))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்(விடு அச்சிடு(1)), அழுத்தினால்(விடு)"),
              button(" (Event (Pass) (Print (Number 1)) (Pass))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்(வகை அ:\n    ஆ\nவிடு)"), button(" (Event (Pass))"));
    EXPECT_EQ(buttonTree("அழுத்தினால்(நிகழ்நேர.தரவுஅழி(\"அ\") நிகழ்நேர.தரவுபடி(\"ஆ\") { விடு })"),
              button(" (Event (Expression (RTDBDelete (String \"அ\"))) (RTDBRead (String \"ஆ\") (Pass)))"));
    EXPECT_EQ(
        buttonTree("அழுத்தினால்(நிகழ்நேர.தரவுசேர்(\"அ\") {} நிகழ்நேர.தரவுமாற்று(\"ஆ\") {})"),
        button(
            " (Event (Expression (RTDBInsert (String \"அ\") (Map))) (Expression (RTDBUpdate (String \"ஆ\") (Map))))"));
}

TEST(PressHandler, ReportsItsFaults) {
    EXPECT_EQ(textFault("அழுத்தினால் அ()"), "பொழி-202 வரி 3");
    EXPECT_EQ(textFault("அழுத்தினால்(\nஅ() ஆ())"), "பொழி-204 வரி 4");
    EXPECT_EQ(fault("உரை(\nஅழுத்தினால்(\nவிடு"), "பொழி-204 வரி 3");
    EXPECT_EQ(textFault("அழுத்தினால்(\nவிடு, விடு)"), "பொழி-201 வரி 4");
    EXPECT_EQ(textFault("அழுத்தினால்(\nபுதுப்பி())"), "பொழி-201 வரி 4");
    EXPECT_EQ(textFault("அழுத்தினால்()"), "பொழி-201 வரி 3");
}

TEST(WidgetAsValue, NeedsItsBracket) {
    EXPECT_EQ(valueTree("உரை"), "உரை");
    EXPECT_EQ(valueTree("உரை(\"அ\")"), "(WidgetValue (Widget உரை (\"உரை\" (String \"அ\"))))");
    EXPECT_EQ(tree("அ = பொத்தான்()"), "(Expression (Assignment அ = (WidgetValue (Widget பொத்தான்))))");
    EXPECT_EQ(tree("அ = உரை\n\n(\"ஆ\")"),
              "(Expression (Assignment அ = (WidgetValue (Widget உரை (\"உரை\" (String \"ஆ\"))))))");
    for (const std::string word : {"தலைமை", "குமரி", "பாணி", "அழுத்தினால்", "அகலம்", "உயரம்"}) {
        EXPECT_EQ(valueTree(word), word);
        EXPECT_EQ(valueTree(word + "(1)"), "(WidgetValue (Widget " + word + " (\"உரை\" (Number 1))))");
    }
}

TEST(WidgetAsValue, AWordThatArrivesAsANameIsCalled) {
    EXPECT_EQ(valueTree("மடிப்பு(1)"), "(Call மடிப்பு (Number 1))");
    EXPECT_EQ(valueTree("வெற்றிடம்"), "வெற்றிடம்");
    EXPECT_EQ(valueTree("பக்கம்(1)"), "(Call பக்கம் (Number 1))");
    EXPECT_EQ(valueTree("அ.உரை(1)"), "(Call (Get அ உரை) (Number 1))");
}

TEST(WidgetAsStatement, StandsForItself) {
    EXPECT_EQ(tree("செயல் அ():\n    உரை(\"ஆ\")\n    விடு\n"),
              "(FunctionDefinition அ () (Block (Widget உரை (\"உரை\" (String \"ஆ\"))) (Pass)))");
}

} // namespace
