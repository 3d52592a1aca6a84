#include "X11WindowList.h"

#include "SystemSettingsApps.h"
#include "X11Connection.h"
#include "X11Names.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

constexpr quint32 iconic = 3;
/// The layer of everything but ordinary windows: callers only ask whether it is 0.
constexpr int otherLayer = 1;

/// Everything asked of one window. The questions go out together, so that all windows cost one round trip.
struct Questions {
    Questions(xcb_connection_t *x, X11Names &names, xcb_window_t window)
        : attributes(xcb_get_window_attributes(x, window)),
          geometry(xcb_get_geometry(x, window)),
          place(xcb_translate_coordinates(x, window, X11::root(x), 0, 0)),
          ownerClass(X11::askProperty(x, window, XCB_ATOM_WM_CLASS)),
          owner(X11::askProperty(x, window, XCB_ATOM_WM_TRANSIENT_FOR)),
          desktop(xcb_ewmh_get_wm_desktop(&names.ewmh, window)),
          type(xcb_ewmh_get_wm_window_type(&names.ewmh, window)),
          state(xcb_ewmh_get_wm_state(&names.ewmh, window)),
          iconicState(X11::askProperty(x, window, names.iconicState)),
          frame(xcb_ewmh_get_frame_extents(&names.ewmh, window)),
          shadow(X11::askProperty(x, window, names.shadowExtents))
    {
    }

    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t place;
    xcb_get_property_cookie_t ownerClass;
    xcb_get_property_cookie_t owner;
    xcb_get_property_cookie_t desktop;
    xcb_get_property_cookie_t type;
    xcb_get_property_cookie_t state;
    xcb_get_property_cookie_t iconicState;
    xcb_get_property_cookie_t frame;
    xcb_get_property_cookie_t shadow;
};

/// What one window answered.
class Answers {
public:
    Answers(xcb_connection_t *x, X11Names &names, const Questions &asked)
        : m_ewmh(names.ewmh),
          m_attributes(xcb_get_window_attributes_reply(x, asked.attributes, nullptr)),
          m_geometry(xcb_get_geometry_reply(x, asked.geometry, nullptr)),
          m_place(xcb_translate_coordinates_reply(x, asked.place, nullptr)),
          m_class(X11::bytes(x, asked.ownerClass)),
          m_owner(X11::numbers(x, asked.owner)),
          m_types(names.atoms(asked.type)),
          m_states(names.atoms(asked.state)),
          m_iconicState(X11::numbers(x, asked.iconicState)),
          m_shadow(X11::numbers(x, asked.shadow))
    {
        xcb_ewmh_get_wm_desktop_reply(&names.ewmh, asked.desktop, &m_desktop, nullptr);
        xcb_ewmh_get_frame_extents_reply(&names.ewmh, asked.frame, &m_frame, nullptr);
    }

    /// A window manager may leave a window mapped that is minimised or on another desktop.
    bool isOnScreen(quint32 currentDesktop) const
    {
        return m_attributes && m_attributes->map_state == XCB_MAP_STATE_VIEWABLE && m_iconicState.value(0) != iconic
            && !m_states.contains(m_ewmh._NET_WM_STATE_HIDDEN)
            && (m_desktop == X11::everyDesktop || currentDesktop == X11::everyDesktop || m_desktop == currentDesktop);
    }

    /// A dialog without an owner counts as an ordinary window: the settings of some desktops are one.
    int layer() const
    {
        const xcb_atom_t normal = m_ewmh._NET_WM_WINDOW_TYPE_NORMAL;
        const xcb_atom_t dialog = m_ewmh._NET_WM_WINDOW_TYPE_DIALOG;
        const bool hasOwner = m_owner.value(0) != XCB_WINDOW_NONE;
        const xcb_atom_t type = kind(hasOwner ? dialog : normal);
        const bool isOrdinary = type == normal || (type == dialog && !hasOwner);
        return isOrdinary && !m_attributes->override_redirect ? 0 : otherLayer;
    }

    bool ownerIsSystemSettings() const { return SystemSettingsApps::haveWindowClass(m_class); }

    /// In pixels; none when the window has just gone.
    std::optional<QRectF> frame() const
    {
        if (!m_geometry || !m_place)
            return std::nullopt;
        const QRectF inside(m_place->dst_x, m_place->dst_y, m_geometry->width, m_geometry->height);
        const QMarginsF frame(m_frame.left, m_frame.top, m_frame.right, m_frame.bottom);
        return inside.marginsAdded(frame).marginsRemoved(shadow());
    }

private:
    /// A window lists its types in order of preference, perhaps beginning with some that only one desktop knows.
    xcb_atom_t kind(xcb_atom_t usual) const
    {
        const xcb_atom_t known[] = {
            m_ewmh._NET_WM_WINDOW_TYPE_NORMAL,        m_ewmh._NET_WM_WINDOW_TYPE_DIALOG,
            m_ewmh._NET_WM_WINDOW_TYPE_DESKTOP,       m_ewmh._NET_WM_WINDOW_TYPE_DOCK,
            m_ewmh._NET_WM_WINDOW_TYPE_TOOLBAR,       m_ewmh._NET_WM_WINDOW_TYPE_MENU,
            m_ewmh._NET_WM_WINDOW_TYPE_UTILITY,       m_ewmh._NET_WM_WINDOW_TYPE_SPLASH,
            m_ewmh._NET_WM_WINDOW_TYPE_DROPDOWN_MENU, m_ewmh._NET_WM_WINDOW_TYPE_POPUP_MENU,
            m_ewmh._NET_WM_WINDOW_TYPE_TOOLTIP,       m_ewmh._NET_WM_WINDOW_TYPE_NOTIFICATION,
            m_ewmh._NET_WM_WINDOW_TYPE_COMBO,         m_ewmh._NET_WM_WINDOW_TYPE_DND,
        };
        const auto found = std::find_first_of(m_types.begin(), m_types.end(), std::begin(known), std::end(known));
        return found == m_types.end() ? usual : *found;
    }

    /// The order of the property is left, right, top, bottom.
    QMarginsF shadow() const
    {
        if (m_shadow.size() != 4)
            return {};
        return {qreal(m_shadow[0]), qreal(m_shadow[2]), qreal(m_shadow[1]), qreal(m_shadow[3])};
    }

    const xcb_ewmh_connection_t &m_ewmh;
    X11::Reply<xcb_get_window_attributes_reply_t> m_attributes;
    X11::Reply<xcb_get_geometry_reply_t> m_geometry;
    X11::Reply<xcb_translate_coordinates_reply_t> m_place;
    QByteArray m_class;
    QList<quint32> m_owner;
    quint32 m_desktop = X11::everyDesktop;
    QList<xcb_atom_t> m_types;
    QList<xcb_atom_t> m_states;
    QList<quint32> m_iconicState;
    xcb_ewmh_get_extents_reply_t m_frame = {};
    QList<quint32> m_shadow;
};

QList<xcb_window_t> childrenOfRoot(xcb_connection_t *x)
{
    const X11::Reply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(x, xcb_query_tree(x, X11::root(x)), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

/// The screen that shows the middle of a rectangle of pixels. Screens keep their place in pixels and are scaled around
/// their own corner.
const QScreen &screenAround(const QRectF &pixels)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto shows = [&](const QScreen *screen) {
        const QSizeF size = QSizeF(screen->size()) * screen->devicePixelRatio();
        return QRectF(screen->geometry().topLeft(), size).contains(pixels.center());
    };
    const auto found = std::find_if(screens.begin(), screens.end(), shows);
    return found == screens.end() ? *QGuiApplication::primaryScreen() : **found;
}

QRectF points(const QRectF &pixels)
{
    const QScreen &screen = screenAround(pixels);
    const QPointF corner = screen.geometry().topLeft();
    const qreal scale = screen.devicePixelRatio();
    return {(pixels.topLeft() - corner) / scale + corner, pixels.size() / scale};
}

OnScreenWindow described(const Answers &answers)
{
    const std::optional<QRectF> frame = answers.frame();
    return {answers.layer(), answers.ownerIsSystemSettings(), frame ? std::optional(points(*frame)) : std::nullopt};
}

/// The answer to a question for a list of windows; none when there is no such list.
std::optional<QList<xcb_window_t>> windows(X11Names &names, xcb_get_property_cookie_t request)
{
    xcb_ewmh_get_windows_reply_t reply;
    if (!xcb_ewmh_get_windows_reply(&names.ewmh, request, &reply, nullptr))
        return std::nullopt;
    QList<xcb_window_t> windows(reply.windows, reply.windows + reply.windows_len);
    xcb_ewmh_get_windows_reply_wipe(&reply);
    return windows;
}

}

X11WindowList::X11WindowList() = default;
X11WindowList::~X11WindowList() = default;

bool X11WindowList::isAvailable()
{
    return X11::connection();
}

QList<OnScreenWindow> X11WindowList::onScreenWindows()
{
    xcb_connection_t *x = X11::connection();
    if (!x || QGuiApplication::screens().isEmpty())
        return {};
    if (!m_names)
        m_names = X11Names::ask(x);
    if (!m_names)
        return {};

    const auto askedStacking = xcb_ewmh_get_client_list_stacking(&m_names->ewmh, 0);
    const auto askedClients = xcb_ewmh_get_client_list(&m_names->ewmh, 0);
    const auto askedDesktop = xcb_ewmh_get_current_desktop(&m_names->ewmh, 0);
    const auto stacking = windows(*m_names, askedStacking);
    const auto clients = windows(*m_names, askedClients);
    quint32 currentDesktop = X11::everyDesktop;
    xcb_ewmh_get_current_desktop_reply(&m_names->ewmh, askedDesktop, &currentDesktop, nullptr);
    // Xfwm4 sets no stacking list while there is a single window. Each list begins with the lowest, or the oldest.
    const auto &managed = stacking ? stacking : clients;
    const QList<xcb_window_t> bottomToTop = managed ? *managed : childrenOfRoot(x);

    QList<Questions> asked;
    asked.reserve(bottomToTop.size());
    for (auto window = bottomToTop.crbegin(); window != bottomToTop.crend(); ++window)
        asked.append(Questions(x, *m_names, *window));
    QList<OnScreenWindow> list;
    for (const Questions &questions : std::as_const(asked)) {
        const Answers answers(x, *m_names, questions);
        if (answers.isOnScreen(currentDesktop))
            list.append(described(answers));
    }
    return list;
}
