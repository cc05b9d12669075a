#pragma once

#include "emit/emitted_block.h"
#include "emit/origins.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

namespace pozhil {

/// The emitted text as it grows, and the level of indentation that it has reached.
class CodeWriter {
public:
    CodeWriter() = default;
    CodeWriter(const CodeWriter&) = delete;
    CodeWriter& operator=(const CodeWriter&) = delete;

    /// Goes on with \p piece where the text ends.
    template <class Piece> CodeWriter& operator<<(const Piece& piece) {
        out_ << piece;
        return *this;
    }

    /// What fills a hole, where the text ends.
    CodeWriter& operator<<(const Filling& filling) {
        filling.writeTo(out_);
        return *this;
    }

    /// The blanks in front of a line of the present level.
    void indent();
    std::size_t indentation() const;

    /// Writes a block with holes at the present level (writeBlock in emitted_block.h).
    void block(const Block& block, const Holes& holes = {}, const Holes& standing = {});

    /// Writes a block with holes that isn't indented, whatever the present level.
    void blockAtMargin(const Block& block, const Holes& holes = {});

    /// Goes on with a pattern with holes where the text ends (writeInline in emitted_block.h).
    void pattern(const Block& pattern, const WriteHole& writeHole);

    /// How many bytes have been written.
    std::size_t length() { return static_cast<std::size_t>(out_.tellp()); }
    std::string text() const { return out_.str(); }

    std::int32_t level() const { return level_; }

    /// Another level of indentation until the end of the scope.
    class Indented {
    public:
        /// \param levels how many levels deeper
        explicit Indented(CodeWriter& writer, std::int32_t levels = 1) : writer_(writer), outer_(writer.level_) {
            writer_.level_ += levels;
        }
        ~Indented() { writer_.level_ = outer_; }
        Indented(const Indented&) = delete;
        Indented& operator=(const Indented&) = delete;

    private:
        CodeWriter& writer_;
        const std::int32_t outer_;
    };

    /// Notes that what is written until the end of the scope is written for a node of the program.
    class For {
    public:
        For(CodeWriter& writer, const void* node) : writer_(writer) { writer_.origins_.begin(writer_.length(), node); }
        ~For() { writer_.origins_.end(writer_.length()); }
        For(const For&) = delete;
        For& operator=(const For&) = delete;

    private:
        CodeWriter& writer_;
    };

    const Origins& origins() const { return origins_; }

private:
    std::ostringstream out_;
    std::int32_t level_ = 0;
    Origins origins_;
};

} // namespace pozhil
