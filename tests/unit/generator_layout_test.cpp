// Every statement with its indentation, braces and line ends, byte for byte.

#include "support/generating.h"

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

std::string printed(const std::string& indentation, const std::string& value) {
    return indentation + "std::cout << fn_any_to_string(" + value + ") << std::endl;\n";
}

TEST(Layout, FramedStatementsAreALineEach) {
    EXPECT_EQ(mainBody("அச்சிடு()\nவிடு\nநிறுத்து\nதொடர்\nஅ = 1\n"),
              "    std::cout << std::endl;\n    (void)0;\n    break;\n    continue;\n"
              "    (global_vars[\"அ\"] = std::any(1LL), global_vars[\"அ\"]);\n");
    EXPECT_EQ(mainBody("காத்திரு 1.5\n"), "    std::this_thread::sleep_for(std::chrono::milliseconds("
                                         "static_cast<long long>(fn_get_double(1.5L) * 1000)));\n");
}

TEST(Layout, RedrawIsACommentAndACall) {
    EXPECT_EQ(mainBody("புதுப்பி()\nஎனில் மெய்:\n    புதுப்பி()\n"),
              "    // UI-ஐப் புதுப்பித்தல்\n    updateUI();\n"
              "    if (std::any_cast<bool>(true)) {\n"
              "        // UI-ஐப் புதுப்பித்தல்\n        updateUI();\n    }\n");
}

TEST(Layout, AMemberWriteBringsItsOwnLine) {
    EXPECT_EQ(mainBody("காட்சி_நிலை.அ = 1\nஎனில் மெய்:\n    காட்சி_நிலை.அ: 2\n"),
              "        global_vars[\"அ\"] = std::any(1LL);\n;\n"
              "    if (std::any_cast<bool>(true)) {\n"
              "                global_vars[\"அ\"] = std::any(2LL);\n;\n    }\n");
    EXPECT_EQ(mainBody("கா = () => காட்சி_நிலை.அ = 1\n"),
              "    (global_vars[\"கா\"] = std::function<std::any()>([=]() { return "
              "std::any(global_vars[\"அ\"] = std::any(1LL)); }), global_vars[\"கா\"]);\n")
        << "inside an expression";
}

TEST(Layout, AMemberWriteWithoutALineTakesThatOfTheMember) {
    auto write = make<pozhil::SetMemberExpression>(variable("பொ"), word("அ"), number("1"));
    const std::string body =
        mainBody("கட்டமைப்பு ப:\n    அ = 1\nபொ = ப()\n", listOf(make<pozhil::ExpressionStatement>(std::move(write))));
    EXPECT_NE(body.find("fn_set_property(global_vars[\"பொ\"], \"அ\", std::any(1LL), \"நிரல்.பொழில்\", 3);"),
              std::string::npos)
        << body;
}

TEST(Layout, If) {
    EXPECT_EQ(mainBody("எனில் அ சமம் 1:\n    விடு\nவிடு\n"),
              "    if (fn_compare_any(std::any(global_vars[\"அ\"]), std::any(1LL), \"சமம்\")) {\n"
              "        (void)0;\n    }\n    (void)0;\n")
        << "no else: the brace ends its line, and nothing stands behind it";
    EXPECT_EQ(mainBody("எனில் அ:\n    விடு\nஇல்லை:\n    விடு\n"),
              "    if (std::any_cast<bool>(global_vars[\"அ\"])) {\n        (void)0;\n"
              "    } else {\n        (void)0;\n    }\n");
    EXPECT_EQ(mainBody("எனில் அ:\n    விடு\nஇல்லைஎனில் ஆ:\n    நிறுத்து\nஇல்லைஎனில் இ:\n    தொடர்\nஇல்லை:\n    விடு\n"),
              "    if (std::any_cast<bool>(global_vars[\"அ\"])) {\n        (void)0;\n"
              "    } else     if (std::any_cast<bool>(global_vars[\"ஆ\"])) {\n        break;\n"
              "    } else     if (std::any_cast<bool>(global_vars[\"இ\"])) {\n        continue;\n"
              "    } else {\n        (void)0;\n    }\n");
    EXPECT_EQ(mainBody("எனில் அ:\n    எனில் ஆ:\n        விடு\n    இல்லைஎனில் இ:\n        விடு\n"),
              "    if (std::any_cast<bool>(global_vars[\"அ\"])) {\n"
              "        if (std::any_cast<bool>(global_vars[\"ஆ\"])) {\n            (void)0;\n"
              "        } else         if (std::any_cast<bool>(global_vars[\"இ\"])) {\n            (void)0;\n        }\n"
              "    }\n");
}

TEST(Layout, While) {
    EXPECT_EQ(mainBody("சுற்று அ மற்றும் ஆ:\n    சுற்று அ:\n        விடு\n"),
              "    while ((std::any_cast<bool>(global_vars[\"அ\"]) && std::any_cast<bool>(global_vars[\"ஆ\"]))) {\n"
              "        while (std::any_cast<bool>(global_vars[\"அ\"])) {\n            (void)0;\n        }\n    }\n");
}

TEST(Layout, RangeLoop) {
    EXPECT_EQ(mainBody("ஒவ்வொன்றாக எ இல் வரம்பு(3):\n    அச்சிடு(எ)\nஅச்சிடு(எ)\n"),
              "    for (long long எ = 0; எ < fn_index(3LL); ++எ) {\n" + printed("        ", "எ") + "    }\n" +
                  printed("    ", "global_vars[\"எ\"]"));
    EXPECT_EQ(mainBody("ஒவ்வொன்றாக எ இல் வரம்பு(அ, ஆ கழி 1):\n    விடு\n"),
              "    for (long long எ = fn_index(global_vars[\"அ\"]); எ < "
              "fn_index(std::any_cast<long long>(global_vars[\"ஆ\"]) - 1LL); ++எ) {\n        (void)0;\n    }\n");
}

TEST(Layout, ContainerLoopHasItsBodyTwice) {
    EXPECT_EQ(mainBody("\n\nஒவ்வொன்றாக எ இல் ப:\n    அச்சிடு(எ)\n"),
              "    {\n        auto& _iterable = global_vars[\"ப\"];\n"
              "        if (_iterable.type() == typeid(std::vector<std::any>)) {\n"
              "            for (const auto& எ_any : std::any_cast<const std::vector<std::any>&>(_iterable)) {\n"
              "                std::any எ = எ_any;\n" +
                  printed("                ", "எ") +
                  "            }\n"
                  "        } else if (_iterable.type() == typeid(std::map<std::string, std::any>)) {\n"
                  "            for (const auto& pair : "
                  "std::any_cast<const std::map<std::string, std::any>&>(_iterable)) {\n"
                  "                std::any எ = std::any(pair.first);\n" +
                  printed("                ", "எ") +
                  "            }\n        } else {\n"
                  "            pozhil_runtime_error(\"பொழி-313\", \"நிரல்.பொழில்\", 3);\n"
                  "        }\n    }\n");
}

TEST(Layout, ALoopOverAnyOtherCallIsAContainerLoop) {
    EXPECT_EQ(mainBody("ஒவ்வொன்றாக எ இல் எண்(3):\n    விடு\n")
                  .rfind("    {\n        auto& _iterable = fn_cast_to_number(3LL, 1);\n", 0),
              0U);
}

TEST(Layout, Switch) {
    EXPECT_EQ(
        mainBody("தேர்வு அ:\n    நிலை 1:\n        விடு\n    நிலை \"ஆ\":\n        நிறுத்து\n    மற்றவை:\n        தொடர்\n"),
        "    {\n        auto _switch_val = global_vars[\"அ\"];\n"
        "        if (fn_compare_any(_switch_val, std::any(1LL), \"==\")) {\n        (void)0;\n        }\n"
        "        else if (fn_compare_any(_switch_val, std::any(std::string(u8\"ஆ\")), \"==\")) {\n"
        "        break;\n        }\n"
        "        else {\n        continue;\n        }\n    }\n");
    EXPECT_EQ(mainBody("தேர்வு 1:\n    மற்றவை:\n        விடு\n"),
              "    {\n        auto _switch_val = 1LL;\n        {\n        (void)0;\n        }\n    }\n")
        << "a default alone is a plain block";
}

TEST(Layout, TryAndCatch) {
    EXPECT_EQ(mainBody("முயற்சி:\n    விடு\nபிடி(தவறு):\n    நிறுத்து\n"),
              "    try {\n        (void)0;\n    } catch (const std::exception& e) {\n"
              "        global_vars[\"தவறு\"] = std::any(std::string(e.what()));\n        break;\n    }\n");
}

TEST(Layout, ConstructionIsAClosureOfSeveralLines) {
    EXPECT_EQ(mainBody("கட்டமைப்பு ப:\n    அ = 1\nஎனில் மெய்:\n    கா = ப()\n"),
              "    if (std::any_cast<bool>(true)) {\n"
              "        (global_vars[\"கா\"] = [&]() -> std::any {\n"
              "            auto temp_obj = std::make_shared<ப>();\n"
              "            temp_obj->properties[\"அ\"] = std::any(1LL);\n"
              "            return std::any(std::static_pointer_cast<_StructBase>(temp_obj));\n"
              "        }(), global_vars[\"கா\"]);\n    }\n");
}

TEST(Layout, NestedStructuresVanish) {
    EXPECT_EQ(mainBody("எனில் மெய்:\n    கட்டமைப்பு அ:\n        ஆ = 1\n    வடிவமைப்பு இ:\n        செயல் ஈ(தான்)\n    விடு\n"),
              "    if (std::any_cast<bool>(true)) {\n        (void)0;\n    }\n");
}

} // namespace
