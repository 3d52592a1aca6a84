#include "SampleLayouts.h"

#include "LayoutStore.h"

namespace {

SavedLayout layout(int number)
{
    SavedLayout layout{QUuid(static_cast<uint>(number), 1, 2, 3, 4, 5, 6, 7, 8, 9, 10),
                       QStringLiteral("Layout %1").arg(number),
                       {},
                       7e8 + number / 16.0};
    for (int window = 0; window < 3; ++window)
        layout.windows.append({QStringLiteral("org.example.editor%1").arg(window), QStringLiteral("Editor"),
                               QStringLiteral("Notes — page %1").arg(number), UnitRect{window / 3.0, 0, 1 / 3.0, 0.75},
                               QStringLiteral("37D8832A-2D66-02CA-B9F7-8F30A301B230")});
    return layout;
}

}

QString SampleLayouts::text(int count)
{
    QList<SavedLayout> layouts;
    for (int number = 0; number < count; ++number)
        layouts.append(layout(number));
    return LayoutStore::encode(layouts).value();
}
