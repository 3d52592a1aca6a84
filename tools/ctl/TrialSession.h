#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A login session with folders and a message bus of its own, that is there as long as this object. The environment of
/// this process is changed to it, so it is made before anything asks for the bus or a folder.
class TrialSession {
public:
    TrialSession();
    ~TrialSession();
    TrialSession(const TrialSession &) = delete;
    TrialSession &operator=(const TrialSession &) = delete;

    /// False when there is no bus.
    bool isValid() const { return m_isValid; }

    /// Ends the bus and starts another one at its address; false when it does not start.
    bool restartBus();

private:
    bool startBus();
    void stopBus();

    QTemporaryDir m_folder;
    QProcess m_bus;
    bool m_isValid = false;
};
