#include "support/diagnosis.h"

#include "child_process.h"
#include "driver/console/fault_report.h"

#include <exception>
#include <sstream>

namespace pozhil::test {

std::string diagnosisOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault.form == FaultForm::StageLine ? "exception " + messageOf(fault)
                                                  : fault.code + " வரி " + std::to_string(fault.line);
    } catch (const std::exception& exception) {
        return std::string("exception ") + exception.what();
    }
    return "none";
}

std::string reportOf(const std::function<void()>& work) {
    return runInChild([&] {
               try {
                   work();
               } catch (const Fault& fault) {
                   reportFault(fault);
               }
           })
        .output;
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
