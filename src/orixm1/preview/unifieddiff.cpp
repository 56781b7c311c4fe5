#include "unifieddiff.h"

#include <reading/linediff.h>

#include <QVector>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

using Reading::DiffLine;

constexpr int context = 3;

// The last entry is empty exactly if the text ends with a line end.
QStringList linesOf(const QByteArray &text)
{
    return QString::fromUtf8(text).split(u'\n');
}

QChar markOf(DiffLine::Kind kind)
{
    switch (kind) {
    case DiffLine::Same:
        return u' ';
    case DiffLine::Removed:
        return u'-';
    case DiffLine::Added:
        break;
    }
    return u'+';
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
    const QVector<DiffLine> lines = Reading::lineDiff(old, next);

    QStringList diff = {QLatin1String("--- ") + beforeName, QLatin1String("+++ ") + afterName};
    int oldLine = 1;
    int nextLine = 1;
    int at = 0;
    const auto isChange = [&lines](int i) { return lines.at(i).kind != DiffLine::Same; };
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
            olds += lines.at(i).kind != DiffLine::Added;
            nexts += lines.at(i).kind != DiffLine::Removed;
            hunk.append(markOf(lines.at(i).kind) + lines.at(i).text);
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

} // namespace TARVOORIXM1
