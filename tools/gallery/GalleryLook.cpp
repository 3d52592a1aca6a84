#include "GalleryLook.h"

#include "FakeAppearance.h"

GalleryLook::GalleryLook(FakeAppearance &appearance, QObject *parent) : QObject(parent), m_appearance(appearance)
{
    apply();
}

void GalleryLook::setDark(bool dark)
{
    m_dark = dark;
    apply();
}

void GalleryLook::setHighContrast(bool highContrast)
{
    m_highContrast = highContrast;
    apply();
}

void GalleryLook::setApp(EBApp app)
{
    m_app = app;
    emit changed();
}

void GalleryLook::setRawApp(const QString &rawValue)
{
    setApp(EBApps::fromRawValue(rawValue).value_or(m_app));
}

void GalleryLook::apply()
{
    const auto plain = m_dark ? AppearanceName::DarkAqua : AppearanceName::Aqua;
    const auto contrast =
        m_dark ? AppearanceName::AccessibilityHighContrastDarkAqua : AppearanceName::AccessibilityHighContrastAqua;
    m_appearance.setName(m_highContrast ? contrast : plain);
    emit changed();
}
