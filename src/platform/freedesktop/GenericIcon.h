#pragma once

#include <QIcon>

/// The icon of an application that has none of its own: the theme's, or a drawn one where there is no theme.
QIcon genericApplicationIcon();
