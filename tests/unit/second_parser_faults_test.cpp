#include "front_end/second_edition.h"
#include "parser/tree/second_edition.h"
#include "report/catalogue.h"
#include "support/second_source.h"
#include "support/tree_text.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

SecondProgram parse(const std::string& text) {
    return parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int count = 0; count < times; ++count) {
        result += text;
    }
    return result;
}

/// So many conditions inside each other.
std::string nestedBlocks(int depth) {
    std::string text;
    for (int level = 0; level < depth; ++level) {
        text += std::string(static_cast<std::size_t>(level), ' ') + "எனில் அ:\n";
    }
    return text + std::string(static_cast<std::size_t>(depth), ' ') + "f()\n";
}

TEST(Faults, ComeInTheOrderOfTheTextTenAtMost) {
    EXPECT_THAT(secondFaults("அ = 1 1\nஆ = +\nஇ = )\nஈ = 2 2\n"),
                ElementsAre("530 1 '1'", "506 2 '+'", "526 3 ')'", "530 4 '2'"));
    EXPECT_THAT(secondFaults(repeated("அ = 1 1\n", 30)), SizeIs(MAX_TOLD_FAULTS));
    EXPECT_THAT(secondFaults(repeated("அ = 1 + 1\n", 30)), SizeIs(MAX_TOLD_FAULTS));
    EXPECT_THAT(secondFaults(repeated("அ = 1 1\n", 5) + repeated("அ + 1\n", 30)), SizeIs(MAX_TOLD_FAULTS));
}

TEST(OneMistake, IsToldOnce) {
    EXPECT_THAT(secondFaults("அச்சிடு(\"வணக்கம்)\nஅச்சிடு(1)\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("அச்சிடு((1)\nஅச்சிடு(1)\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("எனில அ:\n    f()\n    அ = 1 1\nஇல்லை:\n    g()\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("அ = 5அ கூட்டு @ 3 3\n"), ElementsAre("519 1 '5அ'", "505 1 '@'"));
    EXPECT_THAT(secondFaults("செயல் f(அ, 5):\n    திரும்பு அ\nf(1)\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("ம = {\n    \"அ\" 1,\n    \"ஆ\": 2\n}\nf()\n"), SizeIs(1));
    EXPECT_THAT(secondFaults("அ = [1,\n  2 2,\n  3\n]\nஆ = 1\n"), SizeIs(1));
}

TEST(Applications, AreToldWhateverElseIsWrong) {
    EXPECT_THAT(secondFaults("வலைதளம் (“முகப்பு”)\n"), ElementsAre("546 1 'வலைதளம்'"));
    EXPECT_THAT(secondFaults("அ = 1 @\nவலைதளம் (\"முகப்பு\") @\nஆ = 2 @\n"), ElementsAre("505 1 '@'", "546 2 'வலைதளம்'"));
}

TEST(Parse, GoesOnAfterAFault) {
    EXPECT_EQ(partialTree("அ = 1 1\nf()\nஎனில் ஆ ஆ:\n    g()\nசெயல் h():\n    இ = 2 2\n    i()\nj()\n"),
              "(Expression (Call f)) (FunctionDefinition h () (Block (Expression (Call i)))) (Expression (Call j))");
    EXPECT_EQ(partialTree("கட்டமைப்பு பை:\n    அ\n    ஆ = 1\nf()\n"),
              "(StructDefinition பை (VarDeclaration ஆ (Number 1) 0)) (Expression (Call f))");
    const std::string group = "கட்டமைப்பு பை:\n    பொது (\n        அ = 1\n            ஆ = 2\n    )\n    இ = 3\nf()\n";
    EXPECT_THAT(secondFaults(group), ElementsAre("524 4 'ஆ'"));
    EXPECT_EQ(partialTree(group),
              "(StructDefinition பை (VarDeclaration அ (Number 1) 0) (VarDeclaration ஆ (Number 2) 0) "
              "(VarDeclaration இ (Number 3) 0)) (Expression (Call f))")
        << "after an indentation in a group";
}

TEST(Slips, AreToldWhereAStatementCantBeUnderstood) {
    const auto suggestion = [](const std::string& text) {
        const SecondProgram program = parse(text);
        return program.faults.empty() ? "" : program.faults.front().suggestion;
    };
    EXPECT_THAT(suggestion("எனில அ:\n    f()\n"), HasSubstr("'எனில்'"));
    EXPECT_THAT(suggestion("அச்சிட \"அ\"\n"), HasSubstr("'அச்சிடு'"));
    EXPECT_THAT(suggestion("அ = 1 கூட்ட 2\n"), HasSubstr("'கூட்டு'"));
    EXPECT_THAT(suggestion("திருமபு 1\n"), HasSubstr("'திரும்பு'"));
    EXPECT_THAT(suggestion("அ = 1 ஃகருத்து\n"), HasSubstr("'ஃ'"));
    EXPECT_THAT(suggestion("அ = 1 1\n"), IsEmpty());
    EXPECT_THAT(secondFaults("எல்லை = 1\nவிலை = எல்லை\nநிலா = 2\nசெயலி(3)\n"), IsEmpty()) << "good names are no slips";
}

TEST(Nesting, OfBlocksGoesAThousandDeep) {
    EXPECT_THAT(secondFaults(nestedBlocks(1000)), IsEmpty());
    EXPECT_THAT(secondFaults(nestedBlocks(3000)), ElementsAre(HasSubstr("547 1200")));
}

TEST(Nesting, OfValuesIsLimitedToo) {
    const auto around = [](const std::string& opening, const std::string& middle, const std::string& closing,
                           int depth) {
        return "அ = " + repeated(opening, depth) + middle + repeated(closing, depth) + "\n";
    };
    for (const auto& [opening, closing] :
         {std::pair("(", ")"), std::pair("[", "]"), std::pair("{1: ", "}"), std::pair("f(", ")"), std::pair("அ[", "]"),
          std::pair("குறை ", ""), std::pair("எ => ", ""), std::pair("அ ? ", " : 1"), std::pair("1 கூட்டு ", ""),
          std::pair("அ = ", ""), std::pair("", "(1)"), std::pair("", ".அ"), std::pair("", "[0]"),
          std::pair("", " கூட்டு 1")}) {
        EXPECT_THAT(secondFaults(around(opening, "ஆ", closing, 500)), IsEmpty()) << opening << closing;
        EXPECT_THAT(secondFaults(around(opening, "ஆ", closing, 20000)), ElementsAre(HasSubstr("547 1 ")))
            << opening << closing;
    }
    EXPECT_THAT(secondFaults("அ = " + repeated("(", 30) + "1" + repeated(repeated(" கூட்டு 1", 100) + ")", 30) + "\n"),
                SizeIs(1))
        << "chains inside each other add up";
    EXPECT_THAT(secondFaults("அ = [" + repeated("(1 கூட்டு 1), ", 5000) + "]\n"), IsEmpty())
        << "side by side they don't";
}

TEST(Nesting, OfChoicesIsLimitedToo) {
    EXPECT_THAT(secondFaults("எனில் அ: f()\n" + repeated("இல்லைஎனில் அ: f()\n", 1000)), IsEmpty());
    EXPECT_THAT(secondFaults("எனில் அ: f()\n" + repeated("இல்லைஎனில் அ: f()\n", 20000)), ElementsAre(HasSubstr("547 ")));
}

TEST(Boxes, TellEveryFault) {
    for (int number = 501; number <= 549; ++number) {
        const report::Entry* entry = report::findEntry(number);
        ASSERT_NE(entry, nullptr) << number;
        EXPECT_NE(std::string(entry->message), "");
        EXPECT_NE(std::string(entry->remedy), "");
    }
    const SecondProgram program = parse("எனில் அ:\n    அச்சிடு(1 + 2)\n");
    const report::FaultText text = faultText(program.faults.at(0));
    EXPECT_EQ(text.code, "பொழி-506");
    EXPECT_EQ(text.message, "'+' என்ற குறி பொழிலில் இல்லை.");
    EXPECT_EQ(text.remedy, "'+'-க்குப் பதில் 'கூட்டு' என்று எழுது மச்சி!");
    EXPECT_EQ(text.excerpt.file, "நிரல்.பொழில்");
    EXPECT_EQ(text.excerpt.line, 2);
    EXPECT_EQ(text.excerpt.lineText, "    அச்சிடு(1 + 2)");
    EXPECT_EQ(text.excerpt.lineText.substr(text.excerpt.begin, text.excerpt.end - text.excerpt.begin), "+");
}

TEST(Places, OfFaultsOverLinesEndWithTheFirst) {
    const SecondProgram program = parse("\"அ\nஆ\"\n");
    const report::FaultText text = faultText(program.faults.at(0));
    EXPECT_EQ(text.excerpt.lineText, "\"அ");
    EXPECT_EQ(text.excerpt.end, text.excerpt.lineText.size());
}

/// The text that stands at a node, or at a part of one.
std::string textAt(const SecondProgram& program, const void* part) {
    const auto place = program.places.ofAddress(part);
    if (!place) {
        return "nowhere";
    }
    return place->source->text.substr(place->range.begin, place->range.end - place->range.begin);
}

TEST(Places, AreThoseOfNodesAndNames) {
    const SecondProgram program = parse("செயல் வாழ்த்து(அ, மாற்று ஆ):\n    திரும்பு அ.பெயர் கூட்டு 1\n\nவாழ்த்து(1, ப[0])\n");
    const StatementList& statements = program.files.back().tree.statements;
    const auto* function = nodeCast<FunctionDefinitionStatement>(statements.at(0).get());
    ASSERT_NE(function, nullptr);
    EXPECT_EQ(textAt(program, function), "செயல் வாழ்த்து(அ, மாற்று ஆ):\n    திரும்பு அ.பெயர் கூட்டு 1");
    EXPECT_EQ(textAt(program, &function->name), "வாழ்த்து");
    EXPECT_EQ(textAt(program, &function->params.at(1).name), "ஆ");
    const auto* result = nodeCast<ReturnStatement>(function->body->statements.at(0).get());
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->line, 2);
    const auto* sum = nodeCast<BinaryExpression>(result->value.get());
    ASSERT_NE(sum, nullptr);
    EXPECT_EQ(textAt(program, sum), "அ.பெயர் கூட்டு 1");
    EXPECT_EQ(textAt(program, &sum->op), "கூட்டு");
    EXPECT_EQ(textAt(program, &nodeCast<GetExpression>(sum->left.get())->member), "பெயர்");
    const auto* call = nodeCast<ExpressionStatement>(statements.at(1).get());
    EXPECT_EQ(textAt(program, call->expression.get()), "வாழ்த்து(1, ப[0])");
}

TEST(Places, AreThoseOfNamesInOtherStatements) {
    const SecondProgram program =
        parse("ஒவ்வொன்றாக எ இல் ப:\n    விடு\nமுயற்சி: விடு\nபிடி(ஏன்): விடு\nவகை நிறம்:\n    சிவப்பு\n    பச்சை\n"
              "கட்டமைப்பு நாய்(விலங்கு):\n    வயது = 1\nக = (அ, ஆ) => அ\n");
    const StatementList& statements = program.files.back().tree.statements;
    EXPECT_EQ(textAt(program, &nodeCast<ForStatement>(statements.at(0).get())->variable), "எ");
    EXPECT_EQ(textAt(program, &nodeCast<TryCatchStatement>(statements.at(1).get())->errorName), "ஏன்");
    EXPECT_EQ(textAt(program, &nodeCast<EnumerationStatement>(statements.at(2).get())->members.at(1)), "பச்சை");
    const auto* structure = nodeCast<StructDefinitionStatement>(statements.at(3).get());
    EXPECT_EQ(textAt(program, &structure->name), "நாய்");
    EXPECT_EQ(textAt(program, &structure->parent), "விலங்கு");
    EXPECT_EQ(textAt(program, structure->fields.at(0).get()), "வயது = 1");
    const auto* assignment =
        nodeCast<PlaceAssignment>(nodeCast<ExpressionStatement>(statements.at(4).get())->expression.get());
    EXPECT_EQ(textAt(program, &nodeCast<LambdaExpression>(assignment->value.get())->parameters.at(1)), "ஆ");
}

} // namespace
