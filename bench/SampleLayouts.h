#pragma once

#include <QString>

/// Saved layouts as an agent stores them, three windows each.
namespace SampleLayouts {

/// So many of them in their stored form.
QString text(int count);

}
