#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <utils/bundlemanifest.h>
#include <utils/filebundle.h>
#include <utils/folderlock.h>

#include <rapidcheck.h>

#include <QDirIterator>
#include <QMap>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using Utils::Bundle;
using Utils::BundleEntry;
using Utils::BundleFile;
using Utils::BundleManifest;
using Utils::BundleReport;

namespace
{

const QString manifestName = QStringLiteral("set.json");

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

BundleFile file(const char *path, const QByteArray &bytes, const char *group = "one")
{
    return {text(path), bytes, text(group)};
}

// Everything below a folder; folders end with "/" and have no bytes.
using Tree = QMap<QString, QByteArray>;

Tree treeOf(const QString &folder)
{
    Tree tree;
    QDirIterator iterator(folder,
                          QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        const QString name = path.mid(folder.size() + 1);
        if (iterator.fileInfo().isDir() && !iterator.fileInfo().isSymLink())
            tree.insert(name + u'/', {});
        else
            tree.insert(name, TestSupport::contentsOf(path));
    }
    return tree;
}

Tree filesOf(const QString &folder)
{
    Tree files = treeOf(folder);
    for (auto it = files.begin(); it != files.end();)
        it = it.key().endsWith(u'/') ? files.erase(it) : it + 1;
    return files;
}

QStringList statesOf(const BundleReport &report)
{
    QStringList states;
    for (const BundleEntry &entry : report.entries)
        states.append(entry.path + QLatin1String(": ") + Utils::bundleStateName(entry.state));
    return states;
}

qint64 inodeAndTime(const QString &path)
{
    struct stat status = {};
    stat(QFile::encodeName(path).constData(), &status);
    return qint64(status.st_ino) ^ (qint64(status.st_mtim.tv_sec) << 20) ^ status.st_mtim.tv_nsec;
}

} // namespace

class TestFileBundle : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;

    QString path(const char *name = nullptr) const
    {
        const QString folder = m_dir->filePath(QStringLiteral("set"));
        return name ? folder + u'/' + QLatin1String(name) : folder;
    }

    Bundle bundle(const QVector<BundleFile> &files, const QStringList &groups = {text("one")}) const
    {
        return {path(), manifestName, files, groups, false};
    }

    // The report of a write that must come to its end, as it was planned.
    BundleReport written(const Bundle &set) const
    {
        const Tree before = treeOf(m_dir->path());
        const auto plan = Utils::planBundle(set);
        if (!plan || treeOf(m_dir->path()) != before)
            QTest::qFail(qPrintable(QLatin1String("plan: ") + plan.reason()), __FILE__, __LINE__);
        Tree planned = filesOf(path());
        const auto report = Utils::writeBundle(set);
        if (!report)
            QTest::qFail(qPrintable(report.reason()), __FILE__, __LINE__);
        if (!plan || !report)
            return {};
        for (const BundleEntry &entry : plan->report.entries) {
            if (entry.state == BundleEntry::LeftOver)
                planned.remove(entry.path);
        }
        for (const BundleFile &file : plan->written)
            planned.insert(file.path, file.bytes);
        if (filesOf(path()) != planned || statesOf(plan->report) != statesOf(*report) ||
            plan->report.messages != report->messages)
            QTest::qFail("the write was planned otherwise", __FILE__, __LINE__);
        return *report;
    }

    BundleReport checked(const Bundle &set) const
    {
        const Tree before = treeOf(m_dir->path());
        const auto report = Utils::checkBundle(set);
        if (!report || treeOf(m_dir->path()) != before)
            QTest::qFail(qPrintable(QLatin1String("check: ") + report.reason()), __FILE__,
                         __LINE__);
        return report ? *report : BundleReport();
    }

    // A write that must fail and change nothing; the reason.
    QString refused(const Bundle &set) const
    {
        const Tree before = treeOf(m_dir->path());
        const auto report = Utils::writeBundle(set);
        if (report)
            QTest::qFail("the write is not refused", __FILE__, __LINE__);
        if (treeOf(m_dir->path()) != before)
            QTest::qFail("the refused write has changed something", __FILE__, __LINE__);
        return report.reason();
    }

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void cleanup() { m_dir.reset(); }

    void writesASetAndItsManifest()
    {
        const Bundle set = bundle({file("a.txt", "alpha\n"), file("deep/er/b.txt", "")},
                                  {text("one"), text("two")});
        const BundleReport report = written(set);
        QCOMPARE(statesOf(report),
                 (QStringList{text("a.txt: missing"), text("deep/er/b.txt: missing")}));
        QVERIFY(report.messages.isEmpty());
        QCOMPARE(treeOf(path()).keys(), (QStringList{text("a.txt"), text("deep/"), text("deep/er/"),
                                                     text("deep/er/b.txt"), manifestName}));
        QCOMPARE(TestSupport::contentsOf(path("a.txt")), QByteArray("alpha\n"));
        const QByteArray manifest = TestSupport::contentsOf(path("set.json"));
        QVERIFY(manifest.contains("    {\"group\":\"one\",\"path\":\"deep/er/b.txt\",\"sha256\":\""
                                  "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"
                                  "\"}\n  ],\n  \"groups\": [\"one\",\"two\"],\n"
                                  "  \"version\": 1\n}\n"));
        QCOMPARE(Utils::bundleGroups(path(), manifestName),
                 (QStringList{text("one"), text("two")}));
        QVERIFY(checked(set).isFresh());
    }

    void tellsTheStatesApart()
    {
        QCOMPARE(statesOf(checked(bundle({file("a", "1")}))), QStringList{text("a: missing")});
        written(
            bundle({file("fresh", "1"), file("gone", "1"), file("stale", "1"), file("edited", "1"),
                    file("over", "1"), file("over-edited", "1"), file("over-gone", "1")}));
        QVERIFY(QFile::remove(path("gone")) && QFile::remove(path("over-gone")));
        TestSupport::write(path("edited"), "mine");
        TestSupport::write(path("over-edited"), "mine");
        TestSupport::write(path("foreign"), "mine");
        TestSupport::write(path("right"), "2");
        const Bundle next = bundle({file("fresh", "1"), file("gone", "1"), file("stale", "2"),
                                    file("edited", "1"), file("foreign", "2"), file("right", "2")});
        const QStringList expected = {
            text("fresh: fresh"),    text("gone: missing"),
            text("stale: stale"),    text("edited: edited"),
            text("foreign: edited"), text("right: fresh"),
            text("over: left over"), text("over-edited: left over and edited")};
        const BundleReport report = checked(next);
        QCOMPARE(statesOf(report), expected);
        QVERIFY(!report.isFresh());
        QVERIFY(report.messages.isEmpty());
        QCOMPARE(statesOf(written(next)), expected);
        QVERIFY(checked(next).isFresh());
    }

    void aFileThatWouldNotChangeIsNotTouched()
    {
        const Bundle set = bundle({file("a", "1"), file("b/c", "2")});
        written(set);
        const char *const names[] = {"a", "b/c", "set.json"};
        QVector<qint64> before;
        for (const char *name : names)
            before.append(inodeAndTime(path(name)));
        QVERIFY(written(set).isFresh());
        for (int i = 0; i < 3; ++i)
            QCOMPARE(inodeAndTime(path(names[i])), before.at(i));
        // Nor is one among others that do.
        written(bundle({file("a", "1"), file("b/c", "3")}));
        QCOMPARE(inodeAndTime(path("a")), before.at(0));
        QVERIFY(inodeAndTime(path("b/c")) != before.at(1));
    }

    void editedFilesAreKeptBesideTheNewOnes()
    {
        written(bundle({file("d/a.h", "1")}));
        TestSupport::write(path("d/a.h"), "mine");
        BundleReport report = written(bundle({file("d/a.h", "2")}));
        QCOMPARE(report.entries.first().keptAs, text("d/a.h.edited"));
        QCOMPARE(report.messages,
                 QStringList{text("\"d/a.h\" was changed since it was written; what stood there "
                                  "is in \"d/a.h.edited\" now.")});
        TestSupport::write(path("d/a.h"), "mine again");
        report = written(bundle({file("d/a.h", "2")}));
        QCOMPARE(report.entries.first().keptAs, text("d/a.h.edited-2"));
        // What stands beside it already is not kept a second time.
        TestSupport::write(path("d/a.h"), "mine");
        report = written(bundle({file("d/a.h", "2")}));
        QCOMPARE(report.entries.first().keptAs, text("d/a.h.edited"));
        const Tree expected = {
            {text("a.h"), "2"}, {text("a.h.edited"), "mine"}, {text("a.h.edited-2"), "mine again"}};
        QCOMPARE(treeOf(path("d")), expected);
        QVERIFY(checked(bundle({file("d/a.h", "2")})).isFresh());
    }

    void whatSomebodyElseWroteIsKept()
    {
        TestSupport::write(path("a"), "theirs");
        QFile::setPermissions(path("a"), QFile::ReadOwner | QFile::WriteOwner);
        const BundleReport report = written(bundle({file("a", "1"), file("a.edited", "2")}));
        QCOMPARE(report.messages,
                 QStringList{text("\"a\" stood there already, written by something else; it is in "
                                  "\"a.edited-2\" now.")});
        QCOMPARE(TestSupport::contentsOf(path("a.edited-2")), QByteArray("theirs"));
        QCOMPARE(QFileInfo(path("a.edited-2")).permissions() &
                     (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        QCOMPARE(TestSupport::contentsOf(path("a.edited")), QByteArray("2"));
    }

    void leftOverFilesGoUnlessTheyWereEdited()
    {
        written(bundle({file("keep", "1"), file("x/y/gone", "1"), file("z/edited", "1")}));
        TestSupport::write(path("z/edited"), "mine");
        const BundleReport report = written(bundle({file("keep", "1")}));
        QCOMPARE(report.messages,
                 QStringList{text("\"z/edited\" is not part of the set any more; it was changed "
                                  "since it was written, so it stays.")});
        QCOMPARE(treeOf(path()).keys(),
                 (QStringList{text("keep"), manifestName, text("z/"), text("z/edited")}));
        // From now on it is the user's.
        QVERIFY(checked(bundle({file("keep", "1")})).isFresh());
        QVERIFY(written(bundle({file("keep", "1")})).messages.isEmpty());
    }

    void otherGroupsStay()
    {
        written(bundle({file("a", "1", "one"), file("b", "1", "two")}, {text("one"), text("two")}));
        Bundle one = bundle({file("c", "1", "one")}, {text("one")});
        one.keepsOtherGroups = true;
        QCOMPARE(statesOf(written(one)), (QStringList{text("c: missing"), text("a: left over")}));
        QCOMPARE(treeOf(path()).keys(), (QStringList{text("b"), text("c"), manifestName}));
        QCOMPARE(Utils::bundleGroups(path(), manifestName),
                 (QStringList{text("one"), text("two")}));
        one.keepsOtherGroups = false;
        QCOMPARE(statesOf(checked(one)), (QStringList{text("c: fresh"), text("b: left over")}));
    }

    void refusesPathsThatLeaveTheFolder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("none") << QString() << text("it has no name");
        QTest::newRow("absolute") << text("/etc/x") << text("it is an absolute path");
        QTest::newRow("parent") << text("../x") << text("it leads out of the folder");
        QTest::newRow("parent within") << text("a/../../x") << text("it leads out of the folder");
        QTest::newRow("parent at the end") << text("a/..") << text("it leads out of the folder");
        QTest::newRow("the folder") << text(".") << text("it is no plain path");
        QTest::newRow("an empty name") << text("a//b") << text("it is no plain path");
        QTest::newRow("a slash at the end") << text("a/") << text("it is no plain path");
        QTest::newRow("a line feed") << text("a\nb") << text("it is no name of a file");
        QTest::newRow("half a character")
            << QString(QChar(0xD800)) << text("it is no name of a file");
        QTest::newRow("the lock") << text(".tarvo-run.lock")
                                  << text("names that begin with \".tarvo-\" are kept for locks");
        QTest::newRow("the manifest") << manifestName << text("two files of that name");
        QTest::newRow("one of the set") << text("a") << text("two files of that name");
        QTest::newRow("below one of the set") << text("a/b") << text("a file \"a\" as well");
        QTest::newRow("a link out") << text("out/x") << text("is a link that leads out of the");
        QTest::newRow("a linked file") << text("outfile") << text("is a link that leads out of");
        QTest::newRow("a link to nowhere") << text("nowhere") << text("a link that leads nowhere");
        QTest::newRow("a link to a file of the set")
            << text("same") << text("a link makes it the same file as \"a\"");
    }

    void refusesPathsThatLeaveTheFolder()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        TestSupport::write(m_dir->filePath(text("other/x")), "outside");
        TestSupport::write(this->path("a"), "1");
        QVERIFY(QFile::link(m_dir->filePath(text("other")), this->path("out")));
        QVERIFY(QFile::link(m_dir->filePath(text("other/x")), this->path("outfile")));
        QVERIFY(QFile::link(text("missing"), this->path("nowhere")));
        QVERIFY(QFile::link(text("a"), this->path("same")));
        const QString said =
            refused(bundle({file("a", "1"), {path, "mine", text("one")}, file("z", "1")}));
        QVERIFY2(said.contains(reason), qPrintable(said));
        QVERIFY2(said.contains(this->path()), qPrintable(said));
    }

    void refusesASetThatTheManifestCannotHold()
    {
        Bundle set = bundle({});
        for (int i = 0; i < 10001; ++i)
            set.files.append({QString::number(i), {}, text("one")});
        const QString said = refused(set);
        QVERIFY2(said.contains(text("there are more than 10000 files")), qPrintable(said));
        const QString nameless = refused(bundle({file("a", "1", "")}));
        QVERIFY2(nameless.contains(text("\"a\" has no group")), qPrintable(nameless));
    }

    void aLinkedFolderIsAFolder()
    {
        QVERIFY(QDir().mkpath(m_dir->filePath(text("real"))));
        QVERIFY(QFile::link(m_dir->filePath(text("real")), path()));
        written(bundle({file("a/b", "1")}));
        QVERIFY(QFileInfo(path()).isSymLink());
        QCOMPARE(TestSupport::contentsOf(m_dir->filePath(text("real/a/b"))), QByteArray("1"));
        QVERIFY(checked(bundle({file("a/b", "1")})).isFresh());
    }

    void brokenManifestsCountForNothing_data()
    {
        QTest::addColumn<QByteArray>("manifest");
        QTest::addColumn<QString>("reason");
        const QByteArray sum(64, '0');
        const auto one = [&sum](const char *path) -> QByteArray {
            return QByteArray("{\"files\": [{\"group\": \"g\", \"path\": \"") + path +
                   "\", \"sha256\": \"" + sum + "\"}], \"version\": 1}";
        };
        QTest::newRow("empty") << QByteArray() << text(":1:1: ");
        QTest::newRow("no JSON") << QByteArray("{\n<<<<<<< ours\n") << text(":2:1: ");
        QTest::newRow("no object") << QByteArray("[]") << text("holds no JSON object");
        QTest::newRow("another version")
            << QByteArray("{\"version\": 2}") << text("version is not");
        QTest::newRow("a path outside") << one("../../x") << text("it leads out of the folder");
        QTest::newRow("an absolute path") << one("/etc/passwd") << text("an absolute path");
        QTest::newRow("no path") << one("") << text("it has no name");
        QTest::newRow("no group") << QByteArray(one("a")).replace("\"g\"", "7")
                                  << text("\"a\" has no group");
        QTest::newRow("no sum") << QByteArray(one("a")).replace("0", "") << text("no SHA-256 sum");
        QTest::newRow("a short sum")
            << QByteArray(one("a")).replace("00\"", "\"") << text("no SHA-256 sum");
        QTest::newRow("files that are none")
            << QByteArray("{\"files\": [1], \"version\": 1}") << text("it has no name");
        QTest::newRow("a group without a name")
            << QByteArray("{\"groups\": [null], \"version\": 1}") << text("a group has no name");
        QTest::newRow("too large")
            << QByteArray(4 * 1024 * 1024 + 1, ' ') << text("larger than 4 MiB");
        QTest::newRow("too deep") << QByteArray(5000, '[') << text("set.json:");
        QByteArray many = "{\"files\": [";
        for (int i = 0; i < 10001; ++i)
            many += "1,";
        QTest::newRow("too many files")
            << QByteArray(many + "1], \"version\": 1}") << text("more than 10000 files");
    }

    void brokenManifestsCountForNothing()
    {
        QFETCH(QByteArray, manifest);
        QFETCH(QString, reason);
        TestSupport::write(path("set.json"), manifest);
        TestSupport::write(path("a"), "mine");
        TestSupport::write(m_dir->filePath(text("x")), "outside");
        const Bundle set = bundle({file("a", "1")});
        BundleReport report = checked(set);
        QCOMPARE(statesOf(report), QStringList{text("a: edited")});
        QCOMPARE(report.messages.size(), 1);
        QVERIFY2(report.messages.first().contains(reason), qPrintable(report.messages.first()));
        QVERIFY(report.messages.first().contains(path("set.json")));
        QVERIFY(Utils::bundleGroups(path(), manifestName).isEmpty());
        report = written(set);
        QCOMPARE(report.messages.size(), 3);
        QCOMPARE(TestSupport::contentsOf(path("set.json.edited")), manifest);
        QCOMPARE(TestSupport::contentsOf(path("a.edited")), QByteArray("mine"));
        QCOMPARE(TestSupport::contentsOf(m_dir->filePath(text("x"))), QByteArray("outside"));
        QVERIFY(checked(set).isFresh());
    }

    void aFileThatBecameAFolderIsTheUsers()
    {
        written(bundle({file("a", "1"), file("b", "1")}));
        QVERIFY(QFile::remove(path("a")));
        TestSupport::write(path("a/mine"), "mine");
        const BundleReport report = written(bundle({file("b", "1")}));
        QCOMPARE(report.messages.size(), 1);
        QCOMPARE(TestSupport::contentsOf(path("a/mine")), QByteArray("mine"));
        QVERIFY(checked(bundle({file("b", "1")})).isFresh());
    }

    void whatCannotBeReadEndsALook()
    {
        for (const char *name : {"a", "over", "set.json"}) {
            written(bundle({file("a", "1"), file("over", "1")}));
            QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755));
            QVERIFY(QFile::setPermissions(path(name), QFile::Permissions(0x2222)));
            QString said;
            {
                const TestSupport::Unprivileged unprivileged;
                if (!unprivileged.holds())
                    QSKIP("permissions do not bind here");
                said = Utils::checkBundle(bundle({file("a", "2")})).reason();
            }
            QVERIFY2(said.contains(path(name)) && said.contains(text("Permission denied")),
                     qPrintable(said));
            init();
        }
    }

    // A link by which it would be a file of the set, or one outside.
    void filesOfTheManifestAreNotSoughtThroughLinks()
    {
        written(bundle({file("a", "1"), file("b", "1"), file("c", "1")}));
        QVERIFY(QFile::remove(path("b")) && QFile::link(text("a"), path("b")));
        TestSupport::write(m_dir->filePath(text("c")), "1");
        QVERIFY(QFile::remove(path("c")) && QFile::link(m_dir->filePath(text("c")), path("c")));
        written(bundle({file("a", "1")}));
        QCOMPARE(treeOf(path()).keys(),
                 (QStringList{text("a"), text("b"), text("c"), manifestName}));
        QCOMPARE(TestSupport::contentsOf(m_dir->filePath(text("c"))), QByteArray("1"));
    }

    void aFailureLeavesEverythingAsItWas_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a folder in a file's place") << text("z") << text("/set/z\"");
        QTest::newRow("a file in a folder's place") << text("y") << text("is a file");
        QTest::newRow("a folder in the manifest's place") << text("set.json") << text("a folder");
        QTest::newRow("a folder in the lock's place")
            << text(".tarvo-run.lock") << text("is not a plain file; delete it");
    }

    void aFailureLeavesEverythingAsItWas()
    {
        QFETCH(QString, obstacle);
        QFETCH(QString, reason);
        written(bundle({file("a", "1"), file("b", "1"), file("over", "1")}));
        TestSupport::write(path("b"), "mine");
        const QString place = path(obstacle.toLatin1().constData());
        QFile::remove(place);
        if (obstacle == QLatin1String("y"))
            TestSupport::write(place, "a file");
        else
            QVERIFY(QDir().mkpath(place));
        const QString said = refused(bundle({file("a", "2"), file("b", "2"), file("new/x", "1"),
                                             file("y/y", "1"), file("z", "1")}));
        QVERIFY2(said.contains(reason), qPrintable(said));
    }

    void foldersThatCannotBeWrittenAreLeftAlone()
    {
        written(bundle({file("a", "1"), file("d/b", "1")}));
        QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755));
        const QFile::Permissions readOnly(0x5555);
        const QFile::Permissions usual = QFileInfo(path()).permissions();
        const auto restore = qScopeGuard([&] {
            QFile::setPermissions(path(), usual);
            QFile::setPermissions(path("d"), usual);
        });
        for (const char *name : {static_cast<const char *>(nullptr), "d"}) {
            QVERIFY(QFile::setPermissions(path(name), readOnly));
            {
                const TestSupport::Unprivileged unprivileged;
                if (!unprivileged.holds())
                    QSKIP("permissions do not bind here");
                const QString said = refused(bundle({file("a", "2"), file("d/b", "2")}));
                QVERIFY2(said.contains(path()), qPrintable(said));
                QVERIFY(said.contains(text("Permission denied")) ||
                        said.contains(text("not writable")));
            }
            QVERIFY(QFile::setPermissions(path(name), usual));
        }
    }

    void aNewFolderIsNotLeftBehind()
    {
        Bundle set =
            bundle({file("a", "1"), file("b/c", "1"), file(QByteArray(300, 'x').constData(), "1")});
        set.folder = path("p/q");
        const QString said = refused(set);
        QVERIFY2(said.contains(text("File name too long")), qPrintable(said));
        QVERIFY(!QFileInfo::exists(path()));
    }

    void oneWriteAtATime()
    {
        QVERIFY(QDir().mkpath(path()));
        QString error;
        const auto lock = Utils::FolderLock::take(path(), &error);
        QVERIFY2(lock, qPrintable(error));
        const QString said = refused(bundle({file("a", "1")}));
        QVERIFY2(said.contains(text("another run is working there")), qPrintable(said));
    }

    void aFullDiskKeepsTheOldSet()
    {
        QVERIFY(QDir().mkpath(path()));
        if (const QString reason = TestSupport::mountSmallDisk(path()); !reason.isEmpty())
            QSKIP(qPrintable(reason));
        const auto unmount = qScopeGuard([this] { TestSupport::unmount(path()); });
        const QByteArray old(2000, 'o');
        written(bundle({file("a", old), file("b", old), file("over", old)}));
        TestSupport::write(path("b"), "mine");
        QVERIFY(TestSupport::fillDisk(path(), 8192));
        const QByteArray big(7000, 'n');
        const QString said =
            refused(bundle({file("a", old + 'n'), file("b", big), file("c", big)}));
        QVERIFY2(said.contains(text("No space left on device")), qPrintable(said));
        QVERIFY(QFile::remove(path("filler")));
        written(bundle({file("a", big), file("b", big), file("c", big)}));
        QCOMPARE(TestSupport::contentsOf(path("b.edited")), QByteArray("mine"));
    }

    // Whatever is written, edited, deleted and written again: a write loses nothing that a user
    // has saved.
    void nothingOfAUserIsLost()
    {
        const bool holds = rc::check([] {
            const QTemporaryDir dir;
            const QString folder = dir.filePath(text("set"));
            const char *const names[] = {"a", "b", "d/a", "d/e/b", "a.edited"};
            const auto anyName = [&names] { return text(names[*rc::gen::inRange(0, 5)]); };
            // What the user has saved stands there, until the user overwrites or deletes it.
            const auto ownedIn = [](const QString &place) {
                QSet<QByteArray> owned;
                const Tree tree = treeOf(place);
                for (const QByteArray &bytes : tree) {
                    if (bytes.startsWith("mine") || bytes == "{")
                        owned.insert(bytes);
                }
                return owned;
            };
            const int steps = *rc::gen::inRange(1, 14);
            for (int step = 0; step < steps; ++step) {
                const int kind = *rc::gen::inRange(0, 10);
                if (kind < 4) {
                    Bundle set = {folder, manifestName, {}, {text("one")}, false};
                    const int choice = *rc::gen::inRange(0, 32);
                    for (int i = 0; i < 5; ++i) {
                        if (choice & (1 << i))
                            set.files.append({text(names[i]),
                                              QByteArray::number(*rc::gen::inRange(0, 3)),
                                              text("one")});
                    }
                    const QSet<QByteArray> owned = ownedIn(folder);
                    RC_ASSERT(bool(Utils::writeBundle(set)));
                    RC_ASSERT(ownedIn(folder) == owned);
                    const auto again = Utils::checkBundle(set);
                    RC_ASSERT(again && again->isFresh());
                } else if (kind < 8) {
                    RC_ASSERT(TestSupport::write(
                        folder + u'/' + anyName(),
                        "mine " + QByteArray::number(*rc::gen::inRange(0, 4)) + '\n'));
                } else if (kind == 8) {
                    QFile::remove(folder + u'/' + anyName());
                } else {
                    TestSupport::write(folder + u'/' + manifestName, "{");
                }
            }
        });
        QVERIFY(holds);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestFileBundle)
#include "tst_filebundle.moc"
