#include "support/second_writing.h"

#include <gmock/gmock.h>

namespace pozhil::test {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string lastOf(const std::string& source) {
    const std::string all = WrittenProgram(source).statements();
    const std::size_t end = all.find_last_not_of('\n');
    const std::size_t begin = all.rfind('\n', end);
    return all.substr(begin + 1, end - begin);
}

TEST(SecondWriterAssignments, TextsGrowWhereTheyAre) {
    EXPECT_EQ(lastOf("உ = \"\"\nஉ = உ இணை \"அ\"\n"), "joinTo(v_உ, texts[1], @);");
    EXPECT_EQ(lastOf("உ = \"\"\nஉ = உ இணை \"அ\" இணை 2\n"), "{ joinTo(v_உ, texts[1], @); joinTo(v_உ, 2LL, @); }");
    EXPECT_THAT(lastOf("உ = \"\"\nஉ கூட்டிசேர் \"அ\"\n"), testing::StartsWith("addTo(v_உ, texts[1], "));
}

TEST(SecondWriterAssignments, ListsGrowWhereTheyAre) {
    EXPECT_THAT(lastOf("ப = []\nப = ப கூட்டு [1]\n"), testing::StartsWith("addTo(v_ப, list({1LL}), "));
}

TEST(SecondWriterAssignments, WhatHoldsTheVariableItselfIsNoGrowth) {
    EXPECT_THAT(lastOf("உ = \"அ\"\nஉ = உ இணை உ\n"), testing::StartsWith("v_உ = join(v_உ, v_உ, "));
    EXPECT_THAT(lastOf("உ = \"அ\"\nஉ = \"ஆ\" இணை உ\n"), testing::StartsWith("v_உ = join(texts[1], v_உ, "));
}

TEST(SecondWriterAssignments, ACallThatMayChangeTheVariableSeesItBeforeItGrows) {
    const std::string source = "உ = \"அ\"\n"
                               "செயல் f():\n"
                               "    பொது உ\n"
                               "    உ = \"இ\"\n"
                               "    திரும்பு \"ஈ\"\n"
                               "உ = உ இணை f()\n";
    EXPECT_THAT(lastOf(source), HasSubstr("v_உ = ({ Value t1 = v_உ; join(t1, f_f("));
    EXPECT_THAT(lastOf(source), Not(HasSubstr("joinTo")));
}

TEST(SecondWriterAssignments, NativeNumbersAreCountedNatively) {
    EXPECT_EQ(WrittenProgram("செயல் f():\n    அ = 1\n    அ கூட்டிசேர் 2\n    திரும்பு அ\nf()\n").body("f_f"),
              "Whole v_அ = 1LL;\nv_அ = add(v_அ, 2LL, @);\nreturn v_அ;\n");
}

TEST(SecondWriterAssignments, ElementsAreReachedThroughTheirPlaces) {
    EXPECT_EQ(lastOf("ப = [[1]]\nப[0][0] = 5\n"), "slot(element(v_ப, 0LL, @), 0LL, @) = 5LL;");
    EXPECT_THAT(lastOf("ப = [1]\nப[0] கூட்டிசேர் 5\n"), testing::StartsWith("addTo(element(v_ப, 0LL, @), 5LL, "));
    EXPECT_THAT(lastOf("ப = [1]\nப[0] பெருக்குசேர் 5\n"),
                testing::StartsWith("{ Value& t1 = element(v_ப, 0LL, @); t1 = multiply(t1, 5LL, "));
}

TEST(SecondWriterAssignments, WhatStandsInAPlaceGrowsThere) {
    EXPECT_EQ(lastOf("ப = [[1]]\nப[0][0] = ப[0][0] கூட்டு 5\n"),
              "addTo(element(element(v_ப, 0LL, @), 0LL, @), 5LL, @);");
    EXPECT_EQ(lastOf("ப = [1]\nப[0] = ப[0] கழி 5\n"),
              "{ Value& t1 = element(v_ப, 0LL, @); t1 = subtract(t1, 5LL, @); }");
    EXPECT_EQ(lastOf("ப = [\"\"]\nப[0] = ப[0] இணை 1 இணை 2\n"),
              "{ Value& t1 = element(v_ப, 0LL, @); joinTo(t1, 1LL, @); joinTo(t1, 2LL, @); }");
    EXPECT_THAT(lastOf("ப = [1]\nப[0] = ப[1] கூட்டு 5\n"), Not(HasSubstr("addTo")));
}

TEST(SecondWriterAssignments, TemporariesAreGoneBeforeAPlaceIsWritten) {
    // The inner list would have two holders, and be copied.
    EXPECT_EQ(lastOf("ப = [[1]]\nப[0][0] = ப[0][1]\n"),
              "{ Value t1 = get(get(v_ப, 0LL, @), 1LL, @); slot(element(v_ப, 0LL, @), 0LL, @) = moved(t1); }");
}

TEST(SecondWriterAssignments, AValueThatChangesThePlaceComesAfterWhatStoodThere) {
    const std::string source = "ப = [1]\n"
                               "செயல் f():\n"
                               "    பொது ப\n"
                               "    ப = [7]\n"
                               "    திரும்பு 5\n"
                               "ப[0] கூட்டிசேர் f()\n";
    EXPECT_THAT(lastOf(source), HasSubstr("{ Value t1 = element(v_ப, 0LL, @); Value t2 = add(t1, "));
}

TEST(SecondWriterAssignments, APlaceIsFoundBeforeAValueThatMayFail) {
    EXPECT_EQ(lastOf("ப = [1]\nஆ = [1]\nப[0] கூட்டிசேர் ஆ[0]\n"),
              "{ Value& t1 = element(v_ப, 0LL, @); addTo(t1, get(v_ஆ, 0LL, @), @); }");
    // What the value may hold is looked at when it is there.
    EXPECT_EQ(lastOf("ப = [1, 2]\nப[0] கூட்டிசேர் ப[1]\n"),
              "{ Value& t1 = element(v_ப, 0LL, @); Value t2 = get(v_ப, 1LL, @); "
              "addTo(isContainer(t2) ? element(v_ப, 0LL, @) : t1, t2, @); }");
    EXPECT_EQ(lastOf("ப = [1, 2]\nப[0] கூட்டிசேர் 1\n"), "addTo(element(v_ப, 0LL, @), 1LL, @);");
}

TEST(SecondWriterAssignments, AVariableWithoutAValueIsToldBeforeAValueThatMayFail) {
    const std::string unset = "செயல் f(எ):\n    எனில் எ:\n        அ = 1\n    அ கூட்டிசேர் நிலை(எ)\n    திரும்பு அ\n"
                              "செயல் நிலை(எ):\n    அச்சிடு(எ)\n    திரும்பு 2\nf(மெய்)\n";
    EXPECT_THAT(WrittenProgram(unset).body("f_f"), HasSubstr("{ checked(v_அ, \"அ\", @); addTo(checked(v_அ, "));
}

TEST(SecondWriterAssignments, AListIsNotPutIntoItself) {
    // The reference to the place and the value would be the same block.
    EXPECT_THAT(lastOf("ப = [1]\nப[0] = ப\n"), testing::StartsWith("{ Value t1 = v_ப; slot(v_ப, "));
    EXPECT_THAT(lastOf("ப = [[1]]\nசேர்(ப[0], ப)\n"), HasSubstr("{ Value t1 = v_ப; append(element(v_ப, 0LL, "));
}

TEST(SecondWriterAssignments, ADeclarationIsTheFirstAssignmentIfThatIsCertain) {
    EXPECT_EQ(
        WrittenProgram("செயல் f(அ):\n    எனில் அ:\n        ஆ = 1\n    இல்லை:\n        ஆ = 2\n    இ = ஆ\n    திரும்பு இ\n"
                       "f(மெய்)\n")
            .body("f_f"),
        "Whole v_ஆ = {};\n"
        "if (v_அ) {\n"
        "v_ஆ = 1LL;\n"
        "} else {\n"
        "v_ஆ = 2LL;\n"
        "}\n"
        "Whole v_இ = v_ஆ;\n"
        "return v_இ;\n");
}

} // namespace
} // namespace pozhil::test
