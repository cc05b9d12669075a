#include "engine/function_block.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/numbers.h"
#include "engine/operations.h"
#include "engine/raise.h"
#include "engine/text.h"
#include "engine/time_stamp.h"
#include "engine/value_faults.h"

#include <cmath>
#include <vector>

namespace pozhil::engine {
namespace {

template <class Number> int threeWay(Number left, Number right) {
    return left < right ? -1 : left > right ? 1 : 0;
}

/// Of two numbers. What is no number is neither less than a number nor equal to one.
int threeWayOfNumbers(const Value& left, const Value& right) {
    if (left.is(Tag::Whole)) {
        return right.is(Tag::Whole) ? threeWay(left.whole(), right.whole())
                                    : compareNumbers(left.whole(), right.decimal());
    }
    if (right.is(Tag::Whole)) {
        return compareNumbers(left.decimal(), right.whole());
    }
    return left.decimal() == right.decimal() ? 0 : left.decimal() < right.decimal() ? -1 : 1;
}

/// Each use of a function's name makes a value of its own; they are the same if they do the same to the same variables and
/// object.
bool areSame(const Closure& left, const Closure& right) {
    const bool haveSameObject =
        left.self.tag() == right.self.tag() && (left.self.is(Tag::Unset) || left.self.block() == right.self.block());
    return left.info == right.info && left.cells == right.cells && haveSameObject;
}

/// What comparing two values says without looking into them.
enum class Verdict { Equal, Unequal, ByContents };

Verdict ofBlocks(const Value& left, const Value& right) {
    if (left.block() == right.block()) {
        return Verdict::Equal;
    }
    const auto verdict = [](bool areEqual) { return areEqual ? Verdict::Equal : Verdict::Unequal; };
    switch (left.tag()) {
    case Tag::Text: return verdict(textOf(left) == textOf(right));
    case Tag::Function: return verdict(areSame(functionBlock(left), functionBlock(right)));
    case Tag::Time: return verdict(timeBlock(left).nanoseconds == timeBlock(right).nanoseconds);
    case Tag::List: return listBlock(left).size == listBlock(right).size ? Verdict::ByContents : Verdict::Unequal;
    case Tag::Map: return mapSize(mapBlock(left)) == mapSize(mapBlock(right)) ? Verdict::ByContents : Verdict::Unequal;
    default: return Verdict::Unequal;
    }
}

Verdict compared(const Value& left, const Value& right) {
    if (isNumber(left) && isNumber(right)) {
        return threeWayOfNumbers(left, right) == 0 ? Verdict::Equal : Verdict::Unequal;
    }
    if (left.tag() != right.tag()) {
        return Verdict::Unequal;
    }
    switch (left.tag()) {
    case Tag::Unset:
    case Tag::Nothing: return Verdict::Equal;
    case Tag::Truth: return left.truth() == right.truth() ? Verdict::Equal : Verdict::Unequal;
    default: return ofBlocks(left, right);
    }
}

/// Two lists or maps of the same size whose elements are being compared.
struct Pair {
    const Value* left;
    const Value* right;
    std::size_t next;
};

std::size_t sizeOf(const Pair& pair) {
    return pair.left->is(Tag::List) ? listBlock(*pair.left).size : mapSize(mapBlock(*pair.left));
}

/// The next elements of both; none on the right if it lacks the key of the left.
Pair nextElements(Pair& pair) {
    const std::size_t index = pair.next++;
    if (pair.left->is(Tag::List)) {
        return {listBlock(*pair.left).elements + index, listBlock(*pair.right).elements + index, 0};
    }
    Map& left = mapBlock(*pair.left);
    return {&valueAt(left, index), findKey(mapBlock(*pair.right), keyAt(left, index)), 0};
}

bool haveEqualContents(const Value& left, const Value& right) {
    // A stack of our own: lists may nest deeper than calls.
    std::vector<Pair> stack = {{&left, &right, 0}};
    while (!stack.empty()) {
        Pair& innermost = stack.back();
        if (innermost.next == sizeOf(innermost)) {
            stack.pop_back();
            continue;
        }
        const Pair elements = nextElements(innermost);
        const Verdict verdict =
            elements.right == nullptr ? Verdict::Unequal : compared(*elements.left, *elements.right);
        if (verdict == Verdict::Unequal) {
            return false;
        }
        if (verdict == Verdict::ByContents) {
            stack.push_back(elements);
        }
    }
    return true;
}

[[noreturn]] void raiseWrongOrder(const Value& left, const Value& right, Place place) {
    const bool mixed = (isNumber(left) && right.is(Tag::Text)) || (left.is(Tag::Text) && isNumber(right));
    raise(WRONG_ORDER, place, {kindWord(left), kindWord(right)},
          mixed ? "உரையில் உள்ள எண்ணை ஒப்பிட வேண்டுமானால் 'எண்(…)' என்று எழுது." : "");
}

} // namespace

int compareNumbers(Whole left, Decimal right) {
    if (isExactDecimal(left) && !std::isnan(right)) {
        return threeWay(static_cast<Decimal>(left), right);
    }
    constexpr Decimal LIMIT = 9223372036854775808.0;
    if (right >= LIMIT) {
        return -1;
    }
    // Or what is no number.
    if (!(right >= -LIMIT)) {
        return 1;
    }
    const auto whole = static_cast<Whole>(right);
    return left == whole ? threeWay(0.0, right - std::trunc(right)) : threeWay(left, whole);
}

int compareNumbers(Decimal left, Whole right) {
    return std::isnan(left) ? 1 : -compareNumbers(right, left);
}

bool equalValues(const Value& left, const Value& right) {
    const Verdict verdict = compared(left, right);
    return verdict == Verdict::ByContents ? haveEqualContents(left, right) : verdict == Verdict::Equal;
}

int compareValues(const Value& left, const Value& right, Place place) {
    if (left.is(Tag::Text) && right.is(Tag::Text)) {
        return compareTexts(textOf(left), textOf(right));
    }
    if (!isNumber(left) || !isNumber(right)) {
        raiseWrongOrder(left, right, place);
    }
    return threeWayOfNumbers(left, right);
}

} // namespace pozhil::engine
