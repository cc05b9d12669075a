#pragma once

#include "base/source_place.h"
#include "tools/language_server/client_text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pozhil::language_server {

/// A source as a client sees it, together with the same source as the stages of the compiler see it.
class Document {
public:
    /// \param uri what the client calls it
    /// \param path where it is, or would be, on this machine
    Document(std::string uri, std::string path, ClientText text, std::int64_t version);

    const std::string& uri() const { return uri_; }
    std::int64_t version() const { return version_; }
    const ClientText& text() const { return text_; }

    /// Without carriage returns and byte order mark, under its path.
    const SourcePtr& source() const { return source_; }

    /// Takes a newer text.
    void set(ClientText text, std::int64_t version);

    /// Where a part of the source stands for the client.
    Range rangeOf(ByteRange range) const;

    /// The byte of the source at a place of the client.
    std::size_t sourceOffsetAt(Position position) const;

private:
    Position positionOf(std::size_t sourceOffset) const;

    std::string uri_;
    std::string path_;
    ClientText text_;
    std::int64_t version_;
    SourcePtr source_;
    /// Bytes of the text that the source doesn't have, ascending.
    std::vector<std::size_t> dropped_;
    /// For each of them, before which byte of the source it stood.
    std::vector<std::size_t> sourcePlacesOfDropped_;
};

} // namespace pozhil::language_server
