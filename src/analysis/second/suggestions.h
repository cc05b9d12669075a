#pragma once

#include "analysis/second/resolution.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// "ஒருவேளை 'name' என்பதா?", with the one of \p known that is nearest to \p name; empty if none is near.
std::string nearestAsQuestion(std::string_view name, const std::vector<std::string_view>& known);

/// Tells that nobody defines a name that is read; why, if the name is one that can't be seen from here.
void tellUnknownName(Resolution& resolution, std::string_view name, resolved::Place place);

/// The same of a name that is called.
void tellUnknownFunction(Resolution& resolution, std::string_view name, resolved::Place place);

/// Tells that a structure or an enumeration is no value.
void tellNameWithoutValue(Resolution& resolution, const Meaning& meaning, std::string_view name, resolved::Place place);

/// Tells that something known has no such member.
/// \param what its name
/// \param members those that it has
/// \param remedy what to do about it, if that isn't what the catalogue says
void tellUnknownMember(Model& model, std::string_view what, std::string_view member,
                       const std::vector<std::string_view>& members, resolved::Place place, std::string remedy = {});

/// A file as its faults name it: without the directories, which are no business of who reads them.
std::string fileName(const std::string& path);

/// Tells that a call gives another number of arguments than is asked for.
/// \param remedy what to do about it, if that isn't what the catalogue says
void tellWrongCount(Model& model, std::string_view name, std::size_t fewest, std::size_t most, std::size_t given,
                    resolved::Place place, std::string remedy = {});

} // namespace pozhil::second
