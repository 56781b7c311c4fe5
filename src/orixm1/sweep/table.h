#pragma once

#include "config/optionmap.h"

#include <utils/result.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// What a point takes of something that its device has in a limited number.
struct ResourceFigure {
    QString resource;
    int used = 0;
    int available = -1; // -1: no total is known
    int percent = -1;   // likewise
};

enum class PointState {
    Done,       // synthesised
    Generated,  // configuration and include files are written
    Possible,   // checked
    Impossible, // the device does not allow it
    Failed,
    Open, // not done yet, or not any more
};

struct SweepResult {
    QString name;
    QString device; // id
    OptionMap settings;
    PointState state = PointState::Open;
    QString reason;                    // of what is neither done nor generated; may be empty
    QVector<ResourceFigure> resources; // of what is done
};

// What a sweep has found so far. A plain value.
struct SweepTable {
    QStringList keys; // in which the points differ
    QVector<SweepResult> results;
    // Resources on the axes of the picture. Without `pictureX` the points stand side by side;
    // without both it is a choice of the picture's.
    QString pictureX;
    QString pictureY;
};

// "done", "generated", "possible", "not possible", "failed", "not done"
QString stateName(PointState state);

int countOf(const SweepTable &table, PointState state);

// "7 points: 5 done, 1 not possible, 1 failed."
QString countSentence(const SweepTable &table);

// For people: a line for each point, then the reasons.
QStringList tableLines(const SweepTable &table);

// RFC 4180, with a line of headings: point, device, state, reason, a column for each key, and for
// each resource what is used, the total and the percentage.
QByteArray tableCsv(const SweepTable &table);

// {"points": […], "counts": {…}, "keys": […]}
QJsonObject tableJson(const SweepTable &table);

// What a sweep's folder keeps of its points for those who run or collect them: all but the figures.
QByteArray indexText(const SweepTable &table);
// Reads it back. A failure is a clause; names of points are good names of folders.
Utils::Result<SweepTable> readIndex(const QByteArray &text);

} // namespace TARVOORIXM1
