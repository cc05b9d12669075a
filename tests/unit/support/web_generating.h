#pragma once

#include "support/generating.h"

#include <string>
#include <vector>

namespace pozhil::test {

/// A web application of one page: what stands in its header, in its body and in its logic block.
std::string app(const std::string& header, const std::string& body = "", const std::string& logic = "");

/// What a web program adds to the runtime.
std::string webText(const std::string& source);

/// The frame function of a page whose body is \p widget: as the source writes it, or a tree that no source has.
std::string frameOf(const std::string& widget);
std::string frameOf(std::unique_ptr<WidgetNode> widget);

/// Asserts that \p pieces stand in \p text, one behind the other.
void expectInOrder(const std::string& text, const std::vector<std::string>& pieces);

} // namespace pozhil::test
