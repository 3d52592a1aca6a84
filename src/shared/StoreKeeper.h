#pragma once

#include "StateFile.h"
#include "StoreCopyWriter.h"

#include <QObject>
#include <QVariantMap>

#include <chrono>

/// Keeps a copy of the settings in the state folder, from which they can be restored when the store has lost them all.
///
/// What the agent reports of itself ("agent.") is not copied. The copy follows each change of the store, whoever made
/// it, two seconds later and off the main thread, and at the latest when it is finished: a store that is emptied until
/// then has an empty copy. While changes cannot be stored the copy stays as it is.
///
/// A store that has nothing of ours when this object is made, although there is a copy, counts as lost. That copy is
/// put aside until the person has decided, this time or at a later start; meanwhile new changes are copied beside it.
/// Nothing is restored by itself, and a damaged copy counts as none.
class StoreKeeper : public QObject {
    Q_OBJECT
public:
    StoreKeeper();

    /// Copies at once what has changed, and waits for that as long as this and no longer. To be called before the
    /// process ends, which leaves the copy before where a newer one is not whole.
    void finish(std::chrono::milliseconds limit);

    /// Whether the person is to decide what becomes of lost settings.
    bool hasLost() const { return m_hasLost; }

    /// Stores every value of the copy, in place of what has been set since, and tells the agent. They stay lost until
    /// they are stored.
    void restore();

    /// Forgets the lost settings.
    void startFresh();

signals:
    void lostChanged();

private:
    void schedule();
    void write();
    static QVariantMap values();

    const StateFile m_copy;
    const StateFile m_lost;
    bool m_hasLost = false;
    /// Something has changed since the last copy.
    bool m_isDue = false;
    StoreCopyWriter m_writer;
};
