#pragma once

#include <QRect>
#include <QStringList>

#include <atspi/atspi-constants.h>
#include <functional>
#include <memory>
#include <optional>

struct _AtspiAccessible;

/// One element of a program's accessibility tree, as an assistive technology sees it over the bus.
///
/// A value that may be null. An element that is gone, and a call that fails, answer with nothing: no text, no
/// children, no state. Nothing is cached, every question goes to the program.
class Accessible {
public:
    using Predicate = std::function<bool(const Accessible &)>;

    Accessible() = default;

    /// The root of the program with that process id, null while it is not on the accessibility bus.
    static Accessible application(qint64 processId);

    bool isNull() const { return !m_object; }
    explicit operator bool() const { return !isNull(); }
    bool operator==(const Accessible &other) const { return m_object == other.m_object; }

    QString name() const;
    QString description() const;
    AtspiRole role() const;
    QString roleName() const;
    bool has(AtspiStateType state) const;
    QStringList states() const;
    Accessible parent() const;
    QList<Accessible> children() const;

    /// On the screen, in pixels.
    QRect extents() const;

    QStringList actions() const;
    /// False when the element has no action of that name, or refused it.
    bool doAction(const QString &name) const;

    /// The characters of a text element; empty for every other one.
    QString text() const;
    std::optional<double> value() const;

    bool grabFocus() const;

    /// This element and all below it that `matches`, in the order of the tree.
    QList<Accessible> findAll(const Predicate &matches) const;

    /// The first element, this one included, with that role and name that is showing; null when there is
    /// none.
    Accessible find(AtspiRole role, const QString &name) const;

    /// The tree from here on, a line an element, for messages.
    QString dump() const;

private:
    explicit Accessible(_AtspiAccessible *owned);

    std::shared_ptr<_AtspiAccessible> m_object;
};
