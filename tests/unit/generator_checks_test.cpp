// What the generator refuses at sight: code and line of each, and the words that it adds to the description.

#include "support/generating.h"

#include <gmock/gmock.h>

using namespace pozhil::test;

namespace {

const std::string ARITHMETIC[] = {"கூட்டு", "கழி", "பெருக்கு", "வகு", "மீதி"};
const std::string OTHER_OPERATORS[] = {"இணை",        "சமம்",       "சமமில்லை",   "பெரிது",
                                       "சிறிது",     "பெரிதுசமம்", "சிறிதுசமம்", "பெருக்குஇருமை",
                                       "கூட்டுஇருமை", "வேறுஇருமை", "இடதுஇருமை", "வலதுஇருமை"};

/// The diagnostic for printing \p expression in line 2, behind variables of each type.
std::string faultOf(const std::string& expression) {
    const std::string variables = "ப = [1];ம = {};பொ = () => 1;எ = 1;த = 1.5;சொ = \"அ\";உண்மை = மெய்;கா = இப்போதுநேரம்()\n";
    return generatorFault(variables + "அச்சிடு(" + expression + ")\n");
}

TEST(ArithmeticOnContainers, IsRefused) {
    for (const std::string& word : ARITHMETIC) {
        for (const std::string container : {"[1]", "{}", "ப", "ம", "பொ", "பிளவு(சொ, சொ)"}) {
            for (const std::string other : {"1", "\"அ\"", "தெரியாது"}) {
                EXPECT_EQ(faultOf(container + " " + word + " " + other), "பொழி-304 வரி 2")
                    << container << word << other;
                EXPECT_EQ(faultOf(other + " " + word + " " + container), "பொழி-304 வரி 2")
                    << other << word << container;
            }
        }
    }
}

TEST(ArithmeticOnTextAndNumbers, IsRefused) {
    for (const std::string& word : ARITHMETIC) {
        for (const std::string aText : {"\"அ\"", "சொ", "பெரியஎ(சொ)", "எ இணை சொ"}) {
            for (const std::string aNumber : {"1", "2.5", "எ", "த", "நீளம்(சொ)", "வர்க்கமூலம்(த)"}) {
                EXPECT_EQ(faultOf(aText + " " + word + " " + aNumber), "பொழி-303 வரி 2") << aText << word << aNumber;
            }
            EXPECT_EQ(faultOf("5 " + word + " சொ"), "பொழி-303 வரி 2") << word;
            EXPECT_EQ(faultOf("2.5 " + word + " \"\""), "பொழி-303 வரி 2") << word;
            for (const std::string other : {"\"ஆ\"", "தெரியாது", "மெய்", "(1)", "'அ'", "கா"}) {
                EXPECT_EQ(faultOf(aText + " " + word + " " + other), "none") << aText << word << other;
                EXPECT_EQ(faultOf("(" + other + ") " + word + " " + aText), "none") << other << word << aText;
            }
        }
    }
}

TEST(OtherOperators, AreNotCheckedForTypes) {
    for (const std::string& word : OTHER_OPERATORS) {
        for (const std::string left : {"{}", "பொ", "1"}) {
            for (const std::string right : {"[1]", "\"அ\"", "0.0"}) {
                EXPECT_EQ(faultOf(left + " " + word + " " + right), "none") << left << word << right;
            }
        }
    }
}

TEST(DivisionByALiteralZero, IsRefused) {
    for (const std::string left : {"1", "2.5", "எ", "தெரியாது", "\"அ\"", "மெய்"}) {
        for (const std::string zero : {"0", "0.0", "0.", "௦"}) {
            EXPECT_EQ(faultOf(left + " வகு " + zero), "பொழி-301 வரி 2") << left << zero;
        }
        EXPECT_EQ(faultOf(left + " மீதி (0)"), "none") << left;
    }
    EXPECT_EQ(faultOf("[1] வகு 0"), "பொழி-304 வரி 2") << "containers are seen first";
}

TEST(DivisionByALiteralZero, InOtherSpellingsIsLeftToTheProgram) {
    for (const std::string zero : {"0.00", "00", "(0)", "குறை 0", "சுழி"}) {
        EXPECT_EQ(faultOf("1 வகு " + zero), "none") << zero;
    }
    EXPECT_EQ(faultOf("1 மீதி 0"), "none");
    EXPECT_EQ(faultOf("0 வகு 1"), "none");
}

TEST(Numbers, MustFitIn64Bits) {
    EXPECT_EQ(faultOf("18446744073709551615"), "none");
    EXPECT_EQ(faultOf("18446744073709551616"), "பொழி-305 வரி 2");
    EXPECT_EQ(faultOf("123456789012345678901"), "பொழி-305 வரி 2");
    EXPECT_EQ(faultOf("௧௮௪௪௬௭௪௪௦௭௩௭௦௯௫௫௧௬௧௫"), "none");
    EXPECT_EQ(faultOf("௧௮௪௪௬௭௪௪௦௭௩௭௦௯௫௫௧௬௧௬"), "பொழி-305 வரி 2");
    EXPECT_EQ(faultOf("123456789012345678901.5"), "none") << "a decimal";
    EXPECT_EQ(faultOf("[1, {அ: 99999999999999999999}]"), "பொழி-305 வரி 2");
}

TEST(Constants, AreAssignedOnce) {
    EXPECT_EQ(generatorFault("மாறிலி_பை = 3.14\nமாறிலி = 1\nமாறிலி_ஈ = 2\n"), "none");
    EXPECT_EQ(generatorFault("மாறிலி_பை = 3.14\nமாறிலி_பை = 3\n"), "பொழி-315 வரி 2");
    EXPECT_EQ(generatorFault("மாறிலி = 1\n\nமாறிலி = 1\n"), "பொழி-315 வரி 3");
    EXPECT_EQ(generatorFault("மாறிலி_ = 1\nமாறிலி_ = 1\n"), "பொழி-315 வரி 2");
    EXPECT_EQ(generatorFault("மாறிலி_எ = 1\nமாறிலி_எ கூட்டிசேர் 1\n"), "பொழி-315 வரி 2");
    EXPECT_EQ(generatorFault("செயல் அ():\n    மாறிலி_எ = 1\nமாறிலி_எ = 2\n"), "பொழி-315 வரி 3");
    EXPECT_EQ(generatorFault("மாறிலி_எ = 2\nசெயல் அ():\n    மாறிலி_எ = 1\n"), "பொழி-315 வரி 1")
        << "functions come first";
}

TEST(Constants, AreToldByTheirSpelling) {
    for (const std::string name : {"மாறிலிகள்", "மாறிலிஅ", "என்_மாறிலி", "_மாறிலி_எ"}) {
        EXPECT_EQ(generatorFault(name + " = 1\n" + name + " = 2\n"), "none") << name;
    }
}

TEST(Self, ExistsOnlyInMethods) {
    for (const std::string name : {"தான்", "self"}) {
        EXPECT_EQ(faultOf(name), "பொழி-325 வரி 2") << name;
        EXPECT_EQ(faultOf(name + ".அ"), "பொழி-325 வரி 2") << name;
        EXPECT_EQ(faultOf("1 கூட்டு " + name), "பொழி-325 வரி 2") << name;
        EXPECT_EQ(faultOf("எ => " + name), "பொழி-325 வரி 2") << name;
        EXPECT_EQ(generatorFault("செயல் அ():\n    ஆ = " + name + "\n"), "பொழி-325 வரி 2") << name;
        EXPECT_EQ(generatorFault("கட்டமைப்பு அ:\n    செயல் ஆ(" + name + "):\n        திரும்பு " + name + "\n"), "none")
            << name;
    }
}

TEST(Dot, NeedsAnObjectOrATime) {
    const std::string extra = "('.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.)";
    for (const std::string object : {"எ", "த", "சொ", "உண்மை", "ப", "ம", "தெரியாது", "ப[0]", "(பொ)", "\"அ\""}) {
        EXPECT_EQ(faultOf(object + ".ஏதோ"), "பொழி-304 வரி 2") << object;
        EXPECT_NE(generatorReport("அச்சிடு(" + object + ".ஏதோ)\n").find(extra), std::string::npos) << object;
    }
    EXPECT_EQ(faultOf("பொ.ஏதோ"), "none");
    EXPECT_EQ(generatorFault("செயல் அ(உ):\n    அச்சிடு(உ.ஏதோ)\n"), "பொழி-304 வரி 2") << "a parameter's type is unknown";
}

TEST(Dot, OnATimeNamesAPartOfIt) {
    for (const std::string part : {"ஆண்டு", "மாதம்", "நாள்", "மணி", "நிமிடம்", "வினாடி", "வாரநாள்"}) {
        EXPECT_EQ(faultOf("கா." + part), "none") << part;
    }
    EXPECT_EQ(faultOf("கா.ஏதோ"), "பொழி-304 வரி 2");
    EXPECT_NE(generatorReport("கா = இப்போதுநேரம்()\nஅச்சிடு(கா.ஏதோ)\n").find("(நேரப் பொருளில் 'ஏதோ' என்ற பகுதி இல்லை.)"),
              std::string::npos);
}

TEST(MemberWrite, NeedsAnObject) {
    EXPECT_EQ(generatorFault("கா = இப்போதுநேரம்()\nகா.ஆண்டு = 1\n"), "பொழி-322 வரி 2");
    EXPECT_EQ(generatorFault("பொ = () => 1\nபொ.அ = 1\n"), "none");
    for (const std::string object : {"எ", "தெரியாது", "ப[0]"}) {
        EXPECT_EQ(generatorFault("எ = 1\n" + object + ".அ = 1\n"), "பொழி-304 வரி 2") << object;
        EXPECT_NE(generatorReport("எ = 1\n" + object + ".அ = 1\n").find("(இந்த வகைக்குள் பண்புகளை மாற்ற முடியாது)"),
                  std::string::npos)
            << object;
    }
    EXPECT_EQ(generatorFault("தான்.அ = 1\n"), "பொழி-325 வரி 1");
    EXPECT_EQ(generatorFault("காட்சி_நிலை = இப்போதுநேரம்()\nகாட்சி_நிலை.அ = 1\n"), "none") << "the name is what counts";
}

TEST(PrivateFields, AreReachedThroughTheObjectItselfOnly) {
    const std::string structures = "கட்டமைப்பு பறவை:\n    ரகசிய வயது = 1\n    பெயர் = 2\n    செயல் சொல்(தான்):\n"
                                   "        தான்.வயது = தான்.வயது\n"
                                   "கட்டமைப்பு மரம்:\n    வயது = 9\n";
    const auto fault = [&](const std::string& line) {
        return generatorFault(structures + "அ = பறவை();ஆ = மரம்()\n" + line);
    };
    EXPECT_EQ(fault(""), "none");
    EXPECT_EQ(fault("அச்சிடு(அ.வயது)\n"), "பொழி-321 வரி 9");
    EXPECT_EQ(fault("அ.வயது = 1\n"), "பொழி-321 வரி 9");
    EXPECT_EQ(fault("அச்சிடு(ஆ.வயது)\n"), "பொழி-321 வரி 9") << "a public field of the same name";
    EXPECT_EQ(fault("அச்சிடு(அ.பெயர்)\nஅ.பெயர் = 1\n"), "none");
    EXPECT_EQ(fault("அச்சிடு(பறவை().வயது)\n"), "none") << "not behind a name";
    EXPECT_EQ(fault("காட்சி_நிலை.வயது = மெய்\n"), "none");
    EXPECT_NE(generatorReport(structures + "அ = பறவை()\nஅச்சிடு(அ.வயது)\n").find("('வயது')"), std::string::npos);
}

TEST(RangeLoop, TakesOneOrTwoBounds) {
    const auto fault = [](const std::string& bounds) {
        return generatorFault("ஒவ்வொன்றாக எ இல் வரம்பு(" + bounds + "):\n    விடு\n");
    };
    EXPECT_EQ(fault("1"), "none");
    EXPECT_EQ(fault("1, 2"), "none");
    for (const std::string bounds : {"", "1, 2, 3"}) {
        const std::string report = fault(bounds);
        EXPECT_EQ(report.rfind("exception பொழி-331: ", 0), 0U) << report;
        EXPECT_NE(report.find(" ('வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்.)"), std::string::npos) << report;
    }
}

TEST(ContainerLoop, StandsInTwelveOthersAtMost) {
    const auto fault = [](int depth) {
        std::string source;
        for (int level = 0; level < depth; ++level) {
            source += std::string(static_cast<std::size_t>(level), ' ') + "ஒவ்வொன்றாக எ இல் ப:\n";
        }
        return generatorFault(source + std::string(static_cast<std::size_t>(depth), ' ') + "விடு\n");
    };
    EXPECT_EQ(fault(12), "none");
    EXPECT_EQ(fault(13), "பொழி-291 வரி 13");
}

/// So many objects inside each other, each the argument of the next.
std::string nestedObjects(int depth) {
    std::string value;
    for (int level = 0; level < depth; ++level) {
        value += "கணு(" + std::to_string(level) + ", ";
    }
    return "கட்டமைப்பு கணு:\n    செயல் துவக்கம்(தான், மதிப்பு, அடுத்து):\n        தான்.மதிப்பு = மதிப்பு\n"
           "        தான்.அடுத்து = அடுத்து\nவேர் = " +
           value + "0" + std::string(static_cast<std::size_t>(depth), ')') + "\n";
}

/// So many structures whose fields each construct the next.
std::string chainedStructures(int count) {
    std::string source;
    for (int index = count; index > 0; --index) {
        const std::string next = index == count ? "1" : "க" + std::to_string(index + 1) + "()";
        source += "கட்டமைப்பு க" + std::to_string(index) + ":\n    புலம் = " + next + "\n";
    }
    return source + "வேர் = க1()\n";
}

TEST(Construction, MayStandInAsManyOthersAsOneLikes) {
    for (const int depth : {12, 13, 200}) {
        EXPECT_EQ(generatorFault(nestedObjects(depth)), "none") << depth;
        EXPECT_EQ(generatorFault(chainedStructures(depth)), "none") << depth;
    }
}

TEST(Construction, TakesTextInLineWithItsDepth) {
    const auto length = [](int depth) { return pozhil::test::generatedText(nestedObjects(depth)).size(); };
    const std::size_t once = length(200) - length(100);
    EXPECT_EQ(length(300) - length(200), once);
}

TEST(Construction, OfFieldsThatLeadBackNeverEnds) {
    EXPECT_EQ(generatorFault("கட்டமைப்பு அ:\n    ஒன்று = ஆ()\nகட்டமைப்பு ஆ:\n    இரண்டு = அ()\nவேர் = அ()\n"),
              "பொழி-291 வரி 4");
    EXPECT_EQ(generatorFault("கட்டமைப்பு தாய்:\n    செல்வம் = சேய்()\nகட்டமைப்பு சேய்(தாய்):\n    பெயர் = 1\nவேர் = சேய்()\n"),
              "பொழி-291 வரி 2");
}

TEST(Construction, OfFieldsThatDoubleAtEachStepIsRefusedInTime) {
    std::string source = "கட்டமைப்பு க40:\n    புலம் = 1\n";
    for (int index = 39; index > 0; --index) {
        const std::string next = "க" + std::to_string(index + 1) + "()";
        source += "கட்டமைப்பு க" + std::to_string(index) + ":\n    புலம் = " + next + "\n    மறுபுலம் = " + next + "\n";
    }
    EXPECT_THAT(generatorFault(source + "வேர் = க1()\n"), testing::StartsWith("பொழி-291"));
}

/// The diagnostic for a function \p name that returns \p value in line 4.
std::string returnFault(const std::string& name, const std::string& value) {
    return generatorFault("கட்டமைப்பு மரம்:\n    அ = 1\nசெயல் " + name + "():\n    திரும்பு " + value + "\n");
}

struct Promise {
    std::vector<std::string> names;
    std::vector<std::string> kept;
    std::vector<std::string> broken;
};

TEST(Return, KeepsWhatTheFunctionsNamePromises) {
    const std::string text = "\"அ\"", list = "[]", map = "{}", object = "மரம்()", lambda = "() => 1", integer = "1";
    const std::string decimal = "1.5", truth = "மெய்", letter = "'அ'", unknown = "தெரியாது", time = "இப்போதுநேரம்()";
    const Promise promises[] = {
        {{"எண்", "மொத்த_எண்", "வா_எண்கள்", "வா_எண்_உரை", "வா_பட்டியல்_எண்"},
         {integer, decimal, truth, letter, unknown, time},
         {text, list, map, object, lambda}},
        {{"உரை", "வா_உரை", "வா_உரைகள்", "வா_உரை_பட்டியல்"},
         {text, truth, letter, unknown, time, object, lambda},
         {integer, decimal, list, map}},
        {{"பட்டியல்", "வா_பட்டியல்", "வா_பட்டியல்கள்"},
         {list, unknown, letter},
         {text, integer, decimal, truth, map, object, lambda, time}},
        {{"மொத்தம்", "எண்கள்", "அஎண்", "உரைநடை"}, {text, list, map, object, lambda, integer, decimal, truth, time}, {}},
    };
    for (const Promise& promise : promises) {
        for (const std::string& name : promise.names) {
            for (const std::string& value : promise.kept) {
                EXPECT_EQ(returnFault(name, value), "none") << name << " " << value;
            }
            for (const std::string& value : promise.broken) {
                EXPECT_EQ(returnFault(name, value), "பொழி-334 வரி 4") << name << " " << value;
            }
        }
    }
}

TEST(Return, TellsWhatTheNamePromises) {
    const auto report = [](const std::string& name, const std::string& value) {
        return generatorReport("செயல் " + name + "():\n    திரும்பு " + value + "\n");
    };
    EXPECT_NE(
        report("மொத்த_எண்", "\"\"").find("('மொத்த_எண்' ஒரு 'எண்' (Number)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.)"),
        std::string::npos);
    EXPECT_NE(
        report("முழு_உரை", "1").find("('முழு_உரை' ஒரு 'உரை' (String)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.)"),
        std::string::npos);
    EXPECT_NE(report("முழு_பட்டியல்", "1").find("('முழு_பட்டியல்' ஒரு 'பட்டியல்' (List)-ஐ அனுப்ப வேண்டும்.)"),
              std::string::npos);
}

TEST(Return, OfANestedFunctionOrMethodGoesByItsOwnName) {
    EXPECT_EQ(generatorFault("செயல் வா_எண்():\n    செயல் உள்():\n        திரும்பு \"\"\n    திரும்பு 1\n"), "none");
    EXPECT_EQ(generatorFault("செயல் வா():\n    செயல் உள்_எண்():\n        திரும்பு \"\"\n    திரும்பு \"\"\n"),
              "பொழி-334 வரி 3");
    EXPECT_EQ(generatorFault("கட்டமைப்பு மரம்_எண்:\n    செயல் வா(தான்):\n        திரும்பு \"\"\n"), "none");
    EXPECT_EQ(generatorFault("கட்டமைப்பு மரம்:\n    செயல் வா_எண்(தான்):\n        திரும்பு \"\"\n"), "பொழி-334 வரி 3");
    EXPECT_EQ(generatorFault("செயல் வா_எண்():\n    திரும்பு\n"), "none") << "nothing is no value";
}

} // namespace
