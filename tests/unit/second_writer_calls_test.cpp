#include "support/second_writing.h"

#include <gmock/gmock.h>

namespace pozhil::test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* MUTABLE = "செயல் f(மாற்று இ):\n    இ = 5\n";

TEST(SecondWriterCalls, AVariableIsHandedOverByReference) {
    const WrittenProgram program(std::string(MUTABLE) + "அ = 1\nf(அ)\n");
    EXPECT_THAT(program.text(), HasSubstr("static Value f_f(Value& v_இ, Place at) {"));
    EXPECT_THAT(program.statements(), HasSubstr("f_f(v_அ, @);"));
}

TEST(SecondWriterCalls, AnyOtherPlaceIsReadBeforeAndWrittenAfterTheCall) {
    EXPECT_THAT(WrittenProgram(std::string(MUTABLE) + "ப = [1]\nf(ப[0])\n").statements(),
                HasSubstr("({ Value t1 = element(v_ப, 0LL, @); const Value t2 = f_f(t1, @); "
                          "slot(v_ப, 0LL, @) = t1; t2; });"));
}

TEST(SecondWriterCalls, AValueNeedsNoPlaceAfterwards) {
    EXPECT_EQ(WrittenProgram("செயல் f(மாற்று இ):\n    இ = 5\nவ = f\nவ(1)\n").statements(),
              "v_வ = function(info_f);\ncall(v_வ, {1LL}, @);\n");
}

TEST(SecondWriterCalls, WhatAVariableHoldsIsAskedForItsMutableParameters) {
    const std::string text = WrittenProgram(std::string(MUTABLE) + "அ = 1\nவ = f\nவ(அ)\n").statements();
    EXPECT_THAT(text, HasSubstr("Value t2[] = {v_அ}; const unsigned"));
    EXPECT_THAT(text, HasSubstr("= mutableParameters("));
    EXPECT_THAT(text, HasSubstr("& 1U) v_அ = t2[0];"));
}

TEST(SecondWriterCalls, FunctionsThatAreValuesHaveAnAdapter) {
    const WrittenProgram program("செயல் f(அ, மாற்று ஆ):\n    திரும்பு அ\nவ = f\nஅச்சிடு(வ)\n");
    EXPECT_THAT(program.text(), HasSubstr("static const FunctionInfo info_f = {\"f\", call_f, 2, 2};"));
    EXPECT_EQ(program.body("call_f"), "return f_f(moved(arguments[0]), arguments[1], at);\n");
    EXPECT_THAT(program.statements(), HasSubstr("v_வ = function(info_f);"));
}

TEST(SecondWriterCalls, SharedVariablesLiveInCells) {
    const WrittenProgram program("செயல் f(அ):\n"
                                 "    செயல் g():\n"
                                 "        அ கூட்டிசேர் 1\n"
                                 "        திரும்பு அ\n"
                                 "    திரும்பு g\n"
                                 "அச்சிடு(f(1)())\n");
    EXPECT_THAT(program.body("f_f"), HasSubstr("Shared c_அ(p_அ); Value& v_அ = c_அ.value();\n"));
    EXPECT_THAT(program.body("f_f"), HasSubstr("v_g = function(info_g, {c_அ.cell()});\n"));
    EXPECT_THAT(program.body("f_g"), HasSubstr("Value& v_அ = captured(own, 0)->value();\n"));
}

TEST(SecondWriterCalls, ASharedMutableParameterStaysThePlaceOfTheCall) {
    EXPECT_THAT(WrittenProgram("செயல் f(மாற்று அ):\n    வ = () => (அ = 3)\n    வ()\nஇ = 1\nf(இ)\n").text(),
                HasSubstr("static Value f_f(Value& v_அ, Place at) {\n"
                          "    Frame frame(\"f\", at);\n"
                          "    const SharedPlace c_அ(v_அ);\n"));
}

constexpr const char* TAKER = "செயல் g(ப, இ):\n    திரும்பு ப\n";

std::string bodyOfF(const std::string& statements) {
    return WrittenProgram(TAKER + statements + "f([], 1)\n").body("f_f");
}

TEST(SecondWriterCalls, WhatNobodyNeedsAfterwardsIsHandedAway) {
    EXPECT_THAT(bodyOfF("செயல் f(ப, இ):\n    ப = g(ப, 1)\n    திரும்பு ப\n"), HasSubstr("v_ப = f_g(moved(v_ப), 1LL, "));
    EXPECT_THAT(bodyOfF("செயல் f(ப, இ):\n    திரும்பு g(ப, இ)\n"), HasSubstr("return f_g(moved(v_ப), "));
}

TEST(SecondWriterCalls, WhatMayBeNeededAfterwardsIsNotHandedAway) {
    // By another variable's assignment, by the second of two reads, by a catch, by the caller, by an inner function.
    for (const char* function :
         {"செயல் f(ப, இ):\n    இ = g(ப, 1)\n    திரும்பு ப\n", "செயல் f(ப, இ):\n    திரும்பு g(ப, ப)\n",
          "செயல் f(ப, இ):\n    முயற்சி:\n        ப = g(ப, 1)\n    பிடி:\n        விடு\n    திரும்பு ப\n",
          "செயல் f(மாற்று ப, இ):\n    ப = g(ப, 1)\n",
          "செயல் f(ப, இ):\n    வ = () => ப\n    ப = g(ப, 1)\n    திரும்பு வ\n"}) {
        EXPECT_THAT(bodyOfF(function), Not(HasSubstr("moved("))) << function;
    }
    EXPECT_THAT(WrittenProgram(std::string(TAKER) + "ப = []\nப = g(ப, 1)\n").statements(), Not(HasSubstr("moved(")));
}

TEST(SecondWriterCalls, MethodsThatWriteGetThePlaceOfTheirValue) {
    EXPECT_THAT(WrittenProgram("செயல் f(ப):\n    ப.சேர்(1)\n    திரும்பு ப\nவ = f\nவ([])\n").body("f_f"),
                HasSubstr("callMethod(v_ப, m_சேர், {1LL}, "));
    // What only reads doesn't make a copy of what others hold.
    EXPECT_THAT(WrittenProgram("செயல் f(ப):\n    திரும்பு ப[0].பேசு(1)\nf([])\n").body("f_f"),
                HasSubstr("callMethodOf(get(v_ப, 0LL, @), m_பேசு, {1LL}, "));
}

TEST(SecondWriterCalls, AnObjectIsConstructedByItsNearestConstructor) {
    const WrittenProgram program("கட்டமைப்பு அ:\n"
                                 "    ப = 1\n"
                                 "    செயல் துவக்கம்(தான், ப):\n"
                                 "        தான்.ப = ப\n"
                                 "கட்டமைப்பு ஆ(அ):\n"
                                 "    ம = 2\n"
                                 "இ = ஆ(5)\n"
                                 "அச்சிடு(இ)\n");
    EXPECT_THAT(program.statements(), HasSubstr("v_இ = new_ஆ(5LL, "));
    EXPECT_EQ(program.body("new_ஆ"), "Value self = create(s_ஆ, at);\nf_அ_துவக்கம்(self, v_ப, at);\nreturn self;\n");
}

} // namespace
} // namespace pozhil::test
