#pragma once

#include <QObject>

/// A program among those that the desktop starts at login. The agent has one; this application only tells the agent.
class LoginItem : public QObject {
    Q_OBJECT
public:
    enum class State { NotRegistered, NeedsApproval, Enabled };

    /// What the desktop is told of the program.
    struct Program {
        /// Dotted, such as "com.vexmoor.corvane".
        QString identifier;
        QString name;
        /// The file to start.
        QString executable;
    };

    using QObject::QObject;

    virtual State state() const = 0;
    virtual void setRegistered(bool registered) = 0;

signals:
    /// The state may have changed, by this process or by the desktop's settings.
    void changed();
};
