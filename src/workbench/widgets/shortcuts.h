#pragma once

#include <QKeySequence>
#include <QList>

namespace Workbench
{

// The keys of a standard action: first those that the documents name, whatever the desktop, then
// the desktop's own that mean nothing else here. Desktops leave out what they do not know: some
// have no key to quit, some none at all.
QList<QKeySequence> keysOf(QKeySequence::StandardKey key);

} // namespace Workbench
