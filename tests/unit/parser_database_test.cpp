#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string insertWord = "நிகழ்நேர.தரவுசேர்";
const std::string updateWord = "நிகழ்நேர.தரவுமாற்று";
const std::string deleteWord = "நிகழ்நேர.தரவுஅழி";
const std::string readWord = "நிகழ்நேர.தரவுபடி";

/// The forms that write data, with the names of their nodes.
const std::pair<std::string, std::string> writes[] = {{insertWord, "RTDBInsert"}, {updateWord, "RTDBUpdate"}};

TEST(DatabaseWrite, TakesAPathAndData) {
    for (const auto& [word, name] : writes) {
        EXPECT_EQ(tree(word + "(\"அ\") {}"), "(Expression (" + name + " (String \"அ\") (Map)))");
        EXPECT_EQ(tree(word + "(\"அ\" இணை ஆ) {இ: 1, \"ஈ\": உ, இ: 2,}"),
                  "(Expression (" + name +
                      " (Binary (String \"அ\") இணை ஆ) (Map (\"இ\" (Number 1)) (\"ஈ\" உ) (\"இ\" (Number 2)))))");
        EXPECT_EQ(tree("அ = " + word + "(\"அ\") {}"),
                  "(Expression (Assignment அ = (" + name + " (String \"அ\") (Map))))");
    }
}

TEST(DatabaseWrite, MayBeLaidOutFreely) {
    for (const auto& [word, name] : writes) {
        EXPECT_EQ(
            treeWithLines("\n" + word + "(\"அ\")\n\n{\n    இ\n        :\n            1\n    ,\n    ஈ: 2\n}\nவிடு\n"),
            "(Expression (" + name + "@2 (String@2 \"அ\") (Map@2 (\"இ\" (Number@7 1)) (\"ஈ\" (Number@9 2))))) (Pass)");
    }
}

TEST(DatabaseWrite, ReportsItsFaults) {
    for (const auto& [word, name] : writes) {
        EXPECT_EQ(fault("\n" + word + "\n"), "பொழி-203 வரி 2");
        EXPECT_EQ(fault("\n" + word + "(\"அ\"\n"), "பொழி-204 வரி 2");
        EXPECT_EQ(fault("\n" + word + "(\"அ\")\n\nவிடு"), "பொழி-206 வரி 4");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\n5: 1}"), "பொழி-212 வரி 3");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\nஅகலம்: 1}"), "பொழி-212 வரி 3");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\nஇ\n1}"), "பொழி-202 வரி 4");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\nஇ: 1\nஈ: 2}"), "பொழி-206 வரி 4");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {இ: 1"), "பொழி-206 வரி 2");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\nஇ: 1,\n, ஈ: 2}"), "பொழி-212 வரி 4");
        EXPECT_EQ(fault("\n" + word + "(\"அ\") {\nஇ:\n}"), "பொழி-201 வரி 4");
        EXPECT_EQ(fault("\n" + word + "(\"அ\", \"ஆ\") {}"), "பொழி-204 வரி 2");
        EXPECT_EQ(fault("\n" + word + "(\n\"அ\") {}"), "பொழி-201 வரி 2");
        EXPECT_EQ(fault("\n" + word + "()"), "பொழி-201 வரி 2");
        EXPECT_EQ(fault("\n" + word + "(\"அ\")\n    {இ: 1}"), "பொழி-206 வரி 3");
    }
}

TEST(DatabaseDelete, TakesAPath) {
    EXPECT_EQ(treeWithLines("\n" + deleteWord + "(\"அ\")\n"), "(Expression (RTDBDelete@2 (String@2 \"அ\")))");
    EXPECT_EQ(fault("\n" + deleteWord + "\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("\n" + deleteWord + "(\"அ\"\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\n" + deleteWord + "()\n"), "பொழி-201 வரி 2");
}

TEST(DatabaseRead, HoldsStatements) {
    EXPECT_EQ(treeWithLines("\n" + readWord + "(\"அ\") {}"), "(RTDBRead@2 (String@2 \"அ\"))");
    EXPECT_EQ(tree(readWord + "(\"அ\")\n{\n    அச்சிடு(தரவு)\n    எனில் ஆ:\n        விடு\n}\nவிடு\n"),
              "(RTDBRead (String \"அ\") (Print தரவு) (If ஆ (Block (Pass)) null)) (Pass)");
    EXPECT_EQ(tree(readWord + "(\"அ\") { வகை இ:\n    ஈ\nவிடு விடு }"), "(RTDBRead (String \"அ\") (Pass) (Pass))");
    EXPECT_EQ(tree("செயல் அ():\n    " + readWord + "(\"அ\") {\n        விடு\n    }\n    விடு\n"),
              "(FunctionDefinition அ () (Block (RTDBRead (String \"அ\") (Pass)) (Pass)))");
}

TEST(DatabaseRead, ItsStatementsMayStandOnOneLine) {
    EXPECT_EQ(tree(readWord + "(\"அ\") { அ = 1 ஆ() ; விடு } விடு"),
              "(RTDBRead (String \"அ\") (Expression (Assignment அ = (Number 1))) (Expression (Call ஆ)) (Pass)) (Pass)");
}

TEST(DatabaseRead, IsAStatementOnly) {
    EXPECT_EQ(fault("\nஅ = " + readWord + "(\"அ\") {}"), "பொழி-201 வரி 2");
}

TEST(DatabaseRead, ReportsItsFaults) {
    EXPECT_EQ(fault("\n" + readWord + "\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\"\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\")\nவிடு"), "பொழி-206 வரி 3");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\") {\nவிடு"), "பொழி-206 வரி 3");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\") {\n5 }"), "பொழி-201 வரி 3");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\") {\nவிடு, விடு }"), "பொழி-201 வரி 3");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\") {\nதிரும்பு }"), "பொழி-233 வரி 3");
    EXPECT_EQ(fault("\n" + readWord + "(\"அ\")\n    { விடு }"), "பொழி-206 வரி 3");
}

} // namespace
