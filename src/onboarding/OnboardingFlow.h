#pragma once

#include "DemoModel.h"
#include "DragTileController.h"
#include "Instances.h"
#include "OnboardingStep.h"
#include "OverlayLook.h"

#include <QObject>
#include <QStringList>
#include <qqmlregistration.h>

#include <functional>

/// The onboarding's course: which step is shown and what its buttons do. The views draw it; the agent hears of it by
/// commands and answers through the store.
class OnboardingFlow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The flow belongs to the guide window")
    /// The case name of the step, "welcome".
    Q_PROPERTY(QString step READ stepName NOTIFY stepChanged)
    /// What all the steps are called.
    Q_PROPERTY(QList<QString> steps READ steps CONSTANT)
    /// The practice of the second step.
    Q_PROPERTY(DemoModel *demo READ demo CONSTANT)
    /// What to try next in the practice.
    Q_PROPERTY(QString hint READ hint NOTIFY hintChanged)
    /// The agent has the Accessibility permission.
    Q_PROPERTY(bool trusted READ trusted NOTIFY trustedChanged)
    Q_PROPERTY(bool accessRequested READ accessRequested NOTIFY accessRequestedChanged)
    /// The agent could not be asked for the permission: it is installed, but neither runs nor starts.
    Q_PROPERTY(bool agentMissing READ agentMissing NOTIFY agentMissingChanged)
    /// Nobody can tell where System Settings stands, so the tile to drag is part of the permission step, and the guide
    /// stays where it is.
    Q_PROPERTY(bool carriesTile READ carriesTile CONSTANT)
    /// The application that the tile drags.
    Q_PROPERTY(QUrl appURL READ appURL CONSTANT)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin CONSTANT)
    /// Whether less motion was asked for when the flow began; later changes are not followed.
    Q_PROPERTY(bool reduceMotion MEMBER m_reduceMotion CONSTANT)
public:
    /// Whether the person has been through the guide before. A replay begins with what the agent reports about starting
    /// at login, a first run with yes.
    enum class Run { first, replay };

    /// `finish` is run when the flow ends. The flow begins at the step that the environment variable CV_STEP names by
    /// its raw value, and at the welcome for any other text.
    OnboardingFlow(Run run, std::function<void()> finish);

    OnboardingStep step() const { return m_step; }
    QString stepName() const { return OnboardingSteps::caseName(m_step); }
    static QStringList steps();
    DemoModel *demo() { return &m_demo; }
    QString hint() const { return m_hint; }
    bool trusted() const { return m_trusted.value().toBool(); }
    bool accessRequested() const { return m_accessRequested; }
    bool agentMissing() const { return m_agentMissing; }
    bool carriesTile() const { return m_carriesTile; }
    const QUrl &appURL() const { return m_dragTile.appURL(); }
    bool launchAtLogin() const { return m_launchAtLogin; }
    DragTileController &dragTile() { return m_dragTile; }

    void go(OnboardingStep step);

    /// The line over the title of the step with that case name; empty for any other text. A screen that is fading out
    /// keeps its own, so this does not follow the flow.
    Q_INVOKABLE static QString kicker(const QString &caseName);

    /// To the following or the preceding step; nothing at the end.
    Q_INVOKABLE void next();
    Q_INVOKABLE void back();

    /// Ends the flow at once: nothing is stored and nothing is sent.
    Q_INVOKABLE void skipSetup();

    /// Asks the agent for the permission, which is started if it does not run. The guide steps aside for that, and a
    /// moment later the tile to drag is shown, unless the guide carries it. An agent that does not start is missing:
    /// the guide stays where it is. One that is not installed for being started may run all the same, and is asked.
    Q_INVOKABLE void requestAccess();

    /// The two ways on from the choice of a look: with what was chosen, or with the defaults.
    Q_INVOKABLE void looksGood();
    Q_INVOKABLE void keepTheDefaults();

    /// Ends the flow: tells the agent whether to start at login and to apply the settings and, if wished, opens the
    /// desktop's window overview.
    Q_INVOKABLE void finishSetup(bool startAtLogin, bool openMissionControl);

signals:
    void stepChanged();
    void hintChanged();
    void trustedChanged();
    void accessRequestedChanged();
    void agentMissingChanged();

private:
    void askAgent(Instances::Start start);
    void goBy(int steps);
    void updateHint();
    QString nextHint() const;
    void followTrust();

    std::function<void()> m_finish;
    OnboardingStep m_step;
    DemoModel m_demo;
    DragTileController m_dragTile;
    OverlayLook m_look;
    QString m_hint;
    AppStorage m_trusted;
    bool m_accessRequested = false;
    bool m_isStartingAgent = false;
    bool m_agentMissing = false;
    const bool m_carriesTile;
    const bool m_launchAtLogin;
    const bool m_reduceMotion;
};
