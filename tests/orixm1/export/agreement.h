#pragma once

// What a register description and a device header of the same configuration say, held against each
// other.

#include "cheader.h"
#include "softwareview.h"
#include "xmltree.h"

namespace Agreement
{

using Values = QMap<QString, qint64>;

// What both have, whatever they call it.
inline bool isDescribed(const QString &name)
{
    static const QRegularExpression rule(
        QStringLiteral("_(OFFSET|Pos|Msk|RESET|RESET_MASK|IRQ)_?\\d*$|^sizeof |\\."));
    return rule.match(name).hasMatch();
}

// Every number, address, offset and size that a program finds in the header. Members are
// "TYPE.MEMBER", sizes "sizeof TYPE"; a type's members also by their place: "TYPE#3".
inline Values valuesOf(const QString &header, QString *error)
{
    const CHeader all(header);
    const QTemporaryDir folder;
    QString text = QStringLiteral("#include \"tarvo_orix_m1.h\"\n#include <stdio.h>\n"
                                  "int main(void)\n{\n");
    const auto print = [&text](const QString &name, const QString &expression) {
        text += QLatin1String("    printf(\"") + name + QLatin1String("=%lld\\n\", (long long)(") +
                expression + QLatin1String("));\n");
    };
    for (auto it = all.numbers.begin(); it != all.numbers.end(); ++it)
        print(it.key(), it.key());
    for (auto it = all.pointers.begin(); it != all.pointers.end(); ++it)
        print(it.key(), QLatin1String("(uintptr_t)") + it.key());
    for (const QString &enumerator : all.enumerators)
        print(enumerator, enumerator);
    for (const CHeader::Type &type : all.types) {
        print(QLatin1String("sizeof ") + type.name, QLatin1String("sizeof(") + type.name + u')');
        for (int i = 0; i < type.members.size(); ++i) {
            const QString offset = QLatin1String("offsetof(") + type.name + QLatin1String(", ") +
                                   type.members.at(i).name + u')';
            print(type.name + u'.' + type.members.at(i).name, offset);
            print(type.name + u'#' + QString::number(i), offset);
        }
    }
    text += QLatin1String("    return 0;\n}\n");
    TestSupport::write(folder.filePath(QStringLiteral("tarvo_orix_m1.h")), header.toUtf8());
    const QString program = folder.filePath(QStringLiteral("program"));
    SoftwareView::outputOf({QStringLiteral("gcc"), QStringLiteral("-x"), QStringLiteral("c"),
                            QStringLiteral("-std=c99"), QStringLiteral("-I"), folder.path(),
                            QStringLiteral("-o"), program, QStringLiteral("-")},
                           text.toUtf8(), error);
    if (!error->isEmpty())
        return {};
    Values values;
    const QList<QByteArray> lines = SoftwareView::outputOf({program}, {}, error).split('\n');
    for (const QByteArray &line : lines) {
        const int at = line.lastIndexOf('=');
        if (at > 0)
            values.insert(QString::fromUtf8(line.left(at)), line.mid(at + 1).toLongLong());
    }
    return values;
}

inline qint64 number(const QString &text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, 0);
    return ok ? value : -1000;
}

// What the header should hold by the description, by the names there.
struct Expected {
    Values values;
    QList<qint64> all; // also of names that are the same
    int registers = 0;

    void insert(const QString &name, qint64 value, bool isAgain = false)
    {
        values.insert(name, value);
        if (isDescribed(name) && !isAgain)
            all.append(value);
    }
};

inline Expected expectedOf(const XmlNode &root)
{
    Expected values;
    QStringList groups;
    const QVector<XmlNode> peripherals = root.all("peripheral");
    for (const XmlNode &peripheral : peripherals) {
        const QString name = peripheral.textOf("name");
        const qint64 base = number(peripheral.textOf("baseAddress"));
        values.insert(name + QLatin1String("_BASE"), base);
        values.insert(name, base);
        for (const XmlNode &interrupt : peripheral.all("interrupt")) {
            const qint64 value = number(interrupt.textOf("value"));
            values.insert(interrupt.textOf("name") + QLatin1String("_IRQ"), value);
            values.insert(interrupt.textOf("name") + QLatin1String("_IRQn"), value);
        }
        const QString group =
            peripheral.child("groupName").isNull() ? name : peripheral.textOf("groupName");
        // The header has one type for all of a group.
        const bool isAgain = groups.contains(group);
        groups.append(group);
        qint64 end = 0;
        for (const XmlNode &entry : peripheral.all("register")) {
            ++values.registers;
            const QString prefix = group + u'_' + entry.textOf("name");
            const qint64 offset = number(entry.textOf("addressOffset"));
            values.insert(prefix + QLatin1String("_OFFSET"), offset, isAgain);
            values.insert(group + QLatin1String("_Type.") + entry.textOf("name"), offset, isAgain);
            values.insert(prefix + QLatin1String("_RESET"), number(entry.textOf("resetValue")),
                          isAgain);
            if (number(entry.textOf("resetMask")) != 0xFFFFFFFF)
                values.insert(prefix + QLatin1String("_RESET_MASK"),
                              number(entry.textOf("resetMask")), isAgain);
            end = offset + 4;
            for (const XmlNode &field : entry.all("field")) {
                const QString inField = prefix + u'_' + field.textOf("name");
                static const QRegularExpression range(QStringLiteral("\\[(\\d+):(\\d+)\\]"));
                const auto match = range.match(field.textOf("bitRange"));
                const int high = match.captured(1).toInt();
                const int low = match.captured(2).toInt();
                values.insert(inField + QLatin1String("_Pos"), low, isAgain);
                values.insert(inField + QLatin1String("_Msk"),
                              ((qint64(1) << (high - low + 1)) - 1) << low, isAgain);
                for (const XmlNode &list : field.all("enumeratedValues")) {
                    // Made up for languages that want a name for it.
                    const QString first = list.child("enumeratedValue").textOf("name");
                    if (list.textOf("usage") == QLatin1String("write") &&
                        (first == QLatin1String("CLEAR") || first == QLatin1String("SET")))
                        continue;
                    for (const XmlNode &value : list.all("enumeratedValue"))
                        values.insert(inField + u'_' + value.textOf("name"),
                                      number(value.textOf("value")), isAgain);
                }
            }
        }
        if (end > 0)
            values.insert(QLatin1String("sizeof ") + group + QLatin1String("_Type"), end, isAgain);
    }
    return values;
}

// Where the two differ; empty if they say the same. With `sameNames` false they may call things
// differently, since one of them has to tell upper from lower case, and only values are compared.
inline QStringList disagreements(const QByteArray &description, const QByteArray &header,
                                 bool sameNames = true)
{
    const XmlNode root = xmlTree(description);
    QString error;
    const Values found = valuesOf(QString::fromUtf8(header), &error);
    if (root.isNull() || !error.isEmpty())
        return {QLatin1String("cannot be read: ") + error};
    const Expected expected = expectedOf(root);
    QStringList differences;
    const auto expect = [&differences](const QString &name, bool holds) {
        if (!holds)
            differences.append(name);
    };
    // The processor has ten of its own in the smallest configuration.
    expect(QStringLiteral("registers"), expected.registers >= 10);
    QList<qint64> inHeader;
    for (auto it = found.begin(); it != found.end(); ++it) {
        if (!isDescribed(it.key()))
            continue;
        inHeader.append(it.value());
        expect(it.key(), !sameNames || expected.values.contains(it.key()));
    }
    for (auto it = expected.values.begin(); sameNames && it != expected.values.end(); ++it)
        expect(it.key(), found.contains(it.key()) && found.value(it.key()) == it.value());
    QList<qint64> inDescription = expected.all;
    std::sort(inHeader.begin(), inHeader.end());
    std::sort(inDescription.begin(), inDescription.end());
    expect(QStringLiteral("all values"), inHeader == inDescription);
    const XmlNode cpu = root.child("cpu");
    expect(QStringLiteral("inputs"), found.value(QStringLiteral("TARVO_ORIX_M1_INTERRUPTS")) ==
                                         number(cpu.textOf("deviceNumInterrupts")));
    expect(QStringLiteral("priority bits"),
           found.value(QStringLiteral("__NVIC_PRIO_BITS")) == number(cpu.textOf("nvicPrioBits")));
    expect(QStringLiteral("endianness"), found.value(QStringLiteral("TARVO_ORIX_M1_BIG_ENDIAN")) ==
                                             qint64(cpu.textOf("endian") == QLatin1String("big")));
    return differences;
}

} // namespace Agreement
