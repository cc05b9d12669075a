#include "tools/new/starter_files.h"
#include "tools/word.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* HELP =
    R"(பொழில் புதிது <பெயர்> [--வலை] [--பதிப்பு 1]

அந்தப் பெயரில் ஓர் அடைவை உருவாக்கி, அதில் ஒரு நிரலையும் (முதன்மை.பொழில்), அதன் செயல்களையும், அவற்றின் சோதனையையும், README.md,
.editorconfig, .gitignore ஆகியவற்றையும் வைக்கும். அந்தப் பெயரில் ஏதாவது ஏற்கெனவே இருந்தால் அதைத் தொடாது.

  --வலை          ஒரு வலைச் செயலி
  --பதிப்பு 1     மொழியின் முதல் பதிப்பில்; இல்லாவிட்டால் இரண்டாம் பதிப்பில்

முடிவு நிலை: 0 வெற்றி, 2 தவறான பயன்பாடு, 3 எழுத முடியவில்லை.

pozhil new <name> [--web] [--edition 1]

Makes a folder of that name with a program in it (முதன்மை.பொழில்), its functions and their test, README.md, .editorconfig
and .gitignore. What is there already under that name is left alone.

  --web            a web application
  --edition 1      in the first edition of the language, not in the second

Exit status: 0 success, 2 wrong use, 3 it can't be written.
)";

struct Order {
    fs::path folder;
    ProjectKind kind;
};

std::nullopt_t refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் புதிது --உதவி" << std::endl;
    return std::nullopt;
}

std::optional<bool> isSecondEdition(const std::string& number) {
    if (number == "1" || number == "௧") {
        return false;
    }
    if (number == "2" || number == "௨") {
        return true;
    }
    return std::nullopt;
}

/// Tells what is wrong with the arguments, if anything is.
std::optional<Order> readOrder(const std::vector<std::string>& arguments) {
    Order order;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--வலை" || argument == "--web") {
            order.kind.isApplication = true;
        } else if (argument == "--பதிப்பு" || argument == "--edition") {
            const auto edition = i + 1 < arguments.size() ? isSecondEdition(arguments[++i]) : std::nullopt;
            if (!edition) {
                return refuse("'" + argument + "' என்பதன் பின் 1 அல்லது 2 வேண்டும்!");
            }
            order.kind.isSecondEdition = *edition;
        } else if (argument.rfind("--", 0) == 0) {
            return refuse("'" + argument + "' என்ற தேர்வு இங்கே இல்லை!");
        } else if (!order.folder.empty()) {
            return refuse("ஒரே ஒரு பெயரைச் சொல்லவும்; '" + argument + "' இரண்டாவது!");
        } else {
            order.folder = fs::u8path(argument);
        }
    }
    if (!order.folder.has_filename() && order.folder.has_parent_path()) {
        order.folder = order.folder.parent_path(); // "பெயர்/"
    }
    if (!order.folder.has_filename()) {
        return refuse("புதிய அடைவுக்கு ஒரு பெயர் வேண்டும்!");
    }
    return order;
}

/// As a shell takes it for one word, if it could take it for anything else.
std::string shellWord(const std::string& text) {
    if (text.find_first_of(" \t\n\r\"'\\$`&|;<>()[]{}*?!#~^=%") == std::string::npos) {
        return text;
    }
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? "'\\''" : std::string(1, c);
    }
    return quoted + "'";
}

/// \return whether all of it could be written
bool writeFile(const fs::path& path, const std::string& text) {
    std::error_code ignored; // a folder that isn't there shows with the file
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    return !file.fail();
}

int tellUnwritable(const fs::path& folder) {
    std::cerr << "பிழை: '" << folder.u8string() << "' என்ற அடைவை உருவாக்க முடியவில்லை!" << std::endl;
    return FAILED;
}

int makeProject(const std::vector<std::string>& arguments) {
    const std::optional<Order> order = readOrder(arguments);
    if (!order) {
        return WRONG_USE;
    }
    std::error_code error;
    if (fs::exists(fs::symlink_status(order->folder, error))) {
        refuse("'" + order->folder.u8string() + "' ஏற்கெனவே இருக்கிறது!");
        return WRONG_USE;
    }
    // Whoever else makes it at the same time keeps theirs.
    if (!fs::create_directory(order->folder, error)) {
        return tellUnwritable(order->folder);
    }
    for (const StarterFile& file : starterFiles(order->folder.filename().u8string(), order->kind)) {
        if (!writeFile(order->folder / fs::u8path(file.name), file.text)) {
            fs::remove_all(order->folder, error);
            return tellUnwritable(order->folder);
        }
    }
    std::cout << "✅ புதிய அடைவு: " << order->folder.u8string() << "\n👉 cd " << shellWord(order->folder.u8string())
              << "; பொழில் ஓட்டு முதன்மை.பொழில்" << std::endl;
    return DONE;
}

} // namespace

const Word NEW = {
    "புதிது", "new", "புதிய நிரலுக்கான அடைவை உருவாக்கு", "make a folder for a new program", HELP, makeProject,
};

} // namespace pozhil::tools
