#include "scanner/lexer.h"
#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// Names and parameters in the table of functions, "&" before a reference parameter.
std::string functionTable(const std::string& source) {
    Parser parser(Lexer(source, "").tokenize(), source, "");
    parser.parse();
    std::string text;
    for (const auto& [name, params] : parser.functions()) {
        text += (text.empty() ? "" : " ") + name + "(";
        for (const Param& param : params) {
            text += (text.back() == '(' ? "" : " ") + std::string(param.isMutable ? "&" : "") + param.name.value;
        }
        text += ")";
    }
    return text;
}

TEST(Function, HasNameParametersAndBody) {
    EXPECT_EQ(tree("செயல் அ():\n    விடு\n"), "(FunctionDefinition அ () (Block (Pass)))");
    EXPECT_EQ(tree("செயல் அ(ஆ, இ):\n    திரும்பு ஆ\n"), "(FunctionDefinition அ (ஆ இ) (Block (Return ஆ)))");
    EXPECT_EQ(tree("செயல் அ(\nஆ,\n\nஇ):\n    விடு\n"), "(FunctionDefinition அ (ஆ இ) (Block (Pass)))");
}

TEST(Function, MarksReferenceParameters) {
    EXPECT_EQ(tree("செயல் அ(மாற்று ஆ, இ, மாற்று ஈ):\n    விடு\n"), "(FunctionDefinition அ (&ஆ இ &ஈ) (Block (Pass)))");
    EXPECT_EQ(tree("செயல் அ(மாற்று மாற்று):\n    விடு\n"), "(FunctionDefinition அ (&மாற்று) (Block (Pass)))");
    EXPECT_EQ(fault("செயல் அ(மாற்று):\n    விடு\n"), "பொழி-232 வரி 1");
    EXPECT_EQ(fault("செயல் அ(மாற்று, ஆ):\n    விடு\n"), "பொழி-232 வரி 1");
}

TEST(Function, TakesKeywordsAndWidgetWordsAsNames) {
    for (const std::string name : {"சுற்று", "செயல்", "எனில்", "உரை", "பெட்டி", "பக்கம்", "பாணி", "நிறம்", "மாற்று", "self"}) {
        EXPECT_EQ(tree("செயல் " + name + "(அ):\n    விடு\n"), "(FunctionDefinition " + name + " (அ) (Block (Pass)))");
    }
    for (const std::string name : {"சுற்று", "செயல்", "எனில்", "உரை", "பெட்டி", "பக்கம்", "பாணி", "நிறம்", "தான்"}) {
        EXPECT_EQ(tree("செயல் அ(" + name + "):\n    விடு\n"), "(FunctionDefinition அ (" + name + ") (Block (Pass)))");
    }
}

TEST(Function, NeedsAName) {
    for (const std::string name : {"", "5", "\"அ\"", "மெய்", "ரகசிய", "தலைமை", "கூட்டு", "\nஅ"}) {
        EXPECT_EQ(fault("செயல் " + name + "():\n    விடு\n"), "பொழி-231 வரி 1") << name;
    }
}

TEST(Function, ReportsItsBracketsAtTheLineOfItsName) {
    EXPECT_EQ(fault("\nசெயல் அ:\n    விடு\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("\nசெயல் அ\n():\n    விடு\n"), "பொழி-203 வரி 2");
    EXPECT_EQ(fault("\nசெயல் அ(ஆ:\n    விடு\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nசெயல் அ(\n\nஆ இ):\n    விடு\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nசெயல் அ(ஆ\n):\n    விடு\n"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nசெயல் அ("), "பொழி-232 வரி 2");
}

TEST(Function, NeedsNamesAsParameters) {
    for (const std::string parameters : {"5", "ஆ, 5", "ஆ,", ",", "\"ஆ\"", "மெய்", "ரகசிய", "(ஆ)", "\n"}) {
        const std::string line = parameters == "\n" ? "2" : "1";
        EXPECT_EQ(fault("செயல் அ(" + parameters + "):\n    விடு\n"), "பொழி-232 வரி " + line) << parameters;
    }
    EXPECT_EQ(fault("செயல் அ(ஆ,\n    இ):\n    விடு\n"), "பொழி-232 வரி 2");
    EXPECT_EQ(fault("செயல் அ(ஆ = 1):\n    விடு\n"), "பொழி-204 வரி 1");
}

TEST(Function, NeedsAColonAndABlock) {
    EXPECT_EQ(fault("செயல் அ()\n    விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("செயல் அ(): விடு\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("செயல் அ(): திரும்பு 1\n"), "பொழி-202 வரி 1");
    EXPECT_EQ(fault("செயல் அ():\nவிடு\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("செயல் அ():\n"), "பொழி-202 வரி 2");
    EXPECT_EQ(fault("செயல் அ():\n    விடு\n    "), "பொழி-292 வரி 3");
}

TEST(Function, StandsInAnyBlock) {
    EXPECT_EQ(tree("எனில் அ:\n    செயல் ஆ():\n        விடு\n    விடு\n"),
              "(If அ (Block (FunctionDefinition ஆ () (Block (Pass))) (Pass)) null)");
    EXPECT_EQ(
        tree("செயல் அ():\n    செயல் ஆ():\n        திரும்பு 1\n    திரும்பு ஆ()\n"),
        "(FunctionDefinition அ () (Block (FunctionDefinition ஆ () (Block (Return (Number 1)))) (Return (Call ஆ))))");
}

TEST(FunctionTable, HoldsTheFunctionsOutsideAllOthers) {
    EXPECT_EQ(functionTable("செயல் அ():\n    விடு\nசெயல் ஆ(இ, மாற்று ஈ):\n    விடு\n"), "அ() ஆ(இ &ஈ)");
    EXPECT_EQ(functionTable("செயல் அ():\n    செயல் ஆ():\n        விடு\n"), "அ()");
    EXPECT_EQ(functionTable("எனில் இ:\n    செயல் அ():\n        விடு\n"), "அ()");
    EXPECT_EQ(functionTable("செயல் அ():\n    எனில் இ:\n        செயல் ஆ():\n            விடு\nசெயல் ஈ():\n    விடு\n"),
              "அ() ஈ()");
}

TEST(FunctionTable, HoldsNoMethods) {
    EXPECT_EQ(functionTable("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        விடு\n    ரகசிய செயல் இ(தான்):\n        விடு\n"), "");
    EXPECT_EQ(functionTable("கட்டமைப்பு அ:\n    செயல் ஆ(தான்):\n        செயல் இ():\n            விடு\n"), "");
}

TEST(FunctionTable, KeepsTheLastOfSeveralDefinitionsWhileTheTreeKeepsAll) {
    const std::string source = "செயல் அ(ஆ):\n    விடு\nசெயல் அ(இ, ஈ):\n    தொடர்\n";
    EXPECT_EQ(functionTable(source), "அ(இ ஈ)");
    EXPECT_EQ(tree(source),
              "(FunctionDefinition அ (ஆ) (Block (Pass))) (FunctionDefinition அ (இ ஈ) (Block (Continue)))");
}

} // namespace
