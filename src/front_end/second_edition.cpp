#include "front_end/second_edition.h"

#include "front_end/second_imports.h"
#include "parser/second/parser.h"
#include "parser/tree/second_edition.h"
#include "scanner/second/edition_marker.h"
#include "scanner/second/fault_numbers.h"

#include <algorithm>
#include <deque>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace pozhil {
namespace {

constexpr const char* FIRST_EDITION = "1";

/// Reads a program file by file.
class ProgramReader {
public:
    explicit ProgramReader(const FrontEndOptions& options) : imports_(options) {}

    SecondProgram read(SourcePtr source) {
        readFile(std::move(source));
        return assemble();
    }

private:
    /// A file, known by the number of its discovery: its index is settled when all that it imports is read.
    struct Reading {
        SecondFile file;
        SecondFaults faults;
        std::size_t index = 0;
    };

    std::size_t readFile(SourcePtr source) {
        const std::size_t number = readings_.size();
        numbers_[SecondImports::keyOf(source->path)] = number;
        Reading& reading = readings_.emplace_back();
        reading.file.source = source;
        editionOf(source, reading.faults);
        reading.file.unread.hasRest = !reading.faults.empty();
        reading.file.tree = second::parseFile(source, program_.places, reading.faults, reading.file.unread);
        for (const StatementPtr& statement : reading.file.tree.statements) {
            if (const auto* import = nodeCast<ImportStatement>(statement.get())) {
                readImport(*import, number);
            }
        }
        reading.index = order_.size();
        order_.push_back(number);
        return number;
    }

    void readImport(const ImportStatement& import, std::size_t importer) {
        Reading& reading = readings_[importer];
        SourcePtr source = imports_.load(import.path, reading.file.source->path);
        if (source == nullptr) {
            const SourcePlace place = program_.places.of(import).value_or(SourcePlace{reading.file.source, {}});
            reading.faults.push_back({second::fault::NO_SUCH_FILE, place, {import.path}, ""});
            reading.file.unread.parts.push_back({place.range, {}, {}, true});
            return;
        }
        const auto known = numbers_.find(SecondImports::keyOf(source->path));
        const std::size_t number = known == numbers_.end() ? readFile(std::move(source)) : known->second;
        std::vector<std::size_t>& imports = reading.file.imports;
        if (number != importer && std::find(imports.begin(), imports.end(), number) == imports.end()) {
            imports.push_back(number);
            reading.file.importStatements.push_back(&import);
        }
    }

    SecondProgram assemble() {
        for (const std::size_t number : order_) {
            Reading& reading = readings_[number];
            for (std::size_t& import : reading.file.imports) {
                import = readings_[import].index;
            }
            std::stable_sort(
                reading.faults.begin(), reading.faults.end(),
                [](const SecondFault& a, const SecondFault& b) { return a.place.range.begin < b.place.range.begin; });
            program_.faults.insert(program_.faults.end(), reading.faults.begin(), reading.faults.end());
            program_.files.push_back(std::move(reading.file));
        }
        program_.faults.resize(std::min(program_.faults.size(), MAX_FOUND_FAULTS));
        return std::move(program_);
    }

    SecondImports imports_;
    SecondProgram program_;
    /// They stay where they are while others are added.
    std::deque<Reading> readings_;
    /// Numbers of files by what tells them apart.
    std::map<std::string, std::size_t> numbers_;
    /// Numbers in the order in which the files run.
    std::vector<std::size_t> order_;
};

} // namespace

Edition editionOf(const SourcePtr& source, SecondFaults& faults) {
    const std::string_view text = source->text;
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::optional<std::string> number = second::markedEdition(text.substr(0, end));
    if (number == second::SECOND_EDITION) {
        return Edition::Second;
    }
    if (number && number != FIRST_EDITION) {
        const ByteRange range{0, static_cast<std::uint32_t>(end)};
        faults.push_back({second::fault::UNKNOWN_EDITION, {source, range}, {*number}, ""});
    } else if (const std::optional<ByteRange> range = second::lateMarker(text)) {
        faults.push_back({second::fault::EDITION_TOO_LATE, {source, *range}, {}, ""});
    }
    return Edition::First;
}

bool isAlmostMarked(const SourceText& source) {
    return second::isAlmostMarker(std::string_view(source.text).substr(0, source.text.find('\n')));
}

bool isReadThrough(const SecondProgram& program) {
    return std::none_of(program.files.begin(), program.files.end(),
                        [](const SecondFile& file) { return file.unread.hasRest; });
}

SecondProgram parseSecondEdition(SourcePtr source, const FrontEndOptions& options) {
    SecondProgram program = ProgramReader(options).read(std::move(source));
    program.isTest = options.isTest;
    return program;
}

} // namespace pozhil
