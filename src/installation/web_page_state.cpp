/// What a page asks of the application that runs in it, whichever it is: the page of the application that is shown.

#include <emscripten.h>
#include <string>

/// Of the generated program; missing in one without pages.
extern std::string g_currentPage __attribute__((weak));

extern "C" {
EMSCRIPTEN_KEEPALIVE const char* pozhil_page_name() {
    return &g_currentPage == nullptr ? "" : g_currentPage.c_str();
}

EMSCRIPTEN_KEEPALIVE void pozhil_show_page(const char* name) {
    if (&g_currentPage != nullptr) {
        g_currentPage = name;
    }
}
}
