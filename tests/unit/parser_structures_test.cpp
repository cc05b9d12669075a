#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

/// A structure அ with this text as its body.
std::string structure(const std::string& body) {
    return "கட்டமைப்பு அ:\n" + body;
}

const std::string method = "(FunctionDefinition ஆ (தான்) (Block (Pass)))";
const std::string privateMethod = "(FunctionDefinition private ஆ (தான்) (Block (Pass)))";
const std::string field = "(VarDeclaration இ (Number 1) 0)";
const std::string privateField = "(VarDeclaration private இ (Number 1) 0)";

std::string structureTree(const std::string& members) {
    return "(StructDefinition அ " + members + ")";
}

TEST(Structure, SortsItsMembersIntoFieldsAndMethods) {
    EXPECT_EQ(tree(structure("    செயல் ஆ(தான்):\n        விடு\n    இ = 1\n")), structureTree(field + " " + method));
    EXPECT_EQ(tree(structure("    இ = 1\n\n    செயல் ஆ(தான்):\n        விடு\n")), structureTree(field + " " + method));
    EXPECT_EQ(tree(structure("\n\n    ;\n    இ = 1\n\n    ;\n")), structureTree(field));
    EXPECT_EQ(tree(structure("    இ = 1\n    இ = 1\n")), structureTree(field + " " + field));
}

TEST(Structure, FieldsHaveNoDeclaredType) {
    EXPECT_EQ(tree(structure("    இ = [1]\n    ஈ = {}\n    உ = அ()\n    ஊ = இப்போதுநேரம்()\n")),
              structureTree("(VarDeclaration இ (List (Number 1)) 0) (VarDeclaration ஈ (Map) 0) "
                            "(VarDeclaration உ (Call அ) 0) (VarDeclaration ஊ (Call இப்போதுநேரம்) 0)"));
    EXPECT_EQ(tree(structure("    இ = ஈ = 1\n")), structureTree("(VarDeclaration இ (Assignment ஈ = (Number 1)) 0)"));
    EXPECT_EQ(tree(structure("    இ = வினை(ஈ): ஈ\n")), structureTree("(VarDeclaration இ (Lambda (ஈ) ஈ) 0)"));
}

TEST(Structure, MethodsInItsBodyMayDoWithoutSelf) {
    EXPECT_EQ(tree(structure("    செயல் ஆ():\n        விடு\n")),
              structureTree("(FunctionDefinition ஆ () (Block (Pass)))"));
    EXPECT_EQ(tree(structure("    செயல் ஆ(இ):\n        விடு\n")),
              structureTree("(FunctionDefinition ஆ (இ) (Block (Pass)))"));
    EXPECT_EQ(tree(structure("    செயல் ஆ(self, மாற்று இ):\n        திரும்பு 1\n")),
              structureTree("(FunctionDefinition ஆ (self &இ) (Block (Return (Number 1))))"));
}

TEST(Structure, MethodsReportTheirFaultsAsFunctionsDo) {
    EXPECT_EQ(fault(structure("    செயல் 5(தான்):\n        விடு\n")), "பொழி-231 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் = 5\n")), "பொழி-231 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் ஆ:\n        விடு\n")), "பொழி-203 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் ஆ(தான், 5):\n        விடு\n")), "பொழி-232 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் ஆ(தான்:\n        விடு\n")), "பொழி-204 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் ஆ(தான்)\n        விடு\n")), "பொழி-202 வரி 2");
    EXPECT_EQ(fault(structure("    செயல் ஆ(தான்): விடு\n")), "பொழி-202 வரி 2");
}

TEST(Structure, NeedsANameThatCanBeAVariable) {
    EXPECT_EQ(tree("கட்டமைப்பு சுற்று:\n    இ = 1\n"), "(StructDefinition சுற்று " + field + ")");
    EXPECT_EQ(tree("கட்டமைப்பு உரை:\n    இ = 1\n"), "(StructDefinition உரை " + field + ")");
    for (const std::string name : {"", "5", "\"அ\"", "மெய்", "(அ)", "ரகசிய"}) {
        EXPECT_EQ(fault("கட்டமைப்பு " + name + ":\n    இ = 1\n"), "பொழி-210 வரி 1") << name;
    }
}

TEST(Structure, NeedsColonLineEndAndIndentation) {
    EXPECT_EQ(fault("கட்டமைப்பு அ\n    இ = 1\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("கட்டமைப்பு அ: இ = 1\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\nஇ = 1\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\n    இ = 1\n    "), "பொழி-292 வரி 3");
}

TEST(Structure, DropsStatementsThatAreNoMembers) {
    EXPECT_EQ(tree(structure("    விடு\n")), "(StructDefinition அ)");
    EXPECT_EQ(tree(structure("    அச்சிடு(1)\n    இ = 1\n")), structureTree(field));
    EXPECT_EQ(tree(structure("    எனில் ஈ:\n        விடு\n    இ = 1\n")), structureTree(field));
    EXPECT_EQ(tree(structure("    கட்டமைப்பு ஈ:\n        இ = 1\n    இ = 1\n")), structureTree(field));
}

TEST(Structure, KeepsWhatDroppedStatementsDefine) {
    const std::string inner = "    வடிவமைப்பு வடிவம்:\n        செயல் ஆ(தான்)\n    கட்டமைப்பு பெரியது:\n        இ = 1\n";
    EXPECT_EQ(fault(structure(inner) + "கட்டமைப்பு ஈ(வடிவம்):\n    இ = 1\n"), "பொழி-273 வரி 6");
    EXPECT_EQ(fault(structure(inner) + "கட்டமைப்பு ஈ(பெரியது):\n    இ = 1\n"), "none");
    EXPECT_EQ(fault(structure("    ரகசிய (\n" + inner + "    )\n") + "கட்டமைப்பு ஈ(வடிவம்):\n    இ = 1\n"),
              "பொழி-273 வரி 8");
}

TEST(Structure, RefusesPlainExpressions) {
    for (const std::string member : {"ஈ()", "ஈ", "5", "ஈ.உ = 1", "ஈ[0] = 1", "ஈ கூட்டிசேர் 1", "அளவு = 1", "பொது"}) {
        const std::string line = member == "பொது" ? "none" : "பொழி-210 வரி 2";
        EXPECT_EQ(fault(structure("    " + member + "\n")), line) << member;
    }
    EXPECT_EQ(fault(structure("    )\n")), "பொழி-209 வரி 2");
    EXPECT_EQ(fault(structure("    ஈ 5\n")), "பொழி-208 வரி 2");
    EXPECT_EQ(fault(structure("    இ = 1\n        ஈ = 1\n")), "பொழி-111 வரி 3");
}

TEST(Structure, NeedsALineEndBehindEachField) {
    EXPECT_EQ(fault(structure("    இ = 1 ஈ = 2\n")), "பொழி-202 வரி 2");
    EXPECT_EQ(fault(structure("    இ = 1")), "பொழி-202 வரி 2");
    EXPECT_EQ(fault(structure("    விடு விடு\n")), "பொழி-202 வரி 2");
    EXPECT_EQ(tree(structure("    விடு")), "(StructDefinition அ)");
}

TEST(Structure, LeavesThePlaceBehindItToTheNextStatement) {
    EXPECT_EQ(tree(structure("    இ = 1\n") + "விடு\n"), structureTree(field) + " (Pass)");
    EXPECT_EQ(tree("எனில் ஈ:\n    கட்டமைப்பு அ:\n        இ = 1\n    விடு\nதொடர்\n"),
              "(If ஈ (Block " + structureTree(field) + " (Pass)) null) (Continue)");
}

TEST(Visibility, IsGivenMemberByMember) {
    EXPECT_EQ(tree(structure("    ரகசிய இ = 1\n    இ = 1\n")), structureTree(privateField + " " + field));
    EXPECT_EQ(tree(structure("    ரகசியம் இ = 1\n")), structureTree(privateField));
    EXPECT_EQ(tree(structure("    பொது இ = 1\n    ரகசிய இ = 1\n")), structureTree(field + " " + privateField));
    EXPECT_EQ(tree(structure("    ரகசிய செயல் ஆ(தான்):\n        விடு\n    இ = 1\n")),
              structureTree(field + " " + privateMethod));
    EXPECT_EQ(tree(structure("    பொது செயல் ஆ(தான்):\n        விடு\n    இ = 1\n")), structureTree(field + " " + method));
}

TEST(Visibility, OfAMethodNeedsSelfFirst) {
    EXPECT_EQ(fault(structure("    ரகசிய செயல் ஆ():\n        விடு\n")), "பொழி-271 வரி 2");
    EXPECT_EQ(fault(structure("    பொது செயல் ஆ(இ):\n        விடு\n")), "பொழி-271 வரி 2");
    EXPECT_EQ(fault(structure("    ரகசிய செயல் ஆ(இ, தான்):\n        விடு\n")), "பொழி-271 வரி 2");
    EXPECT_EQ(fault(structure("    ரகசிய செயல் ஆ(\n\n    இ):\n        விடு\n")), "பொழி-271 வரி 2");
    EXPECT_EQ(tree(structure("    ரகசிய செயல் ஆ(self):\n        விடு\n")),
              structureTree("(FunctionDefinition private ஆ (self) (Block (Pass)))"));
}

TEST(Visibility, WordOnItsOwnLineSaysNothing) {
    EXPECT_EQ(tree(structure("    ரகசிய\n    இ = 1\n")), structureTree(field));
    EXPECT_EQ(tree(structure("    பொது\n    இ = 1\n")), structureTree(field));
    EXPECT_EQ(tree(structure("    ரகசிய பொது இ = 1\n")), structureTree(field));
}

TEST(VisibilityGroup, GivesItsVisibilityToAllItsMembers) {
    EXPECT_EQ(tree(structure("    ரகசிய (இ = 1)\n    இ = 1\n")), structureTree(privateField + " " + field));
    EXPECT_EQ(tree(structure("    ரகசிய (இ = 1 இ = 1)\n")), structureTree(privateField + " " + privateField));
    EXPECT_EQ(tree(structure("    பொது (இ = 1)\n    ரகசிய இ = 1\n")), structureTree(field + " " + privateField));
    EXPECT_EQ(tree(structure("    ரகசிய ()\n    இ = 1\n")), structureTree(field));
}

TEST(VisibilityGroup, MaySpanLinesWithAnyIndentation) {
    const std::string expected = structureTree(privateField + " " + privateMethod);
    EXPECT_EQ(tree(structure("    ரகசிய (\n        இ = 1\n        செயல் ஆ(தான்):\n            விடு\n    )\n")), expected);
    EXPECT_EQ(tree(structure("    ரகசிய (\n    இ = 1\n\n    செயல் ஆ(தான்):\n        விடு\n    )\n")), expected);
    EXPECT_EQ(tree(structure("    ரகசிய (இ = 1\n        செயல் ஆ(தான்):\n            விடு\n    )\n")), expected);
    EXPECT_EQ(tree(structure("    ரகசிய (\n        இ = 1\n    )\n    இ = 1\n")),
              structureTree(privateField + " " + field));
}

TEST(VisibilityGroup, ChecksItsMembersAsAStructureDoes) {
    EXPECT_EQ(fault(structure("    ரகசிய (\n        செயல் ஆ():\n            விடு\n    )\n")), "பொழி-271 வரி 3");
    EXPECT_EQ(fault(structure("    ரகசிய (\n        ஈ()\n    )\n")), "பொழி-210 வரி 3");
    EXPECT_EQ(fault(structure("    ரகசிய (\n        பொது இ = 1\n    )\n")), "பொழி-210 வரி 3");
    EXPECT_EQ(fault(structure("    ரகசிய (\n        இ = வினை(): 1\n    )\n")), "பொழி-234 வரி 3");
    EXPECT_EQ(tree(structure("    ரகசிய (\n        விடு\n        இ = 1\n    )\n")), structureTree(privateField));
}

TEST(VisibilityGroup, NeedsItsBracket) {
    EXPECT_EQ(fault(structure("    ரகசிய (\n        இ = 1\n")), "பொழி-204 வரி 2");
    EXPECT_EQ(fault(structure("    ரகசிய (\n        இ = 1\nவிடு\n")), "பொழி-204 வரி 2");
    EXPECT_EQ(fault(structure("    ரகசிய (இ = 1\n    செயல் ஆ(தான்):\n        விடு\n")), "பொழி-204 வரி 2");
}

TEST(Parent, StandsBehindTheNameAndBeforeTheChild) {
    const std::string parent = "கட்டமைப்பு பெரியது:\n    இ = 1\n";
    EXPECT_EQ(tree(parent + "கட்டமைப்பு அ(பெரியது):\n    இ = 1\n"),
              "(StructDefinition பெரியது " + field + ") (StructDefinition அ < பெரியது " + field + ")");
    EXPECT_EQ(fault("கட்டமைப்பு அ(பெரியது):\n    இ = 1\n" + parent), "பொழி-272 வரி 1");
    EXPECT_EQ(fault("\nகட்டமைப்பு அ(அ):\n    இ = 1\n"), "பொழி-272 வரி 2");
    EXPECT_EQ(fault("செயல் ஆ():\n    விடு\nகட்டமைப்பு அ(ஆ):\n    இ = 1\n"), "பொழி-272 வரி 3");
}

TEST(Parent, IsTheStructuresOwnNameIfNoneIsGiven) {
    const pozhil::Program program = parseText(structure("    இ = 1\n"));
    const auto* node = pozhil::nodeCast<pozhil::StructDefinitionStatement>(program.statements.front().get());
    ASSERT_NE(node, nullptr);
    EXPECT_FALSE(node->hasParent);
    EXPECT_EQ(node->parent.value, "அ");
}

TEST(Parent, IsOnePlainName) {
    for (const std::string parent : {"", "5", "சுற்று", "உரை", "\"ஆ\"", "(ஆ)", "\nஆ"}) {
        EXPECT_EQ(fault("கட்டமைப்பு அ(" + parent + "):\n    இ = 1\n"), "பொழி-210 வரி 1") << parent;
    }
    EXPECT_EQ(fault("கட்டமைப்பு அ(ஆ:\n    இ = 1\n"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("கட்டமைப்பு அ(ஆ, இ):\n    இ = 1\n"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("\nகட்டமைப்பு அ(ஆ\n):\n    இ = 1\n"), "பொழி-204 வரி 2");
}

TEST(AbstractStructure, ListsMethodsInOneOfTwoForms) {
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n    செயல் ஆ(தான்)\n    செயல் இ(தான், ஈ, மாற்று உ)\n"),
              "(AbstractStructDefinition அ (ஆ தான்) (இ தான் ஈ &உ))");
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n    செயல் ஆ(தான்): விடு\n    செயல் இ(self): விடு\n"),
              "(AbstractStructDefinition அ (ஆ தான்) (இ self))");
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n\n    ;\n    செயல் ஆ(தான்)\n\n    ;\n    செயல் இ(தான்)\n\nவிடு\n"),
              "(AbstractStructDefinition அ (ஆ தான்) (இ தான்)) (Pass)");
}

TEST(AbstractStructure, EndsBehindAMethodWithAnIndentedBody) {
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n    செயல் ஆ(தான்):\n        விடு\nவிடு\n"),
              "(AbstractStructDefinition அ (ஆ தான்)) (Pass)");
    EXPECT_EQ(tree("வடிவமைப்பு அ:\n    செயல் ஆ(தான்):\n        விடு\n    செயல் இ(தான்):\n        விடு\nவிடு\n"),
              "(AbstractStructDefinition அ (ஆ தான்)) (FunctionDefinition இ (தான்) (Block (Pass))) (Pass)");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்):\n        விடு\n    செயல் இ(தான்)\n"), "பொழி-202 வரி 4");
    EXPECT_EQ(tree("எனில் ஈ:\n    வடிவமைப்பு அ:\n        செயல் ஆ(தான்):\n            விடு\n    விடு\n"),
              "(If ஈ (Block (AbstractStructDefinition அ (ஆ தான்))) null) (Pass)");
}

TEST(AbstractStructure, MissingBracketOfAMethodIsToldWhereTheNextTokenStands) {
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(\n\n    தான் இ)\n"), "பொழி-204 வரி 4");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(\n    தான்\n    )\n"), "பொழி-204 வரி 3");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ\n"), "பொழி-203 வரி 2");
}

TEST(AbstractStructure, NeedsAPlainName) {
    for (const std::string name : {"", "5", "சுற்று", "உரை", "\"அ\""}) {
        EXPECT_EQ(fault("வடிவமைப்பு " + name + ":\n    செயல் ஆ(தான்)\n"), "பொழி-210 வரி 1") << name;
    }
    EXPECT_EQ(fault("வடிவமைப்பு அ\n    செயல் ஆ(தான்)\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("வடிவமைப்பு அ: செயல் ஆ(தான்)\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\nசெயல் ஆ(தான்)\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ(ஆ):\n    செயல் ஆ(தான்)\n"), "பொழி-202 வரி 1");
}

TEST(AbstractStructure, HoldsMethodsOnly) {
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    இ = 1\n"), "பொழி-210 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    விடு\n"), "பொழி-210 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்): தொடர்\n"), "பொழி-210 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்):\n        திரும்பு\n"), "பொழி-210 வரி 3");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்) செயல் இ(தான்)\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்)"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்)\n    "), "பொழி-292 வரி 3");
}

TEST(AbstractStructure, MethodsHavePlainNamesAndSelfFirst) {
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் சுற்று(தான்)\n"), "பொழி-231 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் (தான்)\n"), "பொழி-231 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான்\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(தான், 5)\n"), "பொழி-232 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ()\n"), "பொழி-271 வரி 2");
    EXPECT_EQ(fault("வடிவமைப்பு அ:\n    செயல் ஆ(இ, தான்)\n"), "பொழி-271 வரி 2");
}

TEST(AbstractParent, AsksForItsMethodsWithAsManyParameters) {
    const std::string parent = "வடிவமைப்பு பெரியது:\n    செயல் ஆ(தான், ஈ)\n";
    const std::string child = "கட்டமைப்பு அ(பெரியது):\n";
    EXPECT_EQ(fault(parent + child + "    செயல் ஆ(தான், உ):\n        விடு\n"), "none");
    EXPECT_EQ(fault(parent + child + "    செயல் ஆ(உ, ஊ):\n        விடு\n"), "none");
    EXPECT_EQ(fault(parent + child + "    ரகசிய செயல் ஆ(தான், உ):\n        விடு\n"), "none");
    EXPECT_EQ(fault(parent + child + "    ரகசிய (\n    செயல் ஆ(தான், உ):\n        விடு\n    )\n"), "none");
    EXPECT_EQ(fault(parent + child + "    செயல் ஆ(தான்):\n        விடு\n"), "பொழி-273 வரி 3");
    EXPECT_EQ(fault(parent + child + "    செயல் ஆ(தான், உ, ஊ):\n        விடு\n"), "பொழி-273 வரி 3");
    EXPECT_EQ(fault(parent + child + "    செயல் இ(தான், உ):\n        விடு\n"), "பொழி-273 வரி 3");
    EXPECT_EQ(fault(parent + child + "    ஆ = 1\n"), "பொழி-273 வரி 3");
}

TEST(AbstractParent, CountsTheLastOfSeveralMethodsOfAName) {
    const std::string parent = "வடிவமைப்பு பெரியது:\n    செயல் ஆ(தான்)\n";
    const std::string right = "    செயல் ஆ(தான்):\n        விடு\n";
    const std::string wrong = "    செயல் ஆ(தான், உ):\n        விடு\n";
    EXPECT_EQ(fault(parent + "கட்டமைப்பு அ(பெரியது):\n" + wrong + right), "none");
    EXPECT_EQ(fault(parent + "கட்டமைப்பு அ(பெரியது):\n" + right + wrong), "பொழி-273 வரி 3");
}

TEST(AbstractParent, ComesBeforeAStructureOfTheSameName) {
    EXPECT_EQ(fault("கட்டமைப்பு பெரியது:\n    விடு\nவடிவமைப்பு பெரியது:\n    செயல் ஆ(தான்)\n"
                    "கட்டமைப்பு அ(பெரியது):\n    விடு\n"),
              "பொழி-273 வரி 5");
}

TEST(Enumeration, HoldsOneNameALine) {
    EXPECT_EQ(tree("வகை அ:\n    ஆ\n    சுற்று\n    உரை\nஅச்சிடு(அ.ஆ, அ.சுற்று, அ.உரை)\n"),
              "(Print (Number 0) (Number 1) (Number 2))");
    EXPECT_EQ(tree("வகை அ:\n\n    ஆ\n\n    இ\nஅச்சிடு(அ.இ)\n"), "(Print (Number 1))");
    for (const std::string member : {"5", "\"ஆ\"", "மெய்", "(ஆ)", "ரகசிய"}) {
        EXPECT_EQ(fault("வகை அ:\n    " + member + "\n"), "பொழி-210 வரி 2") << member;
    }
    EXPECT_EQ(fault("வகை அ:\n    ஆ இ\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வகை அ:\n    ஆ, இ\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வகை அ:\n    ஆ = 5\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வகை அ:\n    ஆ"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வகை அ:\n    ஆ\n        இ\n"), "பொழி-210 வரி 3");
}

TEST(Enumeration, NeedsColonLineEndAndIndentation) {
    EXPECT_EQ(fault("வகை அ\n    ஆ\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("வகை அ: ஆ\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("வகை அ:\nஆ\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("வகை அ = 1\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("வகை அ:\n    ஆ\n    "), "பொழி-292 வரி 3");
}

} // namespace
