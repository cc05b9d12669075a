#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

/// What the web build hands to the local server, which runs on a thread of its own.
namespace pozhil {

/// The page of a web application. It is replaced as a whole: whoever loads it keeps what was loaded.
class SharedPage {
public:
    void store(std::string html);
    /// \return never null; empty before the first store
    std::shared_ptr<const std::string> load() const;

private:
    std::shared_ptr<const std::string> html_ = std::make_shared<const std::string>();
};

/// Number of the last good build plus one. Raised after a good build, when all its files are in place: pages in the
/// browser that know a smaller number load themselves again.
extern std::atomic<std::int32_t> g_appVersion;

/// The page of the last build, good or bad.
extern SharedPage& g_web_html;

} // namespace pozhil
