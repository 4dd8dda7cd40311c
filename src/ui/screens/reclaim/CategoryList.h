// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "reclaim/ReclaimCatalogue.h"
#include "ui/charts/BubbleModel.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// The reclaimable categories of a survey, largest first, and the user's selection, as a list model and as a bubble
/// map. The safe ones are selected initially, once per screen. Main thread.
class CategoryList : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ReclaimScreenModel")
    Q_PROPERTY(QString menuLabel READ menuLabel NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString footer READ footer NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool reviewable READ reviewable NOTIFY selectionChanged FINAL)
    Q_PROPERTY(zelk::BubbleModel* bubbles READ bubbles CONSTANT FINAL)

public:
    enum Role {
        idRole = Qt::UserRole,
        nameRole,
        noteRole,
        tintRole,
        bytesRole,
        countRole,
        gradeRole,
        chosenRole,
        spokenRole
    };

    /// `app` must outlive it. `review` opens the review of the given items, at least one.
    CategoryList(AppModel& app, std::function<void(std::vector<Reclaimable>)> review);

    /// Call when the screen becomes visible. Selects the safe categories the first time.
    void appear();

    QString menuLabel() const;
    /// The number and size of the selected items.
    const QString& footer() const { return footer_; }
    bool reviewable() const { return chosenItems_ > 0; }
    BubbleModel* bubbles() { return &bubbles_; }

    const std::set<std::string, std::less<>>& chosen() const { return chosen_; }

public slots:
    void toggle(int row);
    void chooseAll();
    void chooseSafe();
    void chooseNone();
    /// Ignored if no item is selected.
    void review();

signals:
    void selectionChanged();

private:
    struct Row {
        const ReclaimCategory* category;
        std::int64_t bytes;
        std::int64_t items;
    };

    void refresh();
    void choose(const std::function<bool(const ReclaimCategory&)>& wanted);
    void announce();
    void showFooter();
    void showBubbles();
    bool isChosen(const Row& row) const { return chosen_.contains(row.category->id); }

    AppModel& app_;
    std::function<void(std::vector<Reclaimable>)> review_;
    std::vector<Row> rows_;
    std::set<std::string, std::less<>> chosen_;  // ids, including categories that the last survey did not find
    bool seeded_ = false;
    std::size_t chosenItems_ = 0;
    QString footer_;
    BubbleModel bubbles_;
};

}  // namespace zelk
