#include "engine/state_form.h"

#include "engine/list.h"
#include "engine/map.h"
#include "engine/text.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <utility>

// nothing -, truth + and !, whole number i12;, decimal d(16 digits of its bits);, text "...", list [...], map {key value ...}.

namespace pozhil::engine {
namespace {

/// How deeply values are nested at most.
constexpr int DEEPEST = 200;
constexpr char ESCAPE = '\\';
constexpr char QUOTE = '"';
/// After an escape, for a zero byte.
constexpr char ZERO = '0';
constexpr int HEXADECIMAL = 16;

void writeNumber(std::string& out, char kind, unsigned long long bits, int base) {
    char digits[24];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), bits, base).ptr;
    out += kind;
    out.append(digits, static_cast<std::size_t>(end - digits));
    out += ';';
}

class Writer {
public:
    Writer(std::string& out, std::size_t most) : out_(out), most_(most) {}

    /// NOLINTNEXTLINE(misc-no-recursion): as deep as DEEPEST
    Writing write(const Value& value, int depth) {
        if (depth > DEEPEST) {
            return Writing::NotKept;
        }
        Writing result = Writing::Done;
        switch (value.tag()) {
        case Tag::Nothing: out_ += '-'; break;
        case Tag::Truth: out_ += value.truth() ? '+' : '!'; break;
        case Tag::Whole: writeNumber(out_, 'i', static_cast<unsigned long long>(value.whole()), HEXADECIMAL); break;
        case Tag::Decimal: writeDecimal(value.decimal()); break;
        case Tag::Text: result = writeText(value); break;
        case Tag::List: result = writeList(listBlock(value), depth); break;
        case Tag::Map: result = writeMap(mapBlock(value), depth); break;
        default: return Writing::NotKept;
        }
        return result == Writing::Done && out_.size() > most_ ? Writing::TooLarge : result;
    }

private:
    void writeDecimal(Decimal decimal) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &decimal, sizeof bits);
        writeNumber(out_, 'd', bits, HEXADECIMAL);
    }

    Writing writeText(const Value& value) {
        if (textOf(value).size() > most_) {
            return Writing::TooLarge;
        }
        writeStateText(out_, textOf(value));
        return Writing::Done;
    }

    /// NOLINTNEXTLINE(misc-no-recursion)
    Writing writeList(const List& list, int depth) {
        out_ += '[';
        Writing result = Writing::Done;
        for (std::size_t index = 0; index < list.size && result == Writing::Done; ++index) {
            result = write(list.elements[index], depth + 1);
        }
        out_ += ']';
        return result;
    }

    /// NOLINTNEXTLINE(misc-no-recursion)
    Writing writeMap(Map& map, int depth) {
        out_ += '{';
        Writing result = Writing::Done;
        for (std::size_t index = 0; index < mapSize(map) && result == Writing::Done; ++index) {
            result = write(keyAt(map, index), depth + 1);
            if (result == Writing::Done) {
                result = write(valueAt(map, index), depth + 1);
            }
        }
        out_ += '}';
        return result;
    }

    std::string& out_;
    std::size_t most_;
};

/// Whether the digits are a whole number and nothing else.
bool readNumber(std::string_view digits, unsigned long long& number) {
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number, HEXADECIMAL);
    return !digits.empty() && result.ec == std::errc() && result.ptr == end;
}

} // namespace

Writing writeState(std::string& out, const Value& value, std::size_t most) {
    return Writer(out, most).write(value, 0);
}

void writeStateText(std::string& out, std::string_view text) {
    out += QUOTE;
    for (const char byte : text) {
        if (byte == QUOTE || byte == ESCAPE || byte == '\0') {
            out += ESCAPE;
        }
        out += byte == '\0' ? ZERO : byte;
    }
    out += QUOTE;
}

Value StateReader::fail() {
    isGood_ = false;
    rest_ = {};
    return Value();
}

char StateReader::next() {
    if (rest_.empty()) {
        fail();
        return '\0';
    }
    const char first = rest_.front();
    rest_.remove_prefix(1);
    return first;
}

bool StateReader::takes(char wanted) {
    const bool isThere = !rest_.empty() && rest_.front() == wanted;
    if (isThere) {
        rest_.remove_prefix(1);
    }
    return isThere;
}

/// What stands before the next \p end, which is passed over.
std::string_view StateReader::until(char end) {
    const std::size_t length = rest_.find(end);
    if (length == std::string_view::npos) {
        fail();
        return {};
    }
    const std::string_view before = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return before;
}

std::string StateReader::text() {
    if (!takes(QUOTE)) {
        fail();
        return "";
    }
    std::string bytes;
    while (isGood_ && !takes(QUOTE)) {
        const bool isEscaped = takes(ESCAPE);
        const char byte = next();
        bytes += isEscaped && byte == ZERO ? '\0' : byte;
    }
    return isGood_ ? bytes : "";
}

/// NOLINTNEXTLINE(misc-no-recursion): as deep as DEEPEST
Value StateReader::valueAt(int depth) {
    if (rest_.empty() || depth > DEEPEST) {
        return fail();
    }
    if (rest_.front() == QUOTE) {
        return makeText(text());
    }
    switch (next()) {
    case '-': return Value();
    case '+': return Value(true);
    case '!': return Value(false);
    case 'i': return whole();
    case 'd': return decimal();
    case '[': return list(depth);
    case '{': return map(depth);
    default: return fail();
    }
}

Value StateReader::whole() {
    unsigned long long bits = 0;
    return readNumber(until(';'), bits) ? Value(static_cast<Whole>(bits)) : fail();
}

Value StateReader::decimal() {
    unsigned long long bits = 0;
    if (!readNumber(until(';'), bits)) {
        return fail();
    }
    Decimal decimal = 0;
    static_assert(sizeof decimal == sizeof bits);
    std::memcpy(&decimal, &bits, sizeof decimal);
    return Value(decimal);
}

/// NOLINTNEXTLINE(misc-no-recursion)
Value StateReader::list(int depth) {
    Value made = makeList();
    while (isGood_ && !takes(']')) {
        appendTo(listBlock(made), valueAt(depth + 1));
    }
    return isGood_ ? made : Value();
}

/// NOLINTNEXTLINE(misc-no-recursion)
Value StateReader::map(int depth) {
    Value made = makeMap();
    while (isGood_ && !takes('}')) {
        const Value key = valueAt(depth + 1);
        if (!isGood_ || !canBeKey(key)) {
            return fail();
        }
        placeOfKey(mapBlock(made), key) = valueAt(depth + 1);
    }
    return isGood_ ? made : Value();
}

} // namespace pozhil::engine
