#pragma once

#include <QString>
#include <QStringList>

namespace Workbench
{

// How what was generated from an IP configuration stands to it.
struct IpState {
    QString name;        // "fresh", "missing", …; empty: not known
    QStringList reasons; // a line each
    QStringList files;   // full paths of what a generation makes
    QStringList watched; // of what the state depends on

    // Whether a generation would change something.
    bool isBehind() const;
    // What is wrong, a sentence; empty if nothing is, or nothing is known.
    QString sentence() const;

    bool operator==(const IpState &other) const
    {
        return name == other.name && reasons == other.reasons && files == other.files &&
               watched == other.watched;
    }
};

} // namespace Workbench
