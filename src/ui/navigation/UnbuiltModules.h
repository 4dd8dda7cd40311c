// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;
class ModuleScreenModel;

/// The screen of a module whose view is not in this version: it introduces the module and says so. Those that live
/// from the survey run one all the same. `screen` is none of those that have a view; `app` must outlive the result.
std::unique_ptr<ModuleScreenModel> makeUnbuiltModule(AppModel& app, Screen screen);

}  // namespace zelk
