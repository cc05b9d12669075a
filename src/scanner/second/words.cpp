#include "scanner/second/words.h"

#include "language/keywords.h"
#include "language/second/builtins.h"
#include "language/second/widgets.h"
#include "language/widgets.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace pozhil::second {
namespace {

using language::KeywordGroup;

/// Words of the vocabulary's first group that are nothing but names: built-in functions and the key of a widget.
constexpr std::string_view PLAIN_NAMES[] = {"இப்போதுநேரம்", "வரம்பு", "மூலம்"};

bool isPlainName(std::string_view word) {
    return std::find(std::begin(PLAIN_NAMES), std::end(PLAIN_NAMES), word) != std::end(PLAIN_NAMES);
}

bool isOfLanguage(const language::Keyword& keyword) {
    const bool isOfGroup = keyword.group == KeywordGroup::Statement || keyword.group == KeywordGroup::Condition ||
                           keyword.group == KeywordGroup::Operator;
    return isOfGroup && keyword.type != TokenType::IDENTIFIER && !isPlainName(keyword.word);
}

} // namespace

TokenType wordKind(std::string_view word) {
    static const std::unordered_map<std::string_view, TokenType> kinds = [] {
        std::unordered_map<std::string_view, TokenType> map;
        for (const language::Keyword& keyword : language::keywords()) {
            if (isOfLanguage(keyword)) {
                map.emplace(keyword.word, keyword.type);
            }
        }
        return map;
    }();
    const auto found = kinds.find(word);
    return found == kinds.end() ? TokenType::IDENTIFIER : found->second;
}

bool isOfVocabulary(std::string_view word) {
    static const std::unordered_set<std::string_view> vocabulary = [] {
        std::unordered_set<std::string_view> words;
        for (const language::Keyword& keyword : language::keywords()) {
            words.insert(keyword.word);
        }
        for (const language::Widget& widget : language::widgets()) {
            words.insert(widget.word);
        }
        for (const language::second::Builtin& builtin : language::second::builtins()) {
            words.insert(builtin.name);
        }
        return words;
    }();
    return vocabulary.count(word) != 0 || language::second::isProperty(word);
}

const std::vector<std::string_view>& statementWords() {
    static const std::vector<std::string_view> words = [] {
        std::vector<std::string_view> found;
        for (const language::Keyword& keyword : language::keywords()) {
            if (isOfLanguage(keyword)) {
                found.push_back(keyword.word);
            }
        }
        return found;
    }();
    return words;
}

} // namespace pozhil::second
