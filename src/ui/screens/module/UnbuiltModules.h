// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;
class ModuleScreenModel;

/// The screen of a module whose view is not in this version: it introduces the module and says so. `screen` is none of
/// those that have a view.
std::unique_ptr<ModuleScreenModel> makeUnbuiltModule(const AppModel& app, Screen screen);

}  // namespace zelk
