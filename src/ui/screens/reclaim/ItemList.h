// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "state/DevCleanupModel.h"
#include "ui/controls/RowModel.h"

namespace zelk {

class AppModel;

/// The reclaimable items for developers: a row per category and, if it is expanded, a row per item. There may be twenty
/// thousand, so a tick updates only its rows and adjusts the sums incrementally. Main thread.
class ItemList : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of ReclaimScreenModel")
    Q_PROPERTY(QString footer READ footer NOTIFY footerChanged FINAL)
    Q_PROPERTY(QString footerBytes READ footerBytes NOTIFY footerChanged FINAL)
    Q_PROPERTY(bool cleanable READ cleanable NOTIFY footerChanged FINAL)
    Q_PROPERTY(int ageDays READ ageDays WRITE setAgeDays NOTIFY ageChanged FINAL)
    Q_PROPERTY(QString ageText READ ageText NOTIFY ageChanged FINAL)
    Q_PROPERTY(QString shownText READ shownText NOTIFY footerChanged FINAL)
    Q_PROPERTY(bool allYoung READ allYoung NOTIFY footerChanged FINAL)

public:
    enum Role {
        groupRole = Qt::UserRole,  ///< whether the row is a category
        nameRole,
        placeRole,   ///< the note of a category, the folder of an item
        lineRole,    ///< what cleans an item or protects it; may be empty
        figureRole,  ///< the size; of a category, after its number of items
        ageRole,     ///< of an item
        tintRole,
        gradeRole,
        chosenRole,
        freeRole,  ///< whether it may be ticked
        openRole,  ///< whether a category is expanded
        spokenRole
    };

    /// Both arguments must outlive it.
    ItemList(AppModel& app, DevCleanupModel& cleanup);

    QString footer() const;
    QString footerBytes() const;
    bool cleanable() const { return tallies_.selected.items > 0; }
    int ageDays() const { return static_cast<int>(cleanup_.ageDays()); }
    void setAgeDays(int days) { cleanup_.setAgeDays(days); }
    QString ageText() const;
    QString shownText() const;
    /// Whether nothing is listed because of the age filter.
    bool allYoung() const { return tallies_.shown.items == 0; }

public slots:
    /// Ticks or unticks an item, or all items of a category.
    void toggle(int row);
    /// Ticks an item, or expands or collapses a category.
    void press(int row);
    /// Expands or collapses a category; ignored for an item.
    void setOpen(int row, bool open);
    /// The row of the category that a row belongs to.
    int groupRow(int row) const;
    /// Opens the review of the ticked items.
    void clean();

signals:
    void footerChanged();
    void ageChanged();

private:
    struct Group {
        CleanupGroup content;
        CleanupSelection::Counts counts;
        bool open;
    };
    using Groups = std::vector<std::unique_ptr<Group>>;
    struct Row {
        Group* group;
        const Reclaimable* item;  // null for a category

        bool isGroup() const { return item == nullptr; }
        const ReclaimCategory& category() const { return *group->content.category; }
    };

    void refresh();
    void followSelection();
    void count();
    Groups readGroups() const;
    static std::vector<Row> rowsOf(const Groups& groups);
    static std::string_view keyOf(const Row& row);
    static QString nameOf(const Row& row);
    static QString placeOf(const Row& row);
    static QString figureOf(const Row& row);
    QString lineOf(const Row& row) const;
    QString ageOf(const Row& row) const;
    QString spokenOf(const Row& row) const;
    void tickChanged(int row);
    static bool isTwin(const Group& group, const Reclaimable& item);
    int headerOf(const Group* group) const;

    AppModel& app_;
    DevCleanupModel& cleanup_;
    Groups groups_;
    std::vector<Row> rows_;
    std::set<std::string, std::less<>> open_;  // ids of the expanded categories
    DevCleanupModel::Tallies tallies_;
    bool ticking_ = false;  // set while a change of the selection comes from here
};

}  // namespace zelk
