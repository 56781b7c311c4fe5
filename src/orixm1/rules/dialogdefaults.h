#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QVariant>
#include <QVector>

namespace TARVOORIXM1
{

// What generation takes for a key that a configuration lacks: the default of the option table, or
// the device's default TCM size. Invalid for a key that generation does not read.
QVariant generationDefault(const QString &key, const QString &device);

// What a dialog shows for a key that a configuration lacks, and stores when it is closed with OK.
// Some differ from what generation takes; both are fixed. Invalid for an unknown key.
QVariant dialogDefault(const QString &key, const QString &device);

// What generation reads: the stored value, or its default.
QVariant generatedValue(const OptionMap &options, const QString &key, const QString &device);

// What a dialog reads: the stored value, or its default.
QVariant dialogValue(const OptionMap &options, const QString &key, const QString &device);

// A key that a configuration lacks and that means one thing to generation and another to a dialog.
struct UnsetKey {
    QString key;
    QVariant generated; // what generation takes
    QVariant dialog;    // what the dialog stores if it is opened and closed with OK
};

// All such keys that make a difference for `options`: those of the core, and those of the blocks
// that are on. The keys of the core are left out for an empty device name. In the order of the
// option table.
QVector<UnsetKey> unsetKeys(const OptionMap &options, const QString &device);

} // namespace TARVOORIXM1
