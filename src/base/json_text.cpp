#include "base/json_text.h"

#include <cstdio>

namespace pozhil::json {
namespace {

std::string escaped(char c) {
    constexpr unsigned char FIRST_PRINTABLE = 0x20;
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
        return {'\\', c};
    }
    if (byte >= FIRST_PRINTABLE) {
        return {c};
    }
    char code[sizeof("\\u0000")];
    std::snprintf(code, sizeof(code), "\\u%04x", static_cast<unsigned int>(byte));
    return code;
}

} // namespace

std::string text(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += escaped(c);
    }
    return quoted + "\"";
}

std::string truth(bool value) {
    return value ? "true" : "false";
}

std::string object(std::initializer_list<std::pair<std::string_view, std::string>> members) {
    std::string list;
    for (const auto& [name, value] : members) {
        list += (list.empty() ? "" : ", ") + text(name) + ": " + value;
    }
    return "{" + list + "}";
}

} // namespace pozhil::json
