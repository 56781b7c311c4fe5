#include <testsupport.h>
#include <unprivileged.h>

#include <workbench/project/filelock.h>
#include <workbench/project/ipchead.h>
#include <workbench/project/project.h>
#include <workbench/project/projectmodel.h>
#include <workbench/results/superseded.h>

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

class TestProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = QFileInfo(m_dir->path()).canonicalFilePath();
    }

    void isMadeWithItsFolder()
    {
        QString error;
        const auto project = Project::create(m_folder + QStringLiteral("/a b/ö"),
                                             QStringLiteral("my board"), device(), &error);
        QVERIFY2(project, qPrintable(error));
        QCOMPARE(project->name(), QStringLiteral("my board"));
        QCOMPARE(project->path(), QString(m_folder + QStringLiteral("/a b/ö")));
        QCOMPARE(project->device().id(), device().id());
        QVERIFY(QFileInfo::exists(project->file()));
    }

    void readsAnIpWhenItIsAskedFor()
    {
        QString error;
        const auto project = Project::create(m_folder, QStringLiteral("p"), device(), &error);
        const QString path = m_folder + QStringLiteral("/a.ipc");
        write(path, "[General]\ntype=one\n");
        ProjectModel model;
        model.setProject(project.get());
        write(path, "[General]\ntype=two\n");
        QCOMPARE(model.indexOf(path).data(ProjectModel::TypeRole).toString(),
                 QStringLiteral("two"));
        const QPersistentModelIndex selected = model.indexOf(path);
        write(path, "[General]\ntype=three\n");
        model.refresh();
        QVERIFY(selected.isValid());
        QCOMPARE(model.indexOf(path).data(ProjectModel::TypeRole).toString(),
                 QStringLiteral("three"));
    }

    void doesNotReplaceAProject()
    {
        QString error;
        QVERIFY(Project::create(m_folder, QStringLiteral("p"), device(), &error));
        QVERIFY(!Project::create(m_folder, QStringLiteral("p"), device(), &error));
        QVERIFY2(error.contains(QLatin1String("exists already")), qPrintable(error));
    }

    void tellsFilesOfAnEarlierLanguage()
    {
        const QStringList files{QStringLiteral("/p/a.ipc"),   QStringLiteral("/p/a.v"),
                                QStringLiteral("/p/a.vhd"),   QStringLiteral("/p/a.vho"),
                                QStringLiteral("/p/a.vo"),    QStringLiteral("/p/b.v"),
                                QStringLiteral("/p/c.vhd"),   QStringLiteral("/p/c.vho"),
                                QStringLiteral("/p/a.b.vhd"), QStringLiteral("/q/b.vhd")};
        QCOMPARE(superseded(files, Language::Vhdl), QStringList(files.at(1)));
        QCOMPARE(superseded(files, Language::Verilog), QStringList({files.at(2), files.at(3)}));
        QCOMPARE(superseded({}, Language::Vhdl), QStringList());
    }

    void refusesNamesThatAreNoFileNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks") << QStringLiteral("  ");
        QTest::newRow("blank at the end") << QStringLiteral("a ");
        QTest::newRow("path") << QStringLiteral("a/b");
        QTest::newRow("hidden") << QStringLiteral(".a");
        QTest::newRow("line feed") << QStringLiteral("a\nb");
        QTest::newRow("too long") << QString(250, u'a');
    }

    void refusesNamesThatAreNoFileNames()
    {
        QFETCH(QString, name);
        QString error;
        QVERIFY(!Project::create(m_folder, name, device(), &error));
        QCOMPARE(error, Project::nameMistake(name));
        QVERIFY(!error.isEmpty());
        QVERIFY(entriesOf(m_folder).isEmpty());
    }

    void saysWhyAFolderCannotBeUsed()
    {
        QString error;
        write(m_folder + QStringLiteral("/file"), "x");
        QVERIFY(!Project::create(m_folder + QStringLiteral("/file/sub"), QStringLiteral("p"),
                                 device(), &error));
        QVERIFY2(error.contains(QLatin1String("is a file")), qPrintable(error));
    }

    void writesEveryChange()
    {
        const auto project = make();
        write(m_folder + QStringLiteral("/a.v"), "module a; endmodule\n");
        project->addFiles({m_folder + QStringLiteral("/a.v"), m_folder + QStringLiteral("/s/b.v"),
                           m_folder + QStringLiteral("/../outside.v")});
        project->addFiles({m_folder + QStringLiteral("/a.v")}); // stays where it is
        project->setTopModule(QStringLiteral("a"));
        project->setDevice(otherDevice());

        QString error;
        const auto again = Project::open(project->file(), &error);
        QVERIFY2(again, qPrintable(error));
        QCOMPARE(again->files(), project->files());
        QCOMPARE(again->files().size(), 3);
        QCOMPARE(again->topModule(), QStringLiteral("a"));
        QCOMPARE(again->device().id(), otherDevice().id());
        const QByteArray text = contentsOf(project->file());
        QVERIFY(text.contains("\"a.v\""));
        QVERIFY(text.contains("\"../outside.v\""));
        QVERIFY(!text.contains(m_folder.toUtf8()));
    }

    void movesAndRemovesSources()
    {
        const auto project = make();
        const auto file = [this](const char *name) {
            return QString(m_folder + u'/' + QLatin1String(name));
        };
        project->addFiles({file("a.v"), file("b.v"), file("c.v")});
        project->moveFile(file("c.v"), -1);
        QCOMPARE(project->files(), QStringList({file("a.v"), file("c.v"), file("b.v")}));
        project->moveFile(file("a.v"), 10); // stops at the end
        QCOMPARE(project->files().last(), file("a.v"));
        project->moveFile(file("none.v"), 1);
        project->removeFile(file("c.v"));
        QCOMPARE(project->files(), QStringList({file("b.v"), file("a.v")}));
    }

    void findsConfigurationsInItsFolders()
    {
        const auto project = make();
        write(m_folder + QStringLiteral("/one.ipc"), "[General]\n");
        write(m_folder + QStringLiteral("/ip/two.ipc"), "[General]\n");
        write(m_folder + QStringLiteral("/a/b/c/deep.ipc"), "[General]\n");
        QCOMPARE(project->ipFiles(), QStringList({m_folder + QStringLiteral("/one.ipc"),
                                                  m_folder + QStringLiteral("/ip/two.ipc")}));
    }

    void isFoundAboveAFolder()
    {
        const auto project = make();
        QDir(m_folder).mkpath(QStringLiteral("ip/x"));
        QCOMPARE(Project::fileAbove(m_folder + QStringLiteral("/ip/x")), project->file());
        write(m_folder + QStringLiteral("/second.tvproj"), "{}");
        QCOMPARE(Project::fileAbove(m_folder + QStringLiteral("/ip")), QString());
    }

    void readsWhatWasChangedOutside()
    {
        const auto project = make();
        QSignalSpy changed(project.get(), &Project::changed);
        auto content = ProjectFile::read(project->file());
        QVERIFY(content);
        content->files.append(QStringLiteral("new.v"));
        QVERIFY(content->write(project->file()));
        QTRY_COMPARE(project->files(), QStringList(m_folder + QStringLiteral("/new.v")));
        QVERIFY(!changed.isEmpty());
    }

    void tellsThatItsFileWasDeletedAndWritesItAgain()
    {
        const auto project = make();
        QSignalSpy failed(project.get(), &Project::failed);
        QVERIFY(QFile::remove(project->file()));
        QTRY_VERIFY(!failed.isEmpty());
        QVERIFY(failed.first().first().toString().contains(QLatin1String("deleted")));
        project->setTopModule(QStringLiteral("t"));
        QVERIFY(contentsOf(project->file()).contains("\"t\""));
    }

    void tellsThatItsFileWasBrokenOutside()
    {
        const auto project = make();
        project->setTopModule(QStringLiteral("kept"));
        QSignalSpy failed(project.get(), &Project::failed);
        QVERIFY(write(project->file(), "{ broken"));
        QTRY_VERIFY(!failed.isEmpty());
        QVERIFY(failed.last().first().toString().contains(QLatin1String("line 1")));
        QCOMPARE(project->topModule(), QStringLiteral("kept"));
    }

    void tellsThatAChangeCannotBeWritten()
    {
        const auto project = make();
        QFile::setPermissions(project->file(), QFile::ReadOwner);
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::ExeOwner);
        QSignalSpy failed(project.get(), &Project::failed);
        bool binding = false;
        {
            const Unprivileged unprivileged;
            binding = unprivileged.holds();
            project->setTopModule(QStringLiteral("x"));
        }
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (!binding)
            QSKIP("permissions do not bind here");
        QCOMPARE(failed.size(), 1);
        QCOMPARE(project->topModule(), QStringLiteral("x"));
    }

    void anEntryThatIsSpelledTwiceIsOne()
    {
        const auto project = make();
        QVERIFY(write(project->file(),
                      "{\"format\": 1, \"files\": [\"./a.v\", \"a.v\", \"s/../a.v\", \"b.v\"]}"));
        const QString a = m_folder + QStringLiteral("/a.v");
        const QString b = m_folder + QStringLiteral("/b.v");
        QTRY_COMPARE(project->files(), QStringList({a, b}));
        project->addFiles({a, QStringLiteral("./a.v")});
        QCOMPARE(project->files(), QStringList({a, b}));
        project->moveFile(a, 1);
        QCOMPARE(project->files(), QStringList({b, a}));
        project->removeFile(a);
        QCOMPARE(project->files(), QStringList(b));
    }

    void twoOfAProjectKeepAllEntries()
    {
        const auto one = make();
        QString error;
        const auto other = Project::open(one->file(), &error);
        QVERIFY2(other, qPrintable(error));
        // Neither learns of the other's changes but by making its own.
        for (int i = 0; i < 20; ++i) {
            one->addFiles({m_folder + QStringLiteral("/one%1.v").arg(i)});
            other->addFiles({m_folder + QStringLiteral("/other%1.v").arg(i)});
        }
        one->removeFile(m_folder + QStringLiteral("/other3.v"));
        other->setTopModule(QStringLiteral("top"));
        one->setDevice(otherDevice());
        const auto fresh = Project::open(one->file(), &error);
        QCOMPARE(fresh->files().size(), 39);
        QVERIFY(!fresh->files().contains(m_folder + QStringLiteral("/other3.v")));
        QCOMPARE(fresh->topModule(), QStringLiteral("top"));
        QCOMPARE(fresh->device().id(), otherDevice().id());
        QTRY_COMPARE(other->files(), fresh->files()); // and shows it
        QTRY_COMPARE(one->files(), fresh->files());
    }

    void processesKeepEachOthersEntries()
    {
        const auto project = make();
        constexpr int count = 20;
        std::vector<std::unique_ptr<QProcess>> others;
        for (const char *name : {"a", "b", "c", "d"}) {
            others.push_back(std::make_unique<QProcess>());
            others.back()->start(QStringLiteral(TARVO_PROJECT_CHANGER),
                                 {project->file(), QLatin1String(name), QString::number(count)});
        }
        QStringList expected;
        for (int i = 0; i < count; ++i) {
            const QString own = m_folder + QStringLiteral("/own%1.v").arg(i);
            project->addFiles({own});
            expected.append(own);
        }
        for (const auto &other : others) {
            QVERIFY(other->waitForFinished(60000));
            QVERIFY2(other->exitCode() == 0, other->readAllStandardError().constData());
        }
        for (const char *name : {"a", "b", "c", "d"}) {
            for (int i = 1; i < count; i += 2)
                expected.append(m_folder + u'/' + QLatin1String(name) + QString::number(i) +
                                QStringLiteral(".v"));
        }
        QString error;
        QStringList kept = Project::open(project->file(), &error)->files();
        kept.sort();
        expected.sort();
        QCOMPARE(kept, expected);
        QCOMPARE(entriesOf(m_folder), QStringList(QStringLiteral("p.tvproj")));
        QTRY_COMPARE(project->files().size(), expected.size()); // and shows them
    }

    void tellsWhoseLockStandsInTheWay()
    {
        const auto project = make();
        QSignalSpy failed(project.get(), &Project::failed);
        {
            const FileLock lock(project->file(), 0);
            QVERIFY(lock.isHeld());
            project->setTopModule(QStringLiteral("later"));
        }
        QCOMPARE(failed.size(), 1);
        const QString said = failed.first().first().toString();
        QVERIFY2(said.contains(project->file()), qPrintable(said));
        QVERIFY(!contentsOf(project->file()).contains("later"));
        // Nothing is lost: the next change brings both.
        project->addFiles({m_folder + QStringLiteral("/a.v")});
        QCOMPARE(failed.size(), 1);
        QVERIFY(contentsOf(project->file()).contains("later"));
        QVERIFY(contentsOf(project->file()).contains("a.v"));
    }

    void aFileThatCannotBeReadIsNotReplaced()
    {
        const auto project = make();
        const QByteArray broken = "<<<<<<< mine\n{";
        write(project->file(), broken);
        QSignalSpy failed(project.get(), &Project::failed);
        project->addFiles({m_folder + QStringLiteral("/a.v")});
        QVERIFY(!failed.isEmpty());
        QCOMPARE(contentsOf(project->file()), broken);
        QCOMPARE(project->files().size(), 1);
        // Once it is repaired the change is made.
        write(project->file(), "{\"format\": 1, \"files\": [\"b.v\"]}");
        QTRY_VERIFY(contentsOf(project->file()).contains("a.v"));
        QVERIFY(contentsOf(project->file()).contains("b.v"));
    }

    void aLockEndsWithItsHolder()
    {
        const QString path = m_folder + QStringLiteral("/file");
        {
            const FileLock missing(path, 0); // of the folder
            QVERIFY(missing.isHeld());
            QVERIFY(!FileLock(path, 0).isHeld());
        }
        write(path, "x");
        auto lock = std::make_unique<FileLock>(path, 0);
        QVERIFY(lock->isHeld());
        const FileLock refused(path, 10);
        QVERIFY(!refused.isHeld());
        QVERIFY2(refused.error().contains(path), qPrintable(refused.error()));
        lock.reset();
        QVERIFY(FileLock(path, 0).isHeld());
        QVERIFY(!FileLock(path + QStringLiteral("/no/such"), 0).isHeld());
        QCOMPARE(entriesOf(m_folder), QStringList(QStringLiteral("file")));
    }

    void readsTheHeadOfAConfiguration_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("words");
        const QString words = QStringLiteral("TV2KR-18C, QFN88P, C8/I7");
        const QString id = device().id();
        QTest::newRow("as it is written")
            << QByteArray("[General]\ntarget_device=" + id.toUtf8() +
                          "\ntype=a.b\nversion=1.0\n\n[Config]\ntype=x\n")
            << QStringLiteral("a.b") << id << words;
        QTest::newRow("with the group of an older file")
            << QByteArray(
                   "type=a.b\r\n[device]\r\nid=TV2KR-18C\r\npackage=QFN88P\r\nspeed=C8/I7\r\n")
            << QStringLiteral("a.b") << QStringLiteral("TV2KR-18C, QFN88P, C8/I7") << words;
        QTest::newRow("of an unknown device")
            << QByteArray("[General]\ntarget_device=\"TV9, \\x31\"\n") << QString()
            << QStringLiteral("TV9, 1") << QStringLiteral("TV9, 1");
        QTest::newRow("without any")
            << QByteArray("[Config]\ntarget_device=x\n[") << QString() << QString() << QString();
        QTest::newRow("binary") << QByteArray("\0=\xFF\n[[\n=\n", 8) << QString() << QString()
                                << QString();
    }

    void readsTheHeadOfAConfiguration()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, type);
        QFETCH(QString, name);
        QFETCH(QString, words);
        const IpcHead head = IpcHead::of(text);
        QCOMPARE(head.type, type);
        QCOMPARE(head.deviceName, name);
        QCOMPARE(head.deviceWords(), words);
    }

    void modelTellsWhereDevicesDiffer()
    {
        const auto project = make();
        const QString same = m_folder + QStringLiteral("/ip/same.ipc");
        const QString unknown = m_folder + QStringLiteral("/ip/unknown.ipc");
        write(same, "[General]\ntarget_device=" + device().id().toUtf8() + "\n");
        write(unknown, "[General]\ntarget_device=TV9-1\n");
        ProjectModel model;
        const QAbstractItemModelTester tester(&model);
        model.setProject(project.get());
        const auto text = [&](const QString &path, int role) {
            return model.indexOf(path).data(role).toString();
        };
        QCOMPARE(text(same, Qt::DisplayRole), QStringLiteral("ip/same.ipc"));
        QVERIFY(!model.indexOf(same).data(ProjectModel::OtherDeviceRole).toBool());
        project->setDevice(otherDevice());
        QVERIFY(model.indexOf(same).data(ProjectModel::OtherDeviceRole).toBool());
        for (const int role :
             {int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)}) {
            for (const DEV::DeviceArg &named : {device(), otherDevice()}) {
                const bool whole = role != Qt::DisplayRole;
                QVERIFY2(text(same, role).contains(whole ? IpcHead::words(named) : named.device()),
                         qPrintable(text(same, role)));
            }
            QVERIFY2(text(unknown, role).contains(QLatin1String("TV9-1")),
                     qPrintable(text(unknown, role)));
        }
        // What changes on disk shows, two folders down as well.
        const QString deep = m_folder + QStringLiteral("/ip2/core/deep.ipc");
        write(deep, "[General]\ntarget_device=" + otherDevice().id().toUtf8() + "\n");
        model.refresh();
        project->setTopModule(QStringLiteral("t")); // watches the new folder
        QVERIFY(!model.indexOf(deep).data(ProjectModel::OtherDeviceRole).toBool());
        write(deep + QStringLiteral(".new"), "[General]\ntarget_device=TV9-1\n");
        QVERIFY(::rename(QFile::encodeName(deep + QStringLiteral(".new")).constData(),
                         QFile::encodeName(deep).constData()) == 0);
        QTRY_VERIFY(model.indexOf(deep).data(ProjectModel::OtherDeviceRole).toBool());
    }

    // The first ones are there at once.
    void modelLooksAtManyFilesElsewhere()
    {
        const auto project = make();
        QStringList sources;
        for (int i = 0; i < 600; ++i) {
            sources.append(m_folder + QStringLiteral("/a%1.v").arg(i));
            if (i % 2)
                write(sources.last(), "\n");
        }
        for (int i = 0; i < 300; ++i)
            write(m_folder + QStringLiteral("/ip%1/core.ipc").arg(i), "[General]\n");
        project->addFiles(sources);
        ProjectModel model;
        const QAbstractItemModelTester tester(&model);
        model.setProject(project.get());
        const QModelIndex ips = model.groupIndex(ProjectModel::Ips);
        const QPersistentModelIndex group = model.groupIndex(ProjectModel::Sources);
        QVERIFY(model.rowCount(group) > 0 && model.rowCount(group) < sources.size());
        QVERIFY(model.rowCount(ips) > 0 && model.rowCount(ips) < 300);
        const QPersistentModelIndex first = model.index(0, 0, group);
        QTRY_COMPARE(model.rowCount(group), sources.size());
        QCOMPARE(model.rowCount(ips), 300);
        QVERIFY(first.isValid()); // what is selected stays so
        for (int i = 0; i < sources.size(); ++i) {
            const QModelIndex index = model.index(i, 0, group);
            QCOMPARE(index.data(ProjectModel::PathRole).toString(), sources.at(i));
            QCOMPARE(index.data(ProjectModel::MissingRole).toBool(), i % 2 == 0);
        }
        const QString added = m_folder + QStringLiteral("/b.v");
        project->addFiles({added});
        model.finishReading();
        QCOMPARE(model.indexOf(added).row(), sources.size());
        QVERIFY(first.isValid());
        project->removeFiles(sources);
        model.finishReading();
        QCOMPARE(model.rowCount(group), 1);
        model.refresh();
        model.setProject(nullptr); // nor does anything come for it
        model.finishReading();
        QCOMPARE(model.rowCount(), 0);
    }

    void modelShowsIpsAndSources()
    {
        const auto project = make();
        ProjectModel model;
        const QAbstractItemModelTester tester(&model);
        QCOMPARE(model.rowCount(), 0);
        model.setProject(project.get());
        QCOMPARE(model.rowCount(), 2);
        write(m_folder + QStringLiteral("/ip/core.ipc"), "[General]\n");
        write(m_folder + QStringLiteral("/a.v"), "\n");
        project->addFiles({m_folder + QStringLiteral("/a.v"), m_folder + QStringLiteral("/b.v")});
        model.refresh();
        const QModelIndex ips = model.groupIndex(ProjectModel::Ips);
        const QModelIndex sources = model.groupIndex(ProjectModel::Sources);
        QCOMPARE(model.rowCount(ips), 1);
        QCOMPARE(model.index(0, 0, ips).data().toString(), QStringLiteral("ip/core.ipc"));
        QCOMPARE(model.rowCount(sources), 2);
        QCOMPARE(model.index(0, 0, sources).data().toString(), QStringLiteral("a.v"));
        QCOMPARE(model.index(1, 0, sources).data().toString(), QStringLiteral("b.v (missing)"));
        QVERIFY(model.index(1, 0, sources).data(ProjectModel::MissingRole).toBool());
        QVERIFY(model.isIp(model.indexOf(m_folder + QStringLiteral("/ip/core.ipc"))));
        QVERIFY(model.isSource(model.indexOf(m_folder + QStringLiteral("/a.v"))));
        project->removeFile(m_folder + QStringLiteral("/b.v"));
        QCOMPARE(model.rowCount(sources), 1);
        model.setProject(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

private:
    static DEV::DeviceArg device()
    {
        return DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    }
    static DEV::DeviceArg otherDevice() { return DEV::DeviceDb::bundled().devices().last(); }

    std::unique_ptr<Project> make()
    {
        QString error;
        auto project = Project::create(m_folder, QStringLiteral("p"), device(), &error);
        if (!project)
            qFatal("%s", qPrintable(error));
        return project;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
};

TARVO_TEST_MAIN(QApplication, TestProject)
#include "tst_project.moc"
