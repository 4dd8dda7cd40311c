// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <memory>
#include <string>
#include <vector>

#include "state/AppModelFixture.h"
#include "ui/screens/lens/LensScreenModel.h"

namespace zelk {

/// A Lens screen on an in-memory machine, where everything that a survey finds can also be moved to the Trash.
template <class Base>
class LensFixtureOn : public Base {
protected:
    ~LensFixtureOn() override { this->machine.directories.release(); }

    LensScreenModel& lens() {
        if (!lens_) lens_ = std::make_unique<LensScreenModel>(this->model());
        return *lens_;
    }
    void destroyLens() { lens_.reset(); }

    /// Adds a file that both the survey and the Trash see. The path is relative to the home folder.
    void put(const std::string& below, std::int64_t bytes) {
        this->machine.directories.file(this->home + below, bytes, 1'000);
        this->machine.files.addFile(this->home + below);
    }
    /// Adds "Library" (50 MB in "Caches/Yarn"), "projects" (90 MB, 10 MB of it in "app/node_modules") and
    /// "music" (8 MB).
    void fill() {
        put("/Library/Caches/Yarn/v6", 50'000'000);
        put("/projects/app/node_modules/a.js", 10'000'000);
        put("/projects/film.mov", 80'000'000);
        put("/music/song.flac", 8'000'000);
    }
    /// Adds `count` folders, the largest first.
    void addMany(const std::string& below, int count) {
        for (int at = 0; at < count; ++at)
            put(below + "/folder " + std::to_string(at) + "/file", 1'000'000 * (count - at));
    }

    std::vector<std::string> names() { return column(LensRows::nameRole); }
    std::vector<std::string> column(int role) {
        std::vector<std::string> texts;
        for (int row = 0; row < lens().rows()->rowCount(); ++row)
            texts.push_back(lens().rows()->index(row).data(role).toString().toStdString());
        return texts;
    }
    int rowNamed(const std::string& name) {
        const std::vector<std::string> all = names();
        return static_cast<int>(std::find(all.begin(), all.end(), name) - all.begin());
    }
    bool ticked(const std::string& name) {
        return lens().rows()->index(rowNamed(name)).data(LensRows::tickedRole).toBool();
    }
    void drill(const std::string& name) { lens().drill(rowNamed(name)); }
    void toggle(const std::string& name) { lens().toggle(rowNamed(name)); }
    std::string place() { return lens().place().toStdString(); }
    std::string caption() { return lens().caption().toStdString(); }

    const std::vector<BubbleSlice>& slices() { return lens().bubbles()->slices(); }
    const BubbleSlice& slice(const std::string& label) {
        for (const BubbleSlice& one : slices())
            if (one.label.toStdString() == label) return one;
        ADD_FAILURE() << "no bubble " << label;
        return slices().front();
    }

    /// Starts the removal and waits for its end.
    void removeSelected() {
        const int before = lens().version();
        lens().removeSelected();
        this->runUntilRemoved(before);
    }
    void runUntilRemoved(int before) {
        runUntil([&] { return lens().version() > before; });
    }

private:
    std::unique_ptr<LensScreenModel> lens_;
};

using LensFixture = LensFixtureOn<AppModelFixture>;

}  // namespace zelk
