/// What a page asks of the application that runs in it, whichever it is: the page of the application that is shown, what
/// its variables show, and whether the program still counts on in silence.

#include <any>
#include <cstdint>
#include <cstring>
#include <emscripten.h>
#include <map>
#include <string>
#include <unistd.h>

/// Of the generated program; missing in one without pages.
extern std::string g_currentPage __attribute__((weak));
extern std::map<std::string, std::any> global_vars __attribute__((weak));
/// Of a program of the second edition, which knows its variables itself.
extern "C" int pozhil_program_shows(const char* name, int atFirst) __attribute__((weak));
extern "C" int pozhil_program_has_page(const char* name) __attribute__((weak));

extern "C" {
/// Of the linker: the bounds of what the program holds outside of its stack, which is empty between frames.
extern const char __global_base;
extern const char __data_end;
extern const char __heap_base;
}

namespace {

/// \p sum with the words from \p begin to \p end added to it.
std::uint64_t sumOf(std::uint64_t sum, const char* begin, const char* end) {
    constexpr std::uint64_t FACTOR = 0x9E3779B97F4A7C15U;
    constexpr unsigned TURN = 29;
    for (; begin + sizeof(std::uint64_t) <= end; begin += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, begin, sizeof word);
        sum = (sum ^ word) * FACTOR;
        sum ^= sum >> TURN;
    }
    return sum;
}

} // namespace

extern "C" {
/// All that the program remembers as one whole number that a double can hold.
EMSCRIPTEN_KEEPALIVE double pozhil_memory_sum() {
    constexpr unsigned TOO_LONG = 11;
    const std::uint64_t data = sumOf(1, &__global_base, &__data_end);
    const std::uint64_t all = sumOf(data, &__heap_base, static_cast<const char*>(sbrk(0)));
    return static_cast<double>(all >> TOO_LONG);
}

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
