#include "Compositor.h"

#include "ChildProcess.h"
#include "LauncherToken.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

namespace {

constexpr const char *configuration = R"(output X11-1 resolution 1280x800 position 0 0
output X11-1 background #5a7fa8 solid_color
default_border none
default_floating_border none
focus_on_window_activation focus
exec echo $SWAYSOCK $WAYLAND_DISPLAY
)";

// The compositor refuses the root user.
constexpr uid_t nobody = 65534;

QRect rectangle(const QJsonObject &object)
{
    return {object[u"x"].toInt(), object[u"y"].toInt(), object[u"width"].toInt(), object[u"height"].toInt()};
}

}

Compositor::Compositor(const QProcessEnvironment &environment)
{
    const QString file = m_folder.filePath(QStringLiteral("config"));
    if (QFile config(file); !config.open(QIODevice::WriteOnly) || config.write(configuration) < 0)
        return;
    QStringList command = {QStringLiteral("sway"), QStringLiteral("--config"), file};
    if (geteuid() == 0) {
        if (chown(qPrintable(m_folder.path()), nobody, nobody) != 0)
            return;
        const QString user = QString::number(nobody);
        // The signal that ends it with this process is lost with the user.
        command = QStringList{QStringLiteral("setpriv"),
                              QStringLiteral("--reuid"),
                              user,
                              QStringLiteral("--regid"),
                              user,
                              QStringLiteral("--clear-groups"),
                              QStringLiteral("--pdeathsig"),
                              QStringLiteral("KILL")}
            + command;
    }
    QProcessEnvironment own = environment;
    own.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    own.insert(QStringLiteral("HOME"), m_folder.path());
    own.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    own.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("x11"));
    own.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
    m_server.setProcessEnvironment(own);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    ChildProcess::endWithThisProcess(m_server);
    m_server.start(command.takeFirst(), command);
    const QStringList names = QString::fromUtf8(ChildProcess::firstLine(m_server)).split(u' ');
    if (names.size() != 2)
        return;
    m_control = names.first();
    m_display = m_folder.filePath(names.last());
}

Compositor::~Compositor()
{
    ChildProcess::stop(m_server);
}

QProcessEnvironment Compositor::inside(QProcessEnvironment environment) const
{
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), m_display);
    return environment;
}

QString Compositor::launcherToken() const
{
    return QString::fromUtf8(::launcherToken(m_display));
}

QList<Compositor::Window> Compositor::windowsOf(qint64 processId) const
{
    QList<Window> windows;
    const QByteArray tree = answer({QStringLiteral("-t"), QStringLiteral("get_tree")});
    collect(QJsonDocument::fromJson(tree).object(), processId, windows);
    return windows;
}

void Compositor::collect(const QJsonObject &node, qint64 processId, QList<Window> &windows) const
{
    if (node[u"pid"].toInteger() == processId && node[u"visible"].toBool()) {
        windows.append({node[u"app_id"].toString(), node[u"name"].toString(), rectangle(node[u"rect"].toObject()),
                        node[u"focused"].toBool()});
    }
    for (const char *kind : {"nodes", "floating_nodes"}) {
        const QJsonArray children = node[QLatin1String(kind)].toArray();
        for (const QJsonValue &child : children)
            collect(child.toObject(), processId, windows);
    }
}

void Compositor::move(qint64 processId, QPoint to) const
{
    answer({QStringLiteral("[pid=%1] move absolute position %2 %3").arg(processId).arg(to.x()).arg(to.y())});
}

void Compositor::close(qint64 processId) const
{
    answer({QStringLiteral("[pid=%1] kill").arg(processId)});
}

QByteArray Compositor::answer(const QStringList &question) const
{
    QProcess client;
    client.start(QStringLiteral("swaymsg"),
                 QStringList{QStringLiteral("--raw"), QStringLiteral("--socket"), m_control} + question);
    client.waitForFinished();
    return client.readAllStandardOutput();
}
