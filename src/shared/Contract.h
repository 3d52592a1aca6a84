#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// The whole contract with the agent: every key of the shared store and every command of the channel,
/// declared once. Accessors, the QML names, the tests and docs/contract.md derive from these two tables.

/// STORE_KEY(identifier, name, default, written by, meaning). The default's type is the type of the key.
#define CORVANE_STORE_KEYS(STORE_KEY)                                                                                  \
    STORE_KEY(onboardingCompleted, "onboardingCompleted", false, "application",                                        \
              "The person has finished the onboarding guide.")                                                         \
    STORE_KEY(menuBarIconHidden, "menuBarIconHidden", false, "application", "The agent shows no menu-bar icon.")       \
    STORE_KEY(agentAccessibilityTrusted, "agent.accessibilityTrusted", false, "agent",                                 \
              "The agent has the Accessibility permission.")                                                           \
    STORE_KEY(agentLaunchAtLogin, "agent.launchAtLogin", false, "both",                                                \
              "The agent is registered to start at login; the application writes the choice ahead of the "             \
              "agent's report.")                                                                                       \
    STORE_KEY(agentLaunchAtLoginNeedsApproval, "agent.launchAtLoginNeedsApproval", false, "both",                      \
              "The login item waits for the person's approval; the application writes false with each "                \
              "choice.")                                                                                               \
    STORE_KEY(buttonTheme, "buttonTheme", QStringLiteral("classic"), "application",                                    \
              "Look of the overlay buttons: classic, soft, graphite, mono or outline.")                                \
    STORE_KEY(buttonSizeOption, "buttonSizeOption", QStringLiteral("medium"), "application",                           \
              "Size of the overlay buttons: small, medium or large.")                                                  \
    STORE_KEY(showMinimizeButton, "showMinimizeButton", false, "application",                                          \
              "A minimize button is shown next to Close.")                                                             \
    STORE_KEY(showMaximizeButton, "showMaximizeButton", false, "application", "A full-screen button is shown.")        \
    STORE_KEY(maximizeMode, "maximizeMode", QStringLiteral("fullscreen"), "application",                               \
              "What the full-screen button and ⌘F do: fullscreen or fill.")                                            \
    STORE_KEY(layoutsEnabled, "layouts.enabled", true, "application",                                                  \
              "Snapping and layouts in the window overview are on.")                                                   \
    STORE_KEY(layoutsShelf, "layouts.shelf", true, "application",                                                      \
              "The layouts handle and shelf are shown in the window overview.")                                        \
    STORE_KEY(layoutsGap, "layouts.gap", 0.0, "application", "Space between arranged windows, in points.")             \
    STORE_KEY(layoutsLaunchApps, "layouts.launchApps", true, "application",                                            \
              "Restoring a saved layout opens applications that are not running.")                                     \
    STORE_KEY(                                                                                                         \
        layoutsSaved, "layouts.saved", QString(), "both",                                                              \
        "The saved layouts, as JSON text; absent: none. The agent adds layouts, the application renames "              \
        "and deletes them and writes them in normal form when it reads them, and each write replaces the whole list.")

/// COMMAND(identifier, name, carries a value, announces settings, asks the agent to). One that announces settings is
/// posted once those are stored, the others at once.
#define CORVANE_COMMANDS(COMMAND)                                                                                      \
    COMMAND(applySettings, "applySettings", false, true, "Read the settings in the store again and apply them now.")   \
    COMMAND(setLaunchAtLogin, "setLaunchAtLogin", true, true,                                                          \
            "Register (true) or unregister (false) itself as a login item.")                                           \
    COMMAND(requestAccessibility, "requestAccessibility", false, false,                                                \
            "Ask the system for the Accessibility permission.")                                                        \
    COMMAND(checkForUpdates, "checkForUpdates", false, false, "Run its update check.")

namespace Contract {

/// The name that the agent holds in the session while it runs, and under which it is installed to be started.
inline const QString agentName = QStringLiteral("com.vexmoor.corvane");

struct StoreKey {
    QString name;
    QVariant defaultValue;
    QString writer;
    QString meaning;
    /// What a text may be, where that is a fixed choice; empty where any value of the type will do.
    QStringList choices = {};
    /// The command that follows a change of the key; empty where the agent takes it from the store.
    QString announcement = {};
};

struct CommandEntry {
    QString name;
    bool carriesValue;
    bool announcesSettings;
    QString meaning;
};

/// Every key, the seven "hotkey." keys included, in the order of the document.
const QList<StoreKey> &storeKeys();

const QList<CommandEntry> &commands();

/// Whether that is a command of the table that announces settings.
bool announcesSettings(const QString &command);

/// The key of that name; null when the table has none.
const StoreKey *storeKey(const QString &name);

/// Whether the key holds what the agent says about itself, which is no setting of the person.
inline bool isAgentState(QStringView key)
{
    return key.startsWith(u"agent.");
}

/// The default of a key of the table; invalid for any other key.
QVariant defaultValue(const QString &key);
}
