#include "unifieddiff.h"

#include <QVector>

#include <algorithm>

namespace Cli
{

namespace
{

constexpr int context = 3;
constexpr int mostCompared = 2000; // lines of each text

struct Line {
    QChar mark; // ' ', '-' or '+'
    QString text;
};

// The last entry is empty exactly if the text ends with a line end.
QStringList linesOf(const QByteArray &text)
{
    return QString::fromUtf8(text).split(u'\n');
}

// The lines in between, by the longest common subsequence.
QVector<Line> changed(const QStringList &before, const QStringList &after)
{
    QVector<Line> lines;
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
            lines.append({u' ', before.at(i++)});
            ++j;
        } else if (i < rows && (!isCompared || common.at(i + 1).at(j) >= common.at(i).at(j + 1))) {
            lines.append({u'-', before.at(i++)});
        } else {
            lines.append({u'+', after.at(j++)});
        }
    }
    return lines;
}

QString range(int first, int count)
{
    const QString start = QString::number(count == 0 ? first - 1 : first);
    return count == 1 ? start : QString(start + u',' + QString::number(count));
}

} // namespace

QStringList unifiedDiff(const QByteArray &before, const QByteArray &after,
                        const QString &beforeName, const QString &afterName)
{
    if (before == after)
        return {};
    QStringList old = linesOf(before);
    QStringList next = linesOf(after);
    // A last line without line end differs from the same with one.
    for (QStringList *lines : {&old, &next}) {
        if (lines->constLast().isEmpty())
            lines->removeLast();
        else
            lines->last() += QLatin1String("\n\\ No newline at end of file");
    }
    int head = 0;
    while (head < std::min(old.size(), next.size()) && old.at(head) == next.at(head))
        ++head;
    int tail = 0;
    while (tail < std::min(old.size(), next.size()) - head &&
           old.at(old.size() - 1 - tail) == next.at(next.size() - 1 - tail))
        ++tail;
    QVector<Line> lines;
    for (int i = 0; i < head; ++i)
        lines.append({u' ', old.at(i)});
    lines +=
        changed(old.mid(head, old.size() - head - tail), next.mid(head, next.size() - head - tail));
    for (int i = old.size() - tail; i < old.size(); ++i)
        lines.append({u' ', old.at(i)});

    QStringList diff = {QLatin1String("--- ") + beforeName, QLatin1String("+++ ") + afterName};
    int oldLine = 1;
    int nextLine = 1;
    int at = 0;
    const auto isChange = [&lines](int i) { return lines.at(i).mark != u' '; };
    while (at < lines.size()) {
        int first = at;
        while (first < lines.size() && !isChange(first))
            ++first;
        if (first == lines.size())
            break;
        const int begin = std::max(at, first - context);
        int last = first; // the last change of the hunk
        for (int i = first; i < lines.size() && i - last <= 2 * context + 1; ++i)
            last = isChange(i) ? i : last;
        const int end = std::min(lines.size(), last + context + 1);
        oldLine += begin - at;
        nextLine += begin - at;
        int olds = 0;
        int nexts = 0;
        QStringList hunk;
        for (int i = begin; i < end; ++i) {
            olds += lines.at(i).mark != u'+';
            nexts += lines.at(i).mark != u'-';
            hunk.append(lines.at(i).mark + lines.at(i).text);
        }
        diff.append(QLatin1String("@@ -") + range(oldLine, olds) + QLatin1String(" +") +
                    range(nextLine, nexts) + QLatin1String(" @@"));
        diff += hunk;
        oldLine += olds;
        nextLine += nexts;
        at = end;
    }
    return diff;
}

} // namespace Cli
