#include <dialogdriver.h>
#include <testsupport.h>

#include <workbench/catalogue/cataloguemodel.h>
#include <workbench/catalogue/catalogueview.h>
#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/catalogue/ipsession.h>

#include <dev/devicedb.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

namespace
{

QString fake(const char *kind)
{
    return QStringLiteral(TARVO_FAKE_PLUGINS "/") + QLatin1String(kind);
}

DEV::DeviceArg deviceOf(const char *series)
{
    DEV::ChipFilter filter;
    filter.series = QLatin1String(series);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

void loadBoth(IpCatalogue &catalogue)
{
    catalogue.setDataFolders({QStringLiteral(TARVO_SHARE_FOLDER)});
    catalogue.loadFolder(QStringLiteral(TARVO_PLUGIN_FOLDER), true);
    catalogue.loadFolder(fake("blinker"), true);
}

} // namespace

class TestIpCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsAnyPluginOfTheInterface()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        QVERIFY(catalogue.failures().isEmpty());
        QCOMPARE(catalogue.entries().size(), 2);
        QCOMPARE(catalogue.entries().at(0).name, QStringLiteral("Tarvo_ORIX_M1"));
        QVERIFY(!catalogue.entries().at(0).summary.isEmpty());
        QCOMPARE(catalogue.entries().at(1).id, QStringLiteral("fake.blinker"));
        QCOMPARE(catalogue.entries().at(1).version, QStringLiteral("2.1"));
        QCOMPARE(catalogue.indexOf(QStringLiteral("fake.blinker")), 1);
        QCOMPARE(catalogue.indexOf(QStringLiteral("tarvo_orix_m1")), 0); // the name
        QCOMPARE(catalogue.indexOf(QStringLiteral("nothing")), -1);
        QCOMPARE(catalogue.indexOf(QString()), -1);
    }

    void skipsABrokenPluginAndSaysWhy_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *name, const char *kind, const char *reason) {
            QTest::newRow(name) << QString::fromLatin1(kind) << QString::fromLatin1(reason);
        };
        row("it throws when it is made", "throwing", "out of lamps");
        row("it throws when asked for its IPs", "throwingcores", "no cores");
        row("an IP throws when asked", "throwingname", "no name today");
        row("it offers nothing", "empty", "offers no IP");
        row("another kind of Qt plug-in", "other", "not one for IPs");
        row("no plug-in at all", "plain", "It is no plug-in");
        row("a missing symbol", "missingsymbol", "functionThatIsNowhere");
        row("an IP that is no object", "null", "no object");
        row("it ends the program when it is loaded", "exiting-loading", "ended the program");
        row("it ends the program when asked for its IPs", "exiting-listing",
            "ended the program when it was asked for its IPs (status 0)");
        row("it ends the program when an IP is described", "leaving-describing",
            "ended the program");
        row("it crashes when it is made", "crashing-starting", "crashed while it was started");
        row("it crashes when asked about devices", "crashing-supporting",
            "crashed when it was asked about devices (signal 6)");
    }

    void skipsABrokenPluginAndSaysWhy()
    {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        IpCatalogue catalogue;
        catalogue.loadFolder(fake(kind.toLatin1()), true);
        QVERIFY(catalogue.entries().isEmpty());
        QCOMPARE(catalogue.failures().size(), 1);
        QVERIFY2(catalogue.failures().first().reason.contains(reason, Qt::CaseInsensitive),
                 qPrintable(catalogue.failures().first().reason));
        QVERIFY(catalogue.failures().first().library.contains(kind));
    }

    void doesNotWaitForAPluginThatBlocks_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        QTest::newRow("blocks") << QStringLiteral("blocking-listing")
                                << QStringLiteral("did not answer within 2 s");
        QTest::newRow("prints") << QStringLiteral("printing-listing")
                                << QStringLiteral("did not stop printing");
    }

    void doesNotWaitForAPluginThatBlocks()
    {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        const QTemporaryDir dir;
        const QString cache = dir.filePath(QStringLiteral("sub/probes.json"));
        for (int start = 0; start < 3; ++start) {
            IpCatalogue catalogue;
            catalogue.setProbeCache(cache);
            // What was found blocking is not waited for again.
            catalogue.setProbeTimeLimit(start == 0 ? 2000 : 100000);
            catalogue.loadFolder(fake(kind.toLatin1()), true);
            QVERIFY(catalogue.entries().isEmpty());
            QCOMPARE(catalogue.failures().size(), 1);
            QVERIFY2(catalogue.failures().first().reason.contains(reason),
                     qPrintable(catalogue.failures().first().reason));
            if (start == 2) { // unless it is asked for
                catalogue.setProbeTimeLimit(1000);
                catalogue.tryAgain();
                QCOMPARE(catalogue.failures().size(), 1);
                QVERIFY(kind.startsWith(QLatin1String("printing")) ||
                        catalogue.failures().first().reason.contains(QLatin1String("within 1 s")));
            }
        }
    }

    void leavesNoProcessOfAPluginThatBlocks()
    {
        {
            IpCatalogue catalogue;
            catalogue.setProbeTimeLimit(500);
            catalogue.loadFolder(fake("blocking-listing"), true);
            QCOMPARE(catalogue.failures().size(), 1);
        }
        const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
        for (const QString &process : processes) {
            const QByteArray command = contentsOf(QStringLiteral("/proc/%1/cmdline").arg(process));
            QVERIFY(!command.contains(fake("blocking-listing").toUtf8()) ||
                    process == QString::number(QCoreApplication::applicationPid()));
        }
    }

    void takesTheGoodIpsOfAPluginWithBadOnes_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("nullandgood") << QStringLiteral("no object");
        QTest::newRow("twice") << QStringLiteral("one object twice");
    }

    void takesTheGoodIpsOfAPluginWithBadOnes()
    {
        QFETCH(QString, reason);
        IpCatalogue catalogue;
        catalogue.loadFolder(fake(QTest::currentDataTag()), true);
        QCOMPARE(catalogue.entries().size(), 1);
        QCOMPARE(catalogue.failures().size(), 1);
        QVERIFY2(catalogue.failures().first().reason.contains(reason),
                 qPrintable(catalogue.failures().first().reason));
        QVERIFY(catalogue.isSupported(0, deviceOf("TV5K")));
    }

    void probesALibraryAgainOnlyAfterItChanged()
    {
        const QTemporaryDir dir;
        const QString cache = dir.filePath(QStringLiteral("probes.json"));
        const QString library = dir.filePath(QStringLiteral("plugins/libblinker.so"));
        QDir().mkpath(QFileInfo(library).path());
        QVERIFY(QFile::copy(fake("blinker") + QStringLiteral("/libblinker.so"), library));
        const auto load = [&] {
            IpCatalogue catalogue;
            catalogue.setProbeCache(cache);
            catalogue.loadFolder(QFileInfo(library).path(), true);
            return catalogue.entries().size();
        };
        QCOMPARE(load(), 1);
        const QByteArray first = contentsOf(cache);
        QVERIFY(first.contains("libblinker"));
        QCOMPARE(load(), 1);
        QCOMPARE(contentsOf(cache), first);
        QFile file(library);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(100),
                                 QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(load(), 1);
        QVERIFY(contentsOf(cache) != first);
        write(cache, "garbled");
        QCOMPARE(load(), 1);
    }

    void movesAConfigurationWhereThePluginCan()
    {
        const QTemporaryDir dir;
        const QString ipc = dir.filePath(QStringLiteral("x.ipc"));
        write(ipc, "[General]\ntype=fake.blinker\ntarget_device=A\n[Config]\nLamps=99\n");
        IpCatalogue::Move move;
        QString error;
        {
            IpCatalogue catalogue;
            catalogue.loadFolder(fake("blinker"), true);
            QVERIFY(!catalogue.canMove(0));
            QVERIFY(!catalogue.moveToDevice(0, ipc, QStringLiteral("B"), false, &move, &error));
            QVERIFY2(error.contains(QLatin1String("Blinker")), qPrintable(error));
        }
        {
            IpCatalogue catalogue;
            catalogue.loadFolder(fake("moving"), true);
            QVERIFY(catalogue.canMove(0));
            QVERIFY(catalogue.moveToDevice(0, ipc, QStringLiteral("B"), false, &move, &error));
            QCOMPARE(move.losses.size(), 1);
            QVERIFY(move.changed);
            QVERIFY(contentsOf(ipc).contains("target_device=A"));
            QVERIFY(catalogue.moveToDevice(0, ipc, QStringLiteral("B"), true, &move, &error));
            QVERIFY(contentsOf(ipc).contains("target_device=B"));
        }
        for (const char *kind : {"throwing-moving", "refusing-moving"}) {
            IpCatalogue catalogue;
            catalogue.loadFolder(fake(kind), true);
            QVERIFY(!catalogue.moveToDevice(0, ipc, QStringLiteral("C"), true, &move, &error));
            QVERIFY2(error.contains(QLatin1String("stuck")) ||
                         error.contains(QLatin1String("No lamp fits")),
                     qPrintable(error));
        }
    }

    // The configurator and the workbench know each other's method by name only.
    void theConfiguratorMovesItsConfigurations()
    {
        const QTemporaryDir dir;
        const QString ipc = dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"));
        const QByteArray before = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                                  "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
                                  "[Config]\nEnable%20CAN=true\n";
        write(ipc, before);
        IpCatalogue catalogue;
        loadBoth(catalogue);
        QVERIFY(catalogue.canMove(0));
        const QString small = QStringLiteral("TV1KL-5A-QFN32-C6/I5");
        IpCatalogue::Move move;
        QString error;
        QVERIFY2(catalogue.moveToDevice(0, ipc, small, false, &move, &error), qPrintable(error));
        QVERIFY(move.changed);
        QVERIFY2(move.losses.contains(QStringLiteral("CAN is taken out: TV1KL-5A cannot have it.")),
                 qPrintable(move.losses.join(u'|')));
        QCOMPARE(contentsOf(ipc), before);
        QVERIFY2(catalogue.moveToDevice(0, ipc, small, true, &move, &error), qPrintable(error));
        QVERIFY(contentsOf(ipc).contains("target_device=" + small.toUtf8() + '\n'));
    }

    void loadsTheGoodOnesBesideTheBroken()
    {
        IpCatalogue catalogue;
        for (const char *kind : {"throwing", "plain", "blinker", "missingsymbol"})
            catalogue.loadFolder(fake(kind), true);
        QCOMPARE(catalogue.entries().size(), 1);
        QCOMPARE(catalogue.failures().size(), 3);
    }

    void skipsAFileThatIsNoLibrary()
    {
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("libBroken.so")), "this is no library");
        write(dir.filePath(QStringLiteral("readme.txt")), "not looked at");
        IpCatalogue catalogue;
        catalogue.loadFolder(dir.path(), true);
        QCOMPARE(catalogue.failures().size(), 1);
        QVERIFY(catalogue.failures().first().library.endsWith(QLatin1String("libBroken.so")));
    }

    void reportsAFolderOnlyIfItIsRequired()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(QStringLiteral("/nowhere/at/all"), false);
        QVERIFY(catalogue.failures().isEmpty());
        catalogue.loadFolder(QStringLiteral("/nowhere/at/all"), true);
        QCOMPARE(catalogue.failures().size(), 1);
    }

    void takesTheFirstOfTwoPluginsWithOneIp()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(fake("blinker"), true);
        catalogue.loadFolder(fake("blinker"), true); // the same library: nothing to report
        QVERIFY(catalogue.failures().isEmpty());
        catalogue.loadFolder(fake("throwingdialog"), true);
        QCOMPARE(catalogue.entries().size(), 1);
        QCOMPARE(catalogue.failures().size(), 1);
        QVERIFY(catalogue.failures().first().reason.contains(QLatin1String("offered by")));
    }

    void findsADataFolderByTheLibrarysName()
    {
        const QTemporaryDir dir;
        const QDir root(dir.path());
        root.mkpath(QStringLiteral("plugins"));
        root.mkpath(QStringLiteral("share/my_fine_ip"));
        root.mkpath(QStringLiteral("share/other"));
        const QString library = root.filePath(QStringLiteral("plugins/libMyFineIp.so"));
        const QStringList folders{root.filePath(QStringLiteral("share"))};
        QCOMPARE(IpCatalogue::dataFolderOf(library, folders),
                 root.filePath(QStringLiteral("share/my_fine_ip")));
        root.mkpath(QStringLiteral("plugins/my-fine-ip")); // beside the library comes first
        QCOMPARE(IpCatalogue::dataFolderOf(library, folders),
                 root.filePath(QStringLiteral("plugins/my-fine-ip")));
        QCOMPARE(
            IpCatalogue::dataFolderOf(root.filePath(QStringLiteral("plugins/libNone.so")), folders),
            root.filePath(QStringLiteral("plugins")));
    }

    void saysWhyAnIpCannotBeMade()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(fake("blinker"), true);
        QString reason;
        QVERIFY(catalogue.isSupported(0, deviceOf("TV5K"), &reason));
        QCOMPARE(reason, QString());
        QVERIFY(!catalogue.isSupported(0, deviceOf("TV2KR"), &reason));
        QVERIFY2(reason.contains(deviceOf("TV2KR").device()), qPrintable(reason));
        QVERIFY(!catalogue.isSupported(0, {}, &reason));
        QVERIFY(reason.contains(QLatin1String("project")));
    }

    void catchesWhatADialogThrows()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(fake("throwingdialog"), true);
        QCOMPARE(catalogue.entries().size(), 1);
        QString error;
        const QTemporaryDir dir;
        QVERIFY(!catalogue.createIp(0, dir.path(), deviceOf("TV5K"), &error));
        QVERIFY2(error.contains(QLatin1String("the lamp is broken")), qPrintable(error));
        QVERIFY(!catalogue.openIp(0, dir.path(), dir.filePath(QStringLiteral("x.ipc")), &error));
        QVERIFY2(error.contains(QLatin1String("unknown type")), qPrintable(error));
    }

    void modelIsATreeOfCategories()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        CatalogueModel model(catalogue);
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), 1);
        const QModelIndex soft = model.index(0, 0);
        QCOMPARE(soft.data().toString(), QStringLiteral("Soft IP Core"));
        QCOMPARE(soft.data(CatalogueModel::IpRole).toInt(), -1);
        QCOMPARE(model.rowCount(soft), 2);
        const QModelIndex lamps = model.index(1, 0, soft);
        QCOMPARE(lamps.data().toString(), QStringLiteral("Lamps"));
        const QModelIndex blinker = model.index(0, CatalogueModel::Name, lamps);
        QCOMPARE(blinker.data().toString(), QStringLiteral("Blinker"));
        QCOMPARE(blinker.siblingAtColumn(CatalogueModel::Version).data().toString(),
                 QStringLiteral("2.1"));
        QCOMPARE(blinker.siblingAtColumn(CatalogueModel::Summary).data().toString(),
                 QStringLiteral("Makes a lamp blink."));
        QCOMPARE(model.indexOf(1), blinker);
    }

    void modelGreysWhatTheDeviceCannotHave()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        CatalogueModel model(catalogue);
        const QAbstractItemModelTester tester(&model);
        QVERIFY(!model.indexOf(1).data(Qt::ForegroundRole).isValid()); // no device yet
        model.setDevice(deviceOf("TV2KR"));
        QVERIFY(model.indexOf(1).data(Qt::ForegroundRole).isValid());
        QVERIFY(!model.indexOf(1).data(CatalogueModel::SupportedRole).toBool());
        QVERIFY(model.indexOf(1)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QLatin1String("does not support")));
        QVERIFY(!model.indexOf(0).data(Qt::ForegroundRole).isValid());
        model.setDevice(deviceOf("TV5K"));
        QVERIFY(!model.indexOf(1).data(Qt::ForegroundRole).isValid());
    }

    void viewTellsWhatIsSelectedAndWhy()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        CatalogueView view(catalogue);
        view.setDevice(deviceOf("TV2KR"));
        view.setCurrentIp(1);
        const auto *details = view.findChild<QLabel *>(QStringLiteral("catalogueDetails"));
        const auto *create = view.findChild<QPushButton *>(QStringLiteral("createIpButton"));
        QVERIFY(details->text().contains(QLatin1String("Makes a lamp blink.")));
        QVERIFY(details->text().contains(QLatin1String("does not support")));
        QVERIFY(!create->isEnabled());
        view.setDevice(deviceOf("TV5K"));
        QCOMPARE(view.currentIp(), 1);
        QVERIFY(create->isEnabled());
    }

    void enterAsksForTheIp()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        CatalogueView view(catalogue);
        view.show();
        view.setCurrentIp(1);
        QSignalSpy activated(&view, &CatalogueView::activated);
        QTest::keyClick(view.findChild<QTreeView *>(), Qt::Key_Return);
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated.first().first().toInt(), 1);
    }

    void filterLeavesWhatMatches()
    {
        IpCatalogue catalogue;
        loadBoth(catalogue);
        CatalogueView view(catalogue);
        view.findChild<QLineEdit *>()->setText(QStringLiteral("lamp blink")); // the summary
        const QAbstractItemModel *rows = view.findChild<QTreeView *>()->model();
        QCOMPARE(rows->rowCount(rows->index(0, 0)), 1);
    }

    void typeOfNamesTheIpOrSaysWhyNot_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("error");
        QTest::newRow("good") << QByteArray("[General]\ntype=fake.blinker\n")
                              << QStringLiteral("fake.blinker") << QString();
        QTest::newRow("no type") << QByteArray("[General]\nversion=1\n") << QString()
                                 << QStringLiteral("no entry \"type\"");
        QTest::newRow("no INI file")
            << QByteArray("[General]\ntype\n") << QString() << QStringLiteral("line 2");
        QTest::newRow("binary") << QByteArray("\0\1\2\3", 4) << QString()
                                << QStringLiteral("no IP configuration");
    }

    void typeOfNamesTheIpOrSaysWhyNot()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, type);
        QFETCH(QString, error);
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a b.ipc"));
        write(path, text);
        QString said;
        QCOMPARE(IpSession::typeOf(path, &said), type);
        QVERIFY2(said.contains(error), qPrintable(said));
        if (type.isEmpty())
            QVERIFY2(said.contains(path), qPrintable(said));
        QCOMPARE(IpSession::typeOf(QStringLiteral("/no/such.ipc"), &said), QString());
    }

    void sessionTellsWhatWasMade()
    {
        const QTemporaryDir dir;
        IpCatalogue catalogue;
        catalogue.loadFolder(fake("blinker"), true);
        IpSession session(catalogue);
        QSignalSpy finished(&session, &IpSession::finished);
        QString error;
        {
            const ModalWatcher watcher(
                [](QWidget *modal) { qobject_cast<QDialog *>(modal)->reject(); });
            QVERIFY(session.create(0, dir.path(), deviceOf("TV5K"), &error));
        }
        QVERIFY(finished.takeFirst().first().toStringList().isEmpty());
        const ModalWatcher watcher(
            [](QWidget *modal) { qobject_cast<QDialog *>(modal)->accept(); });
        QVERIFY(session.create(0, dir.path(), deviceOf("TV5K"), &error));
        const QString made =
            QFileInfo(dir.filePath(QStringLiteral("blinker/blinker.ipc"))).absoluteFilePath();
        QCOMPARE(finished.takeFirst().first().toStringList(), QStringList(made));
        QVERIFY(session.open(made, &error));
        QCOMPARE(finished.size(), 1);
    }

    void sessionRefusesWhatItCannotOpen()
    {
        const QTemporaryDir dir;
        IpCatalogue catalogue;
        catalogue.loadFolder(fake("blinker"), true);
        IpSession session(catalogue);
        QString error;
        QVERIFY(!session.create(0, dir.path(), deviceOf("TV2KR"), &error));
        QVERIFY(error.contains(QLatin1String("does not support")));
        const QString path = dir.filePath(QStringLiteral("x.ipc"));
        write(path, "[General]\ntype=fake.lamp\n");
        QVERIFY(!session.open(path, &error));
        QVERIFY2(error.contains(QLatin1String("fake.lamp")), qPrintable(error));
    }
};

TARVO_TEST_MAIN(QApplication, TestIpCatalogue)
#include "tst_ipcatalogue.moc"
