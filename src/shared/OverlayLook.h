#pragma once

#include "AppStorage.h"

/// The look of the overlay buttons as the store has it, whoever wrote it. Writing a value stores it, also when it is
/// the one that stands there.
///
/// A theme and a size are raw strings. One that nobody knows is handed on as it is: what draws the buttons falls back.
class OverlayLook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString theme READ theme WRITE setTheme NOTIFY changed)
    Q_PROPERTY(QString size READ size WRITE setSize NOTIFY changed)
    Q_PROPERTY(bool showMinimize READ showMinimize WRITE setShowMinimize NOTIFY changed)
    Q_PROPERTY(bool showMaximize READ showMaximize WRITE setShowMaximize NOTIFY changed)
public:
    explicit OverlayLook(QObject *parent = nullptr);

    QString theme() const { return m_theme.value().toString(); }
    void setTheme(const QString &theme) { m_theme.setValue(theme); }
    QString size() const { return m_size.value().toString(); }
    void setSize(const QString &size) { m_size.setValue(size); }
    bool showMinimize() const { return m_showMinimize.value().toBool(); }
    void setShowMinimize(bool show) { m_showMinimize.setValue(show); }
    bool showMaximize() const { return m_showMaximize.value().toBool(); }
    void setShowMaximize(bool show) { m_showMaximize.setValue(show); }

    /// Stores the defaults.
    void reset();

signals:
    /// One of the four has another value. Several that change at once are announced one by one.
    void changed();

private:
    AppStorage m_theme;
    AppStorage m_size;
    AppStorage m_showMinimize;
    AppStorage m_showMaximize;
};
