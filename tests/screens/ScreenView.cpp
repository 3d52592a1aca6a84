#include "ScreenView.h"

#include "EBKitFonts.h"

#include <QQmlComponent>

ScreenView::ScreenView(const QString &qml, QSize size) : m_platform(FakePlatform::install())
{
    for (const QString &face : {EBKitFonts::display, EBKitFonts::mono}) {
        const QString file = face + QStringLiteral(".ttf");
        m_platform.main.resources.insert(file, QUrl::fromLocalFile(QStringLiteral(CORVANE_FONTS_FOLDER) + file));
    }
    EBKitFonts::registerFonts();
    QQmlComponent component(&m_engine);
    component.setData(
        "import QtQuick\nimport Embera.Controls\nimport Embera.Rows\nimport Embera.Screens\n" + qml.toUtf8(), {});
    m_root = qobject_cast<QQuickItem *>(component.create());
    if (!m_root)
        qFatal("%s", qPrintable(component.errorString()));
    m_window.resize(size);
    m_root->setParent(&m_window);
    m_root->setParentItem(m_window.contentItem());
    m_root->setSize(size);
}

ScreenView::~ScreenView() = default;
