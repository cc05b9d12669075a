#pragma once

#include "diagnostics/fault_log.h"
#include "parser/token_cursor.h"

#include <cstddef>
#include <vector>

namespace pozhil {

/// Goes on after faults, for whoever asks for more than the first one.
class Recovery {
public:
    /// \param cursor of the file that is parsed
    /// \param scanned the file, with the faults that its scan went on after; outlives the recovery
    /// \param log takes the faults; null to let the first one through
    Recovery(TokenCursor& cursor, const ScannedSource& scanned, FaultLog* log)
        : cursor_(cursor), scanned_(scanned), log_(log) {}

    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    FaultLog* log() const { return log_; }

    /// What the statements of a block stand in.
    enum class Enclosure { Indentation, Brackets };

    /// Runs \p parse for one statement, which begins at the cursor. After a fault the next statement of the same block
    /// is at the cursor, or the end of the block.
    template <class Parse> void attemptStatement(const Parse& parse, Enclosure enclosure = Enclosure::Indentation) {
        const int level = cursor_.indentation();
        attempt(parse, [&](std::size_t first) { skipStatement(first, level, enclosure); });
    }

    /// Runs \p parse for one item of a bracketed list, which begins at the cursor. After a fault the next item is at the
    /// cursor, or the end of the list.
    /// \param level of the line that opened the list
    template <class Parse> void attemptItem(int level, const Parse& parse) {
        attempt(parse, [&](std::size_t first) { skipItem(first, level); });
    }

    /// Notes the faults of the scan up to the cursor, so that all faults come in the order of the text.
    void noteScanFaults();

private:
    template <class Parse, class Skip> void attempt(const Parse& parse, const Skip& skip) {
        if (log_ == nullptr) {
            parse();
            return;
        }
        const std::size_t first = cursor_.position();
        try {
            parse();
        } catch (const Fault& fault) {
            note(fault);
            skip(first);
        }
    }

    void note(const Fault& fault);
    void noteScanFaultsBefore(std::uint32_t end);
    void skipStatement(std::size_t first, int level, Enclosure enclosure);
    bool atNextStatement(int level) const;
    void skipItem(std::size_t first, int level);

    TokenCursor& cursor_;
    const ScannedSource& scanned_;
    FaultLog* log_;
    std::size_t notedScanFaults_ = 0;
};

} // namespace pozhil
