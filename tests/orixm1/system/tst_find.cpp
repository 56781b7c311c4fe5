#include "testsupport.h"

#include <config/blocks.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <registers/interrupts.h>
#include <registers/registermap.h>
#include <rules/pins.h>
#include <rules/randomoptions.h>
#include <system/find.h>
#include <system/systemmap.h>

#include <QtTest>

using namespace TARVOORIXM1;

Q_DECLARE_METATYPE(TARVOORIXM1::Findable::Kind)

namespace
{

DEV::DeviceArg device(const char *id = "TV2KR-18C-QFN88P-C8/I7")
{
    return DEV::DeviceDb::bundled().findDevice(QString::fromLatin1(id));
}

const SystemDescription &description()
{
    static const SystemDescription read = [] {
        SystemDescription result;
        const QString folder = QStringLiteral(TARVO_IP_DATA_DIR);
        result.peripherals = *readRegisterMap(folder);
        result.otherInterrupts = *readOtherInterrupts(folder);
        return result;
    }();
    return read;
}

QVector<Findable> all(const OptionMap &options = {})
{
    return findables(options, device(), description());
}

QString bare(QString text)
{
    return text.toLower().remove(u' ').remove(u'-').remove(u'_');
}

} // namespace

class tst_Find : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsByWhateverPeopleKnow_data();
    void findsByWhateverPeopleKnow();
    void findsNothingForNothing_data();
    void findsNothingForNothing();
    void everythingIsFoundByItsName();
    void addressesFindTheRegionThatAnswers();
    void betterMatchesComeFirst();
    void nothingIsMissing();
    void tellsHowTheConfigurationHasIt();
};

void tst_Find::findsByWhateverPeopleKnow_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<Findable::Kind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("box");
    const auto row = [](const char *query, Findable::Kind kind, const char *name, const char *box) {
        QTest::newRow(query) << QString::fromLatin1(query) << kind << QString::fromLatin1(name)
                             << QString::fromLatin1(box);
    };
    row("UART1", Findable::Block, "UART1", "UART1");
    row("uart", Findable::Block, "UART0", "UART0");
    row("watchdog", Findable::Block, "Watch Dog", "Watch Dog");
    row("sd card", Findable::Block, "SD-Card", "SD-Card");
    row("cortex", Findable::Block, "Cortex-M1", "Cortex-M1");
    row("apb master", Findable::Block, "APB Master [1-16]", "APB Master [1-16]");
    row("Enable GPIO", Findable::Option, "Enable GPIO", "GPIO");
    row("buffer depth", Findable::Option, "CAN_BUFFER_DEPTH", "CAN");
    row("ITCM_Size", Findable::Option, "ITCM_Size", "Cortex-M1");
    row("Enable_AHB_Master3", Findable::Option, "Enable_AHB_Master3", "AHB Master [1-6]");
    row("uart1rxd", Findable::Pin, "UART1RXD", "UART1");
    row("GPIOOUTEN[15:0]", Findable::Pin, "GPIOOUTEN", "GPIO");
    row("APB16PSEL", Findable::Pin, "APB16PSEL", "APB Master [1-16]");
    row("JTAG_9", Findable::Pin, "JTAG_9", "Cortex-M1");
    row("hclk", Findable::Pin, "HCLK", "Cortex-M1");
    row("0x40000000", Findable::Region, "GPIO", "GPIO");
    row("0x4000_0004", Findable::Region, "GPIO", "GPIO");
    row("50000000", Findable::Region, "TIMER0", "Timer0");
    row("0x80000000", Findable::Region, "AHB1", "AHB Master [1-6]");
    row("0xbfffffff", Findable::Region, "DDR3", "DDR3");
    row("0x0", Findable::Region, "ITCM", "Cortex-M1");
    row("irq 13", Findable::Interrupt, "EXTINT1", "Cortex-M1");
    row("16", Findable::Interrupt, "TRNG", "TRNG");
    row("interrupt 9", Findable::Interrupt, "CAN", "CAN");
}

void tst_Find::findsByWhateverPeopleKnow()
{
    QFETCH(QString, query);
    const QVector<Findable> hits = found(all(), query);
    QVERIFY(!hits.isEmpty());
    QTEST(hits.first().kind, "kind");
    QTEST(hits.first().name, "name");
    QTEST(hits.first().box, "box");
}

void tst_Find::findsNothingForNothing_data()
{
    QTest::addColumn<QString>("query");
    for (const char *query : {"", "   ", "-_", "[", "0xC0000000", "0x1234567890", "99", "quartz"})
        QTest::newRow(*query ? query : "empty") << QString::fromLatin1(query);
}

void tst_Find::findsNothingForNothing()
{
    QFETCH(QString, query);
    const QVector<Findable> hits = found(all(), query);
    QVERIFY2(hits.isEmpty(), qPrintable(hits.value(0).name));
}

void tst_Find::everythingIsFoundByItsName()
{
    const QVector<Findable> known = all();
    QVERIFY(known.size() > 300);
    for (const Findable &entry : known) {
        const QVector<Findable> hits = found(known, entry.name);
        QVERIFY(!hits.isEmpty());
        const auto same = std::find_if(hits.begin(), hits.end(), [&](const Findable &hit) {
            return hit.kind == entry.kind && hit.name == entry.name && hit.box == entry.box;
        });
        QVERIFY2(same != hits.end(), qPrintable(entry.name));
        // All before it are called so as well, or stand for it.
        for (auto before = hits.begin(); before != same; ++before) {
            bool exact = bare(before->name) == bare(entry.name);
            for (const QString &alias : before->aliases)
                exact = exact || bare(alias) == bare(entry.name);
            QVERIFY2(exact, qPrintable(entry.name));
        }
    }
}

void tst_Find::addressesFindTheRegionThatAnswers()
{
    for (quint64 seed = 1; seed <= 30; ++seed) {
        const OptionMap options = randomOptions(seed, device());
        const SystemMap map = systemMap(options, device(), description());
        const QVector<Findable> known = all(options);
        QVERIFY(!map.regions.isEmpty());
        for (const Region &region : map.regions) {
            for (const quint32 address :
                 {region.base, region.base + quint32(region.size() / 2), region.last}) {
                const QString query = QStringLiteral("0x%1").arg(address, 0, 16);
                const QVector<Findable> hits = found(known, query);
                QVERIFY(!hits.isEmpty());
                QCOMPARE(hits.first().kind, Findable::Region);
                QCOMPARE(hits.first().name, region.name);
            }
        }
        for (const InterruptLine &line : map.interrupts) {
            if (line.number < 0)
                continue;
            const QVector<Findable> hits = found(known, QString::number(line.number));
            QVERIFY(!hits.isEmpty());
            QCOMPARE(hits.first().kind, Findable::Interrupt);
            QCOMPARE(hits.first().name, line.name);
        }
    }
}

void tst_Find::betterMatchesComeFirst()
{
    const QVector<Findable> known = all();
    const auto rank = [](const Findable &hit, const QString &query) {
        int best = 3;
        for (const QString &text : QStringList(hit.name) + hit.aliases) {
            const QString word = bare(text);
            best = qMin(best, word == query            ? 0
                              : word.startsWith(query) ? 1
                              : word.contains(query)   ? 2
                                                       : 3);
        }
        return best;
    };
    for (const char *text : {"a", "uart", "spi", "timer", "enable", "gpio", "debug", "clk", "m"}) {
        const QString query = QString::fromLatin1(text);
        const QVector<Findable> hits = found(known, query);
        QVERIFY(!hits.isEmpty());
        int last = 0;
        for (const Findable &hit : hits) {
            QVERIFY(rank(hit, query) >= last);
            last = rank(hit, query);
            QVERIFY(last < 3);
        }
        const auto matching = std::count_if(known.begin(), known.end(), [&](const Findable &entry) {
            return rank(entry, query) < 3;
        });
        QCOMPARE(hits.size(), int(matching));
    }
}

void tst_Find::nothingIsMissing()
{
    for (quint64 seed = 1; seed <= 20; ++seed) {
        const OptionMap options = randomOptions(seed, device());
        const QVector<Findable> known = all(options);
        const auto has = [&](Findable::Kind kind, const QString &name, const QString &box) {
            return std::any_of(known.begin(), known.end(), [&](const Findable &entry) {
                return entry.kind == kind && entry.name == name &&
                       (box.isEmpty() || entry.box == box);
            });
        };
        for (const Option &option : optionTable())
            QCOMPARE(has(Findable::Option, option.key, QString()), option.isOption);
        for (const Block &block : blocks()) {
            for (const DiagramBox &box : block.boxes) {
                if (box.label.size() > 0)
                    QVERIFY(has(Findable::Block, box.label, box.label));
            }
        }
        for (const BlockPins &pins : peripheralPins(options, device().device())) {
            for (const Utils::PinFigure &pin : pins.pins) {
                const QString name = pin.name().section(u'[', 0, 0).trimmed();
                QVERIFY2(has(Findable::Pin, name, QString()), qPrintable(name));
            }
        }
        const SystemMap map = systemMap(options, device(), description());
        for (const Port &port : map.ports)
            QVERIFY2(has(Findable::Pin, port.name, QString()), qPrintable(port.name));
        // Whatever has a box has one of the diagram.
        for (const Findable &entry : known)
            QVERIFY2(entry.box.isEmpty() || entry.box == QLatin1String("Cortex-M1") ||
                         blockOfBox(entry.box),
                     qPrintable(entry.name));
    }
}

void tst_Find::tellsHowTheConfigurationHasIt()
{
    const auto detail = [](const OptionMap &options, const char *query) {
        return found(all(options), QString::fromLatin1(query)).value(0).detail;
    };
    QCOMPARE(detail({}, "UART0"), QStringLiteral("off"));
    QCOMPARE(detail({{Key::enableUart0, true}}, "UART0"), QStringLiteral("on"));
    QCOMPARE(detail({{QStringLiteral("Enable_AHB_Master2"), true}}, "AHB Master"),
             QStringLiteral("1 of 6 ports on"));
    QCOMPARE(detail({}, "UART0TXD"), QStringLiteral("output, not there now"));
    QCOMPARE(detail({{Key::enableUart0, true}}, "UART0TXD"), QStringLiteral("output"));
    // The place comes first: lists cut off the end.
    QCOMPARE(detail({}, "0xA0000000"),
             QStringLiteral("0xA0000000 to 0xBFFFFFFF, not there now; DDR3 memory"));
    QCOMPARE(detail({{Key::enableDdr3, true}}, "0xA0000000"),
             QStringLiteral("0xA0000000 to 0xBFFFFFFF; DDR3 memory"));
    QVERIFY(detail({{Key::itcmSize, 3}}, "ITCM_Size").endsWith(QLatin1String(": 3")));
    QVERIFY(detail({}, "IRQ 16").endsWith(QLatin1String("not there now")));
    QVERIFY(detail({{Key::enableTrng, true}, {Key::numberOfInterrupts, 8}}, "IRQ 16")
                .contains(QLatin1String("masked")));
}

QTEST_MAIN(tst_Find)
#include "tst_find.moc"
