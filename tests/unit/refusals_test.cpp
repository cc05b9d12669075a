#include "diagnostics/refusals/refusals.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using pozhil::findRefusal;
using pozhil::Refusal;
using pozhil::RefusalRow;

namespace {

/// A statement, what g++ and clang say of it, and words of the remedy.
struct Case {
    std::string statement;
    bool isInStructure;
    std::string gcc;
    std::string clang;
    std::string remedy;
};

const std::vector<Case>& cases() {
    static const std::vector<Case> all = {
        {"அச்சிடு(\"C:\\\")", false, "missing terminating \" character", "expected expression", "'\\042'"},
        {"அச்சிடு(\"அ", false, "missing terminating \" character", "expected expression", "அதே வரியில மூடு"},
        {"அச்சிடு(\"\\u12\")", false, "incomplete universal character name \\u12", "incomplete universal character name",
         "ரெண்டு தடவை"},
        {"அச்சிடு(08)", false, "invalid digit \"8\" in octal constant", "invalid digit '8' in octal constant",
         "0-வை எடுத்துடு"},
        {"அ = உள்ளீடு()", false, "too few arguments to function ‘std::string fn_உள்ளீடு(std::string)’",
         "no matching function for call to 'fn_உள்ளீடு'", "உள்ளீடு(\"\")"},
        {"அச்சிடு(எடு(அ, 0))", false, "no matching function for call to ‘fn_எடு(std::any, std::any)’",
         "no matching function for call to 'fn_எடு'", "'அ[0]'"},
        {"அச்சிடு(த.தேதி())", false,
         "no match for ‘operator<<’ (operand types are ‘std::any’ and ‘<unresolved overloaded function type>’)",
         "reference to overloaded function could not be resolved; did you mean to call it?", "'தேதி(த)'"},
        {"அ = \"#1\"", false, "‘nvgRGBA’ was not declared in this scope", "", "043"},
        {"அ = பொத்தான்(உரை: \"அ\")", false, "‘winWidth’ was not declared in this scope",
         "use of undeclared identifier 'winWidth'", "'குமரி'-க்குள்ள"},
        {"அச்சிடு(மிகை அ)", false, "no match for ‘operator+’ (operand type is ‘std::any’)",
         "invalid argument type 'std::any' to unary expression", "அதை எடுத்துடு"},
        {"அச்சிடு(5.5 இடதுஇருமை 2)", false,
         "invalid operands of types ‘long double’ and ‘long long int’ to binary ‘operator<<’",
         "invalid operands to binary expression ('long double' and 'long long')", "தசம எண்ணை"},
        {"செல்க(\"அ\")", false, "‘g_mouseClicked’ was not declared in this scope", "", "வலைதளம்"},
        {"திரும்பு ஆ()", true, "‘fn_ஆ’ was not declared in this scope; did you mean ‘fn_அ’?",
         "use of undeclared identifier 'fn_ஆ'; did you mean 'fn_அ'?", "கட்டமைப்புக்குள்ளேயே"},
        {"திரும்பு ஆ()", false, "‘fn_ஆ’ was not declared in this scope; did you mean ‘fn_அ’?",
         "use of undeclared identifier 'fn_ஆ'; did you mean 'fn_அ'?", "'ஆ' செயலை, அதை அழைக்கிற செயலுக்கு மேலே"},
        {"செயல் f():", false, "a function-definition is not allowed here before ‘{’ token",
         "function definition is not allowed here", "வெளியே எடுத்து"},
        {"செயல் பேசு(தான்):", true, "redefinition of ‘std::any fn_பு_பேசு(std::shared_ptr<_StructBase>)’",
         "redefinition of 'fn_பு_பேசு'", "ரெண்டுல ஒரு செயலுக்கு வேற பெயர் வை மச்சி"},
        {"செயல் f(அ):", false, "redefinition of ‘std::any fn_f(std::any)’", "redefinition of 'fn_f'", "இறக்குமதி"},
        {"செயல் f(அ, அ):", false, "redefinition of ‘std::any அ’", "redefinition of parameter 'அ'", "ஒவ்வொரு உள்ளீட்டுக்கும்"},
        {"கட்டமைப்பு பு:", false, "redefinition of ‘struct பு’", "redefinition of 'பு'", "ரெண்டுல ஒரு கட்டமைப்புக்கு"},
        {"ப = பு()", false,
         "too few arguments to function ‘std::any fn_பு_துவக்கம்(std::shared_ptr<_StructBase>, std::any)’",
         "no matching function for call to 'fn_பு_துவக்கம்'", "'துவக்கம்' செயல்ல"},
        {"ப = பு()", false, "too many arguments to function ‘std::any fn_பு_பேசு()’",
         "no matching function for call to 'fn_பு_பேசு'", "பேசு(தான்)"},
        {"செயல் f(int):", false, "two or more data types in declaration of ‘parameter’",
         "cannot combine with previous 'type-name' declaration specifier", "'int'-க்குப் பதிலா"},
        {"கட்டமைப்பு class:", false, "expected identifier before ‘class’",
         "declaration of anonymous struct must be a definition", "'class'-க்குப் பதிலா"},
        {"கட்டமைப்பு std:", false, "‘struct std’ redeclared as different kind of entity",
         "redefinition of 'std' as different kind of symbol", "'std'-க்குப் பதிலா"},
        {"தான்.பட்டி.சேர்(2)", true, "static assertion failed: Template argument must be constructible from an rvalue.",
         "static_assert failed due to requirement 'is_constructible<std::vector<std::any> &>'", "திரும்ப வை"},
        {"திரும்பு எ => (அ = எ)", false, "no match for ‘operator=’ (operand types are ‘const std::any’ and ‘std::any’)",
         "no viable overloaded '='", "வெளியில ஒரு மாறிக்குக்"},
        {"ஒவ்வொன்றாக அ இல் [1, 2]:", false,
         "cannot bind non-const lvalue reference of type ‘std::vector<std::any>&’ to an rvalue of type ‘std::vector<std::any>’",
         "non-const lvalue reference to type 'vector<...>' cannot bind to a temporary of type 'vector<...>'",
         "முதல்ல ஒரு மாறியில வை"},
        {"ப = பு(வ)", false,
         "cannot bind non-const lvalue reference of type ‘std::any&’ to an rvalue of type ‘std::any’",
         "non-const lvalue reference to type 'std::any' cannot bind to a temporary of type 'std::any'", "'மாற்று'"},
        {"ஒவ்வொன்றாக அ இல் வரம்பு(2.5):", false, "call of overloaded ‘fn_index(long double)’ is ambiguous",
         "call to 'fn_index' is ambiguous", "கீழ்எண்"},
        {"நிறுத்து", false, "break statement not within loop or switch",
         "'break' statement not in loop or switch statement", "ஒரு சுற்றுக்குள்ள"},
        {"தொடர்", false, "continue statement not within a loop", "'continue' statement not in loop statement",
         "ஒரு சுற்றுக்குள்ள"},
        {"எ = 50", false, "cannot convert ‘std::any’ to ‘long long int’ in assignment",
         "assigning to 'long long' from incompatible type 'std::any'", "வேற பெயருள்ள"},
        {"அச்சிடு(குறை அ)", false, "no match for ‘operator-’ (operand type is ‘std::any’)",
         "invalid argument type 'std::any' to unary expression", "'0 கழி அ'"},
        {"அ கூட்டிசேர் ஆ", false, "no match for ‘operator+’ (operand types are ‘long long int’ and ‘std::any’)",
         "invalid operands to binary expression ('long long' and 'std::any')", "'அ = அ கூட்டு ஆ'"},
        {"அச்சிடு(5.5 மீதி 2)", false,
         "invalid operands of types ‘long double’ and ‘long long int’ to binary ‘operator%’",
         "invalid operands to binary expression ('long double' and 'long long')", "கீழ்எண்(7.5)"},
        {"அச்சிடு(மெய் ? \"அ\" : 2)", false, "operands to ‘?:’ have different types ‘std::string’ and ‘long long int’",
         "incompatible operand types ('std::string' and 'long long')", "ஒரே வகையா"},
        {"அச்சிடு(அ ? 1 : 2)", false, "could not convert ‘global_vars’ from ‘std::any’ to ‘bool’",
         "value of type 'std::any' is not contextually convertible to 'bool'", "நிறைவு சமம் மெய் ?"},
        {"எனில் அ கூட்டு 1:", false, "could not convert ‘f’ from ‘std::any’ to ‘bool’",
         "value of type 'std::any' is not contextually convertible to 'bool'", "சமமில்லை 0"},
        {"எனில் அ கூட்டு 1 மற்றும் மெய்:", false, "no match for ‘operator&&’ (operand types are ‘std::any’ and ‘bool’)",
         "invalid operands to binary expression ('std::any' and 'bool')", "சமமில்லை 0"},
        {"அச்சிடு(\"அ\" கழி \"ஆ\")", false,
         "no match for ‘operator-’ (operand types are ‘std::string’ and ‘std::string’)",
         "invalid operands to binary expression ('std::string' and 'std::string')", "'எண்(…)'"},
        {"", false, "ld: undefined reference to `f'", "wasm-ld: error: undefined symbol: f", "நிறுவிப் பாரு"},
    };
    return all;
}

Refusal refusalOf(const Case& one, const std::string& message) {
    return {pozhil::plainMessage(message), one.statement, one.isInStructure};
}

std::string remedyOf(const Refusal& refusal) {
    const RefusalRow* row = findRefusal(refusal);
    return row == nullptr ? "none" : pozhil::fillRefusalText(row->remedy, refusal);
}

TEST(Refusals, AreRecognisedByTheWordsOfBothTools) {
    for (const Case& one : cases()) {
        for (const std::string& message : {one.gcc, one.clang}) {
            if (!message.empty()) {
                EXPECT_NE(remedyOf(refusalOf(one, message)).find(one.remedy), std::string::npos)
                    << one.statement << "\n"
                    << message << "\n"
                    << remedyOf(refusalOf(one, message));
            }
        }
    }
}

TEST(Refusals, AllHaveACase) {
    std::set<const RefusalRow*> found;
    for (const Case& one : cases()) {
        found.insert(findRefusal(refusalOf(one, one.gcc)));
    }
    for (const RefusalRow& row : pozhil::refusalRows()) {
        EXPECT_EQ(found.count(&row), 1U) << row.cause;
    }
}

TEST(Refusals, HaveACauseAndARemedyWithoutAWordOfCpp) {
    for (const RefusalRow& row : pozhil::refusalRows()) {
        EXPECT_FALSE(row.cause.empty() || row.remedy.empty()) << row.message;
        for (const std::string_view word : {"std::", "any", "fn_", "C++", "g++"}) {
            EXPECT_EQ(row.cause.find(word), std::string_view::npos) << row.cause;
            EXPECT_EQ(row.remedy.find(word), std::string_view::npos) << row.remedy;
        }
    }
}

TEST(Refusals, WithoutARowHaveNone) {
    EXPECT_EQ(findRefusal({"something new", "அ = 1"}), nullptr);
    EXPECT_EQ(findRefusal({"", ""}), nullptr);
    EXPECT_EQ(findRefusal({"expected primary-expression before ')' token", "அச்சிடு(\"for\") ஃ int"}), nullptr)
        << "words in texts and comments are no names";
}

TEST(PlainMessage, HasStraightQuotesAndLettersForCodePoints) {
    EXPECT_EQ(pozhil::plainMessage("‘fn_\\U00000b86’ `x'"), "'fn_ஆ' 'x'");
    EXPECT_EQ(pozhil::plainMessage("\\U0001F600 \\U00000b"), "😀 \\U00000b");
    EXPECT_EQ(pozhil::plainMessage("\\U0000zzzz"), "\\U0000zzzz");
}

TEST(CodeOfAStatement, HasNeitherTextsNorComments) {
    EXPECT_EQ(pozhil::codeOf("அச்சிடு(\"for ஃ\", 'x') ஃ \"int\""), "அச்சிடு(\"\", '') ");
    EXPECT_EQ(pozhil::codeOf("அஃது = 1"), "அஃது = 1");
    EXPECT_EQ(pozhil::codeOf("அச்சிடு(\"open"), "அச்சிடு(\"");
}

TEST(WordOfCpp, IsAWholeWord) {
    EXPECT_EQ(pozhil::wordOfCpp("செயல் f(அ, for):"), "for");
    EXPECT_EQ(pozhil::wordOfCpp("forest = inti"), "");
    EXPECT_EQ(pozhil::wordOfCpp(""), "");
}

} // namespace
