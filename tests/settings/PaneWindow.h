#pragma once

#include "ViewWindow.h"

/// A settings pane in a window of its own.
class PaneWindow : public ViewWindow {
public:
    /// `stored` is what the store holds before the pane is made.
    explicit PaneWindow(const QString &url, const QVariantMap &stored = {}, bool reduceMotion = true)
        : ViewWindow(stored)
    {
        platform.look.setReduceMotion(reduceMotion);
        put(ViewEngine::make(engine, url), {386, 1000});
        bringUp();
    }

    /// What was posted to the agent, in order.
    const QList<FakeDistributedNotificationCenter::Post> &posts() const { return platform.notifications.posts; }

    /// What there is to read, from top to bottom: an entry a row, or a text outside of one. In a row the title, the
    /// detail and what stands at its trailing edge.
    QStringList texts()
    {
        Places found;
        collectTexts(window().contentItem(), found);
        std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
        QStringList list;
        for (const auto &entry : found)
            list.append(entry.second);
        return list;
    }

    bool isChecked(const QString &name, QAccessible::Role role = QAccessible::CheckBox)
    {
        return state(name, role).checked;
    }
    bool isDisabled(const QString &name, QAccessible::Role role) { return state(name, role).disabled; }

    /// Moves the pointer to the middle of the item, once what has just changed is laid out.
    void pointAt(QQuickItem *item)
    {
        waitForFrame();
        // A pointer that is there already moves nowhere.
        pointAtNothing();
        point(item, {item->width() / 2, item->height() / 2});
    }
    void pointAtNothing() { QTest::mouseMove(&window(), QPoint(2, 2)); }

private:
    using Places = QList<QPair<qreal, QString>>;

    static void collectTexts(QQuickItem *item, Places &found)
    {
        if (!item->isVisible())
            return;
        const auto *accessible = QAccessible::queryAccessibleInterface(item);
        const QAccessible::Role role = accessible ? accessible->role() : QAccessible::NoRole;
        if (role == QAccessible::Grouping)
            found.append({item->mapToScene({}).y(), textsAcross(item).join(QStringLiteral(" | "))});
        else if (role == QAccessible::StaticText)
            found.append({item->mapToScene({}).y(), accessible->text(QAccessible::Name)});
        else
            for (QQuickItem *child : item->childItems())
                collectTexts(child, found);
    }

    /// The texts in a row: what begins further to the left comes first, then what stands higher.
    static QStringList textsAcross(QQuickItem *row)
    {
        QList<QPair<QPointF, QString>> found;
        for (QQuickItem *item : Views::visible(row)) {
            const auto *accessible = QAccessible::queryAccessibleInterface(item);
            const bool isText = accessible && accessible->role() == QAccessible::StaticText;
            if (isText && !accessible->text(QAccessible::Name).isEmpty())
                found.append({item->mapToScene({}), accessible->text(QAccessible::Name)});
        }
        std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) {
            return std::pair(a.first.x(), a.first.y()) < std::pair(b.first.x(), b.first.y());
        });
        QStringList list;
        for (const auto &entry : found)
            list.append(entry.second);
        return list;
    }
};
