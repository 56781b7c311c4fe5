#include "editormanager.h"
#include "idecore.h"
#include "project.h"
#include "projectmanager.h"
#include "viewmanager.h"

#include <dev/devicedb.h>

#include <QPointer>
#include <QWidget>

namespace Core
{

namespace
{

// What the running application has registered.
struct Services {
    QPointer<QWidget> dialogParent;
    DEV::DeviceDb *deviceDb = nullptr;
    Project *project = nullptr;
    EditorManager::Handler openEditor;
};

Services &services()
{
    static Services instance;
    return instance;
}

} // namespace

Project::~Project() = default;

QWidget *ViewManager::dialogParent()
{
    return services().dialogParent;
}

void ViewManager::setDialogParent(QWidget *parent)
{
    services().dialogParent = parent;
}

DEV::DeviceDb *IdeCore::deviceDataBase()
{
    return services().deviceDb ? services().deviceDb : &DEV::DeviceDb::bundled();
}

void IdeCore::setDeviceDataBase(DEV::DeviceDb *db)
{
    services().deviceDb = db;
}

Project *ProjectManager::currentProject()
{
    return services().project;
}

void ProjectManager::setCurrentProject(Project *project)
{
    services().project = project;
}

bool EditorManager::openEditor(const QString &path, bool temporary)
{
    // A copy, because the handler may take its own registration back.
    const Handler handler = services().openEditor;
    return handler && handler(path, temporary);
}

void EditorManager::setHandler(const Handler &handler)
{
    services().openEditor = handler;
}

} // namespace Core
