#include <testsupport.h>

#include <core/editormanager.h>
#include <core/idecore.h>
#include <core/project.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <dev/devicedb.h>

#include <QApplication>
#include <QPair>
#include <QTest>
#include <QWidget>

#include <memory>

using namespace Core;

namespace
{

class FakeProject : public Project
{
public:
    QString name() const override { return QStringLiteral("fake"); }
    QString path() const override { return QStringLiteral("/fake"); }
    void addFiles(const QStringList &) override {}
};

} // namespace

class TestServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        ViewManager::setDialogParent(nullptr);
        IdeCore::setDeviceDataBase(nullptr);
        ProjectManager::setCurrentProject(nullptr);
        EditorManager::setHandler({});
    }

    void areHarmlessWithoutAnApplication()
    {
        QVERIFY(!ViewManager::dialogParent());
        QVERIFY(!ProjectManager::currentProject());
        QVERIFY(!EditorManager::openEditor(QStringLiteral("/a.v"), false));
        QVERIFY(!EditorManager::openEditor(QString(), true));
        QCOMPARE(IdeCore::deviceDataBase(), &DEV::DeviceDb::bundled());
        QVERIFY(!IdeCore::deviceDataBase()->isEmpty());
    }

    void giveBackTheDialogParent()
    {
        QWidget window;
        ViewManager::setDialogParent(&window);
        QCOMPARE(ViewManager::dialogParent(), &window);
        QWidget other;
        ViewManager::setDialogParent(&other);
        QCOMPARE(ViewManager::dialogParent(), &other);
        ViewManager::setDialogParent(nullptr);
        QVERIFY(!ViewManager::dialogParent());
    }

    void forgetADestroyedDialogParent()
    {
        auto window = std::make_unique<QWidget>();
        ViewManager::setDialogParent(window.get());
        window.reset();
        QVERIFY(!ViewManager::dialogParent());
    }

    void giveBackTheProject()
    {
        FakeProject project;
        ProjectManager::setCurrentProject(&project);
        QCOMPARE(ProjectManager::currentProject(), &project);
        QCOMPARE(ProjectManager::currentProject()->name(), QStringLiteral("fake"));
        ProjectManager::setCurrentProject(nullptr);
        QVERIFY(!ProjectManager::currentProject());
    }

    void giveBackTheDeviceDatabase()
    {
        DEV::DeviceDb own;
        IdeCore::setDeviceDataBase(&own);
        QCOMPARE(IdeCore::deviceDataBase(), &own);
        QVERIFY(IdeCore::deviceDataBase()->isEmpty());
        IdeCore::setDeviceDataBase(nullptr);
        QCOMPARE(IdeCore::deviceDataBase(), &DEV::DeviceDb::bundled());
    }

    void handFilesToTheEditor_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("temporary");
        QTest::addColumn<bool>("result");
        QTest::newRow("opened for good") << QStringLiteral("/a b.v") << false << true;
        QTest::newRow("opened for now") << QStringLiteral("/%1.vhd") << true << true;
        QTest::newRow("refused") << QStringLiteral("/c.v") << false << false;
    }

    void handFilesToTheEditor()
    {
        QFETCH(QString, path);
        QFETCH(bool, temporary);
        QFETCH(bool, result);
        QList<QPair<QString, bool>> opened;
        EditorManager::setHandler([&opened, result](const QString &file, bool forNow) {
            opened.append({file, forNow});
            return result;
        });
        QCOMPARE(EditorManager::openEditor(path, temporary), result);
        QCOMPARE(opened, (QList<QPair<QString, bool>>{{path, temporary}}));
        EditorManager::setHandler({});
        QVERIFY(!EditorManager::openEditor(path, temporary));
        QCOMPARE(opened.size(), 1);
    }

    void letTheEditorReplaceItself()
    {
        int calls = 0;
        EditorManager::setHandler([&calls](const QString &, bool) {
            EditorManager::setHandler({});
            return ++calls == 1;
        });
        QVERIFY(EditorManager::openEditor(QStringLiteral("/a.v"), false));
        QVERIFY(!EditorManager::openEditor(QStringLiteral("/a.v"), false));
        QCOMPARE(calls, 1);
    }
};

TARVO_TEST_MAIN(QApplication, TestServices)
#include "tst_services.moc"
