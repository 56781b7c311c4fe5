#pragma once

#include "systemmap.h"

#include <QLatin1String>
#include <QPair>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// Something that is known of a subsystem, in words: a port, say.
struct Fact {
    QString name; // unique in its group
    // What is known of it, by name, in a fixed order; only what applies.
    QVector<QPair<QString, QString>> details;

    bool operator==(const Fact &other) const
    {
        return name == other.name && details == other.details;
    }
};

struct FactGroup {
    QLatin1String id;    // "ports"
    QLatin1String title; // "Ports"
    QVector<Fact> facts;
};

// Everything that follows from a configuration: device, ports, address map, registers, interrupts,
// black boxes, and figures of resources where the map has them. Equal maps give equal facts; the
// groups are always the same ones.
QVector<FactGroup> factsOf(const SystemMap &map);

struct FactChange {
    enum Kind { Removed, Added, Changed } kind = Changed;
    Fact before; // without details if the kind is Added
    Fact after;  // likewise Removed
};

struct FactChanges {
    QLatin1String id;
    QLatin1String title;
    QVector<FactChange> changes;
};

// What has to change for `before` to become `after`, in the order of `after`; what is removed
// stands where it was. Groups without changes are left out.
QVector<FactChanges> factChanges(const QVector<FactGroup> &before, const QVector<FactGroup> &after);

} // namespace TARVOORIXM1
