#include "SettingWords.h"

#include "ButtonSize.h"
#include "LayoutCoder.h"
#include "Shared.h"
#include "Theme.h"

#include <QCoreApplication>
#include <QHash>

namespace {

/// A text of a page, which is translated there.
struct PageText {
    const char *page;
    const char *text;

    QString translated() const { return QCoreApplication::translate(page, text); }
};

const QHash<QString, PageText> &titles()
{
    using namespace Shared;
    static const QHash<QString, PageText> texts = {
        {Key::menuBarIconHidden, {"GeneralPane", "Show in the menu bar"}},
        {Key::onboardingCompleted, {"GeneralPane", "Welcome guide"}},
        {Key::buttonSizeOption, {"ButtonsPane", "Size"}},
        {Key::showMinimizeButton, {"ButtonsPane", "Minimize button"}},
        {Key::showMaximizeButton, {"ButtonsPane", "Full screen button"}},
        {Key::maximizeMode, {"ButtonsPane", "Full screen"}},
        {Key::layoutsEnabled, {"LayoutsPane", "Snap and arrange windows"}},
        {Key::layoutsShelf, {"LayoutsPane", "Layouts shelf"}},
        {Key::layoutsGap, {"LayoutsPane", "Gaps"}},
        {Key::layoutsLaunchApps, {"LayoutsPane", "Open apps that aren't running"}},
        {Key::layoutsSaved, {"LayoutsPane", "Saved layouts"}},
    };
    return texts;
}

QString gap(double points)
{
    if (points == 0)
        return PageText{"LayoutsPane", "None"}.translated();
    if (points == 6)
        return PageText{"LayoutsPane", "Small"}.translated();
    if (points == 12)
        return PageText{"LayoutsPane", "Large"}.translated();
    return QString::number(points);
}

QString names(const QString &layouts)
{
    QStringList names;
    for (const SavedLayout &layout : LayoutCoder::decode(layouts).value_or(QList<SavedLayout>()))
        names.append(layout.name);
    return names.isEmpty() ? PageText{"LayoutsPane", "None"}.translated() : names.join(QStringLiteral(", "));
}

/// Whether the page shows the opposite of what is stored.
bool isNegated(const QString &key)
{
    return key == Shared::Key::menuBarIconHidden || key.startsWith(u"hotkey.");
}

}

QString SettingWords::title(const QString &key)
{
    if (key == Shared::Key::buttonTheme)
        return QCoreApplication::translate("SettingWords", "Look");
    for (const Hotkey hotkey : Hotkeys::allCases) {
        //: %1 is the keys of a shortcut.
        if (key == Shared::Key::hotkeyDisabled(hotkey))
            return QCoreApplication::translate("SettingWords", "Shortcut %1").arg(Hotkeys::shownAs(hotkey));
    }
    const auto text = titles().constFind(key);
    return text != titles().cend() ? text->translated() : key;
}

QString SettingWords::value(const QString &key, const QVariant &value)
{
    const QVariant fallback = Contract::defaultValue(key);
    const QVariant shown = value.metaType() == fallback.metaType() ? value : fallback;
    if (shown.typeId() == QMetaType::Bool)
        return shown.toBool() != isNegated(key) ? QCoreApplication::translate("SettingWords", "On")
                                                : QCoreApplication::translate("SettingWords", "Off");
    if (shown.typeId() == QMetaType::Double)
        return gap(shown.toDouble());
    const QString text = shown.toString();
    if (key == Shared::Key::buttonTheme)
        return Themes::title(Themes::fromRawValue(text).value_or(Themes::fallback));
    if (key == Shared::Key::buttonSizeOption)
        return ButtonSizes::title(ButtonSizes::fromRawValue(text).value_or(ButtonSizes::fallback));
    if (key == Shared::Key::maximizeMode)
        return text == u"fill" ? PageText{"ButtonsPane", "Fill Screen"}.translated()
                               : PageText{"ButtonsPane", "Own Space"}.translated();
    return names(text);
}
