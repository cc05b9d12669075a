#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// What the web build hands to the local server, which runs on a thread of its own.
namespace pozhil {

/// A page and what belongs to it.
struct ServedPage {
    std::string text{};
    /// The same, compressed by gzip; empty if it isn't
    std::string compressed{};
    /// What the application is packed of, seen from the current directory: files, and directories with all in them
    std::vector<std::string> files{};
    /// The directory of what is built for it, seen from the current one
    std::string results = "வெளியீடு";
};

/// The page of a web application. It is replaced as a whole: whoever loads it keeps what was loaded.
class SharedPage {
public:
    void store(ServedPage page);
    /// \return never null; empty before the first store
    std::shared_ptr<const ServedPage> load() const;

private:
    std::shared_ptr<const ServedPage> page_ = std::make_shared<const ServedPage>();
};

/// Number of the last good build plus one. Raised after a good build, when all its files are in place: pages in the
/// browser that know a smaller number load themselves again.
extern std::atomic<std::int32_t> g_appVersion;

/// The page of the last build, good or bad.
extern SharedPage& g_web_html;

} // namespace pozhil
