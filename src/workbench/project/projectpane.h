#pragma once

#include <QStackedWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QModelIndex)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace Workbench
{

class Project;
class ProjectModel;

// The tree of the open project, or that there is none.
class ProjectPane : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ProjectPane(QWidget *parent = nullptr);

    // Not owned; null: no project is open.
    void setProject(Project *project);
    // Reads the project and its folder again.
    void refresh();

    ProjectModel *model() const { return m_model; }
    QTreeView *tree() const { return m_tree; }
    QModelIndex selected() const;
    // Empty if none is.
    QString selectedFile() const;
    // The same, or the project's file if none is; empty without a project.
    QString selectedPlace() const;
    void select(const QString &file);
    // Opens what is selected, as Enter in the tree does.
    void activateSelected();
    // The IPs that are made for another device than the project's.
    QStringList ipsOfOtherDevices() const;

Q_SIGNALS:
    void openRequested(const QString &file);
    void selectionChanged();
    void contentChanged();

private:
    void activate(const QModelIndex &index);

    ProjectModel *m_model;
    QLabel *m_noProject;
    QTreeView *m_tree;
};

} // namespace Workbench
