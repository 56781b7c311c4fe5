#include <testsupport.h>

#include <rules/tcmsizes.h>

#include <dev/devicedb.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTest>

using namespace TARVOORIXM1;

namespace
{

int kilobytes(const QString &size)
{
    return size.section(u' ', 0, 0).toInt();
}

// Of all pairs of sizes that can be chosen together.
int largestSum(const QString &device)
{
    int largest = 0;
    const TcmSizes sizes = tcmSizes(device);
    const QStringList all = sizes.full + sizes.reduced;
    for (const QString &itcm : all) {
        for (const QString &dtcm : all) {
            const TcmOffers offers = balancedTcmSizes(device, itcm, dtcm, true);
            if (offers.itcm.sizes.contains(itcm) && offers.dtcm.sizes.contains(dtcm))
                largest = qMax(largest, kilobytes(itcm) + kilobytes(dtcm));
        }
    }
    return largest;
}

} // namespace

// The database's nominal resources against the rules about memories.
class tst_DeviceResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLargestMemoriesFit_data()
    {
        QTest::addColumn<DEV::DeviceArg>("device");
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        for (const DEV::DeviceArg &device : devices)
            QTest::newRow(qPrintable(device.id())) << device;
        QVERIFY(devices.size() > 100);
    }

    void theLargestMemoriesFit()
    {
        QFETCH(DEV::DeviceArg, device);
        const int needed = largestSum(device.device());
        QVERIFY2(needed >= 16 || tcmSizes(device.device()).full.isEmpty(),
                 qPrintable(QString::number(needed)));
        constexpr int kilobytesOfABlock = 16384 / 8 / 1024;
        QVERIFY2(device.resources().blockRam * kilobytesOfABlock >= needed,
                 qPrintable(QString::number(needed)));
    }

    void followTheSizeNumber_data() { theLargestMemoriesFit_data(); }

    void followTheSizeNumber()
    {
        QFETCH(DEV::DeviceArg, device);
        static const QRegularExpression number(QStringLiteral("-(\\d+)"));
        const int size = number.match(device.device()).captured(1).toInt();
        QVERIFY(size > 0);
        QCOMPARE(device.resources().lut4, 1000 * size);
        QCOMPARE(device.resources().flipFlops, 1000 * size);
        QCOMPARE(device.resources().carry, 1000 * size);
        QCOMPARE(device.resources().blockRam, 4 * size + 16);
    }
};

TARVO_TEST_MAIN(QCoreApplication, tst_DeviceResources)
#include "tst_deviceresources.moc"
