#include "driver/console/second_fault_report.h"
#include "driver/second_translation.h"
#include "driver/settings.h"
#include "driver/translation.h"
#include "driver/web/web_text.h"
#include "front_end/front_end.h"
#include "front_end/second_edition.h"
#include "platform/interrupt.h"
#include "platform/paths.h"
#include "tools/publish/messages.h"
#include "tools/publish/site_build.h"
#include "tools/publish/site_folder.h"
#include "tools/word.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* HELP =
    R"(பொழில் வெளியிடு <கோப்பு.பொழில்> [--அடைவு <அடைவு>]

வலைச் செயலியைச் சிறிதாகத் தொகுத்து, எந்த வலை வழங்கியிலும், எந்த அடைவிலும் ஏற்றக்கூடிய ஒரே கோப்புறையாக்கும்.
அடைவைச் சொல்லாவிட்டால், கோப்பின் பெயரோடு '_தளம்' சேர்ந்த பெயரில் இப்போதைய அடைவில் உருவாகும். அந்தப் பெயரில்
ஏற்கெனவே உள்ளதைப் பொழில் உருவாக்கியிருந்தால் மட்டுமே மாற்றும்.

முடிவு நிலை: 0 வெற்றி, 1 நிரலில் பிழை, 2 தவறான பயன்பாடு, 3 இந்தக் கணினியில் ஏதோ குறை.

pozhil publish <file.பொழில்> [--dir <folder>]

Builds a web application for its smallest size, as one folder that any web host can serve from any path. Without a
folder it is made in the current directory, with the name of the file and '_தளம்'. What is there under that name is
replaced only if this command has made it.

Exit status: 0 success, 1 a fault in the program, 2 wrong use, 3 something is wrong on this machine.
)";

/// What is to be published, and where to.
struct Order {
    std::string source;
    std::string folder;
};

bool isFolderSwitch(const std::string& argument) {
    return argument == "--அடைவு" || argument == "--dir";
}

/// Tells what is wrong with the arguments, if anything is.
std::optional<Order> readOrder(const std::vector<std::string>& arguments) {
    Order order;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (isFolderSwitch(argument)) {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                printWrongUse("'" + argument + "' என்பதன் பின் ஓர் அடைவின் பெயர் வேண்டும்!");
                return std::nullopt;
            }
            order.folder = arguments[++i];
        } else if (argument.rfind("--", 0) == 0) {
            printWrongUse("'" + argument + "' என்ற தேர்வு இங்கே இல்லை!");
            return std::nullopt;
        } else if (!order.source.empty()) {
            printWrongUse("ஒரே ஒரு கோப்பைச் சொல்லவும்; '" + argument + "' இரண்டாவது!");
            return std::nullopt;
        } else {
            order.source = argument;
        }
    }
    if (order.source.empty()) {
        printWrongUse("எந்தக் கோப்பை வெளியிட வேண்டும்?");
        return std::nullopt;
    }
    if (order.folder.empty()) {
        order.folder = fs::u8path(order.source).stem().u8string() + "_தளம்";
    }
    return order;
}

ExitStatus makeSite(const WebText& text, const SiteFolder& site) {
    const platform::EndingText farewell(INTERRUPTED);
    Workshop workshop(site.place());
    const fs::path made = workshop.folder() / "site";
    const fs::path work = workshop.folder() / "work";
    fs::create_directory(made);
    fs::create_directory(work);
    switch (buildSite(text, work, made)) {
    case BuildResult::Refused: return FAULT_IN_SOURCE;
    case BuildResult::Failed: return FAILED;
    case BuildResult::Done: break;
    }
    workshop.close();
    site.replaceWith(made);
    return DONE;
}

ExitStatus publishText(const WebText& text, const SiteFolder& site) {
    const ExitStatus status = makeSite(text, site);
    if (status == DONE) {
        printSizes(site.place());
        text.reportHints();
    }
    return status;
}

ExitStatus publishFirstEdition(SourcePtr source, const FrontEndOptions& options, const SiteFolder& site) {
    const std::string path = source->path;
    const ParsedSource parsed = parseSource(std::move(source), options);
    if (!isWebProgram(parsed.program)) {
        printNoApplication(path);
        return WRONG_USE;
    }
    const OutputText output = generateText(parsed);
    return publishText(webTextOf(parsed, output), site);
}

ExitStatus publishSecondEdition(SourcePtr source, const FrontEndOptions& options, const SiteFolder& site) {
    const std::string path = source->path;
    const SecondTranslation translation = translateSecondEdition(std::move(source), options);
    if (!translation.faults.empty()) {
        reportFaults(translation.faults);
        return FAULT_IN_SOURCE;
    }
    if (!translation.application) {
        printNoApplication(path);
        return WRONG_USE;
    }
    return publishText(webTextOf(translation), site);
}

int publish(const std::vector<std::string>& arguments) {
    const auto order = readOrder(arguments);
    if (!order) {
        return WRONG_USE;
    }
    FrontEndOptions options;
    options.moduleDirectories = settings::moduleDirectories(platform::executableDirectory().u8string());
    SourcePtr source = loadSource(order->source, options);
    if (source == nullptr) {
        printMissingSource(order->source);
        return WRONG_USE;
    }
    SecondFaults editionFaults;
    const Edition edition = editionOf(source, editionFaults);
    if (!editionFaults.empty()) {
        reportFaults(editionFaults);
        return FAULT_IN_SOURCE;
    }
    const SiteFolder site(fs::u8path(order->folder));
    if (const auto problem = site.problem()) {
        printProblem(*problem);
        return problem->kind == FolderProblem::Kind::Unwritable ? FAILED : WRONG_USE;
    }
    printStep("நிரல் படிக்கப்படுகிறது");
    return edition == Edition::Second ? publishSecondEdition(std::move(source), options, site)
                                      : publishFirstEdition(std::move(source), options, site);
}

} // namespace

const Word PUBLISH = {
    "வெளியிடு",
    "publish",
    "வலைச் செயலியை எந்த வலை வழங்கியிலும் ஏற்றக்கூடிய கோப்புறையாக்கு",
    "build a web application as a folder for any web host",
    HELP,
    publish,
};

} // namespace pozhil::tools
