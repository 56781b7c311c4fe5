#pragma once

#include "config/optionmap.h"
#include "system/systemmap.h"
#include "table.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// What a configuration will take of something that a device has in a limited number.
struct EstimatedResource {
    QString resource;
    int value = 0;
    int low = 0; // the same as `high`: the value is exact
    int high = 0;
    int available = -1; // -1: the device database knows no total

    // Of the available, rounded up; -1 without a total.
    int percent() const;
    // Whether the whole range is more than the device has, or a part of it.
    bool isSurelyTooMuch() const { return available >= 0 && low > available; }
    bool isPerhapsTooMuch() const { return available >= 0 && high > available; }
};

// What of the values a block of the diagram costs, in the order of Estimate::resources. The shares
// of all blocks add up to the values.
struct BlockShare {
    QString block;
    QVector<int> values;
};

// A licensed module, whose contents no value counts.
struct EstimatedBlackBox {
    QString cell;
    int count = 0;
    QString text;             // what it is, a phrase
    SupplierFigures supplier; // of one of them
};

struct Estimate {
    QVector<EstimatedResource> resources; // in the order in which the report of a run has them
    QVector<BlockShare> blocks; // those that cost anything, by the first resource, falling
    QVector<EstimatedBlackBox> blackBoxes;
    QStringList unmeasured; // blocks with something that no measured netlist has: they are missing
};

// What synthesis will make of a configuration, without a run of it. Reads no file. A failure, a
// sentence, for a null device and for a value that its option cannot have.
Utils::Result<Estimate> estimate(const OptionMap &options, const DEV::DeviceArg &device,
                                 const EstimateTable &table);

// The same as figures beside those of runs; what is not exact is called "about".
ResourceFigures estimatedFigures(const Estimate &estimate);
// Those of a configuration; nothing where there is no table, or no estimate.
std::optional<ResourceFigures> estimatedFigures(const OptionMap &options,
                                                const DEV::DeviceArg &device,
                                                const QString &dataPath);

// The lines of the top module's ports.
int usedPins(const OptionMap &options, const DEV::DeviceArg &device);

// Why a configuration will not, or may not, fit its device, and which blocks cost most of what is
// short: a sentence without a full stop for each such resource.
QStringList shortages(const Estimate &estimate);

} // namespace TARVOORIXM1
