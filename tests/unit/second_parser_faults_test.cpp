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
    EXPECT_THAT(secondFaults(repeated("அ = 1 1\n", 30)), SizeIs(MAX_FOUND_FAULTS));
    EXPECT_THAT(secondFaults(repeated("அ = 1 + 1\n", 30)), SizeIs(MAX_FOUND_FAULTS));
    EXPECT_THAT(secondFaults(repeated("அ = 1 1\n", 5) + repeated("அ + 1\n", 30)), SizeIs(MAX_FOUND_FAULTS));
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

/// A text with a fault, and what is said of it.
struct Said {
    int number;
    const char* text;
    const char* message;
};

// clang-format off
constexpr Said SAID[] = {
    {505, "அ = 1 @\n", "'@' என்ற குறிக்குப் பொழிலில் பொருள் இல்லை."},
    {506, "அ = 1 + 2\n", "'+' என்ற குறி பொழிலில் இல்லை."},
    {507, "அ = “ஆ”\n", "உரை வளைந்த மேற்கோள் குறிகளுக்குள் உள்ளது."},
    {508, "அ =\u00A01\n", "இங்கே இருப்பது சாதாரண இடைவெளி அல்ல; இடைவெளி போலத் தெரியும் வேறொரு குறி."},
    {509, "அ\u200B = 1\n", "இங்கே கண்ணுக்குத் தெரியாத ஒரு குறி உள்ளது."},
    {510, "அ = \"ஆ\n", "இங்கே தொடங்கும் உரை முடியவில்லை."},
    {511, "அ = 'ஆ\n", "ஒற்றை மேற்கோள் குறியில் தொடங்கும் எழுத்து அதே வரியில் முடியவில்லை."},
    {512, "அ = ''\n", "ஒற்றை மேற்கோள் குறிகளுக்கு நடுவில் எழுத்து இல்லை."},
    {513, "அ = \"\\q\"\n", "உரையில் '\\q' என்பதற்குப் பொருள் இல்லை."},
    {514, "ஃஃ அ\n", "'ஃஃ' எனத் தொடங்கும் குறிப்பு முடியவில்லை."},
    {515, "\u0BBE = 1\n", "சொல் 'ா' என்ற தனிக் குறியில் தொடங்குகிறது."},
    {516, "அ\u0BBE = 1\n", "உயிரெழுத்துக்குப் பின் 'ா' என்ற குறி வராது."},
    {517, "ஜன்னல் = 1\n", "பெயரில் 'ஜ' என்ற கிரந்த எழுத்து உள்ளது."},
    {518, "அ = ௧2\n", "ஒரே எண்ணில் தமிழ் இலக்கங்களும் 0 முதல் 9 வரையுள்ள இலக்கங்களும் கலந்துள்ளன."},
    {519, "அ = 5ஆ\n", "'5' என்ற எண்ணை ஒட்டி 'ஆ' என்று எழுதப்பட்டுள்ளது."},
    {520, "அ = 1.2.3\n", "ஓர் எண்ணில் ஒன்றுக்கு மேற்பட்ட புள்ளிகள் உள்ளன."},
    {521, "அ = 9223372036854775808\n", "9223372036854775808 என்ற எண் மிகப் பெரியது."},
    {522, "எனில் அ:\n\tf()\n    f()\n", "ஒரே பிளாக்கின் வரிகள் தத்தலாலும் (Tab) இடைவெளியாலும் கலந்து தள்ளப்பட்டுள்ளன."},
    {523, "எனில் அ:\n    f()\n  f()\n", "இந்த வரி, அதைச் சுற்றியுள்ள எந்தப் பிளாக்கின் அளவுக்கும் தள்ளப்படவில்லை."},
    {524, "f()\n    f()\n", "இந்த வரி தேவையில்லாமல் உள்ளே தள்ளப்பட்டுள்ளது."},
    {525, "f(1\n", "இங்கே திறக்கும் '(' என்ற அடைப்புக்குறி மூடப்படவில்லை."},
    {526, "f()]\n", "இந்த ']' எந்த அடைப்புக்குறியையும் மூடவில்லை."},
    {527, "எனில் அ\n    f()\n", "இங்கே ':' வேண்டும்; ஆனால் இருப்பது வரியின் முடிவு."},
    {527, "செயல் f:\n    விடு\n", "இங்கே பராமீட்டர்களுக்கு முன் '(' வேண்டும்; ஆனால் இருப்பது ':'."},
    {527, "க = அ => அச்சிடு 1\n", "இங்கே 'அச்சிடு'-க்குப் பின் '(' வேண்டும்; ஆனால் இருப்பது '1'."},
    {527, "ஒவ்வொன்றாக எ ப:\n    விடு\n", "இங்கே 'இல்' வேண்டும்; ஆனால் இருப்பது 'ப'."},
    {527, "ம = {1 2}\n", "இங்கே சாவிக்குப் பின் ':' வேண்டும்; ஆனால் இருப்பது '2'."},
    {527, "அ = ஆ எனில் 1 ஆ\n", "இங்கே 'இல்லைஎனில்' வேண்டும்; ஆனால் இருப்பது 'ஆ'."},
    {527, "அ = ஆ ? 1\n", "இங்கே ':' வேண்டும்; ஆனால் இருப்பது வரியின் முடிவு."},
    {527, "க = வினை(அ) அ\n", "இங்கே ':' வேண்டும்; ஆனால் இருப்பது 'அ'."},
    {527, "வடிவமைப்பு ம:\n    செயல் f(தான்): 1\n", "இங்கே 'விடு' வேண்டும்; ஆனால் இருப்பது '1'."},
    {527, "எனில் அ {\n    f()\n}\n", "இங்கே ':' வேண்டும்; ஆனால் இருப்பது '{'."},
    {528, "எனில் அ:\nf()\n", "இந்த இடத்தில் ஒரு பிளாக் வேண்டும்; அது இல்லை."},
    {529, "அ = \n", "இங்கே ஒரு மதிப்பு வேண்டும்; ஆனால் இருப்பது வரியின் முடிவு."},
    {530, "அ = 1 2\n", "'1' என்பதற்குப் பின் '2' வர முடியாது."},
    {531, "அ.5 = 1\n", "இங்கே புள்ளிக்குப் பின் பண்பு அல்லது செயல் வேண்டும்; ஆனால் இருப்பது '5'."},
    {531, "ஒவ்வொன்றாக 5 இல் ப:\n    f()\n", "இங்கே சுற்றின் மாறி வேண்டும்; ஆனால் இருப்பது '5'."},
    {531, "வகை நிறம்:\n    5\n", "இங்கே வகையின் உறுப்பு வேண்டும்; ஆனால் இருப்பது '5'."},
    {531, "செயல் f(5):\n    விடு\n", "இங்கே பராமீட்டரின் பெயர் வேண்டும்; ஆனால் இருப்பது '5'."},
    {532, "f(1 2)\n", "இங்கே ',' அல்லது ')' வேண்டும்; ஆனால் இருப்பது '2'."},
    {533, "அ கூட்டு 1\n", "இந்தக் கூற்று ஒரு மதிப்பு மட்டுமே; அதனால் எதுவும் நடக்காது."},
    {534, "f() = 1\n", "'=' என்பதன் இடப்பக்கம் உள்ளதற்கு மதிப்பு தர முடியாது."},
    {535, "எனில் அ = 1:\n    f()\n", "நிபந்தனைக்குள் '=' வந்துள்ளது; அது ஒப்பிடாது, மதிப்பு தரும்."},
    {536, "அ = 1 சிறிது 2 சிறிது 3\n", "ஒப்பீட்டின் விடை 'சிறிது' கொண்டு மீண்டும் ஒப்பிடப்படுகிறது."},
    {537, "கட்டமைப்பு பை:\n    f()\n", "கட்டமைப்பில் இங்கே ஒரு பண்போ செயலோ வேண்டும்; ஆனால் இருப்பது 'f'."},
    {538, "கட்டமைப்பு பை:\n    செயல் f():\n        விடு\n", "'f' என்ற கட்டமைப்புச் செயலின் முதல் பராமீட்டர் 'தான்' அல்ல."},
    {539, "தேர்வு அ:\n    f()\n", "'தேர்வு' பிளாக்கில் 'நிலை' அல்லது 'மற்றவை' வேண்டும்; ஆனால் இருப்பது 'f'."},
    {540, "தேர்வு அ:\n    மற்றவை: f()\n    மற்றவை: f()\n", "ஒரே 'தேர்வு' பிளாக்கில் 'மற்றவை' இரண்டு முறை வந்துள்ளது."},
    {541, "முயற்சி:\n    f()\n", "இந்த 'முயற்சி'-க்குப் பின் 'பிடி' இல்லை."},
    {542, "இல்லை:\n    f()\n", "'இல்லை' எந்தக் கூற்றின் பகுதியும் அல்ல."},
    {543, "பொது அ\n", "'பொது' இங்கே பொருந்தாது: செயலுக்கு வெளியே உள்ள மாறிகள் ஏற்கெனவே கோப்பின் மாறிகள்தாம்."},
    {544, "நூஇறக்கி 5\n", "'நூஇறக்கி' என்பதற்குப் பின் கோப்பின் பெயர் வேண்டும்; அது எந்தப் பிளாக்கிற்குள்ளும் வரக் கூடாது."},
    {548, "மெய் = 1\n", "'மெய்' பொழிலின் சொல்; இங்கே வேண்டியது மாறியின் பெயர்."},
    {548, "செயல் எனில்():\n    விடு\n", "'எனில்' பொழிலின் சொல்; இங்கே வேண்டியது செயலின் பெயர்."},
    {548, "ஒவ்வொன்றாக மெய் இல் ப:\n    விடு\n", "'மெய்' பொழிலின் சொல்; இங்கே வேண்டியது சுற்றின் மாறி."},
    {549, "எனில் அ: f()\nஇல்லை எனில்: f()\n", "'இல்லை எனில்' என்று பிரித்து எழுதப்பட்டுள்ளது."},
};
// clang-format on

TEST(Messages, NameWhatIsMissingAndWhatIsThere) {
    for (const Said& said : SAID) {
        const SecondProgram program = parse(said.text);
        ASSERT_FALSE(program.faults.empty()) << said.text;
        EXPECT_EQ(program.faults.front().number, said.number) << said.text;
        EXPECT_EQ(faultText(program.faults.front()).message, said.message) << said.text;
    }
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
