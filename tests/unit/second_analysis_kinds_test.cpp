#include "analysis/second/operator_kinds.h"
#include "engine/library.h"
#include "engine/operations.h"
#include "support/resolved_text.h"

#include <type_traits>
#include <utility>

#include <gmock/gmock.h>

using namespace pozhil::test;
using pozhil::resolved::BinaryOperator;
using pozhil::resolved::Kind;
using pozhil::resolved::UnaryOperator;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace engine = pozhil::engine;

namespace {

/// The kind that the engine's result has in the emitted text.
template <class Result> constexpr Kind kindOf() {
    if (std::is_same_v<Result, engine::Whole>) {
        return Kind::Whole;
    }
    if (std::is_same_v<Result, engine::Decimal>) {
        return Kind::Decimal;
    }
    return std::is_same_v<Result, bool> ? Kind::Truth : Kind::Any;
}

/// What is native in the emitted text; everything else is a value of any kind there.
Kind nativeOf(Kind kind) {
    return pozhil::resolved::isNative(kind) ? kind : Kind::Any;
}

constexpr engine::Place PLACE = nullptr;

template <class Left, class Right> void expectResults(const char* operands) {
    SCOPED_TRACE(operands);
    const auto result = [](BinaryOperator op) {
        return nativeOf(pozhil::second::resultOf(op, kindOf<Left>(), kindOf<Right>()));
    };
    using std::declval;
    EXPECT_EQ(result(BinaryOperator::Add), kindOf<decltype(engine::add(declval<Left>(), declval<Right>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Subtract),
              kindOf<decltype(engine::subtract(declval<Left>(), declval<Right>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Multiply),
              kindOf<decltype(engine::multiply(declval<Left>(), declval<Right>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Divide),
              kindOf<decltype(engine::divide(declval<Left>(), declval<Right>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Remainder),
              kindOf<decltype(engine::remainder(declval<Left>(), declval<Right>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Less),
              kindOf<decltype(engine::less(declval<engine::Value>(), declval<engine::Value>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::BitAnd),
              kindOf<decltype(engine::bitAnd(declval<engine::Value>(), declval<engine::Value>(), PLACE))>());
    EXPECT_EQ(result(BinaryOperator::Join),
              kindOf<decltype(engine::join(declval<engine::Value>(), declval<engine::Value>(), PLACE))>());
}

} // namespace

// The emitted text relies on these being the same.

TEST(SecondKinds, ResultsAreThoseOfTheEngine) {
    expectResults<engine::Whole, engine::Whole>("whole, whole");
    expectResults<engine::Whole, engine::Decimal>("whole, decimal");
    expectResults<engine::Decimal, engine::Whole>("decimal, whole");
    expectResults<engine::Decimal, engine::Decimal>("decimal, decimal");
    expectResults<engine::Value, engine::Value>("value, value");
}

TEST(SecondKinds, ResultsOfOneOperandAreThoseOfTheEngine) {
    using pozhil::second::resultOf;
    EXPECT_EQ(resultOf(UnaryOperator::Minus, Kind::Whole), kindOf<decltype(engine::minus(engine::Whole(), PLACE))>());
    EXPECT_EQ(resultOf(UnaryOperator::Minus, Kind::Decimal),
              kindOf<decltype(engine::minus(engine::Decimal(), PLACE))>());
    EXPECT_EQ(resultOf(UnaryOperator::Minus, Kind::Any), kindOf<decltype(engine::minus(engine::Value(), PLACE))>());
    EXPECT_EQ(resultOf(UnaryOperator::Plus, Kind::Whole), kindOf<decltype(engine::plus(engine::Whole(), PLACE))>());
    EXPECT_EQ(resultOf(UnaryOperator::Plus, Kind::Any), kindOf<decltype(engine::plus(engine::Value(), PLACE))>());
    EXPECT_EQ(resultOf(UnaryOperator::BitNot, Kind::Any), kindOf<decltype(engine::bitNot(engine::Value(), PLACE))>());
}

// A native number mixed with a value of any kind is a value, since the engine takes both as values.
TEST(SecondKinds, ANumberAndAnyValueGiveAnyValue) {
    using pozhil::second::resultOf;
    EXPECT_EQ(resultOf(BinaryOperator::Multiply, Kind::Any, Kind::Decimal), Kind::Any);
    EXPECT_EQ(resultOf(BinaryOperator::Subtract, Kind::Whole, Kind::Any), Kind::Any);
    EXPECT_EQ(resultOf(BinaryOperator::Divide, Kind::Any, Kind::Any), Kind::Decimal);
}

// Variables.

TEST(SecondKinds, AVariableOfOneKindIsCertain) {
    EXPECT_EQ(certainKinds("அ = 1\nஆ = 2.5\nஇ = மெய்\nஈ = \"அ\"\nஉ = [1]\nஊ = {}\nஎ = வெறுமை\n"),
              "அ Whole, ஆ Decimal, இ Truth, ஈ Text, உ List, ஊ Map, எ Nothing");
}

TEST(SecondKinds, AVariableOfSeveralKindsIsNot) {
    EXPECT_EQ(certainKinds("அ = 1\nஅ = \"அ\"\n"), "");
    EXPECT_EQ(certainKinds("அ = 1\nஅ = 1.5\n"), "");
    EXPECT_EQ(certainKinds("அ = 1\nஅ வகுசேர் 2\n"), "");
    EXPECT_EQ(certainKinds("அ = 1.0\nஅ வகுசேர் 2\nஅ கூட்டிசேர் 1\n"), "அ Decimal");
}

TEST(SecondKinds, ChainsOfVariablesAreFollowedInAnyOrder) {
    EXPECT_EQ(
        certainKinds(
            "செயல் f():\n    பொது அ\n    அ = ஆ\nசெயல் g():\n    பொது ஆ\n    ஆ = இ\nஇ = 1\nஆ = 1\nஅ = 1\nf()\ng()\n"),
        "இ Whole, ஆ Whole, அ Whole, f() Nothing, g() Nothing");
}

TEST(SecondKinds, AVariableThatDependsOnItselfStaysWhatItWas) {
    EXPECT_EQ(certainKinds("அ = 0\nஒவ்வொன்றாக இ இல் வரம்பு(3):\n    அ = அ பெருக்கு 2 கூட்டு இ\n"), "அ Whole, இ Whole");
}

TEST(SecondKinds, TheVariableOfALoopIsWhatItGoesOver) {
    EXPECT_EQ(certainKinds("ஒவ்வொன்றாக இ இல் \"அ\":\n    விடு\n"), "இ Text");
    EXPECT_EQ(certainKinds("ஒவ்வொன்றாக இ இல் [1]:\n    விடு\n"), "");
    EXPECT_EQ(certainKinds("ஒவ்வொன்றாக இ இல் வரம்பு(3):\n    இ = 1.5\n"), "");
}

TEST(SecondKinds, VariablesThatMayBeUnsetAreNotCertain) {
    EXPECT_EQ(certainKinds("எனில் மெய்:\n    அ = 1\nஅச்சிடு(அ)\n"), "");
}

TEST(SecondKinds, SharedVariablesAreNotCertain) {
    EXPECT_EQ(certainKinds("செயல் f():\n    அ = 1\n    திரும்பு () => அ\nf()\n"), "f() Function");
}

TEST(SecondKinds, WhatIsPassedAsAPlaceIsNotCertain) {
    EXPECT_EQ(certainKinds("செயல் f(மாற்று அ):\n    அ = \"x\"\nஇ = 1\nf(இ)\n"), "f() Nothing");
}

TEST(SecondKinds, WhatIsWrittenThroughIsNeverNative) {
    EXPECT_EQ(certainKinds("அ = 1\nமுயற்சி:\n    அ[0] = 2\nபிடி:\n    விடு\n"), "பிழை Text");
    EXPECT_EQ(certainKinds("அ = 1\nமுயற்சி:\n    அ.சேர்(2)\nபிடி:\n    விடு\n"), "பிழை Text");
    EXPECT_EQ(certainKinds("அ = 1\nமுயற்சி:\n    வை(அ, 0, 2)\nபிடி:\n    விடு\n"), "பிழை Text");
    EXPECT_EQ(certainKinds("செயல் f(ப):\n    ப[0] = 1\n    திரும்பு ப\nf(1)\n"), "");
}

// Functions.

TEST(SecondKinds, ParametersAreWhatCallsGive) {
    EXPECT_EQ(certainKinds("செயல் f(n):\n"
                           "    எனில் n சிறிது 2:\n"
                           "        திரும்பு n\n"
                           "    திரும்பு f(n கழி 1) கூட்டு f(n கழி 2)\n"
                           "அச்சிடு(f(30))\n"),
              "n Whole, f() Whole");
    EXPECT_EQ(certainKinds("செயல் f(n):\n    திரும்பு n\nf(1)\nf(\"அ\")\n"), "");
    EXPECT_EQ(certainKinds("செயல் f(n):\n    திரும்பு n\nf(1)\nf(1.5)\n"), "");
}

TEST(SecondKinds, AFunctionThatIsUsedAsAValueCanBeCalledWithAnything) {
    EXPECT_EQ(certainKinds("செயல் f(n):\n    திரும்பு 1\nf(1)\nவ = f\n"), "வ Function");
    EXPECT_EQ(certainKinds("வ = n => n\nவ(1)\n"), "வ Function");
}

TEST(SecondKinds, AFunctionThatNobodyCallsCanBeCalledWithAnything) {
    EXPECT_EQ(certainKinds("செயல் f(n):\n    அ = n கூட்டு 1\n    திரும்பு அ\n"), "");
}

TEST(SecondKinds, EveryEndOfAFunctionCounts) {
    EXPECT_EQ(certainKinds("செயல் f(எ):\n    எனில் எ:\n        திரும்பு 1\nf(மெய்)\n"), "எ Truth");
    EXPECT_EQ(certainKinds("செயல் f(எ):\n    எனில் எ:\n        திரும்பு 1\n    இல்லை:\n        திரும்பு 2\nf(மெய்)\n"),
              "எ Truth, f() Whole");
    EXPECT_EQ(certainKinds("செயல் f(எ):\n    எனில் எ:\n        திரும்பு\n    திரும்பு 2\nf(மெய்)\n"), "எ Truth");
    EXPECT_EQ(certainKinds("செயல் f():\n    சுற்று மெய்:\n        திரும்பு 2\nf()\n"), "f() Whole");
    EXPECT_EQ(certainKinds("செயல் f():\n    சுற்று மெய்:\n        நிறுத்து\nf()\n"), "f() Nothing");
    EXPECT_EQ(certainKinds("செயல் f():\n    முயற்சி:\n        திரும்பு 1\n    பிடி:\n        விடு\nf()\n"), "பிழை Text");
}

TEST(SecondKinds, FunctionsThatOnlyCallEachOtherGiveAnything) {
    EXPECT_EQ(certainKinds("செயல் f():\n    திரும்பு g()\nசெயல் g():\n    திரும்பு f()\nf()\n"), "");
}

TEST(SecondKinds, MethodsCanBeCalledWithAnything) {
    EXPECT_EQ(certainKinds("கட்டமைப்பு க:\n    செயல் m(தான், எ):\n        அ = 1\n        திரும்பு அ\nப = க()\nப.m(1)\n"),
              "ப Object, அ Whole");
}

TEST(SecondKinds, BuiltinsGiveWhatTheirRowSays) {
    EXPECT_EQ(
        certainKinds("அ = நீளம்(\"அ\")\nஆ = வர்க்கமூலம்(4)\nஇ = தனிமதிப்பு(குறை 1)\nஈ = தனிமதிப்பு(குறை 1.5)\nஉ = எண்(\"1\")\n"
                     "ஊ = பிளவு(\"அ\", \",\")\nஎ = கோப்பு_உள்ளதா(\"அ\")\nஏ = இப்போதுநேரம்()\nஐ = ஏ.ஆண்டு\nஒ = ஊ.நீளம்()\n"),
        "அ Whole, ஆ Decimal, இ Whole, ஈ Decimal, ஊ List, எ Truth, ஏ Time, ஐ Whole, ஒ Whole");
}

// Faults.

TEST(SecondKinds, ConditionsThatAreNoTruthValuesAreTold) {
    EXPECT_THAT(meaningFaults("எனில் 1 கூட்டு 1:\n    விடு\nசுற்று \"அ\":\n    விடு\nஅச்சிடு([] ? 1 : 2)\n"),
                ElementsAre("575 1 '1 கூட்டு 1'", "575 3 '\"அ\"'", "575 5 '[]'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(1 மற்றும் மெய், மெய் அல்லது 2, இல்லை 3)\n"),
                ElementsAre("575 1 '1'", "575 1 '2'", "575 1 '3'"));
}

TEST(SecondKinds, OperandsThatDoNotFitAreTold) {
    EXPECT_THAT(meaningFaults("அ = \"5\"\nஅச்சிடு(அ கழி 1)\n"),
                ElementsAre("576 2 'அ கழி 1' → உரையில் உள்ள எண்ணோடு கணக்கிட 'எண்(…)' என்று எழுது."));
    EXPECT_THAT(meaningFaults("அச்சிடு([1] கூட்டு 1, மெய் கூட்டு 1, {} பெருக்கு 2)\n"),
                ElementsAre("576 1 '[1] கூட்டு 1'", "576 1 'மெய் கூட்டு 1'", "576 1 '{} பெருக்கு 2'"));
    EXPECT_THAT(meaningFaults("அச்சிடு(குறை \"அ\", எதிர்இருமை [])\n"),
                ElementsAre("577 1 'குறை \"அ\"'", "577 1 'எதிர்இருமை []'"));
    EXPECT_THAT(meaningFaults("அ = \"அ\"\nஅ கழிசேர் 1\n"), ElementsAre(HasSubstr("576 2 '1'")));
}

TEST(SecondKinds, WhatCanBeJoinedIsNotTold) {
    EXPECT_THAT(meaningFaults("அச்சிடு(\"அ\" கூட்டு 1, 1 கூட்டு \"அ\", [1] கூட்டு [2], மெய் இணை [], \"அ\" கூட்டு [])\n"),
                IsEmpty());
}

TEST(SecondKinds, OrderingsOfDifferentKindsAreTold) {
    EXPECT_THAT(meaningFaults("அச்சிடு(1 சிறிது \"2\", [] பெரிது [], 1 சிறிது 2.5, \"அ\" சிறிது \"ஆ\", 1 சமம் \"1\")\n"),
                ElementsAre(HasSubstr("581 1 '1 சிறிது \"2\"' → "), "581 1 '[] பெரிது []'"));
}

TEST(SecondKinds, CallsOfWhatIsNoFunctionAreTold) {
    EXPECT_THAT(meaningFaults("அ = 5\nஅ(1)\n"), ElementsAre("578 2 'அ'"));
}

TEST(SecondKinds, ElementsOfWhatHasNoneAreTold) {
    EXPECT_THAT(meaningFaults("அ = 5\nஅச்சிடு(அ[0])\nஅ[0] = 1\n"), ElementsAre("588 2 'அ'", "588 3 'அ'"));
    EXPECT_THAT(meaningFaults("அ = [1]\nஅச்சிடு(அ[\"க\"], \"அ\"[மெய்])\n"), ElementsAre("580 2 '\"க\"'", "580 2 'மெய்'"));
    EXPECT_THAT(meaningFaults("அ = {}\nஅச்சிடு(அ[\"க\"], அ[1], அ[மெய்], அ[[]])\n"), ElementsAre("580 2 '[]'"));
}

TEST(SecondKinds, LoopsOverNothingAreTold) {
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக இ இல் 5:\n    விடு\n"), ElementsAre("589 1 '5'"));
    EXPECT_THAT(meaningFaults("ஒவ்வொன்றாக இ இல் வரம்பு(\"5\"):\n    விடு\n"), ElementsAre("582 1 '\"5\"'"));
}

TEST(SecondKinds, DoubleKeysAreTold) {
    EXPECT_THAT(meaningFaults("அ = {\"க\": 1, 1: 2, \"க\": 3, 1: 4, \"1\": 5}\n"),
                ElementsAre("579 1 '\"க\"'", "579 1 '1'"));
    EXPECT_THAT(meaningFaults("அ = {மெய்: 1, 1: 2, பொய்: 3, மெய்: 4, (1): 5}\n"),
                ElementsAre("579 1 'மெய்'", "579 1 '(1)'"));
}

TEST(SecondKinds, DoubleKeysAreToldHoweverTheyAreWritten) {
    EXPECT_THAT(meaningFaults("அ = {12: 1, 012: 2, ௧௨: 3, 12.0: 4, 12.5: 5}\n"),
                ElementsAre("579 1 '012'", "579 1 '௧௨'", "579 1 '12.0'"));
    EXPECT_THAT(meaningFaults("அ = {\"\\t\": 1, \"\t\": 2, \"t\": 3}\n"), ElementsAre("579 1 '\"\t\"'"));
}

TEST(SecondKinds, WhatATryGuardsIsLeftToIt) {
    EXPECT_THAT(meaningFaults("முயற்சி:\n    அச்சிடு(\"அ\" கழி 1)\nபிடி:\n    விடு\n"), IsEmpty());
    EXPECT_THAT(meaningFaults("முயற்சி:\n    விடு\nபிடி:\n    அச்சிடு(\"அ\" கழி 1)\n"), ElementsAre(HasSubstr("576 4")));
}

TEST(SecondKinds, AFunctionIsNotToldWhatItsCallersGive) {
    EXPECT_THAT(meaningFaults("செயல் f(அ):\n    திரும்பு அ பெருக்கு 2\nமுயற்சி:\n    f(\"அ\")\nபிடி:\n    விடு\n"),
                IsEmpty());
}

TEST(SecondKinds, AVariableOfSeveralKindsMayFit) {
    EXPECT_THAT(meaningFaults("அ = \"5\"\nஅ = எண்(அ)\nஅச்சிடு(அ கழி 1)\n"), IsEmpty());
}
