#pragma once

#include "EBApp.h"

class QWidget;

/// The current product, handed down the tree of views as `EBEnvironment` hands it down the tree of items: a view that
/// sets it sets it for everything inside it, and without one that does it is `quiller`. Controls that carry no product
/// of their own take the colour of their focus ring from it.
namespace KitEnvironment {

EBApp ebApp(const QWidget &view);
void setEbApp(QWidget &view, EBApp app);

}
