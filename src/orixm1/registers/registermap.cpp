#include "registermap.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "interrupts.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct AccessRow {
    QLatin1String name;
    RegisterAccess access;
};

constexpr AccessRow accessRows[] = {
    {"R/W"_l1, RegisterAccess::ReadWrite}, {"R"_l1, RegisterAccess::Read},
    {"W"_l1, RegisterAccess::Write},       {"R/W1C"_l1, RegisterAccess::WriteOneToClear},
    {"R, W"_l1, RegisterAccess::Separate},
};

struct ReadEffectRow {
    QLatin1String name;
    ReadEffect effect;
};

constexpr ReadEffectRow readEffectRows[] = {
    {"clear"_l1, ReadEffect::Clear},
    {"set"_l1, ReadEffect::Set},
    {"modify"_l1, ReadEffect::Modify},
    {"external"_l1, ReadEffect::External},
};

struct WriteEffectRow {
    QLatin1String name;
    WriteEffect effect;
};

constexpr WriteEffectRow writeEffectRows[] = {
    {"one-to-clear"_l1, WriteEffect::OneToClear},
    {"one-to-set"_l1, WriteEffect::OneToSet},
};

template <typename Rows>
auto rowNamed(const Rows &rows, const QString &name)
{
    return std::find_if(std::begin(rows), std::end(rows),
                        [&name](const auto &row) { return row.name == name; });
}

template <typename Rows, typename Effect>
QString nameIn(const Rows &rows, Effect effect)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [effect](const auto &r) { return r.effect == effect; });
    return row == std::end(rows) ? QString() : QString(row->name);
}

// Reads one file. The first mistake ends it.
class Reader
{
public:
    explicit Reader(const QString &path)
        : m_path(path)
    {
    }

    Utils::Result<Peripheral> read()
    {
        Peripheral peripheral;
        QByteArray bytes;
        QString reason;
        if (!Reading::readPlainFile(m_path, Reading::Limits::registerFile, &bytes, &reason))
            fail("cannot be read: "_l1 + reason);
        else if (const auto json = Reading::readJson(bytes); json.mistake.offset >= 0)
            fail("line "_l1 + QString::number(Reading::placeIn(bytes, json.mistake.offset).line) +
                 ": "_l1 + json.mistake.reason);
        else
            readPeripheral(json.document.object(), &peripheral);
        if (m_error.isEmpty())
            return peripheral;
        return Utils::Failure{m_error};
    }

private:
    void fail(const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = u'"' + QDir::toNativeSeparators(m_path) + "\": "_l1 + m_place + reason;
    }

    QString text(const QJsonObject &object, QLatin1String key, bool required = true)
    {
        const QJsonValue value = object.value(key);
        if (!value.isString() && (required || !value.isUndefined()))
            fail(u'"' + key + "\" is no text"_l1);
        // It becomes a cell of a table and a comment in C.
        QString line = value.toString();
        const bool isLine = std::none_of(
            line.begin(), line.end(), [](QChar c) { return c.category() == QChar::Other_Control; });
        if (!isLine || line.contains("*/"_l1))
            fail(u'"' + key + "\" is not one line, or holds \"*/\""_l1);
        return line;
    }

    QString identifier(const QJsonObject &object, QLatin1String key)
    {
        static const QRegularExpression rule(QStringLiteral("\\A[A-Za-z][A-Za-z0-9_]*\\z"));
        QString name = text(object, key);
        if (!rule.match(name).hasMatch())
            fail(u'"' + name + "\" is no name"_l1);
        return name;
    }

    quint32 number(const QJsonObject &object, QLatin1String key)
    {
        bool ok = false;
        const quint32 value = text(object, key).toUInt(&ok, 0);
        if (!ok)
            fail(u'"' + key + "\" is no number of 32 bits"_l1);
        return value;
    }

    QJsonArray list(const QJsonObject &object, QLatin1String key)
    {
        QJsonArray array = object.value(key).toArray();
        if (array.isEmpty())
            fail(u'"' + key + "\" is no list, or empty"_l1);
        return array;
    }

    // Unknown words are most likely misspelt ones.
    void checkKeys(const QJsonObject &object, std::initializer_list<QLatin1String> known)
    {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (std::find(known.begin(), known.end(), it.key()) == known.end())
                fail("unknown key \""_l1 + it.key() + u'"');
        }
    }

    void readPeripheral(const QJsonObject &object, Peripheral *peripheral)
    {
        checkKeys(object, {"peripheral"_l1, "module"_l1, "bus"_l1, "span"_l1, "text"_l1, "parts"_l1,
                           "instances"_l1, "registers"_l1});
        peripheral->name = identifier(object, "peripheral"_l1);
        peripheral->module = identifier(object, "module"_l1);
        peripheral->bus = text(object, "bus"_l1);
        if (peripheral->bus != "AHB"_l1 && peripheral->bus != "APB"_l1)
            fail(QStringLiteral("\"bus\" is neither AHB nor APB"));
        peripheral->span = number(object, "span"_l1);
        peripheral->text = text(object, "text"_l1);
        peripheral->parts = text(object, "parts"_l1, false);
        const QJsonArray instances = list(object, "instances"_l1);
        for (const QJsonValue &value : instances)
            peripheral->instances.append(readInstance(value.toObject()));
        const QJsonArray registers = list(object, "registers"_l1);
        for (const QJsonValue &value : registers) {
            peripheral->registers.append(readRegister(value.toObject(), *peripheral));
            m_place.clear();
        }
        for (const Register &entry : qAsConst(peripheral->registers)) {
            for (const QString &changed : entry.changes) {
                if (!m_registerNames.contains(changed))
                    fail(entry.name + ": there is no register \""_l1 + changed + u'"');
            }
        }
    }

    PeripheralInstance readInstance(const QJsonObject &object)
    {
        checkKeys(object,
                  {"name"_l1, "text"_l1, "base"_l1, "interrupt"_l1, "polled"_l1, "option"_l1});
        PeripheralInstance instance;
        instance.name = identifier(object, "name"_l1);
        m_place = instance.name + ": "_l1;
        instance.text = text(object, "text"_l1);
        if (instance.text.trimmed().isEmpty())
            fail(QStringLiteral("\"text\" is empty"));
        instance.base = number(object, "base"_l1);
        instance.interrupt = text(object, "interrupt"_l1, false);
        bool isNumber = false;
        const int input = instance.interrupt.toInt(&isNumber);
        if (isNumber ? input < 0 || input >= interruptInputs ||
                           instance.interrupt != QString::number(input)
                     : !instance.interrupt.isEmpty() && instance.interrupt != "NMI"_l1)
            fail("the interrupt is neither \"NMI\" nor a number from 0 to "_l1 +
                 QString::number(interruptInputs - 1));
        const QJsonValue polled = object.value("polled"_l1);
        instance.isPolled = polled.toBool();
        if (!polled.isUndefined() && (!polled.isBool() || instance.interrupt.isEmpty()))
            fail(QStringLiteral("\"polled\" is neither true nor false, or of no interrupt"));
        instance.option = text(object, "option"_l1);
        if (!isSwitch(instance.option))
            fail(u'"' + instance.option + "\" is no switch of the configuration"_l1);
        m_place.clear();
        return instance;
    }

    Register readRegister(const QJsonObject &object, const Peripheral &peripheral)
    {
        Register entry;
        entry.name = identifier(object, "name"_l1);
        m_place = entry.name + ": "_l1;
        checkKeys(object,
                  {"name"_l1, "offset"_l1, "text"_l1, "changes"_l1, "words"_l1, "fields"_l1});
        if (m_registerNames.contains(entry.name))
            fail(QStringLiteral("there are two of this name"));
        m_registerNames.insert(entry.name);
        entry.offset = number(object, "offset"_l1);
        if (entry.offset % 4 != 0 || entry.offset >= peripheral.span)
            fail(QStringLiteral("the offset is no word within the span"));
        if (!peripheral.registers.isEmpty() && entry.offset <= peripheral.registers.last().offset)
            fail(QStringLiteral("the offset is not above the one before"));
        entry.text = text(object, "text"_l1);
        const QJsonArray changes = object.value("changes"_l1).toArray();
        for (const QJsonValue &value : changes)
            entry.changes.append(value.toString());
        const QJsonArray fields = list(object, "fields"_l1);
        QSet<QString> names;
        for (const QJsonValue &value : fields) {
            entry.fields.append(readField(value.toObject(), entry.fields));
            if (names.contains(entry.fields.last().name))
                fail(QStringLiteral("there are two fields of this name"));
            names.insert(entry.fields.last().name);
            m_place = entry.name + ": "_l1;
        }
        entry.words = readValues(object, "words"_l1, quint64(1) << 32, 0);
        const auto isWritable = [](const RegisterField &field) {
            return field.access != RegisterAccess::Read;
        };
        if (!entry.words.isEmpty() &&
            std::none_of(entry.fields.begin(), entry.fields.end(), isWritable))
            fail(QStringLiteral("\"words\" of a register that cannot be written"));
        return entry;
    }

    // What may be left out; every value is from `minimum` to below `limit`.
    QVector<FieldValue> readValues(const QJsonObject &object, QLatin1String key, quint64 limit,
                                   quint32 minimum)
    {
        QVector<FieldValue> values;
        if (!object.contains(key))
            return values;
        const QString place = m_place;
        const QJsonArray entries = list(object, key);
        QSet<QString> names;
        for (const QJsonValue &item : entries) {
            const QJsonObject entry = item.toObject();
            FieldValue value;
            value.name = identifier(entry, "name"_l1);
            m_place = place + value.name + ": "_l1;
            checkKeys(entry, {"name"_l1, "value"_l1, "text"_l1});
            value.value = number(entry, "value"_l1);
            value.text = text(entry, "text"_l1);
            if (value.value >= limit)
                fail(QStringLiteral("the value does not fit into the bits"));
            if (value.value < minimum)
                fail(QStringLiteral("the value is below the minimum"));
            if (!values.isEmpty() && value.value <= values.last().value)
                fail(QStringLiteral("the value is not above the one before"));
            if (names.contains(value.name))
                fail(QStringLiteral("there are two values of this name"));
            names.insert(value.name);
            values.append(value);
            m_place = place;
        }
        return values;
    }

    // What cannot be is refused: no field that reads as 0 becomes something else when it is read,
    // and what is stored as written is not written by ones.
    void readEffects(const QJsonObject &object, RegisterField *field)
    {
        if (object.contains("read"_l1)) {
            const QString name = text(object, "read"_l1);
            const auto row = rowNamed(readEffectRows, name);
            if (row == std::end(readEffectRows))
                fail("unknown effect of reading \""_l1 + name + u'"');
            else
                field->readEffect = row->effect;
            if (field->access == RegisterAccess::Write && field->readEffect != ReadEffect::External)
                fail("\"read\" is \""_l1 + name + "\" of a field that reads as 0"_l1);
        }
        if (field->access == RegisterAccess::WriteOneToClear)
            field->writeEffect = WriteEffect::OneToClear;
        if (!object.contains("write"_l1))
            return;
        const QString name = text(object, "write"_l1);
        const auto row = rowNamed(writeEffectRows, name);
        if (row == std::end(writeEffectRows)) {
            fail("unknown effect of writing \""_l1 + name + u'"');
            return;
        }
        field->writeEffect = row->effect;
        const bool isRight = field->access == RegisterAccess::WriteOneToClear
                                 ? row->effect == WriteEffect::OneToClear
                                 : field->access == RegisterAccess::Write ||
                                       field->access == RegisterAccess::Separate;
        if (!isRight)
            fail("\"write\" is \""_l1 + name + "\" of a field with the access \""_l1 +
                 accessName(field->access) + u'"');
    }

    RegisterField readField(const QJsonObject &object, const QVector<RegisterField> &before)
    {
        RegisterField field;
        field.name = identifier(object, "name"_l1);
        m_place += field.name + ": "_l1;
        checkKeys(object, {"name"_l1, "bits"_l1, "access"_l1, "reset"_l1, "minimum"_l1, "read"_l1,
                           "write"_l1, "values"_l1, "text"_l1});
        static const QRegularExpression bits(QStringLiteral("\\A(\\d{1,2})(:(\\d{1,2}))?\\z"));
        const auto match = bits.match(text(object, "bits"_l1));
        field.high = match.captured(1).toInt();
        field.low = match.captured(3).isEmpty() ? field.high : match.captured(3).toInt();
        if (!match.hasMatch() || field.high > 31 || field.low > field.high) {
            fail(QStringLiteral("\"bits\" is neither a bit nor a range such as 7:0"));
            return field;
        }
        if (!before.isEmpty() && field.low <= before.last().high)
            fail(QStringLiteral("the bits are not above those of the field before"));
        const QString access = text(object, "access"_l1);
        const auto row = rowNamed(accessRows, access);
        if (row == std::end(accessRows))
            fail("unknown access \""_l1 + access + u'"');
        else
            field.access = row->access;
        field.hasReset = !object.value("reset"_l1).isNull();
        if (field.hasReset)
            field.reset = number(object, "reset"_l1);
        if (object.contains("minimum"_l1))
            field.minimum = number(object, "minimum"_l1);
        const quint64 limit = quint64(1) << field.width();
        if (field.reset >= limit || field.minimum >= limit)
            fail(QStringLiteral("a value does not fit into the bits"));
        field.text = text(object, "text"_l1);
        readEffects(object, &field);
        field.values = readValues(object, "values"_l1, limit, field.minimum);
        return field;
    }

    const QString m_path;
    QString m_place;
    QString m_error;
    QSet<QString> m_registerNames;
};

} // namespace

QString accessName(RegisterAccess access)
{
    for (const AccessRow &row : accessRows) {
        if (row.access == access)
            return row.name;
    }
    return {};
}

QString readEffectName(ReadEffect effect)
{
    return nameIn(readEffectRows, effect);
}

QString writeEffectName(WriteEffect effect)
{
    return nameIn(writeEffectRows, effect);
}

quint32 RegisterField::mask() const
{
    return quint32(((quint64(1) << width()) - 1) << low);
}

Utils::Result<QVector<Peripheral>> readRegisterMap(const QString &dataPath)
{
    const QDir folder(dataPath + "/registers"_l1);
    // With System what cannot be read is found too, so that it is named and not left out.
    const QStringList files =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::System, QDir::Name);
    if (files.isEmpty())
        return Utils::Failure{"\""_l1 + QDir::toNativeSeparators(folder.path()) +
                              "\" holds no register descriptions"_l1};
    QVector<Peripheral> peripherals;
    for (const QString &file : files) {
        const Utils::Result<Peripheral> peripheral = Reader(folder.filePath(file)).read();
        if (!peripheral)
            return Utils::Failure{peripheral.reason()};
        peripherals.append(*peripheral);
    }
    std::sort(peripherals.begin(), peripherals.end(), [](const Peripheral &a, const Peripheral &b) {
        return a.instances.first().base < b.instances.first().base;
    });
    return peripherals;
}

QVector<Peripheral> enabledPeripherals(const QVector<Peripheral> &peripherals,
                                       const OptionMap &options)
{
    const auto isEnabled = [&options](const PeripheralInstance &instance) {
        return isSwitchedOn(options, instance.option);
    };
    QVector<Peripheral> enabled;
    for (const Peripheral &peripheral : peripherals) {
        QVector<PeripheralInstance> instances;
        std::copy_if(peripheral.instances.begin(), peripheral.instances.end(),
                     std::back_inserter(instances), isEnabled);
        if (instances.isEmpty())
            continue;
        for (PeripheralInstance &instance : instances) {
            bool isNumber = false;
            const int number = instance.interrupt.toInt(&isNumber);
            if (!isNumber)
                continue;
            instance.maskedInterrupt =
                maskedInterrupt({instance.name, number, 1, instance.option}, options);
            if (!instance.maskedInterrupt.isEmpty())
                instance.interrupt.clear();
        }
        enabled.append(peripheral);
        enabled.last().instances = instances;
    }
    return enabled;
}

} // namespace TARVOORIXM1
