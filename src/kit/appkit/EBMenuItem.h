#pragma once

#include <QAction>

#include <functional>

/// An item of a menu that runs its handler when it is chosen.
class EBMenuItem : public QAction {
    Q_OBJECT
public:
    EBMenuItem(const QString &title, std::function<void()> handler, QObject *parent = nullptr);

    std::function<void()> handler;

private:
    void run();
};
