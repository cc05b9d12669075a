// What the build embeds into the compiler is the text of the runtime's files, byte for byte.

#include "generator/first/runtime_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace runtime = pozhil::runtime;

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
    const auto& [name, text] = GetParam();
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(text, emitted_part(POZHIL_SOURCE_DIRECTORY "/src/generator/first/runtime/" + std::string(name) + ".h"));
}

INSTANTIATE_TEST_SUITE_P(
    Sections, EmbeddedRuntime,
    testing::Values(Section{"standard_headers", runtime::standard_headers},
                    Section{"web_text_layer", runtime::web_text_layer}, Section{"global_state", runtime::global_state},
                    Section{"navigation", runtime::navigation}, Section{"input_state", runtime::input_state},
                    Section{"canvas_keys", runtime::canvas_keys}, Section{"web_bridge", runtime::web_bridge},
                    Section{"value_types", runtime::value_types}, Section{"error_box", runtime::error_box},
                    Section{"value_texts", runtime::value_texts}, Section{"value_functions", runtime::value_functions},
                    Section{"animation_engine", runtime::animation_engine}, Section{"library", runtime::library},
                    Section{"scrolling", runtime::scrolling}, Section{"web_boilerplate", runtime::web_boilerplate},
                    Section{"input_fields", runtime::input_fields}, Section{"media_elements", runtime::media_elements},
                    Section{"frame_helpers", runtime::frame_helpers}),
    [](const testing::TestParamInfo<Section>& section) { return std::string(section.param.first); });

} // namespace
