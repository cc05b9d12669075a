#pragma once

/// What a program may ask of its page: to scroll to a widget, and to be drawn anew.

#include "generator/web/runtime/scrolling.h"
#include "standard_headers.h"

// --- emitted from here ---

inline std::any fn_நகர்த்து(std::any id_any) {
    if (const auto* id = std::any_cast<std::string>(&id_any)) {
        நகர்த்து(*id);
    }
    return std::any();
}

// ஒவ்வொரு சட்டமும் திரையைப் புதிதாக வரைவதால் இங்கே செய்ய ஏதுமில்லை.
void updateUI() {}
