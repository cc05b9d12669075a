#pragma once

#include "front_end/front_end.h"

#include <string>
#include <vector>

namespace pozhil {

/// Finds and reads what programs of the second edition import.
///
/// A file is looked for beside the one that imports it, then in the working directory, then in the directories of modules.
/// There a module may have a text of its own for the second edition, in a folder of that name.
class SecondImports {
public:
    /// \param options outlive this
    explicit SecondImports(const FrontEndOptions& options) : options_(options) {}

    /// Reads the first file that an import can mean.
    /// \param written what the import names
    /// \param importer path of the file that imports it
    /// \return null if there is none that can be read
    SourcePtr load(const std::string& written, const std::string& importer) const;

    /// What tells files apart: two ways of writing one path have the same.
    static std::string keyOf(const std::string& path);

private:
    std::vector<std::string> directoriesFor(const std::string& importer) const;
    bool isModuleDirectory(const std::string& directory) const;

    const FrontEndOptions& options_;
};

} // namespace pozhil
