#pragma once

#include "base/source_loader.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// Finds and reads what a program imports, each file once.
class ImportLoader {
public:
    /// \param loader reads the files and outlives the import loader
    /// \param moduleDirectories where imports are looked for after the working directory, in order
    ImportLoader(const SourceLoader& loader, std::vector<std::string> moduleDirectories);

    /// The path that an import names, with the ending that it may leave out.
    static std::string modulePath(std::string_view written);

    /// Notes that \p path is imported.
    /// \return false if it has been imported under this very spelling before, which also ends circular imports
    bool isFirstImport(const std::string& path);

    /// Reads the first file of this path.
    /// \return null if there is none that can be read
    SourcePtr load(const std::string& path) const;

private:
    const SourceLoader& loader_;
    std::vector<std::string> moduleDirectories_;
    std::set<std::string> importedPaths_;
};

} // namespace pozhil
