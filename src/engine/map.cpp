#include "engine/map.h"

#include "engine/blocks.h"
#include "engine/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

namespace pozhil::engine {
namespace {

/// A key with its value.
struct MapEntry {
    Value key;
    Value value;
    std::size_t hash;
};

/// Decimals that are whole numbers stand for them.
bool isWhole(Decimal value) {
    constexpr Decimal LIMIT = 9223372036854775808.0;
    return value == std::floor(value) && value >= -LIMIT && value < LIMIT;
}

/// The form in which a map holds a key.
Value normalKey(const Value& key) {
    return key.is(Tag::Decimal) ? Value(static_cast<Whole>(key.decimal())) : key;
}

std::size_t hashOf(const Value& key) {
    if (key.is(Tag::Text)) {
        return std::hash<std::string_view>()(textBlock(key).bytes);
    }
    // Multiplied and folded, so that keys which differ only in their high bits don't meet either.
    constexpr std::uint64_t MULTIPLIER = 0x9E3779B97F4A7C15U;
    const std::uint64_t product =
        (static_cast<std::uint64_t>(key.whole()) + static_cast<std::uint64_t>(key.tag())) * MULTIPLIER;
    constexpr unsigned HALF = 32;
    return static_cast<std::size_t>(product ^ (product >> HALF));
}

bool isSameKey(const Value& left, const Value& right) {
    if (left.tag() != right.tag()) {
        return false;
    }
    return left.is(Tag::Text) ? textBlock(left).bytes == textBlock(right).bytes : left.whole() == right.whole();
}

/// Truth values, then numbers, then texts.
bool isBefore(const Value& left, const Value& right) {
    if (left.tag() != right.tag()) {
        return left.tag() < right.tag();
    }
    if (left.is(Tag::Text)) {
        return compareTexts(textBlock(left).bytes, textBlock(right).bytes) < 0;
    }
    return left.whole() < right.whole();
}

} // namespace

/// Entries lie side by side in no particular order. Which one has a key tells a table of their indices, whose size is a
/// power of two and which is never more than half full: an entry stands at its hash, or after it where that is taken.
struct Map : Counted {
    std::vector<MapEntry> entries{};
    std::vector<std::uint32_t> table{};
    /// Indices of the entries; the first so many of them in the order of their keys, the others not yet.
    std::vector<std::uint32_t> order{};
    std::size_t ordered = 0;
    /// Somebody has gone by the order since a key was last removed, and may well do so again.
    bool isOrderUsed = false;
};

namespace {

constexpr std::uint32_t FREE = UINT32_MAX;
constexpr std::size_t FIRST_TABLE_SIZE = 8;

std::size_t after(const Map& map, std::size_t slot) {
    return (slot + 1) & (map.table.size() - 1);
}

std::size_t homeOf(const Map& map, std::size_t hash) {
    return hash & (map.table.size() - 1);
}

/// Where the key stands in the table, or the free slot where it would.
std::size_t slotOf(const Map& map, const Value& key, std::size_t hash) {
    std::size_t slot = homeOf(map, hash);
    while (map.table[slot] != FREE) {
        const MapEntry& entry = map.entries[map.table[slot]];
        if (entry.hash == hash && isSameKey(entry.key, key)) {
            break;
        }
        slot = after(map, slot);
    }
    return slot;
}

void growTable(Map& map) {
    std::vector<std::uint32_t> table(std::max(FIRST_TABLE_SIZE, 2 * map.table.size()), FREE);
    map.table.swap(table);
    for (std::size_t i = 0; i < map.entries.size(); ++i) {
        std::size_t slot = homeOf(map, map.entries[i].hash);
        while (map.table[slot] != FREE) {
            slot = after(map, slot);
        }
        map.table[slot] = static_cast<std::uint32_t>(i);
    }
}

/// Frees a slot of the table and moves up those after it that would not be found across the gap.
void freeSlot(Map& map, std::size_t gap) {
    map.table[gap] = FREE;
    const std::size_t mask = map.table.size() - 1;
    for (std::size_t slot = after(map, gap); map.table[slot] != FREE; slot = after(map, slot)) {
        const std::size_t home = homeOf(map, map.entries[map.table[slot]].hash);
        if (((slot - home) & mask) >= ((slot - gap) & mask)) {
            map.table[gap] = map.table[slot];
            map.table[slot] = FREE;
            gap = slot;
        }
    }
}

/// Compares entries by their keys.
struct KeyOrder {
    const std::vector<MapEntry>& entries;

    bool operator()(std::uint32_t left, std::uint32_t right) const {
        return isBefore(entries[left].key, entries[right].key);
    }
};

/// Where an entry stands in the order of all.
std::size_t placeInOrder(const Map& map, std::uint32_t index) {
    const auto found = std::lower_bound(map.order.begin(), map.order.end(), index, KeyOrder{map.entries});
    return static_cast<std::size_t>(found - map.order.begin());
}

/// Takes an entry out of the order, whose index the last entry is about to get. If many are taken out in a row, the order
/// isn't worth keeping: it is made anew when somebody asks.
void leaveOrder(Map& map, std::uint32_t index) {
    if (map.isOrderUsed && map.ordered == map.entries.size()) {
        const std::size_t place = placeInOrder(map, index);
        map.order[placeInOrder(map, static_cast<std::uint32_t>(map.entries.size() - 1))] = index;
        map.order.erase(map.order.begin() + static_cast<std::ptrdiff_t>(place));
    } else {
        map.order.clear();
    }
    map.ordered = map.order.size();
    map.isOrderUsed = false;
}

/// Orders what was added since the last time, and merges it with the rest.
void bringInOrder(Map& map) {
    map.isOrderUsed = true;
    const KeyOrder isEntryBefore{map.entries};
    if (map.ordered == map.entries.size()) {
        return;
    }
    for (std::size_t i = map.order.size(); i < map.entries.size(); ++i) {
        map.order.push_back(static_cast<std::uint32_t>(i));
    }
    const auto middle = map.order.begin() + static_cast<std::ptrdiff_t>(map.ordered);
    std::sort(middle, map.order.end(), isEntryBefore);
    std::inplace_merge(map.order.begin(), middle, map.order.end(), isEntryBefore);
    map.ordered = map.order.size();
}

} // namespace

Map& mapBlock(const Value& value) {
    return *static_cast<Map*>(value.block());
}

Value makeMap() {
    return Value(Tag::Map, new Map);
}

Map& ownMap(Value& map) {
    const Map& shared = mapBlock(map);
    if (shared.references > 1) {
        auto* const own = new Map(shared);
        own->references = 1;
        map = Value(Tag::Map, own);
    }
    return mapBlock(map);
}

std::size_t mapSize(const Map& map) {
    return map.entries.size();
}

bool canBeKey(const Value& key) {
    return key.is(Tag::Text) || key.is(Tag::Whole) || key.is(Tag::Truth) ||
           (key.is(Tag::Decimal) && isWhole(key.decimal()));
}

Value* findKey(Map& map, const Value& key) {
    if (map.entries.empty() || !canBeKey(key)) {
        return nullptr;
    }
    const Value normal = normalKey(key);
    const std::uint32_t index = map.table[slotOf(map, normal, hashOf(normal))];
    return index == FREE ? nullptr : &map.entries[index].value;
}

Value& placeOfKey(Map& map, const Value& key) {
    const Value normal = normalKey(key);
    const std::size_t hash = hashOf(normal);
    if (2 * (map.entries.size() + 1) > map.table.size()) {
        growTable(map);
    }
    const std::size_t slot = slotOf(map, normal, hash);
    if (map.table[slot] == FREE) {
        map.entries.push_back({normal, Value(), hash});
        map.table[slot] = static_cast<std::uint32_t>(map.entries.size() - 1);
    }
    return map.entries[map.table[slot]].value;
}

bool removeKey(Map& map, const Value& key) {
    if (findKey(map, key) == nullptr) {
        return false;
    }
    const Value normal = normalKey(key);
    const std::size_t slot = slotOf(map, normal, hashOf(normal));
    const std::uint32_t index = map.table[slot];
    freeSlot(map, slot);
    leaveOrder(map, index);
    const MapEntry& last = map.entries.back();
    if (index != map.entries.size() - 1) {
        map.table[slotOf(map, last.key, last.hash)] = index;
        std::swap(map.entries[index], map.entries.back());
    }
    map.entries.pop_back();
    return true;
}

const Value& keyAt(Map& map, std::size_t index) {
    bringInOrder(map);
    return map.entries[map.order[index]].key;
}

Value& valueAt(Map& map, std::size_t index) {
    bringInOrder(map);
    return map.entries[map.order[index]].value;
}

void freeMap(Counted* block) noexcept {
    delete static_cast<Map*>(block);
}

} // namespace pozhil::engine
