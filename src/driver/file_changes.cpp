#include "driver/file_changes.h"

#include <chrono>
#include <system_error>
#include <thread>

namespace fs = std::filesystem;

namespace pozhil {

TimeOfChange timeOfChangeIfThere(const fs::path& file) {
    std::error_code error;
    const fs::file_time_type time = fs::last_write_time(file, error);
    return error ? std::nullopt : TimeOfChange(time);
}

void lookAgainAndAgain(const std::function<void()>& look) {
    constexpr std::chrono::milliseconds PAUSE{500};
    while (true) {
        look();
        std::this_thread::sleep_for(PAUSE);
    }
}

} // namespace pozhil
