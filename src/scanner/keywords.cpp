#include "scanner/keywords.h"

#include "language/keywords.h"

#include <algorithm>
#include <unordered_map>

namespace pozhil {
namespace {

using KeywordMap = std::unordered_map<std::string_view, TokenType>;

const KeywordMap& keywordMap() {
    static const KeywordMap map = [] {
        KeywordMap merged;
        for (const language::Keyword& keyword : language::keywords()) {
            merged.emplace(keyword.word, keyword.type); // the first group that knows a word decides its kind
        }
        return merged;
    }();
    return map;
}

const std::vector<std::string_view>& sortedKeywords() {
    static const std::vector<std::string_view> words = [] {
        std::vector<std::string_view> sorted;
        for (const auto& entry : keywordMap()) {
            sorted.push_back(entry.first);
        }
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }();
    return words;
}

} // namespace

TokenType lookupKeyword(std::string_view word) {
    const KeywordMap& map = keywordMap();
    const auto found = map.find(word);
    return found == map.end() ? TokenType::IDENTIFIER : found->second;
}

bool beginsLongerKeyword(std::string_view word) {
    const std::vector<std::string_view>& words = sortedKeywords();
    const auto next = std::upper_bound(words.begin(), words.end(), word);
    return next != words.end() && next->substr(0, word.size()) == word;
}

std::size_t longestKeyword() {
    static const std::size_t length = [] {
        std::size_t longest = 0;
        for (const std::string_view word : sortedKeywords()) {
            longest = std::max(longest, word.size());
        }
        return longest;
    }();
    return length;
}

const std::vector<std::string_view>& typoCandidates() {
    static const std::vector<std::string_view> words(language::typoCandidates().begin(),
                                                     language::typoCandidates().end());
    return words;
}

} // namespace pozhil
