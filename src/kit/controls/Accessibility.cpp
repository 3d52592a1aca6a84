#include "Accessibility.h"

#include "AccessibleAction.h"
#include "EBAccessible.h"
#include "Platform.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QGuiApplication>
#include <QPointer>
#include <QQuickItem>

namespace {

/// The item, or one around it, declares that it is hidden.
bool isHidden(const QQuickItem *item)
{
    if (!item)
        return false;
    const EBAccessible *declared = EBAccessible::of(item);
    return (declared && declared->hidden()) || isHidden(item->parentItem());
}

/// The proxy of an item: what Qt says about it, corrected. Qt's own interface stays in Qt's cache, which owns it and
/// may delete it first, so it is looked up whenever it is needed.
class ItemProxy : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ItemProxy(QQuickItem *item, QAccessible::Id original)
        : m_item(item),
          m_original(original),
          m_enabledChanged(QObject::connect(item, &QQuickItem::enabledChanged, item, [item] { announce(item); }))
    {
    }
    ~ItemProxy() override { QObject::disconnect(m_enabledChanged); }
    Q_DISABLE_COPY_MOVE(ItemProxy)

    bool isValid() const override { return m_item && original() && original()->isValid(); }
    QObject *object() const override { return m_item; }

    QAccessible::State state() const override
    {
        if (!isValid())
            return {};
        QAccessible::State state = original()->state();
        if (!m_item->isEnabled()) {
            state.disabled = true;
            state.focused = false;
        }
        state.focusable = state.focusable && takesFocus();
        state.invisible = state.invisible || isHidden(m_item);
        return state;
    }

    QStringList actionNames() const override
    {
        auto *actions = enabledActions();
        if (!actions)
            return {};
        QStringList names = actions->actionNames();
        names.removeDuplicates();
        // What a click does comes first.
        if (names.removeAll(setFocusAction()) > 0 && takesFocus())
            names.append(setFocusAction());
        const QList<AccessibleAction *> own = ownActions();
        for (const AccessibleAction *action : own)
            names.append(action->name());
        return names;
    }
    void doAction(const QString &name) override
    {
        auto *actions = enabledActions();
        if (!actions)
            return;
        if (AccessibleAction *own = ownAction(name))
            emit own->performed();
        else
            actions->doAction(name);
    }
    QString localizedActionName(const QString &name) const override
    {
        return ownAction(name) ? name : QAccessibleActionInterface::localizedActionName(name);
    }
    QString localizedActionDescription(const QString &name) const override
    {
        const AccessibleAction *own = ownAction(name);
        return own ? own->description() : QAccessibleActionInterface::localizedActionDescription(name);
    }
    QStringList keyBindingsForAction(const QString &name) const override
    {
        auto *actions = enabledActions();
        return actions ? actions->keyBindingsForAction(name) : QStringList();
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (!isValid())
            return nullptr;
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return original()->interface_cast(type);
    }

    QWindow *window() const override { return isValid() ? original()->window() : nullptr; }
    QAccessibleInterface *parent() const override { return isValid() ? original()->parent() : nullptr; }
    QAccessibleInterface *child(int index) const override { return isValid() ? original()->child(index) : nullptr; }
    int childCount() const override { return isValid() ? original()->childCount() : 0; }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return isValid() ? original()->indexOfChild(child) : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return isValid() ? proxyOf(original()->childAt(x, y)) : nullptr;
    }
    QAccessibleInterface *focusChild() const override
    {
        return isValid() ? proxyOf(original()->focusChild()) : nullptr;
    }
    QList<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        return isValid() ? original()->relations(match) : decltype(relations(match))();
    }
    QString text(QAccessible::Text kind) const override { return isValid() ? original()->text(kind) : QString(); }
    void setText(QAccessible::Text kind, const QString &text) override
    {
        if (isValid())
            original()->setText(kind, text);
    }
    QRect rect() const override { return isValid() ? original()->rect() : QRect(); }
    QAccessible::Role role() const override { return isValid() ? original()->role() : QAccessible::NoRole; }
    QColor foregroundColor() const override { return isValid() ? original()->foregroundColor() : QColor(); }
    QColor backgroundColor() const override { return isValid() ? original()->backgroundColor() : QColor(); }
    void virtual_hook(int id, void *data) override
    {
        if (isValid())
            original()->virtual_hook(id, data);
    }

private:
    static void announce(QQuickItem *item)
    {
        QAccessible::State changed;
        changed.disabled = true;
        changed.focusable = true;
        QAccessibleStateChangeEvent event(item, changed);
        QAccessible::updateAccessibility(&event);
    }

    QAccessibleInterface *original() const { return QAccessible::accessibleInterface(m_original); }

    QAccessibleInterface *proxyOf(QAccessibleInterface *found) const
    {
        return found == original() ? const_cast<ItemProxy *>(this) : found;
    }

    QAccessibleActionInterface *enabledActions() const
    {
        return isValid() && m_item->isEnabled() ? original()->actionInterface() : nullptr;
    }

    /// The actions that stand in the item.
    QList<AccessibleAction *> ownActions() const
    {
        auto found = m_item->findChildren<AccessibleAction *>(QString(), Qt::FindDirectChildrenOnly);
        found.removeIf([](const AccessibleAction *action) { return action->name().isEmpty(); });
        return found;
    }

    AccessibleAction *ownAction(const QString &name) const
    {
        const QList<AccessibleAction *> own = ownActions();
        const auto found =
            std::find_if(own.cbegin(), own.cend(), [&](const auto *action) { return action->name() == name; });
        return found == own.cend() ? nullptr : *found;
    }

    bool takesFocus() const
    {
        return m_item->isEnabled() && (role() != QAccessible::StaticText || m_item->activeFocusOnTab());
    }

    QPointer<QQuickItem> m_item;
    QAccessible::Id m_original;
    QMetaObject::Connection m_enabledChanged;
};

/// Set while Qt is asked for its own interface of an item.
bool askingQt = false;

/// The application by the name people know: Qt's own answer is the identifier, which is also the window class.
class NamedApplication : public QAccessibleApplication {
public:
    QString text(QAccessible::Text kind) const override
    {
        const QString name = Platform::current().mainBundle().string(QStringLiteral("CFBundleName"));
        return kind == QAccessible::Name && !name.isEmpty() ? name : QAccessibleApplication::text(kind);
    }
};

QAccessibleInterface *makeProxy(const QString &className, QObject *object)
{
    if (object == qApp)
        return new NamedApplication;
    // Qt's factory answers at this class; the classes below it belong to whoever installed a factory for
    // them.
    if (askingQt || className != QLatin1String("QQuickItem"))
        return nullptr;
    auto *item = qobject_cast<QQuickItem *>(object);
    if (!item)
        return nullptr;
    askingQt = true;
    QAccessibleInterface *original = QAccessible::queryAccessibleInterface(item);
    askingQt = false;
    // Both are now in the cache for this item, and the cache hands out the younger one, which is ours.
    return original ? new ItemProxy(item, QAccessible::uniqueId(original)) : nullptr;
}

}

void installKitAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeProxy);
        return true;
    }();
    Q_UNUSED(installed)
}
