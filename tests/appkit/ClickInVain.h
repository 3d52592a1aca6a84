#pragma once

#include <QTest>
#include <QWidget>

/// A click on a view that takes none.
inline void clickInVain(QWidget &view, QPoint place = {})
{
    QTest::ignoreMessage(QtWarningMsg, "Mouse event \"MousePress\" not accepted by receiving widget");
    QTest::ignoreMessage(QtWarningMsg, "Mouse event \"MouseRelease\" not accepted by receiving widget");
    QTest::mouseClick(&view, Qt::LeftButton, {}, place);
}
