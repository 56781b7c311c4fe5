#include "dialogdriver.h"
#include "testsupport.h"

#include <dev/devicedb.h>
#include <ui/microsysipgendlg.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// The smallest dialog on the frame.
class Dialog : public MicroSysIPGenDlg
{
public:
    int updates = 0;
    QStringList loaded;
    bool loads = true;

    template <class T>
    T *find(const char *name) const
    {
        return findChild<T *>(QString::fromLatin1(name));
    }
    QLineEdit *createIn() const { return find<QLineEdit>("editCreateIn"); }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return find<QDialogButtonBox>("buttonBox")->button(which);
    }
    QString labelText(const char *name) const { return find<QLabel>(name)->text(); }

protected:
    void updateDeviceDependentState() override { ++updates; }
    bool loadIPConfig(const QString &ipcFile) override
    {
        loaded.append(ipcFile);
        return loads;
    }
};

DEV::DeviceArg deviceNamed(const char *name)
{
    DEV::ChipFilter filter;
    filter.id = QString::fromLatin1(name);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

} // namespace

class tst_GeneralDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheForm();
    void preparesANewIp();
    void aDeviceWithoutVersionHidesItsLabels();
    void preparesAnExistingIp();
    void anUnusableFileIsNotFollowedByAnUpdate();
    void warnsAboutALostDeviceAndGoesOn();
    void pathIsTakenWithoutCleaning_data();
    void pathIsTakenWithoutCleaning();
    void selectsToolsAndLanguages();
    void anEmptyFolderIsTheOnlyError();
    void asksBeforeAnExistingFolder_data();
    void asksBeforeAnExistingFolder();
    void asksNothingInOpenMode();
    void makesAMissingFolder();
    void saysWhenAFolderCannotBeMade();
    void listsErrors();
    void browsingEndsInASeparator();
    void aCancelledBrowseChangesNothing();
    void contentFillsTheContainer();
    void cancelRejects();
};

void tst_GeneralDialog::showsTheForm()
{
    Dialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("TARVOORIXM1__MicroSysIPGenDlg"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Dialog"));
    QCOMPARE(dialog.size(), QSize(847, 755));
    QCOMPARE(dialog.find<QGroupBox>("groupBoxFile")->title(), QStringLiteral("General"));
    const QList<QPair<const char *, const char *>> labels{
        {"createin", "Create In:"},
        {"language", "Synthesis Tool:"},
        {"label_2", "Language:"},
        {"label_3", "Device:"},
        {"devLabel", "TextLabel"},
        {"label", "Part Number:"},
        {"pnLabel", "TextLabel"},
        {"labelDeviceVersion", "Device Version:"},
        {"labelDeviceVersion_2", "TextLabel"},
    };
    for (const auto &label : labels)
        QCOMPARE(dialog.labelText(label.first), QString::fromLatin1(label.second));
    QCOMPARE(dialog.find<QPushButton>("btnBrowse")->text(), QStringLiteral("..."));

    auto *tools = dialog.find<QComboBox>("synToolComboBox");
    QCOMPARE(tools->count(), 1);
    QCOMPARE(dialog.synthesisTool(), QStringLiteral("TarvoSynthesis"));
    QVERIFY(tools->isHidden() && dialog.find<QLabel>("language")->isHidden());
    auto *languages = dialog.find<QComboBox>("comboBoxLanguage");
    QCOMPARE(languages->count(), 2);
    QCOMPARE(languages->itemText(0), QStringLiteral("Verilog"));
    QCOMPARE(languages->itemText(1), QStringLiteral("VHDL"));
    QCOMPARE(dialog.languageIndex(), 0);

    QCOMPARE(dialog.find<QDialogButtonBox>("buttonBox")->orientation(), Qt::Horizontal);
    QVERIFY(dialog.button(QDialogButtonBox::Help)->isHidden());
    QVERIFY(!dialog.button(QDialogButtonBox::Ok)->isHidden());
    QVERIFY(!dialog.button(QDialogButtonBox::Cancel)->isHidden());
}

void tst_GeneralDialog::preparesANewIp()
{
    Dialog dialog;
    const DEV::DeviceArg device = deviceNamed("TV2KR-18C-QFN88P-C8/I7");
    dialog.prepareNew(QStringLiteral("/a b/%1/"), device);
    QCOMPARE(dialog.createIn()->text(), QStringLiteral("/a b/%1/tarvo_orix_m1"));
    QVERIFY(dialog.createIn()->isEnabled() && !dialog.createIn()->isReadOnly());
    QCOMPARE(dialog.currentDevice(), device);
    QCOMPARE(dialog.labelText("devLabel"), QStringLiteral("TV2KR-18"));
    QCOMPARE(dialog.labelText("pnLabel"), QStringLiteral("TV2KR-LV18QN88PC8/I7"));
    QCOMPARE(dialog.labelText("labelDeviceVersion_2"), QStringLiteral("C"));
    QVERIFY(!dialog.find<QLabel>("labelDeviceVersion")->isHidden());
    QVERIFY(!dialog.find<QLabel>("labelDeviceVersion_2")->isHidden());
    QCOMPARE(dialog.updates, 1);
    QCOMPARE(dialog.loaded, QStringList());
}

void tst_GeneralDialog::aDeviceWithoutVersionHidesItsLabels()
{
    Dialog dialog;
    dialog.prepareNew(QStringLiteral("/x"), deviceNamed("TV2K-18"));
    QVERIFY(dialog.find<QLabel>("labelDeviceVersion")->isHidden());
    QVERIFY(dialog.find<QLabel>("labelDeviceVersion_2")->isHidden());
}

void tst_GeneralDialog::preparesAnExistingIp()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(file, "[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\n"));
    Dialog dialog;
    QVERIFY(dialog.prepareOpen(dir.path() + u'/', file));
    QCOMPARE(dialog.createIn()->text(), dir.path());
    QVERIFY(!dialog.createIn()->isEnabledTo(&dialog) && dialog.createIn()->isReadOnly());
    QVERIFY(!dialog.find<QPushButton>("btnBrowse")->isEnabledTo(&dialog));
    QCOMPARE(dialog.currentDevice().id(), QStringLiteral("TV2K-55-PBGA256-C8/I7"));
    QCOMPARE(dialog.labelText("devLabel"), QStringLiteral("TV2K-55"));
    QCOMPARE(dialog.loaded, QStringList{file});
    QCOMPARE(dialog.updates, 1);
}

void tst_GeneralDialog::anUnusableFileIsNotFollowedByAnUpdate()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(file, "[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\n"));
    Dialog dialog;
    dialog.loads = false;
    QVERIFY(!dialog.prepareOpen(dir.path(), file));
    QCOMPARE(dialog.updates, 0);
}

void tst_GeneralDialog::warnsAboutALostDeviceAndGoesOn()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(file, "[General]\ntarget_device=TV9\n"));
    Dialog dialog;
    bool ok = false;
    const auto boxes = TestSupport::boxesOf([&] { ok = dialog.prepareOpen(dir.path(), file); });
    QVERIFY(ok);
    QVERIFY(dialog.currentDevice().isNull());
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().icon, QMessageBox::Warning);
    QCOMPARE(boxes.first().title, QStringLiteral("Warning"));
    QCOMPARE(boxes.first().text, QStringLiteral("IPC file device information is lost."));
    QCOMPARE(boxes.first().buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(boxes.first().parent, &dialog);
    QVERIFY(boxes.first().hasWindowIcon);
    QVERIFY(boxes.first().flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
}

void tst_GeneralDialog::pathIsTakenWithoutCleaning_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QStringLiteral("/a/b") << QStringLiteral("/a/b");
    QTest::newRow("separator at the end") << QStringLiteral("/a/b/") << QStringLiteral("/a/b");
    QTest::newRow("root") << QStringLiteral("/") << QStringLiteral("/");
    QTest::newRow("empty") << QString() << QStringLiteral(".");
    QTest::newRow("odd") << QString::fromUtf8("/a \"b\"/%1/\xc3\xb6")
                         << QString::fromUtf8("/a \"b\"/%1/\xc3\xb6");
    QTest::newRow("nothing else is cleaned")
        << QStringLiteral("/a/../b") << QStringLiteral("/a/../b");
}

void tst_GeneralDialog::pathIsTakenWithoutCleaning()
{
    QFETCH(QString, text);
    QFETCH(QString, path);
    Dialog dialog;
    dialog.createIn()->setText(text);
    QCOMPARE(dialog.createInPath(), path);
}

void tst_GeneralDialog::selectsToolsAndLanguages()
{
    Dialog dialog;
    dialog.find<QComboBox>("synToolComboBox")->addItem(QStringLiteral("Synplify Pro"));
    dialog.selectSynthesisTool(QStringLiteral("Synplify Pro"));
    QCOMPARE(dialog.synthesisTool(), QStringLiteral("Synplify Pro"));
    for (const char *text : {"synplify pro", "Synplify", "", "TarvoSynthesis "}) {
        dialog.selectSynthesisTool(QString::fromLatin1(text));
        QCOMPARE(dialog.synthesisTool(), QStringLiteral("Synplify Pro"));
    }
    dialog.setLanguageIndex(1);
    QCOMPARE(dialog.languageIndex(), 1);
    dialog.setLanguageIndex(5);
    QCOMPARE(dialog.languageIndex(), -1);
}

void tst_GeneralDialog::anEmptyFolderIsTheOnlyError()
{
    Dialog dialog;
    QCOMPARE(dialog.createInErrors(),
             QStringList{QStringLiteral("\"Create In\" can not be empty.")});
    for (const char *text : {" ", "relative", "/no/such/folder", "\""}) {
        dialog.createIn()->setText(QString::fromLatin1(text));
        QCOMPARE(dialog.createInErrors(), QStringList());
    }
}

void tst_GeneralDialog::asksBeforeAnExistingFolder_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("result");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
    QTest::newRow("closed") << int(QMessageBox::Help) << false; // no such button: the box is closed
}

void tst_GeneralDialog::asksBeforeAnExistingFolder()
{
    QFETCH(int, answer);
    QTemporaryDir dir;
    const QString folder = dir.filePath(QString::fromUtf8("an \"old\" %1 \xc3\xb6"));
    QVERIFY(TestSupport::write(folder + QLatin1String("/mine"), "kept"));
    Dialog dialog;
    dialog.createIn()->setText(folder + QLatin1String("//"));
    bool result = false;
    const auto boxes = TestSupport::boxesOf([&] { result = dialog.confirmOutputFolder(); },
                                            QMessageBox::StandardButton(answer));
    QTEST(result, "result");
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().icon, QMessageBox::Question);
    QCOMPARE(boxes.first().title, QStringLiteral("Confirm"));
    QCOMPARE(boxes.first().text, QLatin1String("Directory \"") + folder +
                                     QLatin1String("\" already exists, do you want to overwrite?"));
    QCOMPARE(boxes.first().buttons, QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(boxes.first().defaultButton, QMessageBox::Cancel);
    QCOMPARE(TestSupport::contentsOf(folder + QLatin1String("/mine")), QByteArray("kept"));
}

void tst_GeneralDialog::asksNothingInOpenMode()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(file, "[General]\ntarget_device=TV2K-55-PBGA256-C8/I7\n"));
    Dialog dialog;
    QVERIFY(dialog.prepareOpen(dir.path(), file));
    QCOMPARE(TestSupport::boxesOf([&] { QVERIFY(dialog.confirmOutputFolder()); }).size(), 0);
}

void tst_GeneralDialog::makesAMissingFolder()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("a/b c/d"));
    Dialog dialog;
    dialog.createIn()->setText(folder);
    QCOMPARE(TestSupport::boxesOf([&] { QVERIFY(dialog.confirmOutputFolder()); }).size(), 0);
    QVERIFY(QDir(folder).exists());
}

void tst_GeneralDialog::saysWhenAFolderCannotBeMade()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("file"));
    QVERIFY(TestSupport::write(file, "x"));
    for (const QString &folder : {file, QString(file + QLatin1String("/%1/below"))}) {
        Dialog dialog;
        dialog.createIn()->setText(folder);
        const auto boxes = TestSupport::boxesOf([&] { QVERIFY(!dialog.confirmOutputFolder()); });
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes.first().icon, QMessageBox::NoIcon);
        QVERIFY(boxes.first().hasPixmap && boxes.first().hasWindowIcon);
        QCOMPARE(boxes.first().title, QStringLiteral("Error"));
        QCOMPARE(boxes.first().text, QLatin1String("Failed to create path \"") + folder + u'"');
        QCOMPARE(boxes.first().buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    }
    QCOMPARE(TestSupport::contentsOf(file), QByteArray("x"));
}

void tst_GeneralDialog::listsErrors()
{
    Dialog dialog;
    const auto boxes = TestSupport::boxesOf([&] {
        dialog.showErrors({QStringLiteral("one"), QStringLiteral("two")});
    });
    QCOMPARE(boxes.size(), 1);
    // With a pixmap of its own the box reports no standard icon.
    QVERIFY(boxes.first().hasPixmap && boxes.first().hasWindowIcon);
    QCOMPARE(boxes.first().title, QStringLiteral("Error"));
    QCOMPARE(boxes.first().text,
             QStringLiteral(
                 "The following errors occurred while customizing IP, plese check and correct."));
    QCOMPARE(boxes.first().details, QStringLiteral("one\ntwo"));
    QCOMPARE(boxes.first().escapeButton, QMessageBox::Ok);
    QCOMPARE(boxes.first().parent, &dialog);
}

namespace
{

// Runs the browse button; `act` handles the file dialog.
void browse(Dialog &dialog, const std::function<void(QFileDialog *)> &act)
{
    int seen = 0;
    const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
        auto *chooser = qobject_cast<QFileDialog *>(modal);
        if (!chooser)
            return;
        ++seen;
        QCOMPARE(chooser->windowTitle(), QStringLiteral("Select Directory"));
        QVERIFY(chooser->testOption(QFileDialog::ShowDirsOnly));
        act(chooser);
    });
    dialog.find<QPushButton>("btnBrowse")->click();
    QCOMPARE(seen, 1);
}

} // namespace

void tst_GeneralDialog::browsingEndsInASeparator()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("work")));
    Dialog dialog;
    dialog.createIn()->setText(dir.path());
    browse(dialog, [&](QFileDialog *chooser) {
        chooser->setDirectory(dir.filePath(QStringLiteral("work")));
        chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))
            ->setText(dir.filePath(QStringLiteral("work")));
        chooser->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open)->click();
    });
    QCOMPARE(dialog.createIn()->text(), dir.filePath(QStringLiteral("work")) + u'/');
    QCOMPARE(dialog.createInPath(), dir.filePath(QStringLiteral("work")));
}

void tst_GeneralDialog::aCancelledBrowseChangesNothing()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QTemporaryDir dir;
    Dialog dialog;
    dialog.createIn()->setText(dir.path());
    browse(dialog, [](QFileDialog *chooser) { chooser->reject(); });
    QCOMPARE(dialog.createIn()->text(), dir.path());
}

void tst_GeneralDialog::contentFillsTheContainer()
{
    Dialog dialog;
    auto *content = new QWidget;
    dialog.setContentWidget(content);
    auto *container = dialog.find<QWidget>("wgtContainer");
    QCOMPARE(content->parentWidget(), container);
    QCOMPARE(container->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(content->size(), container->size());
}

void tst_GeneralDialog::cancelRejects()
{
    Dialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QTest::mouseClick(dialog.button(QDialogButtonBox::Cancel), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    QTest::mouseClick(dialog.button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(accepted.count(), 1);
}

TARVO_TEST_MAIN(QApplication, tst_GeneralDialog)

#include "tst_generaldialog.moc"
