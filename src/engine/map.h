#pragma once

#include "engine/value.h"

#include <cstddef>

namespace pozhil::engine {

/// The block of a map: found by hash, gone over in the order of the keys.
struct Map;

/// The block of a value with Tag::Map.
Map& mapBlock(const Value& value);

Value makeMap();
/// The block for writing: a copy first if others hold it too.
Map& ownMap(Value& map);

std::size_t mapSize(const Map& map);
/// Whether such a value can be a key: texts, whole numbers, decimals that are whole, and truth values.
bool canBeKey(const Value& key);
/// The value of a key, null if it isn't there.
Value* findKey(Map& map, const Value& key);
/// The place of a key's value in a block that only one value holds; nothing stands there if the key is new.
/// \param key one that can be a key
Value& placeOfKey(Map& map, const Value& key);
/// Takes a key out of a block that only one value holds.
/// \return false if it wasn't there
bool removeKey(Map& map, const Value& key);
/// Entry \p index in the order of the keys.
const Value& keyAt(Map& map, std::size_t index);
Value& valueAt(Map& map, std::size_t index);

} // namespace pozhil::engine
