#pragma once

#include <QHashFunctions>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

/// A window's rectangle in fractions of its display's width and height. Nothing bounds the numbers to 0 … 1.
struct UnitRect {
    double x = 0;
    double y = 0;
    double w = 0;
    double h = 0;

    bool operator==(const UnitRect &) const = default;
};

inline size_t qHash(const UnitRect &rect, size_t seed = 0) noexcept
{
    return qHashMulti(seed, rect.x, rect.y, rect.w, rect.h);
}

/// A named arrangement of windows that the agent has recorded and can put back. `id` tells it from the others.
struct SavedLayout {
    struct Window {
        QString bundleID;
        /// The application's display name.
        QString app;
        /// The window's own title.
        QString title;
        UnitRect rect;
        /// The display the window stood on; none where the agent did not record it.
        std::optional<QString> display;

        bool operator==(const Window &) const = default;
    };

    QUuid id;
    QString name;
    QList<Window> windows;
    /// Seconds since 2001-01-01 00:00:00 UTC. The number itself, so that it is written as it was read.
    double created = 0;

    bool operator==(const SavedLayout &) const = default;
};
