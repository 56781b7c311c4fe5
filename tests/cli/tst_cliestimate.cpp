#include <testsupport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Run {
    int status = -1;
    QString out;
    QString err;

    QJsonObject json() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
};

QByteArray configuration(const QByteArray &device, const QByteArray &options)
{
    return "[General]\ntarget_device=" + device +
           "\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n" + options;
}

const QByteArray usual = "TV2KR-18C-QFN88P-C8/I7";
const QByteArray smallest = "TV1KL-5A-QFN32-C6/I5";

// More than the smallest devices hold.
QByteArray much()
{
    QByteArray options = "Enable%20Debug=false\nITCM_Size=3\nDTCM_Size=3\n";
    for (const char *block : {"GPIO", "UART0", "UART1", "Timer0", "Timer1", "DUALTIMER", "RTC",
                              "WatchDog", "TRNG", "I2C", "SPI", "SDCARD"})
        options += QByteArray("Enable%20") + block + "=true\n";
    for (int port = 1; port <= 16; ++port)
        options += "Enable_APB_Master" + QByteArray::number(port) + "=true\n";
    return options;
}

} // namespace

// The command estimate, and what check says of sizes, as people run them.
class tst_CliEstimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachResourceWithItsRange();
    void printsTheSameForPeople();
    void warnsWhereTheDeviceIsTooSmall();
    void saysNothingOfSizesWhereAllFits();
    void refusesWhatItCannotUse_data();
    void refusesWhatItCannotUse();
    void aDataFolderWithoutATableHasNoEstimates();

private:
    QString path(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }
    Run run(const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_dir.path());
        process.start(QStringLiteral(TARVO_COMMAND), arguments);
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir m_dir;
};

void tst_CliEstimate::tellsEachResourceWithItsRange()
{
    QVERIFY(TestSupport::write(path("a.ipc"), configuration(usual, "Enable%20CAN=true\n")));
    const Run told =
        run({QStringLiteral("estimate"), QStringLiteral("a.ipc"), QStringLiteral("--json")});
    QCOMPARE(told.status, 0);
    const QJsonObject json = told.json();
    QCOMPARE(json.keys(), (QStringList{QStringLiteral("blackBoxes"), QStringLiteral("blocks"),
                                       QStringLiteral("device"), QStringLiteral("errors"),
                                       QStringLiteral("file"), QStringLiteral("pins"),
                                       QStringLiteral("resources"), QStringLiteral("unmeasured"),
                                       QStringLiteral("warnings")}));
    QCOMPARE(json[QStringLiteral("device")].toString().toUtf8(), usual);
    QStringList names;
    const QJsonArray resources = json[QStringLiteral("resources")].toArray();
    for (const QJsonValue &value : resources) {
        const QJsonObject resource = value.toObject();
        names << resource[QStringLiteral("resource")].toString();
        const int low = resource[QStringLiteral("low")].toInt(-1);
        const int high = resource[QStringLiteral("high")].toInt(-1);
        QVERIFY(low >= 0 && low <= resource[QStringLiteral("value")].toInt(-1));
        QVERIFY(high >= resource[QStringLiteral("value")].toInt(-1));
        QCOMPARE(resource.contains(QStringLiteral("available")),
                 resource.contains(QStringLiteral("percent")));
        QCOMPARE(resource.contains(QStringLiteral("available")),
                 names.last() != QStringLiteral("Tri-state drivers"));
    }
    QCOMPARE(names, (QStringList{QStringLiteral("LUT4"), QStringLiteral("Flip-flops"),
                                 QStringLiteral("Carry"), QStringLiteral("Tri-state drivers"),
                                 QStringLiteral("Block RAM")}));
    QStringList boxes;
    for (const QJsonValue &value : json[QStringLiteral("blackBoxes")].toArray())
        boxes << value.toObject()[QStringLiteral("cell")].toString();
    QCOMPARE(boxes, (QStringList{QStringLiteral("CortexM1Core"), QStringLiteral("can_core")}));
    QVERIFY(json[QStringLiteral("pins")].toObject()[QStringLiteral("used")].toInt() > 0);
    QVERIFY(!json[QStringLiteral("blocks")].toArray().isEmpty());
}

void tst_CliEstimate::printsTheSameForPeople()
{
    QVERIFY(TestSupport::write(path("a.ipc"), configuration(usual, "Enable%20UART0=true\n")));
    const QJsonArray resources =
        run({QStringLiteral("estimate"), QStringLiteral("a.ipc"), QStringLiteral("--json")})
            .json()[QStringLiteral("resources")]
            .toArray();
    const Run told = run({QStringLiteral("estimate"), QStringLiteral("a.ipc")});
    QCOMPARE(told.status, 0);
    QCOMPARE(told.err, QString());
    for (const QJsonValue &value : resources) {
        const QJsonObject resource = value.toObject();
        const QString start =
            resource[QStringLiteral("resource")].toString().leftJustified(18) + u' ' +
            QString::number(resource[QStringLiteral("value")].toInt()).rightJustified(9) + u' ';
        QVERIFY2(told.out.contains(u'\n' + start), qPrintable(told.out));
    }
    QVERIFY2(told.out.contains(QStringLiteral("\nUART0 ")), qPrintable(told.out));
    QVERIFY2(told.out.contains(QStringLiteral("black boxes: 1 CortexM1Core.")),
             qPrintable(told.out));
}

void tst_CliEstimate::warnsWhereTheDeviceIsTooSmall()
{
    QVERIFY(TestSupport::write(path("a.ipc"), configuration(smallest, much())));
    const Run told =
        run({QStringLiteral("estimate"), QStringLiteral("a.ipc"), QStringLiteral("--json")});
    QCOMPARE(told.status, 0);
    QVERIFY(!told.json()[QStringLiteral("warnings")].toArray().isEmpty());
    const Run checked =
        run({QStringLiteral("check"), QStringLiteral("a.ipc"), QStringLiteral("--json")});
    QCOMPARE(checked.status, 0);
    QStringList warnings;
    for (const QJsonValue &value : checked.json()[QStringLiteral("findings")].toArray()) {
        const QJsonObject finding = value.toObject();
        if (finding[QStringLiteral("key")] == QStringLiteral("target_device")) {
            QCOMPARE(finding[QStringLiteral("severity")].toString(), QStringLiteral("warning"));
            warnings << finding[QStringLiteral("message")].toString();
        }
    }
    QVERIFY2(!warnings.isEmpty() &&
                 warnings.first().startsWith(QStringLiteral("LUT4: the estimate")),
             qPrintable(warnings.join(u'\n')));
    QVERIFY2(warnings.first().contains(QStringLiteral("most is for ")),
             qPrintable(warnings.first()));
}

void tst_CliEstimate::saysNothingOfSizesWhereAllFits()
{
    QVERIFY(TestSupport::write(path("a.ipc"), configuration(usual, "Enable%20UART0=true\n")));
    const Run checked = run({QStringLiteral("check"), QStringLiteral("a.ipc")});
    QCOMPARE(checked.status, 0);
    QVERIFY2(!checked.out.contains(QStringLiteral("estimate")), qPrintable(checked.out));
}

void tst_CliEstimate::refusesWhatItCannotUse_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a device that nobody knows")
        << configuration("TV9-1", "") << QStringLiteral("TV9-1");
    QTest::newRow("a value that its option cannot have")
        << configuration(usual, "ITCM_Size=11\n") << QStringLiteral("\"ITCM_Size\"");
}

void tst_CliEstimate::refusesWhatItCannotUse()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QVERIFY(TestSupport::write(path("bad.ipc"), text));
    const Run told = run({QStringLiteral("estimate"), QStringLiteral("bad.ipc")});
    QCOMPARE(told.status, 3);
    QVERIFY2(told.err.contains(reason), qPrintable(told.err));
    QCOMPARE(run({QStringLiteral("estimate"), QStringLiteral("bad.ipc"), QStringLiteral("--json")})
                 .json()[QStringLiteral("errors")]
                 .toArray()
                 .size(),
             1);
}

void tst_CliEstimate::aDataFolderWithoutATableHasNoEstimates()
{
    const QString data = path("data");
    QProcess copy;
    copy.start(QStringLiteral("cp"),
               {QStringLiteral("-r"), QStringLiteral(TARVO_IP_DATA_DIR), data});
    QVERIFY(copy.waitForFinished(-1) && copy.exitCode() == 0);
    QVERIFY(QFile::remove(data + QStringLiteral("/estimate.json")));
    QVERIFY(TestSupport::write(path("a.ipc"), configuration(usual, "")));
    QVERIFY(TestSupport::write(path("b.ipc"), configuration(usual, "Enable%20UART0=true\n")));
    const Run told =
        run({QStringLiteral("--data"), data, QStringLiteral("estimate"), QStringLiteral("a.ipc")});
    QCOMPARE(told.status, 3);
    QVERIFY2(told.err.contains(QStringLiteral("estimate.json")), qPrintable(told.err));
    QCOMPARE(run({QStringLiteral("--data"), data, QStringLiteral("check"), QStringLiteral("a.ipc")})
                 .status,
             0);
    const Run different = run({QStringLiteral("--data"), data, QStringLiteral("diff"),
                               QStringLiteral("a.ipc"), QStringLiteral("b.ipc")});
    QCOMPARE(different.status, 1);
    QVERIFY2(!different.out.contains(QStringLiteral("Resources")), qPrintable(different.out));
}

QTEST_GUILESS_MAIN(tst_CliEstimate)

#include "tst_cliestimate.moc"
