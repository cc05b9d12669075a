#pragma once

#include <filesystem>
#include <functional>
#include <optional>

namespace pozhil {

/// When a file was last written to; nothing if it isn't there.
using TimeOfChange = std::optional<std::filesystem::file_time_type>;

TimeOfChange timeOfChangeIfThere(const std::filesystem::path& file);

/// Calls \p look as often as whoever watches sources looks for changes. Never returns.
[[noreturn]] void lookAgainAndAgain(const std::function<void()>& look);

} // namespace pozhil
