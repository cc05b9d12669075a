// Boxes, buttons of text, list tiles and messages.

#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string first = "(Widget உரை (\"உரை\" (String \"அ\")))";
const std::string second = "(Widget உரை (\"உரை\" (String \"ஆ\")))";

std::string container(const std::string& parts) {
    return "(Container பெட்டி" + parts + ")";
}

std::string textButton(const std::string& parts) {
    return "(Widget உரைபொத்தான்" + parts + ")";
}

TEST(Container, HoldsPropertiesAndChildren) {
    EXPECT_EQ(widgetTree("பெட்டி()"), container(""));
    EXPECT_EQ(widgetTree("பெட்டி(\n    அகலம்: 50%\n    உரை(\"அ\"), உயரம்: 5 பக்கம்()\n    உரை(\"ஆ\")\n)"),
              container(" (\"அகலம்\" (Percentage 50%)) (\"உயரம்\" (Number 5)) " + first + " (Widget பக்கம்) " + second));
    for (const std::string key : {"அடையாளம்", "style_வளைவு", "அகலம்", "உயரம்", "வளைவு", "நிழல்", "பின்னணி", "பின்னணிபடம்"}) {
        EXPECT_EQ(widgetTree("பெட்டி(" + key + ": 1)"), container(" (\"" + key + "\" (Number 1))")) << key;
    }
    EXPECT_EQ(widgetTree("பெட்டி(பெட்டிபின்னணி: 1)"), container(" (\"பின்னணி\" (Number 1))"));
    EXPECT_EQ(widgetTree("பெட்டி(விகிதம்: 2, அசைவூட்டம்(காலம்: 5))"),
              container(" (\"ratio\" (Number 2)) (Animation 5 linear)"));
    EXPECT_EQ(widgetTree("பெட்டி(5 \"அ\" இ தலைப்பு: 5, அகலம் எச்சரிக்கை_பாணி)"), container(""));
}

TEST(Container, AnAlignmentHasABracketOfItsOwn) {
    EXPECT_EQ(widgetTree("பெட்டி(சீரமைப்பு: மையம்)(அகலம்: 5, உரை(\"அ\"))"),
              container(" align=4 (\"அகலம்\" (Number 5)) " + first));
    EXPECT_EQ(widgetTree("பெட்டி(\n    சீரமைப்பு: மையம்\n)\n(\n    உரை(\"அ\")\n)"), container(" align=4 " + first));
    EXPECT_EQ(widgetTree("பெட்டி(அகலம்: 5, சீரமைப்பு: \"மையம்\")"),
              container(" (\"அகலம்\" (Number 5)) (\"சீரமைப்பு\" (String \"மையம்\"))"));
    EXPECT_EQ(widgetFault("பெட்டி(சீரமைப்பு: மையம்,\nஅகலம்: 5)"), "பொழி-204 வரி 2");
    EXPECT_EQ(widgetFault("பெட்டி(சீரமைப்பு: மையம்)"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("பெட்டி(சீரமைப்பு மையம்)()"), "பொழி-202 வரி 2");
}

TEST(Container, ItsStyleIsAChild) {
    EXPECT_EQ(
        widgetTree("பெட்டி(பெட்டி_பாணி(பெட்டிபின்னணி: \"அ\", வளைவு: 8 நிழல்: 2, பின்னணிபடம்: \"ஆ\", அகலம்: 5))"),
        container(" (Widget பெட்டி_பாணி (\"அகலம்\" (Number 5)) (\"நிழல்\" (Number 2)) (\"பின்னணிபடம்\" (String \"ஆ\")) "
                  "(\"பெட்டிபின்னணி\" (String \"அ\")) (\"வளைவு\" (Number 8)))"));
}

TEST(Container, ItsPressHandlerIsAValue) {
    EXPECT_EQ(widgetTree("பெட்டி(அழுத்தினால்(\n    இ()\n))"), container(" (\"அழுத்தினால்\" (Call இ))"));
    EXPECT_EQ(widgetTree("பெட்டி(அழுத்தினால்: () => இ())"), container(" (\"அழுத்தினால்\" (Lambda () (Call இ)))"));
    EXPECT_EQ(widgetTree("பெட்டி(அழுத்தினால்(அச்சிடு(\"அ\")))"),
              container(" (\"அழுத்தினால்\" (Call அச்சிடு (String \"அ\")))"));
    EXPECT_EQ(widgetFault("பெட்டி(\nஅழுத்தினால் இ())"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("பெட்டி(\nஅழுத்தினால்(இ() இ()))"), "பொழி-204 வரி 3");
}

TEST(Container, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("பெட்டி"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("பெட்டி(\nஉரை\n)"), "பொழி-203 வரி 3");
    EXPECT_EQ(widgetFault("பெட்டி(\nவிகிதம் 2)"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("வலைதளம் (குமரி(\nபெட்டி(\nஅகலம்: 5"), "பொழி-204 வரி 3");
}

TEST(Card, HoldsStyleAndChildren) {
    EXPECT_EQ(
        widgetTree("அட்டை(\n    அட்டை_பாணி(வளைவு: 8, பின்னணி: \"அ\" நிறம்: \"ஆ\", நிழல்: 2 அகலம்: 5, உயரம்: 6, இ: 7 எது)\n"
                   "    சீரமைப்பு: மையம்\n    உரை(\"அ\"), அடையாளம்: \"உ\"\n    பக்கம்()\n)"),
        "(Widget அட்டை align=4 (\"style_அகலம்\" (Number 5)) (\"style_இ\" (Number 7)) (\"style_உயரம்\" (Number 6)) "
        "(\"style_நிறம்\" (String \"ஆ\")) (\"style_நிழல்\" (Number 2)) (\"style_பின்னணி\" (String \"அ\")) "
        "(\"style_வளைவு\" (Number 8)) (\"அடையாளம்\" (String \"உ\")) " +
            first + " (Widget பக்கம்))");
    for (const std::string key : {"அகலம்", "உயரம்", "வளைவு", "நிழல்", "பின்னணி"}) {
        EXPECT_EQ(widgetTree("அட்டை(" + key + ": 1)"), "(Widget அட்டை (\"" + key + "\" (Number 1)))") << key;
    }
    EXPECT_EQ(widgetTree("அட்டை(5 \"அ\" இ, தலைப்பு: 1)"), "(Widget அட்டை)");
}

TEST(Card, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("அட்டை"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("அட்டை(\nஅட்டை_பாணி: 5)"), "பொழி-203 வரி 3");
    EXPECT_EQ(widgetFault("அட்டை(\nசீரமைப்பு மையம்)"), "பொழி-202 வரி 3");
    EXPECT_EQ(fault("வலைதளம் (குமரி(\nஅட்டை(\nஅகலம்: 5"), "பொழி-204 வரி 3");
}

TEST(ListTile, HoldsItsPartsAsValues) {
    EXPECT_EQ(widgetTree("பட்டியல்_உருப்படி(\n    தலைப்பு: உரை(\"அ\")\n    துணைத்_தலைப்பு: உரை(\"ஆ\"), முன்னணி: படம்()\n)"),
              "(Widget பட்டியல்_உருப்படி (\"தலைப்பு\" (WidgetValue " + first + ")) (\"துணைத்_தலைப்பு\" (WidgetValue " +
                  second + ")) (\"முன்னணி\" (WidgetValue (Widget படம்))))");
    for (const std::string key : {"அடையாளம்", "அகலம்", "உயரம்", "வளைவு", "பின்னணி", "சீரமைப்பு"}) {
        EXPECT_EQ(widgetTree("பட்டியல்_உருப்படி(" + key + ": 1)"), "(Widget பட்டியல்_உருப்படி (\"" + key + "\" (Number 1)))")
            << key;
    }
    EXPECT_EQ(widgetTree("பட்டியல்_உருப்படி(5, \"அ\" எழுத்து_நிறம்: 5)"), "(Widget பட்டியல்_உருப்படி)");
}

TEST(ListTile, IsPressedInBothForms) {
    EXPECT_EQ(widgetTree("பட்டியல்_உருப்படி(அழுத்தினால்(இ()))"), "(Widget பட்டியல்_உருப்படி (\"அழுத்தினால்\" (Call இ)))");
    EXPECT_EQ(widgetTree("பட்டியல்_உருப்படி(அழுத்தினால்(அச்சிடு(1) விடு))"),
              "(Widget பட்டியல்_உருப்படி (Event (Print (Number 1)) (Pass)))");
    EXPECT_EQ(widgetFault("பட்டியல்_உருப்படி"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (குமரி(\nபட்டியல்_உருப்படி(\nஅகலம்: 5"), "பொழி-204 வரி 3");
}

TEST(TextButton, TakesItsTextInEveryForm) {
    for (const std::string form : {"\"அ\"", "உரை(\"அ\")", "உரை: \"அ\"", "உரை \"அ\"", "உரை(\n    \"அ\"\n)"}) {
        EXPECT_EQ(widgetTree("உரைபொத்தான்(" + form + ")"), textButton(" (\"உரை\" (String \"அ\"))")) << form;
    }
}

TEST(TextButton, HoldsPropertiesStyleAndHandler) {
    EXPECT_EQ(
        widgetTree("உரைபொத்தான்(\n    பாணி: உரைபொ_பாணி(நிறம்: \"அ\", அளவு: 20 மேம்படுத்தப்பட்ட_நிறம்: \"ஆ\", தடிமன்: 2 5)\n"
                   "    அடையாளம்: \"இ\", அழுத்தினால்(ஈ()), அசைவூட்டம்(காலம்: 5)\n)"),
        textButton(" (\"style_அளவு\" (Number 20)) (\"style_தடிமன்\" (Number 2)) (\"style_நிறம்\" (String \"அ\")) "
                   "(\"style_மேம்படுத்தப்பட்ட_நிறம்\" (String \"ஆ\")) (\"அடையாளம்\" (String \"இ\")) "
                   "(\"அழுத்தினால்\" (Call ஈ)) (Animation 5 linear)"));
    EXPECT_EQ(widgetTree("உரைபொத்தான்(அழுத்தினால்: ஈ, பாணி: 5, அகலம்: 6)"), textButton(" (\"அழுத்தினால்\" ஈ)"));
}

TEST(TextButton, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("உரைபொத்தான்"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("உரைபொத்தான்(\nஅழுத்தினால் ஈ())"), "பொழி-202 வரி 3");
    EXPECT_EQ(widgetFault("உரைபொத்தான்(\nபாணி: உரைபொ_பாணி: 5)"), "பொழி-203 வரி 3");
    for (const std::string section : {"வரையறை", "குமரி", "தலைமை"}) {
        EXPECT_EQ(widgetFault("உரைபொத்தான்(\n\"அ\"\n" + section + "("), "பொழி-204 வரி 4") << section;
    }
}

TEST(Alert, HoldsItsPartsInOneListOrTwo) {
    EXPECT_EQ(widgetTree("எச்சரிக்கை()"), "(Widget எச்சரிக்கை align=4)");
    EXPECT_EQ(widgetTree("எச்சரிக்கை(காட்சி_பெயர்: \"இ\", அகலம்: 5 உயரம்: 6, பின்னணி: \"ஈ\", உரை(\"அ\"))"),
              "(Widget எச்சரிக்கை align=4 (\"அகலம்\" (Number 5)) (\"உயரம்\" (Number 6)) (\"காட்சி_பெயர்\" (String \"இ\")) "
              "(\"பின்னணி\" (String \"ஈ\")) " +
                  first + ")");
    EXPECT_EQ(
        widgetTree("எச்சரிக்கை(\n    சீரமைப்பு: மேல்_இடது\n    எச்சரிக்கை_பாணி(அகலம்: 5, பின்னணி: 6 வளைவு: 7, நிழல்: 8)\n)\n"
                   "(\n    உரை(\"அ\")\n    உரை(\"ஆ\")\n)"),
        "(Widget எச்சரிக்கை (\"style_அகலம்\" (Number 5)) (\"style_நிழல்\" (Number 8)) (\"style_பின்னணி\" (Number 6)) "
        "(\"style_வளைவு\" (Number 7)) " +
            first + " " + second + ")");
    EXPECT_EQ(widgetTree("எச்சரிக்கை(5 \"அ\" வளைவு: 5, பக்கம்)"), "(Widget எச்சரிக்கை align=4)");
}

TEST(Alert, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("எச்சரிக்கை"), "பொழி-203 வரி 2");
    EXPECT_EQ(widgetFault("எச்சரிக்கை(\nஎச்சரிக்கை_பாணி: 5)"), "பொழி-203 வரி 3");
    EXPECT_EQ(fault("வலைதளம் (குமரி(\nஎச்சரிக்கை()(\nஅகலம்: 5"), "பொழி-204 வரி 3");
}

TEST(SnackBar, KeepsWhatItNeedsToKnow) {
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை()"), "(SnackBar அறிவிப்பு_பட்டை)");
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை(செய்தி: \"அ\", பின்னணி: \"ஆ\" காலம்: 5000, அசைவூட்டம்(காலம்: 5))"),
              "(SnackBar அறிவிப்பு_பட்டை background=ஆ durationMs=5000 (\"காலம்\" (Number 5000)) "
              "(\"செய்தி\" (String \"அ\")) (\"பின்னணி\" (String \"ஆ\")) (Animation 5 linear))");
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை(பின்னணி: \"#333333\", உரை: \"அ\", இ: 5)"),
              "(SnackBar அறிவிப்பு_பட்டை (\"இ\" (Number 5)) (\"உரை\" (String \"அ\")) (\"பின்னணி\" (Color \"#333333\")))");
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை(செய்தி: உரை(\"அ\"))"), "(SnackBar அறிவிப்பு_பட்டை content " + first + ")");
}

TEST(SnackBar, MayBeLaidOutFreely) {
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை\n(\n    செய்தி\n        :\n            உரை(\"அ\")\n    இ:\n        5\n)"),
              "(SnackBar அறிவிப்பு_பட்டை content (\"இ\" (Number 5)) " + first + ")");
}

TEST(SnackBar, DropsAKeyWithoutAColon) {
    EXPECT_EQ(widgetTree("அறிவிப்பு_பட்டை(செய்தி \"அ\", 5 அகலம்: 6)"), "(SnackBar அறிவிப்பு_பட்டை)");
}

TEST(SnackBar, ReportsItsFaults) {
    EXPECT_EQ(widgetFault("அறிவிப்பு_பட்டை"), "பொழி-203 வரி 2");
    for (const std::string section : {"வரையறை", "குமரி", "தலைமை"}) {
        EXPECT_EQ(widgetFault("அறிவிப்பு_பட்டை(\nசெய்தி: " + section + "()"), "பொழி-204 வரி 3") << section;
    }
    EXPECT_EQ(fault("வலைதளம் (குமரி(\nஅறிவிப்பு_பட்டை(\nஇ: 5"), "பொழி-204 வரி 3");
}

} // namespace
