// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "platform/Time.h"

namespace zelk {

/// How long ago something was changed, in whole days, months of 30 and years of 365: "today", "29d ago", "1mo ago",
/// "2y ago". What lies in the future is today.
QString ageText(TimePoint modified, TimePoint now);

}  // namespace zelk
