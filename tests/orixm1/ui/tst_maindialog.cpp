#include "dialogdriver.h"
#include "testsupport.h"

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <core/editormanager.h>
#include <core/project.h>
#include <core/projectmanager.h>
#include <dev/devicedb.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>
#include <ui/tarvoorixm1dlg.h>
#include <utils/folderlock.h>
#include <utils/inifile.h>

#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace TARVOORIXM1;

namespace
{

constexpr int runTimeout = 120000; // ms; a run takes seconds, a loaded machine may take longer

QVariantMap descriptor()
{
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    QVariantMap ipInfo = IPCore::processIPInfoSpec(descriptorPath(data));
    addDataFolders(ipInfo, data);
    return ipInfo;
}

DEV::DeviceArg deviceNamed(const char *name, const char *package = "")
{
    DEV::ChipFilter filter;
    filter.id = QString::fromLatin1(name);
    filter.package = QString::fromLatin1(package);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

// What the host is told.
struct Host : Core::Project {
    QString name() const override { return QStringLiteral("p"); }
    QString path() const override { return QStringLiteral("/p"); }
    void addFiles(const QStringList &paths) override { added.append(paths); }

    QList<QStringList> added;
    QStringList opened;
};

// A PATH on which only some programs are found, for as long as it lives.
class SearchPath
{
public:
    explicit SearchPath(const QByteArray &path)
        : m_before(qgetenv("PATH"))
    {
        qputenv("PATH", path);
    }
    ~SearchPath() { qputenv("PATH", m_before); }

private:
    QByteArray m_before;
};

// A folder with a program "yosys" that runs a shell script.
class FakeTool
{
public:
    explicit FakeTool(const QByteArray &script)
    {
        const QString path = dir.filePath(QStringLiteral("yosys"));
        TestSupport::write(path, "#!/bin/bash\n" + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QTemporaryDir dir;
    SearchPath searchPath{dir.path().toUtf8() + ':' + qgetenv("PATH")};
};

} // namespace

class tst_MainDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsTheCreateInField();
    void offersWhatTheDeviceCanHave_data();
    void offersWhatTheDeviceCanHave();
    void savesWhatItLoads();
    void savingTakesTheFolderOutOfTheMap();
    void tellsAHostWhatOkWouldStore();
    void tellsEachChangeOfWhatOkWouldStore();
    void eachAcceptedDialogIsAStep();
    void goesToAnyStepAndBackToTheFile();
    void keysUndoAndRedo();
    void stepsLeaveTheFieldsOfTheWindow();
    void noStepWhileADialogIsOpen();
    void aCancelledDialogThatChangesAnOptionIsAStep();
    void refusesOtherVersions_data();
    void refusesOtherVersions();
    void warnsOfTheDeviceBeforeTheVersion();
    void anUnknownToolLeavesTheSelection();
    void checksTheInitialisationFolder_data();
    void checksTheInitialisationFolder();
    void anEmptyFolderStopsBeforeAnythingIsMade();
    void theFolderIsConfirmedBeforeTheInitialisationIsChecked();
    void noGenerationFolderBeforeTheInitialisationIsSound();
    void helpOpensTheDescriptorsFile();
    void aDeclinedOverwriteWritesNothing();
    void anUnmakeableGenerationFolderIsReported();
    void anUnwritableIncludeFileStopsBeforeTheRun();

    void aFolderInUseStopsBeforeAnythingIsWritten();
    void ofTwoDialogsOnlyOneHasTheFolder();
    void theFolderIsFreeWhenARunIsOver_data();
    void theFolderIsFreeWhenARunIsOver();

    void generatesAndCloses();
    void aMissingToolLeavesTheDialogOpenAndASecondTryWorks();
    void aCrashIsReportedAndLeavesNothingHalfWritten();
    void cancellingEndsTheRunOnly();
    void closingTheDialogEndsTheTool();
    void generatesVhdl();
    void anotherToolTextRunsWithEmptyPaths();
    void anotherToolTextLeavesTheToolOfTheRunBefore();
    void brokenContentsEndTheRunBeforeTheTool();
    void theOutputFolderComesBackWhereTheDialogStaysOpen_data();
    void theOutputFolderComesBackWhereTheDialogStaysOpen();
    void aFailedRunKeepsTheInitialisationFolder();
    void tellsTheHostWhereEditedFilesAre();
    void anEditedFileThatCannotBeReadStopsBeforeTheRun();
    void placesASecondSetUnderAPrefix_data();
    void placesASecondSetUnderAPrefix();
    void aSecondSetThatCannotBePlacedIsToldAndTheRunCounts_data();
    void aSecondSetThatCannotBePlacedIsToldAndTheRunCounts();

private:
    std::unique_ptr<TarvoOrixM1Dlg> newDialog(const char *device = "TV2KR-18C-QFN88P-C8/I7");
    std::unique_ptr<TarvoOrixM1Dlg> opened(const QByteArray &config, bool *ok = nullptr);
    static void pressOk(TarvoOrixM1Dlg &dialog);
    // Presses OK and answers everything that comes up until the run is over; returns the error
    // window's texts.
    static QStringList runToTheEnd(TarvoOrixM1Dlg &dialog);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Host> m_host;
};

void tst_MainDialog::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_host = std::make_unique<Host>();
    Core::ProjectManager::setCurrentProject(m_host.get());
    Core::EditorManager::setHandler([this](const QString &path, bool temporary) {
        m_host->opened.append(temporary ? QLatin1String("temporary ") + path : path);
        return true;
    });
}

void tst_MainDialog::cleanup()
{
    Core::ProjectManager::setCurrentProject(nullptr);
    Core::EditorManager::setHandler(nullptr);
    m_host.reset();
    m_dir.reset();
}

std::unique_ptr<TarvoOrixM1Dlg> tst_MainDialog::newDialog(const char *device)
{
    auto dialog = std::make_unique<TarvoOrixM1Dlg>(descriptor());
    dialog->prepareNew(m_dir->path(), deviceNamed(device));
    return dialog;
}

std::unique_ptr<TarvoOrixM1Dlg> tst_MainDialog::opened(const QByteArray &config, bool *ok)
{
    static int serial = 0; // QSettings remembers paths
    const QString file = m_dir->filePath(QString::number(++serial) + QLatin1String(".ipc"));
    TestSupport::write(file, config);
    auto dialog = std::make_unique<TarvoOrixM1Dlg>(descriptor());
    const bool prepared = dialog->prepareOpen(m_dir->path(), file);
    if (ok)
        *ok = prepared;
    return dialog;
}

void tst_MainDialog::pressOk(TarvoOrixM1Dlg &dialog)
{
    dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))
        ->button(QDialogButtonBox::Ok)
        ->click();
}

QStringList tst_MainDialog::runToTheEnd(TarvoOrixM1Dlg &dialog)
{
    QStringList texts;
    bool failed = false;
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            texts.append(box->text());
            if (QAbstractButton *yes = box->button(QMessageBox::Yes)) {
                yes->click();
            } else {
                failed = true;
                box->close();
            }
        } else if (auto *title = modal->findChild<QLabel *>(QStringLiteral("titleLabel"))) {
            texts.append(title->text());
            const auto *details = modal->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"));
            texts.append(details->toPlainText().split(u'\n', Qt::SkipEmptyParts));
            failed = true;
            modal->close();
        }
    });
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    pressOk(dialog);
    [&] { QTRY_VERIFY_WITH_TIMEOUT(failed || accepted.count() > 0, runTimeout); }();
    return texts;
}

void tst_MainDialog::tellsAHostWhatOkWouldStore()
{
    const auto dialog = newDialog();
    dialog->setLanguageIndex(1);
    const OptionMap before = dialog->currentOptions();
    QVariantMap told;
    QVERIFY(
        QMetaObject::invokeMethod(dialog.get(), "configuration", Q_RETURN_ARG(QVariantMap, told)));
    QCOMPARE(dialog->currentOptions(), before); // it only looks
    dialog->confirmOutputFolder();
    dialog->saveIPConfig();
    const QString file = told.value(QStringLiteral("file")).toString();
    const QByteArray stored = TestSupport::contentsOf(file);
    QVERIFY(!stored.isEmpty());
    QVERIFY(Utils::writeIniFile(
        file + QStringLiteral(".told"), told.value(QStringLiteral("header")).toMap(),
        QStringLiteral("Config"), told.value(QStringLiteral("options")).toMap()));
    QCOMPARE(TestSupport::contentsOf(file + QStringLiteral(".told")), stored);
}

namespace
{

// Opens the dialog of a block, clicks some of its boxes, and presses OK or Cancel.
void configure(TarvoOrixM1Dlg &dialog, const char *slot, const QStringList &boxes,
               QDialogButtonBox::StandardButton end = QDialogButtonBox::Ok)
{
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        for (const QString &box : boxes)
            modal->findChild<QAbstractButton *>(box)->click();
        modal->findChild<QDialogButtonBox *>()->button(end)->click();
    });
    QMetaObject::invokeMethod(dialog.findChild<IPView *>(), slot);
    QCOMPARE(watcher.count(), 1);
}

QStringList namesOf(const TarvoOrixM1Dlg &dialog)
{
    QStringList names;
    for (const QVariant &step : dialog.steps())
        names.append(step.toMap().value(QStringLiteral("name")).toString());
    return names;
}

const QString uart0 = QStringLiteral("enableUart0CheckBox");
const QString uart1 = QStringLiteral("enableUart1CheckBox");
const QString rtc = QStringLiteral("enableRtcCheckBox");

} // namespace

void tst_MainDialog::tellsEachChangeOfWhatOkWouldStore()
{
    TarvoOrixM1Dlg dialog(descriptor());
    QVariantMap heard = dialog.configuration();
    int changes = 0;
    connect(&dialog, &TarvoOrixM1Dlg::configurationChanged, [&] {
        QVERIFY(dialog.configuration() != heard);
        heard = dialog.configuration();
        ++changes;
    });
    const auto changesBy = [&](const std::function<void()> &action) {
        changes = 0;
        action();
        [&] { QCOMPARE(heard, dialog.configuration()); }();
        return changes;
    };
    QVERIFY(changesBy([&] {
                dialog.prepareNew(m_dir->path(), deviceNamed("TV2KR-18C-QFN88P-C8/I7"));
            }) > 0);
    QCOMPARE(changesBy([&] { dialog.setLanguageIndex(1); }), 1);
    QCOMPARE(changesBy([&] { dialog.setLanguageIndex(1); }), 0);
    auto *tools = dialog.findChild<QComboBox *>(QStringLiteral("synToolComboBox"));
    tools->addItem(QStringLiteral("Another"));
    QCOMPARE(changesBy([&] { dialog.selectSynthesisTool(QStringLiteral("Another")); }), 1);
    auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("editCreateIn"));
    QCOMPARE(changesBy([&] { field->setText(m_dir->filePath(QStringLiteral("a"))); }), 1);
    // The same folder.
    QCOMPARE(changesBy([&] { field->setText(m_dir->filePath(QStringLiteral("a/"))); }), 0);
    QCOMPARE(changesBy([&] { configure(dialog, "onRtc", {rtc}); }), 1);
    QCOMPARE(changesBy([&] { configure(dialog, "onRtc", {}); }), 0);
    QCOMPARE(changesBy([&] { configure(dialog, "onRtc", {rtc}, QDialogButtonBox::Cancel); }), 0);
    QCOMPARE(changesBy([&] { dialog.goToStep(0); }), 1);
    QCOMPARE(changesBy([&] { dialog.goToStep(0); }), 0);
    QCOMPARE(changesBy([&] { dialog.goToStep(1); }), 1);
    QCOMPARE(changesBy([&] { dialog.goToStep(2); }), 0);
    field->setText(m_dir->path());
    QCOMPARE(changesBy([&] { dialog.saveIPConfig(); }), 0);
}

void tst_MainDialog::eachAcceptedDialogIsAStep()
{
    const auto dialog = newDialog();
    QCOMPARE(dialog->steps(), QVariantList());
    QCOMPARE(dialog->currentStep(), 0);
    configure(*dialog, "onUart", {uart0});
    configure(*dialog, "onRtc", {rtc}, QDialogButtonBox::Cancel);
    configure(*dialog, "onRtc", {});
    configure(*dialog, "onRtc", {});
    configure(*dialog, "onUart", {uart0, uart1});
    QCOMPARE(namesOf(*dialog),
             QStringList({QStringLiteral("UART0 on"), QStringLiteral("RTC confirmed"),
                          QStringLiteral("UART0 off, UART1 on")}));
    QCOMPARE(dialog->currentStep(), 3);
    // What is undone is there until another step takes its place.
    QVERIFY(dialog->goToStep(1));
    QCOMPARE(namesOf(*dialog).size(), 3);
    configure(*dialog, "onRtc", {rtc});
    QCOMPARE(namesOf(*dialog), QStringList({QStringLiteral("UART0 on"), QStringLiteral("RTC on")}));
}

void tst_MainDialog::goesToAnyStepAndBackToTheFile()
{
    const auto dialog = opened("[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\ntype=x\n"
                               "version=1.0\n[Config]\nEnable%20RTC=true\nown=1\n");
    QVector<QVariantMap> states = {dialog->configuration()};
    configure(*dialog, "onRtc", {});
    QCOMPARE(dialog->steps().size(), 0); // the file holds the same
    configure(*dialog, "onRtc", {rtc});
    states.append(dialog->configuration());
    configure(*dialog, "onUart", {uart1});
    states.append(dialog->configuration());
    configure(*dialog, "onCortexM1", {QStringLiteral("radioButtonNum16")});
    states.append(dialog->configuration());
    for (const int step : {0, 3, 1, 2, 0, 2, 3}) {
        bool went = false;
        QVERIFY(QMetaObject::invokeMethod(dialog.get(), "goToStep", Q_RETURN_ARG(bool, went),
                                          Q_ARG(int, step)));
        QVERIFY(went);
        QCOMPARE(dialog->currentStep(), step);
        QCOMPARE(dialog->configuration(), states.at(step));
    }
    for (const int none : {-1, 4}) {
        QVERIFY(!dialog->goToStep(none));
        QCOMPARE(dialog->currentStep(), 3);
    }
}

void tst_MainDialog::keysUndoAndRedo()
{
    const auto dialog = newDialog();
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *view = dialog->findChild<IPView *>();
    view->setFocus();
    configure(*dialog, "onUart", {uart0});
    configure(*dialog, "onRtc", {rtc});
    const auto press = [&](int key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(view, Qt::Key(key), modifiers);
        return dialog->currentStep();
    };
    const auto isActive = [&](const char *label) {
        for (QGraphicsItem *item : view->scene()->items()) {
            auto *block = qgraphicsitem_cast<IPItem *>(item);
            if (block && block->text() == QLatin1String(label))
                return block->isActive();
        }
        return false;
    };
    QVERIFY(isActive("RTC"));
    QCOMPARE(press(Qt::Key_Z, Qt::ControlModifier), 1);
    QVERIFY(!isActive("RTC"));
    QVERIFY(isActive("UART0"));
    QCOMPARE(press(Qt::Key_Z, Qt::ControlModifier), 0);
    QCOMPARE(press(Qt::Key_Z, Qt::ControlModifier), 0);
    QCOMPARE(press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier), 1);
    QCOMPARE(press(Qt::Key_Y, Qt::ControlModifier), 2);
    QCOMPARE(press(Qt::Key_Y, Qt::ControlModifier), 2);
    QVERIFY(isActive("RTC"));
}

void tst_MainDialog::stepsLeaveTheFieldsOfTheWindow()
{
    const auto dialog = newDialog();
    auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"));
    configure(*dialog, "onRtc", {rtc});
    field->setText(QStringLiteral("/elsewhere"));
    dialog->setLanguageIndex(1);
    QVERIFY(dialog->goToStep(0));
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(),
             QStringLiteral("/elsewhere"));
    QCOMPARE(dialog->languageIndex(), 1);
    QVERIFY(!dialog->currentOptions().contains(Key::enableRtc));
    QCOMPARE(dialog->currentOptions().value(Key::ipDevice).toString(), QStringLiteral("TV2KR-18C"));
}

void tst_MainDialog::noStepWhileADialogIsOpen()
{
    const auto dialog = newDialog();
    configure(*dialog, "onRtc", {rtc});
    bool refused = false;
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        refused = !dialog->goToStep(0);
        modal->close();
    });
    dialog->findChild<IPView *>()->onRtc();
    QVERIFY(refused);
    QCOMPARE(dialog->currentStep(), 1);
    QVERIFY(dialog->goToStep(0));
}

void tst_MainDialog::aCancelledDialogThatChangesAnOptionIsAStep()
{
    const auto dialog = newDialog("TV1KL-5A");
    const QVariantMap before = dialog->configuration();
    configure(*dialog, "onCortexM1", {}, QDialogButtonBox::Cancel);
    QVERIFY(dialog->configuration() != before);
    QCOMPARE(dialog->steps().size(), 1);
    QVERIFY(dialog->goToStep(0));
    QCOMPARE(dialog->configuration(), before);
}

void tst_MainDialog::followsTheCreateInField()
{
    TarvoOrixM1Dlg fresh(descriptor());
    QCOMPARE(fresh.windowTitle(), QStringLiteral("Tarvo ORIX M1"));
    QCOMPARE(fresh.targetName(), QStringLiteral("tarvo_orix_m1"));
    QCOMPARE(fresh.currentOptions(), (OptionMap{{Key::createInPath, QString()}}));

    const auto dialog = newDialog();
    auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"));
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(),
             m_dir->filePath(QStringLiteral("tarvo_orix_m1")));
    field->setText(QStringLiteral("/x/"));
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(), QStringLiteral("/x/"));
    QCOMPARE(dialog->currentOptions().value(Key::ipDeviceId).toString(),
             QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    QCOMPARE(dialog->currentOptions().value(Key::ipDevice).toString(), QStringLiteral("TV2KR-18C"));
}

void tst_MainDialog::offersWhatTheDeviceCanHave_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<bool>("psram");
    QTest::addColumn<bool>("ddr3");
    QTest::addColumn<bool>("others");
    QTest::newRow("TV2KR-18C in QFN88")
        << QByteArray("TV2KR-18C") << QByteArray("QFN88") << false << true << true;
    QTest::newRow("TV2KR-18C in QFN88PF")
        << QByteArray("TV2KR-18C") << QByteArray("QFN88PF") << true << true << true;
    QTest::newRow("TV2KLR-18C in QFN88")
        << QByteArray("TV2KLR-18C") << QByteArray("QFN88") << true << true << true;
    QTest::newRow("TV1KL-5A") << QByteArray("TV1KL-5A") << QByteArray() << false << false << false;
    QTest::newRow("TV1L-9") << QByteArray("TV1L-9") << QByteArray() << false << false << true;
    QTest::newRow("TV5KT-138") << QByteArray("TV5KT-138") << QByteArray() << false << true << true;
}

void tst_MainDialog::offersWhatTheDeviceCanHave()
{
    QFETCH(QByteArray, device);
    QFETCH(QByteArray, package);
    QFETCH(bool, others);
    TarvoOrixM1Dlg dialog(descriptor());
    dialog.prepareNew(m_dir->path(), deviceNamed(device.constData(), package.constData()));
    const auto *view = dialog.findChild<IPView *>();
    QVERIFY(view);
    QTEST(view->isBlockAvailable(Key::enablePsram), "psram");
    QTEST(view->isBlockAvailable(Key::enableDdr3), "ddr3");
    QCOMPARE(view->isBlockAvailable(Key::enableEthernet), others);
    QCOMPARE(view->isBlockAvailable(Key::enableCan), others);
    // SPI-Flash is registered under the key of SPI.
    QCOMPARE(view->isBlockAvailable(Key::enableSpi), others);
}

void tst_MainDialog::savesWhatItLoads()
{
    // Every key with a value that is not its default.
    QByteArray config =
        "[General]\ntarget_device=TV5KT-138B-PBGA484-C2/I1\ntype=x\nversion=1.0\n[Config]\n";
    OptionMap expected;
    for (const Option &option : optionTable()) {
        if (!option.isOption)
            continue;
        QString text = QStringLiteral("own text");
        if (option.type == OptionType::Bool)
            text = option.defaultValue.toBool() ? QStringLiteral("false") : QStringLiteral("true");
        else if (!option.choices.isEmpty())
            text = option.choices.first();
        else if (option.type == OptionType::Int)
            text = QStringLiteral("3");
        config += option.key.toUtf8().replace(' ', "%20") + '=' + text.toUtf8() + '\n';
        expected.insert(option.key, text);
    }
    config += "LANG=1\nSynthesis_tool=TarvoSynthesis\ncreatein_path=/some/where\n";
    expected.insert(Key::lang, QStringLiteral("1"));
    expected.insert(Key::synthesisTool, QStringLiteral("TarvoSynthesis"));
    expected.insert(Key::ipDevice, QStringLiteral("TV5KT-138B"));
    expected.insert(Key::ipDeviceId, QStringLiteral("TV5KT-138B-PBGA484-C2/I1"));

    bool ok = false;
    const auto dialog = opened(config, &ok);
    QVERIFY(ok);
    QCOMPARE(dialog->languageIndex(), 1);
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(), m_dir->path());
    QVERIFY(dialog->saveIPConfig());

    const QString path = m_dir->filePath(QStringLiteral("tarvo_orix_m1.ipc"));
    QSettings settings(path, QSettings::IniFormat);
    QCOMPARE(settings.childKeys(),
             (QStringList{QStringLiteral("target_device"), QStringLiteral("type"),
                          QStringLiteral("version")}));
    QCOMPARE(settings.value(QStringLiteral("target_device")).toString(),
             QStringLiteral("TV5KT-138B-PBGA484-C2/I1"));
    QCOMPARE(settings.value(QStringLiteral("type")).toString(),
             descriptor().value(InfoKey::id).toString());
    settings.beginGroup(QStringLiteral("Config"));
    OptionMap stored;
    for (const QString &key : settings.childKeys())
        stored.insert(key, settings.value(key).toString());
    QCOMPARE(stored, expected);

    // The same file is replaced by the same bytes.
    const QByteArray bytes = TestSupport::contentsOf(path);
    QVERIFY(dialog->saveIPConfig());
    QCOMPARE(TestSupport::contentsOf(path), bytes);
    QCOMPARE(QDir(m_dir->path()).entryList({QStringLiteral("tarvo*")}),
             QStringList{QStringLiteral("tarvo_orix_m1.ipc")});
}

void tst_MainDialog::savingTakesTheFolderOutOfTheMap()
{
    const auto dialog = newDialog();
    auto *field = dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"));
    field->setText(m_dir->path());
    QVERIFY(dialog->currentOptions().contains(Key::createInPath));
    dialog->saveIPConfig();
    QVERIFY(!dialog->currentOptions().contains(Key::createInPath));
    field->setText(m_dir->path());
    QVERIFY(
        !dialog->currentOptions().contains(Key::createInPath)); // no change of the text, no entry
    field->setText(QStringLiteral("/x"));
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(), QStringLiteral("/x"));
}

void tst_MainDialog::refusesOtherVersions_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::newRow("1.00") << QByteArray("version=1.00\n");
    QTest::newRow("1.0 and a blank") << QByteArray("version=\"1.0 \"\n");
    QTest::newRow("none") << QByteArray();
}

void tst_MainDialog::refusesOtherVersions()
{
    QFETCH(QByteArray, version);
    bool ok = true;
    std::unique_ptr<TarvoOrixM1Dlg> dialog;
    const auto boxes = TestSupport::boxesOf([&] {
        dialog = opened("[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\n" + version +
                            "[Config]\nEnable%20RTC=true\n",
                        &ok);
    });
    QVERIFY(!ok);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().title, QStringLiteral("Error"));
    QCOMPARE(boxes.first().text,
             QStringLiteral("This version of specified IP Config file is incompatible with "
                            "current IP Core Generator."));
    QCOMPARE(boxes.first().icon, QMessageBox::NoIcon);
    QVERIFY(boxes.first().hasPixmap && boxes.first().hasWindowIcon);
    QVERIFY(!dialog->currentOptions().contains(Key::enableRtc));
}

void tst_MainDialog::warnsOfTheDeviceBeforeTheVersion()
{
    const auto boxes = TestSupport::boxesOf([&] { opened("[General]\nversion=2\n"); });
    QCOMPARE(boxes.size(), 2);
    QCOMPARE(boxes.at(0).title, QStringLiteral("Warning"));
    QCOMPARE(boxes.at(1).title, QStringLiteral("Error"));
}

void tst_MainDialog::anUnknownToolLeavesTheSelection()
{
    const auto dialog = opened("[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\nversion=1.0\n"
                               "[Config]\nSynthesis_tool=Synplify Pro\nLANG=7\n");
    QCOMPARE(dialog->synthesisTool(), QStringLiteral("TarvoSynthesis"));
    QCOMPARE(dialog->languageIndex(), -1);
}

void tst_MainDialog::checksTheInitialisationFolder_data()
{
    QTest::addColumn<QByteArray>("config");
    QTest::addColumn<QString>("message");
    const QString empty = QStringLiteral("ITCM Initialization Path is empty.");
    const QString missing = QStringLiteral("ITCM Initialization Path is not exist.");
    QTest::newRow("no initialisation") << QByteArray() << QString();
    QTest::newRow("no initialisation, bad path")
        << QByteArray("ITCM_Initialization_Path=gone\n") << QString();
    QTest::newRow("external memory")
        << QByteArray("Initialize%20ITCM=true\nInternal_Instruction_Memory=false\n") << QString();
    QTest::newRow("empty") << QByteArray(
                                  "Initialize%20ITCM=true\nInternal_Instruction_Memory=true\n")
                           << empty;
    QTest::newRow("empty, memory not stored") << QByteArray("Initialize%20ITCM=true\n") << empty;
    QTest::newRow("below the output folder")
        << QByteArray("Initialize%20ITCM=true\nITCM_Initialization_Path=init\n") << QString();
    QTest::newRow("missing") << QByteArray(
                                    "Initialize%20ITCM=true\nITCM_Initialization_Path=gone\n")
                             << missing;
    QTest::newRow("a file") << QByteArray("Initialize%20ITCM=true\nITCM_Initialization_Path=file\n")
                            << missing;
    QTest::newRow("absolute") << QByteArray("Initialize%20ITCM=true\nITCM_Initialization_Path=/\n")
                              << QString();
    QTest::newRow("absolute and missing")
        << QByteArray("Initialize%20ITCM=true\nITCM_Initialization_Path=/no/such/folder\n")
        << missing;
}

void tst_MainDialog::checksTheInitialisationFolder()
{
    QFETCH(QByteArray, config);
    QFETCH(QString, message);
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("init")));
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("file")), "x"));
    const auto dialog =
        opened("[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\nversion=1.0\n[Config]\n" + config);
    const OptionMap before = dialog->currentOptions();
    bool ok = false;
    const auto boxes = TestSupport::boxesOf([&] { ok = dialog->checkItcmInitPath(); });
    QCOMPARE(ok, message.isEmpty());
    QCOMPARE(boxes.size(), message.isEmpty() ? 0 : 1);
    if (!boxes.isEmpty()) {
        QCOMPARE(boxes.first().text, message);
        QCOMPARE(boxes.first().title, QStringLiteral("Error"));
        QCOMPARE(boxes.first().defaultButton, QMessageBox::Ok);
        QVERIFY(boxes.first().hasPixmap);
        QCOMPARE(boxes.first().parent, dialog.get());
    }
    QCOMPARE(dialog->currentOptions(), before);
}

void tst_MainDialog::anEmptyFolderStopsBeforeAnythingIsMade()
{
    const auto dialog = newDialog();
    dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"))->clear();
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); });
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().details, QStringLiteral("\"Create In\" can not be empty."));
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList());
    QVERIFY(!QFileInfo::exists(QStringLiteral("temp")));
}

void tst_MainDialog::theFolderIsConfirmedBeforeTheInitialisationIsChecked()
{
    const auto dialog =
        opened("[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\nversion=1.0\n[Config]\n"
               "Initialize%20ITCM=true\nITCM_Initialization_Path=gone\n");
    // As for a new IP, whose folder is there.
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QVERIFY(QDir().mkpath(folder));
    dialog->prepareNew(m_dir->path(), deviceNamed("TV2K-55"));
    const auto asked = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Yes);
    QCOMPARE(asked.size(), 2);
    QVERIFY(asked.at(0).text.endsWith(QLatin1String("do you want to overwrite?")));
    QCOMPARE(asked.at(1).text, QStringLiteral("ITCM Initialization Path is not exist."));
    const auto declined = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Cancel);
    QCOMPARE(declined.size(), 1);
    QCOMPARE(TestSupport::entriesOf(folder), QStringList());
}

void tst_MainDialog::noGenerationFolderBeforeTheInitialisationIsSound()
{
    const auto dialog =
        opened("[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\nversion=1.0\n[Config]\n"
               "Initialize%20ITCM=true\nITCM_Initialization_Path=gone\n");
    dialog->prepareNew(m_dir->path(), deviceNamed("TV2K-55"));
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); });
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().text, QStringLiteral("ITCM Initialization Path is not exist."));
    // The output folder has been made by then, and nothing in it.
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(TestSupport::entriesOf(folder), QStringList());
    QVERIFY(!dialog->findChild<IPCore::SynthesisHelper *>());
}

namespace
{

// Takes the place of the desktop's programs for files.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url); }
};

} // namespace

void tst_MainDialog::helpOpensTheDescriptorsFile()
{
    const QVariantMap info = descriptor();
    const QString file = info.value(InfoKey::help).toString();
    QVERIFY2(QFileInfo(file).isFile(), qPrintable(file));
    TarvoOrixM1Dlg dialog(info);
    QAbstractButton *help = dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))
                                ->button(QDialogButtonBox::Help);
    QVERIFY(help->isHidden());
    Desktop desktop;
    help->click();
    QCOMPARE(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(file)});
}

void tst_MainDialog::aDeclinedOverwriteWritesNothing()
{
    const auto dialog = newDialog();
    QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("tarvo_orix_m1")));
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Cancel);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(TestSupport::entriesOf(m_dir->filePath(QStringLiteral("tarvo_orix_m1"))),
             QStringList());
}

void tst_MainDialog::anUnmakeableGenerationFolderIsReported()
{
    const auto dialog = newDialog();
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QVERIFY(TestSupport::write(folder + QLatin1String("/temp"), "in the way"));
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Yes);
    QCOMPARE(boxes.size(), 2);
    QVERIFY2(boxes.at(1).text.contains(QLatin1String("/temp\" is a file")),
             qPrintable(boxes.at(1).text));
    QCOMPARE(TestSupport::entriesOf(folder), QStringList{QStringLiteral("temp")});
    QVERIFY(!dialog->findChild<IPCore::SynthesisHelper *>());
}

void tst_MainDialog::anUnwritableIncludeFileStopsBeforeTheRun()
{
    const auto dialog = newDialog();
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    // A folder stands where the second file would.
    QVERIFY(QDir().mkpath(folder + QLatin1String("/temp/tv_orix_m1/psram_define.v")));
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Yes);
    QCOMPARE(boxes.size(), 2);
    QVERIFY(boxes.at(1).text.contains(QLatin1String("psram_define.v")));
    // What was written before stays, the configuration too; nothing later is there.
    QCOMPARE(TestSupport::entriesOf(folder),
             (QStringList{QStringLiteral("tarvo_orix_m1.ipc"), QStringLiteral("temp")}));
    QCOMPARE(TestSupport::entriesOf(folder + QLatin1String("/temp/tv_orix_m1")),
             (QStringList{QStringLiteral("cm1_option_defs.v"), QStringLiteral("psram_define.v")}));
    QVERIFY(!dialog->findChild<IPCore::SynthesisHelper *>());
}

void tst_MainDialog::generatesAndCloses()
{
    const auto dialog = newDialog();
    dialog->show();
    QCOMPARE(runToTheEnd(*dialog), QStringList());
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QVERIFY(!dialog->isVisible());

    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QCOMPARE(TestSupport::entriesOf(folder),
             (QStringList{QStringLiteral("tarvo_orix_m1.ipc"), QStringLiteral("tarvo_orix_m1.v"),
                          QStringLiteral("tarvo_orix_m1.vo"), QStringLiteral("tarvo_orix_m1_tmp.v"),
                          QStringLiteral("temp")}));
    QCOMPARE(m_host->opened, (QStringList{folder + QLatin1String("/tarvo_orix_m1.v"),
                                          folder + QLatin1String("/tarvo_orix_m1_tmp.v")}));
    QCOMPARE(m_host->added,
             QList<QStringList>{QStringList{folder + QLatin1String("/tarvo_orix_m1.v")}});
    QVERIFY(TestSupport::contentsOf(folder + QLatin1String("/tarvo_orix_m1.v"))
                .contains("Tarvo_ORIX_M1_Top"));
    // Intermediate files stay.
    QVERIFY(TestSupport::entriesOf(folder + QLatin1String("/temp/tv_orix_m1"))
                .contains(QStringLiteral("tarvo_orix_m1.vg")));

    // The command line finds what it would have made itself.
    for (const QStringList &further : {QStringList{QStringLiteral("--check")}, QStringList()}) {
        QProcess command;
        command.setProcessChannelMode(QProcess::MergedChannels);
        command.start(
            QStringLiteral(TARVO_COMMAND),
            QStringList{QStringLiteral("generate"), folder + QLatin1String("/tarvo_orix_m1.ipc")} +
                further);
        QVERIFY(command.waitForFinished(runTimeout));
        const QByteArray told = command.readAll();
        QVERIFY2(command.exitCode() == 0, told.constData());
        QVERIFY2(told.contains("fresh"), told.constData());
    }
}

void tst_MainDialog::aMissingToolLeavesTheDialogOpenAndASecondTryWorks()
{
    const auto dialog = newDialog();
    dialog->show();
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    {
        const SearchPath nothing(m_dir->path().toUtf8());
        const QStringList texts = runToTheEnd(*dialog);
        QVERIFY2(texts.value(0).contains(QLatin1String("Yosys")), qPrintable(texts.join(u'|')));
    }
    QVERIFY(dialog->isVisible());
    QCOMPARE(TestSupport::entriesOf(folder),
             (QStringList{QStringLiteral("tarvo_orix_m1.ipc"), QStringLiteral("temp")}));
    QVERIFY(m_host->opened.isEmpty() && m_host->added.isEmpty());

    const QStringList texts = runToTheEnd(*dialog);
    QCOMPARE(texts.size(), 1); // the question about the folder
    QVERIFY(!dialog->isVisible());
    QCOMPARE(m_host->added.size(), 1);
    QCOMPARE(dialog->findChildren<IPCore::SynthesisHelper *>().size(), 1);
}

void tst_MainDialog::aCrashIsReportedAndLeavesNothingHalfWritten()
{
    const FakeTool fake("echo half > tarvo_orix_m1.vg.part\nkill -SEGV $$\n");
    const auto dialog = newDialog();
    dialog->show();
    const QStringList texts = runToTheEnd(*dialog);
    QVERIFY2(texts.value(0).contains(QLatin1String("crashed")), qPrintable(texts.join(u'|')));
    QVERIFY(dialog->isVisible());
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QVERIFY(!QFileInfo::exists(folder + QLatin1String("/tarvo_orix_m1.v")));
    QVERIFY(!QFileInfo::exists(folder + QLatin1String("/temp/tv_orix_m1/tarvo_orix_m1.vg")));
}

namespace
{

// A tool that leaves its process id and waits for ever.
QByteArray endlessScript(const QString &pidFile)
{
    return "echo $$ > '" + pidFile.toUtf8() + ".new'\nmv '" + pidFile.toUtf8() + ".new' '" +
           pidFile.toUtf8() + "'\nwhile :; do read -t 1 < <(:) || :; done\n";
}

bool isGone(qint64 pid)
{
    return ::kill(pid_t(pid), 0) != 0;
}

} // namespace

void tst_MainDialog::cancellingEndsTheRunOnly()
{
    const QString pidFile = m_dir->filePath(QStringLiteral("pid"));
    const FakeTool fake(endlessScript(pidFile));
    const auto dialog = newDialog();
    dialog->show();
    QStringList texts;
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        if (auto *title = modal->findChild<QLabel *>(QStringLiteral("titleLabel"))) {
            texts.append(title->text());
            modal->close();
        }
    });
    pressOk(*dialog);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(pidFile), runTimeout);
    const qint64 pid = TestSupport::contentsOf(pidFile).trimmed().toLongLong();
    QVERIFY(pid > 1 && !isGone(pid));
    QWidget *progress = QApplication::activeModalWidget();
    QVERIFY(progress);
    QCOMPARE(progress->windowTitle(), descriptor().value(InfoKey::label).toString());
    progress->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
    QTRY_VERIFY_WITH_TIMEOUT(!progress->isVisible(), runTimeout);
    QVERIFY(isGone(pid));
    QVERIFY(dialog->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(texts, QStringList()); // cancelling is no error
}

void tst_MainDialog::closingTheDialogEndsTheTool()
{
    const QString pidFile = m_dir->filePath(QStringLiteral("pid"));
    const FakeTool fake(endlessScript(pidFile));
    auto dialog = newDialog();
    dialog->show();
    pressOk(*dialog);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(pidFile), runTimeout);
    const qint64 pid = TestSupport::contentsOf(pidFile).trimmed().toLongLong();
    QVERIFY(!isGone(pid));
    dialog->reject();
    dialog.reset();
    QVERIFY(isGone(pid));
}

void tst_MainDialog::aFolderInUseStopsBeforeAnythingIsWritten()
{
    const auto dialog = newDialog();
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    const QString temp = folder + QLatin1String("/temp/tv_orix_m1");
    QVERIFY(QDir().mkpath(temp));
    auto other = Utils::FolderLock::take(temp, nullptr);
    QVERIFY(other);
    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Yes);
    QCOMPARE(boxes.size(), 2);
    QVERIFY2(boxes.at(1).text.contains(temp + QLatin1String("/.tarvo-run.lock")),
             qPrintable(boxes.at(1).text));
    QCOMPARE(TestSupport::entriesOf(folder), QStringList{QStringLiteral("temp")});
    QCOMPARE(TestSupport::entriesOf(temp), QStringList{QStringLiteral(".tarvo-run.lock")});
    other.reset();
    QCOMPARE(runToTheEnd(*dialog).size(), 1); // the question
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
}

void tst_MainDialog::ofTwoDialogsOnlyOneHasTheFolder()
{
    const QString pidFile = m_dir->filePath(QStringLiteral("pid"));
    auto fake = std::make_unique<FakeTool>(endlessScript(pidFile));
    auto first = newDialog();
    const auto second = newDialog("TV2KR-18C-QFN88-C8/I7");
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    first->show();
    pressOk(*first);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(pidFile), runTimeout);
    const QByteArray before = TestSupport::contentsOf(folder + QLatin1String("/tarvo_orix_m1.ipc"));
    QVERIFY(!before.isEmpty());

    const auto boxes = TestSupport::boxesOf([&] { pressOk(*second); }, QMessageBox::Yes);
    QCOMPARE(boxes.size(), 2);
    QVERIFY2(boxes.at(1).text.contains(QLatin1String("another run is working there")),
             qPrintable(boxes.at(1).text));
    QCOMPARE(TestSupport::contentsOf(folder + QLatin1String("/tarvo_orix_m1.ipc")), before);
    QVERIFY(!second->findChild<IPCore::SynthesisHelper *>());

    first.reset();
    fake.reset();
    QCOMPARE(runToTheEnd(*second).size(), 1);
    QCOMPARE(second->result(), int(QDialog::Accepted));
}

void tst_MainDialog::theFolderIsFreeWhenARunIsOver_data()
{
    QTest::addColumn<QByteArray>("tool"); // empty: the real one
    QTest::addColumn<bool>("blocked");    // an include file cannot be written
    QTest::newRow("after a success") << QByteArray() << false;
    QTest::newRow("while a failure is shown") << QByteArray("exit 3\n") << false;
    QTest::newRow("while a file that cannot be written is shown") << QByteArray() << true;
}

void tst_MainDialog::theFolderIsFreeWhenARunIsOver()
{
    QFETCH(QByteArray, tool);
    QFETCH(bool, blocked);
    const auto fake = tool.isEmpty() ? nullptr : std::make_unique<FakeTool>(tool);
    const auto dialog = newDialog();
    const QString temp = m_dir->filePath(QStringLiteral("tarvo_orix_m1/temp/tv_orix_m1"));
    QVERIFY(QDir().mkpath(temp));
    if (blocked)
        QVERIFY(QDir().mkpath(temp + QLatin1String("/psram_define.v")));
    bool free = false;
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        const auto *box = qobject_cast<QMessageBox *>(modal);
        if (modal->findChild<QLabel *>(QStringLiteral("titleLabel")) ||
            (box && box->text().contains(QLatin1String("psram_define.v"))))
            free = bool(Utils::FolderLock::take(temp, nullptr));
    });
    runToTheEnd(*dialog);
    if (dialog->result() == int(QDialog::Accepted))
        free = bool(Utils::FolderLock::take(temp, nullptr));
    QVERIFY(free);
    QVERIFY(!QFileInfo::exists(temp + QLatin1String("/.tarvo-run.lock")));
}

void tst_MainDialog::generatesVhdl()
{
    const auto dialog = newDialog();
    dialog->show();
    dialog->setLanguageIndex(1);
    QCOMPARE(runToTheEnd(*dialog), QStringList());
    QVERIFY(!dialog->isVisible());
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QCOMPARE(TestSupport::entriesOf(folder),
             (QStringList{QStringLiteral("tarvo_orix_m1.ipc"), QStringLiteral("tarvo_orix_m1.vhd"),
                          QStringLiteral("tarvo_orix_m1.vho"), QStringLiteral("tarvo_orix_m1.vo"),
                          QStringLiteral("tarvo_orix_m1_tmp.vhd"), QStringLiteral("temp")}));
    const QString netlist = folder + QStringLiteral("/tarvo_orix_m1.vhd");
    QVERIFY(TestSupport::contentsOf(netlist).contains("\nentity Tarvo_ORIX_M1_Top is\n"));
    QCOMPARE(m_host->added, QList<QStringList>{QStringList{netlist}});
    QCOMPARE(m_host->opened,
             QStringList({netlist, folder + QStringLiteral("/tarvo_orix_m1_tmp.vhd")}));
}

void tst_MainDialog::anotherToolTextRunsWithEmptyPaths()
{
    const auto dialog = newDialog();
    dialog->show();
    auto *tools = dialog->findChild<QComboBox *>(QStringLiteral("synToolComboBox"));
    tools->addItem(QStringLiteral("Another"));
    tools->setCurrentIndex(1);
    const QStringList texts = runToTheEnd(*dialog);
    // The runner keeps its tool and succeeds; then there is no netlist to copy.
    QCOMPARE(texts.value(0), QStringLiteral("Core generation occur errors."));
    QCOMPARE(texts.size(), 2);
    QVERIFY(dialog->isVisible());
    QVERIFY(m_host->added.isEmpty());
}

void tst_MainDialog::anotherToolTextLeavesTheToolOfTheRunBefore()
{
    // Both tools fail at once and leave their names.
    const QString trace = m_dir->filePath(QStringLiteral("trace"));
    const QByteArray script = "echo $(basename \"$0\") >> '" + trace.toUtf8() + "'\nexit 1\n";
    const FakeTool fake(script);
    const QString project = fake.dir.filePath(QStringLiteral("synplify_pro"));
    QVERIFY(TestSupport::write(project, "#!/bin/bash\n" + script));
    QFile::setPermissions(project, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    const auto dialog = newDialog();
    dialog->show();
    auto *tools = dialog->findChild<QComboBox *>(QStringLiteral("synToolComboBox"));
    tools->addItems({QStringLiteral("Synplify Pro"), QStringLiteral("Another")});
    for (const char *tool : {"Synplify Pro", "Another", "TarvoSynthesis", "Another"}) {
        tools->setCurrentText(QString::fromLatin1(tool));
        QVERIFY(!runToTheEnd(*dialog).isEmpty());
        QVERIFY(dialog->isVisible());
    }
    QCOMPARE(TestSupport::contentsOf(trace),
             QByteArray("synplify_pro\nsynplify_pro\nyosys\nyosys\n"));
}

void tst_MainDialog::brokenContentsEndTheRunBeforeTheTool()
{
    const QString trace = m_dir->filePath(QStringLiteral("trace"));
    const FakeTool fake("touch '" + trace.toUtf8() + "'\nexit 1\n");
    const QString program = m_dir->filePath(QStringLiteral("program"));
    for (int lane = 0; lane < 4; ++lane)
        QVERIFY(TestSupport::write(QStringLiteral("%1/itcm%2").arg(program).arg(lane),
                                   lane == 2 ? "hello\n" : QByteArray("00\n").repeated(256)));
    const QString ipc = m_dir->filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(
        ipc, "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\nversion=1.0\n[Config]\nITCM_Size=0\n"
             "Initialize%20ITCM=true\nITCM_Initialization_Path=program\n"
             "ITCM_Initialization_AbsolutePath=" +
                 program.toUtf8() + '\n'));
    TarvoOrixM1Dlg dialog(descriptor());
    QVERIFY(dialog.prepareOpen(m_dir->path(), ipc));
    dialog.show();
    const QStringList texts = runToTheEnd(dialog);
    QCOMPARE(texts.value(0),
             QStringLiteral("The inputs hold a mistake; the tool was not started."));
    QVERIFY2(texts.value(1).contains(
                 QString(program + QLatin1String("/itcm2:1: \"hello\" is no hexadecimal byte"))),
             qPrintable(texts.join(u'|')));
    QVERIFY(!QFileInfo::exists(trace));
    QVERIFY(dialog.isVisible());
}

void tst_MainDialog::theOutputFolderComesBackWhereTheDialogStaysOpen_data()
{
    QTest::addColumn<QString>("blocked"); // a folder that stands where a file would
    QTest::addColumn<QByteArray>("tool"); // in place of the synthesis tool, if not empty
    QTest::newRow("the first include file cannot be written")
        << QStringLiteral("temp/tv_orix_m1/cm1_option_defs.v") << QByteArray();
    QTest::newRow("the last include file cannot be written")
        << QStringLiteral("temp/tv_orix_m1/triple_speed_mac_param.v") << QByteArray();
    QTest::newRow("the run fails") << QString() << QByteArray("exit 1\n");
    QTest::newRow("the tool crashes") << QString() << QByteArray("kill -SEGV $$\n");
    QTest::newRow("the netlist cannot be copied")
        << QStringLiteral("tarvo_orix_m1.v") << QByteArray();
    QTest::newRow("the model cannot be made") << QStringLiteral("tarvo_orix_m1.vo") << QByteArray();
    QTest::newRow("the run is cancelled") << QString() << QByteArray("sleep 1000\n");
}

void tst_MainDialog::theOutputFolderComesBackWhereTheDialogStaysOpen()
{
    QFETCH(QString, blocked);
    QFETCH(QByteArray, tool);
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    if (!blocked.isEmpty())
        QVERIFY(QDir().mkpath(folder + u'/' + blocked));
    std::unique_ptr<FakeTool> fake;
    if (!tool.isEmpty())
        fake = std::make_unique<FakeTool>(tool);
    const auto dialog = newDialog();
    dialog->show();
    const QVariant before = dialog->currentOptions().value(Key::createInPath);
    QCOMPARE(before.toString(), folder);
    const bool isCancelled = tool.startsWith("sleep");
    QPointer<QWidget> progress;
    QStringList errors;
    {
        const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
            if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                if (QAbstractButton *yes = box->button(QMessageBox::Yes)) {
                    yes->click();
                    return;
                }
                errors.append(box->text());
                box->close();
            } else if (auto *title = modal->findChild<QLabel *>(QStringLiteral("titleLabel"))) {
                errors.append(title->text());
                // Nobody may see the map without its entry.
                if (dialog->currentOptions().value(Key::createInPath) != before)
                    errors.append(QStringLiteral("the folder is missing"));
                modal->close();
            } else if (isCancelled) {
                progress = modal;
                modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
            }
        });
        pressOk(*dialog);
        if (isCancelled)
            QTRY_VERIFY_WITH_TIMEOUT(progress && !progress->isVisible(), runTimeout);
        else
            QTRY_VERIFY_WITH_TIMEOUT(!errors.isEmpty(), runTimeout);
    }
    QCOMPARE(errors.size(), isCancelled ? 0 : 1); // cancelling is no error
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->currentOptions().value(Key::createInPath), before);
    // The file does not hold it.
    QVERIFY(!TestSupport::contentsOf(folder + QStringLiteral("/tarvo_orix_m1.ipc"))
                 .contains("createin_path"));
}

void tst_MainDialog::aFailedRunKeepsTheInitialisationFolder()
{
    const FakeTool fake("exit 1\n");
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/init")));
    Core::ProjectManager::setCurrentProject(nullptr); // paths then start from the output folder
    const auto dialog = newDialog();
    dialog->show();
    auto *view = dialog->findChild<IPView *>();
    QVERIFY(view);
    // Opens the core's page, changes it and presses OK; the texts of boxes that come up.
    const auto editCore = [&](const std::function<void(QWidget *)> &edit) {
        QStringList texts;
        bool edited = false;
        const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
            if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                texts.append(box->text());
                box->close();
                return;
            }
            if (edited)
                return;
            edited = true;
            edit(modal);
            modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
            if (modal->isVisible())
                modal->close();
        });
        QMetaObject::invokeMethod(view, "onCortexM1", Qt::DirectConnection);
        return texts;
    };
    QCOMPARE(editCore([&](QWidget *page) {
                 page->findChild<QAbstractButton *>(QStringLiteral("checkBoxInitItcm"))->click();
                 page->findChild<QLineEdit *>(QStringLiteral("lineEditItcmInitPath"))
                     ->setText(folder + QStringLiteral("/init"));
             }),
             QStringList());
    const auto stored = [&](QLatin1String key) { return dialog->currentOptions().value(key); };
    QCOMPARE(stored(Key::itcmInitializationPath).toString(), QStringLiteral("init"));

    for (int i = 0; i < 2; ++i) {
        QVERIFY(!runToTheEnd(*dialog).isEmpty());
        QCOMPARE(editCore([](QWidget *) {}), QStringList());
        QCOMPARE(stored(Key::itcmInitializationPath).toString(), QStringLiteral("init"));
        QCOMPARE(stored(Key::itcmInitializationAbsolutePath).toString(),
                 QString(folder + QStringLiteral("/init")));
    }
}

void tst_MainDialog::tellsTheHostWhereEditedFilesAre()
{
    const FakeTool fake("exit 1\n");
    const auto dialog = newDialog();
    QSignalSpy noticed(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::noticed);
    QVERIFY(!runToTheEnd(*dialog).isEmpty());
    QCOMPARE(noticed.size(), 0);

    const QString include =
        m_dir->filePath(QStringLiteral("tarvo_orix_m1/temp/tv_orix_m1/ahb_option_defs.v"));
    QVERIFY(TestSupport::write(include, "// mine\n"));
    QVERIFY(!runToTheEnd(*dialog).isEmpty());
    QCOMPARE(noticed.size(), 1);
    const QStringList notices = noticed.first().first().toStringList();
    QCOMPARE(notices.size(), 1);
    QVERIFY2(notices.first().contains(include + QLatin1String(".edited")),
             qPrintable(notices.first()));
    QCOMPARE(TestSupport::contentsOf(include + QLatin1String(".edited")), QByteArray("// mine\n"));
}

void tst_MainDialog::anEditedFileThatCannotBeReadStopsBeforeTheRun()
{
    const FakeTool fake("exit 1\n");
    const auto dialog = newDialog();
    QVERIFY(!runToTheEnd(*dialog).isEmpty());
    const QString folder = m_dir->filePath(QStringLiteral("tarvo_orix_m1"));
    const QString manifest = folder + QLatin1String("/temp/tv_orix_m1/manifest.json");
    const QByteArray before = TestSupport::contentsOf(manifest);
    QVERIFY(!before.isEmpty());
    const QString output = folder + QLatin1String("/tarvo_orix_m1.v");
    QVERIFY(QDir().mkpath(output));

    const auto boxes = TestSupport::boxesOf([&] { pressOk(*dialog); }, QMessageBox::Yes);
    QCOMPARE(boxes.size(), 2);
    QVERIFY2(boxes.at(1).text.contains(output) &&
                 boxes.at(1).text.contains(QLatin1String("cannot be read")),
             qPrintable(boxes.at(1).text));
    QCOMPARE(TestSupport::contentsOf(manifest), before);
    QCOMPARE(dialog->currentOptions().value(Key::createInPath).toString(), folder);
    QVERIFY(!dialog->findChild<IPCore::SynthesisHelper *>()->isRunning());
}

namespace
{

QByteArray withPrefix(const QByteArray &prefix, int language)
{
    return "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\ntype=x\nversion=1.0\n[Config]\n"
           "LANG=" +
           QByteArray::number(language) + "\nPrefix=" + prefix + '\n';
}

} // namespace

void tst_MainDialog::placesASecondSetUnderAPrefix_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("Verilog") << 0;
    QTest::newRow("VHDL") << 1;
}

void tst_MainDialog::placesASecondSetUnderAPrefix()
{
    QFETCH(int, language);
    const auto dialog = opened(withPrefix("left_", language));
    QSignalSpy noticed(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::noticed);
    const QString folder = m_dir->path();
    const QString suffix = language == 0 ? QStringLiteral("v") : QStringLiteral("vhd");
    const QString mine = folder + QLatin1String("/left_tarvo_orix_m1.") + suffix;
    QVERIFY(TestSupport::write(mine, "mine\n"));
    runToTheEnd(*dialog);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    // What stood there is kept, and that is told.
    QCOMPARE(TestSupport::contentsOf(mine + QLatin1String(".edited")), QByteArray("mine\n"));
    QCOMPARE(noticed.size(), 1);
    QVERIFY2(noticed.first().first().toStringList().join(u'|').contains(
                 QString(QFileInfo(mine).fileName() + QLatin1String(".edited"))),
             qPrintable(noticed.first().first().toStringList().join(u'|')));
    QVERIFY(QFile::remove(mine + QLatin1String(".edited")));
    // The project has the usual netlist alone, and the configuration keeps its prefix.
    const QString netlist = folder + QLatin1String("/tarvo_orix_m1.") + suffix;
    QCOMPARE(m_host->added, QList<QStringList>{QStringList{netlist}});
    const QString ipc = folder + QLatin1String("/tarvo_orix_m1.ipc");
    QVERIFY(TestSupport::contentsOf(ipc).contains("\nPrefix=left_\n"));

    // The same as of the command line, byte for byte.
    const QTemporaryDir other;
    const QTemporaryDir cache;
    QProcess command;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), cache.path());
    command.setProcessEnvironment(environment);
    command.start(QStringLiteral(TARVO_COMMAND),
                  {QStringLiteral("generate"), ipc, QStringLiteral("--out"), other.path()});
    QVERIFY(command.waitForFinished(runTimeout));
    QVERIFY2(command.exitCode() == 0, command.readAllStandardError().constData());
    const QStringList names =
        QDir(other.path()).entryList({QStringLiteral("left_*")}, QDir::Files, QDir::Name);
    QCOMPARE(names.size(), language == 0 ? 4 : 5);
    QCOMPARE(QDir(folder).entryList({QStringLiteral("left_*")}, QDir::Files, QDir::Name), names);
    for (const QString &name : names) {
        const QByteArray bytes = TestSupport::contentsOf(folder + u'/' + name);
        QVERIFY2(!bytes.isEmpty() && bytes == TestSupport::contentsOf(other.filePath(name)),
                 qPrintable(name));
    }
}

void tst_MainDialog::aSecondSetThatCannotBePlacedIsToldAndTheRunCounts_data()
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QString>("blocked"); // a folder that stands where a file would
    QTest::addColumn<QString>("notice");  // a part of it
    QTest::newRow("a folder is in the way")
        << QByteArray("left_") << QStringLiteral("left_tarvo_orix_m1.vo")
        << QStringLiteral("The files with the prefix \"left_\" were not written: ");
    QTest::newRow("no prefix") << QByteArray("int_") << QString()
                               << QStringLiteral("\"int_\" cannot be the prefix of names: ");
}

void tst_MainDialog::aSecondSetThatCannotBePlacedIsToldAndTheRunCounts()
{
    QFETCH(QByteArray, prefix);
    QFETCH(QString, blocked);
    QFETCH(QString, notice);
    const auto dialog = opened(withPrefix(prefix, 0));
    QSignalSpy noticed(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::noticed);
    const QString folder = m_dir->path();
    if (!blocked.isEmpty())
        QVERIFY(QDir().mkpath(folder + u'/' + blocked));
    runToTheEnd(*dialog);
    QCOMPARE(dialog->result(), int(QDialog::Accepted));
    QCOMPARE(noticed.size(), 1);
    const QStringList notices = noticed.first().first().toStringList();
    QCOMPARE(notices.size(), 1);
    QVERIFY2(notices.first().startsWith(notice), qPrintable(notices.first()));
    QCOMPARE(m_host->added,
             QList<QStringList>{QStringList{folder + QLatin1String("/tarvo_orix_m1.v")}});
    QStringList left;
    if (!blocked.isEmpty())
        left.append(blocked);
    QCOMPARE(QDir(folder).entryList({QString::fromLatin1(prefix) + u'*'},
                                    QDir::AllEntries | QDir::NoDotAndDotDot),
             left);
}

TARVO_TEST_MAIN(QApplication, tst_MainDialog)

#include "tst_maindialog.moc"
