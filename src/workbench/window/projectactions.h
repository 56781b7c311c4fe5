#pragma once

#include <QObject>
#include <QPointer>

namespace Workbench
{

class EditorTabs;
class Project;

// The changes of a project that ask for something first.
class ProjectActions : public QObject
{
    Q_OBJECT

public:
    // `tabs`, which must outlive this: where new files open. `window`: the parent of the questions.
    ProjectActions(EditorTabs &tabs, QWidget *window);

    // Not owned; null: no project is open, and nothing is asked.
    void setProject(Project *project);

    void addSources();
    void newSource();
    void chooseTopModule();
    // True if the project is for another device now.
    bool chooseDevice();

private:
    EditorTabs &m_tabs;
    QWidget *m_window;
    QPointer<Project> m_project;
};

} // namespace Workbench
