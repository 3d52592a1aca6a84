#pragma once

#include <QProcess>
#include <QTest>

/// What a command prints, without the last line end, when it has ended well; fails the test when it has not.
inline QString outputOf(const QString &program, const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + QStringLiteral(": ") + process.readAllStandardError()), __FILE__, __LINE__);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// The store as another process sees it.
inline QString dconf(const QStringList &arguments, const QByteArray &input = {})
{
    return outputOf(QStringLiteral("dconf"), arguments, input);
}
