#include <testsupport.h>
#include <unprivileged.h>

#include <workbench/project/project.h>
#include <workbench/project/projectmodel.h>
#include <workbench/results/superseded.h>

#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QAbstractItemModelTester>
#include <QApplication>
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
        ProjectFile content;
        QString error;
        QVERIFY(ProjectFile::read(project->file(), &content, &error));
        content.files.append(QStringLiteral("new.v"));
        QVERIFY(content.write(project->file(), &error));
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
