#include "fileplace.h"

#include "errorbox.h"
#include "tr.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

namespace Workbench
{

void openFolderOf(const QString &path, QWidget *window)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString shown = QDir::toNativeSeparators(folder);
    if (!QFileInfo(folder).isDir())
        showError(window, Tr::tr("The folder \"%1\" does not exist.").arg(shown));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        showError(window, Tr::tr("No program of the desktop shows the folder \"%1\".").arg(shown));
}

void copyPathOf(const QString &path)
{
    QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(path));
}

} // namespace Workbench
