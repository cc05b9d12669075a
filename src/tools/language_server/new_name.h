#pragma once

#include "tools/language_server/outline.h"

#include <string>
#include <string_view>

namespace pozhil::language_server {

/// Why a source of this edition can't give a name of its own to anything, as a sentence for the user: it is no name, or the
/// language has given it to something else.
/// \param name in normal form
/// \return empty if it can
std::string objectionTo(std::string_view name, Edition edition);

/// Whether the language itself gives the name a meaning where a program declares something by it: the object, what begins
/// one, an application without a name.
bool isNameWithMeaning(std::string_view name);

/// Whether it is the name of a test function.
bool isTestName(std::string_view name);

} // namespace pozhil::language_server
