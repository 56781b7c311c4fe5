#pragma once

#include "ipcore_global.h"

#include <QSize>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace IPCore
{

// The largest size that a window may have so that it is whole on its screen, panels and its own
// frame left out. How much a frame takes is not known before it is there; this allows for a
// generous one.
TARVO_IPCORE_EXPORT QSize roomOnScreen(const QWidget *window);

} // namespace IPCore
