#pragma once

#include "driver/web/page_template.h"
#include "generator/web/page/application.h"

namespace pozhil {

/// What an application puts into the page template, without the number of a build.
PageValues pageValuesOf(const Application& application);

} // namespace pozhil
