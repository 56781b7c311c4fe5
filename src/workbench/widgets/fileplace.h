#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// Shows the folder that a file is in with the desktop's file manager. What is wrong is told in a
// message box over `window`.
void openFolderOf(const QString &path, QWidget *window);
// Puts a path on the clipboard, as the system writes it.
void copyPathOf(const QString &path);

} // namespace Workbench
