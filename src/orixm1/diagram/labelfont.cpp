#include "labelfont.h"

#include "diagramtable.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// A label in the size that the font was measured in.
struct MeasuredLabel {
    QVector<qreal> words; // their widths
    QSizeF room;
};

// Whether the label fits its room, broken between words, when it is written `scale` times as large.
bool doesFit(const MeasuredLabel &label, qreal blank, qreal lineHeight, qreal scale)
{
    const qreal room = label.room.width() / scale;
    int lines = 1;
    qreal used = 0;
    for (qreal word : label.words) {
        if (word > room)
            return false;
        const qreal together = used + (used > 0 ? blank : 0) + word;
        lines += together > room;
        used = together > room ? word : together;
    }
    return lines * lineHeight * scale <= label.room.height();
}

} // namespace

QList<BlockLabel> diagramLabels()
{
    QList<BlockLabel> labels;
    for (const DiagramRow &row : diagramRows()) {
        if (row.kind == DiagramRow::Block && row.text.size() > 0)
            labels.append({row.text, QSizeF(row.width - 2, row.height - 2)});
    }
    return labels;
}

QFont fittingFont(const QFont &font, const QList<BlockLabel> &labels)
{
    // Without hinting, text is alike at every scale and its measures grow with the size: one
    // size tells of all, which saves loading the others. It is the one that often results.
    constexpr int measured = 11;
    constexpr int smallest = 4;
    QFont result = font;
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setPixelSize(measured);
    const QFontMetricsF metrics(result);
    const qreal blank = metrics.horizontalAdvance(u' ');

    QVector<MeasuredLabel> all;
    for (const BlockLabel &label : labels) {
        all.append({{}, label.room});
        const QStringList words = label.text.split(u' ');
        for (const QString &word : words)
            all.last().words.append(metrics.horizontalAdvance(word));
    }
    int size = qMax(smallest, QFontInfo(font).pixelSize());
    const auto isTooLarge = [&](const MeasuredLabel &label) {
        return !doesFit(label, blank, metrics.lineSpacing(), qreal(size) / measured);
    };
    while (size > smallest && std::any_of(all.cbegin(), all.cend(), isTooLarge))
        --size;
    result.setPixelSize(size);
    return result;
}

} // namespace TARVOORIXM1
