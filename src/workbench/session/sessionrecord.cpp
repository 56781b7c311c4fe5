#include "sessionrecord.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>
#include <limits>

namespace Workbench
{

namespace
{

constexpr int formatNumber = 1;
constexpr int pathLimit = 4096; // characters

// By SessionTab::Kind.
const char *const kindNames[] = {"file", "handoff", "simulation", "results"};

const QString formatKey = QStringLiteral("format");
const QString tabsKey = QStringLiteral("tabs");
const QString currentKey = QStringLiteral("current");
const QString runKey = QStringLiteral("run");
const QString kindKey = QStringLiteral("kind");
const QString pathKey = QStringLiteral("path");
const QString lineKey = QStringLiteral("line");
const QString columnKey = QStringLiteral("column");
const QString topKey = QStringLiteral("top");
const QString leftKey = QStringLiteral("left");

int numberOf(const QJsonObject &object, const QString &key, int least)
{
    const double value = object.value(key).toDouble(least);
    return value >= least && value <= std::numeric_limits<int>::max() ? int(value) : least;
}

bool isSound(const QString &path)
{
    return !path.isEmpty() && path.size() <= pathLimit && !path.contains(QChar(0)) &&
           QDir::isAbsolutePath(path) && QDir::cleanPath(path) == path;
}

std::optional<SessionTab> tabOf(const QJsonObject &object)
{
    const QString name = object.value(kindKey).toString();
    for (size_t kind = 0; kind < std::size(kindNames); ++kind) {
        if (name != QLatin1String(kindNames[kind]))
            continue;
        SessionTab tab;
        tab.kind = SessionTab::Kind(kind);
        tab.path = object.value(pathKey).toString();
        tab.line = numberOf(object, lineKey, 1);
        tab.column = numberOf(object, columnKey, 1);
        tab.top = numberOf(object, topKey, 1);
        tab.left = numberOf(object, leftKey, 0);
        if (tab.kind == SessionTab::Results ? tab.path.isEmpty() : isSound(tab.path))
            return tab;
    }
    return std::nullopt;
}

} // namespace

QString SessionRecord::toText() const
{
    QJsonArray list;
    for (const SessionTab &tab : tabs.mid(0, tabLimit)) {
        QJsonObject object{{kindKey, QLatin1String(kindNames[tab.kind])}};
        if (tab.kind != SessionTab::Results)
            object.insert(pathKey, tab.path);
        if (tab.kind == SessionTab::File) {
            object.insert(lineKey, tab.line);
            object.insert(columnKey, tab.column);
            object.insert(topKey, tab.top);
            object.insert(leftKey, tab.left);
        }
        list.append(object);
    }
    const QJsonObject object{
        {formatKey, formatNumber}, {tabsKey, list}, {currentKey, current}, {runKey, hasRun}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

std::optional<SessionRecord> SessionRecord::fromText(const QString &text)
{
    if (text.size() > sizeLimit)
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    if (object.value(formatKey).toInt() != formatNumber)
        return std::nullopt;
    SessionRecord record;
    record.hasRun = object.value(runKey).toBool();
    const int wanted = object.value(currentKey).toInt(-1);
    const QJsonArray list = object.value(tabsKey).toArray();
    for (int i = 0; i < list.size() && record.tabs.size() < tabLimit; ++i) {
        const auto tab = tabOf(list.at(i).toObject());
        if (!tab)
            continue;
        if (i == wanted)
            record.current = record.tabs.size();
        record.tabs.append(*tab);
    }
    return record;
}

} // namespace Workbench
