#include "parser/second/parser.h"

#include "parser/second/file_parse.h"
#include "scanner/second/scanner.h"

namespace pozhil::second {

Program parseFile(const SourcePtr& source, NodePlaces& places, SecondFaults& faults, Unread& unread) {
    SecondFaults scanFaults;
    const ScannedSource scanned = scanSecondEdition(source, scanFaults);
    FileParse parse(scanned, std::move(scanFaults), places, faults, unread);
    return parse.statements.parseProgram();
}

} // namespace pozhil::second
