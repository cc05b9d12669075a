#include "driver/web/web_directory.h"

#include "driver/web/web_messages.h"

#include <system_error>

namespace pozhil {

std::filesystem::path webDirectory() {
    return std::filesystem::current_path() / "வெளியீடு";
}

bool createWebDirectory() {
    std::error_code error;
    std::filesystem::create_directory(webDirectory(), error);
    if (error) {
        printUnwritableDirectory(webDirectory().u8string());
    }
    return !error;
}

} // namespace pozhil
