#include "projectactions.h"

#include "devices/devicedialog.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "project/project.h"
#include "widgets/errorbox.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>

namespace Workbench
{

ProjectActions::ProjectActions(EditorTabs &tabs, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_window(window)
{
}

void ProjectActions::setProject(Project *project)
{
    m_project = project;
}

void ProjectActions::addSources()
{
    if (!m_project)
        return;
    const QStringList files = QFileDialog::getOpenFileNames(
        m_window, tr("Add Source Files"), m_project->path(),
        tr("HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)"));
    if (m_project)
        m_project->addFiles(files);
}

void ProjectActions::newSource()
{
    if (!m_project)
        return;
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("New Source File"), QDir(m_project->path()).filePath(QStringLiteral("top.v")),
        tr("HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)"));
    if (path.isEmpty() || !m_project)
        return;
    QString error;
    if (!Utils::FileUtils::writeFile(path, {}, &error)) {
        showError(m_window, error);
        return;
    }
    m_project->addFiles({path});
    if (EditorPage *page = m_tabs.openFile(path, 0, &error))
        page->startEditing();
}

void ProjectActions::chooseTopModule()
{
    if (!m_project)
        return;
    bool chosen = false;
    const QString name =
        QInputDialog::getText(m_window, tr("Top Module"), tr("Name of the design's top module:"),
                              QLineEdit::Normal, m_project->topModule(), &chosen);
    if (chosen && m_project)
        m_project->setTopModule(name.trimmed());
}

bool ProjectActions::chooseDevice()
{
    if (!m_project)
        return false;
    DeviceDialog dialog(tr("Device of the Project"), m_project->deviceId(), m_window);
    if (dialog.exec() != QDialog::Accepted || dialog.device().isNull() || !m_project)
        return false;
    m_project->setDevice(dialog.device());
    return true;
}

} // namespace Workbench
