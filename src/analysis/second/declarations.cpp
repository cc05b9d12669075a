#include "analysis/second/declarations.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/suggestions.h"
#include "front_end/second_edition.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

/// Gathers what one file sees.
class Linking {
public:
    /// A definition by its file and place.
    using Key = std::pair<std::uint32_t, std::uint32_t>;
    /// Clashes that were told, so that who imports the importer isn't told again.
    using Told = std::set<std::pair<Key, Key>>;

    Linking(Model& model, std::size_t file, Told& told)
        : model_(model), file_(file), told_(told), isSeen_(model.source.files.size()) {}

    void link() {
        model_.visible[file_] = model_.own[file_];
        isSeen_[file_] = true;
        const SecondFile& file = model_.source.files[file_];
        for (std::size_t index = 0; index < file.imports.size(); ++index) {
            importStatement_ = file.importStatements[index];
            see(file.imports[index]);
        }
    }

private:
    /// A stack of its own: a chain of imports may be long.
    void see(std::size_t imported) {
        std::vector<std::size_t> waiting = {imported};
        while (!waiting.empty()) {
            const std::size_t file = waiting.back();
            waiting.pop_back();
            if (isSeen_[file]) {
                continue;
            }
            isSeen_[file] = true;
            bring(file);
            const auto& further = model_.source.files[file].imports;
            waiting.insert(waiting.end(), further.rbegin(), further.rend());
        }
    }

    void bring(std::size_t file) {
        for (const auto& [name, definition] : model_.own[file]) {
            const auto [known, isNew] = model_.visible[file_].emplace(name, definition);
            if (!isNew) {
                tellClash(name, known->second, definition);
            }
        }
    }

    void tellClash(std::string_view name, const Definition& first, const Definition& second) {
        const auto pathOf = [&](const Definition& one) { return model_.source.files[one.place.file].source->path; };
        const auto key = [](const Definition& one) { return std::make_pair(one.place.file, one.place.range.begin); };
        if (!told_.emplace(key(first), key(second)).second) {
            return;
        }
        const bool isOwn = first.place.file == file_;
        const resolved::Place place = isOwn ? first.place : model_.locations.of(file_, importStatement_);
        const std::string firstName = fileName(pathOf(first));
        const std::string secondName = fileName(pathOf(second));
        const bool areAlike = firstName == secondName;
        model_.faults.add(
            fault::CLASHING_IMPORTS, place,
            {std::string(name), areAlike ? pathOf(first) : firstName, areAlike ? pathOf(second) : secondName});
    }

    Model& model_;
    std::size_t file_;
    Told& told_;
    std::vector<bool> isSeen_;
    /// By which the file imports, also when it is about a file that the imported one imports in turn.
    const ImportStatement* importStatement_ = nullptr;
};

} // namespace

void linkImports(Model& model) {
    Linking::Told told;
    for (std::size_t file = 0; file < model.source.files.size(); ++file) {
        Linking(model, file, told).link();
    }
}

} // namespace pozhil::second
