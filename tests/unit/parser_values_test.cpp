#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

TEST(Literals, AreToldApartByTheirText) {
    EXPECT_EQ(valueTree("12"), "(Number 12)");
    EXPECT_EQ(valueTree("௧௨"), "(Number ௧௨)");
    EXPECT_EQ(valueTree("1.5"), "(Double 1.5)");
    EXPECT_EQ(valueTree("1."), "(Double 1.)");
    EXPECT_EQ(valueTree("50%"), "(Percentage 50%)");
    EXPECT_EQ(valueTree("௫௦%"), "(Percentage ௫௦%)");
    EXPECT_EQ(valueTree("மெய்"), "(Boolean மெய்)");
    EXPECT_EQ(valueTree("பொய்"), "(Boolean பொய்)");
    EXPECT_EQ(valueTree("'கோ'"), "(Char கோ)");
    EXPECT_EQ(valueTree("\"வணக்கம்\""), "(String \"வணக்கம்\")");
    EXPECT_EQ(valueTree("\"\""), "(String \"\")");
    EXPECT_EQ(valueFault("௧.௫"), "பொழி-210 வரி 1");
}

TEST(Literals, AStringThatStartsWithAHashIsAColour) {
    EXPECT_EQ(valueTree("\"#ff0000\""), "(Color \"#ff0000\")");
    EXPECT_EQ(valueTree("\"#\""), "(Color \"#\")");
    EXPECT_EQ(valueTree("\"# குறிப்பு\""), "(Color \"# குறிப்பு\")");
    EXPECT_EQ(valueTree("\"அ#\""), "(String \"அ#\")");
    EXPECT_EQ(valueTree("\" #fff\""), "(String \" #fff\")");
    EXPECT_EQ(valueTree("'#'"), "(Char #)");
}

TEST(Names, NearlyEveryWordCanBeRead) {
    for (const std::string name :
         {"அ",      "a_b2",  "இப்போதுநேரம்", "வரம்பு",  "செல்க",    "பக்கம்",     "வரையறை", "வகை",   "செயல்",
          "அச்சிடு", "சுற்று", "எனில்",       "மூலம்",   "பொது",    "தலைமை",    "குமரி",  "பாணி",  "அகலம்",
          "உயரம்",   "உரை",   "அழுத்தினால்",  "பொத்தான்", "அடையாளம்", "தேடுபொறி", "தத்தல்",   "கீழ்வரி", "மாற்று"}) {
        EXPECT_EQ(valueTree(name), name);
    }
}

TEST(Names, WordsOfPropertiesAndLayoutAreNotRead) {
    for (const std::string word : {"ரகசிய", "புதுப்பி", "நிறம்", "பின்னணி", "நிழல்", "வளைவு", "தலைப்பு", "காலம்", "வலைதளம்",
                                   "*", "=>", ":", "?", ".", ",", "=", "கூட்டிசேர்"}) {
        EXPECT_EQ(valueFault(word), "பொழி-201 வரி 1") << word;
    }
}

TEST(Colours, AreMembersOfTheColourWord) {
    EXPECT_EQ(valueTree("நிறம்.சிவப்பு"), "(Get நிறம் சிவப்பு)");
    EXPECT_EQ(valueTree("அ(நிறம்.நீலம், \"#fff\")"), "(Call அ (Get நிறம் நீலம்) (Color \"#fff\"))");
    EXPECT_EQ(valueFault("நிறம்"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("பின்னணி.சிவப்பு"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("நிறம்.1"), "பொழி-210 வரி 1");
}

TEST(Calls, TakeAnyNumberOfArguments) {
    EXPECT_EQ(valueTree("அ()"), "(Call அ)");
    EXPECT_EQ(valueTree("அ(1)"), "(Call அ (Number 1))");
    EXPECT_EQ(valueTree("அ(1, ஆ(2), இ கூட்டு 3)"),
              "(Call அ (Number 1) (Call ஆ (Number 2)) (Binary இ கூட்டு (Number 3)))");
    EXPECT_EQ(valueTree("அ(ஆ = 1)"), "(Call அ (Assignment ஆ = (Number 1)))");
}

TEST(Calls, MembersAndIndicesFollowEachOtherFromTheLeft) {
    EXPECT_EQ(valueTree("அ()()"), "(Call (Call அ))");
    EXPECT_EQ(valueTree("அ.ஆ.இ"), "(Get (Get அ ஆ) இ)");
    EXPECT_EQ(valueTree("அ[0][1]"), "(Index (Index அ (Number 0)) (Number 1))");
    EXPECT_EQ(valueTree("அ.ஆ(1)[இ].ஈ()"), "(Call (Get (Index (Call (Get அ ஆ) (Number 1)) இ) ஈ))");
    EXPECT_EQ(valueTree("அ[ஆ[0]]"), "(Index அ (Index ஆ (Number 0)))");
}

TEST(Calls, MembersAndIndicesFollowEveryKindOfValue) {
    EXPECT_EQ(valueTree("\"அ\".ஆ()"), "(Call (Get (String \"அ\") ஆ))");
    EXPECT_EQ(valueTree("[1, 2][0]"), "(Index (List (Number 1) (Number 2)) (Number 0))");
    EXPECT_EQ(valueTree("{அ: 1}[\"அ\"]"), "(Index (Map (\"அ\" (Number 1))) (String \"அ\"))");
    EXPECT_EQ(valueTree("5()"), "(Call (Number 5))");
    EXPECT_EQ(valueTree("மெய்.அ"), "(Get (Boolean மெய்) அ)");
}

TEST(Calls, NeedTheirBracketOnTheSameLine) {
    EXPECT_EQ(valueFault("அ(1"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("அ(1 2)"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("அ(1,)"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("அ(,)"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ(1\n)"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("அ(\n1)"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அ(1,\n2)"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("\n\nஅ(ஆ(1),\n    2)"), "பொழி-201 வரி 3");
}

TEST(Members, AreNamesOfAnyKind) {
    for (const std::string name : {"ஆ", "சுற்று", "எனில்", "உரை", "பக்கம்", "அகலம்", "உயரம்", "பாணி", "அழுத்தினால்", "நிறம்"}) {
        EXPECT_EQ(valueTree("அ." + name), "(Get அ " + name + ")");
    }
    for (const std::string word : {"1", "\"ஆ\"", "(ஆ)", "ரகசிய", "தலைமை", "மெய்", "கூட்டு", ""}) {
        EXPECT_EQ(valueFault("அ." + word), "பொழி-210 வரி 1") << word;
    }
    EXPECT_EQ(fault("ஆ = அ.\nஇ"), "பொழி-210 வரி 1");
}

TEST(Indices, HoldOneExpression) {
    EXPECT_EQ(valueTree("அ[1 கூட்டு 2]"), "(Index அ (Binary (Number 1) கூட்டு (Number 2)))");
    EXPECT_EQ(valueTree("அ[\"ஆ\"]"), "(Index அ (String \"ஆ\"))");
    EXPECT_EQ(valueFault("அ[]"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("அ[1, 2]"), "பொழி-205 வரி 1");
    EXPECT_EQ(valueFault("அ[1"), "பொழி-205 வரி 1");
    EXPECT_EQ(fault("ஆ = அ[1\n]"), "பொழி-205 வரி 1");
    EXPECT_EQ(fault("ஆ = அ[\n1]"), "பொழி-201 வரி 1");
}

TEST(Lists, HoldElementsInOrder) {
    EXPECT_EQ(valueTree("[]"), "(List)");
    EXPECT_EQ(valueTree("[1, \"இரண்டு\", [3]]"), "(List (Number 1) (String \"இரண்டு\") (List (Number 3)))");
    EXPECT_EQ(valueTree("[அ => ஆ, இ ? ஈ : உ]"), "(List (Lambda (அ) ஆ) (Ternary இ ஈ உ))");
}

TEST(Lists, AllowOneCommaBehindTheLastElement) {
    EXPECT_EQ(valueTree("[1,]"), "(List (Number 1))");
    EXPECT_EQ(valueTree("[1, 2,]"), "(List (Number 1) (Number 2))");
    EXPECT_EQ(valueFault("[1,,]"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("[,]"), "பொழி-201 வரி 1");
}

TEST(Lists, NeedCommasBetweenElements) {
    EXPECT_EQ(valueFault("[1 2]"), "பொழி-207 வரி 1");
    EXPECT_EQ(valueFault("[1, 2 அ]"), "பொழி-207 வரி 1");
    EXPECT_EQ(valueFault("[1)"), "பொழி-207 வரி 1");
}

TEST(Lists, EndOnTheLineOfTheirBracket) {
    EXPECT_EQ(fault("\nஅ = [1, 2\n]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("\nஅ = [1\n, 2]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("\nஅ = [1,\n2]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("\nஅ = [\n1]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("அ = [1, 2"), "பொழி-205 வரி 1");
    EXPECT_EQ(fault("அ = [1,"), "பொழி-205 வரி 1");
    EXPECT_EQ(fault("அ = ["), "பொழி-205 வரி 1");
}

TEST(Maps, HoldEntriesInOrderAndKeepRepeats) {
    EXPECT_EQ(valueTree("{}"), "(Map)");
    EXPECT_EQ(valueTree("{ஆ: 1, \"அ\": 2, ஆ: 3}"), "(Map (\"ஆ\" (Number 1)) (\"அ\" (Number 2)) (\"ஆ\" (Number 3)))");
    EXPECT_EQ(valueTree("{அ: {ஆ: [1]}}"), "(Map (\"அ\" (Map (\"ஆ\" (List (Number 1))))))");
    EXPECT_EQ(valueTree("{அ: ஆ ? இ : ஈ}"), "(Map (\"அ\" (Ternary ஆ இ ஈ)))");
}

TEST(Maps, AllowOneCommaBehindTheLastEntry) {
    EXPECT_EQ(valueTree("{அ: 1,}"), "(Map (\"அ\" (Number 1)))");
    EXPECT_EQ(valueFault("{அ: 1,,}"), "பொழி-212 வரி 1");
    EXPECT_EQ(valueFault("{,}"), "பொழி-212 வரி 1");
}

TEST(Maps, MaySpanLinesWithAnyIndentation) {
    const std::string expected = "(Map (\"அ\" (Number 1)) (\"ஆ\" (Number 2)))";
    EXPECT_EQ(valueTree("{\nஅ: 1,\nஆ: 2\n}"), expected);
    EXPECT_EQ(valueTree("{\n    அ: 1,\n    ஆ: 2\n}"), expected);
    EXPECT_EQ(valueTree("{\n    அ:\n        1\n    ,\n    ஆ: 2,\n\n}"), expected);
    EXPECT_EQ(valueFault("{\n    அ\n    : 1}"), "பொழி-202 வரி 2");
}

TEST(Maps, LeaveTheIndentationAroundThemWhole) {
    EXPECT_EQ(tree("எனில் அ:\n    ஆ = {\n        இ: 1\n    }\n    விடு\nவிடு\n"),
              "(If அ (Block (Expression (Assignment ஆ = (Map (\"இ\" (Number 1))))) (Pass)) null) (Pass)");
    EXPECT_EQ(tree("ஆ = {\n    இ: 1}\nவிடு\n"), "(Expression (Assignment ஆ = (Map (\"இ\" (Number 1))))) (Pass)");
}

TEST(Maps, HaveStringsAndNamesAsKeys) {
    for (const std::string key : {"1", "மெய்", "'அ'", "சுற்று", "உரை", "(அ)"}) {
        EXPECT_EQ(valueFault("{" + key + ": 1}"), "பொழி-212 வரி 1") << key;
    }
    EXPECT_EQ(valueFault("{அ.ஆ: 1}"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueTree("{\"\": 1}"), "(Map (\"\" (Number 1)))");
    EXPECT_EQ(valueTree("{\"#fff\": 1}"), "(Map (\"#fff\" (Number 1)))");
}

TEST(Maps, NeedColonsCommasAndTheirBrace) {
    EXPECT_EQ(valueFault("{அ 1}"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("{அ = 1}"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("{அ:}"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("{அ: 1 ஆ: 2}"), "பொழி-206 வரி 1");
    EXPECT_EQ(fault("\nஅ = {ஆ: 1\nஇ = 2\n"), "பொழி-206 வரி 2");
    EXPECT_EQ(fault("\nஅ = {ஆ: 1\n"), "பொழி-206 வரி 2");
    EXPECT_EQ(fault("அ = {\n\n1: 2}"), "பொழி-212 வரி 3");
    EXPECT_EQ(fault("அ = {\n"), "பொழி-212 வரி 2");
}

TEST(Brackets, AreReportedWhereTheyOpenedHoweverManyLinesTheirContentsTake) {
    const std::string map = "{\n\"அ\": 1\n}";
    EXPECT_EQ(fault("\nஅச்சிடு(" + map + " 2)"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nஅ(" + map + " 2)"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nஆ = (" + map + " 2)"), "பொழி-204 வரி 2");
    EXPECT_EQ(fault("\nஆ = அ[" + map + " 2]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("\nஆ = [" + map + "\n]"), "பொழி-205 வரி 2");
    EXPECT_EQ(fault("\nஆ = {\"அ\": " + map + " 2}"), "பொழி-206 வரி 2");
    EXPECT_EQ(fault("\nஆ = [" + map + " 2]"), "பொழி-207 வரி 4") << "a missing comma, where it is missing";
}

TEST(EnumerationMembers, BecomeTheirNumbers) {
    const std::string definition = "வகை நிறங்கள்:\n    சிவப்பு\n    பச்சை\n";
    EXPECT_EQ(tree(definition), "");
    EXPECT_EQ(tree(definition + "அச்சிடு(நிறங்கள்.சிவப்பு, நிறங்கள்.பச்சை)"), "(Print (Number 0) (Number 1))");
    EXPECT_EQ(tree(definition + "அ = நிறங்கள்.பச்சை கூட்டு 1"),
              "(Expression (Assignment அ = (Binary (Number 1) கூட்டு (Number 1))))");
    EXPECT_EQ(tree(definition + "நிறங்கள்.பச்சை()"), "(Expression (Call (Number 1)))");
    EXPECT_EQ(tree(definition + "அச்சிடு(நிறங்கள்.பச்சை.சிவப்பு)"), "(Print (Get (Number 1) சிவப்பு))");
    EXPECT_EQ(fault(definition + "நிறங்கள்.பச்சை = 5"), "பொழி-211 வரி 4");
}

TEST(EnumerationMembers, AreFoldedOnlyBehindTheNameOfTheirEnumeration) {
    const std::string definition = "வகை நிறங்கள்:\n    சிவப்பு\n";
    EXPECT_EQ(tree(definition + "அச்சிடு(நிறங்கள்.நீலம்)"), "(Print (Get நிறங்கள் நீலம்))");
    EXPECT_EQ(tree(definition + "அச்சிடு(அ.சிவப்பு)"), "(Print (Get அ சிவப்பு))");
    EXPECT_EQ(tree(definition + "அச்சிடு(அ.நிறங்கள்.சிவப்பு)"), "(Print (Get (Get அ நிறங்கள்) சிவப்பு))");
    EXPECT_EQ(tree(definition + "அச்சிடு((நிறங்கள்).சிவப்பு)"), "(Print (Get (Grouping நிறங்கள்) சிவப்பு))");
    EXPECT_EQ(tree(definition + "அச்சிடு(நிறங்கள்)"), "(Print நிறங்கள்)");
}

TEST(EnumerationMembers, AreKnownFromTheirDefinitionOn) {
    EXPECT_EQ(tree("அச்சிடு(அ.ஆ)\nவகை அ:\n    ஆ\nஅச்சிடு(அ.ஆ)"), "(Print (Get அ ஆ)) (Print (Number 0))");
    EXPECT_EQ(tree("செயல் இ():\n    வகை அ:\n        ஆ\nஅச்சிடு(அ.ஆ)"),
              "(FunctionDefinition இ () (Block)) (Print (Number 0))");
}

TEST(EnumerationMembers, AreOverwrittenOneByOne) {
    EXPECT_EQ(tree("வகை அ:\n    ஆ\n    இ\nவகை அ:\n    இ\n    ஈ\nஅச்சிடு(அ.ஆ, அ.இ, அ.ஈ)"),
              "(Print (Number 0) (Number 0) (Number 1))");
    EXPECT_EQ(tree("வகை அ:\n    ஆ\n    ஆ\nஅச்சிடு(அ.ஆ)"), "(Print (Number 1))");
}

} // namespace
