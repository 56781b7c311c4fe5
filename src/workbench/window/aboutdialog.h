#pragma once

#include "components.h"

#include <QDialog>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QTreeWidget)
QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)

namespace Synthesis
{
class ToolRun;
}

namespace Workbench
{

// What the program is and what it is made of: versions, plug-ins, components with their licences.
// Programs are asked for their versions while the dialog is there; a slow one is not waited for.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    // `plugins`: a line each.
    AboutDialog(const QString &version, const QStringList &plugins, const QString &settingsFile,
                QWidget *parent);
    ~AboutDialog() override;

    // All of it, for a report.
    QString report() const;

private:
    void addComponent(const Component &component);
    void showComponent(const QTreeWidgetItem *item);
    void ask(QTreeWidgetItem *item, const Component &component);

    QStringList m_lines;
    QTreeWidget *m_components;
    QLabel *m_about;
    QTemporaryDir m_folder; // in which the programs run
    std::vector<std::unique_ptr<Synthesis::ToolRun>> m_runs;
};

} // namespace Workbench
