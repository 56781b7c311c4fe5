#pragma once

#include <synthesis/runreport.h>

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

// The tables of a run as files for other programs.
namespace Workbench::TableFiles
{

enum class Table { Resources, Cells, Ports };

// The texts of a table; numbers and "" as JSON has them.
struct Contents {
    QStringList names; // of the columns, as CSV and JSON have them
    QVector<QVariantList> rows;
};

QVector<Table> tables();
QString titleOf(Table table); // with "&" and "…"
QString fileNameOf(Table table);
Contents tableOf(const Synthesis::RunReport &report, Table table);

QByteArray csvOf(const Contents &contents);      // RFC 4180, with LF
QByteArray jsonOf(const Contents &contents);     // a list of objects, a line each
QByteArray markdownOf(const Contents &contents); // a table

// As the ending of the path says. False, and a sentence in `*error`, if it names no format or the
// file cannot be written.
bool write(const Contents &contents, const QString &path, QString *error);

} // namespace Workbench::TableFiles
