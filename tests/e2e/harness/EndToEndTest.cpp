#include "EndToEndTest.h"

#include "FailureReport.h"
#include "ReferenceAgent.h"

#include <QDir>

namespace {

constexpr int answerTime = 5000; // milliseconds

bool isShown(const Accessible &root, const QString &text)
{
    const auto carries = [&](const Accessible &element) {
        return element.has(ATSPI_STATE_SHOWING) && (element.name() == text || element.description() == text);
    };
    return !root.findAll(carries).isEmpty();
}

}

EndToEndTest::Session::Session(std::unique_ptr<Desktop> of)
    : desktop(std::move(of)), commands(store), screen(desktop->x()), pointer(desktop->x()), keyboard(desktop->x())
{
}

EndToEndTest::EndToEndTest() = default;
EndToEndTest::~EndToEndTest() = default;

QString EndToEndTest::defaultExecutable()
{
    return QStringLiteral(CORVANE_SETTINGS_PROGRAM);
}

void EndToEndTest::initTestCase()
{
    auto desktop = std::make_unique<Desktop>();
    QVERIFY2(desktop->isValid(), "no virtual display or no session bus");
    m_session = std::make_unique<Session>(std::move(desktop));
}

void EndToEndTest::init()
{
    m_expectedLog.clear();
    commands().clear();
    store().removeAll();
    QDir(desktop().session().stateFolder()).removeRecursively();
}

void EndToEndTest::cleanup()
{
    if (!m_program)
        return;
    if (QTest::currentTestFailed())
        qInfo("See %s", qPrintable(writeFailureReport(screen(), application(), m_program.get())));
    else
        closeProgram();
    const std::unique_ptr<Program> ended = std::move(m_program);
    if (QTest::currentTestFailed())
        return;
    QVERIFY2(!ended->isRunning(), "the program did not end when its window was closed");
    const QStringList complaints = ended->complaints(m_expectedLog);
    for (const QString &line : std::as_const(m_expectedLog))
        QCOMPARE(ended->standardError().count(line), 1);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
    QCOMPARE(ended->exitCode(), 0);
}

void EndToEndTest::closeProgram() const
{
    // Ending by itself is what lets the leak check of the sanitizers run.
    closeWindow();
    m_program->waitForExit();
}

QProcessEnvironment EndToEndTest::environment() const
{
    return desktop().environment();
}

bool EndToEndTest::hasWindow() const
{
    return window().has_value();
}

void EndToEndTest::closeWindow() const
{
    if (const auto open = window())
        open->close();
}

bool EndToEndTest::launch(const Launch &how)
{
    QProcessEnvironment environment = this->environment();
    for (auto entry = how.environment.cbegin(); entry != how.environment.cend(); ++entry) {
        if (entry.value().isNull())
            environment.remove(entry.key());
        else
            environment.insert(entry.key(), entry.value());
    }
    m_program = std::make_unique<Program>(how.executable, environment);
    return m_program->start(how.arguments)
        && QTest::qWaitFor([this] { return hasWindow() || !m_program->isRunning(); }, startTime) && hasWindow();
}

bool EndToEndTest::open(const Launch &how)
{
    const auto hasContent = [this] {
        const QList<Accessible> windows = application().children();
        return !windows.isEmpty() && !windows.first().children().isEmpty();
    };
    return launch(how) && QTest::qWaitFor(hasContent, startTime);
}

std::optional<TopLevel> EndToEndTest::window() const
{
    const QList<TopLevel> windows = TopLevel::ofProcess(desktop().x(), m_program->processId());
    for (const TopLevel &candidate : windows) {
        if (candidate.isViewable())
            return candidate;
    }
    return std::nullopt;
}

Accessible EndToEndTest::find(AtspiRole role, const QString &name) const
{
    Accessible found;
    const bool appeared = QTest::qWaitFor(
        [&] {
            found = application().find(role, name);
            return !found.isNull();
        },
        answerTime);
    return appeared ? found : Accessible();
}

bool EndToEndTest::disappears(AtspiRole role, const QString &name) const
{
    return QTest::qWaitFor([&] { return application().find(role, name).isNull(); }, answerTime);
}

bool EndToEndTest::clickButton(const QString &name) const
{
    const Accessible button = find(ATSPI_ROLE_PUSH_BUTTON, name);
    if (button)
        click(button);
    return !button.isNull();
}

void EndToEndTest::drag(QPoint from, QPoint to, const ReferenceAgent &agent) const
{
    pointer().move(from);
    pointer().press();
    // Each position is offered to the window under the pointer, which has to answer before the next one.
    for (int step = 1; step <= 20; ++step) {
        pointer().move(from + (to - from) * step / 20);
        application().name();
        agent.tree().name();
    }
    pointer().release();
}

bool EndToEndTest::shows(const QString &text) const
{
    return QTest::qWaitFor([&] { return isShown(application(), text); }, answerTime);
}

bool EndToEndTest::doesNotShow(const QString &text) const
{
    return QTest::qWaitFor([&] { return !isShown(application(), text); }, answerTime);
}

bool EndToEndTest::becomes(const Accessible &element, AtspiStateType state, bool present)
{
    return QTest::qWaitFor([&] { return element.has(state) == present; }, answerTime);
}

void EndToEndTest::settle() const
{
    // An answer from the tree comes from the program's main thread, after all that stood in its queue. The program
    // stores one value after the other, each once the one before is answered.
    constexpr int mostValuesAtOnce = 8;
    for (int value = 0; value < mostValuesAtOnce; ++value) {
        application().name();
        commands().settleStore();
    }
    application().name();
    commands().settle(m_program->processId());
}
