#include "SettingWords.h"

#include "ButtonSize.h"
#include "LayoutCoder.h"
#include "Shared.h"
#include "Theme.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

namespace {

/// A text of a page: where it is translated, and what it is.
struct PageText {
    const char *context;
    const char *text;

    QString translated() const { return QCoreApplication::translate(context, text); }
};

#define PAGE_TEXT(context, text)                                                                                       \
    PageText                                                                                                           \
    {                                                                                                                  \
        context, QT_TRANSLATE_NOOP(context, text)                                                                      \
    }

const QHash<QString, PageText> &titles()
{
    using namespace Shared;
    static const QHash<QString, PageText> texts = {
        {Key::menuBarIconHidden, PAGE_TEXT("GeneralPane", "Show in the menu bar")},
        {Key::onboardingCompleted, PAGE_TEXT("GeneralPane", "Welcome guide")},
        {Key::buttonTheme, PAGE_TEXT("SettingWords", "Look")},
        {Key::buttonSizeOption, PAGE_TEXT("ButtonsPane", "Size")},
        {Key::showMinimizeButton, PAGE_TEXT("ButtonsPane", "Minimize button")},
        {Key::showMaximizeButton, PAGE_TEXT("ButtonsPane", "Full screen button")},
        {Key::maximizeMode, PAGE_TEXT("ButtonsPane", "Full screen")},
        {Key::layoutsEnabled, PAGE_TEXT("LayoutsPane", "Snap and arrange windows")},
        {Key::layoutsShelf, PAGE_TEXT("LayoutsPane", "Layouts shelf")},
        {Key::layoutsGap, PAGE_TEXT("LayoutsPane", "Gaps")},
        {Key::layoutsLaunchApps, PAGE_TEXT("LayoutsPane", "Open apps that aren't running")},
        {Key::layoutsSaved, PAGE_TEXT("LayoutsPane", "Saved layouts")},
    };
    return texts;
}

QString gap(double points)
{
    if (points == 0)
        return PAGE_TEXT("LayoutsPane", "None").translated();
    if (points == 6)
        return PAGE_TEXT("LayoutsPane", "Small").translated();
    if (points == 12)
        return PAGE_TEXT("LayoutsPane", "Large").translated();
    return QLocale().toString(points);
}

QString names(const QString &layouts)
{
    QStringList names;
    for (const SavedLayout &layout : LayoutCoder::decode(layouts).value_or(QList<SavedLayout>()))
        names.append(layout.name);
    return names.isEmpty() ? PAGE_TEXT("LayoutsPane", "None").translated() : names.join(QStringLiteral(", "));
}

/// Whether the page shows the opposite of what is stored.
bool isNegated(const QString &key)
{
    return key == Shared::Key::menuBarIconHidden || key.startsWith(u"hotkey.");
}

}

QString SettingWords::title(const QString &key)
{
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
        return text == u"fill" ? PAGE_TEXT("ButtonsPane", "Fill Screen").translated()
                               : PAGE_TEXT("ButtonsPane", "Own Space").translated();
    return names(text);
}
