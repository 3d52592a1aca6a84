#include "VirtualDisplay.h"

#include "ChildProcess.h"

VirtualDisplay::VirtualDisplay(QSize size)
{
    ChildProcess::endWithThisProcess(m_server);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
    // The server picks a free number itself and writes it once it listens.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                    screen, QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    if (const QByteArray number = ChildProcess::firstLine(m_server); !number.isEmpty())
        m_name = ":" + number;
}

VirtualDisplay::~VirtualDisplay()
{
    ChildProcess::stop(m_server);
}

bool VirtualDisplay::setKeyboardLayout(const QString &layout) const
{
    return QProcess::execute(
               QStringLiteral("setxkbmap"),
               {QStringLiteral("-display"), QString::fromLatin1(m_name), QStringLiteral("-layout"), layout})
        == 0;
}
