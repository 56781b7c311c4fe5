#include "linediff.h"

#include <algorithm>

namespace Reading
{

namespace
{

constexpr int mostCompared = 2000; // lines of each text

void appendChanged(const QStringList &before, const QStringList &after, QVector<DiffLine> *lines)
{
    const int rows = before.size();
    const int columns = after.size();
    QVector<QVector<int>> common;
    if (rows <= mostCompared && columns <= mostCompared) {
        common.fill(QVector<int>(columns + 1, 0), rows + 1);
        for (int i = rows - 1; i >= 0; --i) {
            for (int j = columns - 1; j >= 0; --j)
                common[i][j] = before.at(i) == after.at(j)
                                   ? common.at(i + 1).at(j + 1) + 1
                                   : std::max(common.at(i + 1).at(j), common.at(i).at(j + 1));
        }
    }
    int i = 0;
    int j = 0;
    while (i < rows || j < columns) {
        const bool isCompared = !common.isEmpty() && i < rows && j < columns;
        if (isCompared && before.at(i) == after.at(j)) {
            lines->append({DiffLine::Same, before.at(i++)});
            ++j;
        } else if (i < rows && (!isCompared || common.at(i + 1).at(j) >= common.at(i).at(j + 1))) {
            lines->append({DiffLine::Removed, before.at(i++)});
        } else {
            lines->append({DiffLine::Added, after.at(j++)});
        }
    }
}

} // namespace

QVector<DiffLine> lineDiff(const QStringList &before, const QStringList &after)
{
    const int shorter = std::min(before.size(), after.size());
    int head = 0;
    while (head < shorter && before.at(head) == after.at(head))
        ++head;
    int tail = 0;
    while (tail < shorter - head &&
           before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    QVector<DiffLine> lines;
    for (int i = 0; i < head; ++i)
        lines.append({DiffLine::Same, before.at(i)});
    appendChanged(before.mid(head, before.size() - head - tail),
                  after.mid(head, after.size() - head - tail), &lines);
    for (int i = before.size() - tail; i < before.size(); ++i)
        lines.append({DiffLine::Same, before.at(i)});
    return lines;
}

} // namespace Reading
