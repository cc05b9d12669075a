#include "driver/web/web_directory.h"

#include "driver/output_stage.h"
#include "driver/web/web_messages.h"

#include <system_error>

namespace pozhil {

std::filesystem::path webDirectory() {
    return std::filesystem::current_path() / "வெளியீடு";
}

std::filesystem::path webDirectoryOf(const std::string& source) {
    return directoryOfSource(webDirectory(), source);
}

bool createWebDirectory(const std::filesystem::path& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) {
        printUnwritableDirectory(directory.u8string());
    }
    return !error;
}

} // namespace pozhil
