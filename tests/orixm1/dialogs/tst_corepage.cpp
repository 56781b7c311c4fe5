#include "coremodel.h"
#include "dialogdriver.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <core/project.h>
#include <core/projectmanager.h>
#include <dev/devicedb.h>
#include <dialogs/cortexm1.h>
#include <generate/defines.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace TARVOORIXM1;
using TestSupport::boxesOf;
using TestSupport::ModalWatcher;
using TestSupport::SeenBox;

namespace
{

QString idOf(const QString &device)
{
    DEV::ChipFilter filter;
    filter.id = device;
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0).id();
}

OptionMap mapFor(const QString &device)
{
    return {{Key::ipDeviceId, device.isEmpty() ? QStringLiteral("unknown") : idOf(device)}};
}

OptionMap mapFor(const char *device)
{
    return mapFor(QString::fromLatin1(device));
}

QStringList listed(const QComboBox *box)
{
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

QStringList sizesUpTo(int last)
{
    QStringList texts;
    for (int i = 0; i <= last; ++i)
        texts.append(QStringLiteral("%1 KB").arg(1 << i));
    return texts;
}

// The page with the hands of a user.
class Page : public CortexM1
{
public:
    explicit Page(OptionMap *options)
        : CortexM1(options)
    {
        show();
    }

    template <class T>
    T *find(const char *name) const
    {
        T *widget = findChild<T *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("there is no %s", name);
        return widget;
    }
    QAbstractButton *button(const char *name) const { return find<QAbstractButton>(name); }
    QComboBox *itcm() const { return find<QComboBox>("comboBoxItcmSize"); }
    QComboBox *dtcm() const { return find<QComboBox>("comboBoxDtcmSize"); }
    QLineEdit *path() const { return find<QLineEdit>("lineEditItcmInitPath"); }
    bool isOn(const char *name) const { return button(name)->isChecked(); }
    bool isUsable(const char *name) const { return find<QWidget>(name)->isEnabled(); }

    void click(const char *name)
    {
        QAbstractButton *target = button(name);
        for (int i = 0; i < tabWidget()->count(); ++i) {
            if (tabWidget()->widget(i)->isAncestorOf(target))
                tabWidget()->setCurrentIndex(i);
        }
        QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(9, target->height() / 2));
    }

    void select(QComboBox *box, const QString &text)
    {
        const int index = box->findText(text);
        QVERIFY2(index >= 0, qPrintable(text));
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentText(), text);
    }

    void press(QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(buttonBox()->button(which), Qt::LeftButton);
    }

    QStringList pinNames() const
    {
        QStringList names;
        for (const Utils::PinFigure &pin : figurePins())
            names.append(pin.name());
        return names;
    }
};

class Project : public Core::Project
{
public:
    QString name() const override { return QStringLiteral("project"); }
    QString path() const override { return QDir::currentPath(); }
    void addFiles(const QStringList & /*paths*/) override {}
};

} // namespace

class tst_CorePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsHeaderAndTabs();
    void formsAreNamed();
    void aSmallDeviceStartsSmall();
    void aSmallDeviceWithStoredInternalMemoryMayHaveIt();
    void debugIsOffWhereItIsUnavailable_data();
    void debugIsOffWhereItIsUnavailable();
    void instructionMemoryIsForcedOut_data();
    void instructionMemoryIsForcedOut();
    void anUnknownDeviceTakesTheGeneralDefaults();
    void anotherInterruptCountBecomesEight();
    void anotherPortBecomesJtag();
    void externalInterruptsNeedSixteen();
    void initialisationNeedsInternalMemory();
    void storedExternalMemoryOpensWithThePath();
    void checksThePathOnOk();
    void aFolderBelowTheOutputFolderIsStoredRelative();
    void aFolderBelowTheCurrentOneIsRelativeInAProject();
    void choosesAFolder();
    void cancelWritesNothing();
    void choosingTheLargestSizeLimitsTheOther();
    void externalMemoryLiftsTheLimit();
    void aSelectionMayGetLostOnASmallDevice();
    void anUnknownDeviceBalancesFromEmpty();
    void theLimitOf15B();
    void bothMayBeLargestOn75();
    void balancesOnlyAfterASignal();
    void figureFollowsTheChoices();
    void editedMapsGenerateAsTheirCopies();
    void behavesAsTheModel_data();
    void behavesAsTheModel();
};

void tst_CorePage::showsHeaderAndTabs()
{
    OptionMap map = mapFor("TV2KR-18C");
    const Page page(&map);
    QCOMPARE(page.windowTitle(), QStringLiteral("Cortex-M1"));
    QCOMPARE(page.moduleName(), QStringLiteral("Tarvo Cortex-M1"));
    QCOMPARE(page.labelText(), QStringLiteral("Cortex-M1"));
    const QStringList lines = page.summaryText().split(u'\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).startsWith(QLatin1String("      Tarvo Cortex-M1 is intended")));
    QVERIFY(lines.at(1).startsWith(QLatin1String("       Tarvo Cortex-M1 supports")));
    QVERIFY(lines.at(2).startsWith(QLatin1String("       User can configure")));
    QCOMPARE(lines.at(3), QString());
    QStringList tabs;
    for (int i = 0; i < page.tabWidget()->count(); ++i)
        tabs.append(page.tabWidget()->tabText(i));
    QCOMPARE(tabs, QStringList({QStringLiteral("Common"), QStringLiteral("Debug"),
                                QStringLiteral("Memory")}));
}

void tst_CorePage::formsAreNamed()
{
    OptionMap map;
    const Page page(&map);
    const char *names[] = {"TARVOORIXM1__Common", "TARVOORIXM1__Debug", "TARVOORIXM1__Memory"};
    for (int i = 0; i < 3; ++i) {
        const QWidget *form = page.tabWidget()->widget(i);
        QCOMPARE(form->objectName(), QString::fromLatin1(names[i]));
        QCOMPARE(form->windowTitle(), QStringLiteral("Form"));
        QVERIFY(form->findChild<QScrollArea *>(QStringLiteral("scrollArea")));
    }
}

void tst_CorePage::aSmallDeviceStartsSmall()
{
    OptionMap map = mapFor("TV1KL-5A");
    Page page(&map);
    QVERIFY(page.isOn("radioButtonNum1"));
    QVERIFY(!page.isOn("checkBoxOsExtension"));
    QVERIFY(page.isOn("checkBoxSmallMultiplier"));
    QVERIFY(!page.isOn("enableDebugCheckBox"));
    QVERIFY(page.isOn("externalInsBtn"));
    QVERIFY(!page.isUsable("internalInsBtn"));
    QCOMPARE(page.itcm()->currentText(), QStringLiteral("8 KB"));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("8 KB"));
    page.press(QDialogButtonBox::Cancel);
    QCOMPARE(page.result(), int(QDialog::Rejected));
    QCOMPARE(map.value(Key::enableDebug), QVariant(false));
    QCOMPARE(map.size(), 2);
}

void tst_CorePage::aSmallDeviceWithStoredInternalMemoryMayHaveIt()
{
    OptionMap map = mapFor("TV1KL-5B");
    map[Key::internalInstructionMemory] = true;
    map[Key::externalInstructionMemory] = false;
    Page page(&map);
    QVERIFY(page.isUsable("internalInsBtn"));
    QVERIFY(page.isOn("internalInsBtn"));
    // Nothing has changed since the page was built, so nothing was balanced.
    QCOMPARE(page.itcm()->currentText(), QStringLiteral("8 KB"));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("8 KB"));
}

void tst_CorePage::debugIsOffWhereItIsUnavailable_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("TV1L-9") << QStringLiteral("TV1L-9");
    QTest::newRow("TV1LR-9") << QStringLiteral("TV1LR-9");
}

void tst_CorePage::debugIsOffWhereItIsUnavailable()
{
    QFETCH(QString, device);
    OptionMap map = mapFor(device);
    Page page(&map);
    QVERIFY(!page.isOn("enableDebugCheckBox"));
    QVERIFY(!page.isUsable("enableDebugCheckBox"));
    QVERIFY(!page.isUsable("debugWgt"));
    page.click("enableDebugCheckBox");
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(page.result(), int(QDialog::Accepted));
    QCOMPARE(map.value(Key::enableDebug), QVariant(false));
}

void tst_CorePage::instructionMemoryIsForcedOut_data()
{
    QTest::addColumn<QString>("device");
    for (const char *device : {"TV5KRT-15A", "TV5KLT-15A", "TV5KLRT-15A", "TV5KT-15A"})
        QTest::newRow(device) << QString::fromLatin1(device);
}

void tst_CorePage::instructionMemoryIsForcedOut()
{
    QFETCH(QString, device);
    OptionMap map = mapFor(device);
    map[Key::internalInstructionMemory] = true;
    map[Key::externalInstructionMemory] = false;
    Page page(&map);
    QVERIFY(page.isOn("externalInsBtn"));
    QVERIFY(!page.isUsable("internalInsBtn"));
    page.click("internalInsBtn");
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(map.value(Key::internalInstructionMemory), QVariant(false));
    QCOMPARE(map.value(Key::externalInstructionMemory), QVariant(true));
}

void tst_CorePage::anUnknownDeviceTakesTheGeneralDefaults()
{
    OptionMap map = mapFor("");
    const Page page(&map);
    QVERIFY(page.isOn("radioButtonNum32"));
    QVERIFY(page.isOn("checkBoxOsExtension"));
    QVERIFY(page.isOn("enableDebugCheckBox"));
    QVERIFY(page.isOn("internalInsBtn"));
    QCOMPARE(page.itcm()->count(), 0);
    QCOMPARE(page.dtcm()->count(), 0);
}

void tst_CorePage::anotherInterruptCountBecomesEight()
{
    OptionMap map = mapFor("TV2K-18");
    map[Key::numberOfInterrupts] = 4;
    Page page(&map);
    QVERIFY(page.isOn("radioButtonNum8"));
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(map.value(Key::numberOfInterrupts), QVariant(8));
}

void tst_CorePage::anotherPortBecomesJtag()
{
    OptionMap map = mapFor("TV2K-18");
    map[Key::debugPortSelect] = QStringLiteral("SWD");
    const Page page(&map);
    QVERIFY(page.isOn("radioButtonJTAG"));
}

void tst_CorePage::externalInterruptsNeedSixteen()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    page.click("checkBoxExternalInterrupts");
    QVERIFY(page.pinNames().contains(QStringLiteral("EXTINT[3:0]")));
    for (const char *few : {"radioButtonNum1", "radioButtonNum8"}) {
        page.click(few);
        QVERIFY(!page.isUsable("checkBoxExternalInterrupts"));
        QVERIFY(page.isOn("checkBoxExternalInterrupts"));
        QVERIFY(!page.pinNames().contains(QStringLiteral("EXTINT[3:0]")));
    }
    for (const char *many : {"radioButtonNum16", "radioButtonNum32", "radioButtonNum16"}) {
        page.click(many);
        QVERIFY(page.isUsable("checkBoxExternalInterrupts"));
        QVERIFY(page.pinNames().contains(QStringLiteral("EXTINT[3:0]")));
    }
    page.click("radioButtonNum8");
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(map.value(Key::externalInterrupts), QVariant(false));
    QCOMPARE(map.value(Key::numberOfInterrupts), QVariant(8));
}

void tst_CorePage::initialisationNeedsInternalMemory()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    QVERIFY(!page.isUsable("itcmInitPathWgt"));
    page.click("checkBoxInitItcm");
    QVERIFY(page.isUsable("itcmInitPathWgt"));
    page.click("externalInsBtn");
    QVERIFY(!page.isUsable("itcmInitPathWgt"));
    QVERIFY(!page.isUsable("checkBoxInitItcm"));
    QVERIFY(!page.isUsable("comboBoxItcmSize"));
    const QList<SeenBox> boxes = boxesOf([&] { page.press(QDialogButtonBox::Ok); });
    QCOMPARE(boxes.size(), 0);
    QCOMPARE(page.result(), int(QDialog::Accepted));
    QCOMPARE(map.value(Key::initializeItcm), QVariant(true));
}

void tst_CorePage::storedExternalMemoryOpensWithThePath()
{
    OptionMap map = mapFor("TV2K-18");
    map[Key::internalInstructionMemory] = false;
    map[Key::externalInstructionMemory] = true;
    map[Key::initializeItcm] = true;
    const Page page(&map);
    QVERIFY(page.isUsable("itcmInitPathWgt"));
    QVERIFY(!page.isUsable("checkBoxInitItcm"));
}

void tst_CorePage::checksThePathOnOk()
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("init"));
    TestSupport::write(folder.filePath(QStringLiteral("file")), "x");
    OptionMap map = mapFor("TV2K-18");
    map[Key::createInPath] = folder.path();
    const OptionMap before = map;
    Page page(&map);
    page.click("checkBoxInitItcm");

    const auto messageFor = [&page](const QString &text) {
        page.path()->setText(text);
        const QList<SeenBox> boxes = boxesOf([&] { page.press(QDialogButtonBox::Ok); });
        if (boxes.size() != 1)
            return QString::number(boxes.size());
        const SeenBox &box = boxes.first();
        if (box.title != QLatin1String("Error") || box.icon != QMessageBox::NoIcon ||
            !box.hasPixmap || !box.hasWindowIcon || box.buttons != QMessageBox::Ok ||
            box.defaultButton != QMessageBox::Ok || box.parent != &page)
            return QStringLiteral("another box");
        return box.text;
    };
    const QString missing = QStringLiteral("ITCM Initialization Path is not exist.");
    QCOMPARE(messageFor(QString()), QStringLiteral("ITCM Initialization Path is empty."));
    QCOMPARE(messageFor(QStringLiteral("nowhere")), missing);
    QCOMPARE(messageFor(QStringLiteral("file")), missing);
    QCOMPARE(messageFor(folder.filePath(QStringLiteral("nowhere"))), missing);
    QCOMPARE(map, before);
    QVERIFY(page.isVisible());
    QVERIFY(page.isOn("checkBoxInitItcm"));

    page.path()->setText(QStringLiteral("init"));
    page.press(QDialogButtonBox::Ok);
    QVERIFY(!page.isVisible());
    QCOMPARE(map.value(Key::itcmInitializationPath).toString(), QStringLiteral("init"));
    QCOMPARE(map.value(Key::itcmInitializationAbsolutePath).toString(),
             folder.filePath(QStringLiteral("init")));
}

void tst_CorePage::aFolderBelowTheOutputFolderIsStoredRelative()
{
    const QTemporaryDir folder;
    const QString inside = folder.filePath(QStringLiteral("a/b"));
    QDir().mkpath(inside);
    OptionMap map = mapFor("TV2K-18");
    map[Key::createInPath] = folder.path();
    {
        Page page(&map);
        page.click("checkBoxInitItcm");
        page.path()->setText(inside);
        page.press(QDialogButtonBox::Ok);
    }
    QCOMPARE(map.value(Key::itcmInitializationPath).toString(), QStringLiteral("a/b"));
    QCOMPARE(map.value(Key::itcmInitializationAbsolutePath).toString(), inside);
    {
        const Page page(&map);
        QCOMPARE(page.path()->text(), QDir::toNativeSeparators(inside));
    }
    Page page(&map);
    page.path()->setText(QDir::tempPath());
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(map.value(Key::itcmInitializationPath).toString(), QDir::tempPath());
    QCOMPARE(map.value(Key::itcmInitializationAbsolutePath).toString(), QDir::tempPath());
}

void tst_CorePage::aFolderBelowTheCurrentOneIsRelativeInAProject()
{
    const QTemporaryDir folder;
    const QString createIn = folder.filePath(QStringLiteral("ip"));
    const QString beside = folder.filePath(QStringLiteral("init"));
    QDir().mkpath(createIn);
    QDir().mkpath(beside);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    Project project;
    OptionMap map = mapFor("TV2K-18");
    map[Key::createInPath] = createIn;
    const auto stored = [&] {
        Page page(&map);
        page.path()->setText(QDir::current().filePath(QStringLiteral("init")));
        page.press(QDialogButtonBox::Ok);
        return map.value(Key::itcmInitializationPath).toString();
    };
    const QString outside = stored();
    Core::ProjectManager::setCurrentProject(&project);
    const QString inProject = stored();
    Core::ProjectManager::setCurrentProject(nullptr);
    QDir::setCurrent(before);
    QVERIFY(QDir::isAbsolutePath(outside));
    QCOMPARE(inProject, QStringLiteral("../init"));
    QCOMPARE(QDir::cleanPath(map.value(Key::itcmInitializationAbsolutePath).toString()), beside);
}

void tst_CorePage::choosesAFolder()
{
    const QTemporaryDir folder;
    OptionMap map = mapFor("TV2K-18");
    map[Key::initializeItcm] = true;
    Page page(&map);
    page.path()->setText(QStringLiteral("before"));
    bool accepts = false;
    QString caption;
    const ModalWatcher watcher([&](QWidget *modal) {
        auto *dialog = qobject_cast<QFileDialog *>(modal);
        if (!dialog)
            return;
        caption = dialog->windowTitle();
        if (!accepts) {
            dialog->reject();
            return;
        }
        dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(folder.path());
        QMetaObject::invokeMethod(dialog, "accept");
    });
    page.click("toolButtonItcmInitPath");
    QCOMPARE(caption, QStringLiteral("Cortex-M1"));
    QCOMPARE(page.path()->text(), QStringLiteral("before"));
    accepts = true;
    page.click("toolButtonItcmInitPath");
    QCOMPARE(watcher.count(), 2);
    QCOMPARE(page.path()->text(), folder.path());
}

void tst_CorePage::cancelWritesNothing()
{
    OptionMap map = mapFor("TV2K-18");
    const OptionMap before = map;
    Page page(&map);
    page.click("radioButtonNum1");
    page.click("enableDebugCheckBox");
    page.click("externalDataBtn");
    page.press(QDialogButtonBox::Cancel);
    QCOMPARE(map, before);
    QCOMPARE(page.result(), int(QDialog::Rejected));
}

void tst_CorePage::choosingTheLargestSizeLimitsTheOther()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("32 KB"));
    page.select(page.itcm(), QStringLiteral("64 KB"));
    QCOMPARE(listed(page.dtcm()), sizesUpTo(4));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("16 KB"));
}

void tst_CorePage::externalMemoryLiftsTheLimit()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    page.select(page.itcm(), QStringLiteral("64 KB"));
    page.select(page.dtcm(), QStringLiteral("4 KB"));
    page.click("externalInsBtn");
    QCOMPARE(listed(page.dtcm()), sizesUpTo(6));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("4 KB"));
}

void tst_CorePage::aSelectionMayGetLostOnASmallDevice()
{
    OptionMap map = mapFor("TV1KL-5A");
    map[Key::internalInstructionMemory] = true;
    map[Key::externalInstructionMemory] = false;
    Page page(&map);
    page.select(page.itcm(), QStringLiteral("4 KB"));
    page.select(page.itcm(), QStringLiteral("8 KB"));
    QCOMPARE(listed(page.dtcm()), sizesUpTo(4));
    page.select(page.dtcm(), QStringLiteral("16 KB"));
    page.click("externalInsBtn");
    QCOMPARE(listed(page.dtcm()), sizesUpTo(3));
    QCOMPARE(page.dtcm()->currentIndex(), -1);
    page.press(QDialogButtonBox::Ok);
    QCOMPARE(map.value(Key::dtcmSize), QVariant(-1));
}

void tst_CorePage::anUnknownDeviceBalancesFromEmpty()
{
    OptionMap map = mapFor("");
    Page page(&map);
    page.click("externalDataBtn");
    page.click("internalDataBtn");
    QCOMPARE(listed(page.dtcm()), sizesUpTo(4));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("16 KB"));
    QCOMPARE(page.itcm()->count(), 0);
}

void tst_CorePage::theLimitOf15B()
{
    OptionMap map = mapFor("TV5KT-15B");
    Page page(&map);
    QCOMPARE(listed(page.itcm()), sizesUpTo(6));
    page.select(page.itcm(), QStringLiteral("64 KB"));
    QCOMPARE(listed(page.dtcm()), sizesUpTo(3));
    QCOMPARE(page.dtcm()->currentText(), QStringLiteral("8 KB"));
}

void tst_CorePage::bothMayBeLargestOn75()
{
    OptionMap map = mapFor("TV5KT-75B");
    Page page(&map);
    page.select(page.itcm(), QStringLiteral("256 KB"));
    page.select(page.dtcm(), QStringLiteral("256 KB"));
    QCOMPARE(page.itcm()->currentText(), QStringLiteral("256 KB"));
    QCOMPARE(listed(page.itcm()), sizesUpTo(8));
}

void tst_CorePage::balancesOnlyAfterASignal()
{
    // The stored selections are those of a fresh page, so that loading changes nothing.
    OptionMap map = mapFor("TV1KL-5A");
    map[Key::externalInstructionMemory] = false;
    map[Key::itcmSize] = 3;
    map[Key::dtcmSize] = 3;
    const Page page(&map);
    QCOMPARE(listed(page.dtcm()), sizesUpTo(3));
    QCOMPARE(page.itcm()->currentIndex(), 3);
    QCOMPARE(page.dtcm()->currentIndex(), 3);
}

void tst_CorePage::figureFollowsTheChoices()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    QCOMPARE(page.figurePins().size(), 20);
    page.click("radioButtonSW");
    QCOMPARE(page.figurePins().size(), 6);
    QCOMPARE(page.pinNames().last(), QStringLiteral("JTAG_9"));
    page.click("radioButtonJTAG");
    QCOMPARE(page.figurePins().size(), 20);
    page.click("checkBoxExternalInterrupts");
    page.click("externalInsBtn");
    page.click("externalDataBtn");
    QCOMPARE(page.figurePins().size(), 53);
    page.click("enableDebugCheckBox");
    page.click("checkBoxExternalInterrupts");
    page.click("internalInsBtn");
    page.click("internalDataBtn");
    QCOMPARE(page.pinNames(), QStringList({QStringLiteral("HCLK"), QStringLiteral("hwRstn"),
                                           QStringLiteral("LOCKUP")}));
}

void tst_CorePage::editedMapsGenerateAsTheirCopies()
{
    OptionMap map = mapFor("TV2K-18");
    Page page(&map);
    page.click("radioButtonNum16");
    page.click("radioButtonSW");
    page.select(page.itcm(), QStringLiteral("64 KB"));
    page.click("externalDataBtn");
    page.press(QDialogButtonBox::Ok);
    // As it comes back from a file: every value a text.
    OptionMap texts;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        texts.insert(it.key(), it.value().toString());
    const DEV::DeviceArg device =
        DEV::DeviceDb::bundled().findDevice(idOf(QStringLiteral("TV2K-18")));
    const QVector<IncludeFile> a = buildIncludeFiles(map, device);
    const QVector<IncludeFile> b = buildIncludeFiles(texts, device);
    QCOMPARE(a.size(), b.size());
    for (int i = 0; i < a.size(); ++i)
        QCOMPARE(a.at(i).lines, b.at(i).lines);
    QVERIFY(a.first().lines.contains(QStringLiteral("`define CM1_NUM_IRQ 16")));
    QVERIFY(a.first().lines.contains(QStringLiteral("`define CM1_ITCMSIZE 4'b0111")));
}

void tst_CorePage::behavesAsTheModel_data()
{
    QTest::addColumn<QString>("device");
    for (const QString &device : CoreModel::devices())
        QTest::newRow(device.isEmpty() ? "unknown" : qPrintable(device)) << device;
}

// A few hundred things that a user does in a row per device, over several openings of the page on
// one map; after each, every widget and the figure are compared with the model.
void tst_CorePage::behavesAsTheModel()
{
    QFETCH(QString, device);
    QRandomGenerator random(20240607u + uint(qHash(device)) % 1000u);
    const QTemporaryDir folder;
    OptionMap map = mapFor(device);
    map[Key::createInPath] = folder.path();
    OptionMap expected = map;
    // A valid folder, so that OK always succeeds.
    map[Key::itcmInitializationPath] = folder.path();

    QString trail;
    for (int opening = 0; opening < 12; ++opening) {
        if (opening % 3 == 1) {
            // What a file may hold, sizes that are out of range included.
            const QVariantMap wild = {{Key::itcmSize, random.bounded(-1, 11)},
                                      {Key::dtcmSize, random.bounded(-1, 11)},
                                      {Key::numberOfInterrupts, random.bounded(0, 40)},
                                      {Key::internalInstructionMemory, random.bounded(2) == 1},
                                      {Key::externalInstructionMemory, random.bounded(2) == 1},
                                      {Key::internalDataMemory, random.bounded(2) == 1},
                                      {Key::externalDataMemory, random.bounded(2) == 1},
                                      {Key::debugPortSelect, QStringLiteral("other")}};
            for (auto it = wild.cbegin(); it != wild.cend(); ++it) {
                if (random.bounded(3) > 0)
                    map.insert(it.key(), it.value());
            }
        }
        expected = map;
        CoreModel::Page model(device, expected);
        Page page(&map);
        trail = QStringLiteral("opened %1;").arg(opening);

        const auto pick = [&random](int count) { return random.bounded(count); };
        for (int step = 0; step < 40; ++step) {
            const int counts[] = {1, 8, 16, 32};
            const char *const countButtons[] = {"radioButtonNum1", "radioButtonNum8",
                                                "radioButtonNum16", "radioButtonNum32"};
            const char *const portButtons[] = {"radioButtonJTAG", "radioButtonSW",
                                               "radioButtonJTAGSW"};
            const QString ports[] = {QStringLiteral("JTAG"), QStringLiteral("Serial Wire"),
                                     QStringLiteral("JTAG and Serial Wire")};
            const int action = pick(16);
            switch (action) {
            case 0:
            case 1: {
                const int i = pick(4);
                page.click(countButtons[i]);
                model.chooseInterrupts(counts[i]);
                break;
            }
            case 2:
                page.click("checkBoxExternalInterrupts");
                if (model.externalInterruptsEnabled)
                    model.externalInterrupts = !model.externalInterrupts;
                break;
            case 3:
                page.click("enableDebugCheckBox");
                if (model.debugEnabled)
                    model.debug = !model.debug;
                break;
            case 4: {
                const int i = pick(3);
                page.click(portButtons[i]);
                if (model.debug)
                    model.port = ports[i];
                break;
            }
            case 5:
                page.click("checkBoxSmallDebug");
                if (model.debug)
                    model.smallDebug = !model.smallDebug;
                break;
            case 6:
                page.click("checkBoxOsExtension");
                model.os = !model.os;
                break;
            case 7:
                page.click("checkBoxBigEndian");
                model.bigEndian = !model.bigEndian;
                page.click("checkBoxSmallMultiplier");
                model.smallMultiplier = !model.smallMultiplier;
                break;
            case 8:
                page.click("externalInsBtn");
                model.chooseCode(true);
                break;
            case 9:
                page.click("internalInsBtn");
                if (model.internalCodeEnabled)
                    model.chooseCode(false);
                break;
            case 10:
                page.click(model.externalData ? "internalDataBtn" : "externalDataBtn");
                model.chooseData(!model.externalData);
                break;
            case 11:
                page.click("checkBoxInitItcm");
                if (model.initialiseEnabled)
                    model.chooseInitialise(!model.initialise);
                break;
            default: {
                const bool code = action % 2 == 0;
                if (!(code ? model.codeSizeEnabled : model.dataSizeEnabled))
                    break;
                const int last = code ? model.codeLast : model.dataLast;
                const int current = code ? model.code : model.data;
                QComboBox *box = code ? page.itcm() : page.dtcm();
                int wanted = current;
                const int key = pick(4);
                if (key == 0 && last >= 0)
                    wanted = 0;
                else if (key == 1 && last >= 0)
                    wanted = last;
                else if (key == 2 && current > 0)
                    wanted = current - 1;
                else if (key == 3 && current < last)
                    wanted = current + 1;
                const Qt::Key keys[] = {Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Down};
                QTest::keyClick(box, keys[key]);
                if (code)
                    model.chooseCodeSize(wanted);
                else
                    model.chooseDataSize(wanted);
                break;
            }
            }
            trail += QStringLiteral(" %1").arg(action);

            const auto state = [](const QVariantList &values) {
                QStringList texts;
                for (const QVariant &value : values)
                    texts.append(value.toString());
                return texts.join(u',');
            };
            const int countOn = page.isOn("radioButtonNum1")    ? 1
                                : page.isOn("radioButtonNum8")  ? 8
                                : page.isOn("radioButtonNum16") ? 16
                                                                : 32;
            const QString portOn = page.isOn("radioButtonJTAG") ? ports[0]
                                   : page.isOn("radioButtonSW") ? ports[1]
                                                                : ports[2];
            const QString actual = state({countOn,
                                          page.isOn("checkBoxOsExtension"),
                                          page.isOn("checkBoxSmallMultiplier"),
                                          page.isOn("checkBoxBigEndian"),
                                          page.isOn("checkBoxExternalInterrupts"),
                                          page.isUsable("checkBoxExternalInterrupts"),
                                          page.isOn("enableDebugCheckBox"),
                                          page.isUsable("debugWgt"),
                                          page.isOn("checkBoxSmallDebug"),
                                          portOn,
                                          page.isOn("internalInsBtn"),
                                          page.isOn("externalInsBtn"),
                                          page.isUsable("internalInsBtn"),
                                          page.isOn("internalDataBtn"),
                                          page.isOn("externalDataBtn"),
                                          page.isOn("checkBoxInitItcm"),
                                          page.isUsable("checkBoxInitItcm"),
                                          page.isUsable("itcmInitPathWgt"),
                                          page.isUsable("comboBoxItcmSize"),
                                          page.isUsable("comboBoxDtcmSize"),
                                          page.itcm()->count(),
                                          page.itcm()->currentIndex(),
                                          page.dtcm()->count(),
                                          page.dtcm()->currentIndex()});
            const QString wanted = state({model.interrupts,
                                          model.os,
                                          model.smallMultiplier,
                                          model.bigEndian,
                                          model.externalInterrupts,
                                          model.externalInterruptsEnabled,
                                          model.debug,
                                          model.debug,
                                          model.smallDebug,
                                          model.port,
                                          !model.externalCode,
                                          model.externalCode,
                                          model.internalCodeEnabled,
                                          !model.externalData,
                                          model.externalData,
                                          model.initialise,
                                          model.initialiseEnabled,
                                          model.pathEnabled,
                                          model.codeSizeEnabled,
                                          model.dataSizeEnabled,
                                          model.codeLast + 1,
                                          model.code,
                                          model.dataLast + 1,
                                          model.data});
            QVERIFY2(actual == wanted, qPrintable(trail + u'\n' + actual + u'\n' + wanted));
            QStringList pins;
            for (const Utils::PinFigure &pin : page.figurePins())
                pins.append(QStringLiteral("%1 %2").arg(pin.name()).arg(pin.direction()));
            QVERIFY2(pins == model.pins(), qPrintable(trail));
        }

        if (opening % 4 == 3) {
            page.press(QDialogButtonBox::Cancel);
        } else {
            page.press(QDialogButtonBox::Ok);
            QCOMPARE(page.result(), int(QDialog::Accepted));
            model.store(expected);
            expected[Key::itcmInitializationPath] = folder.path();
            expected[Key::itcmInitializationAbsolutePath] = folder.path();
        }
        QVERIFY2(map == expected, qPrintable(trail));
    }
}

QTEST_MAIN(tst_CorePage)
#include "tst_corepage.moc"
