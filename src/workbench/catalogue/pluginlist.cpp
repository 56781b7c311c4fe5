#include "pluginlist.h"

#include "ipcatalogue.h"
#include "messages/messagemodel.h"
#include "pluginsdialog.h"
#include "widgets/infobar.h"

#include <QApplication>
#include <QFileInfo>
#include <QSettings>

namespace Workbench
{

namespace
{

const QString foldersKey = QStringLiteral("pluginFolders");

} // namespace

PluginList::PluginList(IpCatalogue &catalogue, QSettings &settings, InfoBar &infoBar,
                       QWidget *window)
    : QObject(window)
    , m_catalogue(catalogue)
    , m_settings(settings)
    , m_infoBar(infoBar)
    , m_window(window)
{
}

QStringList PluginList::folders(const QSettings &settings)
{
    return settings.value(foldersKey).toStringList();
}

void PluginList::tellFailures(MessageModel *messages)
{
    const QList<IpCatalogue::Failure> failures = m_catalogue.failures();
    if (failures.isEmpty())
        return;
    for (const IpCatalogue::Failure &failure : failures)
        messages->append(MessageModel::Warning, tr("Plug-in not used: %1").arg(failure.reason),
                         failure.library);
    const QString name = QFileInfo(failures.first().library).fileName();
    m_infoBar.showMessage(failures.size() == 1
                              ? tr("The plug-in \"%1\" cannot be used.").arg(name)
                              : tr("%n plug-ins cannot be used.", nullptr, failures.size()),
                          {{tr("Detai&ls"), [this] { show(); }}});
}

void PluginList::show()
{
    const QStringList before = folders(m_settings);
    PluginsDialog dialog(m_catalogue, before, m_window);
    bool again = false;
    connect(&dialog, &PluginsDialog::tryAgainRequested, this, [&again] { again = true; });
    if (dialog.exec() != QDialog::Accepted)
        return;
    // When everything else here is done.
    if (again)
        QMetaObject::invokeMethod(this, &PluginList::tryAgain, Qt::QueuedConnection);
    const QStringList chosen = dialog.folders();
    m_settings.setValue(foldersKey, chosen);
    const int failures = m_catalogue.failures().size();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    for (const QString &folder : chosen) {
        if (!before.contains(folder))
            m_catalogue.loadFolder(folder, true);
    }
    QApplication::restoreOverrideCursor();
    Q_EMIT changed();
    if (m_catalogue.failures().size() > failures)
        m_infoBar.showMessage(tr("Not every plug-in of the new folders can be used."),
                              {{tr("Detai&ls"), [this] { show(); }}});
}

void PluginList::tryAgain()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_catalogue.tryAgain();
    QApplication::restoreOverrideCursor();
    m_infoBar.hide();
    Q_EMIT changed();
    show();
}

} // namespace Workbench
