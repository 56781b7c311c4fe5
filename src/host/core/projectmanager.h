#pragma once

#include "core_global.h"

namespace Core
{

class Project;

class TARVO_CORE_EXPORT ProjectManager
{
public:
    // The open project; null when there is none.
    static Project *currentProject();
    // Not owned; the application sets null before it destroys the project.
    static void setCurrentProject(Project *project);
};

} // namespace Core
