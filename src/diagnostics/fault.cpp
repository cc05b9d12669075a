#include "diagnostics/fault.h"

#include "error_codes.h"

namespace pozhil {
namespace {

std::string inBrackets(const std::string& details) {
    return details.empty() ? "" : " (" + details + ")";
}

} // namespace

std::string descriptionOf(const Fault& fault) {
    return பிழை_அகராதி.at(fault.code).விளக்கம் + inBrackets(fault.details);
}

std::string messageOf(const Fault& fault) {
    const பிழைதகவல்& entry = பிழை_அகராதி.at(fault.code);
    return fault.code + ": " + entry.விளக்கம் + " - " + entry.தீர்வு + inBrackets(fault.details);
}

} // namespace pozhil
