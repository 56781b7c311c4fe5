#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <system/facts.h>

#include <QtTest>

using namespace TARVOORIXM1;

class tst_Facts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nothingChangesOfItself();
    void aBlockBringsItsPortsRegistersAndInterrupt();
    void aSizeMovesTheEndOfItsMemory();
    void anotherPackageIsAnotherDeviceAndNothingElse();
    void whatIsRemovedStandsWhereItWas();
    void figuresOfResourcesAreToldWhereTheyAreKnown();

private:
    SystemMap map(const OptionMap &options, const char *device = "TV2KR-18C-QFN88P-C8/I7") const;
    QVector<FactChanges> changes(const SystemMap &before, const SystemMap &after) const
    {
        return factChanges(factsOf(before), factsOf(after));
    }

    SystemDescription m_description;
};

namespace
{

// "+name", "-name" and "~name" of a group's changes.
QStringList signsOf(const QVector<FactChanges> &changes, const char *id)
{
    QStringList signs;
    for (const FactChanges &group : changes) {
        if (group.id != QLatin1String(id))
            continue;
        for (const FactChange &change : group.changes)
            signs.append(QLatin1String("-+~").mid(change.kind, 1) + change.after.name);
    }
    return signs;
}

QString detail(const Fact &fact, const char *name)
{
    for (const auto &row : fact.details) {
        if (row.first == QLatin1String(name))
            return row.second;
    }
    return {};
}

} // namespace

void tst_Facts::initTestCase()
{
    const auto read = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(read, qPrintable(read.reason()));
    m_description = *read;
}

SystemMap tst_Facts::map(const OptionMap &options, const char *device) const
{
    const DEV::DeviceArg found = DEV::DeviceDb::bundled().findDevice(QString::fromLatin1(device));
    Q_ASSERT(!found.isNull());
    return systemMap(options, found, m_description);
}

void tst_Facts::nothingChangesOfItself()
{
    const SystemMap plain = map({});
    QVERIFY(changes(plain, plain).isEmpty());
    QVERIFY(changes(plain, map({{Key::enableUart0, QStringLiteral("false")}})).isEmpty());
}

void tst_Facts::aBlockBringsItsPortsRegistersAndInterrupt()
{
    const OptionMap one = {{Key::enableUart0, true}};
    const OptionMap two = {{Key::enableUart0, true}, {Key::enableUart1, true}};
    const QVector<FactChanges> told = changes(map(one), map(two));
    QCOMPARE(signsOf(told, "regions"), QStringList{QStringLiteral("+UART1")});
    QCOMPARE(signsOf(told, "interrupts"), QStringList{QStringLiteral("+UART1")});
    QVERIFY(signsOf(told, "ports").contains(QStringLiteral("+UART1TXD")));
    QVERIFY(signsOf(told, "device").isEmpty());
    const QStringList registers = signsOf(told, "registers");
    QVERIFY(!registers.isEmpty());
    for (const QString &sign : registers)
        QVERIFY2(sign.startsWith(QLatin1String("+UART1.")), qPrintable(sign));
    const QVector<FactChanges> back = changes(map(two), map(one));
    QCOMPARE(signsOf(back, "regions"), QStringList{QStringLiteral("-UART1")});
}

void tst_Facts::aSizeMovesTheEndOfItsMemory()
{
    const QVector<FactChanges> told = changes(map({{Key::dtcmSize, 3}}), map({{Key::dtcmSize, 4}}));
    QCOMPARE(told.size(), 1);
    QCOMPARE(signsOf(told, "regions"), QStringList{QStringLiteral("~DTCM")});
    const FactChange &change = told.first().changes.first();
    QCOMPARE(detail(change.before, "last"), QStringLiteral("0x20001FFF"));
    QCOMPARE(detail(change.after, "last"), QStringLiteral("0x20003FFF"));
    QCOMPARE(detail(change.before, "base"), detail(change.after, "base"));
}

void tst_Facts::anotherPackageIsAnotherDeviceAndNothingElse()
{
    const QVector<FactChanges> told = changes(map({}), map({}, "TV2KR-18C-QFN88-C8/I7"));
    QCOMPARE(told.size(), 1);
    QCOMPARE(signsOf(told, "device"),
             QStringList({QStringLiteral("~id"), QStringLiteral("~package"),
                          QStringLiteral("~part number")}));
}

void tst_Facts::whatIsRemovedStandsWhereItWas()
{
    const auto group = [](const QStringList &names) {
        FactGroup result = {QLatin1String("x"), QLatin1String("X"), {}};
        for (const QString &name : names)
            result.facts.append({name, {}});
        return QVector<FactGroup>{result};
    };
    const auto list = [](const char *letters) {
        return QString::fromLatin1(letters).split(QString(), Qt::SkipEmptyParts);
    };
    const auto told = factChanges(group(list("abcd")), group(list("xbdy")));
    QCOMPARE(signsOf(told, "x").join(QString()), QStringLiteral("+x-a-c+y"));
    QVERIFY(factChanges(group(list("abcd")), group(list("dcba"))).isEmpty());
}

void tst_Facts::figuresOfResourcesAreToldWhereTheyAreKnown()
{
    SystemMap known = map({});
    QVERIFY(signsOf(changes(known, map({})), "resources").isEmpty());
    known.resources = ResourceFigures{{{QStringLiteral("LUT4"), 12, 100}}, QString()};
    SystemMap more = known;
    more.resources->lines.first().used = 13;
    QCOMPARE(signsOf(changes(known, more), "resources"), QStringList{QStringLiteral("~LUT4")});
}

QTEST_GUILESS_MAIN(tst_Facts)

#include "tst_facts.moc"
