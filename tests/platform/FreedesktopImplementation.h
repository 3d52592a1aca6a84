#pragma once

#include "Implementation.h"
#include "OtherInstance.h"
#include "SettingsPortal.h"
#include "X11TestWindow.h"

#include <QTemporaryDir>
#include <QWindow>

class Desktop;

/// The services of a Linux desktop, on one of the test's own.
class FreedesktopImplementation : public Implementation {
public:
    explicit FreedesktopImplementation(const Desktop &desktop);
    ~FreedesktopImplementation() override;

    void store(const QString &key, const QVariant &value) override;
    QVariant stored(const QString &key) override;
    void setHasRoom(bool hasRoom) override;
    void setHangs(bool hangs) override;
    void lock(const QString &key) override;
    void choose(const Look &look) override;
    bool press(const KeyDown &key) override;
    void show(const QList<OnScreenWindow> &windows) override;
    void hold(const QString &name, Answer answer) override;
    QList<Instances::Request> asked() override { return m_other->asked(); }
    bool isAsked(const QString &name, const Instances::Request &request) override
    {
        return OtherInstance::ask(name, request);
    }
    QUrl makeBundle(const QVariantMap &info, const QStringList &resources) override;
    bool waitFor(const std::function<bool()> &isTrue) override { return QTest::qWaitFor(isTrue); }

private:
    /// Tells whether it was sent a key.
    class Window : public QWindow {
    public:
        bool isSentAKey = false;

    protected:
        void keyPressEvent(QKeyEvent *) override { isSentAKey = true; }
    };

    const Desktop &m_desktop;
    SettingsPortal m_portal;
    Window m_window;
    std::vector<std::unique_ptr<X11TestWindow>> m_shown;
    std::optional<OtherInstance> m_other;
    QTemporaryDir m_profile;
    QTemporaryDir m_bundles;
    int m_bundleCount = 0;
};
