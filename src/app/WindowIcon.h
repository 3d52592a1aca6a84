#pragma once

#include <QIcon>

/// The picture that stands for the application in task lists: resources/icons/Corvane.svg, drawn in the sizes between
/// which window managers scale. Drawing takes a third of the memory that reading pictures does.
QIcon windowIcon();
