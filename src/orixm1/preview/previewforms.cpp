#include "previewforms.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "unifieddiff.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr PreviewFile::State allStates[] = {
    PreviewFile::New,     PreviewFile::Changed, PreviewFile::Edited, PreviewFile::Remade,
    PreviewFile::Removed, PreviewFile::Equal,   PreviewFile::Stays};

// "2 new, 1 changed, 9 equal"
QString summaryOf(const Preview &preview)
{
    QStringList parts;
    for (const PreviewFile::State state : allStates) {
        const auto count =
            std::count_if(preview.files.begin(), preview.files.end(),
                          [state](const PreviewFile &file) { return file.state == state; });
        if (count > 0)
            parts.append(QString::number(count) + u' ' + stateName(state));
    }
    return parts.join(", "_l1);
}

bool isChange(const PreviewFile &file)
{
    return file.state != PreviewFile::Equal && file.state != PreviewFile::Stays;
}

QStringList notesOf(const PreviewFile &file)
{
    QStringList notes;
    if (file.isTools)
        notes.append(Tr::tr("Made by the tool."));
    if (file.isLong() && isChange(file) && !file.isTools)
        notes.append(Tr::tr("Too long to be shown (%1 bytes).")
                         .arg(std::max(file.sizeBefore,
                                       file.after ? qint64(file.after->size()) : qint64(-1))));
    return notes + file.notes;
}

} // namespace

QStringList diffOf(const PreviewFile &file)
{
    const bool isRemoved = file.state == PreviewFile::Removed;
    if (!isChange(file) || !(file.after || isRemoved) || file.isLong() ||
        (file.sizeBefore >= 0 && !file.before))
        return {};
    const QString nothing = QStringLiteral("/dev/null");
    return unifiedDiff(file.before.value_or(QByteArray()), file.after.value_or(QByteArray()),
                       file.before ? QString("a/"_l1 + file.path) : nothing,
                       isRemoved ? nothing : QString("b/"_l1 + file.path));
}

QStringList previewLines(const Preview &preview, bool withDiff)
{
    QStringList lines = {preview.changesNothing() ? Tr::tr("Nothing would change.")
                                                  : summaryOf(preview)};
    for (const PreviewFile &file : preview.files) {
        lines.append("  "_l1 + stateName(file.state).leftJustified(8) + file.path);
        const QStringList notes = notesOf(file);
        for (const QString &note : notes)
            lines.append("          "_l1 + note);
    }
    for (const QString &note : preview.notes)
        lines.append("note: "_l1 + note);
    QLatin1String title;
    for (const PreviewDifference &difference : preview.differences) {
        if (difference.title != title)
            lines.append(difference.title);
        title = difference.title;
        lines.append("  "_l1 + difference.text);
    }
    if (withDiff) {
        for (const PreviewFile &file : preview.files)
            lines += diffOf(file);
    }
    return lines;
}

QVariantMap previewAnswer(const Preview &preview)
{
    if (!preview.error.isEmpty())
        return {{QStringLiteral("error"), preview.error}};
    QVariantList files;
    for (const PreviewFile &file : preview.files) {
        QVariantMap entry{{QStringLiteral("path"), file.path},
                          {QStringLiteral("state"), stateName(file.state)},
                          {QStringLiteral("notes"), notesOf(file)}};
        const auto insert = [&](const QString &key, const std::optional<QByteArray> &bytes) {
            if (bytes && !file.isLong())
                entry.insert(key, QString::fromUtf8(*bytes));
        };
        insert(QStringLiteral("before"), file.before);
        if (!file.isTools)
            insert(QStringLiteral("after"), file.after);
        files.append(entry);
    }
    QVariantList differences;
    for (const PreviewDifference &difference : preview.differences)
        differences.append(QVariantMap{{QStringLiteral("kind"), QString(difference.kind)},
                                       {QStringLiteral("text"), difference.text}});
    return {{QStringLiteral("error"), QString()},
            {QStringLiteral("text"), QString(previewLines(preview, true).join(u'\n') + u'\n')},
            {QStringLiteral("files"), files},
            {QStringLiteral("differences"), differences},
            {QStringLiteral("notes"), preview.notes}};
}

} // namespace TARVOORIXM1
