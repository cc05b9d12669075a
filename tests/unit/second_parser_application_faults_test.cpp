/// What is written wrong in web applications of the second edition: the number, the place, the nearest word, the message;
/// and what comes of texts that are cut, torn or nested too deep.

#include "front_end/second_edition.h"
#include "report/catalogue.h"
#include "support/second_source.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

std::string application(const std::string& widget, const std::string& statements = "") {
    return "வலைதளம் ஏடு(\n    தலைமை()\n    குமரி(" + widget + ")\n    வரையறை(" + statements + ")\n)\n";
}

/// The faults of a widget as the root of an application's interface, which stands on line 3.
std::vector<std::string> widgetFaults(const std::string& widget) {
    return secondFaults(application(widget));
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int count = 0; count < times; ++count) {
        result += text;
    }
    return result;
}

TEST(Sections, AreAllThereOnce) {
    EXPECT_THAT(secondFaults("வலைதளம் ()\n"), ElementsAre("624 1 'வலைதளம்'"));
    EXPECT_THAT(secondFaults("வலைதளம் ஏடு(தலைமை() குமரி(உரை(\"அ\")))\nf()\n"), ElementsAre("624 1 'வலைதளம்'"));
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\"))\n வரையறை()\n வரையறை()\n)\n"),
                ElementsAre("625 5 'வரையறை'"));
    EXPECT_THAT(secondFaults("வலைதளம் (தலைமை() குமரி() வரையறை())\n"), ElementsAre("628 1 '('")) << "without a widget";
    EXPECT_THAT(secondFaults("வலைதளம் (தலைமை() குமரி(உரை(\"அ\"), உரை(\"ஆ\")) வரையறை())\n"), ElementsAre("639 1 'உரை'"))
        << "with more than one";
}

TEST(Sections, AreToldFromWhatIsNone) {
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\"))\n வரையரை()\n)\n"),
                ElementsAre("624 1 'வலைதளம்'", "626 4 'வரையரை' → 'வரையரை' என்பது 'வரையறை' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\"))\n உரை(\"அ\")\n வரையறை()\n)\n"),
                ElementsAre("626 4 'உரை'"));
    EXPECT_THAT(secondFaults("வலைதளம் (\n பெயர்: \"அ\",\n தலைமை()\n குமரி(உரை(\"அ\"))\n வரையறை()\n)\n"),
                ElementsAre("626 2 'பெயர்'"));
}

TEST(Widgets, MustBeKnown) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(உறை(\"அ\"), பொத்தன்())"),
                ElementsAre("627 3 'உறை' → 'உறை' என்பது 'உரை' என்று இருக்க வேண்டுமோ?",
                            "627 3 'பொத்தன்' → 'பொத்தன்' என்பது 'பொத்தான்' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(widgetFaults("உள்_இவே(அளவு: 2)(உரை(\"அ\"))"),
                ElementsAre("627 3 'உள்_இவே' → 'உள்_இவே' என்பது 'உள்_இவெ' என்று இருக்க வேண்டுமோ?"))
        << "the misspelling that draws nothing";
    EXPECT_THAT(widgetFaults("நெடுவரிசை(பெயர், \"அ\", 5, f, (அ))"),
                ElementsAre("628 3 'பெயர்'", "628 3 '\"அ\"'", "628 3 '5'", "628 3 'f'", "628 3 '('"));
    EXPECT_THAT(widgetFaults("பட்டியல்_உருப்படி(தலைப்பு: \"அ\")"), ElementsAre("628 3 '\"அ\"'"));
}

TEST(Properties, MustBeOfTheWidget) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(இடைவேளி: 8)(உரை(\"அ\", உரைபாணி(நிரம்: \"பச்சை\")))"),
                ElementsAre("629 3 'இடைவேளி' → 'இடைவேளி' என்பது 'இடைவெளி' என்று இருக்க வேண்டுமோ?",
                            "629 3 'நிரம்' → 'நிரம்' என்பது 'நிறம்' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", நிறம்: \"பச்சை\")"), ElementsAre(HasSubstr("629 3 'நிறம்'")))
        << "one of its style's";
    EXPECT_THAT(secondFaults("வலைதளம் (தலைமை(இணையத்_தலைப்பு: \"அ\") குமரி(உரை(\"அ\")) வரையறை())\n"),
                ElementsAre("629 1 'இணையத்_தலைப்பு' → 'இணையத்_தலைப்பு' என்பது 'இணைய_தலைப்பு' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(widgetFaults("படம்(பாதை: \"a.png\", பாதை: \"b.png\")"), ElementsAre("630 3 'பாதை'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", உரை: \"ஆ\")"), ElementsAre("630 3 'உரை'"));
    EXPECT_THAT(widgetFaults("பொத்தான்(அழுத்தினால்: f, அழுத்தினால்(g()))"), ElementsAre("630 3 'அழுத்தினால்'"));
    EXPECT_THAT(widgetFaults("பொத்தான்(பொ_பாணி(வளைவு: 1, வளைவு: 2))"), ElementsAre("630 3 'வளைவு'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", \"ஆ\")"), ElementsAre("628 3 '\"ஆ\"'")) << "a second text without a name";
    EXPECT_THAT(widgetFaults("பொத்தான்(பொ_பாணி(\"அ\"))"), ElementsAre(HasSubstr("527 3 '\"அ\"'")));
}

TEST(Values, MustBeOfTheKind) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(இடைவெளி: \"8\", உருளும்பட்டை: 1)()"), ElementsAre("631 3 '\"8\"'", "631 3 '1'"));
    EXPECT_THAT(widgetFaults("பெட்டி(நகர்வு_X: கழி 2, நிழல்: (3), அகலம்: அ கூட்டு 1)"), IsEmpty());
    EXPECT_THAT(widgetFaults("பெட்டி(அகலம்: அ எனில் \"1\" இல்லைஎனில் 2)"), ElementsAre("631 3 '\"1\"'")) << "in a choice";
    EXPECT_THAT(widgetFaults("பொத்தான்(அழுத்தினால்: \"f\")"), ElementsAre("631 3 '\"f\"'"));
    EXPECT_THAT(widgetFaults("கீழ்வரி(பட்டியல்: \"அ\")"), ElementsAre("631 3 '\"அ\"'"));
    EXPECT_THAT(widgetFaults("படம்(பாதை: பெயர்)"), ElementsAre("632 3 'பெயர்'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", காட்சி_பெயர்: பெயர்)"), ElementsAre("632 3 'பெயர்'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", உரைபாணி(அளவு: பெயர்))"), ElementsAre("632 3 'பெயர்'"));
}

TEST(Values, ThatThePageIsBuiltWithMustBeWritten) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(இடைவெளி: அ)()"), ElementsAre("632 3 'அ'"));
    EXPECT_THAT(widgetFaults("நெடுவரிசை(இடைவெளி: 1.5)()"), ElementsAre("632 3 '1.5'")) << "no whole number";
    EXPECT_THAT(widgetFaults("நெடுவரிசை(இடைவெளி: கழி 1, அகலம்: 10%)()"), ElementsAre("632 3 'கழி 1'", "637 3 '10%'"));
    EXPECT_THAT(widgetFaults("பெட்டி(வளைவு: அ எனில் 1 இல்லைஎனில் 2)"), ElementsAre(HasSubstr("632 3 ")));
    EXPECT_THAT(widgetFaults("பெட்டி(வளைவு: 1.5, நிழல்: (3))"), IsEmpty());
    EXPECT_THAT(secondFaults("வலைதளம் (தலைமை(பக்கம்: அ) குமரி(உரை(\"அ\")) வரையறை())\n"), ElementsAre("632 1 'அ'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", மடி: அ)"), ElementsAre("632 3 'அ'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", மடி: \"மெய்\")"), ElementsAre("631 3 '\"மெய்\"'"));
    EXPECT_THAT(widgetFaults("உரைபெட்டி(குறிப்பு: அ, பலவரி: ஆ)"), ElementsAre("632 3 'அ'", "632 3 'ஆ'"));
    EXPECT_THAT(
        widgetFaults(
            "நெடுவரிசை(அளவி(மதிப்பு: அ), முன்னேற்றவரி(மதிப்பு: அ கூட்டு 1), தத்தல்(தத்தல்_தேர்வு: அ), மாற்றி(ஆரம்ப_நிலை: அ))"),
        IsEmpty())
        << "what a running page works out";
}

TEST(Parts, OfOtherWidgetsAreTold) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(அழுத்தினால்(f()), பொ_பாணி(வளைவு: 1))"),
                ElementsAre("629 3 'அழுத்தினால்'", "629 3 'பொ_பாணி'"));
    EXPECT_THAT(widgetFaults("பொத்தான்(பாணி(வளைவு: 1))"), ElementsAre("629 3 'பாணி'"));
    EXPECT_THAT(widgetFaults("உரை(குறிப்பு(1))"), IsEmpty()) << "the call of a function in a text";
}

TEST(Words, MustBeThoseOfTheHeader) {
    const auto faults = [](const std::string& value) {
        return secondFaults("வலைதளம் (தலைமை(எழுத்தளவு: " + value + ") குமரி(உரை(\"அ\")) வரையறை())\n");
    };
    EXPECT_THAT(faults("\"நிலையான\""), IsEmpty());
    EXPECT_THAT(faults("\"மாறும்\""), IsEmpty());
    EXPECT_THAT(faults("\"நிலயான\""), ElementsAre("635 1 '\"நிலயான\"' → 'நிலயான' என்பது 'நிலையான' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(faults("16"), ElementsAre("631 1 '16'"));
}

TEST(Words, MustBeThoseOfTheProperty) {
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: \"பச்ச\")"),
                ElementsAre("633 3 '\"பச்ச\"' → 'பச்ச' என்பது 'பச்சை' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: \"#FFF\")"), ElementsAre("633 3 '\"#FFF\"'")) << "there is no short form";
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: \"#12345G\")"), ElementsAre("633 3 '\"#12345G\"'"));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: \"\")"), ElementsAre("633 3 '\"\"'"));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: நிறம்.பச்ச)"), ElementsAre(HasSubstr("633 3 'நிறம்.பச்ச' → ")));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: 5)"), ElementsAre("631 3 '5'"));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: f())"), ElementsAre("632 3 'f()'"));
    EXPECT_THAT(widgetFaults("பெட்டி(பின்னணி: அ எனில் \"பச்சை\" இல்லைஎனில் \"நீலம்\")"), ElementsAre(HasSubstr("632 3 ")));
    EXPECT_THAT(widgetFaults("பெட்டி(சீரமைப்பு: மய்யம்)"),
                ElementsAre("634 3 'மய்யம்' → 'மய்யம்' என்பது 'மையம்' என்று இருக்க வேண்டுமோ?"));
    EXPECT_THAT(widgetFaults("பெட்டி(சீரமைப்பு: \"மையம்\")"), ElementsAre("631 3 '\"மையம்\"'"));
    EXPECT_THAT(widgetFaults("உரை(\"அ\", உரைபாணி(தடிமன்: \"தடித்த\", சீரமைப்பு: மேலே))"),
                ElementsAre("635 3 '\"தடித்த\"'", "635 3 'மேலே'"));
}

TEST(Animations, AreOfKnownWords) {
    EXPECT_THAT(
        widgetFaults(
            "பெட்டி(அசைவூட்டம்(நிலைமை: \"hovr\", காலம்: அ, வகை: \"துள்ளள்\", நேரம்: 1, இலக்கு(அகலம்: \"2\", மங்குநழுவு: 1)))"),
        ElementsAre(HasSubstr("635 3 '\"hovr\"' → "), "632 3 'அ'", HasSubstr("635 3 '\"துள்ளள்\"' → "),
                    HasSubstr("629 3 'நேரம்'"), "631 3 '\"2\"'", HasSubstr("629 3 'மங்குநழுவு'")));
    EXPECT_THAT(widgetFaults("பெட்டி(அசைவூட்டம்(வகை: 5))"), ElementsAre("632 3 '5'"));
    EXPECT_THAT(widgetFaults("நெடுவரிசை(அசைவூட்டம்(காலம்: 1))()"), ElementsAre("636 3 'அசைவூட்டம்'"));
}

TEST(Children, StandWhereTheyCan) {
    EXPECT_THAT(widgetFaults("பொத்தான்(பெட்டி())"), ElementsAre("636 3 'பெட்டி'"));
    EXPECT_THAT(widgetFaults("பெட்டி(அட்டை_பாணி(வளைவு: 1))"), ElementsAre("636 3 'அட்டை_பாணி'"));
    EXPECT_THAT(widgetFaults("நெடுவரிசை(பெட்டி_பாணி(வளைவு: 1))"), ElementsAre("636 3 'பெட்டி_பாணி'"));
    EXPECT_THAT(widgetFaults("நெடுவரிசை(தத்தல்_உருப்படி(\"அ\"))"), ElementsAre("636 3 'தத்தல்_உருப்படி'"));
    EXPECT_THAT(widgetFaults("தத்தல்(உரை(\"அ\"))"), ElementsAre("636 3 'உரை'"));
    EXPECT_THAT(widgetFaults("உள்_இவெ(அளவு: 1)(உரை(\"அ\"), உரை(\"ஆ\"))"), ElementsAre("636 3 'உரை'"));
    EXPECT_THAT(widgetFaults("படம்(பாதை: \"a.png\")(உரை(\"அ\"))"), ElementsAre("636 3 'உரை'"));
}

TEST(Percentages, AreSizes) {
    EXPECT_THAT(widgetFaults("நெடுவரிசை(முன்னேற்றவரி(மதிப்பு: 65%), உரை(5%), பெட்டி(வளைவு: 5%))"),
                ElementsAre("637 3 '65%'", "637 3 '5%'", "637 3 '5%'"));
}

TEST(Applications, AreGoneThroughToTheirEnd) {
    EXPECT_THAT(
        secondFaults("வலைதளம் (\n தலைமை(அ: 1)\n குமரி(நெடுவரிசை(\n  உறைய(\"அ\"),\n  படம்(பாதை: 5),\n  உரை(1 2),\n  "
                     "பெட்டி(வளைவு: \"1\")))\n வரையறை(\n  அ = 1 1\n  செயல் f():\n   ஆ = 2 2\n )\n)\nஇ = 3 3\n"),
        ElementsAre("629 2 'அ'", HasSubstr("627 4 'உறைய'"), "631 5 '5'", "628 6 '2'", "631 7 '\"1\"'", "530 9 '1'",
                    "530 11 '2'", "530 14 '3'"));
    EXPECT_THAT(secondFaults(application("நெடுவரிசை(உரை(\"அ\" @),\n உறை(\"அ\"))")),
                ElementsAre("505 3 '@'", HasSubstr("627 4 'உறை'")))
        << "a fault of the scanner hides none of the next item";
}

TEST(Brackets, LeftOpenAreFoundAtTheNextSection) {
    EXPECT_THAT(
        secondFaults(
            "வலைதளம் (\n தலைமை()\n குமரி(\n  நெடுவரிசை(\n   உரை(\"அ\"\n  )\n )\n வரையறை(\n  அ = 1\n )\n)\nஇ = 3 3\n"),
        ElementsAre("525 3 '('", "530 12 '3'"));
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை(பக்கம்: \"அ\"\n குமரி(உரை(\"அ\"))\n வரையறை()\n)\n"),
                ElementsAre("525 2 '('"));
    EXPECT_THAT(
        secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\"))\n வரையறை(\n  அ = [1,\n  செயல் f():\n   திரும்பு 1\n )\n)\n"),
        ElementsAre("525 5 '['"));
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\"))\n வரையறை(\n  அ = 1\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("வலைதளம் (\n தலைமை()\n குமரி(உரை(\"அ\")))\n வரையறை()\n)\n"), SizeIs(testing::Le(3U)));
}

TEST(Faults, AtTheEndOfATextStandInIt) {
    const std::string text = "வலைதளம் (\n தலைமை()\n குமரி(\n  உரை(\"அ\")\n பெட்டி(அகலம்: வரையறை(\n  அ = 1\n )\n)\n";
    const SecondProgram program = parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
    ASSERT_FALSE(program.faults.empty());
    for (const SecondFault& fault : program.faults) {
        EXPECT_LE(fault.place.range.end, text.size()) << fault.number;
    }
}

TEST(Nesting, OfWidgetsHasALimit) {
    const auto nested = [](int depth) {
        return application(repeated("நெடுவரிசை(", depth) + "உரை(\"அ\")" + repeated(")", depth));
    };
    EXPECT_THAT(secondFaults(nested(1000)), IsEmpty());
    EXPECT_THAT(secondFaults(nested(20000)), ElementsAre(HasSubstr("547 ")));
    EXPECT_THAT(secondFaults(application("நெடுவரிசை(" + repeated("உரை(\"அ\")\n", 20000) + ")")), IsEmpty())
        << "side by side";
    EXPECT_THAT(secondFaults(application(repeated("பட்டியல்_உருப்படி(தலைப்பு: ", 20000))), SizeIs(testing::Ge(1U)));
}

TEST(Texts, ThatAreCutAnywhereAreFollowedToTheirEnd) {
    const std::string whole =
        application("நெடுவரிசை(சீரமைப்பு: மையம்)(பொத்தான்(பொ_பாணி(அகலம்: 50%), அழுத்தினால்(\n  எனில் அ:\n   f()\n )),"
                    "ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஆ)(உரை(ஆ, அசைவூட்டம்(இலக்கு(மதிப்பு: 1)))))",
                    "\n  நிகழ்நேர.தரவுபடி(\"அ\") {\n   ஆ = 1\n  }\n");
    ASSERT_THAT(secondFaults(whole), IsEmpty());
    for (std::size_t end = 0; end < whole.size(); ++end) {
        secondFaults(whole.substr(0, end));
        secondFaults(whole.substr(0, end) + whole.substr(std::min(end + 7, whole.size())));
    }
}

TEST(Messages, AreInTheCatalogue) {
    for (int number = 624; number <= 639; ++number) {
        const report::Entry* entry = report::findEntry(number);
        ASSERT_NE(entry, nullptr) << number;
        EXPECT_NE(std::string(entry->message), "");
        EXPECT_NE(std::string(entry->remedy), "");
    }
}

struct Said {
    int number;
    std::string text;
    std::string message;
};

// clang-format off
const Said SAID[] = {
    {624, "வலைதளம் (குமரி(உரை(\"அ\")))\n", "இந்த வலைச் செயலியில் இல்லாத பகுதி: 'தலைமை', 'வரையறை'."},
    {625, "வலைதளம் (தலைமை() தலைமை() குமரி(உரை(\"அ\")) வரையறை())\n", "'தலைமை' பகுதி இரண்டாம் முறை வந்துள்ளது."},
    {626, "வலைதளம் (தலைமை() குமரி(உரை(\"அ\")) வரையறை() 5)\n", "வலைச் செயலியின் பகுதி இங்கே வேண்டும்; ஆனால் இருப்பது '5'."},
    {627, application("உறை(\"அ\")"), "'உறை' என்று ஒரு விட்ஜெட் இல்லை."},
    {628, application("\"அ\""), "இங்கே ஒரு விட்ஜெட் வேண்டும்; ஆனால் இருப்பது '\"அ\"'."},
    {629, application("உரை(\"அ\", நேரம்: 1)"), "'உரை' என்பதற்கு 'நேரம்' என்ற பண்பு இல்லை."},
    {630, application("பெட்டி(வளைவு: 1, வளைவு: 2)"), "'வளைவு' என்ற பண்பு இரண்டாம் முறை வந்துள்ளது."},
    {631, application("பெட்டி(வளைவு: \"1\")"), "'வளைவு' என்ற பண்புக்கு வேண்டியது எண்; ஆனால் இருப்பது உரை."},
    {632, application("படம்(பாதை: அ)"), "'பாதை' என்ற பண்புக்கு வேண்டியது, நேரடியாக எழுதிய கோப்பின் பெயர்."},
    {633, application("பெட்டி(பின்னணி: \"பழம்\")"), "'பழம்' என்று ஒரு நிறம் இல்லை."},
    {634, application("பெட்டி(சீரமைப்பு: இங்கே)"), "'இங்கே' என்று ஒரு சீரமைப்பு இல்லை."},
    {635, application("உரைபெட்டி(வகை: \"அ\")"), "'வகை' என்பதற்கு 'அ' என்ற மதிப்பு இல்லை."},
    {636, application("பொத்தான்(பெட்டி())"), "'பொத்தான்' என்பதற்குள் 'பெட்டி' நிற்க முடியாது."},
    {637, application("உரை(5%)"), "விழுக்காடு (5%) இங்கே வர முடியாது."},
    {639, application("உரை(\"அ\") உரை(\"ஆ\")"), "'குமரி'-க்குள் ஒரே ஒரு விட்ஜெட்தான் நிற்கலாம்; இது இரண்டாவது."},
    {638, application("நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: அ)())"), "'ஒவ்வொன்றும்' என்பதற்கு 'உருப்படி' என்ற பண்பு கட்டாயம் வேண்டும்; அது இல்லை."},
};
// clang-format on

TEST(Messages, NameWhatIsMissingAndWhatIsThere) {
    for (const Said& said : SAID) {
        const SecondProgram program = parseSecondEdition(makeSource("நிரல்.பொழில்", said.text), {});
        ASSERT_FALSE(program.faults.empty()) << said.text;
        EXPECT_EQ(program.faults.front().number, said.number) << said.text;
        EXPECT_EQ(faultText(program.faults.front()).message, said.message) << said.text;
    }
}

} // namespace
