#pragma once

#include "Desktop.h"

#include <QGuiApplication>
#include <QTest>

/// The main() of a test whose own windows stand on a virtual display, in a session of its own, and is told of it.
/// `scale` is how many pixels make a point.
template <typename Test> int runOnDesktop(int argc, char **argv, const char *scale = "1")
{
    const Desktop desktop;
    if (!desktop.isValid())
        return 1;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", scale);
    const QGuiApplication application(argc, argv);
    Test test(desktop);
    return QTest::qExec(&test, argc, argv);
}
