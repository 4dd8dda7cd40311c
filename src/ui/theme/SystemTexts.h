// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <string_view>

namespace zelk {

/// The texts that name the system, a part of it, or a key of its keyboard: each has a wording for macOS and one for
/// Linux, in one table. Views ask the singleton, models the static functions. Main thread.
class SystemTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Key {
        WholeComputer,
        ScanWholeComputer,
        WelcomeLead,
        WelcomePrivacy,
        HealthTitle,
        RevealFile,
        TrashLocked,
        UnlockTrash,
        AccessTitle,
        AccessPurpose,
        AccessSteps,
        AccessSettings,  ///< empty where there are no settings for it
        SimulatorNote,
        HelpMeasuring,
        HelpMenuKeys,
        HelpAccess,
        HelpClutter,
        HelpTune,
        HelpHealth,
        HelpSnapshots,
        HelpThinning,
        HelpPrivacy,
        HelpPrompts,
        HelpSandbox,
        keyCount
    };
    Q_ENUM(Key)

    enum class System { macOS, desktopLinux };

    using QObject::QObject;

    /// In the wording of the system that is shown, translated.
    Q_INVOKABLE static QString of(zelk::SystemTexts::Key key);
    /// A text from below, where nobody knows of systems: if it is a row's wording for macOS, the wording of the system
    /// that is shown, else the text itself.
    static QString worded(std::string_view text);

    /// A cell of the table, in UTF-8.
    static const char* wording(Key key, System system);

    /// The system the application was built for, until a test shows another one's texts. What was read before stays.
    static System shown();
    static void show(System system);
};

}  // namespace zelk
