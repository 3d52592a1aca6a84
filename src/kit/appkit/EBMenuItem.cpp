#include "EBMenuItem.h"

EBMenuItem::EBMenuItem(const QString &title, std::function<void()> handler, QObject *parent)
    : QAction(title, parent), handler(std::move(handler))
{
    connect(this, &QAction::triggered, this, &EBMenuItem::run);
}

void EBMenuItem::run()
{
    // A copy: the handler may end the item.
    const auto act = handler;
    if (act)
        act();
}
