#include <nextdialog.h>
#include <testsupport.h>

#include <core/project.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <utils/folderlock.h>

#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using DEV::DeviceArg;
using TestSupport::NextDialog;

namespace
{

DeviceArg device()
{
    return {QStringLiteral("TV2KR-18C"), QStringLiteral("TV2KR-18"),
            QStringLiteral("C"),         QStringLiteral("QFN88P"),
            QStringLiteral("C8/I7"),     QStringLiteral("TV2KR-LV18QN88PC8/I7")};
}

class FakeProject : public Core::Project
{
public:
    QString name() const override { return {}; }
    QString path() const override { return {}; }
    void addFiles(const QStringList &paths) override { calls.append(paths); }

    QList<QStringList> calls;
};

// Counts the windows that come up while it lives.
class ShownWindows : public QObject
{
public:
    ShownWindows() { qApp->installEventFilter(this); }

    QStringList classes;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(object);
        if (event->type() == QEvent::Show && widget && widget->isWindow())
            classes.append(QString::fromLatin1(object->metaObject()->className()));
        return false;
    }
};

} // namespace

class TestIPCore : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_dir.isValid());
        QVERIFY(TestSupport::write(path(QStringLiteral("file %1")), "x"));
    }

    void cleanup()
    {
        Core::ViewManager::setDialogParent(nullptr);
        Core::ProjectManager::setCurrentProject(nullptr);
    }

    void readsADescriptor()
    {
        const QString file = path(QStringLiteral("folder/ip.ipspec"));
        QVERIFY(TestSupport::write(file,
                                   "{\"ipcore\": {\"id\": \"a\", \"category\": [\"b\", \"c\"],"
                                   " \"doc\": {\"help\": \"doc/help.html\"}}}"));
        QString error;
        const QVariantMap map = IPCore::processIPInfoSpec(file, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(map.size(), 3);
        QCOMPARE(map.value(QStringLiteral("ipcore.id")).toString(), QStringLiteral("a"));
        QCOMPARE(map.value(QStringLiteral("ipcore.category")).toStringList(),
                 (QStringList{QStringLiteral("b"), QStringLiteral("c")}));
        QCOMPARE(map.value(QStringLiteral("ipcore.doc.help")).toString(),
                 path(QStringLiteral("folder/doc/help.html")));
    }

    void leavesOtherHelpPathsAlone_data()
    {
        QTest::addColumn<QString>("help");
        QTest::newRow("absolute") << QStringLiteral("/usr/share/help.html");
        QTest::newRow("empty") << QString(QLatin1String(""));
    }

    void leavesOtherHelpPathsAlone()
    {
        QFETCH(QString, help);
        const QString file = path(QStringLiteral("ip.ipspec"));
        QVERIFY(TestSupport::write(file, "{\"ipcore\": {\"doc\": {\"help\": \"" + help.toUtf8() +
                                             "\"}}}"));
        const QVariantMap map = IPCore::processIPInfoSpec(file);
        QVERIFY(map.contains(QStringLiteral("ipcore.doc.help")));
        QCOMPARE(map.value(QStringLiteral("ipcore.doc.help")).toString(), help);
    }

    void addsNoHelpPathToADescriptorWithoutOne()
    {
        const QString file = path(QStringLiteral("ip.ipspec"));
        QVERIFY(TestSupport::write(file, "{\"a\": 1}"));
        QCOMPARE(IPCore::processIPInfoSpec(file).keys(), QStringList{QStringLiteral("a")});
    }

    void namesADescriptorThatCannotBeRead()
    {
        QString error;
        const QString missing = path(QStringLiteral("missing.ipspec"));
        QVERIFY(IPCore::processIPInfoSpec(missing, &error).isEmpty());
        QVERIFY2(error.contains(missing), qPrintable(error));
        QVERIFY(IPCore::processIPInfoSpec(path(QStringLiteral("file %1")), &error).isEmpty());
        QVERIFY2(
            error.startsWith(QString(path(QStringLiteral("file %1")) + QLatin1String(":1:1: "))),
            qPrintable(error));
        QVERIFY(IPCore::processIPInfoSpec(missing).isEmpty());
    }

    void checksWhatEveryIpNeeds_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("good");
        const auto row = [](const char *name, const char *key, const QVariant &value, bool good) {
            QTest::newRow(name) << QString::fromLatin1(key) << value << good;
        };
        row("all there", "ipcore.other", QString(), true);
        row("category as one text", "ipcore.category", QStringLiteral("Processor"), true);
        row("version as a number", "ipcore.version", 1.5, true);
        for (const char *key :
             {"ipcore.id", "ipcore.name", "ipcore.version", "ipcore.category", "ipcore.target"}) {
            const QByteArray name(key);
            row(QByteArray(name + " empty").constData(), key, QString(QLatin1String("")), false);
            row(QByteArray(name + " an empty list").constData(), key, QStringList(), false);
            row(QByteArray(name + " a list of nothing").constData(), key,
                QStringList{QString(), QString()}, false);
            row(QByteArray(name + " null").constData(), key, QVariant(), false);
        }
    }

    void checksWhatEveryIpNeeds()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(bool, good);
        QVariantMap info = {
            {QStringLiteral("ipcore.id"), QStringLiteral("a.b")},
            {QStringLiteral("ipcore.name"), QStringLiteral("name")},
            {QStringLiteral("ipcore.version"), QStringLiteral("1.0")},
            {QStringLiteral("ipcore.category"),
             QStringList{QStringLiteral("a"), QStringLiteral("b")}},
            {QStringLiteral("ipcore.target"), QStringLiteral("target")},
        };
        QVERIFY(IPCore::checkCommonInfo(info));
        info.insert(key, value);
        QCOMPARE(IPCore::checkCommonInfo(info), good);
        if (!good) {
            info.remove(key);
            QVERIFY(!IPCore::checkCommonInfo(info));
        }
    }

    void nothingIsNoIp() { QVERIFY(!IPCore::checkCommonInfo({})); }

    void tellsSupportedDevices_data()
    {
        QTest::addColumn<QStringList>("unsupported");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<bool>("expected");
        const auto row = [](const char *name, const QString &no, const QString &yes, bool good) {
            QTest::newRow(name) << no.split(u' ', Qt::SkipEmptyParts)
                                << yes.split(u' ', Qt::SkipEmptyParts) << good;
        };
        const QString none;
        row("no lists", none, none, true);
        row("supported by name", none, QStringLiteral("TV2K-18 TV2KR-18C"), true);
        row("supported without its version", none, QStringLiteral("TV2KR-18"), true);
        row("supported by series", none, QStringLiteral("TV2KR"), true);
        row("supported by prefix", none, QStringLiteral("TV2*"), true);
        row("supported by the whole name as prefix", none, QStringLiteral("TV2KR-18C*"), true);
        row("everything supported", none, QStringLiteral("*"), true);
        row("others supported", none, QStringLiteral("TV2K TV2KR-18B TV2KRX TV2KLR-18C"), false);
        row("part of the name without a star", none, QStringLiteral("TV2"), false);
        row("another prefix", none, QStringLiteral("TV2KRT*"), false);
        row("star in front", none, QStringLiteral("*18C"), false);
        row("lower case", none, QStringLiteral("tv2kr-18c"), false);
        row("its id", none, QStringLiteral("TV2KR-18C-QFN88P-C8/I7"), false);
        row("unsupported by name", QStringLiteral("TV2KR-18C"), none, false);
        row("unsupported without its version", QStringLiteral("TV2KR-18"), none, false);
        row("unsupported by series", QStringLiteral("TV1L TV2KR"), none, false);
        row("unsupported by prefix", QStringLiteral("TV2KR-*"), none, false);
        row("others unsupported", QStringLiteral("TV2K TV2KLR-18C"), none, true);
        row("in both lists", QStringLiteral("TV2KR-18C"), QStringLiteral("TV2KR-18C"), false);
        row("its series supported but not itself", QStringLiteral("TV2KR-18C"),
            QStringLiteral("TV2KR"), false);
        row("its series unsupported but itself supported", QStringLiteral("TV2KR"),
            QStringLiteral("TV2KR-18C"), false);
    }

    void tellsSupportedDevices()
    {
        QFETCH(QStringList, unsupported);
        QFETCH(QStringList, supported);
        QFETCH(bool, expected);
        QCOMPARE(IPCore::isSupported(device(), unsupported, supported), expected);
    }

    void supportsNoNullDevice()
    {
        QVERIFY(!IPCore::isSupported(DeviceArg(), {}, {}));
        QVERIFY(!IPCore::isSupported(DeviceArg(), {}, {QStringLiteral("*")}));
    }

    void writesAnIpConfiguration()
    {
        const QString file = path(QStringLiteral("a b.ipc"));
        const QByteArray whole("[General]\nversion=\"1.0 \"\n\n[Config]\ngpio=true\nsize=16 KB\n");
        const NextDialog dialog;
        const auto rewritten = [&file](const QByteArray &before) {
            TestSupport::write(file, before);
            IPCore::writeIPConfig(file, {{QStringLiteral("version"), QStringLiteral("1.0 ")}},
                                  {{QStringLiteral("gpio"), true},
                                   {QStringLiteral("size"), QStringLiteral("16 KB")}});
            return TestSupport::contentsOf(file);
        };
        QCOMPARE(rewritten("[Config]\nold=1\n"), whole);
        QCOMPARE(rewritten("; of Ann\n[General]\n[Config]\nold=1\n; all of it\nsize=8 KB\n"),
                 QByteArray("; of Ann\n[General]\nversion=\"1.0 \"\n\n[Config]\ngpio=true\n"
                            "; all of it\nsize=16 KB\n"));
        QCOMPARE(rewritten(QByteArray("\0;no text", 9)), whole);
        QVERIFY(!dialog.wasShown());
    }

    void tellsOfAConfigurationBeforeItIsReplaced()
    {
        const QString file = path(QStringLiteral("kept.ipc"));
        QList<QByteArray> seen;
        IPCore::setConfigKeeper([&seen, &file](const QString &replaced) {
            QCOMPARE(replaced, file);
            seen.append(TestSupport::contentsOf(replaced));
        });
        IPCore::writeIPConfig(file, {}, {{QStringLiteral("a"), 1}});
        QVERIFY(seen.isEmpty()); // there was none
        const QByteArray first = TestSupport::contentsOf(file);
        IPCore::writeIPConfig(file, {}, {{QStringLiteral("a"), 2}});
        QCOMPARE(seen, QList<QByteArray>{first});
        IPCore::setConfigKeeper(nullptr);
        IPCore::writeIPConfig(file, {}, {{QStringLiteral("a"), 3}});
        QCOMPARE(seen.size(), 1);
    }

    void reportsAnIpConfigurationThatCannotBeWritten()
    {
        const QString file = path(QStringLiteral("file %1/a.ipc"));
        const NextDialog dialog;
        IPCore::writeIPConfig(file, {}, {{QStringLiteral("a"), 1}});
        QVERIFY(dialog.wasShown());
        QVERIFY2(dialog.text().contains(file) &&
                     dialog.text().contains(QStringLiteral("Not a directory")),
                 qPrintable(dialog.text()));
        QCOMPARE(dialog.format(), Qt::PlainText);
    }

    void makesFolders()
    {
        const QString folder = path(QStringLiteral("new/temp/ip"));
        QVERIFY(IPCore::makeDirs(folder, QStringLiteral("IP")));
        QVERIFY(QFileInfo(folder).isDir());
        QVERIFY(IPCore::makeDirs(folder, QStringLiteral("IP")));
    }

    void refusesAFolderThatAnotherRunHas()
    {
        const QString folder = path(QStringLiteral("busy/temp"));
        QVERIFY(QDir().mkpath(folder));
        const auto other = Utils::FolderLock::take(folder, nullptr);
        const NextDialog dialog;
        QVERIFY(!IPCore::makeDirs(folder, QStringLiteral("IP")));
        QVERIFY(dialog.wasShown());
        QVERIFY2(dialog.text().contains(QString(folder + QLatin1String("/.tarvo-run.lock"))),
                 qPrintable(dialog.text()));
    }

    // An IP that makes a folder and starts no run must not keep it.
    void givesAFolderBackThatNoRunHasTaken()
    {
        const QString folder = path(QStringLiteral("unused/temp"));
        QVERIFY(IPCore::makeDirs(folder, QStringLiteral("IP")));
        QVERIFY(!Utils::FolderLock::take(folder, nullptr));
        QTRY_VERIFY(Utils::FolderLock::take(folder, nullptr));
        QCOMPARE(TestSupport::entriesOf(folder), QStringList());
    }

    void keepsAFolderWhileItTellsOfAFailure()
    {
        const QString folder = path(QStringLiteral("telling/temp"));
        QVERIFY(IPCore::makeDirs(folder, QStringLiteral("IP")));
        bool kept = false;
        const NextDialog dialog([&](QWidget *) {
            QCoreApplication::processEvents();
            kept = !Utils::FolderLock::take(folder, nullptr);
        });
        IPCore::writeIPConfig(path(QStringLiteral("file %1/a.ipc")), {}, {});
        QVERIFY(dialog.wasShown());
        QVERIFY(kept);
        QTRY_VERIFY(Utils::FolderLock::take(folder, nullptr));
    }

    void reportsFoldersThatCannotBeMade()
    {
        QWidget window;
        Core::ViewManager::setDialogParent(&window);
        const QString folder = path(QStringLiteral("file %1/temp/ip"));
        const NextDialog dialog;
        QVERIFY(!IPCore::makeDirs(folder, QStringLiteral("The <b>%2</b> IP")));
        QVERIFY(dialog.wasShown());
        QVERIFY2(dialog.text().contains(folder), qPrintable(dialog.text()));
        QVERIFY2(dialog.text().contains(
                     QString(path(QStringLiteral("file %1")) + QLatin1String("\" is a file"))),
                 qPrintable(dialog.text()));
        QVERIFY2(dialog.text().contains(QStringLiteral("The <b>%2</b> IP")),
                 qPrintable(dialog.text()));
        QCOMPARE(dialog.format(), Qt::PlainText);
        QCOMPARE(dialog.parent(), &window);
    }

    void reportsAFolderWithoutAName()
    {
        const NextDialog dialog;
        QVERIFY(!IPCore::makeDirs(QString(), QStringLiteral("IP")));
        QVERIFY(dialog.wasShown());
    }

    void generatesFiles_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no header") << QString() << QByteArray("a\n\n%1 ü\n");
        QTest::newRow("one line") << QStringLiteral("// h\n") << QByteArray("// h\na\n\n%1 ü\n");
        QTest::newRow("several lines")
            << QStringLiteral("// h\n// i\n") << QByteArray("// h\n// i\na\n\n%1 ü\n");
        QTest::newRow("a blank line in it")
            << QStringLiteral("// h\n\n// i\n") << QByteArray("// h\n\n// i\na\n\n%1 ü\n");
        QTest::newRow("a blank line around it")
            << QStringLiteral("\n// h\n\n") << QByteArray("\n// h\n\na\n\n%1 ü\n");
        QTest::newRow("no line feed at its end")
            << QStringLiteral("// h") << QByteArray("// h\na\n\n%1 ü\n");
    }

    void generatesFiles()
    {
        QFETCH(QString, header);
        QFETCH(QByteArray, bytes);
        const QString file = path(QStringLiteral("defs.v"));
        QVERIFY(TestSupport::write(file, "old"));
        QVERIFY(IPCore::generateFile(file, {QStringLiteral("a"), QString(), QStringLiteral("%1 ü")},
                                     nullptr, header));
        QCOMPARE(TestSupport::contentsOf(file), bytes);
    }

    void reportsAFileThatCannotBeGenerated_data()
    {
        QTest::addColumn<bool>("ownParent");
        QTest::newRow("over the given window") << true;
        QTest::newRow("over the application's window") << false;
    }

    void reportsAFileThatCannotBeGenerated()
    {
        QFETCH(bool, ownParent);
        QWidget application;
        QWidget own;
        Core::ViewManager::setDialogParent(&application);
        const QString file = path(QStringLiteral("file %1/defs.v"));
        const NextDialog dialog;
        QVERIFY(!IPCore::generateFile(file, {QStringLiteral("a")}, ownParent ? &own : nullptr,
                                      QString()));
        QVERIFY(dialog.wasShown());
        QVERIFY2(dialog.text().contains(file) &&
                     dialog.text().contains(QStringLiteral("Not a directory")),
                 qPrintable(dialog.text()));
        QCOMPARE(dialog.format(), Qt::PlainText);
        QCOMPARE(dialog.parent(), ownParent ? &own : &application);
    }

    void refusesToDecodeToAMissingFolder()
    {
        const QString missing = path(QStringLiteral("missing \"%1\""));
        QVERIFY(TestSupport::write(path(QStringLiteral("ip.v")), "module ip; endmodule\n"));
        QString message;
        const int status = IPCore::decode(missing, path(QStringLiteral("ip.v")),
                                          path(QStringLiteral("ip.vo")), message);
        QVERIFY(status != 0);
        QVERIFY2(message.contains(missing), qPrintable(message));
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("ip.vo"))));
        QVERIFY(IPCore::decode(path(QStringLiteral("file %1")), path(QStringLiteral("ip.v")),
                               path(QStringLiteral("ip.vo")), message) != 0);
        QVERIFY(IPCore::decode(QString(), path(QStringLiteral("ip.v")),
                               path(QStringLiteral("ip.vo")), message) != 0);
    }

    void showsErrors()
    {
        QWidget window;
        Core::ViewManager::setDialogParent(&window);
        const QString title = QStringLiteral("Synthesis <b>failed</b> & %1");
        const QStringList details = {QStringLiteral("a.v:1: no <such> thing"), QString(),
                                     QStringLiteral("b.v:2: ü %2")};
        const ShownWindows windows;
        const NextDialog dialog([&title](QWidget *shown) {
            const auto *heading = shown->findChild<QLabel *>(QStringLiteral("titleLabel"));
            const auto *edit = shown->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"));
            auto *copy = shown->findChild<QPushButton *>(QStringLiteral("copyButton"));
            QVERIFY(heading && edit && copy);
            QCOMPARE(heading->text(), title);
            QCOMPARE(heading->textFormat(), Qt::PlainText);
            QCOMPARE(edit->toPlainText(), QStringLiteral("a.v:1: no <such> thing\nb.v:2: ü %2"));
            QVERIFY(edit->isVisible());
            QVERIFY(edit->isReadOnly());
            QGuiApplication::clipboard()->clear();
            copy->click();
            QCOMPARE(QGuiApplication::clipboard()->text(),
                     QString(title + QStringLiteral("\na.v:1: no <such> thing\nb.v:2: ü %2")));
            QVERIFY(shown->isVisible());
        });
        IPCore::showErrorMsgs(title, details);
        QVERIFY(dialog.wasShown());
        QCOMPARE(dialog.parent(), &window);
        QVERIFY(!dialog.title().isEmpty());
        QCOMPARE(windows.classes, QStringList{QStringLiteral("IPCore::ErrorDialog")});
    }

    void showsErrorsWithoutDetails_data()
    {
        QTest::addColumn<QStringList>("details");
        QTest::newRow("none") << QStringList();
        QTest::newRow("empty ones") << QStringList{QString(), QString(QLatin1String(""))};
    }

    void showsErrorsWithoutDetails()
    {
        QFETCH(QStringList, details);
        const ShownWindows windows;
        const NextDialog dialog([](QWidget *shown) {
            const auto *edit = shown->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"));
            auto *copy = shown->findChild<QPushButton *>(QStringLiteral("copyButton"));
            QVERIFY(edit && copy);
            QVERIFY(!edit->isVisible());
            copy->click();
            QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Failed"));
        });
        IPCore::showErrorMsgs(QStringLiteral("Failed"), details);
        QVERIFY(dialog.wasShown());
        QCOMPARE(windows.classes, QStringList{QStringLiteral("IPCore::ErrorDialog")});
    }

    void keysCloseTheErrorWindow_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }

    void keysCloseTheErrorWindow()
    {
        QFETCH(int, key);
        QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
        const NextDialog dialog([key](QWidget *shown) {
            QTest::keyClick(shown, Qt::Key(key));
            QVERIFY(!shown->isVisible());
        });
        IPCore::showErrorMsgs(QStringLiteral("Failed"), {QStringLiteral("why")});
        QVERIFY(dialog.wasShown());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
    }

    void addsFilesToTheProject()
    {
        const QStringList paths = {QStringLiteral("/b.v"), QStringLiteral("/a.v")};
        IPCore::addFilesToProject(paths);
        FakeProject project;
        Core::ProjectManager::setCurrentProject(&project);
        IPCore::addFilesToProject(paths);
        QCOMPARE(project.calls, QList<QStringList>{paths});
        Core::ProjectManager::setCurrentProject(nullptr);
        IPCore::addFilesToProject(paths);
        QCOMPARE(project.calls.size(), 1);
    }

    void tellsWhatIsInsideAFolder_data()
    {
        QTest::addColumn<QString>("dir");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("inside");
        const auto row = [](const char *name, const char *dir, const char *file, bool inside) {
            QTest::newRow(name) << QString::fromUtf8(dir) << QString::fromUtf8(file) << inside;
        };
        row("in it", "/a/b", "/a/b/c", true);
        row("deep in it", "/a/b", "/a/b/c/d/e.v", true);
        row("a hidden file", "/a/b", "/a/b/.c", true);
        row("itself", "/a/b", "/a/b", false);
        row("itself with a slash", "/a/b", "/a/b/", false);
        row("itself, the folder with a slash", "/a/b/", "/a/b", false);
        row("itself by way of a child", "/a/b", "/a/b/c/..", false);
        row("itself with a dot", "/a/b", "/a/b/.", false);
        row("its parent", "/a/b", "/a", false);
        row("a sibling", "/a/b", "/a/c", false);
        row("a sibling with a longer name", "/a/b", "/a/bc", false);
        row("in a sibling with a longer name", "/a/b", "/a/b c/d", false);
        row("out by dots", "/a/b", "/a/b/../c", false);
        row("out and in by dots", "/a/b", "/a/b/../b/c", true);
        row("dots in the folder", "/a/x/../b", "/a/b/c", true);
        row("a name that starts with dots", "/a/b", "/a/b/..c", true);
        row("above the root", "/a", "/../../a/b", true);
        row("folder with a slash", "/a/b/", "/a/b/c", true);
        row("both with slashes", "/a/b//", "/a/b/c/", true);
        row("doubled slashes", "/a//b", "/a/b//c", true);
        row("below the root", "/", "/a", true);
        row("the root in the root", "/", "/", false);
        row("the root by dots", "/", "/..", false);
        row("other case", "/a/b", "/a/B/c", false);
        row("non-ASCII", "/a/ü %1", "/a/ü %1/c", true);
        row("no path", "/a", "", false);
        row("no folder", "", "/a", false);
        row("nothing at all", "", "", false);
        row("no folder, relative path", "", "a", false);
        row("relative, in it", "a", "a/b", true);
        row("relative, a sibling", "a", "ab", false);
        row("relative, out by dots", "a", "a/../b", false);
        row("relative to the current folder", ".", "a", true);
        row("the current folder in itself", ".", ".", false);
        row("out of the current folder", ".", "../a", false);
    }

    void tellsWhatIsInsideAFolder()
    {
        QFETCH(QString, dir);
        QFETCH(QString, file);
        QFETCH(bool, inside);
        QCOMPARE(IPCore::isSubDirFile(dir, file), inside);
    }

    void relativeAndAbsolutePathsMeet()
    {
        const QString here = QDir::currentPath();
        QVERIFY(IPCore::isSubDirFile(here, QStringLiteral("a/b")));
        QVERIFY(IPCore::isSubDirFile(QStringLiteral("a"), QString(here + QLatin1String("/a/b"))));
        QVERIFY(!IPCore::isSubDirFile(QStringLiteral("a"), QString(here + QLatin1String("/b"))));
        QVERIFY(!IPCore::isSubDirFile(here, QStringLiteral(".")));
    }

    void linksAreNotFollowed()
    {
        QVERIFY(QDir().mkpath(path(QStringLiteral("real"))));
        QVERIFY(QFile::link(path(QStringLiteral("real")), path(QStringLiteral("link"))));
        QVERIFY(
            !IPCore::isSubDirFile(path(QStringLiteral("real")), path(QStringLiteral("link/a"))));
        QVERIFY(IPCore::isSubDirFile(path(QStringLiteral("link")), path(QStringLiteral("link/a"))));
    }
};

TARVO_TEST_MAIN(QApplication, TestIPCore)
#include "tst_ipcore.moc"
