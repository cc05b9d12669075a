#include "mutator.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace {

constexpr const char* SYMBOLS[] = {"(",  ")", "[",  "]",      "{",  "}", ":",   ",", ".", "=", "=>", "?",    ";",
                                   "\"", "'", "\n", "\n    ", "\t", "0", "1.5", "௧", "%", "ஃ", "ஃஃ", "\xE0", "\xFF"};

std::vector<std::string> splitLines(const std::string& source) {
    std::vector<std::string> lines;
    std::istringstream stream(source);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::string joinLines(const std::vector<std::string>& lines) {
    std::string source;
    for (const std::string& line : lines) {
        source += line + "\n";
    }
    return source;
}

} // namespace

Mutator::Mutator(std::vector<std::string> corpus, unsigned seed) : corpus_(std::move(corpus)), random_(seed) {
    for (const std::string& source : corpus_) {
        std::istringstream stream(source);
        for (std::string word; stream >> word;) {
            words_.push_back(word);
        }
    }
    words_.insert(words_.end(), std::begin(SYMBOLS), std::end(SYMBOLS));
}

std::string Mutator::next() {
    std::string source = corpus_[below(corpus_.size())];
    const std::size_t rounds = 1 + below(4);
    for (std::size_t round = 0; round < rounds; ++round) {
        switch (below(8)) {
        case 0:
        case 1:
        case 2: mutateLines(source); break;
        case 3:
        case 4:
        case 5: mutateWords(source); break;
        case 6: mutateBytes(source); break;
        default: deepen(source); break;
        }
    }
    return source;
}

std::size_t Mutator::below(std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
}

std::string Mutator::anyLine() {
    const std::vector<std::string> lines = splitLines(corpus_[below(corpus_.size())]);
    return lines.empty() ? "" : lines[below(lines.size())];
}

void Mutator::mutateLines(std::string& source) {
    std::vector<std::string> lines = splitLines(source);
    if (lines.empty()) {
        source = anyLine();
        return;
    }
    const std::size_t at = below(lines.size());
    const auto position = lines.begin() + static_cast<std::ptrdiff_t>(at);
    switch (below(5)) {
    case 0: lines.erase(position); break;
    case 1: lines.insert(position, lines[below(lines.size())]); break;
    case 2: std::swap(lines[at], lines[below(lines.size())]); break;
    case 3: lines.insert(position, anyLine()); break;
    default: lines[at] = std::string(4 * below(4), ' ') + lines[at]; break;
    }
    source = joinLines(lines);
}

/// Puts a word in, in place of, or in the middle of what stands at some place.
void Mutator::mutateWords(std::string& source) {
    const std::string& word = words_[below(words_.size())];
    const std::size_t at = below(source.size() + 1);
    const std::size_t blank = std::min(source.find(' ', at), source.size());
    const std::size_t replaced = below(3) == 0 ? 0 : below(std::min<std::size_t>(source.size() - blank, 12) + 1);
    source.replace(blank, replaced, " " + word + " ");
}

void Mutator::mutateBytes(std::string& source) {
    if (source.empty()) {
        return;
    }
    const std::size_t at = below(source.size());
    switch (below(3)) {
    case 0: source[at] = static_cast<char>(below(256)); break;
    case 1: source.erase(at, 1 + below(8)); break;
    default: source.resize(at); break;
    }
}

/// Repeats a word so often that careless recursion would overflow.
void Mutator::deepen(std::string& source) {
    const std::string& word = words_[below(words_.size())];
    const std::size_t at = below(source.size() + 1);
    std::string repeated;
    for (std::size_t count = below(40) == 0 ? 20000 : 1 + below(30); count > 0; --count) {
        repeated += word;
        repeated += below(2) == 0 ? "" : " ";
    }
    source.insert(at, repeated);
}
