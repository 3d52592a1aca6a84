#pragma once

#include <QRegularExpression>
#include <QTest>
#include <QWidget>

/// Every warning fails the test, but those in which the platform without a screen names what it cannot do.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

/// A click on a view that takes none.
inline void clickInVain(QWidget &view, QPoint place = {})
{
    QTest::ignoreMessage(QtWarningMsg, "Mouse event \"MousePress\" not accepted by receiving widget");
    QTest::ignoreMessage(QtWarningMsg, "Mouse event \"MouseRelease\" not accepted by receiving widget");
    QTest::mouseClick(&view, Qt::LeftButton, {}, place);
}
