// SPDX-License-Identifier: MIT
#include "GalleryModel.h"

namespace zelk {

DeviceFace GalleryModel::device() const {
    const DeviceInfo device{.computerName = "Studio Mac",
                            .chip = "Zephyr 3 Pro",
                            .cores = 12,
                            .memoryBytes = std::uint64_t{36} << 30,
                            .osVersion = "Version 15.4",
                            .modelIdentifier = ""};
    return DeviceFace::of(device, VolumeInfo{994'660'000'000, 212'400'000'000, 230'000'000'000});
}

QList<RibbonSegment> GalleryModel::segments() const {
    QList<RibbonSegment> all;
    const auto add = [&all](const char* label, std::int64_t bytes, const QColor& color) {
        RibbonSegment segment;
        segment.label = QLatin1String(label);
        segment.bytes = bytes;
        segment.bytesText = byteFigure(bytes);
        segment.color = color;
        all.append(segment);
    };
    add("Video", 186'300'000'000, QColor(255, 59, 48));
    add("Other", 141'900'000'000, QColor(152, 146, 168));
    add("Photos", 98'210'000'000, QColor(86, 194, 245));
    add("Disk images", 64'000'000'000, QColor(255, 107, 94));
    add("Archives", 43'700'000'000, QColor(245, 166, 35));
    add("Audio", 31'050'000'000, QColor(167, 123, 255));
    add("Documents", 18'400'000'000, QColor(50, 199, 123));
    return all;
}

}  // namespace zelk
