#include "dialogdriver.h"
#include "testsupport.h"

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <diagram/findline.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>
#include <ipcore/ipcore.h>
#include <ui/tarvoorixm1dlg.h>

#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;
using TestSupport::ModalWatcher;

// Looking for things in the diagram of a whole dialog.
class tst_FindDiagram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theLineComesAndGoes();
    void hitsComeWhileTyping();
    void enterOpensTheDialogOfTheHit();
    void arrowsChooseAndTheDiagramPoints();
    void tabGoesOnAtTheBlock();
    void escapeChangesNothing();
    void whatIsNotThereSaysWhy();
    void aClickTakesAHit();
    void everyKeyStaysInTheLine();
    void followsTheConfiguration();
    void fitsSmallDiagrams();
    void unreadableDataAreTold();

private:
    // Ctrl+F, and the text.
    void find(const char *text);
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(edit(), Qt::Key(key), modifiers);
    }
    FindLine *line() const { return m_view->findChild<FindLine *>(); }
    QLineEdit *edit() const { return line()->findChild<QLineEdit *>(); }
    QListWidget *list() const { return line()->findChild<QListWidget *>(); }
    QString current() const
    {
        return list()->currentItem() ? list()->currentItem()->text() : QString();
    }
    QString focused() const
    {
        return m_view->focusedBlock() ? m_view->focusedBlock()->text() : QString();
    }
    void prepare(const char *device, const QString &dataFolder = QStringLiteral(TARVO_IP_DATA_DIR));

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TarvoOrixM1Dlg> m_dialog;
    IPView *m_view = nullptr;
};

void tst_FindDiagram::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    prepare("TV2KR-18C-QFN88P-C8/I7");
}

void tst_FindDiagram::prepare(const char *device, const QString &dataFolder)
{
    QVariantMap ipInfo =
        IPCore::processIPInfoSpec(descriptorPath(QStringLiteral(TARVO_IP_DATA_DIR)));
    addDataFolders(ipInfo, dataFolder);
    QCOMPARE(TARVOORIXM1::dataFolder(ipInfo), dataFolder);
    m_dialog = std::make_unique<TarvoOrixM1Dlg>(ipInfo);
    DEV::ChipFilter filter;
    filter.id = QString::fromLatin1(device);
    m_dialog->prepareNew(m_dir->path(), DEV::DeviceDb::bundled().filterDevice(filter).value(0));
    m_dialog->show();
    QApplication::setActiveWindow(m_dialog.get());
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_view = m_dialog->findChild<IPView *>();
    m_view->setFocus();
}

void tst_FindDiagram::cleanup()
{
    m_dialog.reset();
    m_dir.reset();
}

void tst_FindDiagram::find(const char *text)
{
    QApplication::setActiveWindow(m_dialog.get()); // nobody else does so after a dialog
    QTest::keyClick(m_view, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(line() && line()->isVisible());
    QCOMPARE(QApplication::focusWidget(), edit());
    QTest::keyClicks(edit(), QString::fromLatin1(text));
}

void tst_FindDiagram::theLineComesAndGoes()
{
    QVERIFY(!line());
    find("");
    QVERIFY(!edit()->accessibleName().isEmpty());
    QVERIFY(!list()->isVisible());
    press(Qt::Key_Escape);
    QVERIFY(!line()->isVisible());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_view);
    // The text of before is there, chosen, so that typing replaces it.
    find("uart");
    press(Qt::Key_Escape);
    find("");
    QCOMPARE(edit()->selectedText(), QStringLiteral("uart"));
    QTest::keyClicks(edit(), QStringLiteral("rtc"));
    QCOMPARE(edit()->text(), QStringLiteral("rtc"));
}

void tst_FindDiagram::hitsComeWhileTyping()
{
    find("uart");
    QVERIFY(list()->isVisible());
    QVERIFY(current().startsWith(QLatin1String("UART0")));
    const int before = list()->count();
    QTest::keyClicks(edit(), QStringLiteral("1"));
    QVERIFY(list()->count() < before);
    QVERIFY(current().startsWith(QLatin1String("UART1")));
    QVERIFY(edit()->accessibleDescription().startsWith(QLatin1String("1 of ")));
    QVERIFY(edit()->accessibleDescription().contains(current()));
    edit()->clear();
    QCOMPARE(list()->count(), 0);
    QVERIFY(line()->notice().isEmpty());
    QTest::keyClicks(edit(), QStringLiteral("quartz"));
    QVERIFY(line()->notice().contains(QLatin1String("quartz")));
    edit()->setText(QStringLiteral("0xC0000000"));
    QCOMPARE(line()->notice(), QStringLiteral("Nothing answers at 0xC0000000."));
    for (const char *query : {"0x40000000", "0x40000123", "irq 16", "GPIO[15:0]", "ITCM_Size"}) {
        edit()->setText(QString::fromLatin1(query));
        QVERIFY2(list()->count() > 0, query);
    }
}

void tst_FindDiagram::enterOpensTheDialogOfTheHit()
{
    QString title;
    const ModalWatcher watcher([&](QWidget *modal) {
        title = modal->windowTitle();
        QVERIFY(!line()->isVisible());
        modal->close();
    });
    const struct {
        const char *query;
        const char *title;
        const char *box;
    } rows[] = {
        {"uart1", "UART", "UART1"},
        {"CAN_BUFFER", "CAN", "CAN"},
        {"0x8a000010", "AHB Master [1-6]", "AHB Master [1-6]"},
        {"extint", "Cortex-M1", "Cortex-M1"},
        {"NSS", "SPI", "SPI"},
    };
    for (const auto &row : rows) {
        title.clear();
        find(row.query);
        press(Qt::Key_Return);
        QCOMPARE(title, QString::fromLatin1(row.title));
        QCOMPARE(focused(), QString::fromLatin1(row.box));
    }
    QCOMPARE(watcher.count(), 5);
    QVERIFY(m_dialog->isVisible()); // Enter was not that of OK
    QCOMPARE(m_dialog->result(), 0);
}

void tst_FindDiagram::arrowsChooseAndTheDiagramPoints()
{
    const auto look = [&](const char *label) {
        QRectF place;
        for (QGraphicsItem *item : m_view->scene()->items()) {
            auto *block = qgraphicsitem_cast<IPItem *>(item);
            if (block && block->text() == QLatin1String(label))
                place = block->sceneBoundingRect().adjusted(-6, -6, 6, 6);
        }
        return m_view->viewport()->grab(m_view->mapFromScene(place).boundingRect()).toImage();
    };
    const QImage uart0 = look("UART0");
    const QImage uart1 = look("UART1");
    find("uart");
    QVERIFY(look("UART0") != uart0);
    QVERIFY(look("UART1") == uart1);
    press(Qt::Key_Down);
    QVERIFY(current().startsWith(QLatin1String("UART1")));
    QVERIFY(look("UART0") == uart0);
    QVERIFY(look("UART1") != uart1);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QCOMPARE(list()->currentRow(), 0);
    press(Qt::Key_PageDown);
    QVERIFY(list()->currentRow() > 1);
    for (int i = 0; i < list()->count() + 3; ++i)
        press(Qt::Key_Down);
    QCOMPARE(list()->currentRow(), list()->count() - 1);
    press(Qt::Key_Escape);
    QVERIFY(look("UART0") == uart0);
}

void tst_FindDiagram::tabGoesOnAtTheBlock()
{
    find("rtc");
    press(Qt::Key_Tab);
    QVERIFY(!line()->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_view);
    QCOMPARE(focused(), QStringLiteral("RTC"));
    QTest::keyClick(m_view, Qt::Key_Space);
    QVERIFY(m_dialog->currentOptions().value(Key::enableRtc).toBool());
    QCOMPARE(m_dialog->steps().size(), 1);
}

void tst_FindDiagram::escapeChangesNothing()
{
    m_view->clearFocus();
    m_view->setFocus(Qt::TabFocusReason);
    QTest::keyClick(m_view, Qt::Key_Tab);
    const QString before = focused();
    QVERIFY(!before.isEmpty());
    const QVariantMap configuration = m_dialog->configuration();
    find("spi");
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    QCOMPARE(focused(), before);
    QCOMPARE(m_dialog->configuration(), configuration);
}

void tst_FindDiagram::whatIsNotThereSaysWhy()
{
    prepare("TV1KL-5A");
    const ModalWatcher watcher([](QWidget *modal) { modal->close(); });
    find("ethernet");
    press(Qt::Key_Return);
    QVERIFY(line()->isVisible());
    QCOMPARE(line()->notice(),
             QStringLiteral("There is no Ethernet on TV1KL-5A, the device of this configuration."));
    QCOMPARE(edit()->accessibleDescription(), line()->notice());
    press(Qt::Key_Down);
    QVERIFY(line()->notice().isEmpty());
    // The registers of the bus itself come with the first block on it.
    edit()->setText(QStringLiteral("SYS"));
    QVERIFY(current().startsWith(QLatin1String("SYS ")));
    press(Qt::Key_Enter);
    QVERIFY(line()->notice().contains(QLatin1String("no dialog")));
    QCOMPARE(watcher.count(), 0);
}

void tst_FindDiagram::aClickTakesAHit()
{
    QString title;
    const ModalWatcher watcher([&](QWidget *modal) {
        title = modal->windowTitle();
        modal->close();
    });
    find("timer");
    QVERIFY(list()->count() > 2);
    const QRect place = list()->visualItemRect(list()->item(1));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
    QCOMPARE(watcher.count(), 1);
    QCOMPARE(title, QStringLiteral("Timer"));
}

void tst_FindDiagram::everyKeyStaysInTheLine()
{
    find("a b");
    QCOMPARE(edit()->text(), QStringLiteral("a b")); // the blank switches nothing
    QCOMPARE(m_dialog->steps().size(), 0);
    const QTransform zoom = m_view->transform();
    press(Qt::Key_Home);
    press(Qt::Key_F5);
    press(Qt::Key_Left);
    QCOMPARE(m_view->transform(), zoom);
    QVERIFY(line()->isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(line()->isVisible());
}

void tst_FindDiagram::followsTheConfiguration()
{
    find("uart0");
    QVERIFY(current().endsWith(QLatin1String(": off")));
    press(Qt::Key_Tab);
    QTest::keyClick(m_view, Qt::Key_Space);
    find("uart0");
    QVERIFY(current().endsWith(QLatin1String(": on")));
}

void tst_FindDiagram::fitsSmallDiagrams()
{
    find("a");
    for (const QSize &size : {QSize(500, 500), QSize(847, 755), QSize(1200, 900)}) {
        m_dialog->resize(size);
        QCoreApplication::processEvents();
        QVERIFY(m_view->rect().contains(line()->geometry()));
        QVERIFY(line()->rect().contains(edit()->geometry()));
    }
}

void tst_FindDiagram::unreadableDataAreTold()
{
    prepare("TV2KR-18C-QFN88P-C8/I7", m_dir->path());
    TestSupport::write(m_dir->filePath(QStringLiteral("interrupts.json")), "{");
    find("uart");
    QVERIFY(line()->notice().contains(QLatin1String("interrupts.json")));
    QVERIFY(list()->count() > 0);
}

QTEST_MAIN(tst_FindDiagram)
#include "tst_finddiagram.moc"
