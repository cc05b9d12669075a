#include "scanner/second/grantha.h"

#include "base/script_checks.h"
#include "base/utf8.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;
using pozhil::second::withoutGrantha;

TEST(WithoutGrantha, WritesTheLettersOfTamil) {
    EXPECT_EQ(withoutGrantha("ஜன்னல்"), "சன்னல்");
    EXPECT_EQ(withoutGrantha("பாரன்ஹீட்"), "பாரன்கீட்");
    EXPECT_EQ(withoutGrantha("பக்ஷி"), "பட்சி");
    EXPECT_EQ(withoutGrantha("ஸ்ரீதர்"), "சிறீதர்");
    EXPECT_EQ(withoutGrantha("ஷாஜஹான்"), "சாசகான்");
    EXPECT_EQ(withoutGrantha("மலர்_1"), "மலர்_1");
}

TEST(WithoutGrantha, NoSuchConsonantStandsWithoutAVowel) {
    EXPECT_EQ(withoutGrantha("எக்ஸ்"), "எக்சு");
    EXPECT_EQ(withoutGrantha("ராஜ்"), "ராசு");
    EXPECT_EQ(withoutGrantha("ஸ்டாலின்"), "இசுடாலின்");
    EXPECT_EQ(withoutGrantha("கஷ்டம்"), "கட்டம்");
    EXPECT_EQ(withoutGrantha("புஸ்தகம்"), "புத்தகம்");
    EXPECT_EQ(withoutGrantha("லக்ஷ்மி"), "லட்சுமி");
}

TEST(WithoutGrantha, LeavesNoneOfThem) {
    for (const char* const consonant : {"ஜ", "ஷ", "ஸ", "ஹ", "க்ஷ"}) {
        for (const char* const sign : {"", "்", "ா", "ி", "ௌ"}) {
            for (const char* const around : {"", "க", "ட்"}) {
                std::string rest = withoutGrantha(around + std::string(consonant) + sign + around);
                for (std::string_view text = rest; !text.empty(); text.remove_prefix(firstCharacter(text).size())) {
                    EXPECT_FALSE(script::isGranthaLetter(firstCharacter(text))) << rest;
                }
            }
        }
    }
}
