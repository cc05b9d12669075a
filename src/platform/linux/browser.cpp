#include "platform/browser.h"

#include "platform/environment.h"
#include "platform/process.h"

namespace pozhil::platform {

void openInBrowser(const std::string& address) {
    Command command;
    command.arguments = splitWords(environmentVariable("BROWSER").value_or(""));
    if (command.arguments.empty()) {
        command.arguments = {"xdg-open"};
    } else if (command.arguments.front() == "none") {
        return;
    }
    command.arguments.push_back(address);
    startInBackground(command);
}

} // namespace pozhil::platform
