#include <testsupport.h>

#include <config/blocks.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <estimate/estimate.h>
#include <estimate/terms.h>
#include <fit.h>
#include <fresh.h>
#include <measurement.h>
#include <rules/check.h>
#include <rules/randomoptions.h>
#include <synthesis/resources.h>

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace TARVOORIXM1;

// Estimates against what synthesis made of the same configurations, and what holds for all of them.
class tst_Estimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wasMeasuredWithTodaysRtlAndSynthesis();
    void namesTheResourcesAsARunDoes();
    void keepsItsPromiseWhereTheFitSawNothing_data();
    void keepsItsPromiseWhereTheFitSawNothing();
    void keepsItsPromiseOnWhatNobodyHasLookedAt();
    void theRangeHoldsWhatWasMeasured();
    void knowsTheBlackBoxesOfTheNetlists();
    void freshConfigurationsAreLegalForTheirDevice();
    void whatSynthesisReadsAlikeHasOneDigest();
    void everyTermOfEveryConfigurationIsMeasured();
    void aBlockThatIsSwitchedOffCostsNothing();
    void theSharesOfTheBlocksAddUp();
    void countsOnTheOptionsThatGenerationCountsOn();
    void refusesWhatNoOptionCanBe_data();
    void refusesWhatNoOptionCanBe();
    void refusesADeviceThatIsNotKnown();
    void tellsWhatIsTooLarge();
    void keepsSuppliersFiguresApart();
    void tellsWhatNobodyHasMeasured();
    void refusesATableThatIsNone_data();
    void refusesATableThatIsNone();
    void theTableIsReadAsItIsWritten();

private:
    DEV::DeviceArg device(const QString &id) const
    {
        return DEV::DeviceDb::bundled().findDevice(id);
    }
    DEV::DeviceArg anyDevice() const { return device(QStringLiteral("TV5KT-138C-PBGA484-C2/I1")); }
    Estimate estimated(const OptionMap &options, const DEV::DeviceArg &device) const
    {
        const Utils::Result<Estimate> result = estimate(options, device, m_table);
        return result ? *result : Estimate();
    }

    // Through a file.
    static Utils::Result<FreshMeasurement> readBack(const FreshMeasurement &measurement)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("fresh.jsonl"));
        TestSupport::write(path, headLine({}) + lineOf(measurement));
        const auto read = readFresh(path);
        if (!read || read->list.size() != 1)
            return Utils::Failure{QStringLiteral("not one line")};
        return read->list.first();
    }

    EstimateTable m_table;
    Measurements m_measured;
    FreshMeasurements m_fresh;
};

void tst_Estimate::initTestCase()
{
    const auto table = readEstimateTable(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(table, qPrintable(table.reason()));
    m_table = *table;
    const auto measured = readMeasurements(QStringLiteral(TARVO_MEASUREMENTS));
    QVERIFY2(measured, qPrintable(measured.reason()));
    m_measured = *measured;
    const auto fresh = readFresh(QStringLiteral(TARVO_FRESH_MEASUREMENTS));
    QVERIFY2(fresh, qPrintable(fresh.reason()));
    m_fresh = *fresh;
    int heldOut = 0;
    for (const Measurement &one : qAsConst(m_measured.list))
        heldOut += one.isHeldOut ? 1 : 0;
    QCOMPARE(heldOut, m_table.checked);
    QCOMPARE(m_measured.list.size() - heldOut, m_table.fitted);
    QVERIFY(heldOut >= 30);
}

// "estimatetable measure" and "estimatetable fit" make it true again.
void tst_Estimate::wasMeasuredWithTodaysRtlAndSynthesis()
{
    const auto rtl = rtlDigest();
    const auto synthesis = synthesisDigest();
    QVERIFY2(rtl, qPrintable(rtl.reason()));
    QVERIFY2(synthesis, qPrintable(synthesis.reason()));
    QCOMPARE(m_table.rtl, *rtl);
    QCOMPARE(m_table.synthesis, *synthesis);
    QCOMPARE(m_measured.rtl, *rtl);
    QCOMPARE(m_measured.synthesis, *synthesis);
    QCOMPARE(m_fresh.rtl, *rtl);
    QCOMPARE(m_fresh.synthesis, *synthesis);
}

void tst_Estimate::namesTheResourcesAsARunDoes()
{
    QCOMPARE(m_table.resources, Synthesis::resourceNames());
}

void tst_Estimate::keepsItsPromiseWhereTheFitSawNothing_data()
{
    QTest::addColumn<QString>("resource");
    const QStringList names = Synthesis::resourceNames();
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Estimate::keepsItsPromiseWhereTheFitSawNothing()
{
    QFETCH(QString, resource);
    const int index = m_table.resources.indexOf(resource);
    QVERIFY(index >= 0);
    int count = 0;
    QStringList misses;
    for (const Measurement &one : qAsConst(m_measured.list)) {
        if (!one.isHeldOut)
            continue;
        ++count;
        const int value = estimated(one.options, device(one.device)).resources.value(index).value;
        const int used = one.used.value(resource, -1);
        if (missOf(resource, value, used) > 1)
            misses << QStringLiteral("%1: %2 instead of %3").arg(one.name).arg(value).arg(used);
    }
    // Those that are exact have no misses at all.
    const int allowed = promisedTolerance(resource).of(0) > 0 ? count / 50 : 0;
    QVERIFY2(misses.size() <= allowed, qPrintable(misses.join(u'\n')));
}

// Of every series, and of the netlists, each of which may stand for several series.
void tst_Estimate::keepsItsPromiseOnWhatNobodyHasLookedAt()
{
    const QVector<SeriesShare> shares = sharesOf(m_fresh, DEV::DeviceDb::bundled(), m_table);
    qInfo().noquote() << u'\n' + shareText(shares, m_table);
    QSet<QString> series;
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    for (const DEV::DeviceArg &device : devices)
        series.insert(device.series());
    QCOMPARE(shares.size(), series.size() + 1);
    for (const SeriesShare &share : shares) {
        QVERIFY2(share.count >= 200, qPrintable(share.series));
        for (int i = 0; i < m_table.resources.size(); ++i) {
            const bool isExact = promisedTolerance(m_table.resources.at(i)).of(0) == 0;
            const int allowed = isExact ? 0 : share.count / 50;
            QVERIFY2(share.count - share.within.at(i) <= allowed,
                     qPrintable(share.series + u'\n' + share.misses.join(u'\n')));
        }
    }
}

void tst_Estimate::freshConfigurationsAreLegalForTheirDevice()
{
    int drawn = 0;
    for (const FreshMeasurement &one : qAsConst(m_fresh.list)) {
        QVERIFY(!one.drawn.isEmpty());
        QSet<QString> series;
        for (const Drawn &each : one.drawn) {
            ++drawn;
            const DEV::DeviceArg target = device(each.device);
            QVERIFY2(!target.isNull(), qPrintable(each.device));
            QVERIFY(!series.contains(target.series()));
            series.insert(target.series());
            const QVector<Finding> findings = checkOptions(each.options, target, QString());
            QVERIFY2(findings.isEmpty(),
                     qPrintable(each.device + u' ' + findings.value(0).message));
            for (const Measurement &fitted : qAsConst(m_measured.list))
                QVERIFY(fitted.device != each.device || fitted.options != each.options);
        }
        // A line reads back as what was written.
        QCOMPARE(lineOf(one), lineOf(*readBack(one)));
    }
    QVERIFY(drawn > m_fresh.list.size());
    // What is drawn is the same each time.
    const QVector<Drawn> again = drawForEachSeries(7, DEV::DeviceDb::bundled());
    for (const Drawn &each : again)
        QVERIFY(checkOptions(each.options, device(each.device), QString()).isEmpty());
    QCOMPARE(drawForEachSeries(7, DEV::DeviceDb::bundled()).first().options, again.first().options);
}

void tst_Estimate::whatSynthesisReadsAlikeHasOneDigest()
{
    const auto digest = [this](const char *id, const OptionMap &options) {
        QHash<QByteArray, QString> known;
        const auto result = textDigest(device(QLatin1String(id)), options, &known);
        if (!result)
            qWarning("%s", qPrintable(result.reason()));
        return result ? *result : QString();
    };
    // The series is a parameter that the Ethernet MAC is given and does not read, and the DDR3
    // controllers are black boxes of two names.
    OptionMap options{{Key::enableEthernet, true}, {Key::enableDdr3, true}};
    const char *const smaller = "TV3K-50A-PBGA484-C8/I7";
    const char *const larger = "TV5K-60B-PBGA256-C2/I1";
    const QString first = digest(smaller, options);
    QVERIFY(!first.isEmpty());
    QCOMPARE(digest(larger, options), first);
    // This controller has a pin less.
    QVERIFY(digest("TV2K-55-PBGA484-C7/I6", options) != first);
    // A parameter that is read.
    options.insert(Key::itcmSize, 2);
    const QString other = digest(smaller, options);
    QVERIFY(!other.isEmpty() && other != first);
}

void tst_Estimate::theRangeHoldsWhatWasMeasured()
{
    for (const Measurement &one : qAsConst(m_measured.list)) {
        const Estimate result = estimated(one.options, device(one.device));
        for (const EstimatedResource &resource : result.resources) {
            const int used = one.used.value(resource.resource, -1);
            QVERIFY2(resource.low <= used && used <= resource.high,
                     qPrintable(QStringLiteral("%1, %2: %3 is not within %4 to %5")
                                    .arg(one.name, resource.resource)
                                    .arg(used)
                                    .arg(resource.low)
                                    .arg(resource.high)));
        }
    }
}

void tst_Estimate::knowsTheBlackBoxesOfTheNetlists()
{
    for (const Measurement &one : qAsConst(m_measured.list)) {
        QStringList cells;
        const Estimate result = estimated(one.options, device(one.device));
        for (const EstimatedBlackBox &box : result.blackBoxes)
            cells << box.cell;
        cells.sort();
        QStringList measured = one.blackBoxes;
        measured.sort();
        QCOMPARE(cells, measured);
    }
}

void tst_Estimate::everyTermOfEveryConfigurationIsMeasured()
{
    QStringList missing;
    for (int term = 0; term < termNames().size(); ++term) {
        if (m_table.costs.at(term).isEmpty())
            missing << termNames().at(term);
    }
    QCOMPARE(missing, QStringList());
}

// Off, it can only be less; what the range allows aside.
void tst_Estimate::aBlockThatIsSwitchedOffCostsNothing()
{
    const DEV::DeviceArg target = anyDevice();
    for (quint64 seed = 1; seed <= 300; ++seed) {
        const OptionMap options = randomOptions(seed, target);
        const Estimate with = estimated(options, target);
        for (const Block &block : blocks()) {
            for (const SwitchRow &row : block.switches) {
                OptionMap without = options;
                without.insert(row.key(), false);
                const Estimate off = estimated(without, target);
                for (int i = 0; i < with.resources.size(); ++i)
                    QVERIFY2(off.resources.at(i).value <= with.resources.at(i).high,
                             qPrintable(QStringLiteral("seed %1, %2").arg(seed).arg(row.key())));
            }
        }
    }
}

void tst_Estimate::theSharesOfTheBlocksAddUp()
{
    const DEV::DeviceArg target = anyDevice();
    for (quint64 seed = 1; seed <= 300; ++seed) {
        const Estimate result = estimated(randomOptions(seed, target), target);
        QVERIFY(!result.blocks.isEmpty());
        for (int i = 0; i < result.resources.size(); ++i) {
            int sum = 0;
            for (const BlockShare &share : result.blocks)
                sum += share.values.at(i);
            QCOMPARE(sum, result.resources.at(i).value);
        }
    }
}

void tst_Estimate::countsOnTheOptionsThatGenerationCountsOn()
{
    const DEV::DeviceArg target = anyDevice();
    const auto lut4 = [&](const OptionMap &options) {
        return estimated(options, target).resources.first().value;
    };
    // An interface alone is no block, and licensed options change nothing outside of their module.
    QCOMPARE(lut4({{Key::enableGpioIo, true}}), lut4({}));
    QCOMPARE(lut4({{Key::bigEndian, true}, {Key::smallMultiplier, true}}), lut4({}));
    QVERIFY(lut4({{Key::enableGpio, true}}) > lut4({}));
    // A size counts only where the memory is inside.
    const OptionMap outside = {{Key::internalDataMemory, false}, {Key::externalDataMemory, true}};
    OptionMap sized = outside;
    sized.insert(Key::dtcmSize, 9);
    QCOMPARE(lut4(sized), lut4(outside));
}

void tst_Estimate::refusesWhatNoOptionCanBe_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a size that no memory has") << QString(Key::itcmSize) << QVariant(10);
    QTest::newRow("a number that is no choice") << QString(Key::numberOfInterrupts) << QVariant(24);
    QTest::newRow("a text for a number")
        << QString(Key::dtcmSize) << QVariant(QStringLiteral("much"));
    QTest::newRow("a text for a switch")
        << QString(Key::enableGpio) << QVariant(QStringLiteral("perhaps"));
}

void tst_Estimate::refusesWhatNoOptionCanBe()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const auto result = estimate({{key, value}}, anyDevice(), m_table);
    QVERIFY(!result);
    QVERIFY2(result.reason().contains(u'"' + key + u'"') &&
                 result.reason().contains(u'"' + value.toString() + u'"'),
             qPrintable(result.reason()));
}

void tst_Estimate::refusesADeviceThatIsNotKnown()
{
    const auto result = estimate({}, DEV::DeviceArg(), m_table);
    QVERIFY(!result);
    QVERIFY(result.reason().contains(QLatin1String("device")));
}

void tst_Estimate::tellsWhatIsTooLarge()
{
    DEV::DeviceArg tiny = anyDevice();
    DEV::DeviceResources resources = tiny.resources();
    const Estimate roomy = estimated({}, tiny);
    QCOMPARE(shortages(roomy), QStringList());
    resources.lut4 = roomy.resources.first().high;
    tiny.setResources(resources);
    QCOMPARE(shortages(estimated({}, tiny)), QStringList());
    resources.lut4 = roomy.resources.first().low - 1;
    resources.blockRam = 1;
    tiny.setResources(resources);
    const QStringList told = shortages(estimated({}, tiny));
    QCOMPARE(told.size(), 2);
    QVERIFY2(told.first().startsWith(QLatin1String("LUT4: ")) &&
                 told.first().contains(QLatin1String("is more than")),
             qPrintable(told.first()));
    QVERIFY2(told.last().contains(QLatin1String("ITCM ")) &&
                 told.last().contains(QLatin1String("DTCM ")),
             qPrintable(told.last()));
}

void tst_Estimate::keepsSuppliersFiguresApart()
{
    QTemporaryDir folder;
    const QByteArray table =
        TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/estimate.json"));
    QVERIFY(TestSupport::write(folder.filePath(QStringLiteral("estimate.json")), table));
    QVERIFY(TestSupport::write(folder.filePath(QStringLiteral("black-boxes.json")),
                               "{ \"can_core\": null,\n"
                               "  \"CortexM1Core\": { \"source\": \"a data sheet\", \"resources\": "
                               "{ \"LUT4\": 7 } } }\n"));
    const auto read = readEstimateTable(folder.path());
    QVERIFY2(read, qPrintable(read.reason()));
    const auto result = estimate({{Key::enableCan, true}}, anyDevice(), *read);
    QVERIFY2(result, qPrintable(result.reason()));
    QCOMPARE(result->resources.first().value,
             estimated({{Key::enableCan, true}}, anyDevice()).resources.first().value);
    QCOMPARE(result->blackBoxes.size(), 2);
    QCOMPARE(result->blackBoxes.first().supplier.source, QStringLiteral("a data sheet"));
    QCOMPARE(result->blackBoxes.first().supplier.used.value(QStringLiteral("LUT4")), 7);
    QVERIFY(result->blackBoxes.last().supplier.source.isEmpty());
}

void tst_Estimate::tellsWhatNobodyHasMeasured()
{
    EstimateTable table = m_table;
    table.costs[termNames().indexOf(QStringLiteral("GPIO"))].clear();
    const auto result = estimate({{Key::enableGpio, true}}, anyDevice(), table);
    QVERIFY(result);
    QCOMPARE(result->unmeasured, QStringList(QStringLiteral("GPIO")));
    QCOMPARE(estimated({{Key::enableGpio, true}}, anyDevice()).unmeasured, QStringList());
}

void tst_Estimate::refusesATableThatIsNone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const QByteArray resources =
        "\"resources\": [ { \"resource\": \"LUT4\", \"cells\": 1, \"percent\": 1 } ]";
    QTest::newRow("no JSON") << QByteArray("{\n nothing }") << QStringLiteral("line 2");
    QTest::newRow("a list") << QByteArray("[]") << QStringLiteral("no object");
    QTest::newRow("no resources") << QByteArray("{}") << QStringLiteral("no resources");
    QTest::newRow("a resource without a tolerance")
        << QByteArray("{ \"resources\": [ { \"resource\": \"LUT4\" } ] }")
        << QStringLiteral("the tolerance of \"LUT4\"");
    QTest::newRow("a resource twice")
        << QByteArray("{ \"resources\": [ { \"resource\": \"A\", \"cells\": 1, \"percent\": 1 },"
                      " { \"resource\": \"A\", \"cells\": 1, \"percent\": 1 } ] }")
        << QStringLiteral("name of its own");
    QTest::newRow("a term that nothing has")
        << "{ " + resources + ", \"terms\": { \"radio\": {} } }"
        << QStringLiteral("\"radio\" is no term");
    QTest::newRow("a cost that is no number")
        << "{ " + resources + ", \"terms\": { \"GPIO\": { \"LUT4\": \"many\" } } }"
        << QStringLiteral("\"GPIO\": \"LUT4\"");
    QTest::newRow("a cost of something else")
        << "{ " + resources + ", \"terms\": { \"GPIO\": { \"Gates\": 1 } } }"
        << QStringLiteral("\"GPIO\": \"Gates\"");
}

void tst_Estimate::refusesATableThatIsNone()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("estimate.json"));
    QVERIFY(TestSupport::write(path, text));
    const auto read = readEstimateTable(folder.path());
    QVERIFY(!read);
    QVERIFY2(read.reason().contains(path) && read.reason().contains(reason),
             qPrintable(read.reason()));
}

void tst_Estimate::theTableIsReadAsItIsWritten()
{
    QTemporaryDir folder;
    QVERIFY(!hasEstimateTable(folder.path()));
    QVERIFY(
        TestSupport::write(folder.filePath(QStringLiteral("estimate.json")), tableText(m_table)));
    QVERIFY(hasEstimateTable(folder.path()));
    const auto read = readEstimateTable(folder.path());
    QVERIFY2(read, qPrintable(read.reason()));
    QCOMPARE(tableText(*read), tableText(m_table));
    QCOMPARE(tableText(m_table),
             TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/estimate.json")));
}

QTEST_GUILESS_MAIN(tst_Estimate)

#include "tst_estimate.moc"
