#pragma once

#include "results/mappicture.h"

#include <utils/result.h>

#include <QVariantMap>

namespace Workbench
{

class IpCatalogue;

// Pictures of configurations that plug-ins answer: only what has the right types, can be drawn and
// has doors that lie in their picture, without overlapping, comes through, all of it or nothing.
namespace MapSet
{

constexpr int pictureLimit = 8;
constexpr int svgLimit = 4 << 20; // bytes
constexpr int doorLimit = 1000;   // of a picture
constexpr int headingLimit = 6;   // of a door

// A failure is a clause, or a sentence of the plug-in's own.
Utils::Result<QVector<MapPicture>> picturesOf(const QVariantMap &answer);

// Asks the plug-in of the configuration; no pictures if it has none to give. A failure is a
// sentence.
Utils::Result<QVector<MapPicture>> ask(const IpCatalogue &catalogue, const QString &ipcFile);

} // namespace MapSet

} // namespace Workbench
