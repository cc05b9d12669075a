// The type that the generator takes a value to have before the program runs.

#include "support/generating.h"

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// Structures and a function to call.
const std::string DEFINITIONS = "கட்டமைப்பு மரம்:\n    உயர்வு = 1\n"
                                "கட்டமைப்பு பிளவு:\n    உயர்வு = 1\n"
                                "கட்டமைப்பு வர்க்கமூலம்:\n    உயர்வு = 1\n"
                                "செயல் இரட்டி(அ):\n    திரும்பு அ\n";

/// Variables of each type. They are assigned in a function, which stands before main and later functions in the text.
const std::string VARIABLES = "செயல் முன்னுரை():\n    ப = [1]\n    ம = {}\n    பொ = மரம்()\n    எ = 1\n    த = 1.5\n"
                              "    சொ = \"அ\"\n    உண்மை = மெய்\n    கா = இப்போதுநேரம்()\n";

/// The type of \p value by what may be done with a variable that holds it: what is refused, and which cast subtraction
/// writes, tell all types apart. \p before are lines of definitions.
std::string typeOf(const std::string& value, const std::string& before = DEFINITIONS + VARIABLES) {
    const std::string source = before + "அறிய = " + value + "\n";
    const auto passes = [&](const std::string& line) { return generatorFault(source + line + "\n") == "none"; };
    if (passes("அச்சிடு(அறிய கழி \"அ\" கழி தெரியாது)") && passes("அச்சிடு(அறிய.ஆண்டு)")) {
        return "Time";
    }
    if (!passes("அச்சிடு(அறிய கழி தெரியாது)")) {
        if (passes("அச்சிடு(அறிய.ஏதோ)")) {
            return "Object";
        }
        const std::string body = "செயல் வா_பட்டியல்():\n    அறிய = " + value + "\n    திரும்பு அறிய\n";
        return generatorFault(before + body) == "none" ? "List" : "Map";
    }
    if (!passes("அச்சிடு(அறிய கழி 1)")) {
        return "Text";
    }
    const std::string text = mainBody(source + "அச்சிடு(அறிய கழி தெரியாது)\n");
    const std::string cast = text.substr(text.rfind("std::any_cast<"));
    if (cast.rfind("std::any_cast<bool>", 0) == 0) {
        return "Boolean";
    }
    if (cast.rfind("std::any_cast<long double>", 0) == 0) {
        return "Double";
    }
    return passes("அச்சிடு(\"அ\" கழி அறிய)") ? "Any" : "Integer";
}

struct TypeOfValue {
    std::string value;
    std::string type;
};

void expectTypes(const std::vector<TypeOfValue>& table) {
    for (const auto& [value, type] : table) {
        EXPECT_EQ(typeOf(value), type) << value;
    }
}

TEST(Type, OfLiterals) {
    expectTypes({{"1", "Integer"},
                 {"௧௨", "Integer"},
                 {"1.5", "Double"},
                 {"1.", "Double"},
                 {"\"அ\"", "Text"},
                 {"மெய்", "Boolean"},
                 {"பொய்", "Boolean"},
                 {"[1]", "List"},
                 {"[]", "List"},
                 {"{}", "Map"},
                 {"{அ: 1}", "Map"},
                 {"() => 1", "Object"},
                 {"எ => எ", "Object"},
                 {"'அ'", "Any"}});
}

TEST(Type, OfVariables) {
    expectTypes({{"எ", "Integer"},
                 {"த", "Double"},
                 {"சொ", "Text"},
                 {"உண்மை", "Boolean"},
                 {"ப", "List"},
                 {"ம", "Map"},
                 {"பொ", "Object"},
                 {"கா", "Time"},
                 {"தெரியாது", "Any"},
                 {"மரம்", "Object"}});
    EXPECT_EQ(typeOf("எ", "எ = 1\nஎ = \"அ\"\n"), "Text") << "the last assignment counts";
    EXPECT_EQ(typeOf("எ", "எ = 1\nஎ = தெரியாது\n"), "Any");
    EXPECT_EQ(typeOf("எ", "எ = 1.5\nஎ கூட்டிசேர் 1\n"), "Integer") << "of a compound assignment too";
    EXPECT_EQ(typeOf("எ", "செயல் அ():\n    எ = 1.5\n"), "Double") << "functions are emitted first";
    EXPECT_EQ(typeOf("எ", "எனில் மெய்:\n    எ = 1.5\n"), "Double");
}

TEST(Type, OfNativeVariablesIsUnknown) {
    EXPECT_EQ(generatorFault("எ = [1]\nஒவ்வொன்றாக எ இல் வரம்பு(3):\n    அச்சிடு(எ கழி 1)\n"), "none");
    EXPECT_EQ(generatorFault("எ = [1]\nஒவ்வொன்றாக எ இல் வரம்பு(3):\n    விடு\nஅச்சிடு(எ கழி 1)\n"), "பொழி-304 வரி 4")
        << "behind the loop the name is the global variable again";
    EXPECT_EQ(generatorFault("எ = [1]\nஒவ்வொன்றாக எ இல் ப:\n    அச்சிடு(எ கழி 1)\n"), "none");
    EXPECT_EQ(generatorFault("செயல் அ(எ):\n    எ = [1]\n    அச்சிடு(எ கழி 1)\n"), "none") << "a parameter";
    EXPECT_EQ(generatorFault("செயல் அ():\n    எ = [1]\n    அச்சிடு(எ கழி 1)\n"), "பொழி-304 வரி 3");
    EXPECT_EQ(generatorFault("எ = [1]\nஅச்சிடு(எ => எ கழி 1)\n"), "none") << "a parameter of a lambda";
    EXPECT_EQ(generatorFault("எ = [1]\nகா = எ => 1\nஅச்சிடு(எ கழி 1)\n"), "பொழி-304 வரி 3") << "behind the lambda";
}

TEST(Type, OfBuiltInFunctions) {
    expectTypes({{"உள்ளீடு(\"\")", "Text"},
                 {"நீளம்(1)", "Integer"},
                 {"எடு(ப, 0)", "Any"},
                 {"அடுக்கு(1.0, 2.0)", "Double"},
                 {"சைன்(1.0)", "Double"},
                 {"டேன்(1.0)", "Double"},
                 {"மடக்கு(1.0)", "Double"},
                 {"மேல்எண்(1.5)", "Integer"},
                 {"கீழ்எண்(1.5)", "Integer"},
                 {"இப்போதுநேரம்()", "Time"},
                 {"வரம்பு(1)", "Any"},
                 {"பதில்(சொ, சொ, சொ)", "Text"},
                 {"பெரியஎ(சொ)", "Text"},
                 {"சிறியஎ(சொ)", "Text"},
                 {"கோப்பு_படி(சொ)", "Text"},
                 {"கோப்பு_உள்ளதா(சொ)", "Boolean"},
                 {"கோப்பு_அழி(சொ)", "Boolean"}});
    EXPECT_EQ(typeOf("பிளவு(\"\", \"\")", ""), "List");
    EXPECT_EQ(typeOf("வர்க்கமூலம்(1.0)", ""), "Double");
    // No source can write this name: it holds a letter that names may not have.
    EXPECT_EQ(
        generatorFault("", listOf(assignment("அ", call("காஸ்", listOf<ExpressionList>(make<DoubleLiteral>("1.0")))),
                                  assignment("ஆ", make<BinaryExpression>(
                                                      variable("அ"), Token{TokenType::OPERATOR, "கழி", 3}, text(""))))),
        "பொழி-303 வரி 0");
}

TEST(Type, OfTheAbsoluteValueIsThatOfTheArgument) {
    expectTypes({{"தனிமதிப்பு(1)", "Integer"}, {"தனிமதிப்பு(த)", "Double"}, {"தனிமதிப்பு(தெரியாது)", "Any"}});
}

TEST(Type, OfOtherCallsIsUnknown) {
    expectTypes({{"இரட்டி(1)", "Any"},
                 {"எண்(சொ)", "Any"},
                 {"என்னவகை(1)", "Any"},
                 {"சீரற்ற_எண்(1, 2)", "Any"},
                 {"(எ => எ)(1)", "Any"},
                 {"பொ.ஏதோ()", "Any"},
                 {"ப.சேர்(1)", "Any"}});
}

TEST(Type, OfAStructuresNameCalledIsObjectUnlessABuiltInStandsBeforeIt) {
    expectTypes({{"மரம்()", "Object"}, {"பிளவு()", "Object"}, {"வர்க்கமூலம்()", "Double"}});
}

TEST(Type, OfMethodsOfTimeValues) {
    expectTypes({{"நேரம்.வினாடிகள்()", "Double"},
                 {"கா.தேதி()", "Text"},
                 {"கா.நேரம்()", "Text"},
                 {"எ.முழுவதும்()", "Text"},
                 {"பொ.தேதி()", "Text"},
                 {"ப[0].தேதி()", "Text"}});
}

TEST(Type, OfMembers) {
    expectTypes({{"கா.ஆண்டு", "Integer"},
                 {"கா.மாதம்", "Integer"},
                 {"கா.நாள்", "Integer"},
                 {"கா.மணி", "Integer"},
                 {"கா.நிமிடம்", "Integer"},
                 {"கா.வினாடி", "Integer"},
                 {"கா.வாரநாள்", "Integer"},
                 {"பொ.ஏதோ", "Any"},
                 {"பொ.ஆண்டு", "Any"},
                 {"மரம்().உயர்வு", "Any"},
                 {"எ.நீளம்", "Any"},
                 {"எ.வெறுமை", "Any"},
                 {"எ.சுத்தம்", "Any"}});
}

TEST(Type, OfElementsIsUnknown) {
    expectTypes({{"ப[0]", "Any"}, {"[1][0]", "Any"}, {"ம[\"அ\"]", "Any"}, {"\"அ\"[0]", "Any"}});
}

TEST(Type, OfJoiningWithText) {
    expectTypes({{"சொ கூட்டு சொ", "Text"},
                 {"சொ கூட்டு தெரியாது", "Text"},
                 {"தெரியாது கூட்டு \"அ\"", "Text"},
                 {"சொ இணை 1", "Text"},
                 {"1.5 இணை சொ", "Text"},
                 {"[1] இணை சொ", "Text"},
                 {"சொ கழி தெரியாது", "Any"},
                 {"சொ பெருக்கு சொ", "Any"}});
}

TEST(Type, OfArithmetic) {
    expectTypes({{"1 கூட்டு 2", "Integer"},
                 {"1 கழி எ", "Integer"},
                 {"1 பெருக்கு 2", "Integer"},
                 {"1 வகு 2", "Integer"},
                 {"1 மீதி 2", "Integer"},
                 {"1 இணை 2", "Integer"},
                 {"1 கூட்டுஇருமை 2", "Integer"},
                 {"1 கூட்டு 2.5", "Double"},
                 {"த கழி 1", "Double"},
                 {"தெரியாது பெருக்கு த", "Double"},
                 {"1.5 இணை 2", "Double"},
                 {"மெய் கழி 1.5", "Double"},
                 {"1 கூட்டு தெரியாது", "Any"},
                 {"தெரியாது கழி தெரியாது", "Any"},
                 {"மெய் கழி 1", "Any"},
                 {"மெய் கழி பொய்", "Any"},
                 {"'அ' கூட்டு 1", "Any"},
                 {"1 கூட்டு 2 கூட்டு 3.5", "Double"},
                 {"1 கூட்டு 2 பெருக்கு எ", "Integer"}});
}

TEST(Type, OfComparisonsIsThatOfNumbersBeforeTruth) {
    for (const std::string word : {"சமம்", "சமமில்லை", "பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"}) {
        expectTypes({{"1 " + word + " 1", "Integer"},
                     {"1 " + word + " 1.5", "Double"},
                     {"சொ " + word + " சொ", "Boolean"},
                     {"தெரியாது " + word + " 1", "Boolean"},
                     {"சொ " + word + " 1.5", "Double"},
                     {"ப " + word + " ப", "Boolean"}});
    }
}

TEST(Type, OfAChoiceIsThatOfItsFirstBranch) {
    expectTypes({{"உண்மை ? 1 : \"அ\"", "Integer"},
                 {"உண்மை ? \"அ\" : 1", "Text"},
                 {"உண்மை எனில் [] இல்லைஎனில் 1", "List"},
                 {"உண்மை ? (உண்மை ? 1 : 2) : 1", "Any"},
                 {"உண்மை ? 1 : உண்மை ? \"அ\" : 1", "Integer"}});
}

TEST(Type, OfEverythingElseIsUnknown) {
    expectTypes({{"(1)", "Any"},
                 {"([1])", "Any"},
                 {"(1 கூட்டு 2)", "Any"},
                 {"கழி 1", "Any"},
                 {"குறை 1.5", "Any"},
                 {"இல்லை மெய்", "Any"},
                 {"எதிர்இருமை 1", "Any"},
                 {"மெய் மற்றும் பொய்", "Any"},
                 {"உண்மை அல்லது உண்மை", "Any"},
                 {"ஆ = 5", "Any"},
                 {"ஆ = [1]", "Any"},
                 {"பொ.உயர்வு = 1", "Any"}});
}

TEST(Type, OfSelfInAMethodIsObject) {
    EXPECT_EQ(generatorFault("கட்டமைப்பு மரம்:\n    செயல் ஆ(தான்):\n        அச்சிடு(தான்.ஏதோ)\n"), "none");
    EXPECT_EQ(generatorFault("கட்டமைப்பு மரம்:\n    செயல் ஆ(தான்):\n        அச்சிடு(தான் கழி 1)\n"), "பொழி-304 வரி 3");
}

TEST(Structures, AreKnownFromTheirOwnPlaceOn) {
    const std::string first = "கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        திரும்பு இ()\n";
    const std::string second = "கட்டமைப்பு இ:\n    ஈ = 1\n";
    EXPECT_EQ(generatorFault(second + first), "none");
    const std::string fault = generatorFault(first + second);
    EXPECT_EQ(fault.rfind("exception பொழி-332: ", 0), 0U) << fault;
    EXPECT_NE(fault.find(" ('இ' என்பது ஒரு function இல்லை.)"), std::string::npos) << fault;
}

} // namespace
