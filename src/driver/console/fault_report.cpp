#include "driver/console/fault_report.h"

#include "error_codes.h"

namespace pozhil {

void reportFault(const Fault& fault) {
    ErrorHandler::அறிக்கை(fault.category, fault.code, descriptionOf(fault), fault.file, fault.line, fault.lineText,
                         பிழை_அகராதி.at(fault.code).தீர்வு);
}

} // namespace pozhil
