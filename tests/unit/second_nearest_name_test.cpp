#include "analysis/second/nearest_name.h"

#include <gtest/gtest.h>

using pozhil::second::nearestName;

TEST(NearestName, AConsonantWithItsSignIsOneLetter) {
    EXPECT_EQ(nearestName("மொதம்", {"மாதம்பாதி", "மொத்தம்"}), "மொத்தம்");
    EXPECT_EQ(nearestName("பயர்", {"பெயர்"}), "பெயர்");
}

TEST(NearestName, OfEquallyNearNamesTheOneWithFewerWrongSigns) {
    EXPECT_EQ(nearestName("நீலம்", {"நாகம்", "நீளம்"}), "நீளம்");
    EXPECT_EQ(nearestName("விலே", {"கலே", "விலை"}), "விலை");
}

TEST(NearestName, OfTheSameTheFirst) {
    EXPECT_EQ(nearestName("கல்", {"பல்", "சொல்", "கள்"}), "பல்");
}

TEST(NearestName, FarNamesAreNotMeant) {
    EXPECT_EQ(nearestName("மரம்", {"பழமொழி", "குதிரை"}), "");
    EXPECT_EQ(nearestName("வட", {"படம்"}), "");
}

TEST(NearestName, OneLetterIsNotMisspelt) {
    EXPECT_EQ(nearestName("அ", {"ஆ", "இ"}), "");
    EXPECT_EQ(nearestName("தி", {"தீ"}), "");
}

TEST(NearestName, TheNameItselfIsNotMeant) {
    EXPECT_EQ(nearestName("பெயர்", {"பெயர்"}), "");
}

TEST(NearestName, AWordThatBeginsWithASignIsNoTrouble) {
    EXPECT_EQ(nearestName("ாக்", {"", "்"}), "");
}
