#include "support/second_writing.h"

#include <gmock/gmock.h>

namespace pozhil::test {
namespace {

using testing::HasSubstr;

TEST(SecondWriterStatements, LoopsOverNumbersCountNatively) {
    EXPECT_THAT(
        WrittenProgram("செயல் f(எத்தனை):\n    ஒவ்வொன்றாக எ இல் வரம்பு(எத்தனை):\n        அச்சிடு(எ)\nf(2)\n").body("f_f"),
        HasSubstr("for (Whole v_எ = 0, end1 = v_எத்தனை; v_எ < end1; ++v_எ) {\nprint({v_எ});\n}\n"));
}

TEST(SecondWriterStatements, TheCountGoesOnWhateverTheBodyAssigns) {
    EXPECT_THAT(
        WrittenProgram("செயல் f():\n    ஒவ்வொன்றாக எ இல் வரம்பு(3):\n        எ = 50\n        அச்சிடு(எ)\nf()\n").body("f_f"),
        HasSubstr("for (Whole i1 = 0; i1 < 3LL; ++i1) {\nv_எ = i1;\n"));
}

TEST(SecondWriterStatements, AVariableThatIsReadAfterItsLoopKeepsTheLastNumber) {
    EXPECT_THAT(
        WrittenProgram("செயல் f():\n    எ = 0\n    ஒவ்வொன்றாக எ இல் வரம்பு(3):\n        அச்சிடு(எ)\n    திரும்பு எ\nf()\n")
            .body("f_f"),
        HasSubstr("for (Whole i1 = 0; i1 < 3LL; ++i1) {\nv_எ = i1;\n"));
}

TEST(SecondWriterStatements, StepsAreCheckedUnlessTheyStandThere) {
    EXPECT_THAT(WrittenProgram("ஒவ்வொன்றாக எ இல் வரம்பு(0, 9, 2):\n    அச்சிடு(எ)\n").statements(),
                HasSubstr("for (Counting count1{0LL, 9LL, 2LL}; count1.hasNext();) {\n"));
    EXPECT_THAT(WrittenProgram("ஒவ்வொன்றாக எ இல் வரம்பு(0, 9, 0):\n    அச்சிடு(எ)\n").statements(),
                HasSubstr("Counting count1{0LL, 9LL, checkedStep(0LL, "));
}

TEST(SecondWriterStatements, OnlyPagesCountWhatTheyDo) {
    const std::string work = "செயல் f():\n    சுற்று மெய்:\n        ஒவ்வொன்றாக எ இல் [1]:\n            அச்சிடு(எ)\n"
                             "    ஒவ்வொன்றாக எ இல் வரம்பு(3):\n        அச்சிடு(எ)\n"
                             "    ஒவ்வொன்றாக எ இல் வரம்பு(0, 9, 2):\n        அச்சிடு(எ)\n";
    const auto steps = [&](const std::string& source) {
        const std::string body = WrittenProgram(source).body("f_f");
        std::size_t count = 0;
        for (std::size_t at = body.find("step("); at != std::string::npos; at = body.find("step(", at + 1)) {
            ++count;
        }
        return count;
    };
    EXPECT_EQ(steps(work + "f()\n"), 0U);
    EXPECT_EQ(steps(work + "வலைதளம் தளம்(\n    தலைமை()\n    குமரி(உரை(\"அ\"))\n    வரையறை()\n)\n"), 5U);
}

TEST(SecondWriterStatements, BranchesOfOneConditionStayOneChain) {
    EXPECT_THAT(
        WrittenProgram("அ = 1\nஎனில் அ சமம் 1:\n    அச்சிடு(1)\nஇல்லைஎனில் அ சமம் 2:\n    அச்சிடு(2)\nஇல்லை:\n    அச்சிடு(3)\n")
            .statements(),
        HasSubstr("if (equal(v_அ, 1LL)) {\nprint({1LL});\n} else if (equal(v_அ, 2LL)) {\nprint({2LL});\n"
                  "} else {\nprint({3LL});\n}\n"));
}

TEST(SecondWriterStatements, ACaseOfAnotherKindIsComparedAsAValue) {
    // C++ would compare a number with a truth value.
    EXPECT_THAT(
        WrittenProgram("தேர்வு 1:\n    நிலை மெய்:\n        அச்சிடு(1)\n    நிலை 1:\n        அச்சிடு(2)\n").statements(),
        HasSubstr("const Whole subject1 = 1LL;\nif (equal(subject1, Value(true))) {\nprint({1LL});\n"
                  "} else if (equal(subject1, 1LL)) {\n"));
}

TEST(SecondWriterStatements, FaultsAreCaughtWithTheirMessage) {
    EXPECT_THAT(WrittenProgram("முயற்சி:\n    அச்சிடு(1)\nபிடி(ஏன்):\n    அச்சிடு(ஏன்)\n").statements(),
                HasSubstr("try {\nconst Attempt attempt;\nprint({1LL});\n} catch (const Fault& fault) {\n"
                          "fault.beginHandler();\nv_ஏன் = fault.message();\nprint({v_ஏன்});\n}\n"));
}

TEST(SecondWriterStatements, AFunctionWithoutAResultGivesNothing) {
    EXPECT_THAT(WrittenProgram("செயல் f():\n    விடு\nf()\n").body("f_f"), testing::EndsWith("return Value();\n"));
}

TEST(SecondWriterStatements, InnerFunctionsAreThereFromTheBeginning) {
    EXPECT_THAT(
        WrittenProgram("செயல் f():\n    அ = 1\n    எனில் மெய்:\n        செயல் g():\n            திரும்பு அ\n    வ = g\n"
                       "    திரும்பு வ()\nf()\n")
            .body("f_f"),
        HasSubstr("v_g = function(info_g, {c_அ.cell()});\nv_அ = 1LL;\n"));
}

} // namespace
} // namespace pozhil::test
