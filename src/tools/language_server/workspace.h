#pragma once

#include "base/source_loader.h"
#include "front_end/front_end.h"
#include "tools/check/finding.h"
#include "tools/language_server/document.h"
#include "tools/language_server/outline.h"

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::language_server {

/// What stands in the editor goes before what stands on the disk. Notes what was read.
class OpenTexts : public SourceLoader {
public:
    SourcePtr load(const std::string& path) const override;

    /// \param key SecondImports::keyOf its path
    void set(const std::string& key, SourcePtr source) { sources_[key] = std::move(source); }
    void remove(const std::string& key) { sources_.erase(key); }

    /// The keys of what was asked for since this was called last, whether it was there or not.
    std::set<std::string> takeAsked();

private:
    std::map<std::string, SourcePtr> sources_;
    // What was asked for is no part of what a loader promises to keep.
    mutable std::set<std::string> asked_;
};

/// What is known to be wrong with a source, all of it: what was told of it before no longer holds.
struct Verdict {
    std::string uri;
    /// The text that it is about; null for one that isn't open.
    const Document* document = nullptr;
    std::vector<tools::Finding> findings;
};

/// The open texts of a client, and what is wrong with them.
class Workspace {
public:
    Workspace();

    /// How the client counts characters; for texts that are opened from now on.
    void setEncoding(Encoding encoding) { encoding_ = encoding; }
    Encoding encoding() const { return encoding_; }

    /// The folder that the client has open, an absolute path; empty if it has none.
    void setFolder(std::string path) { folder_ = std::move(path); }
    const std::string& folder() const { return folder_; }

    /// Takes a text, also in the place of one that is open under this name.
    void open(const std::string& uri, std::string text, std::int64_t version);
    /// Takes a newer text of an open document.
    void change(const std::string& uri, ClientText text, std::int64_t version);
    void close(const std::string& uri);
    /// A file on the disk is another one now.
    void fileChanged(const std::string& uri);

    /// The open text of this name, null if there is none.
    const Document* find(const std::string& uri) const;

    /// Whether verdicts would tell anything new.
    bool hasNews() const { return hasNews_; }

    /// Looks through what has changed since the last time, and what imports it.
    /// \return those that say other than the last time; their documents live until the next change
    std::vector<Verdict> takeVerdicts();

    /// How sources are read, with the open texts before the files.
    const FrontEndOptions& frontEndOptions() const { return options_; }

    /// The text at a path as the stages would read it.
    /// \return null if there is none that can be read
    SourcePtr load(const std::string& path) const { return texts_.load(path); }

    /// What a source names; made once for each text.
    std::shared_ptr<const Outline> outlineOf(const SourcePtr& source) const;

    /// The sources that are open.
    std::vector<SourcePtr> openSources() const;

    /// The document of a source that the stages have read: an open one, or one that is made for it.
    std::shared_ptr<const Document> documentOf(const SourcePtr& source) const;

private:
    struct OpenDocument {
        std::string key;
        std::shared_ptr<Document> document;
        bool isStale = true;
        std::vector<tools::Finding> findings{};
        /// Keys of all that its findings depend on.
        std::set<std::string> asked{};
    };

    void markStale(const std::string& key);
    void checkStale();
    bool isPartOfAnother(const OpenDocument& document) const;
    std::map<std::string, Verdict> verdicts() const;
    void addFinding(std::map<std::string, Verdict>& all, const OpenDocument& of, const tools::Finding& finding) const;

    Encoding encoding_ = Encoding::Utf16;
    std::string folder_;
    OpenTexts texts_;
    FrontEndOptions options_;
    /// By URI.
    std::map<std::string, OpenDocument> documents_;
    /// The URI of each that is open, by key.
    std::map<std::string, std::string> uris_;
    /// URIs about which something was told that still stands.
    std::set<std::string> told_;
    bool hasNews_ = false;
    /// By path. What was made is no part of what the workspace holds.
    mutable std::map<std::string, std::shared_ptr<const Outline>> outlines_;
};

} // namespace pozhil::language_server
