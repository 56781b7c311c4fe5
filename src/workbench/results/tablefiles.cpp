#include "tablefiles.h"

#include "tr.h"

#include <utils/fileutils.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariant>

namespace Workbench::TableFiles
{

namespace
{

struct Format {
    const char *ending;
    QByteArray (*bytes)(const Contents &contents);
};

constexpr Format formats[] = {{"csv", csvOf}, {"json", jsonOf}, {"md", markdownOf}};

QString quoted(QString text)
{
    const bool needsQuotes =
        text.contains(u'"') || text.contains(u',') || text.contains(u'\n') || text.contains(u'\r');
    return needsQuotes ? u'"' + text.replace(u'"', QLatin1String("\"\"")) + u'"' : text;
}

// A number that there is none of is an empty field, and null in JSON.
QString textOf(const QVariant &value)
{
    return value.isNull() ? QString() : value.toString();
}

QString lineOf(const QStringList &cells)
{
    QStringList escaped;
    for (QString cell : cells)
        escaped.append(cell.replace(u'\\', QLatin1String("\\\\"))
                           .replace(u'|', QLatin1String("\\|"))
                           .replace(u'\n', u' '));
    return QLatin1String("| ") + escaped.join(QLatin1String(" | ")) + QLatin1String(" |\n");
}

QStringList textsOf(const QVariantList &row)
{
    QStringList texts;
    for (const QVariant &value : row)
        texts.append(textOf(value));
    return texts;
}

} // namespace

QVector<Table> tables()
{
    return {Table::Resources, Table::Cells, Table::Ports};
}

QString titleOf(Table table)
{
    switch (table) {
    case Table::Resources:
        return Tr::tr("&Resources…");
    case Table::Cells:
        return Tr::tr("&Cells…");
    case Table::Ports:
        return Tr::tr("&Ports…");
    }
    return {};
}

QString fileNameOf(Table table)
{
    switch (table) {
    case Table::Resources:
        return QStringLiteral("resources");
    case Table::Cells:
        return QStringLiteral("cells");
    case Table::Ports:
        return QStringLiteral("ports");
    }
    return {};
}

Contents tableOf(const Synthesis::RunReport &report, Table table)
{
    const auto names = [](std::initializer_list<const char *> texts) {
        QStringList result;
        for (const char *text : texts)
            result.append(QLatin1String(text));
        return result;
    };
    Contents contents;
    switch (table) {
    case Table::Resources:
        contents.names = names({"resource", "used", "available", "percent"});
        for (const Synthesis::ResourceUse &use : report.resources) {
            const bool isKnown = use.available >= 0;
            contents.rows.append({use.resource, use.used,
                                  isKnown ? QVariant(use.available) : QVariant(),
                                  isKnown ? QVariant(use.percent()) : QVariant()});
        }
        break;
    case Table::Cells:
        contents.names = names({"cell", "count", "blackBox"});
        for (const Synthesis::CellCount &cell : report.cells)
            contents.rows.append({cell.cell, cell.count, cell.isBlackBox});
        break;
    case Table::Ports:
        contents.names = names({"port", "direction", "msb", "lsb"});
        for (const Synthesis::ReportPort &port : report.ports)
            contents.rows.append({port.name, port.direction,
                                  port.isVector ? QVariant(port.msb) : QVariant(),
                                  port.isVector ? QVariant(port.lsb) : QVariant()});
        break;
    }
    return contents;
}

QByteArray csvOf(const Contents &contents)
{
    QString text = contents.names.join(u',') + u'\n';
    for (const QVariantList &row : contents.rows) {
        QStringList cells;
        for (const QVariant &value : row)
            cells.append(quoted(textOf(value)));
        text += cells.join(u',') + u'\n';
    }
    return text.toUtf8();
}

QByteArray jsonOf(const Contents &contents)
{
    QByteArray text = "[";
    for (int i = 0; i < contents.rows.size(); ++i) {
        QJsonObject object;
        for (int column = 0; column < contents.names.size(); ++column)
            object.insert(contents.names.at(column),
                          QJsonValue::fromVariant(contents.rows.at(i).at(column)));
        text += (i == 0 ? "\n  " : ",\n  ") + QJsonDocument(object).toJson(QJsonDocument::Compact);
    }
    return text + (contents.rows.isEmpty() ? "]\n" : "\n]\n");
}

QByteArray markdownOf(const Contents &contents)
{
    QString text = lineOf(contents.names) + u'|';
    for (int column = 0; column < contents.names.size(); ++column) {
        const bool isNumber = !contents.rows.isEmpty() &&
                              contents.rows.constFirst().at(column).type() != QVariant::String;
        text += isNumber ? QLatin1String(" ---: |") : QLatin1String(" --- |");
    }
    text += u'\n';
    for (const QVariantList &row : contents.rows)
        text += lineOf(textsOf(row));
    return text.toUtf8();
}

bool write(const Contents &contents, const QString &path, QString *error)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const Format &format : formats) {
        if (ending == QLatin1String(format.ending))
            return Utils::FileUtils::writeFile(QFileInfo(path).absoluteFilePath(),
                                               format.bytes(contents), error);
    }
    *error = Tr::tr("The table \"%1\" must end in .csv, .json or .md.")
                 .arg(QDir::toNativeSeparators(path));
    return false;
}

} // namespace Workbench::TableFiles
