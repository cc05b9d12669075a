#pragma once

#include "language/widgets.h"
#include "tools/language_server/outline.h"

#include <string>
#include <vector>

/// What a place in a source stands between.
namespace pozhil::language_server {

/// A bracket that is open at a place.
struct OpenBracket {
    /// Index of its token.
    std::size_t token = NO_INDEX;
    /// Index of the word that it belongs to, a function or widget; NO_INDEX if there is none.
    std::size_t word = NO_INDEX;
    /// How many commas stand in it before the place.
    std::size_t commas = 0;
};

/// The open brackets around a byte, the innermost first.
std::vector<OpenBracket> openBrackets(const Outline& outline, std::size_t offset);

/// Properties that may stand at a place.
struct PropertyPlace {
    /// The widget between whose brackets it is; null for none, and for an application's header.
    const language::Widget* widget = nullptr;
    /// The word of the style block that it is in; may be empty.
    std::string style;
    std::vector<const language::WidgetProperty*> properties;
};

/// What is known of the properties between the innermost brackets.
PropertyPlace propertiesAt(const Outline& outline, const std::vector<OpenBracket>& brackets);

/// The property of this name there, null if there is none.
const language::WidgetProperty* findProperty(const PropertyPlace& place, std::string_view name);

/// Whether the source has an application.
bool hasApplication(const Outline& outline);

} // namespace pozhil::language_server
