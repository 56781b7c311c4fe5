#include <rules/itcmpath.h>
#include <rules/tcmsizes.h>

#include <dev/devicedb.h>
#include <rules/devicerules.h>

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

QString kilobytes(int index)
{
    return index < 0 ? QString() : QStringLiteral("%1 KB").arg(1 << index);
}

} // namespace

class tst_TcmSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void devicesHaveTheirSizes_data();
    void devicesHaveTheirSizes();
    void everyKnownDeviceIsCovered();
    void namesAreComparedExactly();
    void balancesOneAgainstTheOther_data();
    void balancesOneAgainstTheOther();
    void neverLeavesBothAtTheLargest();
    void saysWhatIsWrongWithTheFolder();
};

void tst_TcmSizes::devicesHaveTheirSizes_data()
{
    QTest::addColumn<QString>("devices");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("reduced");

    const auto row = [](const char *devices, int last, int preset, int reduced) {
        QTest::newRow(devices) << QString::fromLatin1(devices) << last << preset << reduced;
    };
    row("TV1KL-5A TV1KL-5B", 3, 3, 4);
    row("TV1L-9 TV1LR-9 TV1L-9C TV1LR-9C TV2KL-9X TV1KL-9A TV2KL-18X", 5, 4, 4);
    row("TV2K-18 TV2KR-18 TV2K-18C TV2KR-18C TV2KLR-18C", 6, 5, 4);
    row("TV2K-55 TV2K-55C TV2KL-55C TV3K-50A", 8, 6, 4);
    row("TV5K-25A TV5K-25B TV5KS-25B TV5KR-25B TV5KS-25A TV5KR-25A", 6, 5, 5);
    row("TV5KRT-15A TV5KRT-15B TV5KT-15B TV5KLT-15A TV5KLRT-15A TV5KT-15A", 6, 5, 3);
    row("TV5KT-75B TV5KT-75C", 8, 7, 8);
    row("TV5KT-60ES TV5KT-60B TV5K-60B", 7, 6, 6);
    row("TV5KT-138 TV5KT-138B TV5KST-138B TV5K-138C TV5KS-138C TV5KST-138C TV5KT-138C TV5K-138B "
        "TV5KS-138B",
        9, 7, 7);
    row("TV3K-20A TV3KR-20A TV3K-10A", 6, 5, 5);
    row("TV9-1", -1, -1, 4);
}

void tst_TcmSizes::devicesHaveTheirSizes()
{
    QFETCH(QString, devices);
    QFETCH(int, last);
    QFETCH(int, preset);
    QFETCH(int, reduced);
    for (const QString &device : devices.split(u' ')) {
        const TcmSizes sizes = tcmSizes(device);
        QCOMPARE(sizes.full, tcmSizeList(last));
        QCOMPARE(sizes.largest, kilobytes(last));
        QCOMPARE(sizes.defaultSize, kilobytes(preset));
        QCOMPARE(sizes.reduced, tcmSizeList(reduced));
        if (last >= 0)
            QCOMPARE(defaultTcmSizeIndex(device), preset);
    }
}

void tst_TcmSizes::everyKnownDeviceIsCovered()
{
    QSet<QString> names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices())
        names.insert(device.device());
    QVERIFY(names.size() > 40);
    for (const QString &name : qAsConst(names))
        QVERIFY2(!tcmSizes(name).full.isEmpty(), qPrintable(name));
}

void tst_TcmSizes::namesAreComparedExactly()
{
    QVERIFY(tcmSizes(QStringLiteral("tv2k-18")).full.isEmpty());
    QVERIFY(tcmSizes(QStringLiteral("TV2K-18 ")).full.isEmpty());
    QVERIFY(tcmSizes(QStringLiteral("TV5K-25A/TV5K-25B")).full.isEmpty());
    QVERIFY(tcmSizes(QString()).full.isEmpty());
}

void tst_TcmSizes::balancesOneAgainstTheOther_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("bothInternal");
    QTest::addColumn<int>("itcm");
    QTest::addColumn<int>("dtcm");
    QTest::addColumn<int>("itcmLast");
    QTest::addColumn<int>("newItcm");
    QTest::addColumn<int>("dtcmLast");
    QTest::addColumn<int>("newDtcm");

    const auto row = [](const char *phrase, const char *device, bool both, QVector<int> in,
                        QVector<int> out) {
        QTest::newRow(phrase) << QString::fromLatin1(device) << both << in.at(0) << in.at(1)
                              << out.at(0) << out.at(1) << out.at(2) << out.at(3);
    };
    row("nothing at the largest", "TV2K-18", true, {5, 5}, {6, 5, 6, 5});
    row("the ITCM at the largest", "TV2K-18", true, {6, 5}, {6, 6, 4, 4});
    row("the DTCM at the largest", "TV2K-18", true, {5, 6}, {4, 4, 6, 6});
    row("both at the largest", "TV2K-18", true, {6, 6}, {6, 6, 4, 4});
    row("one is external", "TV2K-18", false, {6, 6}, {6, 6, 6, 6});
    row("small enough to stay", "TV2K-18", true, {6, 2}, {6, 6, 4, 2});
    row("the reduced list is longer", "TV1KL-5A", true, {3, 3}, {4, 3, 4, 3});
    row("more than the full list", "TV1KL-5A", false, {3, 4}, {3, 3, 3, -1});
    row("reduced to 8 KB", "TV5KT-15B", true, {6, 5}, {6, 6, 3, 3});
    row("reduced to the full list", "TV5KT-75B", true, {8, 8}, {8, 8, 8, 8});
    row("no sizes at all", "none", true, {-1, -1}, {-1, -1, 4, 4});
    row("no sizes, one external", "none", false, {-1, 4}, {-1, -1, -1, -1});
}

void tst_TcmSizes::balancesOneAgainstTheOther()
{
    QFETCH(QString, device);
    QFETCH(bool, bothInternal);
    QFETCH(int, itcm);
    QFETCH(int, dtcm);
    const TcmOffers offers =
        balancedTcmSizes(device, kilobytes(itcm), kilobytes(dtcm), bothInternal);
    QTEST(offers.itcm.sizes.size() - 1, "itcmLast");
    QTEST(offers.itcm.current, "newItcm");
    QTEST(offers.dtcm.sizes.size() - 1, "dtcmLast");
    QTEST(offers.dtcm.current, "newDtcm");
    QCOMPARE(offers.itcm.sizes, tcmSizeList(offers.itcm.sizes.size() - 1));
    QCOMPARE(offers.dtcm.sizes, tcmSizeList(offers.dtcm.sizes.size() - 1));
}

// All devices, all pairs: at most one memory at the largest size, except where the reduced list
// reaches it on purpose.
void tst_TcmSizes::neverLeavesBothAtTheLargest()
{
    QSet<QString> names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices())
        names.insert(device.device());
    int limited = 0;
    for (const QString &name : qAsConst(names)) {
        const TcmSizes sizes = tcmSizes(name);
        if (sizes.reduced.contains(sizes.largest))
            continue;
        for (int itcm = -1; itcm < 10; ++itcm) {
            for (int dtcm = -1; dtcm < 10; ++dtcm) {
                const TcmOffers offers =
                    balancedTcmSizes(name, kilobytes(itcm), kilobytes(dtcm), true);
                const QString a = offers.itcm.sizes.value(offers.itcm.current);
                const QString b = offers.dtcm.sizes.value(offers.dtcm.current);
                QVERIFY2(a != sizes.largest || b != sizes.largest, qPrintable(name));
                limited += a == sizes.largest || b == sizes.largest;
            }
        }
    }
    QVERIFY(limited > 0);
}

void tst_TcmSizes::saysWhatIsWrongWithTheFolder()
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("init"));
    QFile file(folder.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString missing = QStringLiteral("ITCM Initialization Path is not exist.");
    QCOMPARE(itcmPathError(QString(), folder.path()),
             QStringLiteral("ITCM Initialization Path is empty."));
    QCOMPARE(itcmPathError(QStringLiteral("init"), folder.path()), QString());
    QCOMPARE(itcmPathError(QStringLiteral("file"), folder.path()), missing);
    QCOMPARE(itcmPathError(QStringLiteral("nothing"), folder.path()), missing);
    QCOMPARE(itcmPathError(folder.filePath(QStringLiteral("init")), QStringLiteral("/nowhere")),
             QString());
    QCOMPARE(absoluteItcmPath(QStringLiteral("init"), QStringLiteral("/ip/x")),
             QStringLiteral("/ip/x/init"));
}

QTEST_GUILESS_MAIN(tst_TcmSizes)
#include "tst_tcmsizes.moc"
