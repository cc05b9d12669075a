#include "driver/web/page_values.h"

#include "driver/web/outline_json.h"
#include "driver/web/web_assets.h"
#include "generator/web/page/widget_outline.h"

namespace pozhil {

PageValues pageValuesOf(const Application& application) {
    PageValues values;
    values.title = application.title;
    values.icon = application.icon;
    values.background = application.background;
    values.hasData = hasFilesToPack(application);
    values.widgets = outlineJson(outlineOf(application));
    return values;
}

} // namespace pozhil
