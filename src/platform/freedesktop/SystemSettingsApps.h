#pragma once

#include <QByteArrayView>

/// The settings applications of the desktops.
namespace SystemSettingsApps {

/// Whether a window with this WM_CLASS belongs to one of them. The value is two texts, each ended by a zero byte.
bool haveWindowClass(QByteArrayView value);

}
