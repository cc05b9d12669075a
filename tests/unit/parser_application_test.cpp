#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string emptyApp = "தலைமை() குமரி() வரையறை()";

/// The tree of an application without a name, with these items besides the three sections.
std::string appTree(const std::string& items) {
    return tree("வலைதளம் (" + emptyApp + items + ")");
}

std::string headerTree(const std::string& items) {
    return tree("வலைதளம் (தலைமை(" + items + ") குமரி() வரையறை())");
}

std::string header(const std::string& properties) {
    return "(WebApp MyApp null (Header தலைமை" + properties + ") null (LogicBlock (Block)))";
}

std::string headerFault(const std::string& items) {
    return fault("\nவலைதளம் (தலைமை(" + items + ") குமரி() வரையறை())");
}

std::string definitionTree(const std::string& statements) {
    return tree("வலைதளம் (தலைமை() குமரி() வரையறை(" + statements + "))");
}

std::string definition(const std::string& statements) {
    return "(WebApp MyApp null (Header தலைமை) null (LogicBlock (Block" + statements + ")))";
}

TEST(WebApp, HoldsItsThreeSections) {
    EXPECT_EQ(tree("வலைதளம் (" + emptyApp + ")"), "(WebApp MyApp null (Header தலைமை) null (LogicBlock (Block)))");
    EXPECT_EQ(tree("வலைதளம் கடை(" + emptyApp + ")"), "(WebApp கடை null (Header தலைமை) null (LogicBlock (Block)))");
    EXPECT_EQ(tree("வலைதளம் (வரையறை() குமரி() தலைமை())"), appTree(""));
    EXPECT_EQ(tree("வலைதளம் (தலைமை(), குமரி(), வரையறை(),)"), appTree(""));
}

TEST(WebApp, IsAStatementLikeAnyOther) {
    EXPECT_EQ(tree("விடு\nவலைதளம் அ(" + emptyApp + ")\nவலைதளம் ஆ(" + emptyApp + ")\nவிடு\n"),
              "(Pass) (WebApp அ null (Header தலைமை) null (LogicBlock (Block))) "
              "(WebApp ஆ null (Header தலைமை) null (LogicBlock (Block))) (Pass)");
}

TEST(WebApp, MayBeLaidOutFreely) {
    EXPECT_EQ(tree("வலைதளம் கடை (\n"
                   "    தலைமை (\n"
                   "        பக்கம்: \"அ\"\n"
                   "    )\n"
                   "    குமரி (\n"
                   "        உரை(\"ஆ\")\n"
                   "    )\n"
                   "    வரையறை (\n"
                   "        விடு\n"
                   "    )\n"
                   ")\n"),
              "(WebApp கடை null (Header தலைமை (\"பக்கம்\" (String \"அ\"))) (Widget உரை (\"உரை\" (String \"ஆ\"))) "
              "(LogicBlock (Block (Pass))))");
    EXPECT_EQ(tree("வலைதளம் (\n;\n    ;\n\n    தலைமை (\n    )\n    குமரி(\n\n\n    )\n    வரையறை(\n    )\n)\n"),
              appTree(""));
}

TEST(WebApp, KeepsItsProperties) {
    EXPECT_EQ(appTree("அ: 1, பக்கம்: \"ஆ\" தலைப்பு: 1 கூட்டு 2 அ: 3"),
              "(WebApp MyApp null (Header தலைமை) null (LogicBlock (Block)) (\"அ\" (Number 3)) "
              "(\"தலைப்பு\" (Binary (Number 1) கூட்டு (Number 2))) (\"பக்கம்\" (String \"ஆ\")))");
}

TEST(WebApp, PassesOverWhatItDoesNotKnow) {
    EXPECT_EQ(appTree(" 5 \"அ\" பெயர் உயரம்: 3, சுற்று [ ] { } அ"), appTree(""));
}

TEST(WebApp, TheLastOfEqualSectionsCounts) {
    EXPECT_EQ(appTree("தலைமை(அ: 1) தலைமை(அ: 2) குமரி(உரை(\"அ\")) வரையறை(விடு) வரையறை()"),
              "(WebApp MyApp null (Header தலைமை (\"அ\" (Number 2))) (Widget உரை (\"உரை\" (String \"அ\"))) "
              "(LogicBlock (Block)))");
    EXPECT_EQ(appTree("குமரி(உரை(\"அ\")) குமரி()"), appTree(""));
    EXPECT_EQ(appTree("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு()) தரவுத்தளமேலாண்மை()"), appTree("தரவுத்தளமேலாண்மை()"));
}

TEST(WebApp, AsksForEachOfThem) {
    EXPECT_EQ(fault("\nவலைதளம் (குமரி() வரையறை())"), "பொழி-401 வரி 2");
    EXPECT_EQ(fault("\nவலைதளம் (தலைமை() வரையறை())"), "பொழி-401 வரி 2");
    EXPECT_EQ(fault("\nவலைதளம் (தலைமை() குமரி())"), "பொழி-401 வரி 2");
    EXPECT_EQ(fault("\nவலைதளம் (\n)\n"), "பொழி-401 வரி 3");
}

TEST(WebApp, ReportsAMissingBracketWhereItIsMissed) {
    EXPECT_EQ(fault("\nவலைதளம் கடை\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("\nவலைதளம் \"கடை\" ("), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\n" + emptyApp + "\n"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("வலைதளம் (\n" + emptyApp), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\nதலைமை\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\nகுமரி\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\nவரையறை\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\nதரவுத்தளமேலாண்மை\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (\nதரவுத்தளமேலாண்மை(\nபயர்பேசு_அமைப்பு\n"), "பொழி-203 வரி 3");
}

TEST(WebApp, NoLineOfAListStandsFurtherOutThanItsFirst) {
    for (const std::string list : {"வலைதளம் (", "வலைதளம் (தலைமை(", "வலைதளம் (குமரி(", "வலைதளம் (வரையறை(",
                                   "வலைதளம் (தரவுத்தளமேலாண்மை(", "வலைதளம் (தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு("}) {
        EXPECT_EQ(fault("எனில் அ:\n    " + list + "\nவிடு"), "பொழி-204 வரி 2") << list;
    }
}

TEST(WebApp, AnyDepthBehindTheFirstLineWillDo) {
    EXPECT_EQ(tree("வலைதளம் (\n    தலைமை()\n            குமரி()\n              வரையறை()\n)\n"), appTree(""));
}

TEST(Header, KeepsItsProperties) {
    EXPECT_EQ(headerTree("பின்னணி: \"அ\""), header(" (\"பின்னணி\" (String \"அ\"))"));
    EXPECT_EQ(headerTree("பின்னணி: \"#FFEECC\""), header(" (\"பின்னணி\" (Color \"#FFEECC\"))"));
    EXPECT_EQ(headerTree("பின்னணி: நிறம்.சிவப்பு"), header(" (\"பின்னணி\" (Get நிறம் சிவப்பு))"));
    EXPECT_EQ(headerTree("நிறம்: \"அ\""), header(" (\"பின்னணி\" (String \"அ\"))"));
    EXPECT_EQ(headerTree("பெட்டிபின்னணி: \"அ\""), header(" (\"பின்னணி\" (String \"அ\"))"));
    EXPECT_EQ(headerTree("பின்னணிபடம்: \"அ.png\" பின்னணிகாணொளி: \"அ.mp4\""),
              header(" (\"பின்னணிகாணொளி\" (String \"அ.mp4\")) (\"பின்னணிபடம்\" (String \"அ.png\"))"));
    EXPECT_EQ(headerTree("பக்கம்: அ, இணைய_தலைப்பு: \"ஆ\", சின்னம்: \"இ\""),
              header(" (\"இணைய_தலைப்பு\" (String \"ஆ\")) (\"சின்னம்\" (String \"இ\")) (\"பக்கம்\" அ)"));
    EXPECT_EQ(headerTree("ஆரம்ப_பக்கம்: மெய்\n,, எது: 1 கூட்டு 2, எது: 3"),
              header(" (\"ஆரம்ப_பக்கம்\" (Boolean மெய்)) (\"எது\" (Number 3))"));
}

TEST(Header, PassesOverOtherTokens) {
    EXPECT_EQ(headerTree("5 \"அ\" உயரம்: 600, [ ] சுற்று தலைப்பு: \"அ\""), header(""));
}

TEST(Header, ASizeOfTheScreenIsAPropertyLikeAnyOther) {
    EXPECT_EQ(headerTree("சுற்றளவு: அதுவே"), header(" (\"சுற்றளவு\" அதுவே)"));
    EXPECT_EQ(headerTree("\nசுற்றளவு: அகலம்: 800, உயரம்: 600, அ: 1"), header(" (\"அ\" (Number 1)) (\"சுற்றளவு\" அகலம்)"));
    const Program program = parseText("வலைதளம் (தலைமை(சுற்றளவு: அகலம்: 800, உயரம்: 600) குமரி() வரையறை())");
    const auto& app = dynamic_cast<const WebAppNode&>(*program.statements.at(0));
    const ScreenConfig& screen = dynamic_cast<const HeaderNode&>(*app.header).screen;
    EXPECT_TRUE(screen.useDefault);
    EXPECT_EQ(screen.width, 0);
    EXPECT_EQ(screen.height, 0);
}

TEST(Header, AsksForValuesOfTheRightKind) {
    EXPECT_EQ(headerFault("பின்னணி: 5"), "பொழி-362 வரி 2");
    EXPECT_EQ(headerFault("பின்னணி: அ"), "பொழி-362 வரி 2");
    EXPECT_EQ(headerFault("\nபெட்டிபின்னணி: 5\n"), "பொழி-362 வரி 3");
    EXPECT_EQ(headerFault("பின்னணிபடம்: அ"), "பொழி-303 வரி 2");
    EXPECT_EQ(headerFault("\nபின்னணிகாணொளி: 5\n"), "பொழி-303 வரி 3");
    EXPECT_EQ(headerFault("இணைய_தலைப்பு: 5"), "பொழி-402 வரி 2");
    EXPECT_EQ(headerFault("இணைய_தலைப்பு: \"#1\""), "பொழி-402 வரி 2");
    EXPECT_EQ(headerFault("\nசின்னம்: அ\n"), "பொழி-402 வரி 3");
}

TEST(Header, AsksForAColonBehindEachKey) {
    for (const std::string key : {"பின்னணி", "பின்னணிபடம்", "பின்னணிகாணொளி", "பக்கம்", "எது", "சின்னம்"}) {
        EXPECT_EQ(headerFault(key + " \"அ\""), "பொழி-202 வரி 2") << key;
    }
}

TEST(UIBody, HoldsOneWidgetAtMost) {
    EXPECT_EQ(tree("வலைதளம் (தலைமை() குமரி(\n\n    உரை()\n\n) வரையறை())"),
              "(WebApp MyApp null (Header தலைமை) (Widget உரை) (LogicBlock (Block)))");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி(\nஉரை()\nஉரை()\n) வரையறை())"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி(\nஉரை(), உரை()) வரையறை())"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி(\n\"அ\") வரையறை())"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி(\n"), "பொழி-204 வரி 2");
}

TEST(UIBody, ItsClosingBracketStandsNoFurtherInThanItsWidget) {
    const std::string widget = "(WebApp MyApp null (Header தலைமை) (Widget உரை) (LogicBlock (Block)))";
    EXPECT_EQ(tree("வலைதளம் (\n    தலைமை() குமரி(\n        உரை()\n        )\n    வரையறை())"), widget);
    EXPECT_EQ(tree("வலைதளம் (\n    தலைமை() குமரி(\n        உரை()\n    )\n    வரையறை())"), widget);
    EXPECT_EQ(tree("வலைதளம் (\n    தலைமை() குமரி(\n        உரை()\n)\n    வரையறை())"), widget);
    EXPECT_EQ(fault("வலைதளம் (\n    தலைமை() குமரி(\n        உரை()\n            )\n    வரையறை())"), "பொழி-204 வரி 4");
}

TEST(Definition, HoldsStatements) {
    EXPECT_EQ(definitionTree("அ = 1 ஆ = 2"),
              definition(" (Expression (Assignment அ = (Number 1))) (Expression (Assignment ஆ = (Number 2)))"));
    EXPECT_EQ(definitionTree("விடு, விடு\n;விடு"), definition(" (Pass) (Pass) (Pass)"));
    EXPECT_EQ(definitionTree("\n    செயல் அ(ஆ):\n        திரும்பு ஆ\n    எனில் அ:\n        விடு\n"),
              definition(" (FunctionDefinition அ (ஆ) (Block (Return ஆ))) (If அ (Block (Pass)) null)"));
    EXPECT_EQ(definitionTree("\n    கட்டமைப்பு அ:\n        ஆ = 1\n"),
              definition(" (StructDefinition அ (VarDeclaration ஆ (Number 1) 0))"));
}

TEST(Definition, AnEnumerationLeavesAnEmptyEntry) {
    EXPECT_EQ(definitionTree("\n    வகை அ:\n        ஆ\n        இ\n    அச்சிடு(அ.இ)\n"),
              definition(" null (Print (Number 1))"));
}

TEST(Definition, ReportsFaultsOfItsStatements) {
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி() வரையறை(\n5))"), "பொழி-201 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி() வரையறை(\nதிரும்பு 1))"), "பொழி-233 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி() வரையறை(\nஅ 1))"), "பொழி-208 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி() வரையறை(\n, விடு))"), "பொழி-201 வரி 2");
    EXPECT_EQ(fault("வலைதளம் (தலைமை() குமரி() வரையறை(\nவிடு\n"), "பொழி-204 வரி 3");
}

TEST(DatabaseManager, HoldsAConfiguration) {
    EXPECT_EQ(appTree("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(\n    அ: \"ஆ\"\n    இ: 1, ஈ: உ, அ: 2\n))"),
              "(WebApp MyApp (DatabaseManager (FirebaseConfig (\"அ\" (Number 2)) (\"இ\" (Number 1)) (\"ஈ\" உ))) "
              "(Header தலைமை) null (LogicBlock (Block)))");
    EXPECT_EQ(appTree("தரவுத்தளமேலாண்மை(\n5 பயர்பேசு_அமைப்பு(அ: 1)\n, பயர்பேசு_அமைப்பு() அ)"),
              "(WebApp MyApp (DatabaseManager (FirebaseConfig)) (Header தலைமை) null (LogicBlock (Block)))");
    EXPECT_EQ(appTree("தரவுத்தளமேலாண்மை()"),
              "(WebApp MyApp (DatabaseManager null) (Header தலைமை) null (LogicBlock (Block)))");
}

TEST(DatabaseManager, PassesOverWhatIsNoKey) {
    EXPECT_EQ(appTree("தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(5 \"அ\" உயரம்: 1, ஆ: 2))"),
              "(WebApp MyApp (DatabaseManager (FirebaseConfig (\"ஆ\" (Number 2)))) (Header தலைமை) null "
              "(LogicBlock (Block)))");
}

TEST(DatabaseManager, AsksForColonsAndBrackets) {
    const std::string before = "வலைதளம் (" + emptyApp + "தரவுத்தளமேலாண்மை(\n";
    EXPECT_EQ(fault(before + "பயர்பேசு_அமைப்பு(அ 1)))"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault(before + "பயர்பேசு_அமைப்பு(அ: 1"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault(before + "பயர்பேசு_அமைப்பு()"), "பொழி-204 வரி 2");
}

} // namespace
