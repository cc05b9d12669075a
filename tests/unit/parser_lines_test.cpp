#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

/// The tree of a print statement on line 3, with the lines of its nodes.
std::string valueLines(const std::string& expression) {
    return treeWithLines("\n\nஅச்சிடு(" + expression + ")");
}

TEST(Lines, LiteralsAndNamesHaveTheirTokens) {
    EXPECT_EQ(valueLines("1, 1.5, 50%, \"அ\", 'அ', மெய், \"#fff\", அ"),
              "(Print (Number@3 1) (Double@3 1.5) (Percentage@3 50%) (String@3 \"அ\") (Char@3 அ) (Boolean@3 மெய்) "
              "(Color@3 \"#fff\") அ@3)");
    EXPECT_EQ(valueLines("உரை, பெட்டி, தலைமை, குமரி, பாணி, அகலம், உயரம், அழுத்தினால், நிறம்.அ"),
              "(Print உரை@3 பெட்டி@3 தலைமை@3 குமரி@3 பாணி@3 அகலம்@3 உயரம்@3 அழுத்தினால்@3 (Get@3 நிறம்@3 அ))");
}

TEST(Lines, StatementWordsThatAreReadHaveNone) {
    EXPECT_EQ(valueLines("வகை, செயல், இப்போதுநேரம், வரம்பு, சுற்று, செல்க, பக்கம், வரையறை"),
              "(Print வகை செயல் இப்போதுநேரம் வரம்பு சுற்று செல்க பக்கம் வரையறை)");
}

TEST(Lines, OperationsHaveTheirOperators) {
    EXPECT_EQ(valueLines("அ கூட்டு ஆ"), "(Print (Binary@3 அ@3 கூட்டு ஆ@3))");
    EXPECT_EQ(valueLines("அ மற்றும் ஆ"), "(Print (Logical@3 அ@3 மற்றும் ஆ@3))");
    EXPECT_EQ(valueLines("கழி அ"), "(Print (Unary@3 கழி அ@3))");
    EXPECT_EQ(valueLines("அ ? ஆ : இ"), "(Print (Ternary@3 அ@3 ஆ@3 இ@3))");
    EXPECT_EQ(valueLines("அ = ஆ"), "(Print (Assignment@3 அ = ஆ@3))");
    EXPECT_EQ(valueLines("அ.ஆ = இ"), "(Print (SetMember@3 அ@3 ஆ இ@3))");
    EXPECT_EQ(valueLines("அ[ஆ] = இ"), "(Print (Call@3 _set_index_internal அ@3 ஆ@3 இ@3))");
    EXPECT_EQ(valueLines("காட்சி_நிலை.அ: ஆ"), "(Print (SetMember@3 காட்சி_நிலை@3 அ ஆ@3))");
}

TEST(Lines, BracketsCallsAndMembersHaveTheirOpening) {
    EXPECT_EQ(valueLines("(அ)"), "(Print (Grouping@3 அ@3))");
    EXPECT_EQ(valueLines("[அ]"), "(Print (List@3 அ@3))");
    EXPECT_EQ(valueLines("{அ: ஆ}"), "(Print (Map@3 (\"அ\" ஆ@3)))");
    EXPECT_EQ(valueLines("அ(ஆ).இ[ஈ]"), "(Print (Index@3 (Get@3 (Call@3 அ@3 ஆ@3) இ) ஈ@3))");
    EXPECT_EQ(valueLines("அ => ஆ, (அ) => ஆ, வினை(அ): ஆ"),
              "(Print (Lambda@3 (அ) ஆ@3) (Lambda@3 (அ) ஆ@3) (Lambda@3 (அ) ஆ@3))");
}

TEST(Lines, FoldedEnumerationMembersHaveNone) {
    EXPECT_EQ(treeWithLines("வகை அ:\n    ஆ\nஅச்சிடு(அ.ஆ, அ.இ)"), "(Print (Number 0) (Get@3 அ@3 இ))");
}

TEST(Lines, EveryNodeOfAnExpressionOverSeveralLinesHasItsOwn) {
    EXPECT_EQ(treeWithLines("அ = {\n    ஆ: 1,\n    இ: [2],\n    ஈ:\n        உ(3)\n}\n"),
              "(Expression (Assignment@1 அ = (Map@1 (\"ஆ\" (Number@2 1)) (\"இ\" (List@3 (Number@3 2))) "
              "(\"ஈ\" (Call@5 உ@5 (Number@5 3))))))");
    EXPECT_EQ(treeWithLines("அ ஃஃ\nஃஃ = ஆ ஃஃ\nஃஃ கூட்டு ஃஃ\nஃஃ இ"),
              "(Expression (Assignment@2 அ = (Binary@3 ஆ@2 கூட்டு இ@4)))");
    EXPECT_EQ(treeWithLines("காட்சி_நிலை ஃஃ\nஃஃ . ஃஃ\nஃஃ அ ஃஃ\nஃஃ : 1"),
              "(Expression (SetMember@4 காட்சி_நிலை@1 அ (Number@4 1)))");
    EXPECT_EQ(treeWithLines("அச்சிடு அ ஃஃ\nஃஃ ? ஆ ஃஃ\nஃஃ : இ"), "(Print (Ternary@2 அ@1 ஆ@2 இ@3))");
    EXPECT_EQ(treeWithLines("அச்சிடு (ஃஃ\nஃஃ (அ ஃஃ\nஃஃ ) => ஆ)"), "(Print (Lambda@2 (அ) ஆ@3))");
    EXPECT_EQ(treeWithLines("அ ஃஃ\nஃஃ [ ஃஃ\nஃஃ 0] ஃஃ\nஃஃ = 1"),
              "(Expression (Call@4 _set_index_internal அ@1 (Number@3 0) (Number@4 1)))");
    EXPECT_EQ(treeWithLines("அ ஃஃ\nஃஃ (ஆ ஃஃ\nஃஃ ) . ஃஃ\nஃஃ இ ( )"), "(Expression (Call@4 (Get@4 (Call@2 அ@1 ஆ@2) இ)))");
}

TEST(Lines, StatementsHaveNone) {
    EXPECT_EQ(treeWithLines("\nவிடு\nநிறுத்து\nதொடர்\nபுதுப்பி()\nஅச்சிடு()\n"),
              "(Pass) (Break) (Continue) (SetState) (Print)");
    EXPECT_EQ(treeWithLines("\nஎனில் 1:\n    விடு\nஇல்லை:\n    காத்திரு 1\n"),
              "(If (Number@2 1) (Block (Pass)) (Block (Wait (Number@5 1))))");
    EXPECT_EQ(treeWithLines("\nசுற்று 1:\n    விடு\nஒவ்வொன்றாக அ இல் ஆ:\n    அ()\n"),
              "(While (Number@2 1) (Block (Pass))) (For அ ஆ@4 (Block (Expression (Call@5 அ@5))))");
    EXPECT_EQ(treeWithLines("\nதேர்வு 1:\n    நிலை 2:\n        விடு\nமுயற்சி:\n    விடு\nபிடி:\n    விடு\n"),
              "(Switch (Number@2 1) ((Number@3 2) (Block (Pass))) null) (TryCatch (Block (Pass)) (Block (Pass)) பிழை)");
    EXPECT_EQ(treeWithLines("\nசெயல் அ(ஆ):\n    திரும்பு ஆ\n"), "(FunctionDefinition அ (ஆ) (Block (Return ஆ@3)))");
    EXPECT_EQ(treeWithLines("\nகட்டமைப்பு அ:\n    ஆ = 1\nவடிவமைப்பு இ:\n    செயல் ஈ(தான்)\n"),
              "(StructDefinition அ (VarDeclaration ஆ (Number@3 1) 0)) (AbstractStructDefinition இ (ஈ தான்))");
}

} // namespace
