#pragma once

#include "parser/tree/expressions.h"
#include "parser/tree/widgets.h"

#include <optional>
#include <string>

namespace pozhil::second {

/// The property by which the program holds what a control shows.
struct ControlBinding {
    /// Its name, as the widget keeps it.
    const std::string* property = nullptr;
    const Expression* place = nullptr;
    /// The property takes any value: what can't be assigned is shown, and left to the program.
    bool isOptional = false;
};

/// How the program holds what \p control shows: by மதிப்பு, and of a group of வட்டத்தேர்வு by குழு_மதிப்பு. Nothing if it
/// doesn't, or if the value is no place to the eye.
std::optional<ControlBinding> bindingOf(const WidgetNode& control);

/// Whether a place can be read and assigned alike: neither a call nor a function stands in it.
bool isPlainPlace(const Expression& place);

/// What வட்டத்தேர்வு gives its group when it is chosen: its மதிப்பு, or its text if the group stands there. Null if it is in
/// no group.
const Expression* ownValueOf(const WidgetNode& radio);

} // namespace pozhil::second
