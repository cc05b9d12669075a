#include "tools/language_server/workspace.h"

#include "driver/settings.h"
#include "front_end/second_imports.h"
#include "platform/paths.h"
#include "tools/check/source_check.h"
#include "tools/language_server/uri.h"
#include "tools/test/test_files.h"

#include <algorithm>
#include <exception>
#include <ios>
#include <tuple>
#include <utility>

namespace pozhil::language_server {

using tools::Finding;

SourcePtr OpenTexts::load(const std::string& path) const {
    const std::string key = SecondImports::keyOf(path);
    asked_.insert(key);
    const auto found = sources_.find(key);
    if (found != sources_.end()) {
        return found->second;
    }
    return FileLoader().load(path);
}

std::set<std::string> OpenTexts::takeAsked() {
    return std::exchange(asked_, {});
}

Workspace::Workspace() {
    options_.moduleDirectories = settings::moduleDirectories(platform::executableDirectory().u8string());
    options_.loader = &texts_;
}

void Workspace::open(const std::string& uri, std::string text, std::int64_t version) {
    close(uri);
    const std::string path = pathOf(uri);
    OpenDocument opened;
    opened.key = SecondImports::keyOf(path);
    opened.document = std::make_shared<Document>(uri, path, ClientText(std::move(text), encoding_), version);
    texts_.set(opened.key, opened.document->source());
    uris_[opened.key] = uri;
    markStale(opened.key);
    documents_[uri] = std::move(opened);
}

void Workspace::change(const std::string& uri, ClientText text, std::int64_t version) {
    OpenDocument& changed = documents_.at(uri);
    changed.document->set(std::move(text), version);
    texts_.set(changed.key, changed.document->source());
    markStale(changed.key);
    changed.isStale = true;
}

void Workspace::close(const std::string& uri) {
    const auto found = documents_.find(uri);
    if (found == documents_.end()) {
        return;
    }
    const std::string key = found->second.key;
    outlines_.erase(found->second.document->source()->path);
    documents_.erase(found);
    texts_.remove(key);
    uris_.erase(key);
    // A file may be open under several names.
    const auto same =
        std::find_if(documents_.begin(), documents_.end(), [&](const auto& entry) { return entry.second.key == key; });
    if (same != documents_.end()) {
        texts_.set(key, same->second.document->source());
        uris_[key] = same->first;
    }
    markStale(key);
}

void Workspace::fileChanged(const std::string& uri) {
    markStale(SecondImports::keyOf(pathOf(uri)));
}

const Document* Workspace::find(const std::string& uri) const {
    const auto found = documents_.find(uri);
    return found == documents_.end() ? nullptr : found->second.document.get();
}

/// What depends on this source is to be checked again.
void Workspace::markStale(const std::string& key) {
    hasNews_ = true;
    for (auto& [uri, document] : documents_) {
        document.isStale = document.isStale || document.asked.count(key) != 0;
    }
}

void Workspace::checkStale() {
    for (auto& [uri, document] : documents_) {
        if (!document.isStale) {
            continue;
        }
        texts_.takeAsked();
        try {
            const SourcePtr source = document.document->source();
            options_.isTest = tools::isTestFile(source->path);
            document.findings = tools::checkSource(source, options_, settings::showsHints());
        } catch (const std::ios_base::failure&) {
            // An imported file that can be opened but not read ends the check: what was told before still stands.
        }
        document.asked = texts_.takeAsked();
        document.isStale = false;
    }
}

/// What another open source imports is checked as a part of that, unless both import each other.
bool Workspace::isPartOfAnother(const OpenDocument& document) const {
    return std::any_of(documents_.begin(), documents_.end(), [&](const auto& entry) {
        const OpenDocument& other = entry.second;
        return other.key != document.key && other.asked.count(document.key) != 0 &&
               document.asked.count(other.key) == 0;
    });
}

void Workspace::addFinding(std::map<std::string, Verdict>& all, const OpenDocument& of, const Finding& finding) const {
    std::string uri = of.document->uri();
    if (finding.place.source != nullptr && finding.place.source->path != of.document->source()->path) {
        const auto open = uris_.find(SecondImports::keyOf(finding.place.source->path));
        uri = open != uris_.end() ? open->second : uriOf(finding.place.source->path);
    }
    const auto identity = [](const Finding& told) {
        return std::tie(told.place.range.begin, told.place.range.end, told.text.code, told.text.message);
    };
    Verdict& verdict = all[uri];
    const bool isKnown = std::any_of(verdict.findings.begin(), verdict.findings.end(),
                                     [&](const Finding& other) { return identity(other) == identity(finding); });
    if (!isKnown) {
        verdict.findings.push_back(finding);
    }
}

std::map<std::string, Verdict> Workspace::verdicts() const {
    std::map<std::string, Verdict> all;
    for (const auto& [uri, document] : documents_) {
        all[uri]; // also what nothing is wrong with
        if (!isPartOfAnother(document)) {
            for (const Finding& finding : document.findings) {
                addFinding(all, document, finding);
            }
        }
    }
    for (auto& [uri, verdict] : all) {
        verdict.uri = uri;
        verdict.document = find(uri);
    }
    return all;
}

std::vector<Verdict> Workspace::takeVerdicts() {
    checkStale();
    hasNews_ = false;
    std::map<std::string, Verdict> all = verdicts();
    for (const std::string& uri : std::exchange(told_, {})) {
        all[uri].uri = uri; // to take back what no longer holds
    }
    std::vector<Verdict> told;
    for (auto& [uri, verdict] : all) {
        if (!verdict.findings.empty()) {
            told_.insert(uri);
        }
        told.push_back(std::move(verdict));
    }
    return told;
}

std::shared_ptr<const Outline> Workspace::outlineOf(const SourcePtr& source) const {
    std::shared_ptr<const Outline>& outline = outlines_[source->path];
    // Files are read anew each time, and seldom differ from what they were.
    const bool isKnown =
        outline != nullptr && (outline->scanned.source == source ||
                               (outline->scanned.source != nullptr && outline->scanned.source->text == source->text));
    if (!isKnown) {
        outline = std::make_shared<const Outline>(language_server::outlineOf(source));
    }
    return outline;
}

std::vector<SourcePtr> Workspace::openSources() const {
    std::vector<SourcePtr> sources;
    for (const auto& [uri, document] : documents_) {
        sources.push_back(document.document->source());
    }
    return sources;
}

std::shared_ptr<const Document> Workspace::documentOf(const SourcePtr& source) const {
    const auto open = uris_.find(SecondImports::keyOf(source->path));
    if (open != uris_.end()) {
        return documents_.at(open->second).document;
    }
    return std::make_shared<Document>(uriOf(source->path), source->path, ClientText(source->text, encoding_), 0);
}

} // namespace pozhil::language_server
