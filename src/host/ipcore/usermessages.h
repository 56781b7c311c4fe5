#pragma once

#include <synthesis/runreport.h>

#include <QList>
#include <QString>
#include <QStringList>

// How messages of a run are put before people: what they can change comes first, and nothing is
// said twice.
namespace IPCore
{

// Files below `folder` are a product's own from now on, not the user's.
void addProductFolder(const QString &folder);

// Messages that name a file of the user's, then those that name none, then those about a product's
// files alone; each kind in its order. Where a message stands at a place in a product's file and
// speaks of one of the user's, that one becomes its file, and the place goes to the end of the
// text.
QList<Synthesis::Message> userFilesFirst(const QList<Synthesis::Message> &messages);

// The same for details as an error window gets them, "file:line: text" each. Empty ones and those
// that say what `title` or another detail says are left out; of one that adds a place to `title`
// the place is kept.
QStringList detailsForUser(const QString &title, const QStringList &details);

} // namespace IPCore
