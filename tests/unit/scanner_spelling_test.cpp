#include "scanner/keywords.h"
#include "scanner/spelling.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::keywordMeantBy;
using pozhil::looksLikeMisspeltKeyword;
using pozhil::typoCandidates;

using Letters = std::u32string;

Letters decode(std::string_view word) {
    Letters letters;
    for (const char c : word) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) {
            letters.push_back(byte < 0x80   ? byte
                              : byte < 0xE0 ? byte & 0x1FU
                              : byte < 0xF0 ? byte & 0x0FU
                                            : byte & 0x07U);
        } else {
            letters.back() = letters.back() << 6U | (byte & 0x3FU);
        }
    }
    return letters;
}

/// Letters of one and of three bytes only, which is all that the words here are made of.
std::string encode(const Letters& letters) {
    std::string word;
    for (const char32_t letter : letters) {
        if (letter < 0x80) {
            word += static_cast<char>(letter);
            continue;
        }
        word += static_cast<char>(0xE0U | letter >> 12U);
        word += static_cast<char>(0x80U | (letter >> 6U & 0x3FU));
        word += static_cast<char>(0x80U | (letter & 0x3FU));
    }
    return word;
}

/// The textbook table: inserting, dropping and replacing a letter cost 1 each.
std::size_t editDistance(const Letters& a, const Letters& b) {
    std::vector<std::vector<std::size_t>> cost(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = i + j;
                continue;
            }
            const std::size_t replaced = cost[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            cost[i][j] = std::min({cost[i - 1][j] + 1, cost[i][j - 1] + 1, replaced});
        }
    }
    return cost[a.size()][b.size()];
}

bool isOneLetterAwayFromAKeyword(const Letters& word) {
    const auto& keywords = typoCandidates();
    return word.size() > 3 && std::any_of(keywords.begin(), keywords.end(), [&](std::string_view keyword) {
               return editDistance(word, decode(keyword)) == 1;
           });
}

void expectSameAnswer(const Letters& word) {
    EXPECT_EQ(looksLikeMisspeltKeyword(encode(word)), isOneLetterAwayFromAKeyword(word)) << encode(word);
}

/// Words that are one edit away from \p word: a letter dropped, or one of \p alphabet inserted or put in the place of
/// another, at the beginning, at the end and everywhere between.
std::vector<Letters> edits(const Letters& word, const Letters& alphabet) {
    std::vector<Letters> edited;
    for (std::size_t place = 0; place <= word.size(); ++place) {
        const Letters before = word.substr(0, place);
        const Letters behind = word.substr(place);
        if (!behind.empty()) {
            edited.push_back(before + behind.substr(1));
        }
        for (const char32_t letter : alphabet) {
            edited.push_back(before + letter + behind);
            if (!behind.empty()) {
                edited.push_back(before + letter + behind.substr(1));
            }
        }
    }
    return edited;
}

TEST(Spelling, FindsEveryEditOfEveryKeyword) {
    for (const std::string_view keyword : typoCandidates()) {
        for (const Letters& word : edits(decode(keyword), U"அக்ிுx")) {
            expectSameAnswer(word);
        }
    }
}

TEST(Spelling, FindsNoWordBecauseItIsTwoEditsAway) {
    for (const std::string_view keyword : typoCandidates()) {
        for (const Letters& word : edits(decode(keyword), U"க")) {
            for (const Letters& furtherAway : edits(word, U"க்")) {
                expectSameAnswer(furtherAway);
            }
        }
    }
}

TEST(Spelling, FindsNoKeyword) {
    for (const std::string_view keyword : typoCandidates()) {
        EXPECT_FALSE(looksLikeMisspeltKeyword(keyword)) << keyword;
    }
}

TEST(Spelling, ExemptsWordsOfThreeLetters) {
    EXPECT_FALSE(looksLikeMisspeltKeyword("பிட")); // பிடி
    EXPECT_TRUE(looksLikeMisspeltKeyword("பிடா"));
    EXPECT_FALSE(looksLikeMisspeltKeyword(""));
}

TEST(Spelling, ComparesBytesThatAreNoLettersOneByOne) {
    EXPECT_TRUE(looksLikeMisspeltKeyword("எனில்\x80"));
    EXPECT_TRUE(looksLikeMisspeltKeyword("எனில்\xE0\xAE"));
    EXPECT_FALSE(looksLikeMisspeltKeyword("எனில்\x80\x80"));
}

TEST(Spelling, KnowsTheOneKeywordThatIsMeant) {
    EXPECT_EQ(keywordMeantBy("சுற்ற"), "சுற்று");
    EXPECT_EQ(keywordMeantBy("எனில்"), "");
    EXPECT_EQ(keywordMeantBy("வேறு"), "");
}

} // namespace
