#include "spelling.h"

#include <QVector>

#include <algorithm>

namespace TARVOORIXM1
{

int slips(const QString &a, const QString &b)
{
    const auto letter = [](const QString &text, int i) { return text.at(i - 1).toCaseFolded(); };
    // Row i of the table of distances between beginnings, and the two before it.
    QVector<int> beforeLast;
    QVector<int> last;
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        beforeLast = last;
        last = row;
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int change = last[j - 1] + (letter(a, i) == letter(b, j) ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, change});
            if (i > 1 && j > 1 && letter(a, i) == letter(b, j - 1) &&
                letter(a, i - 1) == letter(b, j))
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row[b.size()];
}

QStringList nearestTexts(const QString &text, const QStringList &known)
{
    constexpr int longest = 100;
    QStringList nearest;
    if (text.size() > longest)
        return nearest;
    int best = text.size() / 3;
    for (const QString &candidate : known) {
        const int distance = slips(text, candidate);
        if (distance > best)
            continue;
        if (distance < best)
            nearest.clear();
        best = distance;
        nearest.append(candidate);
    }
    return nearest;
}

} // namespace TARVOORIXM1
