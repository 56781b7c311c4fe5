#include "nearest.h"

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

QString nearestText(const QString &text, const QStringList &known)
{
    QString nearest;
    // A text far longer than any known one resembles none; comparing it would only take time.
    if (text.size() > 100)
        return nearest;
    int best = text.size() / 3 + 1;
    for (const QString &entry : known) {
        const int distance = slips(text, entry);
        if (distance < best) {
            best = distance;
            nearest = entry;
        }
    }
    return nearest;
}

} // namespace TARVOORIXM1
