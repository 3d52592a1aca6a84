#pragma once

#include <QObject>
#include <QVariant>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QTimer;

/// A suite of settings that several processes read and write. The last writer of a key wins.
///
/// A value is a bool, a double or a QString. Main thread only. Nothing here waits but `finishWrites`: a value that is
/// set reads back at once and is stored meanwhile, one after the other in their order. What could not be stored is
/// tried again when there is reason to hope, and until then its key reads as what is stored.
class UserDefaults : public QObject {
    Q_OBJECT
public:
    /// Why something that was set is not stored.
    enum class Trouble {
        none,
        noStore, ///< There is nothing to store in. Values live in memory for as long as the process runs.
        noAnswer, ///< Whoever stores the settings does not answer.
        noRoom, ///< The disk is full, or cannot be written to.
        locked, ///< The administrator has locked the key. Its value is not tried again.
        unknown, ///< It was said to be stored, but is not there, or was refused for another reason.
    };
    Q_ENUM(Trouble)

    explicit UserDefaults(QObject *parent = nullptr);
    ~UserDefaults() override;

    /// The value that was set last, where it is stored or on its way, else the stored one; an invalid QVariant when the
    /// key is absent or holds any other type.
    QVariant value(const QString &key) const;

    /// Returns at once. A whole number is stored as a double, an invalid value removes the key, and one of any other
    /// type is ignored, as is one that the key has already.
    void setValue(const QString &key, const QVariant &value);

    /// False where the administrator has locked the key.
    virtual bool isWritable(const QString &key) const = 0;

    /// Runs `action` once all that was set since the action before this one is stored; at once if it is. When nothing
    /// of it will be stored, because other values have taken its place, the action is dropped with it. A second action
    /// of the same name that waits for the same values is dropped, too.
    void afterWrites(const QString &name, std::function<void()> action);

    /// Tries once more what could not be stored, and waits until all is decided, at most so long. True when nothing is
    /// left to be stored.
    bool finishWrites(std::chrono::milliseconds limit);

    /// Why what was set last is not stored; `none` as soon as everything is.
    Trouble trouble() const { return m_trouble; }

    /// How long to wait before the first attempt that nothing but time gives reason for. Each further one comes after
    /// twice the time, up to a minute. Five seconds unless set.
    void setRetryInterval(std::chrono::milliseconds first);

signals:
    /// The value of `key` may have changed, by this process or by another one.
    /// An empty key says that any key may have.
    void changed(const QString &key);

    /// What was set earlier could not be stored, and the key reads as what is stored again; or it is stored at last,
    /// and the key reads so again. Follows `changed`.
    void revised(const QString &key);

    void troubleChanged();

    /// Everything that was set is stored, or could not be.
    void settled();

protected:
    /// The value as the store has it now, as described at `value`.
    virtual QVariant storedValue(const QString &key) const = 0;

    /// Begins to store the value, an invalid one to remove the key, and calls `storeFinished`, now or later. No other
    /// one begins before that.
    virtual void store(const QString &key, const QVariant &value) = 0;

    /// `none` says that the value is in the store, and was seen there.
    void storeFinished(Trouble trouble);

    /// Somebody else has changed the key, or with an empty one perhaps all of them. That change is the later one: what
    /// waits to be stored there is given up.
    void storedChanged(const QString &key);

    /// Tries again what could not be stored.
    void retry();

    /// `value` as one of the types a suite holds, an invalid one included; none for a value of any other type.
    static std::optional<QVariant> storable(const QVariant &value);

    /// Whether the two have the same type and value.
    static bool isSame(const QVariant &one, const QVariant &other);

private:
    /// The values that one action waits for.
    struct Group {
        bool hasWrites = false;
        bool hasStored = false;
    };

    /// A value to be stored, or an action to be run after those of its group.
    struct Entry {
        enum class State { due, sending, failed };

        QString name; ///< The key, or the name of the action.
        QVariant value;
        std::function<void()> action;
        std::shared_ptr<Group> group;
        State state = State::due;
        /// Why the last attempt failed.
        Trouble trouble = Trouble::none;
        /// A value that could not be stored shows no longer, unless memory is the only store there is.
        bool isShown = true;

        bool isWriteOf(const QString &key) const { return !action && name == key; }
    };

    void proceed();
    qsizetype indexOf(Entry::State state) const;
    qsizetype nextEntry() const;
    void run(const Entry &action);
    void stored(const Entry &entry);
    void refuse(qsizetype index, Trouble trouble);
    void announce(const Entry &entry);
    void updateTrouble();
    void scheduleRetry();

    /// In the order in which they were asked for.
    QList<Entry> m_entries;
    std::shared_ptr<Group> m_openGroup = std::make_shared<Group>();
    /// While a value is announced that was set earlier, what it belongs to: an action that this causes belongs there,
    /// too.
    std::shared_ptr<Group> m_announcedGroup;
    bool m_isProceeding = false;
    bool m_isLocked = false;
    Trouble m_trouble = Trouble::none;
    std::chrono::milliseconds m_firstRetry;
    std::chrono::milliseconds m_nextRetry;
    std::unique_ptr<QTimer> m_retryTimer;
};
