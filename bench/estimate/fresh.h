#pragma once

#include "measurement.h"

#include <config/optionmap.h>
#include <dev/devicearg.h>
#include <dev/devicedb.h>
#include <estimate/table.h>
#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

// A configuration that was drawn for a device of a series.
struct Drawn {
    QString device; // id
    TARVOORIXM1::OptionMap options;
};

// What a netlist took that the fit has not seen, and every configuration that it is the netlist of:
// their synthesis reads the same text. Each line of a file of fresh measurements is one.
struct FreshMeasurement {
    int seed = 0;
    QString digest; // of the text
    // At most one for a series; the first was synthesised.
    QVector<Drawn> drawn;
    QHash<QString, int> used; // by resource
    QStringList blackBoxes;
    // Id of a further device for which it was synthesised as well, with the same result; mostly
    // none.
    QString again;
};

// The digests are the first line, as in a file of measurements.
struct FreshMeasurements {
    QString rtl;
    QString synthesis;
    QVector<FreshMeasurement> list;

    // Configurations of this seed, of all series.
    int countOf(int seed) const;
    bool contains(int seed, const QString &digest) const;
};

// As readMeasurements().
Utils::Result<FreshMeasurements> readFresh(const QString &path);
QByteArray lineOf(const FreshMeasurement &measurement);

// One configuration for each series, legal for the device of the series that was drawn as well. The
// series take their turns in an order that is drawn: each takes over what one before it has, if its
// device loses nothing of it, and otherwise draws at random from what its device allows. So many
// are the same for synthesis, and each series is among the first as often as any other.
QVector<Drawn> drawForEachSeries(int seed, const DEV::DeviceDb &devices);

// The digest of what synthesis reads of a configuration: the sources that it compiles after Yosys'
// own preprocessor, without comments, and of them the modules that the top module can reach by name
// and the parameters outside of modules that these name. Parameters that a module is given and
// never reads are left out, and black boxes that differ in nothing but their names are the same.
// Needs Yosys. `known` has the digests of include files and sources that it was asked for before. A
// failure is a sentence.
Utils::Result<QString> textDigest(const DEV::DeviceArg &device,
                                  const TARVOORIXM1::OptionMap &options,
                                  QHash<QByteArray, QString> *known);

// How estimates of one series fare.
struct SeriesShare {
    QString series; // empty: of all netlists, each once
    int count = 0;
    // By the table's resources.
    QVector<int> within;   // what is promised; what is exact is all or nothing
    QVector<double> worst; // in tolerances that are promised
    QStringList misses;    // a text for each figure that does not keep the promise
};

// Of each series, and last of all netlists. A configuration without an estimate is a miss.
QVector<SeriesShare> sharesOf(const FreshMeasurements &fresh, const DEV::DeviceDb &devices,
                              const TARVOORIXM1::EstimateTable &table);

// As a table for people, with a line for each series.
QString shareText(const QVector<SeriesShare> &shares, const TARVOORIXM1::EstimateTable &table);
