#include "generator/second/pages/page_program.h"

#include "emit/code_writer.h"
#include "generator/second/literals.h"
#include "generator/second/pages/page_edition.h"
#include "generator/second/pages/page_functions_text.h"
#include "generator/web/page/runtime_text.h"
#include "generator/web/page/web_emitter.h"
#include "generator/web/write/widget_properties.h"
#include "language/second/widgets.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::resolved::writer {
namespace {

namespace page = page_runtime;

Application applicationOf(const Program& program) {
    std::vector<const WebAppNode*> pages;
    pages.reserve(program.pages.size());
    for (const Page& page : program.pages) {
        pages.push_back(page.tree);
    }
    return readApplication(std::move(pages));
}

bool wantsStateKept(const Program& program) {
    return std::none_of(program.pages.begin(), program.pages.end(), [](const Page& page) {
        const WidgetNode* const header = asWidget(page.tree->header.get());
        const auto* const wish =
            header == nullptr
                ? nullptr
                : nodeCast<BooleanLiteral>(pozhil::findProperty(*header, {language::second::STATE_KEPT.data()}));
        return wish != nullptr && wish->value == "பொய்";
    });
}

} // namespace

EmittedLines PageProgram::head() const {
    EmittedLines lines;
    for (const std::string_view section :
         {page::page_headers, page::web_text_layer, page::page_state, page::overlays}) {
        lines.lines(section);
    }
    lines.lines(page::navigationFrom(textLiteral(applicationOf(program_).startPage)));
    lines.lines(page::input_state);
    lines.lines(page::canvas_keys);
    lines.lines(page::bridgeWith("", ""));
    for (const std::string_view section :
         {page::animation_engine, page::scrolling, page::web_boilerplate, page::input_fields, page::media_elements,
          page::frame_helpers, page::wrapping}) {
        lines.lines(section);
    }
    for (const char* header : {"cctype", "cstddef", "cstdio", "cstdlib", "cstring"}) {
        lines.line("#include <" + std::string(header) + ">");
    }
    for (const char* header : {"program", "page", "kept_state", "layers", "stopping"}) {
        lines.line("#include \"engine/" + std::string(header) + ".h\"");
    }
    lines.line("using namespace pozhil::engine;");
    lines.line("");
    lines.lines(second_page_text::page_functions.text());
    lines.lines(second_page_text::page_layers.text());
    lines.lines(second_page_text::page_controls.text());
    lines.lines(second_page_text::page_wrapping.text());
    return lines;
}

EmittedLines PageProgram::keptState() const {
    EmittedLines lines;
    std::string rows;
    std::size_t count = 0;
    for (std::size_t file = 0; file < program_.files.size(); ++file) {
        for (const Variable* variable : program_.files[file].variables) {
            rows += (count == 0 ? "{" : "\n    {") + std::to_string(file) + ", " + textLiteral(variable->name) + ", &" +
                    tables_.names.of(*variable) + "},";
            ++count;
        }
    }
    if (count > 0 && wantsStateKept(program_)) {
        CodeWriter out;
        out.block(second_page_text::kept_state, {{"variables", rows}, {"count", std::to_string(count)}});
        lines.lines(out.text());
    }
    return lines;
}

/// The function pozhil_program_has_page of the emitted program, for the addresses of pages.
void PageProgram::writePageNames(CodeWriter& out) const {
    out.block("extern \"C\" int pozhil_program_has_page(const char* name) {\n");
    for (const Page& page : program_.pages) {
        out.block("    if (std::strcmp(name, $name) == 0) {\n        return 1;\n    }\n",
                  {{"name", textLiteral(pageName(*page.tree))}});
    }
    out.block("    return 0;\n}\n");
}

EmittedLines PageProgram::pages() {
    CodeWriter out;
    PageEdition edition(program_, tables_, out);
    WebEmitter emitter(out, edition, applicationOf(program_));
    edition.setEmitter(emitter);
    edition.writeShownNames(out);
    writePageNames(out);
    emitter.writeProgram();
    EmittedLines lines;
    lines.setPlace(program_.pages.front().frame->place);
    lines.lines(out.text());
    return lines;
}

} // namespace pozhil::resolved::writer
