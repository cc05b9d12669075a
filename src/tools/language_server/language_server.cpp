#include "tools/language_server/server.h"
#include "tools/word.h"

#include <iostream>

namespace pozhil::tools {
namespace {

constexpr const char* HELP = R"(பொழில் மொழிச்சேவை

ஓர் எழுதும் செயலிக்கு (editor) நிரல்களைப் பற்றிச் சொல்லும்: எழுதும்போதே பிழைகளும் குறிப்புகளும், சொற்களின் விளக்கம், எழுத
வேண்டியதைப் பரிந்துரைத்தல் முதலியன. எழுதும் செயலியே இதைத் தொடங்கி, உள்ளீட்டோட்டத்திலும் வெளியீட்டோட்டத்திலும் LSP நெறிமுறையில்
பேசும்.

முடிவு நிலை: 0 எழுதும் செயலி முறையாக விடைபெற்றது, 1 அது சொல்லாமல் போய்விட்டது, 2 தவறான பயன்பாடு.

pozhil lsp

Tells an editor of programs: faults and hints while they are written, what words mean, what may be written. The editor starts
it and talks to it over standard input and output, in the Language Server Protocol.

Exit status: 0 the editor took its leave, 1 it vanished, 2 wrong use.
)";

/// \param arguments "--stdio", which many editors add, is what happens anyway
int serve(const std::vector<std::string>& arguments) {
    for (const std::string& argument : arguments) {
        if (argument != "--stdio") {
            std::cerr << "பிழை: '" << argument << "' என்ற தேர்வு இங்கே இல்லை! உதவிக்கு: பொழில் மொழிச்சேவை --உதவி" << std::endl;
            return WRONG_USE;
        }
    }
    return language_server::Server().run();
}

} // namespace

const Word LANGUAGE_SERVER = {
    "மொழிச்சேவை", "lsp", "எழுதும் செயலிகளுக்கு நிரல்களைப் பற்றிச் சொல்", "tell editors of programs while they are written",
    HELP,        serve,
};

} // namespace pozhil::tools
