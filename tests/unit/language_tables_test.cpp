// The tables of the language: what no row may contradict, and what the emitted runtime, which can't read them, must have
// in common with them.

#include "generator/first/runtime_text.h"
#include "generator/web/page/runtime_text.h"
#include "generator/web/page/widget_table.h"
#include "language/alignments.h"
#include "language/builtins.h"
#include "language/colours.h"
#include "language/curves.h"
#include "language/keywords.h"
#include "language/operators.h"
#include "language/widgets.h"
#include "parser/syntax_tree.h"
#include "scanner/keywords.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace pozhil::language;
using pozhil::lookupKeyword;
using pozhil::TokenType;

/// Every \p text in quotes between two marks in \p source.
std::set<std::string_view> quotedBetween(std::string_view source, std::string_view from, std::string_view to) {
    const std::size_t start = source.find(from);
    const std::size_t end = source.find(to, start);
    EXPECT_NE(end, std::string_view::npos) << from;
    source = source.substr(start, end - start);
    std::set<std::string_view> texts;
    for (std::size_t open = source.find('"'); open != std::string_view::npos;) {
        const std::size_t close = source.find('"', open + 1);
        texts.insert(source.substr(open + 1, close - open - 1));
        open = source.find('"', close + 1);
    }
    return texts;
}

template <class Table, class Key> void expectDistinct(const Table& table, const Key& key) {
    std::set<decltype(key(*std::begin(table)))> seen;
    for (const auto& row : table) {
        EXPECT_TRUE(seen.insert(key(row)).second) << ::testing::PrintToString(key(row));
    }
    EXPECT_FALSE(seen.empty());
}

TEST(Operators, StandInOneRowEach) {
    expectDistinct(operators(), [](const Operator& row) { return row.word; });
}

TEST(Operators, OfTheScannerHaveARow) {
    const std::set<TokenType> kinds = {TokenType::OPERATOR,   TokenType::COMPOUND_ASSIGN, TokenType::BIT_NOT,
                                       TokenType::UNARY_PLUS, TokenType::UNARY_MINUS,     TokenType::INCREMENT,
                                       TokenType::DECREMENT};
    for (const Keyword& keyword : keywords()) {
        if (kinds.count(keyword.type) != 0) {
            EXPECT_NE(findOperator(keyword.word), nullptr) << keyword.word;
        }
    }
}

TEST(Operators, ArriveAsTheTokensOfTheirRows) {
    for (const Operator& row : operators()) {
        EXPECT_EQ(lookupKeyword(row.word), row.token) << row.word;
    }
}

TEST(Operators, HaveALevelWhereTheyStandBetweenOperands) {
    for (const Operator& row : operators()) {
        const bool isBinary =
            row.kind != OperatorKind::Unary && row.kind != OperatorKind::Compound && row.kind != OperatorKind::Step;
        EXPECT_EQ(row.level != NO_LEVEL, isBinary) << row.word;
        EXPECT_EQ(row.token == TokenType::OPERATOR, isBinary) << row.word;
    }
}

TEST(Operators, AreFoundByKind) {
    EXPECT_EQ(findOperator("சமம்", OperatorKind::Comparison), findOperator("சமம்"));
    EXPECT_EQ(findOperator("சமம்", OperatorKind::Logical), nullptr);
    EXPECT_EQ(findOperator("=="), nullptr);
    EXPECT_EQ(findOperator(""), nullptr);
}

TEST(CompoundAssignments, CalculateWithTheSymbolThatTheyEnd) {
    for (const Operator& row : operators()) {
        const bool calculates = row.kind == OperatorKind::Compound || row.kind == OperatorKind::Step;
        EXPECT_EQ(!row.arithmetic.empty(), calculates) << row.word;
        if (row.kind == OperatorKind::Compound) {
            EXPECT_EQ(row.symbol, std::string(row.arithmetic) + "=") << row.word;
        }
    }
}

TEST(CompoundAssignments, AreKnownByTheirSymbolsToo) {
    EXPECT_EQ(compoundArithmetic("இடதுஇசேர்"), "<<");
    EXPECT_EQ(compoundArithmetic("<<="), "<<");
    EXPECT_EQ(compoundArithmetic("ஒன்றுகழி"), "-");
    EXPECT_EQ(compoundArithmetic("--"), "");
    EXPECT_EQ(compoundArithmetic("="), "");
    EXPECT_EQ(compoundArithmetic("=="), "");
    EXPECT_EQ(compoundArithmetic("கூட்டு"), "");
}

TEST(Comparisons, AreThoseOfTheRuntime) {
    std::set<std::string_view> known;
    for (const Operator& row : operators()) {
        if (row.kind == OperatorKind::Comparison) {
            known.insert(row.word);
            known.insert(row.symbol);
        }
    }
    std::set<std::string_view> emitted =
        quotedBetween(pozhil::runtime::value_functions, "pozhil_comparison_sign(", "\n}");
    emitted.erase("");
    EXPECT_EQ(emitted, known);
}

TEST(Builtins, HaveOneRowForEachNumberOfArguments) {
    expectDistinct(builtins(), [](const Builtin& row) { return std::tuple(row.name, row.form, row.argumentCount); });
}

TEST(Builtins, OfOneNameAndFormAgreeOnAllButTheText) {
    std::map<std::pair<std::string_view, BuiltinForm>, const Builtin*> first;
    for (const Builtin& row : builtins()) {
        const Builtin& other = *first.emplace(std::pair(row.name, row.form), &row).first->second;
        EXPECT_EQ(row.resultRule, other.resultRule) << row.name;
        EXPECT_EQ(row.result, other.result) << row.name;
        EXPECT_EQ(row.wrongCount, other.wrongCount) << row.name;
        EXPECT_EQ(row.wrongCountDetail, other.wrongCountDetail) << row.name;
    }
}

TEST(Builtins, NameTheArgumentsThatTheyTake) {
    for (const Builtin& row : builtins()) {
        const auto named = std::count_if(row.parameters.begin(), row.parameters.end(),
                                         [](std::string_view name) { return !name.empty(); });
        if (row.argumentCount != ANY_COUNT) {
            EXPECT_EQ(named, row.argumentCount) << row.name;
        }
    }
}

TEST(Builtins, AreToldInBothLanguages) {
    for (const Builtin& row : builtins()) {
        EXPECT_EQ(row.value.tamil.empty(), row.value.english.empty()) << row.name;
        EXPECT_EQ(row.description.tamil.empty(), row.description.english.empty()) << row.name;
    }
}

TEST(Builtins, AreFoundByNumberOfArguments) {
    const Builtin* anyForm = nullptr;
    EXPECT_EQ(findBuiltin("தேதி", 1, anyForm)->argumentCount, 1);
    EXPECT_EQ(anyForm->argumentCount, 0);
    EXPECT_EQ(findBuiltin("தேதி", 2, anyForm), nullptr);
    EXPECT_NE(anyForm, nullptr);
    EXPECT_NE(findBuiltin("வரம்பு", 7, anyForm), nullptr);
    EXPECT_EQ(findBuiltin("இல்லாதது", 0, anyForm), nullptr);
    EXPECT_EQ(anyForm, nullptr);
}

TEST(Builtins, AreNotCalledByTheNamesOfMembers) {
    const Builtin* anyForm = nullptr;
    for (const char* member : {"சேர்", "வினாடிகள்", "உரைதரவு", "கொண்டுள்ளது", "ஆண்டு"}) {
        EXPECT_EQ(findBuiltin(member), nullptr) << member;
        EXPECT_EQ(findBuiltin(member, 1, anyForm), nullptr) << member;
        EXPECT_EQ(anyForm, nullptr) << member;
    }
    EXPECT_EQ(findBuiltin("நீளம்")->form, BuiltinForm::Call);
    EXPECT_EQ(findMember(BuiltinForm::InputProperty, "நீளம்")->form, BuiltinForm::InputProperty);
    EXPECT_EQ(findMember(BuiltinForm::InputMethod, "நீளம்"), nullptr);
}

TEST(KeywordGroups, HoldAWordOnce) {
    expectDistinct(keywords(), [](const Keyword& row) { return std::pair(row.group, row.word); });
}

TEST(KeywordGroups, ClaimAWordTwiceOnlyWhereTheFirstDecides) {
    std::set<std::string_view> seen;
    std::set<std::string_view> twice;
    for (const Keyword& row : keywords()) {
        if (!seen.insert(row.word).second) {
            twice.insert(row.word);
        }
    }
    EXPECT_THAT(twice, testing::UnorderedElementsAre("மூலம்", "உரைசீரமைப்பு", "அடையாளம்", "வகை", "நிறம்", "அகலம்", "உயரம்",
                                                     "வளைவு", "இல்லை"));
}

TEST(TypoCandidates, AreKeywords) {
    for (const std::string_view word : typoCandidates()) {
        EXPECT_NE(lookupKeyword(word), TokenType::IDENTIFIER) << word;
    }
}

TEST(Widgets, StandInOneRowEach) {
    expectDistinct(widgets(), [](const Widget& row) { return row.word; });
}

TEST(Widgets, ArriveAsTheTokensOfTheirRows) {
    for (const Widget& row : widgets()) {
        EXPECT_EQ(lookupKeyword(row.word), row.isKeyword ? row.token : TokenType::IDENTIFIER) << row.word;
    }
}

TEST(Widgets, ThatAreNoKeywordsAreKnownByNothingOrByTheirNames) {
    for (const Widget& row : widgets()) {
        if (!row.isKeyword) {
            EXPECT_NE(row.start, WidgetStart::Kind) << row.word;
        }
        if (row.token == TokenType::IDENTIFIER) {
            EXPECT_EQ(row.start, WidgetStart::Nothing) << row.word;
        }
    }
}

TEST(Widgets, OfOneKindOfTokenHaveOneForm) {
    std::map<TokenType, WidgetForm> forms;
    for (const Widget& row : widgets()) {
        if (row.token == TokenType::IDENTIFIER) {
            EXPECT_EQ(row.form, WidgetForm::General) << row.word;
        } else {
            EXPECT_EQ(forms.emplace(row.token, row.form).first->second, row.form) << row.word;
        }
    }
}

TEST(Widgets, ThatArePlacedOnPagesAreEmitted) {
    for (const Widget& row : widgets()) {
        if (row.role == WidgetRole::Widget) {
            EXPECT_NE(pozhil::findWidgetKind(row.word), nullptr) << row.word;
        }
    }
}

TEST(Widgets, ThatAreEmittedHaveARow) {
    expectDistinct(pozhil::widgetKinds(), [](const pozhil::WidgetKind* kind) { return kind->word; });
    for (const pozhil::WidgetKind* kind : pozhil::widgetKinds()) {
        EXPECT_NE(findWidget(kind->word), nullptr) << kind->word;
    }
}

TEST(Alignments, StandInTheOrderOfTheTree) {
    expectDistinct(alignments(), [](const Alignment& row) { return row.word; });
    const auto indexOf = [](std::string_view word) { return findAlignment(word) - alignments().begin(); };
    EXPECT_EQ(alignments().size(), 9U);
    EXPECT_EQ(indexOf("மேல்_வலது"), static_cast<int>(pozhil::சீரமைப்பு_வகை::மேல்_வலது));
    EXPECT_EQ(indexOf("மையம்"), static_cast<int>(pozhil::சீரமைப்பு_வகை::மையம்));
    EXPECT_EQ(indexOf("கீழ்_வலது"), static_cast<int>(pozhil::சீரமைப்பு_வகை::கீழ்_வலது));
    EXPECT_EQ(findAlignment("நடு"), nullptr);
}

TEST(Widgets, HaveAPropertyOnceInEachPlace) {
    for (const Widget& row : widgets()) {
        std::set<std::pair<std::string_view, std::string_view>> seen;
        for (const WidgetProperty& property : row.properties) {
            EXPECT_TRUE(seen.emplace(property.style, property.name).second) << row.word << ": " << property.name;
        }
    }
}

TEST(Widgets, AreToldInBothLanguages) {
    for (const Widget& row : widgets()) {
        EXPECT_FALSE(row.description.tamil.empty()) << row.word;
        EXPECT_FALSE(row.description.english.empty()) << row.word;
        for (const WidgetProperty& property : row.properties) {
            EXPECT_FALSE(property.description.tamil.empty()) << property.name;
            EXPECT_FALSE(property.description.english.empty()) << property.name;
        }
    }
}

TEST(Colours, StandInOneRowEach) {
    expectDistinct(colourWords(), [](const ColourWord& row) { return row.word; });
    EXPECT_EQ(findColourWord("பச்சை")->green, 1.0F);
    EXPECT_EQ(findColourWord("green"), nullptr);
}

TEST(Curves, AreThoseOfTheRuntime) {
    expectDistinct(curves(), [](const Curve& row) { return row.name; });
    std::set<std::string_view> named;
    for (const Curve& row : curves()) {
        named.insert(row.name);
    }
    EXPECT_EQ(quotedBetween(pozhil::page_runtime::animation_engine, "pozhil_curve_table()", "pozhil_animation_state"),
              named);
}

TEST(Builtins, HaveOnlyHolesThatAreFilled) {
    const std::set<std::string> others = {"place", "line", "id"};
    const std::regex hole(R"(\$\{?([A-Za-z][A-Za-z0-9_]*))");
    for (const Builtin& row : builtins()) {
        const bool isOfTime = row.form == BuiltinForm::TimePart || row.form == BuiltinForm::TimeMethod;
        const std::string text(row.text);
        for (std::sregex_iterator found(text.begin(), text.end(), hole), end; found != end; ++found) {
            const auto argument = argumentOf(found->str(1));
            EXPECT_TRUE(argument || others.count(found->str(1)) == 1) << row.name << ": " << found->str(1);
            EXPECT_TRUE(!argument || isOfTime || static_cast<int>(argument->index) < row.argumentCount) << row.name;
        }
    }
}

TEST(Builtins, TellArgumentsByTheirHoles) {
    EXPECT_EQ(argumentOf("D")->index, 2U);
    EXPECT_FALSE(argumentOf("A")->isCastOperand);
    EXPECT_TRUE(argumentOf("castB")->isCastOperand);
    for (const char* other : {"", "C", "AB", "cast", "castAB", "line", "a"}) {
        EXPECT_FALSE(argumentOf(other)) << other;
    }
}

} // namespace
