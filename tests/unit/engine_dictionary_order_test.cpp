#include "engine_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

using namespace pozhil::engine;

namespace {

using Words = std::vector<std::string>;

void expectSorted(const Words& words) {
    for (std::size_t left = 0; left < words.size(); ++left) {
        for (std::size_t right = 0; right < words.size(); ++right) {
            const int expected = left < right ? -1 : left > right ? 1 : 0;
            EXPECT_EQ(compareTexts(words[left], words[right]), expected) << words[left] << " " << words[right];
        }
    }
}

TEST(DictionaryOrder, BeginsWithVowelsAndAytham) {
    expectSorted({"அ", "ஆ", "இ", "ஈ", "உ", "ஊ", "எ", "ஏ", "ஐ", "ஒ", "ஓ", "ஔ", "ஃ", "க்", "க"});
}

TEST(DictionaryOrder, HasPulliBeforeTheConsonantWithItsVowels) {
    expectSorted({"க்", "க", "கா", "கி", "கீ", "கு", "கூ", "கெ", "கே", "கை", "கொ", "கோ", "கௌ", "ங்", "ங"});
}

TEST(DictionaryOrder, HasGranthaAfterTheConsonantsOfTamil) {
    expectSorted({"க", "ங", "ச",  "ஞ", "ட",  "ண", "த", "ந", "ப", "ம", "ய", "ர",  "ல",  "வ",  "ழ",
                  "ள", "ற", "ன்ற", "ன", "னௌ", "ஜ்", "ஜ", "ஶ", "ஷ", "ஸ", "ஹ", "ஹௌ", "க்ஷ்", "க்ஷ", "க்ஷா"});
}

TEST(DictionaryOrder, IsThatOfTheWordsInADictionary) {
    expectSorted({"அஃகம்",   "அக்கரை", "அக்கா",   "அகம்",   "அகரம்",    "அகராதி",    "அங்கம்",     "அச்சு",  "அடி",    "அடை",
                  "அண்ணன்",   "அணில்",  "அம்மா",   "அரசன்",  "அரசு",    "அழகு",      "அறம்",      "அன்பு",  "ஆடு",    "ஆலமரம்",
                  "இலை",    "ஈ",     "உலகம்",   "ஊர்",    "எலி",     "ஏணி",       "ஐந்து",     "ஒட்டகம்", "ஓடம்",    "ஔவை",
                  "கடல்",    "கண்",    "கண்ணாடி", "கண்மணி", "கணக்கு",   "கல்",        "கல்வி",     "கலை",   "காகம்",   "கிளி",
                  "கீரி",    "குயில்", "கூடு",   "கெண்டை", "கேழ்வரகு", "கை",        "கொக்கு",    "கோழி",  "கௌதாரி", "சங்கு",
                  "ஞாயிறு", "தமிழ்",  "நண்டு",   "படம்",   "மரம்",     "மரம் வெட்டி", "மரம்கொத்தி", "யானை",  "ரம்பம்",   "லட்டு",
                  "வண்டு",   "ஜன்னல்",  "ஷாஜகான்", "ஸ்வரம்",  "ஹரி"});
}

TEST(DictionaryOrder, HasDigitsAndLatinBeforeTamilAndOtherScriptsAfterIt) {
    expectSorted({"",  " ", "10", "9", "A",  "Z",  "a",  "z", "zz", "é",  "क", "௦",
                  "௧", "௯", "௰",  "அ", "அ ", "அ1", "அஅ", "க", "അ",  "あ", "😀"});
}

TEST(DictionaryOrder, HasAShorterTextBeforeALongerOne) {
    expectSorted({"கல்", "கல்வி", "கல்விக்கூடம்"});
    // "க" is no beginning of "க்": its letter is another.
    expectSorted({"க்", "க"});
    // Nor is "க்" one of "க்ஷ".
    expectSorted({"மாக்", "மாக்க", "மாகா", "மாங்", "மாக்ஷி"});
}

/// The UTF-8 of a code point of three bytes.
std::string utf8(unsigned codePoint) {
    return {static_cast<char>(0xE0U | codePoint >> 12U), static_cast<char>(0x80U | (codePoint >> 6U & 0x3FU)),
            static_cast<char>(0x80U | (codePoint & 0x3FU))};
}

TEST(DictionaryOrder, TellsAllTextsApartEvenWithUnassignedCodePoints) {
    // The block of Tamil, and its neighbours on both sides.
    Words words = {"க்ஷ", "க்ஷா", "", "க", "க்", "கஷ"};
    for (unsigned codePoint = 0x0B7F; codePoint <= 0x0C01; ++codePoint) {
        words.push_back(utf8(codePoint));
        words.push_back("க" + utf8(codePoint));
    }
    std::sort(words.begin(), words.end());
    words.erase(std::unique(words.begin(), words.end()), words.end());
    for (const std::string& left : words) {
        for (const std::string& right : words) {
            EXPECT_EQ(compareTexts(left, right) == 0, left == right) << left << " " << right;
            EXPECT_EQ(compareTexts(left, right), -compareTexts(right, left)) << left << " " << right;
        }
    }
}

/// The letters of Tamil in the order in which a child learns them, as a model that knows nothing of code points.
class Primer {
public:
    Primer() {
        for (const char* const letter : {"அ", "ஆ", "இ", "ஈ", "உ", "ஊ", "எ", "ஏ", "ஐ", "ஒ", "ஓ", "ஔ", "ஃ"}) {
            add(letter);
        }
        for (const char* const consonant : {"க", "ங", "ச", "ஞ", "ட", "ண", "த", "ந", "ப", "ம", "ய", "ர",
                                            "ல", "வ", "ழ", "ள", "ற", "ன", "ஜ", "ஶ", "ஷ", "ஸ", "ஹ", "க்ஷ"}) {
            for (const char* const sign : {"்", "", "ா", "ி", "ீ", "ு", "ூ", "ெ", "ே", "ை", "ொ", "ோ", "ௌ"}) {
                add(std::string(consonant) + sign);
            }
        }
    }

    const Words& letters() const { return letters_; }

    /// The places of the letters of a text, the longest that fits taken each time.
    std::vector<int> placesOf(const std::string& text) const {
        std::vector<int> places;
        for (std::size_t position = 0; position < text.size();) {
            std::size_t size = std::min<std::size_t>(12, text.size() - position);
            while (places_.count(text.substr(position, size)) == 0) {
                --size;
            }
            places.push_back(places_.at(text.substr(position, size)));
            position += size;
        }
        return places;
    }

private:
    void add(const std::string& letter) {
        places_[letter] = static_cast<int>(letters_.size());
        letters_.push_back(letter);
    }

    Words letters_;
    std::map<std::string, int> places_;
};

TEST(DictionaryOrder, AgreesWithThePrimer) {
    const Primer primer;
    std::mt19937 random(9);
    // Few letters, so that beginnings are alike.
    const Words alike = {"க", "க்", "ஷ", "ஷ்", "ஷா", "கா", "க்ஷ", "க்ஷி", "அ", "ம்"};
    const auto word = [&](bool few) {
        const Words& letters = few ? alike : primer.letters();
        std::string text;
        for (std::size_t count = random() % 6; count > 0; --count) {
            text += letters[random() % letters.size()];
        }
        return text;
    };
    for (int round = 0; round < 100'000; ++round) {
        const bool few = round % 2 == 0;
        const std::string left = word(few);
        const std::string right = word(few);
        const auto leftPlaces = primer.placesOf(left);
        const auto rightPlaces = primer.placesOf(right);
        const int expected = leftPlaces < rightPlaces ? -1 : leftPlaces > rightPlaces ? 1 : 0;
        ASSERT_EQ(compareTexts(left, right), expected) << left << " " << right;
    }
}

TEST(DictionaryOrder, PutsAnyTextsInOneOrder) {
    const Words pieces = {"a",      "é", "க", "ஷ",      "\u0BCD", "ா",      "\u0BD7",
                          "\u0B82", "௺", "அ", "\u0BFF", "అ",      "\u0B7F", "😀"};
    std::mt19937 random(10);
    Words words;
    for (int count = 0; count < 120; ++count) {
        std::string word;
        for (std::size_t length = random() % 5; length > 0; --length) {
            word += pieces[random() % pieces.size()];
        }
        words.push_back(word);
    }
    for (const std::string& first : words) {
        for (const std::string& second : words) {
            const int order = compareTexts(first, second);
            ASSERT_EQ(order == 0, first == second) << first << " " << second;
            ASSERT_EQ(compareTexts(second, first), -order) << first << " " << second;
            for (const std::string& third : words) {
                if (order < 0 && compareTexts(second, third) < 0) {
                    ASSERT_LT(compareTexts(first, third), 0) << first << " " << second << " " << third;
                }
            }
        }
    }
}

} // namespace
