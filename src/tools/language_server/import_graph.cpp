#include "tools/language_server/import_graph.h"

#include "front_end/second_imports.h"
#include "tools/check/source_search.h"

#include <algorithm>
#include <utility>

namespace pozhil::language_server {

ImportGraph::ImportGraph(const Workspace& workspace) : workspace_(workspace) {
    for (const SourcePtr& source : workspace.openSources()) {
        add({source, workspace.outlineOf(source)});
    }
    if (workspace.folder().empty()) {
        return;
    }
    for (const std::string& path : tools::findSources({workspace.folder()}).paths) {
        const SourcePtr source = workspace.load(path);
        if (source != nullptr) {
            add({source, workspace.outlineOf(source)});
        }
    }
}

void ImportGraph::add(const NamedSource& file) {
    std::vector<NamedSource> waiting = {file};
    while (!waiting.empty()) {
        const NamedSource next = waiting.back();
        waiting.pop_back();
        const std::string key = SecondImports::keyOf(next.source->path);
        if (!files_.insert({key, next}).second) {
            continue;
        }
        std::vector<std::string>& imported = imports_[key];
        for (const NamedSource& other : visibleSources(workspace_, next)) {
            imported.push_back(SecondImports::keyOf(other.source->path));
            waiting.push_back(other);
        }
    }
}

ImportGraph::Programs ImportGraph::programsWith(const std::set<std::string>& keys) const {
    Reached holders;
    std::set<std::string> files = keys;
    for (const auto& [key, file] : files_) {
        std::vector<std::string> reached = reachedFrom(key);
        if (std::any_of(reached.begin(), reached.end(), [&](const auto& one) { return keys.count(one) != 0; })) {
            files.insert(reached.begin(), reached.end());
            holders[key] = std::move(reached);
        }
    }
    Programs found;
    for (const std::string& key : files) {
        found.files.push_back(files_.at(key));
    }
    for (const auto& [key, reached] : holders) {
        if (!isImported(key, holders)) {
            found.programs.push_back(files_.at(key));
        }
    }
    return found;
}

std::vector<std::string> ImportGraph::reachedFrom(const std::string& start) const {
    std::vector<std::string> reached = {start};
    std::set<std::string> seen = {start};
    for (std::size_t at = 0; at < reached.size(); ++at) {
        for (const std::string& next : imports_.at(reached[at])) {
            if (seen.insert(next).second) {
                reached.push_back(next);
            }
        }
    }
    return reached;
}

/// Of two that import each other, one counts as a program.
bool ImportGraph::isImported(const std::string& key, const Reached& holders) {
    const auto imports = [&](const std::string& one, const std::string& other) {
        const std::vector<std::string>& reached = holders.at(one);
        return std::find(reached.begin(), reached.end(), other) != reached.end();
    };
    return std::any_of(holders.begin(), holders.end(), [&](const auto& entry) {
        return entry.first != key && imports(entry.first, key) && (!imports(key, entry.first) || entry.first < key);
    });
}

} // namespace pozhil::language_server
