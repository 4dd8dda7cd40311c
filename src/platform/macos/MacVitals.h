// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Vitals.h"

namespace zelk {

class MacVitals : public Vitals {
public:
    DeviceInfo device() override;
    MemoryStats memory() override;
    std::optional<CPUTicks> ticks() override;
    PowerInfo power() override;
    std::optional<VolumeInfo> volume(const std::string& path) override;
    double uptime() override;
};

}  // namespace zelk
