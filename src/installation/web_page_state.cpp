/// What a page asks of the application that runs in it, whichever it is: the page of the application that is shown, and
/// what its variables show.

#include <any>
#include <emscripten.h>
#include <map>
#include <string>

/// Of the generated program; missing in one without pages.
extern std::string g_currentPage __attribute__((weak));
extern std::map<std::string, std::any> global_vars __attribute__((weak));
/// Of a program of the second edition, which knows its variables itself.
extern "C" int pozhil_program_shows(const char* name, int atFirst) __attribute__((weak));
extern "C" int pozhil_program_has_page(const char* name) __attribute__((weak));

extern "C" {
EMSCRIPTEN_KEEPALIVE const char* pozhil_page_name() {
    return &g_currentPage == nullptr ? "" : g_currentPage.c_str();
}

EMSCRIPTEN_KEEPALIVE void pozhil_show_page(const char* name) {
    if (&g_currentPage != nullptr) {
        g_currentPage = name;
    }
}

/// Whether the program says that it has a page of this name.
EMSCRIPTEN_KEEPALIVE int pozhil_has_page(const char* name) {
    return &pozhil_program_has_page != nullptr && pozhil_program_has_page(name) != 0 ? 1 : 0;
}

/// Whether the variable shows the widgets that name it.
/// \param atFirst whether they are there while the variable has no value
EMSCRIPTEN_KEEPALIVE int pozhil_shows(const char* name, int atFirst) {
    if (&pozhil_program_shows != nullptr) {
        return pozhil_program_shows(name, atFirst);
    }
    if (&global_vars == nullptr) {
        return atFirst;
    }
    const auto found = global_vars.find(name);
    if (found == global_vars.end()) {
        return atFirst;
    }
    const bool* value = std::any_cast<bool>(&found->second);
    return value != nullptr && *value ? 1 : 0;
}
}
