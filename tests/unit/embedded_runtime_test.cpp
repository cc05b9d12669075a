// What the build embeds into the compiler is the text of the runtime's files, byte for byte.

#include "generator/first/runtime_text.h"
#include "generator/web/page/runtime_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace runtime = pozhil::runtime;
namespace page_runtime = pozhil::page_runtime;

namespace {

using Section = std::pair<const char*, std::string_view>;

class EmbeddedRuntime : public testing::TestWithParam<Section> {};

std::string emitted_part(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    const std::string marker = "\n// --- emitted from here ---\n";
    const std::size_t position = content.find(marker);
    return position == std::string::npos ? "no marker line" : content.substr(position + marker.size());
}

TEST_P(EmbeddedRuntime, EqualsItsFile) {
    const auto& [file, text] = GetParam();
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text, emitted_part(std::string(POZHIL_SOURCE_DIRECTORY "/src/generator/") + file + ".h"));
}

std::string name_of(const testing::TestParamInfo<Section>& section) {
    const std::string file = section.param.first;
    return file.substr(file.rfind('/') + 1);
}

INSTANTIATE_TEST_SUITE_P(FirstEdition, EmbeddedRuntime,
                         testing::Values(Section{"first/runtime/standard_headers", runtime::standard_headers},
                                         Section{"first/runtime/global_variables", runtime::global_variables},
                                         Section{"first/runtime/return_value", runtime::return_value},
                                         Section{"first/runtime/call_guard", runtime::call_guard},
                                         Section{"first/runtime/database_entries", runtime::database_entries},
                                         Section{"first/runtime/value_types", runtime::value_types},
                                         Section{"first/runtime/error_box", runtime::error_box},
                                         Section{"first/runtime/value_texts", runtime::value_texts},
                                         Section{"first/runtime/value_functions", runtime::value_functions},
                                         Section{"first/runtime/library", runtime::library},
                                         Section{"first/runtime/scroll_function", runtime::scroll_function}),
                         name_of);

INSTANTIATE_TEST_SUITE_P(Pages, EmbeddedRuntime,
                         testing::Values(Section{"web/runtime/page_headers", page_runtime::page_headers},
                                         Section{"web/runtime/web_text_layer", page_runtime::web_text_layer},
                                         Section{"web/runtime/page_state", page_runtime::page_state},
                                         Section{"web/runtime/overlays", page_runtime::overlays},
                                         Section{"web/runtime/navigation", page_runtime::navigation},
                                         Section{"web/runtime/input_state", page_runtime::input_state},
                                         Section{"web/runtime/canvas_keys", page_runtime::canvas_keys},
                                         Section{"web/runtime/web_bridge", page_runtime::web_bridge},
                                         Section{"web/runtime/animation_engine", page_runtime::animation_engine},
                                         Section{"web/runtime/scrolling", page_runtime::scrolling},
                                         Section{"web/runtime/web_boilerplate", page_runtime::web_boilerplate},
                                         Section{"web/runtime/input_fields", page_runtime::input_fields},
                                         Section{"web/runtime/media_elements", page_runtime::media_elements},
                                         Section{"web/runtime/frame_helpers", page_runtime::frame_helpers},
                                         Section{"web/runtime/wrapping", page_runtime::wrapping}),
                         name_of);

} // namespace
