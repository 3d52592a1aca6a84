#pragma once

#include <QDBusConnection>
#include <QThread>
#include <QVariantMap>

#include <memory>

class PortalSettings;

/// The settings service of a desktop portal, for as long as this object lives: it answers on a thread of its
/// own, so that a program that waits for it is served while the test does other things.
class FakePortal {
public:
    enum class ColorScheme : uint { NoPreference, Dark, Light };

    /// `version` of the settings interface; below 2 it has `Read` but not `ReadOne`. What is not set at first
    /// or later is not found.
    explicit FakePortal(const QVariantMap &appearance = {}, uint version = 2);
    ~FakePortal();

    static QVariantMap colorScheme(ColorScheme scheme);
    static QVariantMap contrast(bool high);
    static QVariantMap reducedMotion(bool reduced);

    /// Changes the settings in `appearance` and tells everyone.
    void change(const QVariantMap &appearance);

private:
    QThread m_thread;
    QDBusConnection m_bus;
    std::unique_ptr<PortalSettings> m_settings;
};
