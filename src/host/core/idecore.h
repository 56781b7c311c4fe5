#pragma once

#include "core_global.h"

namespace DEV
{
class DeviceDb;
}

namespace Core
{

class TARVO_CORE_EXPORT IdeCore
{
public:
    // The registered device database, or the bundled one while none is registered. Never null.
    static DEV::DeviceDb *deviceDataBase();
    // Not owned; must outlive its registration. Null goes back to the bundled database.
    static void setDeviceDataBase(DEV::DeviceDb *db);
};

} // namespace Core
