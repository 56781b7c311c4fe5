#pragma once

#include <config/optionmap.h>
#include <dev/devicearg.h>
#include <generate/plan.h>
#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

// A configuration, and what its netlist took. Each line of a file of measurements is one.
struct Measurement {
    QString name;   // unique in a file
    QString device; // id
    TARVOORIXM1::OptionMap options;
    bool isHeldOut = false;   // the fit never sees it
    QHash<QString, int> used; // by resource
    QStringList blackBoxes;   // cells that are no primitives
};

// A file of measurements holds only what was made of the same RTL by the same synthesis, whose
// digests are its first line.
struct Measurements {
    QString rtl;
    QString synthesis;
    QVector<Measurement> list;

    // One of the same options for the same device.
    bool contains(const Measurement &other) const;
};

// A failure is a sentence. A last line that is not whole, as a killed run leaves it, is no mistake.
Utils::Result<Measurements> readMeasurements(const QString &path);
QByteArray lineOf(const Measurement &measurement);
QByteArray headLine(const Measurements &measurements);

// The values of options as a line of a file has them.
TARVOORIXM1::OptionMap optionsFrom(const QJsonObject &object);

// What a generation into a folder that exists is made from, with the include files written. A
// failure is a sentence.
Utils::Result<TARVOORIXM1::GenerationPlan> writtenPlan(const DEV::DeviceArg &device,
                                                       const TARVOORIXM1::OptionMap &options,
                                                       const QString &folder);

// The digests of today's RTL, and of the library and the script that synthesis maps it with.
Utils::Result<QString> rtlDigest();
Utils::Result<QString> synthesisDigest();

// Runs synthesis as a generation does, in a folder of its own and without any cache, and waits for
// its end. Sets what it took. A failure is a sentence.
Utils::Result<void> measure(const DEV::DeviceArg &device, Measurement *measurement);
