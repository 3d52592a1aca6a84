#pragma once

#include "Desktop.h"
#include "TestProgram.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

/// Runs a test whose own windows stand on a virtual display, in a session of its own, and is told of it.
/// The environment's CORVANE_TEST_SCALE is how many pixels make a point, 1 unless given.
template <typename Test> int runOnDesktop(int argc, char **argv)
{
    const Desktop desktop;
    if (!desktop.isValid())
        return 1;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", qEnvironmentVariable("CORVANE_TEST_SCALE", "1").toLatin1());
    const QGuiApplication application(argc, argv);
    return runTest<Test>(argc, argv, desktop);
}

/// Runs a test without windows of its own, which is told of the desktop on which it starts programs.
template <typename Test> int runBesideDesktop(int argc, char **argv)
{
    const Desktop desktop;
    if (!desktop.isValid())
        return 1;
    const QCoreApplication application(argc, argv);
    return runTest<Test>(argc, argv, desktop);
}

/// Runs a test whose own windows stand on a virtual display with assistive technologies.
template <typename Test, typename Application = QGuiApplication> int runOnAccessibleDesktop(int argc, char **argv)
{
    Desktop desktop;
    if (!desktop.isValid())
        return 1;
    const QProcessEnvironment environment = desktop.environment();
    for (const QString &name : environment.keys())
        qputenv(qPrintable(name), environment.value(name).toLocal8Bit());
    const Application application(argc, argv);
    // Qt waits for this service, but does not start it.
    QDBusConnection::sessionBus().interface()->startService(QStringLiteral("org.a11y.Bus"));
    return runBare<Test>(argc, argv);
}
