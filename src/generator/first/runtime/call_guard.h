#pragma once

/// The guard that stops endless recursion before the native stack runs out, and the size of the window.

#include "standard_headers.h"

// --- emitted from here ---

// செயல் அழைப்புகளின் ஆழம்
void pozhil_runtime_error(std::string code, std::string file, int line);
int g_call_depth = 0;
int g_current_call_line = 0; // கடைசியாக அழைத்த வரி
const int MAX_CALL_DEPTH = 150;

// ஒவ்வொரு செயலின் தொடக்கத்திலும் நிற்கும் காவல்: ஆழம் எல்லையை மீறினால் நிரலை நிறுத்தும்.
struct CallTracker {
    std::string file;

    CallTracker(std::string f) : file(std::move(f)) {
        g_call_depth++;
        if (g_call_depth > MAX_CALL_DEPTH) {
            g_call_depth = 0;
            pozhil_runtime_error("பொழி-335", file, g_current_call_line);
        }
    }

    ~CallTracker() { g_call_depth--; }
};

// திரையின் அளவு
float திரை_அகலம் = 1280.0f;
float திரை_உயரம் = 720.0f;
