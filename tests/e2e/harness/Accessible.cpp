#include <atspi/atspi.h>

#include "Accessible.h"

namespace {

/// Frees a GError however the call ended.
class Failure {
public:
    ~Failure() { g_clear_error(&m_error); }
    operator GError **() { return &m_error; }
    bool happened() const { return m_error; }

private:
    GError *m_error = nullptr;
};

QString taken(gchar *text)
{
    const QString result = QString::fromUtf8(text);
    g_free(text);
    return result;
}

/// An interface of the element, or null; to be used within one call.
template <typename Interface> std::shared_ptr<Interface> held(Interface *interface)
{
    return {interface, [](Interface *it) {
                if (it)
                    g_object_unref(it);
            }};
}

AtspiAccessible *desktop()
{
    static AtspiAccessible *const root = [] {
        atspi_init();
        // A program under the sanitizers on a busy machine takes its time.
        atspi_set_timeout(10000, 20000);
        return atspi_get_desktop(0);
    }();
    return root;
}

}

Accessible::Accessible(_AtspiAccessible *owned) : m_object(held(owned)) { }

Accessible Accessible::application(qint64 processId)
{
    AtspiAccessible *root = desktop();
    if (!root)
        return {};
    // The list of applications is asked anew each time: they come and go.
    atspi_accessible_clear_cache(root);
    const int count = atspi_accessible_get_child_count(root, Failure());
    for (int i = 0; i < count; ++i) {
        Accessible candidate(atspi_accessible_get_child_at_index(root, i, Failure()));
        if (!candidate.m_object || atspi_accessible_get_process_id(candidate.m_object.get(), Failure()) != processId)
            continue;
        atspi_accessible_set_cache_mask(candidate.m_object.get(), ATSPI_CACHE_NONE);
        return candidate;
    }
    return {};
}

QString Accessible::name() const
{
    return m_object ? taken(atspi_accessible_get_name(m_object.get(), Failure())) : QString();
}

QString Accessible::description() const
{
    return m_object ? taken(atspi_accessible_get_description(m_object.get(), Failure())) : QString();
}

AtspiRole Accessible::role() const
{
    return m_object ? atspi_accessible_get_role(m_object.get(), Failure()) : ATSPI_ROLE_INVALID;
}

QString Accessible::roleName() const
{
    return taken(atspi_role_get_name(role()));
}

bool Accessible::has(AtspiStateType state) const
{
    if (!m_object)
        return false;
    const auto set = held(atspi_accessible_get_state_set(m_object.get()));
    return set && atspi_state_set_contains(set.get(), state);
}

QStringList Accessible::states() const
{
    if (!m_object)
        return {};
    const auto set = held(atspi_accessible_get_state_set(m_object.get()));
    QStringList names;
    auto *const kind = static_cast<GEnumClass *>(g_type_class_ref(ATSPI_TYPE_STATE_TYPE));
    for (int state = 0; state < ATSPI_STATE_LAST_DEFINED; ++state) {
        const GEnumValue *value = g_enum_get_value(kind, state);
        if (value && atspi_state_set_contains(set.get(), AtspiStateType(state)))
            names.append(QString::fromLatin1(value->value_nick));
    }
    g_type_class_unref(kind);
    return names;
}

Accessible Accessible::parent() const
{
    return m_object ? Accessible(atspi_accessible_get_parent(m_object.get(), Failure())) : Accessible();
}

QList<Accessible> Accessible::children() const
{
    QList<Accessible> result;
    if (!m_object)
        return result;
    const int count = atspi_accessible_get_child_count(m_object.get(), Failure());
    for (int i = 0; i < count; ++i) {
        if (Accessible child(atspi_accessible_get_child_at_index(m_object.get(), i, Failure())); child)
            result.append(child);
    }
    return result;
}

QRect Accessible::extents() const
{
    if (!m_object)
        return {};
    const auto component = held(atspi_accessible_get_component_iface(m_object.get()));
    if (!component)
        return {};
    AtspiRect *rect = atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, Failure());
    if (!rect)
        return {};
    const QRect result(rect->x, rect->y, rect->width, rect->height);
    g_free(rect);
    return result;
}

QStringList Accessible::actions() const
{
    QStringList names;
    const auto action = held(m_object ? atspi_accessible_get_action_iface(m_object.get()) : nullptr);
    if (!action)
        return names;
    const int count = atspi_action_get_n_actions(action.get(), Failure());
    for (int i = 0; i < count; ++i)
        names.append(taken(atspi_action_get_action_name(action.get(), i, Failure())));
    return names;
}

bool Accessible::doAction(const QString &name) const
{
    const qsizetype index = actions().indexOf(name);
    if (index < 0)
        return false;
    const auto action = held(atspi_accessible_get_action_iface(m_object.get()));
    return action && atspi_action_do_action(action.get(), int(index), Failure());
}

QString Accessible::text() const
{
    const auto text = held(m_object ? atspi_accessible_get_text_iface(m_object.get()) : nullptr);
    if (!text)
        return {};
    const int count = atspi_text_get_character_count(text.get(), Failure());
    return taken(atspi_text_get_text(text.get(), 0, count, Failure()));
}

std::optional<double> Accessible::value() const
{
    const auto value = held(m_object ? atspi_accessible_get_value_iface(m_object.get()) : nullptr);
    if (!value)
        return std::nullopt;
    Failure failure;
    const double current = atspi_value_get_current_value(value.get(), failure);
    return failure.happened() ? std::nullopt : std::optional(current);
}

bool Accessible::grabFocus() const
{
    const auto component = held(m_object ? atspi_accessible_get_component_iface(m_object.get()) : nullptr);
    return component && atspi_component_grab_focus(component.get(), Failure());
}

QList<Accessible> Accessible::findAll(const Predicate &matches) const
{
    QList<Accessible> found;
    if (isNull())
        return found;
    if (matches(*this))
        found.append(*this);
    const QList<Accessible> below = children();
    for (const Accessible &child : below)
        found += child.findAll(matches);
    return found;
}

Accessible Accessible::find(AtspiRole role, const QString &name) const
{
    if (isNull())
        return {};
    if (this->role() == role && this->name() == name && has(ATSPI_STATE_SHOWING))
        return *this;
    const QList<Accessible> below = children();
    for (const Accessible &child : below) {
        if (const Accessible found = child.find(role, name); found)
            return found;
    }
    return {};
}

QString Accessible::dump() const
{
    if (isNull())
        return QStringLiteral("(nothing on the accessibility bus)\n");
    const QRect box = extents();
    QString lines = QStringLiteral("%1 \"%2\"").arg(roleName(), name());
    if (const QString more = description(); !more.isEmpty())
        lines += QStringLiteral(" (%1)").arg(more);
    if (const QString content = text(); !content.isEmpty())
        lines += QStringLiteral(" text \"%1\"").arg(content);
    lines += QStringLiteral(" [%1 %2 %3x%4] %5 {%6}\n")
                 .arg(box.x())
                 .arg(box.y())
                 .arg(box.width())
                 .arg(box.height())
                 .arg(states().join(u' '), actions().join(QStringLiteral(", ")));
    const QList<Accessible> below = children();
    for (const Accessible &child : below) {
        const QStringList childLines = child.dump().split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : childLines)
            lines += QStringLiteral("  ") + line + u'\n';
    }
    return lines;
}
