#pragma once

#include "Accessible.h"
#include "CommandListener.h"
#include "Desktop.h"
#include "Keyboard.h"
#include "Pointer.h"
#include "Program.h"
#include "Screen.h"
#include "Store.h"
#include "TopLevel.h"

#include <QHash>
#include <QTest>

#include <memory>
#include <optional>

class ReferenceAgent;

/// Defines `variable` as the element with that role and name, and fails the test when it does not appear in
/// time.
#define FIND(variable, role, name)                                                                                     \
    const Accessible variable = find(role, QStringLiteral(name));                                                      \
    QVERIFY2(variable, "no " #role " \"" name "\"")

/// What every test of the running program has: a desktop session for all its functions, and for each function
/// an empty store without a copy, and a program that must end well and leave nothing in its log that was not expected.
class EndToEndTest : public QObject {
    Q_OBJECT
public:
    EndToEndTest();
    ~EndToEndTest() override;

protected:
    /// How to start the program. A null value in `environment` takes the variable away.
    struct Launch {
        QStringList arguments = {};
        QHash<QString, QString> environment = {};
        QString executable = defaultExecutable();
    };

    /// Starts the program and waits until its window is on the screen. False when that takes too long.
    bool launch() { return launch(Launch()); }
    bool launch(const Launch &how);

    /// The same, and waits until the window's content is on the accessibility bus.
    bool open() { return open(Launch()); }
    bool open(const Launch &how);

    /// The log of the program may and must hold this line once.
    void expectInLog(const QString &line) { m_expectedLog.append(line); }

    static QString defaultExecutable();

    /// What a program started in this session gets; where its window stands, and how to close it from outside. Those of
    /// the X display, unless a test has another.
    virtual QProcessEnvironment environment() const;
    virtual bool hasWindow() const;
    virtual void closeWindow() const;

    /// Where the middle of an element of the program is on the screen.
    virtual QPoint place(const Accessible &element) const { return element.extents().center(); }

    const Desktop &desktop() const { return *m_session->desktop; }
    const Store &store() const { return m_session->store; }
    CommandListener &commands() const { return m_session->commands; }
    const Screen &screen() const { return m_session->screen; }
    const Pointer &pointer() const { return m_session->pointer; }
    const Keyboard &keyboard() const { return m_session->keyboard; }
    Program &program() const { return *m_program; }

    /// The program's window; none before it is on the screen.
    std::optional<TopLevel> window() const;

    /// The program's root on the accessibility bus.
    Accessible application() const { return Accessible::application(m_program->processId()); }

    /// Waits for the showing element with that role and name; null when it does not appear in time.
    Accessible find(AtspiRole role, const QString &name) const;

    /// Waits until no showing element has that role and name.
    bool disappears(AtspiRole role, const QString &name) const;

    void click(const Accessible &element) const { pointer().click(place(element)); }

    /// Clicks the button of that name; false when it does not appear in time.
    bool clickButton(const QString &name) const;

    /// Takes what is at `from`, in the program, by the pointer to `to`, in a window of `agent`, and lets go there.
    void drag(QPoint from, QPoint to, const ReferenceAgent &agent) const;

    /// Waits until a person is shown, or is no longer shown, that text, as an element's name or as its description.
    bool shows(const QString &text) const;
    bool doesNotShow(const QString &text) const;

    /// Waits until the element has, or has lost, a state.
    static bool becomes(const Accessible &element, AtspiStateType state, bool present = true);

    /// Waits until the program has handled what was sent to it, and the commands it posted have arrived.
    void settle() const;

protected Q_SLOTS:
    /// A test that has more to begin calls this first.
    void initTestCase();
    /// A test that has more to end does so first and then calls this.
    void cleanup();

private Q_SLOTS:
    void init();

private:
    struct Session {
        explicit Session(std::unique_ptr<Desktop> of);

        std::unique_ptr<Desktop> desktop;
        Store store;
        CommandListener commands;
        Screen screen;
        Pointer pointer;
        Keyboard keyboard;
    };

    void closeProgram() const;

    std::unique_ptr<Session> m_session;
    std::unique_ptr<Program> m_program;
    QStringList m_expectedLog;
};
