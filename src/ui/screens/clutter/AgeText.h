// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "platform/Time.h"

namespace zelk {

/// The time since `modified` in whole days, months of 30 days or years of 365 days: "today", "29d ago", "1mo ago", "2y
/// ago". Future times are "today".
QString ageText(TimePoint modified, TimePoint now);

}  // namespace zelk
