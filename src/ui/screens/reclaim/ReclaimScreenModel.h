// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <memory>

#include "state/DevCleanupModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/reclaim/CategoryList.h"
#include "ui/screens/reclaim/DryRunModel.h"
#include "ui/screens/reclaim/ItemList.h"

namespace zelk {

/// What can be reclaimed, by category for most users and by item for developers, and the review that both lead to. Main
/// thread.
class ReclaimScreenModel : public zelk::SurveyedModule {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main window")
    Q_PROPERTY(bool nothing READ nothing NOTIFY faceChanged FINAL)
    Q_PROPERTY(bool byCategory READ byCategory NOTIFY faceChanged FINAL)
    Q_PROPERTY(bool byItem READ byItem NOTIFY faceChanged FINAL)
    Q_PROPERTY(zelk::CategoryList* categories READ categories CONSTANT FINAL)
    Q_PROPERTY(zelk::ItemList* items READ items CONSTANT FINAL)
    Q_PROPERTY(bool reviewing READ reviewing NOTIFY reviewingChanged FINAL)
    Q_PROPERTY(zelk::DryRunModel* dryRun READ dryRun NOTIFY reviewingChanged FINAL)
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen FINAL)

public:
    /// `app` must outlive it.
    explicit ReclaimScreenModel(AppModel& app);

    bool nothing() const;
    bool byCategory() const;
    bool byItem() const;
    CategoryList* categories() { return &categories_; }
    ItemList* items() { return &items_; }

    /// Whether the review sheet is open.
    bool reviewing() const { return cleanup_.showDryRun(); }
    /// The model of the current or last review; null before the first.
    DryRunModel* dryRun() const { return dryRun_.get(); }

    /// Whether the screen is visible. Only then does the default selection follow finished surveys.
    bool onScreen() const { return onScreen_; }
    void setOnScreen(bool onScreen);

    DevCleanupModel& cleanup() { return cleanup_; }

signals:
    void faceChanged();
    void reviewingChanged();

private:
    void follow();
    void reviewCategories(const std::vector<Reclaimable>& items);
    void openOrClose();

    AppModel& app_;
    DevCleanupModel cleanup_;
    CategoryList categories_;
    ItemList items_;
    std::unique_ptr<DryRunModel> dryRun_;
    bool onScreen_ = false;
    std::size_t lastCount_ = 0;  // the number of items when last checked
};

}  // namespace zelk
