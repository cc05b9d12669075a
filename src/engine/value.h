#pragma once

/// The values of a running program. No header of the C++ library is included here: g++ reads this for every program while
/// its user waits.

namespace pozhil::engine {

/// What a value is. Those from Text on are counted blocks on the heap.
enum class Tag : unsigned char { Unset, Nothing, Truth, Whole, Decimal, Text, List, Map, Object, Function, Time };

/// Whole numbers and decimals of the language.
using Whole = long long;
using Decimal = double;

/// Where in the source something stands, as the emitted text writes it: "12:4-9", line 12, bytes 4 up to, but not
/// including, 9 of the line; "3/12:4-9" in file 3 of the program's table. Null if nothing is known.
using Place = const char*;

/// Head of every block that values share. Counts aren't atomic: a program has one thread.
struct Counted {
    union {
        long long references = 1;
        /// Of a block that nobody holds any more: the one that is to be freed after it.
        Counted* nextWaiting;
    };
};

struct Text;
struct List;
struct Map;
struct Object;
struct Closure;
struct TimeStamp;

/// Any value of the language, 16 bytes. Copies of a text, list, map, object or function share its block; who writes to a
/// shared list, map or text takes a copy of the block first.
class Value {
public:
    /// வெறுமை
    constexpr Value() : tag_(Tag::Nothing), whole_(0) {}
    constexpr Value(bool truth) : tag_(Tag::Truth), whole_(truth ? 1 : 0) {}
    constexpr Value(int whole) : tag_(Tag::Whole), whole_(whole) {}
    constexpr Value(Whole whole) : tag_(Tag::Whole), whole_(whole) {}
    constexpr Value(Decimal decimal) : tag_(Tag::Decimal), decimal_(decimal) {}
    /// No pointer becomes a truth value.
    Value(const void*) = delete;
    /// Takes over one reference to the block.
    Value(Tag tag, Counted* block) : tag_(tag), block_(block) {}
    Value(const Value& other) : tag_(other.tag_), whole_(other.whole_) {
        if (isCounted()) {
            ++block_->references;
        }
    }
    Value(Value&& other) noexcept : tag_(other.tag_), whole_(other.whole_) { other.tag_ = Tag::Nothing; }
    ~Value() {
        if (isCounted()) {
            release();
        }
    }

    Value& operator=(const Value& other) {
        Value copy(other);
        swap(copy);
        return *this;
    }
    Value& operator=(Value&& other) noexcept {
        Value moved(static_cast<Value&&>(other));
        swap(moved);
        return *this;
    }

    /// What a variable holds before it is given a value.
    static Value unset() { return Value(UnsetTag()); }
    struct UnsetTag {};
    constexpr explicit Value(UnsetTag) : tag_(Tag::Unset), whole_(0) {}

    constexpr Tag tag() const { return tag_; }
    constexpr bool is(Tag tag) const { return tag_ == tag; }
    /// Only of values with that tag.
    constexpr bool truth() const { return whole_ != 0; }
    constexpr Whole whole() const { return whole_; }
    constexpr Decimal decimal() const { return decimal_; }
    Counted* block() const { return block_; }

    void swap(Value& other) noexcept {
        const Tag tag = tag_;
        const Whole bits = whole_;
        tag_ = other.tag_;
        whole_ = other.whole_;
        other.tag_ = tag;
        other.whole_ = bits;
    }

private:
    bool isCounted() const { return tag_ >= Tag::Text; }
    /// Only of values with a block.
    void release() {
        if (--block_->references == 0) {
            destroy(tag_, block_);
        }
    }
    /// Frees a block that nobody holds any more, and all that only it held, however long the chain.
    static void destroy(Tag tag, Counted* block) noexcept;

    Tag tag_;
    union {
        Whole whole_;
        Decimal decimal_;
        Counted* block_;
    };
};

/// Lets whoever takes it have the value of a variable that nobody reads any more.
inline Value&& moved(Value& value) {
    return static_cast<Value&&>(value);
}

/// A value of the language on its own, so that a fault can be told: "பட்டியல்".
const char* kindWord(const Value& value);

} // namespace pozhil::engine
