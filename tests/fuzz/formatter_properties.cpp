/// Formats all programs below some folders, and each of them in other layouts, and holds the formatter to what it promises:
///
///   formatter_properties <layouts> <seed> <folder>...
///
/// \return 1 if a promise doesn't hold

#include "formatting_check.h"
#include "layout_mangler.h"

#include "base/text.h"
#include "formatter/formatter.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

using namespace pozhil;

namespace {

namespace fs = std::filesystem;

struct Counts {
    int programs = 0;
    int formatted = 0;
    int layouts = 0;
    int failures = 0;
};

class Properties {
public:
    Properties(int layouts, unsigned seed) : layouts_(layouts), mangler_(seed) {}

    void check(const SourcePtr& source) {
        ++counts_.programs;
        const FormattedSource formatted = checked(source);
        if (formatted.result == FormatResult::NotUnderstood && !mayBeLeft(source->text)) {
            fail(source, "programs are understood", source->text);
        }
        if (formatted.result != FormatResult::Formatted) {
            return;
        }
        ++counts_.formatted;
        const SourcePtr tidy = makeSource(source->path, formatted.text);
        for (int number = 0; number < layouts_; ++number) {
            checkLayout(tidy);
        }
    }

    const Counts& counts() const { return counts_; }

private:
    /// Other layouts have to come to the same form, unless they are none that the language takes.
    void checkLayout(const SourcePtr& tidy) {
        const SourcePtr untidy = makeSource(tidy->path, mangler_.mangled(tidy));
        const FormattedSource again = checked(untidy);
        if (again.result == FormatResult::NotUnderstood) {
            fail(tidy, "other layouts are understood", untidy->text);
        } else if (again.result == FormatResult::Formatted) {
            ++counts_.layouts;
            if (withoutBlankLines(again.text) != withoutBlankLines(tidy->text)) {
                fail(tidy, "other layouts come to the same form", untidy->text);
            }
        }
    }

    FormattedSource checked(const SourcePtr& source) {
        try {
            return checkFormatting(source);
        } catch (const std::exception& exception) {
            fail(source, exception.what(), source->text);
            return {FormatResult::Faulty, source->text};
        }
    }

    /// Tabs at the beginning of a line swallow letters in the first edition, and what comes after a NUL isn't read.
    static bool mayBeLeft(const std::string& text) {
        return text.find("\n\t") != std::string::npos || text.find('\0') != std::string::npos;
    }

    void fail(const SourcePtr& source, const std::string& promise, const std::string& text) {
        ++counts_.failures;
        std::cerr << source->path << ": " << promise << "\n" << text << "\n----\n";
    }

    static std::string withoutBlankLines(std::string text) {
        replaceAll(text, "\n\n", "\n");
        return text;
    }

    const int layouts_;
    LayoutMangler mangler_;
    Counts counts_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "formatter_properties <layouts> <seed> <folder>...\n";
        return 2;
    }
    Properties properties(std::atoi(argv[1]), static_cast<unsigned>(std::atoi(argv[2])));
    for (int index = 3; index < argc; ++index) {
        for (const auto& entry : fs::recursive_directory_iterator(fs::u8path(argv[index]))) {
            if (entry.is_regular_file() && endsWith(entry.path().u8string(), ".பொழில்")) {
                const std::string path = entry.path().u8string();
                properties.check(makeSource(path, readSourceText(path).value()));
            }
        }
    }
    const Counts& counts = properties.counts();
    std::cout << counts.programs << " programs, " << counts.formatted << " formatted, " << counts.layouts
              << " in other layouts, " << counts.failures << " failures\n";
    return counts.failures == 0 && counts.formatted > 0 ? 0 : 1;
}
