#pragma once

#include "driver/server/local_server.h"
#include "driver/web/web_build.h"
#include "driver/web/web_text.h"

#include <filesystem>

namespace pozhil {

/// An application in work: its versions are built one after the other, and the last good one is served.
class WebSession {
public:
    /// Ends the process with status 1 if the user's settings name no address to serve at.
    /// \param appDirectory the installation
    /// \param temporaryDirectory where output texts are written for em++
    /// \param outputDirectory where em++ writes to
    WebSession(const std::filesystem::path& appDirectory, const std::filesystem::path& temporaryDirectory,
               const std::filesystem::path& outputDirectory, Edition edition);

    /// Builds the first version, opens it in the browser if it is good, and serves from now on, on a thread of its own.
    void open(const WebText& text);

    /// Builds a version that follows.
    void update(const WebText& text);

private:
    /// Tells what became of the first version, and opens a good one in the browser.
    void tellFirst(bool isBuilt, const WebText& text) const;

    ServerSettings server_;
    WebBuild build_;
};

} // namespace pozhil
