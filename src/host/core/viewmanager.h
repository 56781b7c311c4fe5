#pragma once

#include "core_global.h"

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Core
{

// The application's windows.
class TARVO_CORE_EXPORT ViewManager
{
public:
    // The widget that dialogs are parented to; null while none is registered or after it was
    // destroyed.
    static QWidget *dialogParent();
    // Not owned. Null takes the registration back.
    static void setDialogParent(QWidget *parent);
};

} // namespace Core
