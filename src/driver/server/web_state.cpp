#include "driver/server/web_state.h"

#include <utility>

namespace pozhil {

std::atomic<std::int32_t> g_appVersion{1};

// Never destroyed: a diagnostic ends the process while the server may be reading the page.
SharedPage& g_web_html = *new SharedPage;

void SharedPage::store(ServedPage page) {
    std::atomic_store(&page_, std::make_shared<const ServedPage>(std::move(page)));
}

std::shared_ptr<const ServedPage> SharedPage::load() const {
    return std::atomic_load(&page_);
}

} // namespace pozhil
