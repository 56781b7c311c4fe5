#include "arrangement.h"

#include <QBoxLayout>

namespace Workbench
{

void arrangeIn(QBoxLayout *layout, int room)
{
    int needed = layout->spacing() * (layout->count() - 1);
    for (int i = 0; i < layout->count(); ++i)
        needed += layout->itemAt(i)->minimumSize().width();
    layout->setDirection(needed > room ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

} // namespace Workbench
