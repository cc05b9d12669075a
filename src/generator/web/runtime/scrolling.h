#pragma once

/// Where the widgets of a page stand, and scrolling to one of them.

#include "page_headers.h"

// --- emitted from here ---

// திரையில் விட்ஜெட்டுகள் நிற்கும் இடம்
struct WidgetPos {
    float x;
    float y;
};

std::map<std::string, WidgetPos> g_widgetPositions;
std::map<std::string, WidgetPos> id_map;
std::string g_scrollToId = "";
float targetScrollY = 0.0f;
float currentScrollY = 0.0f;

void நகர்த்து(std::string id) {
    g_scrollToId = id;
}
