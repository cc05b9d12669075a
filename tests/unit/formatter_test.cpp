/// The style of the language, construct by construct: what is written anyhow on the left, as it comes out on the right.

#include "base/source_text.h"
#include "formatter/formatter.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;

namespace {

const std::string SECOND = "ஃ பொழில் 2\n";

FormattedSource format(const std::string& text) {
    const MemoryLoader noFiles;
    FrontEndOptions options;
    options.loader = &noFiles;
    return formatSource(makeSource("நிரல்.பொழில்", text), options);
}

/// That the text comes out like this, and then stays.
void expectForm(const std::string& text, const std::string& form) {
    const FormattedSource formatted = format(text);
    EXPECT_EQ(formatted.result, FormatResult::Formatted);
    EXPECT_EQ(formatted.text, form);
    EXPECT_EQ(format(form).text, form);
}

/// The same of a program of the second edition.
void expectSecond(const std::string& text, const std::string& form) {
    expectForm(SECOND + text, SECOND + form);
}

/// The same of programs that mean the same in both editions.
void expectBoth(const std::string& text, const std::string& form) {
    expectForm(text, form);
    expectSecond(text, form);
}

void expectLeft(const std::string& text, FormatResult result) {
    const FormattedSource formatted = format(text);
    EXPECT_EQ(formatted.result, result);
    EXPECT_EQ(formatted.text, text);
}

TEST(Formatter, LeavesSingleBlanksBetweenWords) {
    expectBoth("அ   =   1   கூட்டு   2\n", "அ = 1 கூட்டு 2\n");
    expectBoth("அ=\"க\"இணை\"ங\"\n", "அ = \"க\" இணை \"ங\"\n");
    expectSecond("வி=(அ,ஆ)=>அ கூட்டு ஆ\n", "வி = (அ, ஆ) => அ கூட்டு ஆ\n");
}

TEST(Formatter, LeavesNoBlanksInBracketsAndOneAfterCommas) {
    expectBoth("அச்சிடு ( [ 1 ,2 ] , { \"க\" :1 } )\n", "அச்சிடு([1, 2], {\"க\": 1})\n");
    expectBoth("ப = [ 1,2 ]\nஅச்சிடு(ப [ 0 ] )\n", "ப = [1, 2]\nஅச்சிடு(ப[0])\n");
}

TEST(Formatter, SetsBracketsApartFromWordsThatTheyDoNotBelongTo) {
    expectBoth("எனில்(1 சமம் 1) மற்றும்(மெய்):\n    விடு\n", "எனில் (1 சமம் 1) மற்றும் (மெய்):\n    விடு\n");
    expectBoth("செயல் அ (ஆ):\n    திரும்பு[ஆ]\n", "செயல் அ(ஆ):\n    திரும்பு [ஆ]\n");
    expectBoth("அ = இல்லை(மெய்)\nஆ = குறை(5)\n", "அ = இல்லை (மெய்)\nஆ = குறை (5)\n");
}

TEST(Formatter, TellsFunctionsNamedLikeOperatorsFromOperators) {
    expectSecond("செயல் கூட்டு (அ, ஆ):\n    திரும்பு அ கூட்டு(ஆ)\nஅச்சிடு(கூட்டு (1, 2))\n",
                 "செயல் கூட்டு(அ, ஆ):\n    திரும்பு அ கூட்டு (ஆ)\nஅச்சிடு(கூட்டு(1, 2))\n");
    expectForm("அ = கழி(1)\n", "அ = கழி (1)\n");
}

TEST(Formatter, TellsColonsOfQuestionsFromOthers) {
    expectSecond("அ = மெய்?1:2\n", "அ = மெய் ? 1 : 2\n");
    expectSecond("ப = {\"க\" : மெய்?1:2 , \"ங\" : 3}\n", "ப = {\"க\": மெய் ? 1 : 2, \"ங\": 3}\n");
    expectSecond("அ = மெய் எனில் 1:2\n", "அ = மெய் எனில் 1 : 2\n");
    expectSecond("எனில் மெய்?பொய்:மெய் :\n    விடு\n", "எனில் மெய் ? பொய் : மெய்:\n    விடு\n");
}

TEST(Formatter, NeverJoinsAPointToANumber) {
    expectSecond("அ = 5 . உரை()\n", "அ = 5 .உரை()\n");
    expectSecond("அ = \"க\" . நீளம் ()\n", "அ = \"க\".நீளம்()\n");
}

TEST(Formatter, IndentsBlocksByFour) {
    expectBoth("எனில் மெய்:\n விடு\n எனில் பொய்:\n   விடு\nஇல்லை:\n       விடு\n",
               "எனில் மெய்:\n    விடு\n    எனில் பொய்:\n        விடு\nஇல்லை:\n    விடு\n");
}

TEST(Formatter, MendsTabsWhereTheyMeanBlanks) {
    expectSecond("எனில் மெய்:\n\tஎனில் மெய்:\n\t\tவிடு\n", "எனில் மெய்:\n    எனில் மெய்:\n        விடு\n");
}

TEST(Formatter, IndentsLinesInBracketsByTheLineOfTheBracket) {
    expectSecond("ப = [\n1,\n      2\n  ]\n", "ப = [\n    1,\n    2\n]\n");
    expectSecond("ப = [[1,\n      2],\n     3]\n", "ப = [[1,\n    2],\n    3]\n");
    expectSecond("அச்சிடு(நீளம்([\n1\n]),\n2)\n", "அச்சிடு(நீளம்([\n    1\n]),\n    2)\n");
}

TEST(Formatter, KeepsBlocksOfFunctionsInBrackets) {
    expectSecond("ப(வினை(அ):\n  அச்சிடு(அ)\n, 3)\n", "ப(வினை(அ):\n    அச்சிடு(அ)\n, 3)\n");
    expectSecond("ப([\n1\n], வினை(அ):\n  விடு\n, 3)\n", "ப([\n    1\n], வினை(அ):\n    விடு\n, 3)\n");
    expectSecond("ப(\n  வினை(அ):\n      அச்சிடு(அ)\n  , 3)\n", "ப(\n    வினை(அ):\n        அச்சிடு(அ)\n    , 3)\n");
}

TEST(Formatter, IndentsWidgetsAndTheirStatements) {
    const std::string page = "வலைதளம் அ(\n தலைமை()\n குமரி(பொத்தான்(\"அ\", அழுத்தினால்(\nஎனில் மெய்:\n  ஆ()\n)))\n"
                             " வரையறை(\n  செயல் ஆ():\n    விடு\n )\n)\n";
    const std::string form = "வலைதளம் அ (\n    தலைமை()\n    குமரி(பொத்தான்(\"அ\", அழுத்தினால்(\n"
                             "        எனில் மெய்:\n            ஆ()\n    )))\n"
                             "    வரையறை(\n        செயல் ஆ():\n            விடு\n    )\n)\n";
    expectSecond(page, form);
}

TEST(Formatter, FollowsTheLinesWhereBracketsDoNotJoinThem) {
    expectForm("செயல் கூட்டி(அ,\nஆ):\n  திரும்பு   அ\n", "செயல் கூட்டி(அ,\nஆ):\n    திரும்பு அ\n");
}

TEST(Formatter, KnowsThatBlanksAfterSemicolonsCountInTheFirstEdition) {
    expectForm("அ = 1;ஆ   = 2;\n", "அ = 1;ஆ = 2;\n");
    expectForm("எனில் மெய்:\n  அ = 1;  ஆ = 2\n", "எனில் மெய்:\n    அ = 1;    ஆ = 2\n");
    expectSecond("எனில் மெய்:\n  அ = 1 ;ஆ = 2;\n", "எனில் மெய்:\n    அ = 1; ஆ = 2;\n");
}

TEST(Formatter, LeavesOneBlankLineAtMost) {
    expectBoth("அ = 1\n\n\n  \nஆ = 2\n\n", "அ = 1\n\nஆ = 2\n");
    expectForm("\n\nஅ = 1\n", "அ = 1\n");
}

TEST(Formatter, EndsTextsInALineEnd) {
    expectBoth("அ = 1", "அ = 1\n");
    expectForm("", "");
    expectForm(" \n\n", "");
    expectForm("ஃ குறிப்பு", "ஃ குறிப்பு\n");
}

TEST(Formatter, KeepsTheBytesOfTexts) {
    expectBoth("அ   = \"  க\n   ங  \n\n\n ச\"\n", "அ = \"  க\n   ங  \n\n\n ச\"\n");
    expectSecond("அ = \"\\t\\\"  \"   இணை 'க'\n", "அ = \"\\t\\\"  \" இணை 'க'\n");
}

TEST(Formatter, KeepsTheBytesOfComments) {
    expectBoth("அ = 1    ஃ  ஒன்று   இரண்டு  \n", "அ = 1 ஃ  ஒன்று   இரண்டு\n");
    expectBoth("அ = 1\nஃஃ  ஒன்று\n      இரண்டு  \n\n\n மூன்று ஃஃ\nஆ = 2\n",
               "அ = 1\nஃஃ  ஒன்று\n      இரண்டு  \n\n\n மூன்று ஃஃ\nஆ = 2\n");
    expectSecond("அ = ஃஃ நடு ஃஃ 1\n", "அ = ஃஃ நடு ஃஃ 1\n");
}

TEST(Formatter, SetsCommentsWithTheBlockThatTheyStandIn) {
    expectBoth("எனில் மெய்:\nஃ முதல்\n  விடு\n  ஃ உள்ளே\n ஃ ஓரளவு\nஃ வெளியே\nஅ = 1\n",
               "எனில் மெய்:\n    ஃ முதல்\n    விடு\n    ஃ உள்ளே\nஃ ஓரளவு\nஃ வெளியே\nஅ = 1\n");
    expectSecond("ப = [\n 1\n    ஃ இறுதி\n]\n", "ப = [\n    1\n    ஃ இறுதி\n]\n");
    expectBoth("எனில் மெய்:\n  விடு\n  ஃ இறுதி\n", "எனில் மெய்:\n    விடு\n    ஃ இறுதி\n");
}

TEST(Formatter, LeavesProgramsWithFaults) {
    expectLeft("அ   = \"க\n", FormatResult::Faulty);
    expectLeft("அ   = (1\n", FormatResult::Faulty);
    expectLeft(SECOND + "அ   = (1\n", FormatResult::Faulty);
    expectLeft("\n" + SECOND + "அ   = 1\n", FormatResult::Faulty);
}

TEST(Formatter, FormatsProgramsThatAreWrongInMeaningAlone) {
    expectSecond("அச்சிடு( இல்லாதது )\n", "அச்சிடு(இல்லாதது)\n");
    expectForm("நூஇறக்கி   \"எங்குமில்லை\"\n", "நூஇறக்கி \"எங்குமில்லை\"\n");
}

TEST(Formatter, LeavesWhatItDoesNotUnderstand) {
    // A tab of the first edition is as wide as the blanks that it stands for, and so takes a letter of the line.
    expectLeft("எனில் மெய்:\n\tஅவிடு\n", FormatResult::NotUnderstood);
    expectLeft(std::string("அ   = 1\n") + '\0' + "ஆ  = 2\n", FormatResult::NotUnderstood);
}

TEST(Formatter, WritesNoMarkerWhereNoneWas) {
    expectLeft("\nஃ பொழில் 3\nஅ   = 1\n", FormatResult::NotUnderstood);
}

} // namespace
