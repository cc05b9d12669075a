#pragma once

#include "driver/web/emscripten_environment.h"
#include "driver/web/web_text.h"
#include "platform/process.h"

#include <filesystem>
#include <future>
#include <string>

namespace pozhil {

/// The runtime at the head of an application's output text, precompiled in the background while the first version is
/// built: the versions that follow begin with the same bytes, and em++ needn't read them again.
class PrecompiledRuntime {
public:
    /// \param temporaryDirectory where it is made
    explicit PrecompiledRuntime(const std::filesystem::path& temporaryDirectory);

    /// Starts to precompile the runtime of \p text, unless that is done or going on.
    /// \param compiler the call of em++ up to the source, with its environment
    void prepare(const WebText& text, const platform::Command& compiler);

    /// What is ready for \p text; none while it is still being made, or if the runtime is another.
    PrecompiledHeaders headersFor(const WebText& text);

private:
    bool isRuntimeOf(const WebText& text) const;

    std::filesystem::path source_;
    std::filesystem::path precompiled_;
    std::string runtime_;
    std::future<bool> compilation_;
    bool isReady_ = false;
};

} // namespace pozhil
