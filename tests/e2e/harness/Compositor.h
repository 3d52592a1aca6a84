#pragma once

#include <QList>
#include <QPoint>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QTemporaryDir>

class QJsonObject;

/// A Wayland compositor, whose screen is a window that fills the test's display: pointer, keyboard and picture are
/// those of the display. Windows of fixed size stand in its middle, without frames. It ends with this object, and with
/// the test process however that one ends.
class Compositor {
public:
    /// `environment` names the display. Waits until the compositor takes connections.
    explicit Compositor(const QProcessEnvironment &environment);
    ~Compositor();

    bool isValid() const { return !m_display.isEmpty(); }

    /// `environment` for a program whose windows are to stand here, and which knows nothing of the X display.
    QProcessEnvironment inside(QProcessEnvironment environment) const;

    /// A top-level window as the compositor knows it, in pixels of the screen.
    struct Window {
        QString appId;
        QString title;
        QRect frame;
        bool hasFocus;
    };

    /// The right to come to the front, as a launcher hands it to what the person starts; empty where there is none.
    QString launcherToken() const;

    /// The windows of that process that are on the screen, in no order.
    QList<Window> windowsOf(qint64 processId) const;

    /// Moves the windows of that process, or asks them to close.
    void move(qint64 processId, QPoint to) const;
    void close(qint64 processId) const;

private:
    QByteArray answer(const QStringList &question) const;
    void collect(const QJsonObject &node, qint64 processId, QList<Window> &windows) const;

    QTemporaryDir m_folder;
    QProcess m_server;
    QString m_control;
    QString m_display;
};
