// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "state/Screen.h"

namespace zelk {

class AppModel;
class ModuleScreenModel;

/// Creates the model for a module without a view in this version, which introduces the module and says so. `screen`
/// must be such a module.
std::unique_ptr<ModuleScreenModel> makeUnbuiltModule(const AppModel& app, Screen screen);

}  // namespace zelk
