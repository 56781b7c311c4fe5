#include "blockhands.h"
#include "testsupport.h"

#include <config/optionkeys.h>

#include <QSignalSpy>

using namespace TARVOORIXM1;
namespace Pins = Expected::Pins;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The value of a key, with its type: "bool true".
QString typed(const OptionMap &map, const char *key)
{
    const QVariant value = map.value(text(key));
    return value.isValid() ? QString(text(value.typeName()) + u' ' + value.toString()) : QString();
}

OptionMap onDevice(const char *device)
{
    return {{Key::ipDevice, text(device)}};
}

} // namespace

class tst_PeripheralDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshMapOpensOffAndGetsTheKeys_data();
    void aFreshMapOpensOffAndGetsTheKeys();
    void cancellingLeavesTheMap_data();
    void cancellingLeavesTheMap();
    void storedSwitchesAreShown_data();
    void storedSwitchesAreShown();
    void otherTypesReadAsBool_data();
    void otherTypesReadAsBool();
    void spiFlashShowsItsPinsAndTakesThemAway();
    void singleSwitchesRefreshWithoutAClick_data();
    void singleSwitchesRefreshWithoutAClick();
    void someBlocksNeverShowPins_data();
    void someBlocksNeverShowPins();
    void onlySomeBlocksRefreshAtAll();
    void sdCardWritesItsOddKey();

    void gpioStartsBidirectionalAndOff();
    void gpioCanBeSplit();
    void gpioKeepsItsTypeWhileItIsOff();
    void onlyAClickUnlocksTheInterfaceType_data();
    void onlyAClickUnlocksTheInterfaceType();
    void i2cCanBeSplit();
    void oneUartIsEnough();
    void timersAreIndependent();

    void canStartsOffWithItsDefaultDepth();
    void canRowFollowsClicksOnly();
    void canUnknownDepthBecomesEmpty_data();
    void canUnknownDepthBecomesEmpty();
    void canDepthIsStoredThoughOff();

    void ethernetStartsWithItsDefaults();
    void ethernetDelayBelongsToRgmii();
    void ethernetShowsThePinsOfEachInterface();
    void ethernetOptionsFollowTheSwitch();
    void ethernetDelayReopensCutOff_data();
    void ethernetDelayReopensCutOff();
    void ethernetRangesFollowTheDevice_data();
    void ethernetRangesFollowTheDevice();
    void ethernetUnknownInterfaceBecomesEmpty_data();
    void ethernetUnknownInterfaceBecomesEmpty();
    void ethernetStoresEverythingThoughOff();

    void ahbPortsShowInOrder();
    void ahbFigureFollowsClicksOnly();
    void allApbPortsShow();
    void apbFigureFollowsEveryChange();

    void ddr3ShowsTheCommonPins();
    void ddr3HasAStopSignal_data();
    void ddr3HasAStopSignal();
    void ddr3FigureFollowsClicksOnly();
    void ddr3StaysLockedAndStale_data();
    void ddr3StaysLockedAndStale();
    void ddr3LocksExactNamesOnly_data();
    void ddr3LocksExactNamesOnly();

private:
    void eachDialog()
    {
        QTest::addColumn<QString>("dialog");
        for (const Expected::Block &expected : Expected::blocks())
            QTest::newRow(expected.dialog) << text(expected.dialog);
    }
};

void tst_PeripheralDialogs::aFreshMapOpensOffAndGetsTheKeys_data()
{
    eachDialog();
}

void tst_PeripheralDialogs::aFreshMapOpensOffAndGetsTheKeys()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map;
    const Hands hands(expected.dialog, &map);
    for (const Expected::Switch &entry : expected.switches)
        QCOMPARE(hands.isOn(entry.objectName), entry.byDefault);
    QVERIFY(hands.pins().isEmpty());
    hands.ok();
    QCOMPARE(hands->result(), int(QDialog::Accepted));
    QVERIFY(hands->isHidden());
    OptionMap written;
    for (const Expected::Switch &entry : expected.switches)
        written.insert(text(entry.key), entry.byDefault);
    if (dialog == QLatin1String("CANDlg"))
        written.insert(text("CAN_BUFFER_DEPTH"), text("256"));
    if (dialog == QLatin1String("EthernetDlg")) {
        written.insert(text("ETHERNET_INTERFACE"), text("RGMII"));
        written.insert(text("ETHERNET_INPUT_DELAY"), 100);
        written.insert(text("ETHERNET_CLOCK_DIVIDER"), 20);
    }
    QCOMPARE(map, written);
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        QCOMPARE(it.value().type(), written.value(it.key()).type());
}

void tst_PeripheralDialogs::cancellingLeavesTheMap_data()
{
    eachDialog();
}

void tst_PeripheralDialogs::cancellingLeavesTheMap()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map = {{text("other"), 7}};
    for (const bool byButton : {true, false}) {
        const Hands hands(expected.dialog, &map);
        for (const Expected::Switch &entry : expected.switches)
            hands.click(entry.objectName);
        QVERIFY(hands.isOn(expected.switches.front().objectName));
        if (byButton)
            hands.cancel();
        else
            hands->close();
        QCOMPARE(hands->result(), int(QDialog::Rejected));
        QCOMPARE(map, OptionMap({{text("other"), 7}}));
    }
}

void tst_PeripheralDialogs::storedSwitchesAreShown_data()
{
    eachDialog();
}

// One switch against its default at a time; accepting changes nothing then.
void tst_PeripheralDialogs::storedSwitchesAreShown()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    for (const Expected::Switch &changed : expected.switches) {
        OptionMap map = {{text(changed.key), !changed.byDefault}};
        const Hands hands(expected.dialog, &map);
        for (const Expected::Switch &entry : expected.switches)
            QCOMPARE(hands.isOn(entry.objectName), entry.byDefault != (&entry == &changed));
        hands.ok();
        for (const Expected::Switch &entry : expected.switches)
            QCOMPARE(map.value(text(entry.key)), QVariant(entry.byDefault != (&entry == &changed)));
    }
}

void tst_PeripheralDialogs::otherTypesReadAsBool_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("on");
    QTest::newRow("true as text") << QVariant(text("true")) << true;
    QTest::newRow("1 as text") << QVariant(text("1")) << true;
    QTest::newRow("any text") << QVariant(text("no")) << true;
    QTest::newRow("false as text") << QVariant(text("false")) << false;
    QTest::newRow("0 as text") << QVariant(text("0")) << false;
    QTest::newRow("empty text") << QVariant(text("")) << false;
    QTest::newRow("a number") << QVariant(3) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("no value") << QVariant() << false;
}

void tst_PeripheralDialogs::otherTypesReadAsBool()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, on);
    for (const Expected::Block &expected : Expected::blocks()) {
        OptionMap map;
        for (const Expected::Switch &entry : expected.switches)
            map.insert(text(entry.key), stored);
        const Hands hands(expected.dialog, &map);
        for (const Expected::Switch &entry : expected.switches)
            QCOMPARE(hands.isOn(entry.objectName), on);
        hands.ok();
        for (const Expected::Switch &entry : expected.switches)
            QCOMPARE(typed(map, entry.key), on ? text("bool true") : text("bool false"));
    }
}

void tst_PeripheralDialogs::spiFlashShowsItsPinsAndTakesThemAway()
{
    OptionMap map;
    const Hands hands("SPIFlashDlg", &map);
    for (int i = 0; i < 3; ++i) {
        hands.click("enableSpiFlashCheckBox");
        QCOMPARE(hands.pins(), Expected::pins(Pins::spiFlash));
        hands.click("enableSpiFlashCheckBox");
        QCOMPARE(hands.pins(), QStringList());
    }
    QVERIFY(hands->isVisible());
}

void tst_PeripheralDialogs::singleSwitchesRefreshWithoutAClick_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QStringList>("pins");
    for (const Expected::Block &expected : Expected::blocks()) {
        if (*expected.pins && qstrcmp(expected.redraws, "toggled(bool)") == 0)
            QTest::newRow(expected.title) << text(expected.dialog) << Expected::pins(expected.pins);
    }
}

void tst_PeripheralDialogs::singleSwitchesRefreshWithoutAClick()
{
    QFETCH(QString, dialog);
    QFETCH(QStringList, pins);
    const char *name = Expected::block(dialog.toLatin1()).switches.front().objectName;
    OptionMap map;
    const Hands hands(dialog.toLatin1(), &map);
    hands.box(name)->setChecked(true);
    QCOMPARE(hands.pins(), pins);
    hands.box(name)->setChecked(false);
    QVERIFY(hands.pins().isEmpty());
    hands.click(name);
    QCOMPARE(hands.pins(), pins);
    hands.ok();
    const Hands again(dialog.toLatin1(), &map);
    QCOMPARE(again.pins(), pins);
}

void tst_PeripheralDialogs::someBlocksNeverShowPins_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::newRow("WatchDog") << text("WatchDogDlg");
    QTest::newRow("TRNG") << text("TrngDlg");
    QTest::newRow("DualTimer") << text("DualTimerDlg");
}

void tst_PeripheralDialogs::someBlocksNeverShowPins()
{
    QFETCH(QString, dialog);
    const Expected::Switch &entry = Expected::block(dialog.toLatin1()).switches.front();
    OptionMap map;
    for (int i = 0; i < 2; ++i) {
        const Hands hands(dialog.toLatin1(), &map);
        QVERIFY(hands.pins().isEmpty());
        hands.click(entry.objectName);
        QVERIFY(hands.pins().isEmpty());
        hands.ok();
        QCOMPARE(map.value(text(entry.key)), QVariant(i == 0));
    }
}

// TRNG and DualTimer connect nothing; the others connect the one signal that refreshes them.
void tst_PeripheralDialogs::onlySomeBlocksRefreshAtAll()
{
    struct Access : QObject {
        static bool has(const QObject *sender, const char *name)
        {
            const QMetaObject *meta = sender->metaObject();
            const int index = meta->indexOfSignal(name);
            return (sender->*&Access::isSignalConnected)(meta->method(index));
        }
    };
    for (const Expected::Block &expected : Expected::blocks()) {
        OptionMap map;
        const Hands hands(expected.dialog, &map);
        const QByteArray used = expected.redraws;
        for (const QCheckBox *box : hands->findChildren<QCheckBox *>()) {
            QVERIFY2(Access::has(box, "toggled(bool)") == (used == "toggled(bool)"),
                     expected.dialog);
            if (used == "clicked(bool)" || used.isEmpty())
                QVERIFY2(Access::has(box, "clicked(bool)") == !used.isEmpty(), expected.dialog);
        }
    }
}

void tst_PeripheralDialogs::sdCardWritesItsOddKey()
{
    OptionMap map;
    const Hands hands("SDCardDlg", &map);
    hands.click("enableSDCardCheckBox");
    hands.ok();
    QCOMPARE(map, OptionMap({{text("Enable SDCARD"), true}}));
}

void tst_PeripheralDialogs::gpioStartsBidirectionalAndOff()
{
    OptionMap map;
    const Hands hands("GPIODlg", &map);
    QVERIFY(!hands.isOn("enableGpioCheckBox"));
    QVERIFY(hands.isOn("enableGpioIOCheckBox"));
    QVERIFY(!hands.isUsable("enableGpioIOCheckBox"));
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableGpioIOCheckBox"); // greyed out
    QVERIFY(hands.isOn("enableGpioIOCheckBox"));
    hands.click("enableGpioCheckBox");
    QVERIFY(hands.isUsable("enableGpioIOCheckBox"));
    QCOMPARE(hands.pins(), Expected::pins(Pins::gpioInout));
}

void tst_PeripheralDialogs::gpioCanBeSplit()
{
    OptionMap map = {{Key::enableGpio, true}};
    const Hands hands("GPIODlg", &map);
    QCOMPARE(hands.pins(), Expected::pins(Pins::gpioInout));
    hands.click("enableGpioIOCheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::gpioSplit));
    hands.ok();
    QCOMPARE(map, OptionMap({{text("Enable GPIO"), true}, {text("Enabel GPIO IO"), false}}));
}

void tst_PeripheralDialogs::gpioKeepsItsTypeWhileItIsOff()
{
    for (const bool bidirectional : {true, false}) {
        OptionMap map = {{Key::enableGpio, true}, {Key::enableGpioIo, bidirectional}};
        const Hands hands("GPIODlg", &map);
        QVERIFY(hands.isUsable("enableGpioIOCheckBox"));
        hands.click("enableGpioCheckBox");
        QVERIFY(!hands.isUsable("enableGpioIOCheckBox"));
        QCOMPARE(hands.isOn("enableGpioIOCheckBox"), bidirectional);
        QVERIFY(hands.pins().isEmpty());
        hands.ok();
        QCOMPARE(typed(map, "Enable GPIO"), text("bool false"));
        QCOMPARE(map.value(text("Enabel GPIO IO")), QVariant(bidirectional));
    }
}

void tst_PeripheralDialogs::onlyAClickUnlocksTheInterfaceType_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::newRow("GPIO") << text("GPIODlg");
    QTest::newRow("I2C") << text("I2CDlg");
}

void tst_PeripheralDialogs::onlyAClickUnlocksTheInterfaceType()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    const char *enable = expected.switches.at(0).objectName;
    const char *type = expected.switches.at(1).objectName;
    OptionMap map;
    const Hands hands(expected.dialog, &map);
    hands.box(enable)->setChecked(true);
    QVERIFY(!hands.pins().isEmpty()); // the figure follows all the same
    QVERIFY(!hands.isUsable(type));
    hands.click(enable);
    hands.click(enable);
    QVERIFY(hands.isUsable(type));
    hands.box(enable)->setChecked(false);
    QVERIFY(hands.isUsable(type));
}

void tst_PeripheralDialogs::i2cCanBeSplit()
{
    OptionMap map;
    const Hands hands("I2CDlg", &map);
    QVERIFY(hands.isOn("enableI2CIOCheckBox"));
    QVERIFY(!hands.isUsable("enableI2CIOCheckBox"));
    hands.click("enableI2CCheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::i2cInout));
    hands.click("enableI2CIOCheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::i2cSplit));
    hands.click("enableI2CCheckBox");
    QVERIFY(hands.pins().isEmpty());
    hands.ok();
    QCOMPARE(map, OptionMap({{text("Enable I2C"), false}, {text("Enable I2C IO"), false}}));
}

void tst_PeripheralDialogs::oneUartIsEnough()
{
    OptionMap map;
    const Hands hands("UartDlg", &map);
    hands.click("enableUart1CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::uart1));
    hands.click("enableUart0CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::uart0) + Expected::pins(Pins::uart1));
    hands.click("enableUart1CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::uart0));
    hands.ok();
    QCOMPARE(map, OptionMap({{text("Enable UART0"), true}, {text("Enable UART1"), false}}));
}

void tst_PeripheralDialogs::timersAreIndependent()
{
    OptionMap map = {{Key::enableTimer1, true}};
    const Hands hands("TimerDlg", &map);
    QCOMPARE(hands.pins(), Expected::pins(Pins::timer1));
    hands.box("enableTimer0CheckBox")->setChecked(true);
    QCOMPARE(hands.pins(), Expected::pins(Pins::timer0) + Expected::pins(Pins::timer1));
}

void tst_PeripheralDialogs::canStartsOffWithItsDefaultDepth()
{
    OptionMap map;
    const Hands hands("CANDlg", &map);
    QVERIFY(!hands.isOn("enableCanCheckBox"));
    QVERIFY(!hands.isUsable("bufferDepthWgt"));
    QCOMPARE(hands.combo("bufferDepthComboBox")->currentText(), text("256"));
    QCOMPARE(hands.combo("bufferDepthComboBox")->currentIndex(), 4);
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableCanCheckBox");
    QVERIFY(hands.isUsable("bufferDepthWgt"));
    QCOMPARE(hands.pins(), Expected::pins(Pins::can));
    hands.select(hands.combo("bufferDepthComboBox"), 12);
    hands.ok();
    QCOMPARE(typed(map, "Enable CAN"), text("bool true"));
    QCOMPARE(typed(map, "CAN_BUFFER_DEPTH"), text("QString 65536"));
}

void tst_PeripheralDialogs::canRowFollowsClicksOnly()
{
    OptionMap map;
    const Hands hands("CANDlg", &map);
    hands.box("enableCanCheckBox")->setChecked(true);
    QVERIFY(!hands.isUsable("bufferDepthWgt"));
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableCanCheckBox");
    hands.click("enableCanCheckBox");
    QVERIFY(hands.isUsable("bufferDepthWgt"));
    QCOMPARE(hands.pins(), Expected::pins(Pins::can));
    hands.box("enableCanCheckBox")->setChecked(false);
    QVERIFY(hands.isUsable("bufferDepthWgt"));
    QCOMPARE(hands.pins(), Expected::pins(Pins::can));
}

void tst_PeripheralDialogs::canUnknownDepthBecomesEmpty_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("between two") << QVariant(text("100"));
    QTest::newRow("empty") << QVariant(text(""));
    QTest::newRow("with a blank") << QVariant(text("256 "));
    QTest::newRow("a pattern") << QVariant(text("2*"));
    QTest::newRow("a beginning") << QVariant(text("10"));
    QTest::newRow("a list") << QVariant(QStringList{text("256"), text("512")});
}

void tst_PeripheralDialogs::canUnknownDepthBecomesEmpty()
{
    QFETCH(QVariant, stored);
    OptionMap map = {{Key::enableCan, true}, {Key::canBufferDepth, stored}};
    const Hands hands("CANDlg", &map);
    QCOMPARE(hands.combo("bufferDepthComboBox")->currentIndex(), -1);
    QVERIFY(hands.isUsable("bufferDepthWgt"));
    hands.ok();
    QCOMPARE(typed(map, "CAN_BUFFER_DEPTH"), text("QString "));
}

void tst_PeripheralDialogs::canDepthIsStoredThoughOff()
{
    OptionMap map = {{Key::enableCan, true}, {Key::canBufferDepth, 1024}}; // a number reads as text
    const Hands hands("CANDlg", &map);
    QCOMPARE(hands.combo("bufferDepthComboBox")->currentText(), text("1024"));
    hands.select(hands.combo("bufferDepthComboBox"), 2);
    hands.click("enableCanCheckBox");
    QVERIFY(!hands.isUsable("bufferDepthComboBox"));
    hands.ok();
    QCOMPARE(map, OptionMap({{text("Enable CAN"), false}, {text("CAN_BUFFER_DEPTH"), text("64")}}));
}

void tst_PeripheralDialogs::ethernetStartsWithItsDefaults()
{
    OptionMap map = onDevice("TV2KR-18C");
    const Hands hands("EthernetDlg", &map);
    QVERIFY(!hands.isOn("enableEthernetCheckBox"));
    QVERIFY(!hands.isUsable("optionsWgt"));
    QCOMPARE(hands.combo("interfaceComboBox")->currentText(), text("RGMII"));
    QCOMPARE(hands.spin("inputDelaySpinBox")->value(), 100);
    QCOMPARE(hands.spin("inputDelaySpinBox")->minimum(), 0);
    QCOMPARE(hands.spin("inputDelaySpinBox")->maximum(), 127);
    QCOMPARE(hands.spin("clockDividerSpinBox")->value(), 20);
    QCOMPARE(hands.spin("clockDividerSpinBox")->minimum(), 0);
    QCOMPARE(hands.spin("clockDividerSpinBox")->maximum(), 255);
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableEthernetCheckBox");
    QVERIFY(hands.isUsable("optionsWgt"));
    QCOMPARE(hands.pins(), Expected::pins(Pins::ethernet) + Expected::pins(Pins::rgmii));
}

void tst_PeripheralDialogs::ethernetDelayBelongsToRgmii()
{
    OptionMap map = {{Key::enableEthernet, true}};
    const Hands hands("EthernetDlg", &map);
    QVERIFY(hands.isUsable("inputDelaySpinBox"));
    QVERIFY(hands.pins().contains(text("GTX_CLK<")));
    hands.select(hands.combo("interfaceComboBox"), 2);
    QCOMPARE(hands.combo("interfaceComboBox")->currentText(), text("MII"));
    QVERIFY(!hands.isUsable("inputDelaySpinBox"));
    QVERIFY(!hands.pins().contains(text("GTX_CLK<")));
    hands.select(hands.combo("interfaceComboBox"), 0);
    QVERIFY(hands.isUsable("inputDelaySpinBox"));
    QVERIFY(hands.pins().contains(text("GTX_CLK<")));
}

void tst_PeripheralDialogs::ethernetShowsThePinsOfEachInterface()
{
    OptionMap map = {{Key::enableEthernet, true}};
    const Hands hands("EthernetDlg", &map);
    const std::vector<std::vector<const char *>> expected = {
        {Pins::rgmii}, {Pins::gmii}, {Pins::mii}, {Pins::gmii, Pins::mii}};
    for (int i = 0; i < 4; ++i) {
        hands.select(hands.combo("interfaceComboBox"), i);
        QStringList pins = Expected::pins(Pins::ethernet);
        for (const char *list : expected.at(size_t(i)))
            pins += Expected::pins(list);
        QCOMPARE(hands.pins(), pins);
        QCOMPARE(hands.spin("inputDelaySpinBox")->isEnabled(), i == 0);
    }
}

void tst_PeripheralDialogs::ethernetOptionsFollowTheSwitch()
{
    OptionMap map;
    const Hands hands("EthernetDlg", &map);
    hands.box("enableEthernetCheckBox")->setChecked(true); // no click is needed
    QVERIFY(hands.isUsable("optionsWgt"));
    QVERIFY(!hands.pins().isEmpty());
    hands.box("enableEthernetCheckBox")->setChecked(false);
    QVERIFY(!hands.isUsable("optionsWgt"));
    QVERIFY(hands.pins().isEmpty());
}

void tst_PeripheralDialogs::ethernetDelayReopensCutOff_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("typed");
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("reopened");
    QTest::newRow("TV5K") << text("TV5KT-138B") << 200 << 200 << 127;
    QTest::newRow("TV3K") << text("TV3K-20A") << 255 << 255 << 127;
    QTest::newRow("TV3K, small") << text("TV3K-20A") << 127 << 127 << 127;
    QTest::newRow("TV5K, smaller") << text("TV5K-25A") << 60 << 60 << 60;
}

void tst_PeripheralDialogs::ethernetDelayReopensCutOff()
{
    QFETCH(QString, device);
    QFETCH(int, typed);
    OptionMap map = {{Key::ipDevice, device}, {Key::enableEthernet, true}};
    {
        const Hands hands("EthernetDlg", &map);
        hands.type(hands.spin("inputDelaySpinBox"), QString::number(typed));
        hands.ok();
        QTEST(map.value(Key::ethernetInputDelay).toInt(), "stored");
    }
    const Hands again("EthernetDlg", &map);
    QTEST(again.spin("inputDelaySpinBox")->value(), "reopened");
    QCOMPARE(again.spin("inputDelaySpinBox")->maximum(), 255);
    again.ok();
    QTEST(map.value(Key::ethernetInputDelay).toInt(), "reopened");
    QCOMPARE(map.value(Key::ethernetInputDelay).type(), QVariant::Int);
}

void tst_PeripheralDialogs::ethernetRangesFollowTheDevice_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("largest");
    QTest::newRow("TV5K") << text("TV5KST-138B") << 255;
    QTest::newRow("TV3K") << text("TV3KR-20A") << 255;
    QTest::newRow("the family alone") << text("TV5K") << 255;
    QTest::newRow("TV2K") << text("TV2K-55") << 127;
    QTest::newRow("TV1L") << text("TV1L-9") << 127;
    QTest::newRow("small letters") << text("tv5k-25a") << 127;
    QTest::newRow("not at the beginning") << text("XTV5K-25A") << 127;
    QTest::newRow("none") << QString() << 127;
}

void tst_PeripheralDialogs::ethernetRangesFollowTheDevice()
{
    QFETCH(QString, device);
    OptionMap map = {
        {Key::ipDevice, device}, {Key::ethernetInputDelay, -4}, {Key::ethernetClockDivider, 300}};
    const Hands hands("EthernetDlg", &map);
    QTEST(hands.spin("inputDelaySpinBox")->maximum(), "largest");
    QCOMPARE(hands.spin("inputDelaySpinBox")->value(), 0);
    QCOMPARE(hands.spin("clockDividerSpinBox")->value(), 255);
    QCOMPARE(hands.spin("clockDividerSpinBox")->maximum(), 255);
}

void tst_PeripheralDialogs::ethernetUnknownInterfaceBecomesEmpty_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("another one") << text("SGMII");
    QTest::newRow("small letters") << text("rgmii");
    QTest::newRow("with a blank") << text("MII ");
    QTest::newRow("empty") << text("");
}

void tst_PeripheralDialogs::ethernetUnknownInterfaceBecomesEmpty()
{
    QFETCH(QString, stored);
    OptionMap map = {{Key::enableEthernet, true}, {Key::ethernetInterface, stored}};
    const Hands hands("EthernetDlg", &map);
    QCOMPARE(hands.combo("interfaceComboBox")->currentIndex(), -1);
    QVERIFY(!hands.spin("inputDelaySpinBox")->isEnabled());
    QCOMPARE(hands.pins(), Expected::pins(Pins::ethernet));
    hands.ok();
    QCOMPARE(typed(map, "ETHERNET_INTERFACE"), text("QString "));
}

void tst_PeripheralDialogs::ethernetStoresEverythingThoughOff()
{
    OptionMap map = {{Key::enableEthernet, text("true")},
                     {Key::ethernetInterface, text("GMII")},
                     {Key::ethernetInputDelay, text("5")},
                     {Key::ethernetClockDivider, text("6")}};
    const Hands hands("EthernetDlg", &map);
    hands.type(hands.spin("clockDividerSpinBox"), text("77"));
    hands.click("enableEthernetCheckBox");
    hands.ok();
    QCOMPARE(typed(map, "Enable Ethernet"), text("bool false"));
    QCOMPARE(typed(map, "ETHERNET_INTERFACE"), text("QString GMII"));
    QCOMPARE(typed(map, "ETHERNET_INPUT_DELAY"), text("int 5"));
    QCOMPARE(typed(map, "ETHERNET_CLOCK_DIVIDER"), text("int 77"));
    QCOMPARE(map.size(), 4);
}

void tst_PeripheralDialogs::ahbPortsShowInOrder()
{
    OptionMap map;
    const Hands hands("AHB2ExtensionDlg", &map);
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableAhbMaster5CheckBox");
    hands.click("enableAhbMaster2CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::ahbPort, 2) + Expected::pins(Pins::ahbPort, 5));
    QCOMPARE(hands.pins().size(), 32);
    QCOMPARE(hands.pins().at(0), text("AHB2HRDATA[31:0]<"));
    QCOMPARE(hands.pins().at(16), text("AHB5HRDATA[31:0]<"));
    hands.ok();
    QCOMPARE(map.size(), 6);
    for (int port = 1; port <= 6; ++port)
        QCOMPARE(map.value(QStringLiteral("Enable_AHB_Master%1").arg(port)),
                 QVariant(port == 2 || port == 5));
}

void tst_PeripheralDialogs::ahbFigureFollowsClicksOnly()
{
    OptionMap map;
    const Hands hands("AHB2ExtensionDlg", &map);
    hands.box("enableAhbMaster3CheckBox")->setChecked(true);
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableAhbMaster1CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::ahbPort, 1) + Expected::pins(Pins::ahbPort, 3));
}

void tst_PeripheralDialogs::allApbPortsShow()
{
    OptionMap map;
    const Hands hands("APB2ExtensionDlg", &map);
    QStringList expected;
    for (int port = 1; port <= 16; ++port) {
        QCheckBox *box =
            hands->findChild<QCheckBox *>(QStringLiteral("enableAPBMaster%1CheckBox").arg(port));
        QTest::keyClick(box, Qt::Key_Space);
        QVERIFY(box->isChecked());
        expected += Expected::pins(Pins::apbPort, port);
    }
    QCOMPARE(hands.pins(), expected);
    QCOMPARE(hands->figurePins().size(), 192);
    hands.ok();
    QCOMPARE(map.size(), 16);
    QVERIFY(!map.values().contains(false));
}

void tst_PeripheralDialogs::apbFigureFollowsEveryChange()
{
    OptionMap map = {{text("Enable_APB_Master16"), true}};
    const Hands hands("APB2ExtensionDlg", &map);
    QCOMPARE(hands.pins(), Expected::pins(Pins::apbPort, 16));
    hands.box("enableAPBMaster9CheckBox")->setChecked(true);
    QCOMPARE(hands.pins(), Expected::pins(Pins::apbPort, 9) + Expected::pins(Pins::apbPort, 16));
}

void tst_PeripheralDialogs::ddr3ShowsTheCommonPins()
{
    OptionMap map = onDevice("TV2K-18");
    const Hands hands("DDR3Dlg", &map);
    QVERIFY(!hands.isOn("enableDDR3CheckBox"));
    QVERIFY(hands.pins().isEmpty());
    hands.click("enableDDR3CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::ddr3));
    QCOMPARE(hands.pins().size(), 20);
    hands.ok();
    QCOMPARE(typed(map, "Enable DDR3"), text("bool true"));
}

void tst_PeripheralDialogs::ddr3HasAStopSignal_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("TV5K") << text("TV5KT-60B");
    QTest::newRow("TV3K") << text("TV3K-50A");
}

void tst_PeripheralDialogs::ddr3HasAStopSignal()
{
    QFETCH(QString, device);
    OptionMap map = {{Key::ipDevice, device}};
    const Hands hands("DDR3Dlg", &map);
    hands.click("enableDDR3CheckBox");
    QCOMPARE(hands.pins(), Expected::pins(Pins::ddr3Stop) + Expected::pins(Pins::ddr3));
}

void tst_PeripheralDialogs::ddr3FigureFollowsClicksOnly()
{
    OptionMap map = {{Key::enableDdr3, true}};
    const Hands hands("DDR3Dlg", &map);
    hands.box("enableDDR3CheckBox")->setChecked(false);
    QCOMPARE(hands.pins(), Expected::pins(Pins::ddr3));
    hands.click("enableDDR3CheckBox");
    hands.click("enableDDR3CheckBox");
    QVERIFY(hands.pins().isEmpty());
}

void tst_PeripheralDialogs::ddr3StaysLockedAndStale_data()
{
    QTest::addColumn<QString>("device");
    for (const char *device : {"TV1L-9", "TV1L-9C", "TV1LR-9", "TV1LR-9C"})
        QTest::newRow(device) << text(device);
}

void tst_PeripheralDialogs::ddr3StaysLockedAndStale()
{
    QFETCH(QString, device);
    OptionMap map = {{Key::ipDevice, device}, {Key::enableDdr3, true}};
    {
        const Hands hands("DDR3Dlg", &map);
        QVERIFY(!hands.isOn("enableDDR3CheckBox"));
        QVERIFY(!hands.isUsable("enableDDR3CheckBox"));
        QCOMPARE(hands.pins(), Expected::pins(Pins::ddr3));
        hands.click("enableDDR3CheckBox");
        QVERIFY(!hands.isOn("enableDDR3CheckBox"));
        QCOMPARE(hands.pins(), Expected::pins(Pins::ddr3));
        hands.ok();
        QCOMPARE(typed(map, "Enable DDR3"), text("bool false"));
    }
    const Hands again("DDR3Dlg", &map);
    QVERIFY(again.pins().isEmpty());
    QVERIFY(!again.isUsable("enableDDR3CheckBox"));
}

void tst_PeripheralDialogs::ddr3LocksExactNamesOnly_data()
{
    QTest::addColumn<QString>("device");
    for (const char *device :
         {"tv1l-9c", "TV1L-9c", "TV1L-9 ", "TV1L", "TV1L-9/TV1L-9C", "", "TV1KL-5A", "TV5KT-15A"})
        QTest::newRow(device[0] ? device : "none") << text(device);
}

void tst_PeripheralDialogs::ddr3LocksExactNamesOnly()
{
    QFETCH(QString, device);
    OptionMap map = {{Key::ipDevice, device}, {Key::enableDdr3, true}};
    const Hands hands("DDR3Dlg", &map);
    QVERIFY(hands.isOn("enableDDR3CheckBox"));
    QVERIFY(hands.isUsable("enableDDR3CheckBox"));
    hands.ok();
    QCOMPARE(typed(map, "Enable DDR3"), text("bool true"));
}

TARVO_TEST_MAIN(QApplication, tst_PeripheralDialogs)
#include "tst_peripheraldialogs.moc"
