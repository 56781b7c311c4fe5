#pragma once

#include <QString>
#include <QVariantMap>

namespace TARVOORIXM1
{

// The descriptor file in the IP's data folder.
QString descriptorPath(const QString &dataPath);

// Adds the folders of the core's two variants to a descriptor, over what the file may have said.
void addDataFolders(QVariantMap &ipInfo, const QString &dataPath);

// The data folder whose folders were added; empty if none were.
QString dataFolder(const QVariantMap &ipInfo);

} // namespace TARVOORIXM1
