#pragma once

#include "Require.h"

#include <QQuickItem>

/// What a look-up in a window found. Asking whether it is there does no harm; using it ends the test function with a
/// failure that says what is missing.
class FoundItem {
public:
    /// `sought` describes what was looked for.
    FoundItem(QQuickItem *item, QString sought) : m_item(item), m_sought(std::move(sought)) { }

    operator bool() const { return m_item; }
    operator QQuickItem *() const
    {
        if (!m_item)
            throw TestFailure{"there is no " + m_sought.toUtf8()};
        return m_item;
    }
    QQuickItem *operator->() const { return *this; }

private:
    QQuickItem *m_item;
    QString m_sought;
};

/// What a look-up found, in order. A place beyond the end ends the test function with a failure.
template <typename Item> class FoundItems : public QList<Item *> {
public:
    using QList<Item *>::QList;

    Item *at(qsizetype place) const
    {
        if (place < 0 || place >= this->size()) {
            throw TestFailure{QByteArray(Item::staticMetaObject.className()) + " number " + QByteArray::number(place)
                              + " is missing, of " + QByteArray::number(this->size())};
        }
        return QList<Item *>::at(place);
    }
    Item *constFirst() const { return at(0); }
    Item *constLast() const { return at(this->size() - 1); }
};
