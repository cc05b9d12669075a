#pragma once

#include "engine/faults.h"

#include <initializer_list>
#include <string_view>

namespace pozhil::engine {

/// Raises the fault of this number of the catalogue.
/// \param place null for the place of the call that runs
/// \param values fill the holes of its message and remedy
/// \param suggestion what may have been meant, as a sentence; may be empty
/// \param remedy what to do about it, if that isn't what the catalogue says
[[noreturn]] void raise(int number, Place place, std::initializer_list<std::string_view> values = {},
                        std::string_view suggestion = {}, std::string_view remedy = {});

/// The fault of this number with the way of calls, for whoever throws something else than a fault.
Fault faultWithWay(int number, Place place);

} // namespace pozhil::engine
