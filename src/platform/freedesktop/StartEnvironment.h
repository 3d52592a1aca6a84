#pragma once

#include <QByteArrayList>

/// What Qt cannot find out by itself on Wayland, told to it through the environment: the person's text size, and that
/// no window has a frame which Qt would have to draw. What a person has set there stands.
///
/// To be made before the application object. What it has set goes when it does, once the first window is shown, so that
/// programs started later do not inherit it.
class StartEnvironment {
public:
    StartEnvironment();
    ~StartEnvironment();
    StartEnvironment(const StartEnvironment &) = delete;
    StartEnvironment &operator=(const StartEnvironment &) = delete;

private:
    void set(const char *variable, const QByteArray &value);

    QByteArrayList m_set;
};
