#include "engine/text.h"

#include "engine/blocks.h"
#include "engine/code_points.h"
#include "engine/collections.h"
#include "engine/normal_form.h"

#include <utility>

namespace pozhil::engine {
namespace {

std::unique_ptr<Text> newBlock(std::string bytes) {
    auto block = std::make_unique<Text>();
    block->bytes = std::move(bytes);
    return block;
}

Value newText(std::string bytes) {
    return Value(Tag::Text, newBlock(std::move(bytes)).release());
}

constexpr std::size_t TAMIL_SIZE = 3;
constexpr std::size_t TAMIL_COUNT = TAMIL_END - TAMIL_BEGIN;
constexpr char32_t FIRST_SIGN = 0x0BBE;
constexpr std::size_t SIGN_COUNT = PULLI - FIRST_SIGN + 1;

/// The blocks of letters that many values are: one of ASCII, one of Tamil, one of Tamil with a sign. They stay for good.
struct SharedLetters {
    Text* ascii[128];
    Text* tamil[TAMIL_COUNT];
    Text* withSign[TAMIL_COUNT][SIGN_COUNT];
};
SharedLetters sharedLetters;

/// The place of a letter among these; null for all others.
Text** sharedLetter(std::string_view bytes) {
    if (bytes.size() == 1) {
        return sharedLetters.ascii + static_cast<unsigned char>(bytes[0]);
    }
    if (bytes.size() != TAMIL_SIZE && bytes.size() != 2 * TAMIL_SIZE) {
        return nullptr;
    }
    const CodePoint first = codePointAt(bytes, 0);
    if (!isTamil(first.value)) {
        return nullptr;
    }
    const char32_t letter = first.value - TAMIL_BEGIN;
    if (bytes.size() == TAMIL_SIZE) {
        return sharedLetters.tamil + letter;
    }
    const char32_t sign = codePointAt(bytes, TAMIL_SIZE).value;
    return sign >= FIRST_SIGN && sign <= PULLI ? sharedLetters.withSign[letter] + (sign - FIRST_SIGN) : nullptr;
}

} // namespace

void freeText(Counted* block) noexcept {
    delete static_cast<Text*>(block);
}

Value text(const char* bytes, unsigned long length) {
    return newText(std::string(bytes, length));
}

Value makeText(std::string bytes) {
    normalize(bytes);
    return newText(std::move(bytes));
}

Value normalText(std::string_view bytes) {
    Text** const shared = sharedLetter(bytes);
    if (shared == nullptr) {
        return newText(std::string(bytes));
    }
    if (*shared == nullptr) {
        *shared = newBlock(std::string(bytes)).release();
    }
    ++(*shared)->references;
    return Value(Tag::Text, *shared);
}

void appendToText(Text& text, std::string_view bytes) {
    appendNormalized(text.bytes, bytes);
    if (text.index != nullptr) {
        // The last letter may have changed, even if the text is no longer than before.
        text.index->seen = text.index->lastBegin;
    }
}

} // namespace pozhil::engine
