#pragma once

/// What keys do to the text of a field that is drawn on the canvas. The generator fences it off from the native compiler;
/// nothing in it needs a browser.

#include "input_state.h"
#include "page_state.h"

// --- emitted from here ---

// வரைபலகையில் வரையப்பட்ட உள்ளீட்டின் விசைகள்: திருத்தங்கள் அனைத்தும் பைட் கணக்கில்
inline void pozhil_clear_focused_input() {
    g_inputValues[g_focusedInput] = "";
    g_inputCursorPos[g_focusedInput] = 0;
    g_inputSelected[g_focusedInput] = false;
}

// அழுத்திய விசை திருத்துவதாக இருந்தால் true
inline bool pozhil_edit_key(const std::string& key, bool ctrl) {
    std::string& value = g_inputValues[g_focusedInput];
    int& caret = g_inputCursorPos[g_focusedInput];
    if (key == "Backspace" || key == "Delete") {
        const int at = key == "Backspace" ? caret - 1 : caret;
        if (g_inputSelected[g_focusedInput]) {
            pozhil_clear_focused_input();
        } else if (at >= 0 && at < (int)value.size()) {
            value.erase((std::size_t)at, 1);
            caret = at;
        }
        return true;
    }
    if (key == "ArrowLeft" || key == "ArrowRight") {
        caret = std::max(0, std::min(caret + (key == "ArrowLeft" ? -1 : 1), (int)value.size()));
        return true;
    }
    if (ctrl && key == "a") {
        g_inputSelected[g_focusedInput] = true;
        return true;
    }
    if (ctrl && key == "x") {
        value = "";
        caret = 0;
        return true;
    }
    return ctrl && key == "c";
}

// தட்டச்சிட்ட எழுத்து; Enter உள்ளீட்டை விட்டு வெளியேறும்
inline void pozhil_type_key(const std::string& key) {
    g_inputErrors[g_focusedInput] = "";
    if (key == "Enter") {
        g_focusedInput = "";
        g_inputSelected.clear();
        return;
    }
    if (g_inputSelected[g_focusedInput]) {
        pozhil_clear_focused_input();
    }
    std::string& value = g_inputValues[g_focusedInput];
    int& caret = g_inputCursorPos[g_focusedInput];
    caret = std::min(caret, (int)value.size());
    value.insert((std::size_t)caret, key);
    caret += (int)key.size();
}
