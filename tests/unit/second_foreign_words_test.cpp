#include "language/second/builtins.h"
#include "language/second/foreign_words.h"
#include "language/second/module_functions.h"
#include "scanner/second/words.h"

#include <set>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace pozhil;
using namespace pozhil::language::second;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST(ForeignWords, AreToldOnceInEachPlace) {
    std::set<std::pair<std::string_view, ForeignPlace>> known;
    for (const ForeignWord& row : foreignWords()) {
        EXPECT_TRUE(known.emplace(row.word, row.place).second) << row.word;
        EXPECT_EQ(findForeignWord(row.word, row.place), &row) << row.word;
        EXPECT_FALSE(row.own.empty() && row.remark.empty()) << row.word << " is told nothing";
    }
}

TEST(ForeignWords, AreNoWordsOfTheLanguage) {
    for (const ForeignWord& row : foreignWords()) {
        EXPECT_FALSE(second::isOfVocabulary(row.word)) << row.word;
    }
}

TEST(ForeignWords, AreFoundWhereTheyStand) {
    EXPECT_EQ(findForeignWord("append"), nullptr) << "stands after a dot alone";
    EXPECT_NE(findForeignWord("append", ForeignPlace::Member), nullptr);
    EXPECT_NE(findForeignWord("len"), nullptr);
    EXPECT_EQ(findForeignWord("len", ForeignPlace::Statement), nullptr);
    EXPECT_EQ(findForeignWord("நீளம்"), nullptr);
}

TEST(ForeignWords, SayWhatToWriteAndWhatToImport) {
    EXPECT_EQ(remedyOf(*findForeignWord("len")), "'len' பொழிலின் சொல் அல்ல; 'நீளம்(அ)' என்று எழுது மச்சி!");
    EXPECT_THAT(remedyOf(*findForeignWord("keys", ForeignPlace::Member)), HasSubstr("நூஇறக்கி \"அகராதி\""));
    EXPECT_THAT(remedyOf(*findForeignWord("len")), Not(HasSubstr("நூஇறக்கி")));
    EXPECT_THAT(remedyOf(*findForeignWord("raise")), HasSubstr("அல்ல. நிரல்")) << "nothing to write in its place";
}

/// Every function that a row names must be one: of the language, or of a module.
TEST(ForeignWords, AreReplacedByFunctionsThatThereAre) {
    for (const ForeignWord& row : foreignWords()) {
        const std::size_t bracket = row.own.find('(');
        if (row.place == ForeignPlace::Statement || bracket == std::string_view::npos || bracket == 0) {
            continue;
        }
        std::string_view name = row.own.substr(0, bracket);
        const std::size_t before = name.find_last_of(" .");
        const bool isMember = before != std::string_view::npos && name[before] == '.';
        name.remove_prefix(before == std::string_view::npos ? 0 : before + 1);
        const bool isOfProgram = name == "துவக்கம்" || name == "நபர்";
        const bool isKnown = findModuleFunction(name) != nullptr || name == "அச்சிடு" ||
                             findBuiltin(isMember ? BuiltinForm::Method : BuiltinForm::Call, name) != nullptr;
        EXPECT_TRUE(isOfProgram || isKnown) << row.word << ": " << name;
    }
}

TEST(ModuleFunctions, AreThoseOfTheModules) {
    ASSERT_NE(findModuleFunction("உரை_தசமம்"), nullptr);
    EXPECT_EQ(findModuleFunction("உரை_தசமம்")->module, "உரை");
    EXPECT_EQ(findModuleFunction("நீளம்"), nullptr);
    EXPECT_EQ(findModuleFunction("பட்டியல்_உதவி_ஒன்றாக்கு"), nullptr) << "serves its module alone";
    for (const char* const module : {"அகராதி", "உரை", "கணிதம்", "பட்டியல்"}) {
        EXPECT_TRUE(isModule(module)) << module;
    }
    EXPECT_FALSE(isModule("மலர்"));
}

std::string_view dropInFor(std::string_view word, ForeignPlace place) {
    return dropIn(*findForeignWord(word, place));
}

TEST(ForeignWords, HaveADropInWhereNothingElseChanges) {
    EXPECT_EQ(dropInFor("if", ForeignPlace::Statement), "எனில்");
    EXPECT_EQ(dropInFor("return", ForeignPlace::Statement), "திரும்பு");
    EXPECT_EQ(dropInFor("and", ForeignPlace::Inside), "மற்றும்");
    EXPECT_EQ(dropInFor("True", ForeignPlace::Name), "மெய்");
    EXPECT_EQ(dropInFor("self", ForeignPlace::Name), "தான்");
    EXPECT_EQ(dropInFor("len", ForeignPlace::Name), "நீளம்");
    EXPECT_EQ(dropInFor("append", ForeignPlace::Member), "சேர்");
}

TEST(ForeignWords, HaveNoDropInWhereMoreChangesOrSeveralThingsMayBeMeant) {
    EXPECT_EQ(dropInFor("for", ForeignPlace::Statement), "");
    EXPECT_EQ(dropInFor("let", ForeignPlace::Statement), "");
    EXPECT_EQ(dropInFor("if", ForeignPlace::Inside), "");
    EXPECT_EQ(dropInFor("not", ForeignPlace::Inside), "");
    EXPECT_EQ(dropInFor("lambda", ForeignPlace::Inside), "");
    EXPECT_EQ(dropInFor("int", ForeignPlace::Name), "");
    EXPECT_EQ(dropInFor("sum", ForeignPlace::Name), "") << "its module must be imported";
    EXPECT_EQ(dropInFor("str", ForeignPlace::Name), "");
    EXPECT_EQ(dropInFor("list", ForeignPlace::Name), "");
    EXPECT_EQ(dropInFor("length", ForeignPlace::Member), "");
    EXPECT_EQ(dropInFor("extend", ForeignPlace::Member), "");
}

} // namespace
