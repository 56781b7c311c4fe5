#include "blockhands.h"
#include "dialogdriver.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>

using namespace TARVOORIXM1;
using TestSupport::ModalWatcher;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The block of the diagram, the dialog that it opens, and the check box that switches it on;
// PSRAM never looks switched on.
struct Opening {
    const char *label;
    const char *dialog;
    const char *box;
    const char *key;
    bool recolours = true;
};

const Opening openings[] = {
    {"GPIO", "GPIODlg", "enableGpioCheckBox", "Enable GPIO"},
    {"CAN", "CANDlg", "enableCanCheckBox", "Enable CAN"},
    {"Ethernet", "EthernetDlg", "enableEthernetCheckBox", "Enable Ethernet"},
    {"DDR3", "DDR3Dlg", "enableDDR3CheckBox", "Enable DDR3"},
    {"PSRAM", "PSRAMDlg", "enablePsramCheckBox", "Enable PSRAM", false},
    {"SPI-Flash", "SPIFlashDlg", "enableSpiFlashCheckBox", "Enable SPI-Flash"},
    {"AHB Master [1-6]", "AHB2ExtensionDlg", "enableAhbMaster6CheckBox", "Enable_AHB_Master6"},
    {"UART0", "UartDlg", "enableUart0CheckBox", "Enable UART0"},
    {"UART1", "UartDlg", "enableUart1CheckBox", "Enable UART1"},
    {"Timer0", "TimerDlg", "enableTimer0CheckBox", "Enable Timer0"},
    {"Timer1", "TimerDlg", "enableTimer1CheckBox", "Enable Timer1"},
    {"Watch Dog", "WatchDogDlg", "enableWatchDogCheckBox", "Enable WatchDog"},
    {"RTC", "RTCDlg", "enableRtcCheckBox", "Enable RTC"},
    {"TRNG", "TrngDlg", "enableTrngCheckBox", "Enable TRNG"},
    {"Dual Timer", "DualTimerDlg", "enableDualTimerCheckBox", "Enable DUALTIMER"},
    {"I2C", "I2CDlg", "enableI2CCheckBox", "Enable I2C"},
    {"SPI", "SPIDlg", "enableSPICheckBox", "Enable SPI"},
    {"SD-Card", "SDCardDlg", "enableSDCardCheckBox", "Enable SDCARD"},
    {"APB Master [1-16]", "APB2ExtensionDlg", "enableAPBMaster7CheckBox", "Enable_APB_Master7"},
};

class View : public IPView
{
public:
    explicit View(OptionMap *options)
        : IPView(options)
    {
        resize(1060, 620);
        show();
        QApplication::setActiveWindow(this);
    }

    QList<IPItem *> blocks() const
    {
        QList<IPItem *> found;
        for (QGraphicsItem *item : scene()->items()) {
            auto *block = qgraphicsitem_cast<IPItem *>(item);
            if (block && block->isClickable())
                found.append(block);
        }
        return found;
    }
    IPItem *block(const QString &label) const
    {
        for (IPItem *candidate : blocks()) {
            if (candidate->text() == label)
                return candidate;
        }
        return nullptr;
    }
    QStringList active() const
    {
        QStringList labels;
        for (const IPItem *each : blocks()) {
            if (each->isActive())
                labels.append(each->text());
        }
        return labels;
    }
    void doubleClick(const IPItem *item)
    {
        const QPoint position = mapFromScene(item->sceneBoundingRect().center());
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, position);
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, position);
    }
    // No block looks hovered then.
    void leaveBlocks()
    {
        const QPoint corner(2, 2);
        QMouseEvent move(QEvent::MouseMove, corner, viewport()->mapToGlobal(corner), Qt::NoButton,
                         Qt::NoButton, {});
        QCoreApplication::sendEvent(viewport(), &move);
    }
    // Of the block's ground, beside its label.
    QColor colorOf(const IPItem *item)
    {
        const QPoint corner = mapFromScene(item->sceneBoundingRect().topLeft());
        return viewport()->grab().toImage().pixelColor(corner + QPoint(3, 3));
    }
};

} // namespace

class tst_OpeningBlocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickOpensTheDialog_data();
    void aDoubleClickOpensTheDialog();
    void enterOpensTheDialogToo();
    void everyBlockIsCovered();
};

void tst_OpeningBlocks::aDoubleClickOpensTheDialog_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(openings)); ++i)
        QTest::newRow(openings[i].label) << i;
}

// Cancelled, accepted with the block on, and accepted with it off again.
void tst_OpeningBlocks::aDoubleClickOpensTheDialog()
{
    QFETCH(int, index);
    const Opening &row = openings[index];
    OptionMap map = {{Key::ipDevice, text("TV2KR-18C")}};
    View view(&map);
    const IPItem *block = view.block(text(row.label));
    QVERIFY(block);
    const QStringList justThis = row.recolours ? QStringList(text(row.label)) : QStringList();

    const auto open = [&](QDialogButtonBox::StandardButton button) {
        QString opened;
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *dialog = qobject_cast<Expected::Dialog *>(modal);
            if (!dialog || dialog->parentWidget() != &view) {
                modal->close();
                return;
            }
            opened = text(dialog->metaObject()->className());
            auto *box = dialog->findChild<QCheckBox *>(text(row.box));
            if (!box) {
                modal->close();
                return;
            }
            Hands::click(box);
            QTest::mouseClick(dialog->buttonBox()->button(button), Qt::LeftButton);
        });
        view.doubleClick(block);
        return watcher.count() == 1 ? opened : QStringLiteral("%1 windows").arg(watcher.count());
    };
    const QString name = u"TARVOORIXM1::" + text(row.dialog);

    QCOMPARE(open(QDialogButtonBox::Cancel), name);
    QCOMPARE(map.size(), 1);
    QCOMPARE(view.active(), QStringList());
    // An option that changed meanwhile shows that nothing was redrawn.
    map.insert(Key::enableRtc, true);
    QCOMPARE(open(QDialogButtonBox::Cancel), name);
    QCOMPARE(view.active(), QStringList());
    map.remove(Key::enableRtc);

    QCOMPARE(open(QDialogButtonBox::Ok), name);
    QCOMPARE(map.value(text(row.key)), QVariant(true));
    QCOMPARE(view.active(), justThis);
    view.leaveBlocks();
    QCOMPARE(view.colorOf(block), QColor(row.recolours ? Qt::darkGreen : Qt::white));

    QCOMPARE(open(QDialogButtonBox::Ok), name);
    QCOMPARE(map.value(text(row.key)), QVariant(false));
    QCOMPARE(view.active(), QStringList());
}

void tst_OpeningBlocks::enterOpensTheDialogToo()
{
    OptionMap map;
    View view(&map);
    view.setFocus(Qt::TabFocusReason);
    QStringList opened;
    for (int i = 0; i <= int(std::size(openings)); ++i) {
        const ModalWatcher watcher([&opened](QWidget *modal) {
            opened.append(text(modal->metaObject()->className()).section(u':', -1));
            modal->close();
        });
        QTest::keyClick(&view, Qt::Key_Return);
        QTest::keyClick(&view, Qt::Key_Tab);
    }
    QStringList expected = {text("CortexM1")};
    for (const Opening &row : openings)
        expected.append(text(row.dialog));
    std::sort(opened.begin(), opened.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(opened, expected);
}

void tst_OpeningBlocks::everyBlockIsCovered()
{
    OptionMap map;
    const View view(&map);
    QCOMPARE(view.blocks().size(), int(std::size(openings)) + 1); // and the core
    for (const Expected::Block &expected : Expected::blocks()) {
        QVERIFY2(std::any_of(std::begin(openings), std::end(openings),
                             [&expected](const Opening &row) {
                                 return qstrcmp(row.dialog, expected.dialog) == 0;
                             }),
                 expected.dialog);
    }
}

TARVO_TEST_MAIN(QApplication, tst_OpeningBlocks)
#include "tst_openingblocks.moc"
