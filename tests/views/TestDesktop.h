#pragma once

#include "FakePlatform.h"

#include <QObject>

/// The desktop around the views under test, for QML to set.
class TestDesktop : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY changed)
    Q_PROPERTY(bool reduceMotion READ reduceMotion WRITE setReduceMotion NOTIFY changed)
public:
    TestDesktop() { connect(&m_platform.look, &Appearance::changed, this, &TestDesktop::changed); }

    bool dark() const { return m_platform.look.bestMatch() == AppearanceName::DarkAqua; }
    void setDark(bool dark) { m_platform.look.setName(dark ? AppearanceName::DarkAqua : AppearanceName::Aqua); }
    bool reduceMotion() const { return m_platform.look.shouldReduceMotion(); }
    void setReduceMotion(bool reduceMotion) { m_platform.look.setReduceMotion(reduceMotion); }

    FakePlatform &platform() { return m_platform; }

signals:
    void changed();

private:
    FakePlatform &m_platform = FakePlatform::install();
};
