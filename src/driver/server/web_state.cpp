#include "driver/server/web_state.h"

#include <utility>

namespace pozhil {

std::atomic<std::int32_t> g_appVersion{1};

// Never destroyed: a diagnostic ends the process while the server may be reading the page.
SharedPage& g_web_html = *new SharedPage;

void SharedPage::store(std::string html) {
    std::atomic_store(&html_, std::make_shared<const std::string>(std::move(html)));
}

std::shared_ptr<const std::string> SharedPage::load() const {
    return std::atomic_load(&html_);
}

} // namespace pozhil
