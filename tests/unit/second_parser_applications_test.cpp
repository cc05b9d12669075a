/// Web applications of the second edition: sections, lines inside of brackets, widgets, styles, handlers, databases.

#include "front_end/second_edition.h"
#include "parser/syntax_tree.h"
#include "support/second_source.h"
#include "support/tree_text.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string application(const std::string& widget, const std::string& statements = "") {
    return "வலைதளம் ஏடு(\n    தலைமை()\n    குமரி(" + widget + ")\n    வரையறை(" + statements + ")\n)\n";
}

SecondProgram parse(const std::string& text) {
    return parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
}

std::string faultsOf(const SecondProgram& program) {
    std::string faults;
    for (const std::string& fault : faultTexts(program.faults)) {
        faults += fault + "\n";
    }
    return faults;
}

/// A part of the application that is the last statement of a source; the faults if there are any.
std::string partOf(const std::string& source, StatementPtr WebAppNode::*part) {
    const SecondProgram program = parse(source);
    if (!program.faults.empty()) {
        return faultsOf(program);
    }
    const auto* app = nodeCast<WebAppNode>(program.files.back().tree.statements.back().get());
    return app == nullptr ? "no application" : treeText((app->*part).get());
}

/// The tree of a widget as the root of an application's interface.
std::string widget(const std::string& text) {
    return partOf(application(text), &WebAppNode::uiBody);
}

/// The tree of what an application defines.
std::string defined(const std::string& statements) {
    return partOf(application("உரை(\"அ\")", statements), &WebAppNode::definition);
}

TEST(Application, HasItsSectionsInAnyOrder) {
    const std::string sections[] = {"தலைமை(பக்கம்: \"முகப்பு\")", "குமரி(உரை(\"அ\"))", "வரையறை(அ = 1)"};
    const std::string expected = "(WebApp ஏடு null (Header தலைமை (\"பக்கம்\" (String \"முகப்பு\"))) "
                                 "(Widget உரை (\"உரை\" (String \"அ\"))) "
                                 "(LogicBlock (Block (Expression (Assign அ = (Number 1))))))";
    EXPECT_EQ(secondTree("வலைதளம் ஏடு(" + sections[0] + sections[1] + sections[2] + ")\n"), expected);
    EXPECT_EQ(secondTree("வலைதளம் ஏடு(\n" + sections[2] + ",\n  " + sections[1] + "\n" + sections[0] + "\n)\n"),
              expected);
    EXPECT_THAT(secondTree("வலைதளம் (" + sections[0] + sections[1] + sections[2] + ")\n"), HasSubstr("(WebApp MyApp "));
}

TEST(Application, StandsBesideOthersAndStatements) {
    const std::string page = application("உரை(\"அ\")", "\n        அ = 1\n    ");
    EXPECT_THAT(secondFaults("செயல் f():\n    திரும்பு 1\n" + page + page + "f()\n"), IsEmpty());
}

TEST(WordsOfApplications, AreNamesWhereNoneCanStand) {
    EXPECT_THAT(secondFaults("வலைதளம் = 1\nகுமரி = 2\nவரையறை = 3\nபெட்டி = 4\nபெட்டி(1)\n"), IsEmpty());
    EXPECT_THAT(secondFaults("எனில் அ:\n    வலைதளம் (1)\nவரையறை(\n  1,\n  2\n)\nஅழுத்தினால்(\n  1\n)\n"), IsEmpty());
    EXPECT_EQ(
        defined("\n  குமரி = வரையறை(\n    1\n  )\n  பெட்டி(1)\n  உரை = \"அ\"\n"),
        "(LogicBlock (Block (Expression (Assign குமரி = (Call வரையறை (Number 1)))) (Expression (Call பெட்டி (Number 1))) "
        "(Expression (Assign உரை = (String \"அ\")))))");
    EXPECT_EQ(secondTree("நிகழ்நேர.தரவுபடி(\"அ\")\n"), "(Expression (Call (Get நிகழ்நேர தரவுபடி) (String \"அ\")))");
}

TEST(Definition, HasLinesAndBlocksOfItsOwn) {
    const std::string expected =
        "(LogicBlock (Block (Expression (Assign அ = (Number 1))) "
        "(FunctionDefinition f () (Block (If அ (Block (Return (Number 2))) null) (Return (Number 3)))) "
        "(Expression (Call f))))";
    EXPECT_EQ(defined("\n        அ = 1\n        செயல் f():\n            எனில் அ:\n                திரும்பு 2\n"
                      "            திரும்பு 3\n        f()\n    "),
              expected);
    EXPECT_EQ(defined("\nஅ = 1\nசெயல் f():\n  எனில் அ: திரும்பு 2\n  திரும்பு 3\nf()\n"), expected) << "at the edge";
    EXPECT_EQ(defined("அ = 1; செயல் f():\n  எனில் அ: திரும்பு 2\n  திரும்பு 3\nf()"), expected) << "from the bracket on";
    EXPECT_EQ(defined("அ = [1,\n 2]"), "(LogicBlock (Block (Expression (Assign அ = (List (Number 1) (Number 2))))))")
        << "a bracket in it joins lines";
    EXPECT_EQ(defined(""), "(LogicBlock (Block))");
    EXPECT_EQ(defined("\n\n    "), "(LogicBlock (Block))");
}

TEST(Definition, EndsWithItsBracketWhateverIsOpen) {
    EXPECT_EQ(defined("\n  செயல் f():\n    எனில் அ:\n      g()"),
              "(LogicBlock (Block (FunctionDefinition f () (Block (If அ (Block (Expression (Call g))) null)))))");
    EXPECT_THAT(secondFaults(application("உரை(\"அ\")", "\n  செயல் f():\n    அ = 1 1\n  ஆ = 2 2\n")),
                ElementsAre("530 6 '1'", "530 7 '2'"));
}

TEST(Widgets, MayBeLaidOutAsOneLikes) {
    const std::string expected = "(Column நெடுவரிசை (\"இடைவெளி\" (Number 8)) (Widget உரை (\"உரை\" (String \"அ\"))) "
                                 "(Widget உரை (\"உரை\" (String \"ஆ\"))))";
    EXPECT_EQ(widget("நெடுவரிசை(இடைவெளி: 8)(உரை(\"அ\"), உரை(\"ஆ\"))"), expected);
    EXPECT_EQ(widget("\n நெடுவரிசை\n(\n      இடைவெளி\n: 8\n)\n(உரை\n(\"அ\")\n   உரை(\"ஆ\"),\n)\n"), expected);
    EXPECT_EQ(widget("நெடுவரிசை(உரை(\"அ\"), இடைவெளி: 8, உரை(\"ஆ\"))"), expected) << "in one pair of brackets";
}

TEST(Widgets, KeepTheirPropertiesWhereTheyAreLookedFor) {
    EXPECT_EQ(widget("கட்டம்_காட்சி(குறுக்கு_எண்ணிக்கை: 2, அகலம்: 90, உயரம்: 80, இவெ(அகலம்: 3, உயரம்: 4))(இவெ(உயரம்: 5))"),
              "(GridView கட்டம்_காட்சி (\"cols\" (Number 2)) (\"h_gap\" (Number 3)) (\"height\" (Number 80)) "
              "(\"v_gap\" (Number 4)) (\"width\" (Number 90)) (Widget இவெ (\"உயரம்\" (Number 5))))");
    EXPECT_EQ(widget("நெகிழ்வு(பங்கு: 2, உரை(\"அ\"))"),
              "(Flexible நெகிழ்வு flex=2 (Widget உரை (\"உரை\" (String \"அ\"))))");
    EXPECT_EQ(widget("விரிவாக்கம்(பங்கு: 2)"), "(Expanded விரிவாக்கம் (\"flex\" (Number 2)))");
    EXPECT_EQ(widget("கிடைவரிசை(வெற்றிடம், வெற்றிடம்(பங்கு: 3) வெற்றிடம்)"),
              "(Row கிடைவரிசை (Widget வெற்றிடம்) (Widget வெற்றிடம் (\"flex\" (Number 3))) (Widget வெற்றிடம்))");
    EXPECT_EQ(widget("உள்_இவெ(அளவு: 20)(உரை(\"அ\"))"),
              "(Padding உள்_இவெ padding=20 (\"அளவு\" (Number 20)) (Widget உரை (\"உரை\" (String \"அ\"))))");
    EXPECT_EQ(
        widget("பெட்டி(பெட்டிபின்னணி: \"#FFFFFF\", பெட்டி_பாணி(பெட்டிபின்னணி: \"பச்சை\"))"),
        "(Container பெட்டி (\"பின்னணி\" (Color \"#FFFFFF\")) (Widget பெட்டி_பாணி (\"பெட்டிபின்னணி\" (String \"பச்சை\"))))");
}

TEST(Alignments, StandWhereEachWidgetLooksForThem) {
    EXPECT_EQ(widget("நெடுவரிசை(சீரமைப்பு: மையம்)()"), "(Column நெடுவரிசை align=4)");
    EXPECT_EQ(widget("உரை(\"அ\", சீரமைப்பு: சீரமைப்பு.கீழ்_வலது)"), "(Widget உரை align=8 (\"உரை\" (String \"அ\")))");
    EXPECT_EQ(widget("பெட்டி(சீரமைப்பு: மையம்)(வளைவு: 2)"), "(Container பெட்டி align=4 (\"வளைவு\" (Number 2)))");
    EXPECT_EQ(widget("பெட்டி(சீரமைப்பு: மையம்)"), "(Container பெட்டி (\"சீரமைப்பு\" மையம்))");
    EXPECT_EQ(widget("பெட்டி(வளைவு: 2, சீரமைப்பு: மையம்)()"),
              "(Container பெட்டி (\"சீரமைப்பு\" மையம்) (\"வளைவு\" (Number 2)))");
    EXPECT_THAT(widget("எச்சரிக்கை()"), HasSubstr("align=4"));
}

TEST(Colours, AreReadWhereAPropertyTakesThem) {
    EXPECT_EQ(widget("பெட்டி(பின்னணி: \"#1D4ED8CC\")"), "(Container பெட்டி (\"பின்னணி\" (Color \"#1D4ED8CC\")))");
    EXPECT_EQ(widget("பெட்டி(பின்னணி: \"பச்சை\")"), "(Container பெட்டி (\"பின்னணி\" (String \"பச்சை\")))");
    EXPECT_EQ(widget("பெட்டி(பின்னணி: பச்சை)"), "(Container பெட்டி (\"பின்னணி\" (Color பச்சை)))");
    EXPECT_EQ(widget("பெட்டி(பின்னணி: நிறம்.பச்சை)"), "(Container பெட்டி (\"பின்னணி\" (Get நிறம் பச்சை)))");
    EXPECT_EQ(widget("உரை(\"#1D4ED8\")"), "(Widget உரை (\"உரை\" (String \"#1D4ED8\")))") << "a text elsewhere";
}

TEST(Percentages, AreReadWhereAPropertyTakesASize) {
    EXPECT_EQ(widget("பெட்டி(அகலம்: 60%, உயரம்: திரை_அகலம் சிறிது 600 ? ௯௦% : 40)"),
              "(Container பெட்டி (\"அகலம்\" (Percentage 60%)) "
              "(\"உயரம்\" (Ternary (Binary திரை_அகலம் சிறிது (Number 600)) (Percentage 90%) (Number 40))))");
    EXPECT_EQ(widget("பெட்டி(அகலம்: 12.5%\n உயரம்: 3%)"),
              "(Container பெட்டி (\"அகலம்\" (Percentage 12.5%)) (\"உயரம்\" (Percentage 3%)))");
    EXPECT_THAT(widget("பெட்டி(அகலம்: 7%3)"), HasSubstr("506 3 '%'")) << "the remainder of other languages";
    EXPECT_THAT(secondFaults("அ = 7%\n"), ElementsAre("506 1 '%'")) << "outside of widgets";
}

TEST(Styles, BelongToTheWidgetAroundThem) {
    EXPECT_EQ(widget("உரை(\"அ\", உரைபாணி(நிறம்: \"#FF0000\", அளவு: 12.5, தடிமன்: \"தடிமனான\", சீரமைப்பு: மையம், "
                     "அடிக்குறிப்பு: மெய், எழுத்துரு: \"a.ttf\"))"),
              "(Widget உரை (\"உரை\" (String \"அ\")) (Style color=#FF0000 size=12.5 weight=700 align=மையம் font=a.ttf "
              "underline=1))");
    EXPECT_EQ(widget("பொத்தான்(பொ_பாணி(பொபின்னணி: \"பச்சை\", வளைவு: 3))"),
              "(Widget பொத்தான் (\"style_பின்னணி\" (String \"பச்சை\")) (\"style_வளைவு\" (Number 3)))");
    EXPECT_EQ(widget("அட்டை(அட்டை_பாணி(வளைவு: 3, எலிவேஷன்: 2))"),
              "(Widget அட்டை (\"style_எலிவேஷன்\" (Number 2)) (\"style_வளைவு\" (Number 3)))");
    EXPECT_EQ(widget("தத்தல்(உரைபாணி(பின்னணி: \"பச்சை\"))"), "(Widget தத்தல் (\"style_பின்னணி\" (String \"பச்சை\")))");
    const std::string link = "(Widget உரைபொத்தான் (\"style_அளவு\" (Number 9)) (\"உரை\" (String \"அ\")))";
    EXPECT_EQ(widget("உரைபொத்தான்(உரை: \"அ\", பாணி: உரைபொ_பாணி(அளவு: 9))"), link);
    EXPECT_EQ(widget("உரைபொத்தான்(\"அ\", உரைபொ_பாணி(அளவு: 9))"), link);
    EXPECT_EQ(widget("உரைபொத்தான்(உரை(\"அ\"), உரைபொ_பாணி(அளவு: 9))"), link);
}

TEST(Handlers, AreValuesOrStatements) {
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்: () => f())"), "(Widget பொத்தான் (\"அழுத்தினால்\" (Lambda () (Call f))))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்(அ = 1))"), "(Widget பொத்தான் (\"அழுத்தினால்\" (Assign அ = (Number 1))))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்(\n  f\n))"), "(Widget பொத்தான் (\"அழுத்தினால்\" f))");
    EXPECT_EQ(
        widget(
            "பொத்தான்(அழுத்தினால்(\n        எனில் அ:\n            f()\n        இல்லை:\n            g()\n    ), உரை: \"அ\")"),
        "(Widget பொத்தான் (\"அழுத்தினால்\" (Function () (Block (If அ (Block (Expression (Call f))) "
        "(Block (Expression (Call g))))))) (\"உரை\" (String \"அ\")))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்(அ = 1\n ஆ = 2))"),
              "(Widget பொத்தான் (\"அழுத்தினால்\" (Function () (Block (Expression (Assign அ = (Number 1))) "
              "(Expression (Assign ஆ = (Number 2)))))))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்(எனில் அ: f()\n இல்லை: g()))"),
              "(Widget பொத்தான் (\"அழுத்தினால்\" (Function () (Block (If அ (Block (Expression (Call f))) "
              "(Block (Expression (Call g))))))))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்(எனில் அ:\n   f()\n g()))"),
              "(Widget பொத்தான் (\"அழுத்தினால்\" (Function () (Block (If அ (Block (Expression (Call f))) null) "
              "(Expression (Call g))))))");
    EXPECT_EQ(widget("மாற்றி(மாறியதால்(அ = 1; f()))"),
              "(Widget மாற்றி (\"மாறியதால்\" (Function () (Block (Expression (Assign அ = (Number 1))) "
              "(Expression (Call f))))))");
}

TEST(Handlers, MayHoldFunctionsWithBlocks) {
    EXPECT_EQ(widget("பொத்தான்(\n        அழுத்தினால்: வினை():\n            f()\n            g()\n        , உரை: \"அ\")"),
              "(Widget பொத்தான் (\"அழுத்தினால்\" (Function () (Block (Expression (Call f)) (Expression (Call g))))) "
              "(\"உரை\" (String \"அ\")))");
}

TEST(Widgets, StandAsValuesToo) {
    const std::string bar = "(WidgetValue (SnackBar அறிவிப்பு_பட்டை (\"செய்தி\" (String \"அ\"))))";
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்: அறிவிப்பு_பட்டை(செய்தி: \"அ\"))"), "(Widget பொத்தான் (\"அழுத்தினால்\" " + bar + "))");
    EXPECT_EQ(widget("பொத்தான்(அழுத்தினால்: () => அறிவிப்பு_பட்டை(செய்தி: \"அ\"))"),
              "(Widget பொத்தான் (\"அழுத்தினால்\" (Lambda () " + bar + ")))");
    EXPECT_EQ(defined("அ = அறிவிப்பு_பட்டை(செய்தி: \"அ\")"), "(LogicBlock (Block (Expression (Assign அ = " + bar + "))))");
    EXPECT_EQ(defined("செயல் f():\n  அறிவிப்பு_பட்டை(செய்தி: \"அ\")"),
              "(LogicBlock (Block (FunctionDefinition f () (Block (Expression " + bar + ")))))");
    EXPECT_THAT(widget("அறிவிப்பு_பட்டை(செய்தி: உரை(\"அ\"))"), HasSubstr("(SnackBar அறிவிப்பு_பட்டை content (Widget உரை"));
    EXPECT_THAT(secondFaults("அ = பெட்டி(வளைவு: 1)\n"), ElementsAre(HasSubstr("532 "))) << "outside of applications";
}

TEST(Loops, HaveAListAnElementAndChildren) {
    EXPECT_EQ(widget("நெடுவரிசை(ஒவ்வொன்றும்(பட்டியல்: பணிகள், உருப்படி: பணி, சாவி: பணி.எண்)(உரை(பணி.பெயர்), இவெ(உயரம்: 2)))"),
              "(Column நெடுவரிசை (Each ஒவ்வொன்றும் பணி (\"சாவி\" (Get பணி எண்)) (\"பட்டியல்\" பணிகள்) "
              "(Widget உரை (\"உரை\" (Get பணி பெயர்))) (Widget இவெ (\"உயரம்\" (Number 2)))))");
    EXPECT_THAT(widget("கிடைவரிசை(ஒவ்வொன்றும்(பட்டியல்: [1, 2], உருப்படி: அ)(ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஆ)(உரை(ஆ))))"),
                HasSubstr("(Each ஒவ்வொன்றும் ஆ"));
    EXPECT_THAT(widget("பெட்டி(ஒவ்வொன்றும்(பட்டியல்: அ, உருப்படி: ஆ)(உரை(ஆ)))"), HasSubstr("636 3 'ஒவ்வொன்றும்'"));
    EXPECT_EQ(widget("நெடுவரிசை(ஒவ்வொன்றும்()(உரை(\"அ\")))"), "638 3 'ஒவ்வொன்றும்'\n638 3 'ஒவ்வொன்றும்'\n");
}

TEST(NewProperties, AreThoseOfTheirWidgets) {
    EXPECT_THAT(secondFaults(application(
                    "நெடுவரிசை(தெரிய: அ)(உரை(\"அ\", மடி: மெய்), உரைபெட்டி(மதிப்பு: அ, வகை: \"எண்\", உள்ளிட்டால்: f, "
                    "முடக்கு: இல்லை அ, மாறியதால்: (புதியது) => f(புதியது)), கடவுமறை(மதிப்பு: அ.சொல்), "
                    "தேர்வுபெட்டி(மதிப்பு: அ[0]), மாற்றி(மதிப்பு: அ), அளவி(மதிப்பு: அ), கீழ்வரி(மதிப்பு: அ), "
                    "தத்தல்(மதிப்பு: அ), அடிப்பகுதி(மதிப்பு: அ), பொத்தான்(முடக்கு: பொய்))")),
                IsEmpty());
    EXPECT_THAT(widget("உரைபெட்டி(மதிப்பு: \"அ\")"), HasSubstr("631 3 '\"அ\"'"));
    EXPECT_THAT(widget("உரைபெட்டி(மதிப்பு: f())"), HasSubstr("631 3 'f()'"));
    EXPECT_THAT(widget("உரைபெட்டி(வகை: \"மின்னஞல்\")"), HasSubstr("635 3 '\"மின்னஞல்\"' → 'மின்னஞல்' என்பது 'மின்னஞ்சல்'"));
    EXPECT_THAT(widget("படம்(மடி: மெய்)"), HasSubstr("629 3 'மடி'"));
}

TEST(Databases, AreReadAndWritten) {
    EXPECT_EQ(
        defined(
            "\n  செயல் f():\n    நிகழ்நேர.தரவுபடி(\"அ/1\") {\n      எனில் தரவு:\n        ஆ = தரவு[\"அ\"]\n      g()\n    }\n    g()\n"),
        "(LogicBlock (Block (FunctionDefinition f () (Block (RTDBRead (String \"அ/1\") "
        "(If தரவு (Block (Expression (Assign ஆ = (Index தரவு (String \"அ\"))))) null) (Expression (Call g))) "
        "(Expression (Call g))))))");
    EXPECT_EQ(defined("நிகழ்நேர.தரவுசேர்(\"அ\") { பெயர்: ஆ, \"உரை\": 5 }\nநிகழ்நேர.தரவுமாற்று(\"அ\") {\n  நிலை: 1,\n}\n"
                      "நிகழ்நேர.தரவுஅழி(\"அ\")"),
              "(LogicBlock (Block (Expression (RTDBInsert (String \"அ\") (Map (\"பெயர்\" ஆ) (\"உரை\" (Number 5))))) "
              "(Expression (RTDBUpdate (String \"அ\") (Map (\"நிலை\" (Number 1))))) "
              "(Expression (RTDBDelete (String \"அ\")))))");
    EXPECT_EQ(partOf("வலைதளம் (தலைமை() குமரி(உரை(\"அ\")) வரையறை() தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(api_key: \"அ\")))\n",
                     &WebAppNode::databaseManager),
              "(DatabaseManager (FirebaseConfig (\"api_key\" (String \"அ\"))))");
}

TEST(Animations, SayWhenHowLongAndWhat) {
    EXPECT_EQ(widget("பெட்டி(அசைவூட்டம்(நிலைமை: hover, காலம்: 300, வகை: துள்ளல், இலக்கு: (விரிவு: 1.2, கி_நகர்வு: குறை 20, "
                     "பின்னணி: \"#F97316\")))"),
              "(Container பெட்டி (Animation 300 துள்ளல் கி_நகர்வு=-20 விரிவு=1.2 பின்னணி='#F97316' if hover))");
}

/// The text that stands at a node, or at a part of one.
std::string textAt(const SecondProgram& program, const void* part) {
    const auto place = program.places.ofAddress(part);
    return place ? place->source->text.substr(place->range.begin, place->range.end - place->range.begin) : "nowhere";
}

TEST(Places, AreThoseOfWidgetsAndProperties) {
    const SecondProgram program =
        parse(application("நெடுவரிசை(\n உரை(அ கூட்டு 1, அடையாளம்: \"ஆ\"),\n ஒவ்வொன்றும்(பட்டியல்: இ, உருப்படி: ஈ)())"));
    const auto* app = nodeCast<WebAppNode>(program.files.back().tree.statements.back().get());
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(textAt(program, &app->name), "ஏடு");
    const auto* column = dynamic_cast<const WidgetNode*>(app->uiBody.get());
    ASSERT_NE(column, nullptr);
    ASSERT_EQ(column->children.size(), 2U);
    const auto* text = dynamic_cast<const WidgetNode*>(column->children[0].get());
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(textAt(program, static_cast<const Statement*>(text)), "உரை(அ கூட்டு 1, அடையாளம்: \"ஆ\")");
    EXPECT_EQ(text->line, 4);
    const auto value = text->properties.find("உரை");
    EXPECT_EQ(textAt(program, value->second.get()), "அ கூட்டு 1");
    const auto name = text->properties.find("அடையாளம்");
    EXPECT_EQ(textAt(program, &name->first), "அடையாளம்");
    EXPECT_EQ(textAt(program, name->second.get()), "\"ஆ\"");
    const auto* each = nodeCast<EachNode>(column->children[1].get());
    ASSERT_NE(each, nullptr);
    EXPECT_EQ(textAt(program, &each->element), "ஈ");
}

} // namespace
