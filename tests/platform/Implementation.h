#pragma once

#include "Platform.h"

#include <functional>

/// One implementation of the services, and a hand on what lies around it: other processes, the person, the display and
/// time. Each test of a service runs over all of them.
class Implementation {
public:
    virtual ~Implementation() = default;

    /// The suite that another process writes to.
    static QString suiteName() { return QStringLiteral("com.vexmoor.corvane"); }

    /// Another process stores a value; an invalid one removes the key.
    virtual void store(const QString &key, const QVariant &value) = 0;

    /// What another process finds stored; invalid where there is nothing.
    virtual QVariant stored(const QString &key) = 0;

    /// False: there is no room for anything, until it is true again.
    virtual void setHasRoom(bool hasRoom) = 0;

    /// True: whoever stores the settings does nothing any more, until it is false again.
    virtual void setHangs(bool hangs) = 0;

    /// The administrator locks the key, before its suite is opened.
    virtual void lock(const QString &key) = 0;

    struct Look {
        bool isDark = false;
        bool isHighContrast = false;
        bool reducesMotion = false;
    };

    /// The person chooses how the desktop looks.
    virtual void choose(const Look &look) = 0;

    /// The person presses a key in a window of this application. True when the window was not sent it.
    virtual bool press(const KeyDown &key) = 0;

    /// These windows, front to back, are what is on the screen; their bounds are whole pixels.
    virtual void show(const QList<OnScreenWindow> &windows) = 0;

    /// What a process that is asked to do something says.
    enum class Answer { Done, Refused };

    /// Another process holds that name from now on, and answers whatever it is asked in that way.
    virtual void hold(const QString &name, Answer answer) = 0;

    /// What that process was asked.
    virtual QList<Instances::Request> asked() = 0;

    /// Another process asks this one, which holds that name. True when it was done.
    virtual bool isAsked(const QString &name, const Instances::Request &request) = 0;

    /// A bundle with an info dictionary and resources, whose contents do not matter.
    virtual QUrl makeBundle(const QVariantMap &info, const QStringList &resources) = 0;

    /// Lets time pass until that is true; false when it does not become true.
    virtual bool waitFor(const std::function<bool()> &isTrue) = 0;
};

#define VERIFY_SOON(condition) QVERIFY(implementation().waitFor([&] { return bool(condition); }))
