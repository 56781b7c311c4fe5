#include "nearest.h"

#include <QVector>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// Number of single-letter changes between two texts (Levenshtein), letter case apart.
int editDistance(const QString &a, const QString &b)
{
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int change =
                diagonal + (a.at(i - 1).toCaseFolded() == b.at(j - 1).toCaseFolded() ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, change});
        }
    }
    return row[b.size()];
}

} // namespace

QString nearestText(const QString &text, const QStringList &known)
{
    QString nearest;
    // A text far longer than any known one resembles none; comparing it would only take time.
    if (text.size() > 100)
        return nearest;
    int best = text.size() / 3 + 1;
    for (const QString &entry : known) {
        const int distance = editDistance(text, entry);
        if (distance < best) {
            best = distance;
            nearest = entry;
        }
    }
    return nearest;
}

} // namespace TARVOORIXM1
