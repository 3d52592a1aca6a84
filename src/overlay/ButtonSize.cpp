#include "ButtonSize.h"

#include <QCoreApplication>

namespace {

struct Entry {
    qreal diameter;
    const char *title;
};

// In the order of the sizes.
constexpr std::array entries = {
    Entry{20, QT_TRANSLATE_NOOP("ButtonSize", "Small")},
    Entry{25, QT_TRANSLATE_NOOP("ButtonSize", "Medium")},
    Entry{32, QT_TRANSLATE_NOOP("ButtonSize", "Large")},
};
static_assert(entries.size() == ButtonSizes::allCases.size());

const Entry &entry(ButtonSize size)
{
    return entries.at(static_cast<std::size_t>(size));
}

}

QString ButtonSizes::title(ButtonSize size)
{
    return QCoreApplication::translate("ButtonSize", entry(size).title);
}

qreal ButtonSizes::diameter(ButtonSize size)
{
    return entry(size).diameter;
}
