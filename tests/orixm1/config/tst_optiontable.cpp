#include "testsupport.h"

#include "../rules/checkreference.h"

#include <config/blocks.h>
#include <config/optiontable.h>

#include <QSet>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_OptionTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEveryKeyOnce();
    void agreesWithThePlainStatement();
    void theKeysOfADescriptorAreFixed();
    void defaultsAreThoseOfGeneration_data();
    void defaultsAreThoseOfGeneration();
    void findsTheNearestKey_data();
    void findsTheNearestKey();
    void readsTexts_data();
    void readsTexts();
    void domains_data();
    void domains();
};

void tst_OptionTable::holdsEveryKeyOnce()
{
    QSet<QString> keys;
    for (const Option &option : optionTable()) {
        QVERIFY2(!keys.contains(option.key), qPrintable(option.key));
        QVERIFY2(!option.description.isEmpty(), qPrintable(option.key));
        QVERIFY(findOption(option.key) == &option);
        keys.insert(option.key);
    }
    // Beside the switches of the blocks:
    QSet<QString> expected;
    for (const char *key : {"Number of Interrupts",
                            "OS Extension",
                            "Small Multiplier",
                            "Big Endian",
                            "External Interrupts",
                            "Enable Debug",
                            "Debug Port Select",
                            "Small Debug",
                            "Internal_Instruction_Memory",
                            "External_Instruction_Memory",
                            "Initialize ITCM",
                            "ITCM_Initialization_Path",
                            "ITCM_Initialization_AbsolutePath",
                            "ITCM_Size",
                            "Internal_Data_Memory",
                            "External_Data_Memory",
                            "DTCM_Size",
                            "CAN_BUFFER_DEPTH",
                            "ETHERNET_INTERFACE",
                            "ETHERNET_INPUT_DELAY",
                            "ETHERNET_CLOCK_DIVIDER"}) {
        const Option *option = findOption(QString::fromLatin1(key));
        QVERIFY2(option && option->isOption, key);
        expected.insert(option->key);
    }
    for (const char *key : {"Synthesis_tool", "LANG", "ip_device_id", "ip_device", "Prefix"}) {
        const Option *option = findOption(QString::fromLatin1(key));
        QVERIFY2(option && !option->isOption, key);
        expected.insert(option->key);
    }
    for (const Block &block : blocks()) {
        for (const SwitchRow &row : block.switches) {
            const Option *option = findOption(row.key());
            QVERIFY2(option && option->isOption, qPrintable(row.key()));
            expected.insert(option->key);
        }
    }
    QCOMPARE(keys, expected);
    QVERIFY(keys.contains(QStringLiteral("Enable_AHB_Master6")));
    QVERIFY(keys.contains(QStringLiteral("Enable_APB_Master16")));
    QVERIFY(keys.contains(QStringLiteral("Enabel GPIO IO")));
    QVERIFY(!findOption(QStringLiteral("Enable GPIO IO")));
}

void tst_OptionTable::agreesWithThePlainStatement()
{
    const QVector<CheckReference::Kind> kinds = CheckReference::kinds();
    const QVector<Option> &table = optionTable();
    QCOMPARE(table.size(), kinds.size());
    for (int i = 0; i < kinds.size(); ++i) {
        const CheckReference::Kind &kind = kinds.at(i);
        const Option &option = table.at(i);
        QCOMPARE(option.key, kind.key);
        QVERIFY2(typeName(option.type).startsWith(QLatin1Char(kind.type)), qPrintable(kind.key));
        QCOMPARE(option.choices, kind.choices);
        QCOMPARE(option.maximum, kind.maximum);
        QCOMPARE(option.minimum, 0);
        QCOMPARE(option.isOption, i < kinds.size() - 5);
    }
}

void tst_OptionTable::theKeysOfADescriptorAreFixed()
{
    using namespace InfoKey;
    const QLatin1String keys[] = {id,    name, version, category,  summary,
                                  label, help, target,  supported, unsupported};
    QStringList texts;
    for (const QLatin1String key : keys)
        texts.append(key);
    QCOMPARE(texts.join(u' '),
             QStringLiteral("ipcore.id ipcore.name ipcore.version ipcore.category "
                            "ipcore.doc.summary ipcore.label ipcore.doc.help ipcore.target "
                            "ipcore.device.supported ipcore.device.unsupported"));
}

void tst_OptionTable::defaultsAreThoseOfGeneration_data()
{
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("Number of Interrupts") << QVariant(32);
    QTest::newRow("OS Extension") << QVariant(true);
    QTest::newRow("Enable Debug") << QVariant(true);
    QTest::newRow("Debug Port Select") << QVariant(QStringLiteral("JTAG and Serial Wire"));
    QTest::newRow("Internal_Instruction_Memory") << QVariant(true);
    QTest::newRow("Internal_Data_Memory") << QVariant(true);
    QTest::newRow("Enabel GPIO IO") << QVariant(false);
    QTest::newRow("Enable I2C IO") << QVariant(false);
    QTest::newRow("CAN_BUFFER_DEPTH") << QVariant(QString());
    QTest::newRow("ETHERNET_INTERFACE") << QVariant(QStringLiteral("RGMII"));
    QTest::newRow("ETHERNET_INPUT_DELAY") << QVariant(0);
    QTest::newRow("ETHERNET_CLOCK_DIVIDER") << QVariant(0);
    QTest::newRow("ITCM_Size") << QVariant();
}

void tst_OptionTable::defaultsAreThoseOfGeneration()
{
    QFETCH(QVariant, expected);
    const Option *option = findOption(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(option);
    QCOMPARE(option->defaultValue, expected);
}

void tst_OptionTable::findsTheNearestKey_data()
{
    QTest::addColumn<QString>("nearest");
    QTest::newRow("Enable GPIO IO") << QStringLiteral("Enabel GPIO IO");
    QTest::newRow("enable uart1") << QStringLiteral("Enable UART1");
    QTest::newRow("Enable_AHB_Master7") << QStringLiteral("Enable_AHB_Master1");
    QTest::newRow("DTCM Size") << QStringLiteral("DTCM_Size");
    QTest::newRow("DTCM_SXYZ") << QStringLiteral("DTCM_Size"); // a third of it
    QTest::newRow("DTCM_WXYZ") << QString();
    QTest::newRow("TCM_Size") << QStringLiteral("ITCM_Size"); // the first of two
    QTest::newRow("something else entirely") << QString();
    QTest::newRow("") << QString();
}

void tst_OptionTable::findsTheNearestKey()
{
    QFETCH(QString, nearest);
    QCOMPARE(nearestOptionKey(QString::fromLatin1(QTest::currentDataTag())), nearest);
}

void tst_OptionTable::readsTexts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const QString boolean = QStringLiteral("Enable RTC");
    const QString number = QStringLiteral("ITCM_Size");
    QTest::newRow("true") << boolean << QStringLiteral("true") << QVariant(true);
    QTest::newRow("False") << boolean << QStringLiteral("False") << QVariant(false);
    QTest::newRow("1") << boolean << QStringLiteral("1") << QVariant(true);
    QTest::newRow("0") << boolean << QStringLiteral("0") << QVariant(false);
    QTest::newRow("yes") << boolean << QStringLiteral("yes") << QVariant();
    QTest::newRow("empty bool") << boolean << QString() << QVariant();
    QTest::newRow("number") << number << QStringLiteral("7") << QVariant(7);
    QTest::newRow("negative") << number << QStringLiteral("-1") << QVariant(-1);
    QTest::newRow("overflow") << number << QStringLiteral("99999999999") << QVariant();
    QTest::newRow("fraction") << number << QStringLiteral("1.5") << QVariant();
    QTest::newRow("text") << QStringLiteral("CAN_BUFFER_DEPTH") << QStringLiteral("64")
                          << QVariant(QStringLiteral("64"));
}

void tst_OptionTable::readsTexts()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    const QVariant read = optionValueFromText(*findOption(key), text);
    QCOMPARE(read, value);
    QCOMPARE(read.type(), value.type());
}

void tst_OptionTable::domains_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("inside");
    QTest::newRow("16 interrupts")
        << QStringLiteral("Number of Interrupts") << QVariant(16) << true;
    QTest::newRow("4 interrupts") << QStringLiteral("Number of Interrupts") << QVariant(4) << false;
    QTest::newRow("size 9") << QStringLiteral("DTCM_Size") << QVariant(9) << true;
    QTest::newRow("size 10") << QStringLiteral("DTCM_Size") << QVariant(10) << false;
    QTest::newRow("size -1") << QStringLiteral("DTCM_Size") << QVariant(-1) << false;
    QTest::newRow("depth 16") << QStringLiteral("CAN_BUFFER_DEPTH")
                              << QVariant(QStringLiteral("16")) << true;
    QTest::newRow("depth 65536") << QStringLiteral("CAN_BUFFER_DEPTH")
                                 << QVariant(QStringLiteral("65536")) << true;
    QTest::newRow("depth 100") << QStringLiteral("CAN_BUFFER_DEPTH")
                               << QVariant(QStringLiteral("100")) << false;
    QTest::newRow("interface") << QStringLiteral("ETHERNET_INTERFACE")
                               << QVariant(QStringLiteral("GMII/MII")) << true;
    QTest::newRow("interface in lower case")
        << QStringLiteral("ETHERNET_INTERFACE") << QVariant(QStringLiteral("mii")) << false;
    QTest::newRow("any path") << QStringLiteral("ITCM_Initialization_Path")
                              << QVariant(QStringLiteral("a b")) << true;
}

void tst_OptionTable::domains()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QTEST(isInDomain(*findOption(key), value), "inside");
}

TARVO_TEST_MAIN(QCoreApplication, tst_OptionTable)

#include "tst_optiontable.moc"
