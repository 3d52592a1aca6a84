#pragma once

#include "FakePlatform.h"
#include "Implementation.h"

/// The services in memory.
class FakeImplementation : public Implementation {
public:
    ~FakeImplementation() override { Platform::install(nullptr); }

    void store(const QString &key, const QVariant &value) override
    {
        suite().values.insert(key, value);
        suite().storedChanged(key);
    }

    QVariant stored(const QString &key) override { return suite().values.value(key); }

    void setHasRoom(bool hasRoom) override
    {
        suite().obstacle = hasRoom ? UserDefaults::Trouble::none : UserDefaults::Trouble::noRoom;
    }

    void setHangs(bool hangs) override
    {
        suite().isHanging = hangs;
        suite().answer();
    }

    void lock(const QString &key) override { suite().locked.insert(key); }

    void choose(const Look &look) override
    {
        const auto name = look.isHighContrast ? (look.isDark ? AppearanceName::AccessibilityHighContrastDarkAqua
                                                             : AppearanceName::AccessibilityHighContrastAqua)
                                              : (look.isDark ? AppearanceName::DarkAqua : AppearanceName::Aqua);
        m_platform.look.setName(name);
        m_platform.look.setReduceMotion(look.reducesMotion);
    }

    bool press(const KeyDown &key) override { return m_platform.pressKey(key); }

    void show(const QList<OnScreenWindow> &windows) override { m_platform.windows.windows = windows; }

    void hold(const QString &name, Answer answer) override
    {
        m_platform.programs.others.insert(name, [this, answer](const Instances::Request &request) {
            m_asked.append(request);
            return answer == Answer::Done;
        });
    }

    QList<Instances::Request> asked() override { return m_asked; }

    bool isAsked(const QString &, const Instances::Request &request) override
    {
        return m_platform.programs.receive(request);
    }

    QUrl makeBundle(const QVariantMap &info, const QStringList &resources) override
    {
        FakeBundle bundle;
        bundle.url = QUrl(QStringLiteral("file:///bundles/%1").arg(m_platform.bundles.size()));
        bundle.info = info;
        for (const QString &name : resources)
            bundle.resources.insert(name, QUrl(bundle.url.toString() + u'/' + name));
        m_platform.bundles.append(bundle);
        return bundle.url;
    }

    bool waitFor(const std::function<bool()> &isTrue) override
    {
        constexpr double step = 0.001; // seconds
        for (double passed = 0; !isTrue() && passed < 5; passed += step) {
            m_platform.queue.advance(step);
            QCoreApplication::processEvents();
        }
        return isTrue();
    }

private:
    FakeUserDefaults &suite() { return m_platform.suite(suiteName()); }

    QList<Instances::Request> m_asked;
    FakePlatform &m_platform = FakePlatform::install();
};
