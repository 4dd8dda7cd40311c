// SPDX-License-Identifier: MIT
#include "GalleryModel.h"

#include <utility>
#include <vector>

#include "ui/theme/DisplayText.h"
#include "ui/theme/SymbolItem.h"

namespace zelk {

namespace {

BubbleSlice bubble(const char* label, std::int64_t bytes, const QColor& color, const char* symbol) {
    BubbleSlice slice;
    slice.id = label;
    slice.label = displayText(label);
    slice.bytes = bytes;
    slice.color = color;
    if (*symbol != 0) slice.icon = tintedSymbol(QString::fromLatin1(symbol), QColor(94, 171, 247), 192);
    return slice;
}

std::vector<BubbleSlice> folders() {
    const QColor violet(124, 92, 255);
    const char* folder = "folder.fill";
    std::vector<BubbleSlice> all{
        bubble("Developer", 46'200'000'000, violet, folder),
        bubble("Application Support", 31'900'000'000, violet, folder),
        bubble("Caches", 17'400'000'000, violet, folder),
        bubble("Containers", 11'600'000'000, violet, folder),
        bubble("Mobile Documents", 4'210'000'000, violet, folder),
        bubble("Messages", 2'870'000'000, violet, folder),
        bubble("14 more", 1'900'000'000, QColor(120, 118, 130), ""),
        bubble("Logs", 1'420'000'000, violet, folder),
        bubble("Fonts", 912'400'000, violet, folder),
        bubble("Mail", 688'000'000, violet, folder),
        bubble("Group Containers", 512'300'000, violet, folder),
    };
    for (const std::size_t ticked : {2U, 7U}) all[ticked].selected = true;
    for (const std::size_t spare : {2U, 3U}) all[spare].reclaimable = true;
    return all;
}

std::vector<BubbleSlice> kinds() {
    return {
        bubble("node_modules", 18'600'000'000, QColor(50, 199, 123), ""),
        bubble("Build products", 12'100'000'000, QColor(245, 166, 35), ""),
        bubble("Simulators", 7'400'000'000, QColor(86, 194, 245), ""),
        bubble("Package caches", 3'900'000'000, QColor(255, 90, 77), ""),
        bubble("Logs", 900'000'000, QColor(167, 123, 255), ""),
        bubble("Images", 300'000'000, QColor(152, 146, 168), ""),
    };
}

ModuleTexts textsOf(const QString& scanLabel) {
    ModuleTexts texts;
    texts.subtitle = QStringLiteral("What this module is for, in as many words as it takes two lines to write.");
    texts.scanLabel = scanLabel;
    return texts;
}

const DeviceInfo machine{.computerName = "Studio Mac",
                         .chip = "Zephyr 3 Pro",
                         .cores = 12,
                         .memoryBytes = std::uint64_t{36} << 30,
                         .osVersion = "Version 15.4",
                         .modelIdentifier = ""};
const VolumeInfo volume{994'660'000'000, 212'400'000'000, 230'000'000'000};

}  // namespace

GalleryModel::GalleryModel(QObject* parent)
    : QObject(parent),
      bubbles_({[this](const BubbleSlice& slice) { toggle(bubbles_, slice.id); }, {}, {}}),
      plainBubbles_({[this](const BubbleSlice& slice) { toggle(plainBubbles_, slice.id); }, {}, {}}),
      module_(Screen::reclaim, textsOf(QStringLiteral("Look for junk"))) {
    bubbles_.setSlices(folders());
    plainBubbles_.setSlices(kinds());
}

void GalleryModel::toggle(BubbleModel& model, const std::string& id) {
    std::vector<BubbleSlice> slices = model.slices();
    for (BubbleSlice& slice : slices)
        if (slice.id == id) slice.selected = !slice.selected;
    model.setSlices(std::move(slices));
}

DeviceFace GalleryModel::device() const {
    return DeviceFace::of(machine, volume);
}

DeviceFace GalleryModel::longDevice() const {
    DeviceInfo longer = machine;
    longer.computerName = std::string(200, 'M');
    longer.chip = longText().toStdString();
    return DeviceFace::of(longer, volume);
}

DeviceFace GalleryModel::bareDevice() const {
    return DeviceFace::of(machine, std::nullopt);
}

QString GalleryModel::longText() const {
    return QStringLiteral("A name that goes on and on, further than there is room for it anywhere on the wall");
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

#include "moc_GalleryModel.cpp"
