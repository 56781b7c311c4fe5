#pragma once

#include "config/optionmap.h"

#include <dev/devicedb.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace TARVOORIXM1
{

// Something wrong in a plan, with its place.
struct PlanMistake {
    QString key;  // path of the value: "grid.ITCM_Size[2]"; empty: the text as a whole
    int line = 0; // from 1, as the column
    int column = 0;
    QString text; // a sentence
    QString fix;  // what to write instead, as a sentence; may be empty
};

struct GridAxis {
    QString key;
    QVariantList values; // of the key's type and domain, none twice
};

struct ListEntry {
    QString name; // may be empty
    OptionMap settings;
};

// Points that are left out: those for which all of it holds.
struct Exclusion {
    QString device; // a pattern; empty: any
    QVector<GridAxis> values;
};

// What a sweep goes through: its devices, each with every entry of the list and every point of the
// grid.
struct SweepPlan {
    QString base; // a configuration file, as written in the plan; empty: none
    QList<DEV::DeviceArg> devices;
    OptionMap options; // of all points
    QVector<GridAxis> grid;
    QVector<ListEntry> list;
    QVector<Exclusion> exclude;
    // Resources of the picture; empty: not asked for.
    QString pictureX;
    QString pictureY;
};

struct SweepPlanText {
    SweepPlan plan;
    QVector<PlanMistake> mistakes; // in the order of the text; of very many only the first ones
};

// Reads a plan (JSON). With mistakes the plan is not to be used. `resources` are those that a
// picture can show.
SweepPlanText readSweepPlan(const QByteArray &text, const DEV::DeviceDb &devices,
                            const QStringList &resources);

// One configuration of a sweep.
struct SweepPoint {
    // Also that of its folder: made of the device and of what sets the point apart from others of
    // the plan, so that it stays when the plan grows. Letters, digits and "-._=" only.
    QString name;
    DEV::DeviceArg device;
    OptionMap settings; // those of the plan: common, of the list's entry, of the grid
};

// The most points of one plan.
inline constexpr int mostSweepPoints = 100000;

// How many points the plan has, before exclusions; more than mostSweepPoints stay uncounted.
int sweepPointCount(const SweepPlan &plan);

// All points, before exclusions. Where the plan names no device, `baseDevice` is the one.
QVector<SweepPoint> sweepPoints(const SweepPlan &plan, const DEV::DeviceArg &baseDevice);

// Whether the plan leaves out a point whose configuration is `options`.
bool isExcluded(const SweepPlan &plan, const DEV::DeviceArg &device, const OptionMap &options);

// Keys that the plan sets for some points and not, or otherwise, for others; in its order.
QStringList variedKeys(const SweepPlan &plan);

} // namespace TARVOORIXM1
