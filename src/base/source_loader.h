#pragma once

#include "base/source_text.h"

#include <map>
#include <string>

namespace pozhil {

/// Where the front end gets its sources from.
class SourceLoader {
public:
    SourceLoader() = default;
    virtual ~SourceLoader() = default;
    SourceLoader(const SourceLoader&) = delete;
    SourceLoader& operator=(const SourceLoader&) = delete;

    /// \param path of the source in UTF-8
    /// \return null if there is no source that can be read
    virtual SourcePtr load(const std::string& path) const = 0;
};

/// Reads files, those with relative paths from the working directory.
class FileLoader : public SourceLoader {
public:
    SourcePtr load(const std::string& path) const override;
};

/// Texts in memory, such as what stands in an editor and isn't saved yet, before another loader's.
class MemoryLoader : public SourceLoader {
public:
    /// \param next is asked for whatever isn't in memory and outlives this loader; null if nothing else exists
    explicit MemoryLoader(const SourceLoader* next = nullptr) : next_(next) {}

    /// Sets the text of a path, which stands for exactly this spelling.
    void set(const std::string& path, std::string text);

    SourcePtr load(const std::string& path) const override;

private:
    const SourceLoader* next_;
    std::map<std::string, SourcePtr> sources_;
};

} // namespace pozhil
