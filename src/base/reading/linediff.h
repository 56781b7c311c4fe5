#pragma once

#include <QStringList>
#include <QVector>

namespace Reading
{

// A line of one of two texts, or of both.
struct DiffLine {
    enum Kind { Same, Removed, Added };

    Kind kind = Same;
    QString text;
};

// What turns one list of lines into another, by the longest common subsequence of what lies between
// their equal beginnings and ends. Meant for some hundred lines that differ: of more than 2,000 in
// either list all count as changed. Where a stretch changes, what is removed comes first.
QVector<DiffLine> lineDiff(const QStringList &before, const QStringList &after);

} // namespace Reading
