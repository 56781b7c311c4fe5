#pragma once

#include "core_global.h"

#include <QString>
#include <QStringList>

namespace Core
{

// A project of the running application, which implements and owns it.
class TARVO_CORE_EXPORT Project
{
public:
    Project() = default;
    Project(const Project &) = delete;
    Project &operator=(const Project &) = delete;
    virtual ~Project();

    virtual QString name() const = 0;
    // The project's folder.
    virtual QString path() const = 0;
    // Adds source files, in order; those that the project has already stay where they are.
    virtual void addFiles(const QStringList &paths) = 0;
};

} // namespace Core
