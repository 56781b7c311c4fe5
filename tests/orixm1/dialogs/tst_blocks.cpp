#include "blockhands.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <rules/dialogdefaults.h>
#include <rules/pins.h>

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

using namespace TARVOORIXM1;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QStringList labelsOf(const QWidget *form)
{
    QStringList texts;
    for (const QLabel *label : form->findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

QStringList itemsOf(const QComboBox *combo)
{
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items.append(combo->itemText(i));
    return items;
}

const char *const ahbAddresses[] = {"0x80000000", "0x81000000", "0x86000000",
                                    "0x89000000", "0x8A000000", "0x8B000000"};
const char *const apbAddresses[] = {"0x60000000", "0x60100000", "0x60200000", "0x60300000",
                                    "0x60400000", "0x60500000", "0x60600000", "0x60700000",
                                    "0x60800000", "0x60900000", "0x60A00000", "0x60B00000",
                                    "0x60C00000", "0x60D00000", "0x60E00000", "0x60F00000"};

} // namespace

class tst_Blocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTableHasThemAll();
    void everySwitchIsAnOption();
    void dialogsAreMadeByTheirNames();
    void everyDialogShowsItsTexts_data();
    void everyDialogShowsItsTexts();
    void everyFormIsNamed_data();
    void everyFormIsNamed();
    void interfaceTypesAreLabelledBetweenTheBoxes_data();
    void interfaceTypesAreLabelledBetweenTheBoxes();
    void canOffersItsDepths();
    void ethernetOffersItsOptions();
    void portsAreListedWithAddressAndSize_data();
    void portsAreListedWithAddressAndSize();
    void wholeFormsAreSeen_data();
    void wholeFormsAreSeen();
    void figuresFitWithoutScrollBars_data();
    void figuresFitWithoutScrollBars();
    void pinsFollowTheSwitches_data();
    void pinsFollowTheSwitches();
    void portPinsFollowTheirSwitch();

private:
    void eachDialog()
    {
        QTest::addColumn<QString>("dialog");
        for (const Expected::Block &expected : Expected::blocks())
            QTest::newRow(expected.dialog) << text(expected.dialog);
    }
};

void tst_Blocks::theTableHasThemAll()
{
    QCOMPARE(blocks().size(), int(Expected::blocks().size()));
    QCOMPARE(generatedBlocks().size(), blocks().size());
    for (int i = 0; i < blocks().size(); ++i) {
        const Block &row = blocks()[i];
        const Expected::Block &expected = Expected::blocks().at(size_t(i));
        QCOMPARE(QString(row.dialog), text(expected.dialog));
        QCOMPARE(&block(row.dialog), &row);
        QCOMPARE(QString(row.title), text(expected.title));
        QCOMPARE(QString(row.module()), text(expected.module));
        QCOMPARE(QString(row.summary), text(expected.summary));
        QCOMPARE(row.switches.size(), int(expected.switches.size()));
        for (int j = 0; j < row.switches.size(); ++j) {
            QCOMPARE(row.switches[j].key(), text(expected.switches.at(size_t(j)).key));
            QCOMPARE(dialogDefault(row.switches[j].key(), QString()),
                     QVariant(expected.switches.at(size_t(j)).byDefault));
        }
    }
}

void tst_Blocks::everySwitchIsAnOption()
{
    for (const Block &row : blocks()) {
        for (const SwitchRow &entry : row.switches) {
            const Option *option = findOption(entry.key());
            QVERIFY2(option, qPrintable(entry.key()));
            QCOMPARE(option->type, OptionType::Bool);
            QCOMPARE(option->defaultValue, QVariant(false));
        }
        QCOMPARE(row.choiceKey.size() > 0, row.dialog == QLatin1String("EthernetDlg"));
    }
    QCOMPARE(findOption(block(QLatin1String("EthernetDlg")).choiceKey)->choices,
             QStringList({text("RGMII"), text("GMII"), text("MII"), text("GMII/MII")}));
}

void tst_Blocks::dialogsAreMadeByTheirNames()
{
    OptionMap map;
    QWidget parent;
    for (const Block &row : blocks()) {
        const std::unique_ptr<PeripheralDlg> dialog = makeBlockDialog(row.dialog, &map, &parent);
        QVERIFY2(dialog, row.dialog.data());
        QCOMPARE(text(dialog->metaObject()->className()),
                 QString(text("TARVOORIXM1::") + row.dialog));
        QCOMPARE(dialog->parentWidget(), &parent);
        QCOMPARE(dialog->labelText(), QString(row.title));
    }
    QVERIFY(!makeBlockDialog(QLatin1String("CortexM1"), &map));
    QVERIFY(!makeBlockDialog(QLatin1String(), &map));
}

void tst_Blocks::everyDialogShowsItsTexts_data()
{
    eachDialog();
}

void tst_Blocks::everyDialogShowsItsTexts()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map;
    QWidget parent;
    const std::unique_ptr<Expected::Dialog> opened(expected.make(&map, &parent));
    QCOMPARE(opened->parentWidget(), &parent);
    QCOMPARE(text(opened->metaObject()->className()), QString(u"TARVOORIXM1::" + dialog));
    QCOMPARE(opened->windowTitle(), text(expected.title));
    QCOMPARE(opened->labelText(), text(expected.title));
    QCOMPARE(opened->moduleName(), text(expected.module));
    QCOMPARE(opened->summaryText(), text(expected.summary));
    QCOMPARE(opened->tabWidget()->count(), 1);
    QCOMPARE(opened->tabWidget()->tabText(0), text("Options"));
    QVERIFY(opened->metaObject()->indexOfSlot("refreshFigure()") >= 0);

    const QList<QCheckBox *> boxes = opened->findChildren<QCheckBox *>();
    QCOMPARE(boxes.size(), int(expected.switches.size()));
    for (int i = 0; i < boxes.size(); ++i) {
        const Expected::Switch &entry = expected.switches.at(size_t(i));
        QCOMPARE(boxes.at(i)->objectName(), text(entry.objectName));
        QCOMPARE(boxes.at(i)->text(), text(entry.text));
        QCOMPARE(boxes.at(i)->isChecked(), entry.byDefault);
    }
    QVERIFY(opened->figurePins().isEmpty());
    QVERIFY(map.isEmpty()); // opening writes nothing
}

void tst_Blocks::everyFormIsNamed_data()
{
    eachDialog();
}

void tst_Blocks::everyFormIsNamed()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map;
    const Hands hands(expected.dialog, &map);
    const QWidget *form = hands->tabWidget()->widget(0);
    QCOMPARE(form->objectName(), QString(u"TARVOORIXM1__" + text(expected.form)));
    QCOMPARE(form->windowTitle(), text("Form"));
    const auto *area = form->findChild<QScrollArea *>(text("scrollArea"));
    QVERIFY(area);
    QVERIFY(qobject_cast<QVBoxLayout *>(form->layout()));
    QCOMPARE(form->layout()->itemAt(0)->widget(), static_cast<const QWidget *>(area));
    const QList<QGroupBox *> groups = area->widget()->findChildren<QGroupBox *>();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first()->objectName(), text("groupBox"));
    QCOMPARE(groups.first()->title(), text(expected.group));
    for (const Expected::Switch &entry : expected.switches)
        QVERIFY(groups.first()->isAncestorOf(hands.box(entry.objectName)));
}

void tst_Blocks::interfaceTypesAreLabelledBetweenTheBoxes_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::newRow("GPIO") << text("GPIODlg");
    QTest::newRow("I2C") << text("I2CDlg");
}

void tst_Blocks::interfaceTypesAreLabelledBetweenTheBoxes()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map;
    const Hands hands(expected.dialog, &map);
    const QWidget *form = hands->tabWidget()->widget(0);
    QCOMPARE(labelsOf(form), QStringList(text("Interface Type:")));
    const auto place = [form](const QWidget *widget) { return widget->mapTo(form, QPoint()); };
    const QPoint enable = place(hands.box(expected.switches.at(0).objectName));
    const QPoint label = place(form->findChild<QLabel *>());
    const QPoint type = place(hands.box(expected.switches.at(1).objectName));
    QVERIFY(enable.y() < label.y());
    QVERIFY(label.x() < type.x());
    QVERIFY(enable.y() < type.y());
}

void tst_Blocks::canOffersItsDepths()
{
    OptionMap map;
    const Hands hands("CANDlg", &map);
    const QWidget *row = hands.find<QWidget>("bufferDepthWgt");
    QVERIFY(qobject_cast<QHBoxLayout *>(row->layout()));
    QCOMPARE(labelsOf(row), QStringList(text("Buffer Depth:")));
    const QComboBox *depths = hands.combo("bufferDepthComboBox");
    QVERIFY(row->isAncestorOf(depths));
    QCOMPARE(itemsOf(depths).join(u' '),
             text("16 32 64 128 256 512 1024 2048 4096 8192 16384 32768 65536"));
    QCOMPARE(itemsOf(depths), findOption(Key::canBufferDepth)->choices);
    QVERIFY(row->mapTo(hands.operator->(), QPoint()).y() >
            hands.box("enableCanCheckBox")->mapTo(hands.operator->(), QPoint()).y());
}

void tst_Blocks::ethernetOffersItsOptions()
{
    OptionMap map;
    const Hands hands("EthernetDlg", &map);
    const QWidget *options = hands.find<QWidget>("optionsWgt");
    const auto *form = qobject_cast<QFormLayout *>(options->layout());
    QVERIFY(form);
    QCOMPARE(form->rowCount(), 3);
    const char *const labels[] = {"Interface:", "RGMII Input Delay:", "MIIM Clock Divider:"};
    const QWidget *const fields[] = {hands.combo("interfaceComboBox"),
                                     hands.spin("inputDelaySpinBox"),
                                     hands.spin("clockDividerSpinBox")};
    for (int i = 0; i < 3; ++i) {
        const auto *label =
            qobject_cast<QLabel *>(form->itemAt(i, QFormLayout::LabelRole)->widget());
        QCOMPARE(label->text(), text(labels[i]));
        QCOMPARE(static_cast<const QWidget *>(form->itemAt(i, QFormLayout::FieldRole)->widget()),
                 fields[i]);
        QCOMPARE(static_cast<const QWidget *>(label->buddy()), fields[i]);
    }
    QCOMPARE(itemsOf(hands.combo("interfaceComboBox")),
             findOption(Key::ethernetInterface)->choices);
}

void tst_Blocks::portsAreListedWithAddressAndSize_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("bus");
    QTest::addColumn<int>("ports");
    QTest::addColumn<QString>("size");
    QTest::newRow("AHB") << text("AHB2ExtensionDlg") << text("AHB") << 6 << text("16");
    QTest::newRow("APB") << text("APB2ExtensionDlg") << text("APB") << 16 << text("1");
}

void tst_Blocks::portsAreListedWithAddressAndSize()
{
    QFETCH(QString, dialog);
    QFETCH(QString, bus);
    QFETCH(int, ports);
    QFETCH(QString, size);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map;
    const Hands hands(expected.dialog, &map);
    const auto *grid = hands->findChild<QGridLayout *>(text("gridLayout"));
    QVERIFY(grid);
    QCOMPARE(grid->rowCount(), ports + 1);
    const auto textAt = [grid](int row, int column) {
        return qobject_cast<QLabel *>(grid->itemAtPosition(row, column)->widget())->text();
    };
    QCOMPARE(textAt(0, 0), QString(bus + u" Master"));
    QCOMPARE(textAt(0, 1), text("Address"));
    QCOMPARE(textAt(0, 2), text("Size(MB)"));
    for (int port = 1; port <= ports; ++port) {
        QCOMPARE(grid->itemAtPosition(port, 0)->widget()->objectName(),
                 text(expected.switches.at(size_t(port - 1)).objectName));
        QCOMPARE(textAt(port, 1), text((ports == 6 ? ahbAddresses : apbAddresses)[port - 1]));
        QCOMPARE(textAt(port, 2), size);
    }
}

void tst_Blocks::wholeFormsAreSeen_data()
{
    eachDialog();
}

// In the size that a dialog asks for, the options need no scroll bar.
void tst_Blocks::wholeFormsAreSeen()
{
    QFETCH(QString, dialog);
    OptionMap map;
    const std::unique_ptr<Expected::Dialog> opened(
        Expected::block(dialog.toLatin1()).make(&map, nullptr));
    opened->resize(opened->sizeHint()); // the test's screen may be smaller
    opened->show();
    QVERIFY(QTest::qWaitForWindowExposed(opened.get()));
    const auto *area = opened->findChild<QScrollArea *>();
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    for (const QWidget *widget : area->widget()->findChildren<QWidget *>()) {
        if (!qobject_cast<const QLabel *>(widget) && !qobject_cast<const QCheckBox *>(widget))
            continue;
        QVERIFY2(widget->width() >= widget->sizeHint().width(), qPrintable(widget->objectName()));
        QVERIFY2(widget->height() >= widget->minimumSizeHint().height(),
                 qPrintable(widget->objectName()));
    }
}

void tst_Blocks::figuresFitWithoutScrollBars_data()
{
    QTest::addColumn<QString>("dialog");
    for (const Expected::Block &expected : Expected::blocks()) {
        // Six or sixteen ports have more pins than any screen shows.
        if (expected.switches.size() <= 2)
            QTest::newRow(expected.dialog) << text(expected.dialog);
    }
}

void tst_Blocks::figuresFitWithoutScrollBars()
{
    QFETCH(QString, dialog);
    const Expected::Block &expected = Expected::block(dialog.toLatin1());
    OptionMap map = {{Key::ipDevice, text("TV5KT-138B")},
                     {Key::ethernetInterface, text("GMII/MII")}};
    for (const Expected::Switch &entry : expected.switches)
        map.insert(text(entry.key), true);
    const std::unique_ptr<Expected::Dialog> opened(expected.make(&map, nullptr));
    opened->resize(opened->sizeHint());
    opened->show();
    QVERIFY(QTest::qWaitForWindowExposed(opened.get()));
    const IPCore::PinFigureView *figure = opened->pinFigureView();
    QCOMPARE(figure->verticalScrollBar()->maximum(), 0);
    QCOMPARE(figure->horizontalScrollBar()->maximum(), 0);
}

void tst_Blocks::pinsFollowTheSwitches_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<int>("switches");
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("pins");
    const auto row = [](const char *phrase, const char *dialog, int switches,
                        const std::vector<const char *> &lists, int choice = -1,
                        const char *device = "TV2K-18") {
        QStringList pins;
        for (const char *list : lists)
            pins += Expected::pins(list);
        QTest::newRow(phrase) << text(dialog) << switches << choice << text(device) << pins;
    };
    namespace Pins = Expected::Pins;
    for (const Block &each : blocks())
        row(qPrintable(QString(each.title) + u" off"), each.dialog.data(), 0, {}, 0, "TV5KT-138B");
    row("GPIO, bidirectional", "GPIODlg", 3, {Pins::gpioInout});
    row("GPIO, split", "GPIODlg", 1, {Pins::gpioSplit});
    row("GPIO off, bidirectional", "GPIODlg", 2, {});
    row("CAN", "CANDlg", 1, {Pins::can});
    row("Ethernet, no interface", "EthernetDlg", 1, {Pins::ethernet}, -1);
    row("Ethernet, RGMII", "EthernetDlg", 1, {Pins::ethernet, Pins::rgmii}, 0);
    row("Ethernet, GMII", "EthernetDlg", 1, {Pins::ethernet, Pins::gmii}, 1);
    row("Ethernet, MII", "EthernetDlg", 1, {Pins::ethernet, Pins::mii}, 2);
    row("Ethernet, both", "EthernetDlg", 1, {Pins::ethernet, Pins::gmii, Pins::mii}, 3);
    row("DDR3", "DDR3Dlg", 1, {Pins::ddr3});
    row("DDR3 on TV5K", "DDR3Dlg", 1, {Pins::ddr3Stop, Pins::ddr3}, -1, "TV5K-25A");
    row("DDR3 on TV3K", "DDR3Dlg", 1, {Pins::ddr3Stop, Pins::ddr3}, -1, "TV3KR-20A");
    row("DDR3 on tv3k", "DDR3Dlg", 1, {Pins::ddr3}, -1, "tv3kr-20a");
    row("DDR3 on no device", "DDR3Dlg", 1, {Pins::ddr3}, -1, "");
    row("DDR3 on TV1L-9C", "DDR3Dlg", 1, {Pins::ddr3}, -1, "TV1L-9C");
    row("PSRAM", "PSRAMDlg", 1, {Pins::psram});
    row("SPI-Flash", "SPIFlashDlg", 1, {Pins::spiFlash});
    row("UART0", "UartDlg", 1, {Pins::uart0});
    row("UART1", "UartDlg", 2, {Pins::uart1});
    row("both UARTs", "UartDlg", 3, {Pins::uart0, Pins::uart1});
    row("Timer0", "TimerDlg", 1, {Pins::timer0});
    row("Timer1", "TimerDlg", 2, {Pins::timer1});
    row("both timers", "TimerDlg", 3, {Pins::timer0, Pins::timer1});
    row("WatchDog", "WatchDogDlg", 1, {});
    row("RTC", "RTCDlg", 1, {Pins::rtc});
    row("TRNG", "TrngDlg", 1, {});
    row("DualTimer", "DualTimerDlg", 1, {});
    row("I2C, bidirectional", "I2CDlg", 3, {Pins::i2cInout});
    row("I2C, split", "I2CDlg", 1, {Pins::i2cSplit});
    row("I2C off, bidirectional", "I2CDlg", 2, {});
    row("SPI", "SPIDlg", 1, {Pins::spi});
    row("SD-Card", "SDCardDlg", 1, {Pins::sdCard});
}

void tst_Blocks::pinsFollowTheSwitches()
{
    QFETCH(QString, dialog);
    QFETCH(int, switches);
    QFETCH(int, choice);
    QFETCH(QString, device);
    const QList<Utils::PinFigure> pins =
        blockPins(block(QLatin1String(dialog.toLatin1())), {unsigned(switches), choice, device});
    QTEST(Expected::words(pins), "pins");
}

void tst_Blocks::portPinsFollowTheirSwitch()
{
    for (unsigned switches = 0; switches < 64; ++switches) {
        QStringList expected;
        for (int port = 1; port <= 6; ++port) {
            if (switches >> (port - 1) & 1)
                expected += Expected::pins(Expected::Pins::ahbPort, port);
        }
        QCOMPARE(Expected::words(
                     blockPins(block(QLatin1String("AHB2ExtensionDlg")), {switches, -1, {}})),
                 expected);
    }
    for (unsigned switches = 0; switches < 65536; switches += 97) {
        QStringList expected;
        for (int port = 1; port <= 16; ++port) {
            if (switches >> (port - 1) & 1)
                expected += Expected::pins(Expected::Pins::apbPort, port);
        }
        QCOMPARE(Expected::words(
                     blockPins(block(QLatin1String("APB2ExtensionDlg")), {switches, -1, {}})),
                 expected);
    }
    // One port of each bus as it stands in a figure, blanks included.
    const QList<Utils::PinFigure> ahb =
        blockPins(block(QLatin1String("AHB2ExtensionDlg")), {4, -1, {}});
    QCOMPARE(ahb.size(), 16);
    QCOMPARE(ahb.at(6), Utils::PinFigure(text("AHB3HSIZE[2:0] "), 1, true, Qt::AlignRight));
    QCOMPARE(ahb.at(0), Utils::PinFigure(text("AHB3HRDATA[31:0]"), 0, true, Qt::AlignLeft));
    const QList<Utils::PinFigure> apb =
        blockPins(block(QLatin1String("APB2ExtensionDlg")), {1u << 15, -1, {}});
    QCOMPARE(apb.size(), 12);
    QCOMPARE(apb.at(6), Utils::PinFigure(text("APB16PSEL"), 1, false, Qt::AlignRight));
    QCOMPARE(apb.at(8), Utils::PinFigure(text("APB16PREDADY"), 0, false, Qt::AlignLeft));
}

TARVO_TEST_MAIN(QApplication, tst_Blocks)
#include "tst_blocks.moc"
