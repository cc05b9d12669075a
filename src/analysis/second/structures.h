#pragma once

#include "analysis/second/model.h"

#include <string_view>
#include <vector>

namespace pozhil::second {

/// Finds the parents of all structures, gives them their fields and orders them so that parents come first.
void resolveStructures(Model& model);

/// The method of this name that an object of the structure has: its own or that of the nearest parent; null if none.
const resolved::Function* findMethod(const resolved::Structure& structure, std::string_view name);

/// A field with the structure that declares it; null if none.
struct FoundField {
    const resolved::Field* field = nullptr;
    const resolved::Structure* structure = nullptr;
};
FoundField findField(const resolved::Structure& structure, std::string_view name);

/// The names of all members that an object of the structure has, those of the parents first.
std::vector<std::string_view> membersOf(const resolved::Structure& structure);

/// Whether methods of \p inside may use private members of \p declaring: its own, and those of its children.
/// \param inside null outside of methods
bool maySeePrivate(const resolved::Structure* inside, const resolved::Structure* declaring);

/// The method that makes a new object ready.
constexpr std::string_view CONSTRUCTOR = "துவக்கம்";

} // namespace pozhil::second
