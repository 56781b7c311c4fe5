#include "plan.h"

#include "config/latin1literal.h"
#include "config/nearest.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "rules/dialogdefaults.h"

#include <reading/jsontext.h>

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace TARVOORIXM1
{

namespace
{

constexpr int mostMistakes = 50;
constexpr int longestName = 120;     // of a point; a file name has 255 bytes
constexpr int longestEntryName = 60; // of an entry of the list

namespace Member
{
constexpr QLatin1String base = "base"_l1;
constexpr QLatin1String devices = "devices"_l1;
constexpr QLatin1String options = "options"_l1;
constexpr QLatin1String grid = "grid"_l1;
constexpr QLatin1String list = "list"_l1;
constexpr QLatin1String exclude = "exclude"_l1;
constexpr QLatin1String picture = "picture"_l1;
constexpr QLatin1String name = "name"_l1;
constexpr QLatin1String device = "device"_l1;
constexpr QLatin1String x = "x"_l1;
constexpr QLatin1String y = "y"_l1;
} // namespace Member

constexpr QLatin1String planMembers[] = {Member::base,   Member::devices, Member::options,
                                         Member::grid,   Member::list,    Member::exclude,
                                         Member::picture};

QString didYouMean(const QString &candidate)
{
    return candidate.isEmpty() ? QString() : "Did you mean \""_l1 + candidate + "\"?"_l1;
}

QString typeOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("null");
}

QString shown(const QVariant &value)
{
    const QString text = value.toString();
    return text.size() > 60 ? QString(text.left(60) + QChar(0x2026)) : text;
}

bool isPattern(const QString &text)
{
    return text.contains(u'*') || text.contains(u'?');
}

// Whether the text, which may be a pattern, is a name. Takes a time of at most the product of their
// lengths, whatever the pattern: a regular expression with many stars would take very long.
bool isMatch(const QString &text, const QString &name, Qt::CaseSensitivity sensitivity)
{
    if (!isPattern(text))
        return name.compare(text, sensitivity) == 0;
    const auto isSame = [sensitivity](QChar one, QChar other) {
        return one == other ||
               (sensitivity == Qt::CaseInsensitive && one.toCaseFolded() == other.toCaseFolded());
    };
    int at = 0;
    int star = -1;  // the last one that was passed
    int starAt = 0; // what it stands for ends before this character of the name
    int in = 0;     // the name
    while (in < name.size()) {
        if (at < text.size() && text.at(at) == u'*') {
            star = at++;
            starAt = in;
        } else if (at < text.size() && (text.at(at) == u'?' || isSame(text.at(at), name.at(in)))) {
            ++at;
            ++in;
        } else if (star >= 0) {
            at = star + 1;
            in = ++starAt;
        } else {
            return false;
        }
    }
    while (at < text.size() && text.at(at) == u'*')
        ++at;
    return at == text.size();
}

// The devices that a text of a plan means: a name stands for its first package and speed grade, so
// that a pattern of names gives each name once.
QList<DEV::DeviceArg> devicesOf(const QString &text, const QList<DEV::DeviceArg> &all)
{
    using Field = QString (DEV::DeviceArg::*)() const;
    constexpr Field fields[] = {&DEV::DeviceArg::device, &DEV::DeviceArg::id,
                                &DEV::DeviceArg::partNumber};
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const Field field : fields) {
            QList<DEV::DeviceArg> found;
            QSet<QString> seen;
            for (const DEV::DeviceArg &device : all) {
                const QString value = (device.*field)();
                if (seen.contains(value) || !isMatch(text, value, sensitivity))
                    continue;
                seen.insert(value);
                found.append(device);
            }
            if (!found.isEmpty())
                return found;
        }
    }
    return {};
}

// As a part of a name: "Enable CAN" becomes "Enable_CAN".
QString plain(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        const bool isPlain = c.unicode() < 128 && (c.isLetterOrNumber() || c == u'.' || c == u'-');
        result += isPlain ? c : c == u'/' ? QChar(u'-') : QChar(u'_');
    }
    return result;
}

QString digest(const QString &text)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(8));
}

QString plainValue(const QString &key, const QVariant &value)
{
    const QString text = value.toString();
    const QString name = plain(text);
    const Option *option = findOption(key);
    const bool isClosed =
        option && (option->type != OptionType::String || !option->choices.isEmpty());
    // Other texts of an open domain may become the same.
    return isClosed || name == text ? name : QString(name.right(24) + u'-' + digest(text));
}

QString settingsName(const QVector<QPair<QString, QVariant>> &settings)
{
    QString name;
    for (const auto &setting : settings)
        name += u'.' + plain(setting.first) + u'=' + plainValue(setting.first, setting.second);
    return name;
}

class PlanReader
{
public:
    PlanReader(const QByteArray &text, const DEV::DeviceDb &devices, const QStringList &resources)
        : m_text(text)
        , m_devices(devices)
        , m_resources(resources)
    {
    }

    SweepPlanText read()
    {
        const Reading::JsonText json = Reading::readJson(m_text);
        if (json.mistake.offset >= 0) {
            const Reading::TextPlace place = Reading::placeIn(m_text, json.mistake.offset);
            m_result.mistakes.append({QString(), place.line, place.column,
                                      "The plan is no JSON: "_l1 + json.mistake.reason + u'.',
                                      QString()});
            return m_result;
        }
        if (!json.document.isObject()) {
            add({}, QStringLiteral("The plan is no JSON object."));
            return m_result;
        }
        const QJsonObject root = json.document.object();
        QStringList members;
        for (const QLatin1String member : planMembers)
            members.append(member);
        refuseOthers({}, root, members);
        readBase(root);
        readDevices(root);
        readSettings({Member::options}, root, m_result.plan.options);
        readGrid(root);
        readList(root);
        readExclusions(root);
        readPicture(root);
        refuseKeysTwice();
        if (m_result.mistakes.isEmpty() && m_result.plan.base.isEmpty() &&
            m_result.plan.devices.isEmpty())
            add({}, QStringLiteral("The plan has no device."),
                QStringLiteral("Name some in \"devices\", or a configuration in \"base\"."));
        if (m_result.mistakes.isEmpty() && sweepPointCount(m_result.plan) > mostSweepPoints)
            add({},
                "The plan has more than "_l1 + QString::number(mostSweepPoints) + " points."_l1);
        std::stable_sort(m_result.mistakes.begin(), m_result.mistakes.end(),
                         [](const PlanMistake &a, const PlanMistake &b) {
                             return a.line != b.line ? a.line < b.line : a.column < b.column;
                         });
        return m_result;
    }

private:
    using Path = Reading::JsonPath;

    static QString shownPath(const Path &path)
    {
        QString text;
        for (const Reading::JsonStep &step : path)
            text += step.number >= 0 ? u'[' + QString::number(step.number) + u']'
                    : text.isEmpty() ? step.name
                                     : QString(u'.' + step.name);
        return text;
    }

    void add(const Path &path, const QString &text, const QString &fix = QString())
    {
        if (m_result.mistakes.size() == mostMistakes)
            return;
        const Reading::TextPlace place =
            Reading::placeIn(m_text, Reading::findJsonValue(m_text, path));
        m_result.mistakes.append({shownPath(path), place.line, place.column, text, fix});
    }

    static Path below(Path path, const Reading::JsonStep &step)
    {
        path.append(step);
        return path;
    }

    bool expect(const Path &path, const QJsonValue &value, QJsonValue::Type type,
                QLatin1String what)
    {
        if (value.type() == type)
            return true;
        add(path, "This is "_l1 + typeOf(value) + ", not "_l1 + what + u'.');
        return false;
    }

    void refuseOthers(const Path &path, const QJsonObject &object, const QStringList &known)
    {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (!known.contains(it.key()))
                add(below(path, it.key()), "Unknown key \""_l1 + shown(it.key()) + "\"."_l1,
                    didYouMean(nearestText(it.key(), known)));
        }
    }

    void readBase(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::base);
        const Path path{Member::base};
        if (value.isUndefined() || !expect(path, value, QJsonValue::String, "a text"_l1))
            return;
        m_result.plan.base = value.toString();
        if (m_result.plan.base.isEmpty())
            add(path, QStringLiteral("The name of the configuration is empty."));
    }

    void readDevices(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::devices);
        const Path path{Member::devices};
        if (value.isUndefined() || !expect(path, value, QJsonValue::Array, "a list"_l1))
            return;
        const QJsonArray array = value.toArray();
        if (array.isEmpty())
            add(path, QStringLiteral("The list is empty."));
        QSet<QString> ids;
        for (int i = 0; i < array.size(); ++i) {
            const Path entry = below(path, i);
            if (!expect(entry, array.at(i), QJsonValue::String, "a text"_l1))
                continue;
            const QString text = array.at(i).toString();
            const QList<DEV::DeviceArg> found = devicesOf(text, m_devices.devices());
            if (found.isEmpty())
                refuseDevice(entry, text);
            for (const DEV::DeviceArg &device : found) {
                if (!ids.contains(device.id()))
                    m_result.plan.devices.append(device);
                ids.insert(device.id());
            }
        }
    }

    void refuseDevice(const Path &path, const QString &text)
    {
        if (isPattern(text)) {
            add(path, "No device matches \""_l1 + shown(text) + "\"."_l1,
                QStringLiteral("\"orixm1 devices\" lists them."));
            return;
        }
        QStringList known;
        for (const DEV::DeviceArg &device : m_devices.devices())
            known += {device.device(), device.id(), device.partNumber()};
        known.removeDuplicates();
        const QString meant = didYouMean(nearestText(text, known));
        add(path, "Unknown device \""_l1 + shown(text) + "\"."_l1,
            meant.isEmpty() ? QStringLiteral("\"orixm1 devices\" lists the known ones.") : meant);
    }

    // The row of a key that a plan may set.
    const Option *settable(const Path &path, const QString &key)
    {
        const Option *option = findOption(key);
        if (!option) {
            const QString near = nearestOptionKey(key);
            add(path, "Unknown option \""_l1 + shown(key) + "\"."_l1,
                near.isEmpty() ? QStringLiteral("\"orixm1 options\" lists the known ones.")
                               : didYouMean(near));
            return nullptr;
        }
        QString fix;
        if (key == Key::ipDevice || key == Key::ipDeviceId)
            fix = QStringLiteral("Devices stand in \"devices\".");
        else if (key == Key::itcmInitializationAbsolutePath)
            fix = "It follows from \""_l1 + Key::itcmInitializationPath + "\"."_l1;
        if (fix.isEmpty())
            return option;
        add(path, u'"' + key + "\" cannot be set by a plan."_l1, fix);
        return nullptr;
    }

    // Invalid: a mistake has been told.
    QVariant readValue(const Path &path, const Option &option, const QJsonValue &value)
    {
        QVariant result;
        switch (option.type) {
        case OptionType::Bool:
            if (value.isBool())
                result = value.toBool();
            break;
        case OptionType::Int:
            if (value.isDouble() && std::floor(value.toDouble()) == value.toDouble() &&
                std::fabs(value.toDouble()) < 1e9)
                result = value.toInt();
            break;
        case OptionType::String:
            if (value.isString())
                result = value.toString();
            break;
        }
        const QString domain = domainText(option);
        if (!result.isValid()) {
            const QVariant text = value.toVariant();
            QString fix;
            if (option.type == OptionType::String && value.isDouble())
                fix = "Write \""_l1 + text.toString() + "\"."_l1;
            else if (value.isString() && optionValueFromText(option, text.toString()).isValid())
                fix = "Write "_l1 + optionValueFromText(option, text.toString()).toString() +
                      " without quotation marks."_l1;
            else if (!domain.isEmpty())
                fix = "It is "_l1 + domain + u'.';
            add(path,
                (value.isDouble() ? QString(text.toString() + " is no "_l1)
                                  : QString("This is "_l1 + typeOf(value) + ", but \""_l1 +
                                            option.key + "\" is "_l1)) +
                    (value.isDouble()
                         ? QString(typeName(option.type) + ", as \""_l1 + option.key + "\" is."_l1)
                         : QString("of type "_l1 + typeName(option.type) + u'.')),
                fix);
            return {};
        }
        if (!isInDomain(option, result)) {
            add(path,
                u'"' + shown(result) + "\" is no value of \""_l1 + option.key + "\": "_l1 + domain +
                    u'.',
                didYouMean(option.type == OptionType::String
                               ? nearestText(result.toString(), option.choices)
                               : QString()));
            return {};
        }
        return result;
    }

    void readSetting(const Path &path, const QString &key, const QJsonValue &value, OptionMap &map)
    {
        const Option *option = settable(path, key);
        const QVariant read = option ? readValue(path, *option, value) : QVariant();
        if (read.isValid())
            map.insert(key, read);
    }

    void readSettings(const Path &path, const QJsonObject &parent, OptionMap &map)
    {
        const QJsonValue value = parent.value(path.last().name);
        if (value.isUndefined() || !expect(path, value, QJsonValue::Object, "an object"_l1))
            return;
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            readSetting(below(path, it.key()), it.key(), it.value(), map);
    }

    // A list of values of the key; a single value where `orOne`.
    void readAxis(const Path &path, const QString &key, const QJsonValue &value, bool orOne,
                  QVector<GridAxis> &axes)
    {
        const Option *option = settable(path, key);
        if (!option)
            return;
        GridAxis axis{key, {}};
        if (orOne && !value.isArray()) {
            const QVariant one = readValue(path, *option, value);
            if (one.isValid())
                axis.values.append(one);
        } else if (expect(path, value, QJsonValue::Array, "a list of values"_l1)) {
            const QJsonArray array = value.toArray();
            if (array.isEmpty())
                add(path, QStringLiteral("The list is empty."));
            for (int i = 0; i < array.size(); ++i) {
                const QVariant one = readValue(below(path, i), *option, array.at(i));
                if (one.isValid() && axis.values.contains(one))
                    add(below(path, i), u'"' + shown(one) + "\" stands here twice."_l1);
                else if (one.isValid())
                    axis.values.append(one);
            }
        }
        axes.append(axis);
    }

    void readGrid(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::grid);
        const Path path{Member::grid};
        if (value.isUndefined() || !expect(path, value, QJsonValue::Object, "an object"_l1))
            return;
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            readAxis(below(path, it.key()), it.key(), it.value(), false, m_result.plan.grid);
    }

    void readList(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::list);
        const Path path{Member::list};
        if (value.isUndefined() || !expect(path, value, QJsonValue::Array, "a list"_l1))
            return;
        const QJsonArray array = value.toArray();
        if (array.isEmpty())
            add(path, QStringLiteral("The list is empty."));
        QSet<QString> names;
        for (int i = 0; i < array.size(); ++i) {
            const Path place = below(path, i);
            if (!expect(place, array.at(i), QJsonValue::Object, "an object"_l1))
                continue;
            const QJsonObject object = array.at(i).toObject();
            ListEntry entry;
            for (auto it = object.begin(); it != object.end(); ++it) {
                if (it.key() == Member::name)
                    readName(below(place, it.key()), it.value(), names, entry);
                else
                    readSetting(below(place, it.key()), it.key(), it.value(), entry.settings);
            }
            const bool isThere = std::any_of(
                m_result.plan.list.begin(), m_result.plan.list.end(),
                [&entry](const ListEntry &other) { return other.settings == entry.settings; });
            if (isThere && m_result.mistakes.isEmpty())
                add(place, QStringLiteral("An entry with the same options stands before."));
            m_result.plan.list.append(entry);
        }
    }

    void readName(const Path &path, const QJsonValue &value, QSet<QString> &names, ListEntry &entry)
    {
        if (!expect(path, value, QJsonValue::String, "a text"_l1))
            return;
        entry.name = value.toString();
        static const QRegularExpression form(
            QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_-]+")));
        if (entry.name.size() > longestEntryName || !form.match(entry.name).hasMatch())
            add(path, u'"' + shown(entry.name) + "\" cannot be a part of a folder's name."_l1,
                "Take letters, digits, - and _, "_l1 + QString::number(longestEntryName) +
                    " at most."_l1);
        if (names.contains(entry.name))
            add(path, "Another entry has the name \""_l1 + entry.name + "\" already."_l1);
        names.insert(entry.name);
    }

    void readExclusions(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::exclude);
        const Path path{Member::exclude};
        if (value.isUndefined() || !expect(path, value, QJsonValue::Array, "a list"_l1))
            return;
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            const Path place = below(path, i);
            if (!expect(place, array.at(i), QJsonValue::Object, "an object"_l1))
                continue;
            const QJsonObject object = array.at(i).toObject();
            Exclusion exclusion;
            for (auto it = object.begin(); it != object.end(); ++it) {
                const Path member = below(place, it.key());
                if (it.key() != Member::device) {
                    readAxis(member, it.key(), it.value(), true, exclusion.values);
                } else if (expect(member, it.value(), QJsonValue::String, "a text"_l1)) {
                    exclusion.device = it.value().toString();
                    if (devicesOf(exclusion.device, m_devices.devices()).isEmpty())
                        refuseDevice(member, exclusion.device);
                }
            }
            if (object.isEmpty())
                add(place, QStringLiteral("This leaves out every point."));
            m_result.plan.exclude.append(exclusion);
        }
    }

    void readPicture(const QJsonObject &root)
    {
        const QJsonValue value = root.value(Member::picture);
        const Path path{Member::picture};
        if (value.isUndefined() || !expect(path, value, QJsonValue::Object, "an object"_l1))
            return;
        const QJsonObject object = value.toObject();
        refuseOthers(path, object, {Member::x, Member::y});
        for (const QLatin1String member : {Member::x, Member::y}) {
            const QJsonValue axis = object.value(member);
            const Path place = below(path, member);
            if (axis.isUndefined() || !expect(place, axis, QJsonValue::String, "a text"_l1))
                continue;
            if (!m_resources.contains(axis.toString()))
                add(place,
                    "Unknown resource \""_l1 + shown(axis.toString()) + "\"; there are "_l1 +
                        m_resources.join(", "_l1) + u'.',
                    didYouMean(nearestText(axis.toString(), m_resources)));
            (member == Member::x ? m_result.plan.pictureX : m_result.plan.pictureY) =
                axis.toString();
        }
        if (!object.contains(Member::y))
            add(path,
                QStringLiteral("The picture lacks \"y\", the resource on its vertical axis."));
    }

    // A point has one value for each key.
    void refuseKeysTwice()
    {
        for (const GridAxis &axis : qAsConst(m_result.plan.grid)) {
            const Path place{Member::grid, axis.key};
            if (m_result.plan.options.contains(axis.key))
                add(place, u'"' + axis.key + "\" stands in \"options\" as well."_l1);
            for (const ListEntry &entry : qAsConst(m_result.plan.list)) {
                if (entry.settings.contains(axis.key)) {
                    add(place, u'"' + axis.key + "\" stands in \"list\" as well."_l1);
                    break;
                }
            }
        }
        for (int i = 0; i < m_result.plan.list.size(); ++i) {
            const OptionMap &settings = m_result.plan.list.at(i).settings;
            for (auto it = settings.begin(); it != settings.end(); ++it) {
                if (m_result.plan.options.contains(it.key()))
                    add({Member::list, i, it.key()},
                        u'"' + it.key() + "\" stands in \"options\" as well."_l1);
            }
        }
    }

    const QByteArray &m_text;
    const DEV::DeviceDb &m_devices;
    const QStringList &m_resources;
    SweepPlanText m_result;
};

} // namespace

SweepPlanText readSweepPlan(const QByteArray &text, const DEV::DeviceDb &devices,
                            const QStringList &resources)
{
    return PlanReader(text, devices, resources).read();
}

int sweepPointCount(const SweepPlan &plan)
{
    qint64 count = qMax(1, plan.devices.size()) * qint64(qMax(1, plan.list.size()));
    for (const GridAxis &axis : plan.grid)
        count = qMin<qint64>(count * axis.values.size(), mostSweepPoints + 1);
    return int(qMin<qint64>(count, mostSweepPoints + 1));
}

QVector<SweepPoint> sweepPoints(const SweepPlan &plan, const DEV::DeviceArg &baseDevice)
{
    QVector<SweepPoint> points;
    points.reserve(sweepPointCount(plan));
    const QList<DEV::DeviceArg> devices =
        plan.devices.isEmpty() ? QList<DEV::DeviceArg>{baseDevice} : plan.devices;
    const QVector<ListEntry> entries = plan.list.isEmpty() ? QVector<ListEntry>(1) : plan.list;
    for (const DEV::DeviceArg &device : devices) {
        for (const ListEntry &entry : entries) {
            QVector<int> at(plan.grid.size(), 0);
            for (bool isMore = true; isMore;) {
                SweepPoint point;
                point.device = device;
                point.settings = plan.options;
                QVector<QPair<QString, QVariant>> named;
                for (auto it = entry.settings.begin(); it != entry.settings.end(); ++it) {
                    point.settings.insert(it.key(), it.value());
                    if (entry.name.isEmpty())
                        named.append({it.key(), it.value()});
                }
                for (int i = 0; i < at.size(); ++i) {
                    const GridAxis &axis = plan.grid.at(i);
                    point.settings.insert(axis.key, axis.values.at(at.at(i)));
                    named.append({axis.key, axis.values.at(at.at(i))});
                }
                QString name = plain(device.id());
                if (!entry.name.isEmpty())
                    name += u'.' + entry.name;
                name += settingsName(named);
                if (name.size() > longestName)
                    name = name.left(longestName - 9) + u'-' + digest(name);
                point.name = name;
                points.append(point);

                // The last axis turns fastest.
                int turning = at.size() - 1;
                while (turning >= 0 && ++at[turning] == plan.grid.at(turning).values.size())
                    at[turning--] = 0;
                isMore = turning >= 0;
            }
        }
    }
    return points;
}

bool isExcluded(const SweepPlan &plan, const DEV::DeviceArg &device, const OptionMap &options)
{
    const auto holds = [&](const Exclusion &exclusion) {
        if (!exclusion.device.isEmpty()) {
            const QStringList names = {device.device(), device.id(), device.partNumber()};
            const bool isMeant =
                std::any_of(names.begin(), names.end(), [&exclusion](const QString &name) {
                    return isMatch(exclusion.device, name, Qt::CaseInsensitive);
                });
            if (!isMeant)
                return false;
        }
        return std::all_of(
            exclusion.values.begin(), exclusion.values.end(), [&](const GridAxis &axis) {
                const Option *option = findOption(axis.key);
                const QVariant value = optionValueFromText(
                    *option, generatedValue(options, axis.key, device.device()).toString());
                return axis.values.contains(value);
            });
    };
    return std::any_of(plan.exclude.begin(), plan.exclude.end(), holds);
}

QStringList variedKeys(const SweepPlan &plan)
{
    QStringList keys;
    for (const ListEntry &entry : plan.list)
        keys += entry.settings.keys();
    for (const GridAxis &axis : plan.grid)
        keys.append(axis.key);
    keys.removeDuplicates();
    return keys;
}

} // namespace TARVOORIXM1
