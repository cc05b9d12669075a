#pragma once

#include "base/source_loader.h"
#include "front_end/front_end.h"

#include <string>

namespace pozhil::playground {

/// What the page of the playground asks of the compiler: texts in, texts out. No file is read and nothing is run.
///
/// Answers are JSON. Texts may be any bytes.
class Playground {
public:
    Playground();

    /// Makes a module known that programs may import.
    /// \param path below the folder of modules, such as "பட்டியல்.பொழில்"
    void addModule(const std::string& path, const std::string& text);

    /// The number of the edition that a program is written in.
    static int editionOf(const std::string& program);

    /// What is wrong with a program, in the words and with the places of `பொழில் சரிபார் --json`.
    std::string check(const std::string& program) const;

    /// Sets a program in the one style: its whole text as "text", and as "result" "formatted", or, if that is the text as it
    /// was, "faulty" or "not-understood".
    std::string format(const std::string& program) const;

    /// What is known of a fault.
    /// \param code such as "பொழி-304"
    /// \return "null" if there is none
    static std::string explain(const std::string& code);

private:
    MemoryLoader modules_;
    FrontEndOptions options_;
};

} // namespace pozhil::playground
