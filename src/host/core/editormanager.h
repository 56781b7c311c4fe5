#pragma once

#include "core_global.h"

#include <QString>

#include <functional>

namespace Core
{

class TARVO_CORE_EXPORT EditorManager
{
public:
    // Opens `path` and remembers nothing of it when `temporary`; returns whether the handler opened
    // it.
    using Handler = std::function<bool(const QString &path, bool temporary)>;

    // Opens a file in the application's editor. Without a registered handler nothing is opened and
    // the result is false.
    static bool openEditor(const QString &path, bool temporary);
    // A null handler takes the registration back.
    static void setHandler(const Handler &handler);
};

} // namespace Core
