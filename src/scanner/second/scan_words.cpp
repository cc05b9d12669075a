#include "base/script_checks.h"
#include "base/utf8.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/grantha.h"
#include "scanner/second/normal_form.h"
#include "scanner/second/scan.h"
#include "scanner/second/words.h"

namespace pozhil::second {
namespace {

constexpr std::int32_t AYTHAM = 0x0B83;

/// \p written without characters that nobody sees.
std::string visible(std::string_view written) {
    std::string word;
    for (std::size_t position = 0; position < written.size();) {
        const Character next = characterAt(written, position);
        if (!isInvisible(next)) {
            word += written.substr(position, next.size);
        }
        position += next.size;
    }
    return word;
}

bool isGrantha(std::string_view character) {
    return script::isGranthaLetter(character);
}

} // namespace

/// Where the word that begins at \p begin ends; \p begin itself if none does. ஃ belongs to a word only if a letter comes
/// after it: else it begins a comment.
std::size_t Scan::wordEnd(std::size_t begin) const {
    std::size_t end = begin;
    while (true) {
        const Character next = characterAt(text_, end);
        const bool isWord =
            isLetter(next) || isSign(next) || isAnyDigit(next) || isInvisible(next) || next.codePoint == '_';
        if (!isWord || (next.codePoint == AYTHAM && !isLetter(characterAt(text_, end + next.size)))) {
            return end;
        }
        if (next.codePoint == AYTHAM && characterAt(text_, end + next.size).codePoint == AYTHAM) {
            return end;
        }
        end += next.size;
    }
}

void Scan::scanWord() {
    const std::size_t begin = position_;
    position_ = wordEnd(begin);
    const std::string_view written = textSince(begin);
    checkSpelling(written, begin);
    std::string word = normalForm(visible(written));
    if (word.empty()) {
        return;
    }
    const TokenType kind = wordKind(word);
    const bool isFunctionWord = word == "வினை";
    push(kind, std::move(word), begin);
    const std::size_t next = text_.find_first_not_of(" \t", position_);
    const bool isKey = next != std::string_view::npos && text_[next] == ':';
    if (isFunctionWord && !isKey) {
        layout_.noteFunctionWord();
    }
}

/// The first thing that is wrong with how a word is written.
void Scan::checkSpelling(std::string_view written, std::size_t begin) {
    for (std::size_t offset = 0; offset < written.size();) {
        const Character next = characterAt(written, offset);
        if (isInvisible(next)) {
            tokens_.fault(fault::INVISIBLE_CHARACTER, begin + offset, begin + offset + next.size);
            return;
        }
        offset += next.size;
    }
    checkLetters(written, begin);
}

/// The rules of the script.
void Scan::checkLetters(std::string_view written, std::size_t begin) {
    const bool isOwnWord = isOfVocabulary(normalForm(written));
    for (std::size_t offset = 0; offset < written.size();) {
        const std::string_view letter = firstCharacter(written.substr(offset));
        int number = 0;
        if (offset == 0 && isSign(characterAt(written, 0))) {
            number = fault::LONE_SIGN;
        } else if (isGrantha(letter) && !isOwnWord) {
            number = fault::GRANTHA_LETTER;
        } else if (script::isVowelSign(letter) && script::endsInVowelLetter(written.substr(0, offset))) {
            number = fault::SIGN_AFTER_VOWEL;
        }
        if (number != 0) {
            if (!toldWords_.emplace(written).second) {
                return;
            }
            tokens_.fault(number, begin + offset, begin + offset + letter.size(),
                          {std::string(letter), withoutGrantha(normalForm(written))});
            return;
        }
        offset += letter.size();
    }
}

} // namespace pozhil::second
