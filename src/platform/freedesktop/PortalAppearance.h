#pragma once

#include "Appearance.h"
#include "PortalSettings.h"

#include <QBasicTimer>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDeadlineTimer>

#include <chrono>
#include <memory>

class QDBusConnection;
class QDBusPendingCallWatcher;

/// The appearance that the desktop's settings portal tells, and where it says nothing, the lightness of the
/// palette.
///
/// The portal is asked as soon as this object is made and there is a bus, and only if one is running; nothing waits for
/// its answer but `settle`. One that appears later, be it because `wake` started it, is asked then, and what changes
/// later is followed, at most once a frame. Nobody but the portal is listened to, and of what it says only the settings
/// that are used are kept.
class PortalAppearance : public Appearance {
    Q_OBJECT
public:
    /// `patience` is how long `settle` may wait, from now on.
    explicit PortalAppearance(std::chrono::milliseconds patience = std::chrono::milliseconds(50));
    ~PortalAppearance() override;

    std::optional<AppearanceName> bestMatch() const override;
    bool shouldReduceMotion() const override { return m_look.reduceMotion; }

    /// Waits for the portal's first answer until the patience is over that began when this object was made.
    void settle() override;

    void wake() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private slots:
    void takeOwner(const QString &owner);
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value,
                        const QDBusMessage &message);
    void portalOwnerChanged(const QString &name, const QString &oldOwner, const QString &newOwner,
                            const QDBusMessage &message);

private:
    struct Look {
        bool isDark = false;
        bool isHighContrast = false;
        bool reduceMotion = false;
        bool operator==(const Look &) const = default;
    };

    void follow();
    void listen(QDBusConnection &bus);
    void ask(int limit);
    void takeAnswer();
    Look look() const;
    void update();

    PortalSettings m_settings;
    /// The portal's own name on the bus, to whose signals alone is listened; empty while there is none.
    QString m_owner;
    QBasicTimer m_updates;
    std::unique_ptr<QDBusPendingCallWatcher> m_question;
    bool m_isFirstQuestion = true;
    /// The connection on which changes are heard.
    QString m_followed;
    /// Until then the first answer is waited for.
    QDeadlineTimer m_settled;
    Look m_look;
};
