#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <generate/sourcefiles.h>
#include <generate/synthesisrequest.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_SourceFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void choosesTheVariantByDebug();
    void keepsOneMemoryPairPerFamily_data();
    void keepsOneMemoryPairPerFamily();
    void keepsOneDebugItcmPerDevice_data();
    void keepsOneDebugItcmPerDevice();
    void debugLeavesTheFamilyFilesAlone();
    void skipsSupportFilesByTheirExactNames();
    void sortsWithoutRegardToLetterCase();
    void listsNoFolders();
    void endsInTheIncludeFiles_data();
    void endsInTheIncludeFiles();
    void anOddFolderNameIsKept();
    void fillsTheRequest();

private:
    QVariantMap info() const;
    // The names of the listed data files.
    QStringList listed(const OptionMap &options, const char *device) const;

    QTemporaryDir m_dir;
};

void tst_SourceFiles::initTestCase()
{
    const QStringList names{
        QStringLiteral("b_top.v"),
        QStringLiteral("A_bus.v"),
        QStringLiteral("c.v"),
        QStringLiteral("itcm.v"),
        QStringLiteral("dtcm.v"),
        QStringLiteral("itcm_3k.v"),
        QStringLiteral("dtcm_3k.v"),
        QStringLiteral("itcm_5k.v"),
        QStringLiteral("dtcm_5k.v"),
        QStringLiteral("itcmdbg.v"),
        QStringLiteral("itcmdbg_2kc.v"),
        QStringLiteral("define.vh"),
        QStringLiteral("DEFINE.VH"),
        QStringLiteral("tvmc_local_param.v"),
        QStringLiteral("tvmc_param.v"),
        QStringLiteral("ddr3_name.v"),
        QStringLiteral("psram_local_define.v"),
        QStringLiteral("psram_local_param.v"),
        QStringLiteral("psram_param.v"),
        QStringLiteral("static_macro_define.vh"),
        QStringLiteral("triple_speed_mac_name.v"),
        QStringLiteral("psram_define.v"),
    };
    for (const char *variant : {"debug", "no_debug"}) {
        for (const QString &name : names)
            QVERIFY(TestSupport::write(m_dir.filePath(QString::fromLatin1(variant) + u'/' + name),
                                       "x"));
        QVERIFY(TestSupport::write(
            m_dir.filePath(QString::fromLatin1(variant) + QLatin1String("/sub/inner.v")), "x"));
    }
}

QVariantMap tst_SourceFiles::info() const
{
    return {{InfoKey::debug, m_dir.filePath(QStringLiteral("debug"))},
            {InfoKey::noDebug, m_dir.filePath(QStringLiteral("no_debug"))}};
}

QStringList tst_SourceFiles::listed(const OptionMap &options, const char *device) const
{
    QStringList names;
    const QStringList sources =
        buildSourceFiles(options, info(), QString::fromLatin1(device), QStringLiteral("/temp"));
    for (const QString &path : sources.mid(0, sources.size() - 6))
        names.append(QFileInfo(path).fileName());
    return names;
}

void tst_SourceFiles::choosesTheVariantByDebug()
{
    const auto folderOf = [this](const OptionMap &options) {
        return QFileInfo(buildSourceFiles(options, info(), QStringLiteral("TV2K-18"),
                                          QStringLiteral("/temp"))
                             .first())
            .absolutePath();
    };
    QCOMPARE(folderOf({}), m_dir.filePath(QStringLiteral("debug")));
    QCOMPARE(folderOf({{Key::enableDebug, true}}), m_dir.filePath(QStringLiteral("debug")));
    QCOMPARE(folderOf({{Key::enableDebug, QStringLiteral("false")}}),
             m_dir.filePath(QStringLiteral("no_debug")));
}

void tst_SourceFiles::keepsOneMemoryPairPerFamily_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QStringList>("kept");
    QTest::newRow("5K") << QByteArray("TV5KT-60B")
                        << QStringList{QStringLiteral("dtcm_5k.v"), QStringLiteral("itcm_5k.v")};
    QTest::newRow("3K") << QByteArray("TV3K-10A")
                        << QStringList{QStringLiteral("dtcm_3k.v"), QStringLiteral("itcm_3k.v")};
    QTest::newRow("2K") << QByteArray("TV2K-18")
                        << QStringList{QStringLiteral("dtcm.v"), QStringLiteral("itcm.v")};
    QTest::newRow("lower case") << QByteArray("tv5kt-60b")
                                << QStringList{QStringLiteral("dtcm.v"), QStringLiteral("itcm.v")};
}

void tst_SourceFiles::keepsOneMemoryPairPerFamily()
{
    QFETCH(QByteArray, device);
    QFETCH(QStringList, kept);
    const QStringList names = listed({{Key::enableDebug, false}}, device.constData());
    QCOMPARE(names.filter(QRegularExpression(QStringLiteral("^[id]tcm(_.k)?\\.v$"))), kept);
    // Without debug nothing is said about the debug memories.
    QVERIFY(names.contains(QStringLiteral("itcmdbg.v")) &&
            names.contains(QStringLiteral("itcmdbg_2kc.v")));
}

void tst_SourceFiles::keepsOneDebugItcmPerDevice_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QString>("kept");
    for (const char *device : {"TV2K-55C", "TV2K-18C", "TV2KL-55C", "TV2KR-18C", "TV2KLR-18C"})
        QTest::newRow(device) << QByteArray(device) << QStringLiteral("itcmdbg_2kc.v");
    for (const char *device : {"TV2KR-18", "TV2K-55", "TV5KT-60B", "TV2kr-18C", ""})
        QTest::addRow("\"%s\"", device) << QByteArray(device) << QStringLiteral("itcmdbg.v");
}

void tst_SourceFiles::keepsOneDebugItcmPerDevice()
{
    QFETCH(QByteArray, device);
    QFETCH(QString, kept);
    QCOMPARE(listed({}, device.constData()).filter(QStringLiteral("itcmdbg")), QStringList{kept});
}

void tst_SourceFiles::debugLeavesTheFamilyFilesAlone()
{
    QCOMPARE(listed({}, "TV5KT-60B")
                 .filter(QRegularExpression(QStringLiteral("^[id]tcm(_.k)?\\.v$")))
                 .size(),
             6);
}

void tst_SourceFiles::skipsSupportFilesByTheirExactNames()
{
    const QStringList names = listed({}, "TV2K-18");
    QVERIFY(!names.contains(QStringLiteral("define.vh")));
    QVERIFY(names.contains(QStringLiteral("DEFINE.VH")));
    for (const char *support : {"tvmc_local_param.v", "tvmc_param.v", "ddr3_name.v",
                                "psram_local_define.v", "psram_local_param.v", "psram_param.v",
                                "static_macro_define.vh", "triple_speed_mac_name.v"})
        QVERIFY2(!names.contains(QString::fromLatin1(support)), support);
    QVERIFY(names.contains(QStringLiteral("psram_define.v")));
}

void tst_SourceFiles::sortsWithoutRegardToLetterCase()
{
    QCOMPARE(
        listed({}, "TV2K-18").mid(0, 3),
        (QStringList{QStringLiteral("A_bus.v"), QStringLiteral("b_top.v"), QStringLiteral("c.v")}));
}

void tst_SourceFiles::listsNoFolders()
{
    const QStringList names = listed({}, "TV2K-18");
    QVERIFY(!names.contains(QStringLiteral("sub")) && !names.contains(QStringLiteral("inner.v")));
}

void tst_SourceFiles::endsInTheIncludeFiles_data()
{
    QTest::addColumn<QVariantMap>("ipInfo");
    QTest::addColumn<bool>("hasData");
    QTest::newRow("with data") << info() << true;
    QTest::newRow("data folder missing")
        << QVariantMap{{InfoKey::debug, m_dir.filePath(QStringLiteral("nowhere"))}} << false;
    // An empty name must not list the current folder.
    QTest::newRow("no data folder") << QVariantMap() << false;
}

void tst_SourceFiles::endsInTheIncludeFiles()
{
    QFETCH(QVariantMap, ipInfo);
    QFETCH(bool, hasData);
    const QStringList sources =
        buildSourceFiles({}, ipInfo, QStringLiteral("TV2K-18"), QStringLiteral("/a b/temp"));
    QCOMPARE(sources.mid(sources.size() - 6),
             (QStringList{QStringLiteral("/a b/temp/cm1_option_defs.v"),
                          QStringLiteral("/a b/temp/ahb_option_defs.v"),
                          QStringLiteral("/a b/temp/parameter.vh"),
                          QStringLiteral("/a b/temp/triple_speed_mac_param.v"),
                          QStringLiteral("/a b/temp/triple_speed_mac_define.v"),
                          QStringLiteral("/a b/temp/DDR3_define.v")}));
    QCOMPARE(sources.size() > 6, hasData);
}

void tst_SourceFiles::anOddFolderNameIsKept()
{
    const QString odd = m_dir.filePath(QString::fromUtf8("d\xc3\xa4ta \"%1\" 'x'"));
    QVERIFY(TestSupport::write(odd + QLatin1String("/top.v"), "x"));
    QCOMPARE(buildSourceFiles({}, {{InfoKey::debug, odd}}, QString(), QStringLiteral("t")).first(),
             odd + QLatin1String("/top.v"));
}

void tst_SourceFiles::fillsTheRequest()
{
    const QVariantMap ipInfo{{InfoKey::target, QStringLiteral("name")},
                             {InfoKey::version, QStringLiteral("2.1")}};
    const QStringList sources{QStringLiteral("a.v"), QStringLiteral("b.v")};
    const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().first();
    for (const int language : {0, 1, 2, -1}) {
        const SynthesisRequest request = buildSynthesisRequest(ipInfo, device, QStringLiteral("/t"),
                                                               languageAt(language), sources);
        QCOMPARE(request.outputDir, QStringLiteral("/t"));
        QCOMPARE(request.ipName, QStringLiteral("tv_orix_m1"));
        QCOMPARE(request.targetName, QStringLiteral("name"));
        QCOMPARE(request.device.id(), device.id());
        QCOMPARE(request.options,
                 (QVariantMap{{QStringLiteral("impl_name"), QStringLiteral("rev_1")},
                              {QStringLiteral("write_vhdl"), language == 1},
                              {QStringLiteral("top_module"), QStringLiteral("Tarvo_ORIX_M1_Top")},
                              {QStringLiteral("disable_io"), true},
                              {QStringLiteral("source_files"), sources},
                              {QStringLiteral("ip_version"), QStringLiteral("2.1")}}));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_SourceFiles)

#include "tst_sourcefiles.moc"
