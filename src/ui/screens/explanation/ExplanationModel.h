// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <string>

#include "reclaim/PathExplanation.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

/// The explanation of a path on disk, and whether its sheet is open. The texts stay valid while the sheet closes. Main
/// thread.
class ExplanationModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of a screen")
    Q_PROPERTY(bool shown READ shown NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString path READ path NOTIFY changed FINAL)
    Q_PROPERTY(QString badge READ badge NOTIFY changed FINAL)
    Q_PROPERTY(Grade grade READ grade NOTIFY changed FINAL)
    Q_PROPERTY(bool regenerates READ regenerates NOTIFY changed FINAL)
    Q_PROPERTY(QString detail READ detail NOTIFY changed FINAL)

public:
    /// ReclaimSafety, in its order.
    enum Grade { Safe, Regenerates, Review };
    Q_ENUM(Grade)

    /// `home` is the user's home folder, whose parts have explanations.
    explicit ExplanationModel(std::string home);

    /// Opens the sheet for a path, in bytes.
    void open(const std::string& path);

    bool shown() const { return shown_; }
    QString title() const { return displayText(explanation_.title); }
    QString path() const { return displayText(path_); }
    QString badge() const { return wordOf(explanation_.safety); }
    Grade grade() const { return static_cast<Grade>(explanation_.safety); }
    bool regenerates() const { return explanation_.regenerates; }
    QString detail() const { return SystemTexts::worded(explanation_.detail); }

public slots:
    void close();

signals:
    void changed();

private:
    const std::string home_;
    std::string path_;
    PathExplanation explanation_;
    bool shown_ = false;
};

}  // namespace zelk
