// The frame of the emitted text: its sections in their order, the start page, and what a program adds to it.

#include "generator/first/runtime_text.h"
#include "generator/web/page/application.h"
#include "generator/web/page/runtime_text.h"
#include "support/generating.h"

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

const std::string EVERYTHING = "கட்டமைப்பு பறவை:\n    வயது = 1\n    செயல் பற(தான்):\n        திரும்பு தான்.வயது\n"
                               "செயல் இரட்டி(அ):\n    திரும்பு அ கூட்டு அ\n"
                               "ம = {ஆ: 1, அ: 2}\nஒவ்வொன்றாக சா இல் ம:\n    அச்சிடு(ம[சா], இரட்டி(1))\n"
                               "கிளி = பறவை()\nஅச்சிடு(கிளி.பற())\n";

TEST(Sections, StandInTheirOrderWithNothingBetween) {
    const std::string text = generatedText("அச்சிடு(1)");
    const std::string_view sections[] = {runtime::standard_headers,
                                         page_runtime::web_text_layer,
                                         runtime::global_variables,
                                         page_runtime::page_state,
                                         runtime::return_value,
                                         page_runtime::overlays,
                                         runtime::call_guard,
                                         page_runtime::navigation,
                                         page_runtime::input_state,
                                         "#ifdef __EMSCRIPTEN__\n",
                                         page_runtime::canvas_keys,
                                         "#endif\n",
                                         page_runtime::web_bridge,
                                         runtime::value_types,
                                         runtime::error_box,
                                         runtime::value_texts,
                                         runtime::value_functions,
                                         page_runtime::animation_engine,
                                         runtime::library,
                                         page_runtime::scrolling,
                                         runtime::scroll_function,
                                         page_runtime::web_boilerplate,
                                         page_runtime::input_fields,
                                         page_runtime::media_elements,
                                         "#ifdef __EMSCRIPTEN__\n",
                                         page_runtime::frame_helpers,
                                         "#endif\n"};
    const std::pair<std::string_view, std::string_view> placeholders[] = {
        {"@START_PAGE@", "home"},
        {"@SOURCE_PATH@", "நிரல்.பொழில்"},
        {"// @DATABASE_ENTRIES@\n", runtime::database_entries},
        {"// @DATABASE_ANSWER@", "global_vars[\"தரவு\"] = global_vars[\"_temp_rtdb\"];"}};
    std::string expected;
    for (const std::string_view section : sections) {
        expected += section;
    }
    for (const auto& [placeholder, value] : placeholders) {
        const std::size_t position = expected.find(placeholder);
        ASSERT_NE(position, std::string::npos) << placeholder;
        expected.replace(position, placeholder.size(), value);
        EXPECT_EQ(expected.find(placeholder), std::string::npos) << "more than one " << placeholder;
    }
    EXPECT_EQ(text.substr(0, text.find("void init_globals()")), expected);
}

TEST(Sections, OfTheProgramFollowTheRuntime) {
    EXPECT_EQ(ownPart(generatedText("")), "void init_globals() {\n}\n\nint main() {\nreturn 0;\n}\n");
    EXPECT_EQ(ownPart(generatedText("அச்சிடு(\"வணக்கம்\")")),
              "void init_globals() {\n}\n\nint main() {\n"
              "    std::cout << fn_any_to_string(std::string(u8\"வணக்கம்\")) << std::endl;\nreturn 0;\n}\n");
    EXPECT_EQ(ownPart(generatedText("அச்சிடு(1)\nசெயல் அ():\n    விடு\nகட்டமைப்பு ஆ:\n    இ = 1\nஅச்சிடு(2)\n"
                                    "வடிவமைப்பு உ:\n    செயல் ஊ(தான்)\n")),
              "struct ஆ : public _StructBase {\npublic:\n// இ\n};\nusing T_ஆ = std::shared_ptr<ஆ>;\n"
              "std::any fn_அ() {\n    CallTracker _tracker(\"நிரல்.பொழில்\");\n    (void)0;\n\n"
              "    return std::any(); // Default return\n}\n\n"
              "void init_globals() {\n}\n\nint main() {\n    std::cout << fn_any_to_string(1LL) << std::endl;\n"
              "    std::cout << fn_any_to_string(2LL) << std::endl;\nreturn 0;\n}\n");
}

TEST(Sections, AreTheSameBytesEachTime) {
    EXPECT_EQ(generatedText(EVERYTHING), generatedText(EVERYTHING));
}

TEST(ModulePath, HasTheFolderOfTheSystemAsItsSecondPlace) {
    EXPECT_NE(generatedText("").find("\"/usr/local/lib/Pozhil/தொகுப்புகள்/\" + file_name"), std::string::npos);
}

TEST(Program, PassesOverStatementsThatAreMissing) {
    auto block = make<BlockStatement>();
    block->statements = listOf(StatementPtr(), make<PassStatement>(), StatementPtr());
    EXPECT_EQ(mainBody("", listOf(StatementPtr(), std::move(block))), "    (void)0;\n");
}

TEST(Program, ReturnOutsideFunctionsEndsMainWithoutItsValue) {
    EXPECT_EQ(mainBody("", listOf(make<ReturnStatement>(call("எண்")))), "    return 0; // C++ main requires int;\n");
    EXPECT_EQ(mainBody("", listOf(make<ReturnStatement>(nullptr))), "    return 0; // C++ main requires int;\n");
}

TEST(UnknownNodes, LeaveAsExceptions) {
    const auto fault = [](StatementPtr statement) { return generatorFault("", listOf(std::move(statement))); };
    const auto printed = [](ExpressionPtr value) {
        return make<PrintStatement>(listOf<ExpressionList>(std::move(value)));
    };
    for (const auto& [report, detail] : {std::pair{fault(make<DatabaseManagerNode>(nullptr)), "statement"},
                                         {fault(printed(nullptr)), "expression"},
                                         {fault(printed(make<PercentageLiteral>("50%"))), "expression"}}) {
        EXPECT_EQ(report.rfind("exception பொழி-399: ", 0), 0U) << report;
        const std::string ending = " (Unknown " + std::string(detail) + " type in generator)";
        EXPECT_EQ(report.substr(report.size() - std::min(report.size(), ending.size())), ending);
    }
}

TEST(UnknownNodes, AnUnknownUnaryWordIsRefusedWithoutALine) {
    const auto statement = [] {
        return listOf(make<PrintStatement>(
            listOf<ExpressionList>(make<UnaryExpression>(Token{TokenType::KEYWORD, "என்னவகை", 3}, number("1")))));
    };
    EXPECT_EQ(generatorFault("", statement()), "பொழி-304 வரி 0");
    EXPECT_NE(generatorReport("", statement()).find("(Operator: என்னவகை)"), std::string::npos);
}

ExpressionPtr truth(const std::string& value) {
    return make<BooleanLiteral>(value);
}

/// An application whose header has the page name and the wish to come first; either may be missing.
StatementPtr page(ExpressionPtr name, ExpressionPtr wish = nullptr) {
    PropertyMap properties;
    if (name != nullptr) {
        properties["பக்கம்"] = std::move(name);
    }
    if (wish != nullptr) {
        properties["ஆரம்ப_பக்கம்"] = std::move(wish);
    }
    auto header = make<HeaderNode>("தலைமை", std::move(properties), StatementList(), ScreenConfig());
    return make<WebAppNode>("செயலி", nullptr, std::move(header), nullptr, nullptr);
}

template <class... Pages> std::string startOf(Pages... pages) {
    Program program;
    program.statements = listOf(std::move(pages)...);
    return readApplication(program).startPage;
}

TEST(StartPage, IsTheFirstWithAName) {
    EXPECT_EQ(startOf(page(text("அ"))), "அ");
    EXPECT_EQ(startOf(page(text("அ")), page(text("ஆ"))), "அ");
    EXPECT_EQ(startOf(page(nullptr), page(text("ஆ")), page(text("இ"))), "ஆ");
}

TEST(StartPage, IsTheLastThatAsksForIt) {
    EXPECT_EQ(startOf(page(text("அ")), page(text("ஆ"), truth("மெய்"))), "ஆ");
    EXPECT_EQ(startOf(page(text("அ"), truth("மெய்")), page(text("ஆ"))), "அ");
    EXPECT_EQ(startOf(page(text("அ"), truth("மெய்")), page(text("ஆ"), truth("மெய்"))), "ஆ");
    EXPECT_EQ(startOf(page(text("அ")), page(text("ஆ"), truth("பொய்"))), "அ");
    EXPECT_EQ(startOf(page(text("அ")), page(text("ஆ"), text("மெய்"))), "அ") << "a text is no truth value";
}

TEST(StartPage, TakesOnlyTextsAsNames) {
    EXPECT_EQ(startOf(page(variable("அ")), page(text("ஆ"))), "ஆ");
    EXPECT_EQ(startOf(page(number("1"), truth("மெய்")), page(text("ஆ"))), "ஆ");
    EXPECT_EQ(startOf(page(text("அ")), page(variable("ஆ"), truth("மெய்"))), "அ");
}

TEST(StartPage, IsHomeIfNoneHasAName) {
    EXPECT_EQ(startOf(), "home");
    EXPECT_EQ(startOf(make<PassStatement>(), StatementPtr()), "home");
    EXPECT_EQ(startOf(page(nullptr, truth("மெய்"))), "home");
    EXPECT_EQ(startOf(make<WebAppNode>("செயலி", nullptr, nullptr, nullptr, nullptr)), "home") << "no header";
    EXPECT_EQ(startOf(make<WebAppNode>("செயலி", nullptr, make<PassStatement>(), nullptr, nullptr)), "home");
}

} // namespace
