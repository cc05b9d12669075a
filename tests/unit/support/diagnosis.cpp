#include "support/diagnosis.h"

#include "child_process.h"

#include <exception>
#include <iostream>
#include <regex>
#include <sstream>

#include <unistd.h>

namespace pozhil::test {
namespace {

/// Exit status of a child that an exception ended; no diagnostic ends with it.
constexpr int THROWN = 43;

ChildResult runCatching(const std::function<void()>& work) {
    return runInChild([&] {
        try {
            work();
        } catch (const std::exception& exception) {
            std::cout << exception.what() << std::flush;
            _exit(THROWN);
        }
    });
}

} // namespace

std::string diagnosisOf(const std::function<void()>& work) {
    const ChildResult child = runCatching(work);
    switch (child.exitStatus) {
    case -1: return "none";
    case -2: return "ended by a signal: " + child.errors;
    case THROWN: return "exception " + child.output;
    default: break;
    }
    static const std::regex place("\x1b\\[1;93m(பொழி-[0-9]+)[^]*?: (வரி -?[0-9]+)");
    std::smatch found;
    if (child.exitStatus != 1 || !std::regex_search(child.output, found, place)) {
        return "status " + std::to_string(child.exitStatus) + ": " + child.output + child.errors;
    }
    return found.str(1) + " " + found.str(2);
}

std::string reportOf(const std::function<void()>& work) {
    return runCatching(work).output;
}

std::vector<std::string> rowsOf(const std::string& report) {
    std::vector<std::string> rows;
    std::istringstream stream(report);
    for (std::string row; std::getline(stream, row);) {
        rows.push_back(row);
    }
    return rows;
}

} // namespace pozhil::test
