#include "platform/console.h"

#include <clocale>
#include <iostream>
#include <locale>
#include <stdexcept>

#include <unistd.h>

namespace pozhil::platform {

void setUpConsole() {
    constexpr const char* UTF8_LOCALE = "C.UTF-8";
    std::setlocale(LC_ALL, UTF8_LOCALE);
    try {
        std::locale::global(std::locale(UTF8_LOCALE));
    } catch (const std::runtime_error&) {
        std::locale::global(std::locale::classic());
    }
    std::ios::sync_with_stdio(false);
}

bool isTerminalOutput() {
    return isatty(STDOUT_FILENO) == 1;
}

} // namespace pozhil::platform
