#include "screenfit.h"

#include <QFontMetrics>
#include <QScreen>
#include <QWidget>

namespace IPCore
{

QSize roomOnScreen(const QWidget *window)
{
    const int titleBar = qMax(40, window->fontMetrics().height() * 2);
    constexpr int borders = 16;
    return window->screen()->availableSize() - QSize(borders, titleBar);
}

} // namespace IPCore
