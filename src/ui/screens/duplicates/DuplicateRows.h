// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QStringList>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "reclaim/DuplicateGroup.h"
#include "ui/controls/RowModel.h"

namespace zelk {

/// List model of duplicate sets: for each a head row and, below it, a row for each path. One flat list, so that
/// thousands of sets cost as much as those in view. Main thread.
class DuplicateRows : public zelk::RowModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of the model of the screen")
    Q_PROPERTY(QStringList tags READ tags CONSTANT FINAL)

public:
    enum Role {
        headRole = Qt::UserRole,
        lastRole,    ///< whether the row is the last of its set
        textRole,    ///< the path; of a head the number of copies and their size
        gainRole,    ///< of a head what is gained; empty for a path
        tagRole,     ///< of a path whether it is kept; empty for a head
        tintRole,    ///< of the tag; invalid for a path that is not kept
        noteRole,    ///< of a path that it is a hard link; may be empty
        spokenRole,  ///< the whole row
        actionRole   ///< what the button of the row does to what, for screen readers
    };

    DuplicateRows() : RowModel({"head", "last", "text", "gain", "tag", "tint", "note", "spoken", "action"}) {}

    /// Every tag that a path may have: that of the kept one, and that of the others.
    QStringList tags() const;

    /// Shows these sets. Delegates are kept of all but the sets between the first and the last one that changed.
    void show(const std::vector<DuplicateGroup>& groups);

    bool isHead(int row) const;
    /// The path in this row, that of the kept file for a head, in bytes; empty for invalid rows.
    std::string pathAt(int row) const;
    /// The hash of the set in this row; empty for invalid rows.
    std::string hashAt(int row) const;

private:
    static QString tagOf(bool kept);

    struct Card {
        std::string hash;
        std::int64_t size;
        std::int64_t recoverable;
        std::vector<std::string> paths;
        std::vector<bool> linked;  ///< whether an earlier path leads to the same file

        explicit Card(const DuplicateGroup& group);
        bool shows(const DuplicateGroup& group) const { return hash == group.hash && paths == group.paths; }
        std::size_t rows() const { return paths.size() + 1; }
    };
    struct Place {
        const Card* card;
        std::size_t row;  ///< in the card; 0 is the head
    };

    std::size_t size() const override { return starts_.empty() ? 0 : starts_.back() + cards_.back().rows(); }
    QVariant value(std::size_t row, int role) const override;

    Place placeOf(std::size_t row) const;
    void count();

    std::vector<Card> cards_;
    std::vector<std::size_t> starts_;  ///< the row of each card's head
};

}  // namespace zelk
