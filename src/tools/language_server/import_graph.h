#pragma once

#include "tools/language_server/names.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace pozhil::language_server {

/// Which sources import which, over all that the workspace has. A source is known by SecondImports::keyOf.
class ImportGraph {
public:
    /// Reads the open sources and those of the workspace's folder.
    explicit ImportGraph(const Workspace& workspace);

    /// Adds a source, and all that it imports.
    void add(const NamedSource& file);

    struct Programs {
        /// The sources that nobody imports of those that know any of the given ones.
        std::vector<NamedSource> programs;
        /// These, and all that they import.
        std::vector<NamedSource> files;
    };

    /// The programs that hold any of these sources.
    Programs programsWith(const std::set<std::string>& keys) const;

private:
    /// All that each of some sources imports, however far; itself first.
    using Reached = std::map<std::string, std::vector<std::string>>;

    std::vector<std::string> reachedFrom(const std::string& start) const;
    static bool isImported(const std::string& key, const Reached& holders);

    const Workspace& workspace_;
    std::map<std::string, NamedSource> files_;
    std::map<std::string, std::vector<std::string>> imports_;
};

} // namespace pozhil::language_server
