#pragma once

/// How the browser hands over the entries of an answer of the database; emitted into the bridge of the page.

#include "global_variables.h"

#ifndef __EMSCRIPTEN__
#define EMSCRIPTEN_KEEPALIVE
#endif

// clang-format off
// --- emitted from here ---
EMSCRIPTEN_KEEPALIVE void rtdb_clear_temp() {
    global_vars["_temp_rtdb"] = std::map<std::string, std::any>();
}

// தரவுத்தளத்தின் விடையில் ஒரு பதிவு
void pozhil_rtdb_add(const char* key, std::any val) {
    if (auto* entries = std::any_cast<std::map<std::string, std::any>>(&global_vars["_temp_rtdb"])) {
        (*entries)[key] = std::move(val);
    }
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_str(const char* key, const char* val) {
    pozhil_rtdb_add(key, std::string(val));
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_num(const char* key, double val) {
    pozhil_rtdb_add(key, (long double)val);
}

EMSCRIPTEN_KEEPALIVE void rtdb_add_temp_bool(const char* key, int val) {
    pozhil_rtdb_add(key, val != 0);
}
