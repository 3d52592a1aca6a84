#pragma once

#include <QByteArrayView>

/// The settings applications of the desktops.
namespace SystemSettingsApps {

/// Whether one of them names its windows so, in the value of WM_CLASS: two texts, each with a zero byte behind it.
bool haveWindowClass(QByteArrayView value);

}
