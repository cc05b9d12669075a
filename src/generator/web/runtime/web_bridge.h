#pragma once

/// What the browser side of a page may call: values of input fields, the database's answers, scrolling, pasting, and
/// the keys of a field that is drawn on the canvas. The native compiler skips it all. In place of the markers stands how
/// the program takes over an answer of the database: functions for its entries, and what happens when it is complete.

#include "canvas_keys.h"
#include "input_state.h"
#include "page_state.h"
#include "web_text_layer.h"

// clang-format off
// --- emitted from here ---

#ifdef __EMSCRIPTEN__
// ஓடாத வரி உலாவியின் பிழையாக முடியும்; பக்கம் தொடர்ந்து இயங்கும்
void pozhil_run_script(const std::string& script) {
    EM_ASM({ try { _emscripten_run_script($0); } catch (error) { reportError(error); } }, script.c_str());
}

void நகர்த்து(std::string id);

extern "C" {
EMSCRIPTEN_KEEPALIVE void set_input_value(const char* id, const char* val) {
    g_inputValues[id] = val;
}

EMSCRIPTEN_KEEPALIVE void clear_input_error(const char* id) {
    g_inputErrors[id] = "";
}

// @DATABASE_ENTRIES@
}

std::map<int, std::function<void()>> g_rtdb_callbacks;
int g_rtdb_cb_counter = 0;

extern "C" {
EMSCRIPTEN_KEEPALIVE void rtdb_execute_callback(int id) {
    const auto found = g_rtdb_callbacks.find(id);
    if (found != g_rtdb_callbacks.end()) {
        // @DATABASE_ANSWER@
        found->second();
        g_rtdb_callbacks.erase(id);
    }
}
}
#endif

#ifdef __EMSCRIPTEN__
EMSCRIPTEN_BINDINGS(scroll_logic) {
    emscripten::function("நகர்த்து", &நகர்த்து);
}
#endif

#ifdef __EMSCRIPTEN__
extern "C" {
EMSCRIPTEN_KEEPALIVE void on_paste_text(const char* text) {
    if (!g_focusedInput.empty()) {
        g_inputValues[g_focusedInput] += text;
    }
}
}
#endif

#ifdef __EMSCRIPTEN__
EM_BOOL key_callback(int eventType, const EmscriptenKeyboardEvent* e, void* userData) {
    (void)userData;
    const bool html_input_has_focus = EM_ASM_INT({
        return document.activeElement && document.activeElement.tagName === 'INPUT' ? 1 : 0;
    });
    if (html_input_has_focus || g_focusedInput.empty()) {
        return EM_FALSE;
    }
    const std::string key = e->key;
    if (eventType == EMSCRIPTEN_EVENT_KEYDOWN) {
        if (e->ctrlKey && (key == "c" || key == "x")) {
            copyToClipboard(g_inputValues[g_focusedInput].c_str());
        }
        return pozhil_edit_key(key, e->ctrlKey) ? EM_TRUE : EM_FALSE;
    }
    if (eventType == EMSCRIPTEN_EVENT_KEYPRESS && !e->ctrlKey) {
        pozhil_type_key(key);
        return EM_TRUE;
    }
    return EM_FALSE;
}
#endif
