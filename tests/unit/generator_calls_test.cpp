// Calls that are refused: the words of each refusal, and where it is told. And calls that no source leads to.

#include "language/builtins.h"
#include "support/generating.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::test;

namespace {

/// The exception that printing \p expression ends with.
std::string exceptionOf(const std::string& expression) {
    return generatorFault("த = இப்போதுநேரம்()\nஅச்சிடு(" + expression + ")\n");
}

/// Whether \p message begins with \p code and ends with \p detail in parentheses, as faults without a line do.
testing::AssertionResult tells(const std::string& message, const std::string& code, const std::string& detail) {
    const std::string start = "exception " + code + ": ";
    const std::string end = " (" + detail + ")";
    const bool isTold = message.size() > start.size() + end.size() && message.compare(0, start.size(), start) == 0 &&
                        message.compare(message.size() - end.size(), end.size(), end) == 0;
    return isTold ? testing::AssertionSuccess() : testing::AssertionFailure() << message;
}

/// The row of the box for \p source that says what is wrong.
std::string descriptionOf(const std::string& source) {
    const std::string report = generatorReport(source);
    const std::string before = "மச்சி, ";
    const std::size_t start = report.find(before) + before.size();
    return report.substr(start, report.find("\x1b[0m", start) - start);
}

std::string printed(ExpressionPtr value) {
    return mainBody("", listOf(make<PrintStatement>(listOf<ExpressionList>(std::move(value)))));
}

TEST(WrongCount, OfMostBuiltInsIsAnException) {
    const std::pair<std::string, std::string> DETAILS[] = {
        {"நீளம்", "'நீளம்' 1 argument மட்டுமே ஏற்கும்."},
        {"உள்ளீடு", "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்."},
        {"செல்க", "'செல்க' 1 argument only."},
        {"நகர்த்து", "'நகர்த்து' 1 argument மட்டுமே ஏற்கும் (அடையாளம்)."},
        {"சீரற்ற_எண்", "'சீரற்ற_எண்' 2 arguments ஏற்கும் (min, max)."},
        {"எடு", "'எடு' 2 arguments ஏற்கும் (object, index)."},
        {"வர்க்கமூலம்", "'வர்க்கமூலம்' 1 argument மட்டுமே ஏற்கும்."},
        {"அடுக்கு", "'அடுக்கு' 2 arguments ஏற்கும் (அடி, அடுக்கு)."},
        {"தனிமதிப்பு", "'தனிமதிப்பு' 1 argument மட்டுமே ஏற்கும்."},
        {"மேல்எண்", "'மேல்எண்' 1 argument மட்டுமே ஏற்கும்."},
        {"கீழ்எண்", "'கீழ்எண்' 1 argument மட்டுமே ஏற்கும்."},
        {"சைன்", "'சைன்' 1 argument மட்டுமே ஏற்கும்."},
        {"காஸ்", "'காஸ்' 1 argument மட்டுமே ஏற்கும்."},
        {"டேன்", "'டேன்' 1 argument மட்டுமே ஏற்கும்."},
        {"மடக்கு", "'மடக்கு' 1 argument மட்டுமே ஏற்கும்."},
        {"பிளவு", "'பிளவு' 2 arguments ஏற்கும் (string, delimiter)."},
        {"பதில்", "'பதில்' 3 arguments ஏற்கும் (string, find, replace)."},
        {"பெரியஎ", "'பெரியஎ' 1 argument மட்டுமே ஏற்கும்."},
        {"சிறியஎ", "'சிறியஎ' 1 argument மட்டுமே ஏற்கும்."},
        {"கோப்பு_அழி", "'கோப்பு_அழி' 1 argument ஏற்கும் (path)."},
        {"கோப்பு_உள்ளதா", "'கோப்பு_உள்ளதா' 1 argument ஏற்கும் (path)."},
        {"தேதி", "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
        {"நேரம்", "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
        {"முழுவதும்", "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    };
    for (const auto& [name, detail] : DETAILS) {
        auto four = listOf<ExpressionList>(number("1"), number("2"), number("3"), number("4"));
        const std::string fault = generatorFault("", listOf(make<ExpressionStatement>(call(name, std::move(four)))));
        EXPECT_TRUE(tells(fault, "பொழி-331", detail));
    }
}

TEST(WrongCount, IsRefusedByEveryBuiltIn) {
    for (const language::Builtin& row : language::builtins()) {
        if (row.form == language::BuiltinForm::Call && row.argumentCount != language::ANY_COUNT) {
            auto four = listOf<ExpressionList>(number("1"), number("2"), number("3"), number("4"));
            auto statement = make<ExpressionStatement>(call(std::string(row.name), std::move(four)));
            EXPECT_NE(generatorFault("", listOf(std::move(statement))).find("பொழி-331"), std::string::npos) << row.name;
        }
    }
}

TEST(WrongCount, OfTheOthersIsABoxWithTheLine) {
    for (const std::string source : {"எண்()", "நீக்கு([])", "என்னவகை()", "வை([])", "கோப்பு_படி()", "கோப்பு_எழுது(\"அ\")",
                                     "கோப்பு_சேர்()", "கா.சேர்()", "_set_index_internal([])"}) {
        EXPECT_EQ(generatorFault("\n\n" + source + "\n"), "பொழி-331 வரி 3") << source;
    }
}

TEST(WrongCount, OfSomeBuiltInsAddsNoWords) {
    const std::string bare = descriptionOf("எண்()\n");
    EXPECT_EQ(descriptionOf("நீக்கு([])\n"), bare);
    EXPECT_EQ(descriptionOf("கோப்பு_படி()\n"), bare + " ('கோப்பு_படி' 1 உள்ளீட்டை ஏற்கும் (path).)");
    EXPECT_EQ(descriptionOf("செயல் f(அ, ஆ):\n    விடு\nf(1, 2, 3)\n"),
              bare + " ('f' 2 உள்ளீடுகளை ஏற்கும், ஆனால் 3 கொடுக்கப்பட்டுள்ளது.)");
}

TEST(TimeMethods, TellTheirFaultsByExceptions) {
    EXPECT_TRUE(tells(exceptionOf("நேரம்.வினாடிகள்(1)"), "பொழி-331", "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது."));
    EXPECT_TRUE(tells(exceptionOf("த.வினாடிகள்()"), "பொழி-332", "'வினாடிகள்' என்பது ஒரு function இல்லை."));
    EXPECT_TRUE(tells(exceptionOf("நேரம்.உருவாக்கு(1)"), "பொழி-332", "'உருவாக்கு' என்பது ஒரு function இல்லை."));
}

TEST(UnknownNames, AreToldByExceptions) {
    EXPECT_TRUE(tells(exceptionOf("இல்லாதது(1)"), "பொழி-332", "'இல்லாதது' என்பது ஒரு function இல்லை."));
    EXPECT_TRUE(tells(exceptionOf("[1].புரட்டு()"), "பொழி-332", "'புரட்டு' என்பது ஒரு function இல்லை."));
    EXPECT_TRUE(tells(exceptionOf("எண்(\"1\")(2)"), "பொழி-399", "Unknown call expression"));
}

TEST(CalledLambda, IsCastByItsOwnParameters) {
    ExpressionPtr lambda = make<LambdaExpression>(std::vector<Token>{word("அ"), word("ஆ")}, variable("ஆ"));
    EXPECT_EQ(printed(make<CallExpression>(std::move(lambda), listOf<ExpressionList>(number("1")))),
              "    std::cout << fn_any_to_string(std::any_cast<std::function<std::any(std::any, std::any)>>("
              "std::function<std::any(std::any, std::any)>([=](std::any அ, std::any ஆ) { return std::any(ஆ); }))"
              "(std::any(1LL))) << std::endl;\n");
}

TEST(Cosine, IsKnownThoughNoSourceCanWriteItsName) {
    EXPECT_EQ(printed(call("காஸ்", listOf<ExpressionList>(variable("அ")))),
              "    std::cout << fn_any_to_string(std::any(std::cos(std::any_cast<long double>(global_vars[\"அ\"]))))"
              " << std::endl;\n");
}

TEST(ReferenceArgument, IsLookedAtBehindTheCount) {
    const std::string function = "செயல் f(மாற்று அ, ஆ):\n    விடு\n";
    EXPECT_NE(descriptionOf(function + "f(5)\n").find("'f' 2"), std::string::npos);
    EXPECT_NE(descriptionOf(function + "f(5, 6)\n").find("'மாற்று' parameter"), std::string::npos);
}

} // namespace
