/// A fault of the grammar hides no fault of meaning in what could be read, and nothing is told that may only come of it.

#include "support/resolved_text.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

const std::string BROKEN_FUNCTION = "செயல் உடைந்தது(எ:\n    திரும்பு எ\n";

struct Row {
    std::string name;
    std::string text;
    std::vector<std::string> faults;
};

class PartialMeaning : public testing::TestWithParam<Row> {};

TEST_P(PartialMeaning, IsTold) {
    EXPECT_THAT(partialMeaningFaults(GetParam().text), testing::ElementsAreArray(GetParam().faults));
}

const std::vector<Row> TOLD = {
    {"UnknownNameAfterABrokenFunction", BROKEN_FUNCTION + "செயல் f():\n    அச்சிடு(இல்லாதது)\n", {"551 4 'இல்லாதது'"}},
    {"UnknownNameBeforeABrokenFunction", "செயல் f():\n    அச்சிடு(இல்லாதது)\n" + BROKEN_FUNCTION, {"551 2 'இல்லாதது'"}},
    {"UnknownFunction", BROKEN_FUNCTION + "இல்லாதது(1)\n", {"552 3 'இல்லாதது'"}},
    {"WrongCount", "செயல் f(அ):\n    திரும்பு அ\n" + BROKEN_FUNCTION + "அச்சிடு(f(1, 2))\n", {"558 5 'f(1, 2)'"}},
    {"KindsOfLiterals", BROKEN_FUNCTION + "அச்சிடு(1 கழி [2])\n", {"576 3 '1 கழி [2]'"}},
    {"KindsOfVariables", BROKEN_FUNCTION + "வரி = [1]\nஅச்சிடு(வரி கழி 1)\n", {"576 4 'வரி கழி 1'"}},
    {"AStatementInAFunctionHidesNothingOfOtherFunctions",
     "செயல் f():\n    ம = (1\n    திரும்பு ம\nசெயல் g():\n    திரும்பு இல்லாதது\n",
     {"551 5 'இல்லாதது'"}},
    {"ABrokenPrintHidesNothing", "அச்சிடு(1\nசெயல் g():\n    திரும்பு இல்லாதது\n", {"551 3 'இல்லாதது'"}},
    {"TheSameNameIsToldWhereItIsWhole",
     "செயல் f():\n    ம = (1\n    திரும்பு இல்லாதது\nசெயல் g():\n    திரும்பு இல்லாதது\n",
     {"551 5 'இல்லாதது'"}},
};

const std::vector<Row> NOT_TOLD = {
    {"ADefinitionThatATextHasSwallowed",
     "செயல் f():\n    திரும்பு ..\"\nசெயல் g():\n    திரும்பு \"அ\"\nஅச்சிடு(g(), \"அ\")\n",
     {}},
    {"ADefinitionWithoutItsFirstLine", "\n    செயல் f(தான்):\n        திரும்பு 1\nஅச்சிடு(பை())\n", {}},
    {"ACallOfABrokenFunction", BROKEN_FUNCTION + "அச்சிடு(உடைந்தது(1, 2))\n", {}},
    {"AVariableWithABrokenValue", "ம = (1\nஅச்சிடு(ம)\n", {}},
    {"TheKindOfAVariableWithABrokenValue", "ம = 1\nம = (\"அ\"\nஅச்சிடு(ம[0])\n", {}},
    {"ANameThatWasCutOff", "மொத்\nஅச்சிடு(மொத்தம்)\n", {}},
    {"ADefinitionWithoutItsName", "செயல்\n    திரும்பு 1\nஅச்சிடு(எண்ணு())\n", {}},
    {"TheRestOfABrokenFunction", "செயல் f():\n    ம = (1\n    திரும்பு இல்லாதது\n", {}},
    {"TheResultOfABrokenFunction", "செயல் f():\n    திரும்பு (1\nஅச்சிடு(1 கூட்டு f())\n", {}},
    {"AMemberOfABrokenStructure", "கட்டமைப்பு ப:\n    அ = 1\n    ஆ = (2\nபொ = ப()\nஅச்சிடு(பொ.ஆ, பொ.இ)\n", {}},
    {"AMemberOfABrokenParent", "கட்டமைப்பு ப:\n    அ = (2\nகட்டமைப்பு க(ப):\n    ஆ = 1\nபொ = க()\nஅச்சிடு(பொ.அ)\n", {}},
    {"LinesThatBelongToABrokenHead", "செயல்\n    திரும்பு 1\n", {}},
    {"ABlockWithoutIndentation", "செயல் f(எ):\nஅச்சிடு(எ)\nதிரும்பு எ\n", {}},
    {"WhatAMissingFileMayDefine", "நூஇறக்கி \"இல்லாத_கோப்பு\"\nஅச்சிடு(எதையோ())\n", {}},
};

std::string nameOf(const testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

INSTANTIATE_TEST_SUITE_P(Told, PartialMeaning, testing::ValuesIn(TOLD), nameOf);
INSTANTIATE_TEST_SUITE_P(NotTold, PartialMeaning, testing::ValuesIn(NOT_TOLD), nameOf);

} // namespace
