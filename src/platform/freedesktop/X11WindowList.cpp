#include "X11WindowList.h"

#include "SystemSettingsApps.h"
#include "X11WindowAtoms.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

constexpr quint32 everyDesktop = 0xFFFFFFFF;
constexpr quint32 iconic = 3;
/// Of all that is no window to work in: nobody here asks for more.
constexpr int otherLayer = 1;

/// Everything asked of one window. The questions go out together, so that all windows cost one round trip.
struct Questions {
    Questions(xcb_connection_t *x, const X11WindowAtoms &atoms, xcb_window_t window)
        : attributes(xcb_get_window_attributes(x, window)),
          geometry(xcb_get_geometry(x, window)),
          place(xcb_translate_coordinates(x, window, X11::root(x), 0, 0)),
          ownerClass(X11::askProperty(x, window, XCB_ATOM_WM_CLASS)),
          owner(X11::askProperty(x, window, XCB_ATOM_WM_TRANSIENT_FOR)),
          desktop(X11::askProperty(x, window, atoms.desktop)),
          type(X11::askProperty(x, window, atoms.type)),
          state(X11::askProperty(x, window, atoms.state)),
          iconicState(X11::askProperty(x, window, atoms.iconicState)),
          frame(X11::askProperty(x, window, atoms.frameExtents)),
          shadow(X11::askProperty(x, window, atoms.shadowExtents))
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
    Answers(xcb_connection_t *x, const Questions &asked)
        : m_attributes(xcb_get_window_attributes_reply(x, asked.attributes, nullptr)),
          m_geometry(xcb_get_geometry_reply(x, asked.geometry, nullptr)),
          m_place(xcb_translate_coordinates_reply(x, asked.place, nullptr)),
          m_class(X11::property(x, asked.ownerClass)),
          m_owner(numbers(x, asked.owner)),
          m_desktop(numbers(x, asked.desktop)),
          m_type(numbers(x, asked.type)),
          m_state(numbers(x, asked.state)),
          m_iconicState(numbers(x, asked.iconicState)),
          m_frame(numbers(x, asked.frame)),
          m_shadow(numbers(x, asked.shadow))
    {
    }

    /// A window manager may leave a window mapped that is minimised or on another desktop.
    bool isOnScreen(const X11WindowAtoms &atoms, quint32 currentDesktop) const
    {
        const quint32 desktop = m_desktop.value(0, everyDesktop);
        return m_attributes && m_attributes->map_state == XCB_MAP_STATE_VIEWABLE && m_iconicState.value(0) != iconic
            && !m_state.contains(atoms.stateHidden)
            && (desktop == everyDesktop || currentDesktop == everyDesktop || desktop == currentDesktop);
    }

    /// A dialog that belongs to no window is one to work in: so is the settings application of some desktops.
    int layer(const X11WindowAtoms &atoms) const
    {
        const bool hasOwner = m_owner.value(0) != XCB_WINDOW_NONE;
        const xcb_atom_t type = kind(atoms, hasOwner ? atoms.typeDialog : atoms.typeNormal);
        const bool isOrdinary = type == atoms.typeNormal || (type == atoms.typeDialog && !hasOwner);
        return isOrdinary && !m_attributes->override_redirect ? 0 : otherLayer;
    }

    bool ownerIsSystemSettings() const { return SystemSettingsApps::haveWindowClass(X11::bytes(m_class.get())); }

    /// In pixels; none when the window has just gone.
    std::optional<QRectF> frame() const
    {
        if (!m_geometry || !m_place)
            return std::nullopt;
        const QRectF inside(m_place->dst_x, m_place->dst_y, m_geometry->width, m_geometry->height);
        return inside.marginsAdded(margins(m_frame)).marginsRemoved(margins(m_shadow));
    }

private:
    /// A window names its kinds in the order of its liking, beginning with some that only one desktop knows.
    xcb_atom_t kind(const X11WindowAtoms &atoms, xcb_atom_t usual) const
    {
        const auto isKnown = [&](xcb_atom_t type) {
            const auto &others = atoms.otherTypes;
            return type == atoms.typeNormal || type == atoms.typeDialog
                || std::find(others.begin(), others.end(), type) != others.end();
        };
        const auto found = std::find_if(m_type.begin(), m_type.end(), isKnown);
        return found == m_type.end() ? usual : *found;
    }

    static QList<quint32> numbers(xcb_connection_t *x, xcb_get_property_cookie_t request)
    {
        return X11::numbers(X11::property(x, request).get());
    }

    /// The order of the property is left, right, top, bottom.
    static QMarginsF margins(const QList<quint32> &extents)
    {
        if (extents.size() != 4)
            return {};
        return {qreal(extents[0]), qreal(extents[2]), qreal(extents[1]), qreal(extents[3])};
    }

    X11::Reply<xcb_get_window_attributes_reply_t> m_attributes;
    X11::Reply<xcb_get_geometry_reply_t> m_geometry;
    X11::Reply<xcb_translate_coordinates_reply_t> m_place;
    X11::Reply<xcb_get_property_reply_t> m_class;
    QList<quint32> m_owner;
    QList<quint32> m_desktop;
    QList<quint32> m_type;
    QList<quint32> m_state;
    QList<quint32> m_iconicState;
    QList<quint32> m_frame;
    QList<quint32> m_shadow;
};

QList<quint32> childrenOfRoot(xcb_connection_t *x)
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

OnScreenWindow described(const Answers &answers, const X11WindowAtoms &atoms)
{
    const std::optional<QRectF> frame = answers.frame();
    return {answers.layer(atoms), answers.ownerIsSystemSettings(),
            frame ? std::optional(points(*frame)) : std::nullopt};
}

}

X11WindowList::X11WindowList() = default;
X11WindowList::~X11WindowList() = default;

QList<OnScreenWindow> X11WindowList::onScreenWindows()
{
    xcb_connection_t *x = X11::connection();
    if (!x || QGuiApplication::screens().isEmpty())
        return {};
    if (!m_atoms)
        m_atoms = std::make_unique<X11WindowAtoms>(x);

    const auto askedStacking = X11::askProperty(x, X11::root(x), m_atoms->clientListStacking);
    const auto askedClients = X11::askProperty(x, X11::root(x), m_atoms->clientList);
    const auto askedDesktop = X11::askProperty(x, X11::root(x), m_atoms->currentDesktop);
    const auto stacking = X11::property(x, askedStacking);
    const auto clients = X11::property(x, askedClients);
    const quint32 currentDesktop = X11::numbers(X11::property(x, askedDesktop).get()).value(0, everyDesktop);
    // Xfwm4 stacks nothing as long as there is a single window. All go from the bottom, or the oldest, to the top.
    const auto &managed = stacking ? stacking : clients;
    const QList<quint32> windows = managed ? X11::numbers(managed.get()) : childrenOfRoot(x);

    QList<Questions> asked;
    asked.reserve(windows.size());
    for (auto window = windows.crbegin(); window != windows.crend(); ++window)
        asked.append(Questions(x, *m_atoms, *window));
    QList<OnScreenWindow> list;
    for (const Questions &questions : std::as_const(asked)) {
        const Answers answers(x, questions);
        if (answers.isOnScreen(*m_atoms, currentDesktop))
            list.append(described(answers, *m_atoms));
    }
    return list;
}
