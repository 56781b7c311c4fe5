#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// What an estimate of one resource may be off by, whichever is more. Both 0: it is exact.
struct Tolerance {
    double cells = 0;
    double percent = 0; // of the value

    double of(double value) const;
};

// What a supplier's data sheet says of a black box. Without a source nothing is known.
struct SupplierFigures {
    QString source;
    QHash<QString, int> used; // by resource
};

// What the terms of a configuration cost, fitted to netlists, and what was measured for it.
struct EstimateTable {
    QString rtl;       // SHA-256 in hexadecimal: see measuredDigest()
    QString synthesis; // likewise
    int fitted = 0;    // configurations that the costs were fitted to
    int checked = 0;   // further ones that the tolerances were checked with

    QStringList resources; // as the report of a run names them, in its order
    QVector<Tolerance> tolerances;
    // By index into termNames(), a cost for each resource. Empty: no measured netlist has the term.
    QVector<QVector<double>> costs;

    QHash<QString, SupplierFigures> blackBoxes; // by module
};

// The table as text; two entries of the same name are one in it.
QByteArray tableText(const EstimateTable &table);

// Reads "estimate.json" and "black-boxes.json" of an IP's data folder. A failure is a sentence that
// names file and place.
Utils::Result<EstimateTable> readEstimateTable(const QString &dataPath);

// Whether the data folder has a table at all.
bool hasEstimateTable(const QString &dataPath);

// The digest of what netlists are made from: names without their folders, and bytes, of files in
// the order of the names. A failure names the file.
Utils::Result<QString> measuredDigest(const QStringList &paths);

} // namespace TARVOORIXM1
