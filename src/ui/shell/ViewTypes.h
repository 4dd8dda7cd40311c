// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

class QQmlComponent;
class QQmlEngine;

namespace zelk {

/// Loads what the QML engine has to know of a view before it can create one: half of what the first visit to a screen
/// would otherwise take. The engine does so on a thread of its own. Creates no view. Main thread.
class ViewTypes {
public:
    /// `engine` must outlive it.
    explicit ViewTypes(QQmlEngine& engine);
    ~ViewTypes();
    ViewTypes(const ViewTypes&) = delete;
    ViewTypes& operator=(const ViewTypes&) = delete;

    /// Loads views of Zelk.App, named without the extension, that are wanted at once.
    void loadSoon(const QStringList& views);
    /// Loads all others one after the other, since what is wanted meanwhile waits for the one that is being loaded.
    void loadAll();
    /// Whether loadAll() has come to its end.
    bool isLoaded() const { return all_ && waiting_.isEmpty() && !isLoading(); }

private:
    bool isLoading() const;
    void load(const QString& view);
    void loadNext();

    QQmlEngine& engine_;
    QStringList waiting_;
    std::vector<std::unique_ptr<QQmlComponent>> loaded_;  // without them the engine would forget the types again
    bool all_ = false;
};

}  // namespace zelk
