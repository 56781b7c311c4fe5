#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

namespace Workbench
{

// How much of a resource a configuration takes, by an estimate or by a run.
struct ResourceReading {
    QString resource;
    int value = 0;
    int low = 0; // the range in which it is; one number: exact
    int high = 0;
    int available = -1; // what the device has; -1: no number is known

    bool isExact() const { return low == high; }
};

// What the plug-in of an IP tells of a configuration before it was synthesised.
struct Estimate {
    struct Share {
        QString resource;
        int value = 0;
    };
    struct Block {
        QString name;
        QVector<Share> shares;
    };
    struct BlackBox {
        QString cell;
        int count = 0;
        QString note; // may be empty
    };

    QString error; // a sentence of the plug-in's; otherwise the only entry
    QVector<ResourceReading> resources;
    bool hasPins = false;
    ResourceReading pins;
    QVector<Block> blocks;
    QVector<BlackBox> blackBoxes;

    // What the block takes of the resource; 0 for one that is not known.
    int shareOf(const QString &block, const QString &resource) const;
};

// How the plug-in has a configuration synthesised in the background.
struct MeasureCommand {
    QString error; // as above
    QString program;
    QStringList arguments;
    QString file; // name of what the program works on, in the folder where it is started
    QByteArray configuration; // its contents
};

struct MeasuredUse {
    QString resource;
    int used = 0;
};

// What plug-ins and their programs answer, as it comes from a stranger: all of it if it is sound,
// or nothing. A failure is a clause.
namespace EstimateAnswer
{

// Counts.
constexpr int resourceLimit = 50;
constexpr int blockLimit = 500;
constexpr int argumentLimit = 50;
constexpr int mostOfAResource = 1000000000;
constexpr int configurationLimit = 1 << 20; // bytes
constexpr int outputLimit = 4 << 20;        // bytes

Utils::Result<Estimate> estimateOf(const QVariantMap &answer);
Utils::Result<MeasureCommand> measureCommandOf(const QVariantMap &answer);
// Of what the program prints, an object with "resources".
Utils::Result<QVector<MeasuredUse>> measuredUseOf(const QByteArray &json);
// The first sentence in "errors" of what the program prints; empty if there is none.
QString firstErrorOf(const QByteArray &json);

} // namespace EstimateAnswer

} // namespace Workbench
