#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <utils/filereplacement.h>
#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QScopeGuard>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using Utils::FileReplacement;
using Utils::FileUtils;

namespace
{

const QByteArray oldBytes("module old;\nendmodule\n");
const QByteArray newBytes("module new;\nendmodule\n// and a line more\n");

// What tells a file that was rewritten from one that was left alone.
struct Identity {
    ino_t inode = 0;
    qint64 seconds = 0;
    qint64 nanoseconds = 0;

    bool operator==(const Identity &other) const
    {
        return inode == other.inode && seconds == other.seconds && nanoseconds == other.nanoseconds;
    }
};

Identity identityOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

bool makeOld(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000),
                            QFileDevice::FileModificationTime);
}

} // namespace

class TestFileUtils : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void aPassingFileIsWholeAndReplacesWhatWasThere()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("passing"));
        for (const QByteArray &bytes : {oldBytes, newBytes}) {
            QVERIFY(FileUtils::writePassingFile(path, bytes, nullptr));
            QCOMPARE(TestSupport::contentsOf(path), bytes);
        }
        QCOMPARE(TestSupport::entriesOf(dir.path()), QStringList(QStringLiteral("passing")));
        QString error;
        QVERIFY(!FileUtils::writePassingFile(dir.filePath(QStringLiteral("no/file")), newBytes,
                                             &error));
        QVERIFY2(error.contains(QLatin1String("no/file")), qPrintable(error));
    }

    void init()
    {
        QVERIFY(m_dir.isValid());
        const QStringList names = TestSupport::entriesOf(m_dir.path());
        for (const QString &name : names) {
            const QFileInfo info(path(name));
            QVERIFY(info.isDir() && !info.isSymLink() ? QDir(path(name)).removeRecursively()
                                                      : QFile::remove(path(name)));
        }
    }

    void copiesToANewFile()
    {
        QVERIFY(TestSupport::write(path(QStringLiteral("source")), newBytes));
        QString error = QStringLiteral("untouched");
        QVERIFY2(FileUtils::copyFile(path(QStringLiteral("source")), path(QStringLiteral("copy")),
                                     &error),
                 qPrintable(error));
        QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("copy"))), newBytes);
        QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("source"))), newBytes);
        QCOMPARE(error, QStringLiteral("untouched"));
        QCOMPARE(TestSupport::entriesOf(m_dir.path()),
                 (QStringList{QStringLiteral("copy"), QStringLiteral("source")}));
    }

    void copyOverwritesAnExistingFile_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("by a longer one") << oldBytes << newBytes;
        QTest::newRow("by a shorter one") << newBytes << oldBytes;
        QTest::newRow("by one of the same length") << QByteArray("abc") << QByteArray("abd");
        QTest::newRow("by an empty one") << oldBytes << QByteArray();
        QTest::newRow("an empty one") << QByteArray() << newBytes;
        QTest::newRow("by bytes that are no text") << oldBytes << QByteArray("\0\xff\r\n\0", 5);
        QTest::newRow("by a large one") << oldBytes << QByteArray(3000000, 'x');
    }

    void copyOverwritesAnExistingFile()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const QString source = path(QStringLiteral("source"));
        const QString destination = path(QStringLiteral("destination"));
        QVERIFY(TestSupport::write(source, after));
        QVERIFY(TestSupport::write(destination, before));
        QString error;
        QVERIFY2(FileUtils::copyFile(source, destination, &error), qPrintable(error));
        QCOMPARE(TestSupport::contentsOf(destination), after);
        QCOMPARE(TestSupport::entriesOf(m_dir.path()).size(), 2);
    }

    void leavesAnEqualFileUntouched_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("text") << newBytes;
        QTest::newRow("nothing") << QByteArray();
    }

    void leavesAnEqualFileUntouched()
    {
        QFETCH(QByteArray, bytes);
        const QString file = path(QStringLiteral("file"));
        const QString source = path(QStringLiteral("source"));
        QVERIFY(TestSupport::write(file, bytes) && makeOld(file));
        QVERIFY(TestSupport::write(source, bytes));
        const Identity before = identityOf(file);
        QVERIFY(before.inode != 0);
        QVERIFY(FileUtils::writeFile(file, bytes, nullptr));
        QVERIFY(identityOf(file) == before);
        QVERIFY(FileUtils::copyFile(source, file, nullptr));
        QVERIFY(identityOf(file) == before);
        QVERIFY(FileUtils::copyFile(file, file, nullptr));
        QVERIFY(identityOf(file) == before);
        QVERIFY(FileUtils::writeFile(file, bytes + 'x', nullptr));
        QVERIFY(!(identityOf(file) == before));
    }

    void aCopyOfAReadOnlyFileIsWritable()
    {
        const QString source = path(QStringLiteral("source"));
        const QString usual = path(QStringLiteral("usual"));
        const QString copy = path(QStringLiteral("copy"));
        QVERIFY(TestSupport::write(source, newBytes));
        QVERIFY(TestSupport::write(usual, newBytes));
        QVERIFY(QFile::setPermissions(source, QFile::ReadOwner));
        QVERIFY(FileUtils::copyFile(source, copy, nullptr));
        QCOMPARE(modeOf(copy), modeOf(usual));
    }

    void contentsOfOneSizeDifferInTime()
    {
        const QString file = path(QStringLiteral("quick"));
        const auto remove = qScopeGuard([&file] { QFile::remove(file); });
        QSet<qint64> times;
        for (int i = 0; i < 200; ++i) {
            QVERIFY(FileUtils::writeFile(file, QByteArray::number(100 + i), nullptr));
            times.insert(QFileInfo(file).lastModified().toMSecsSinceEpoch());
        }
        QCOMPARE(times.size(), 200);
    }

    void writesThroughLinks_data()
    {
        QTest::addColumn<QStringList>("chain");
        QTest::newRow("one link") << QStringList{QStringLiteral("link")};
        QTest::newRow("a chain of links")
            << QStringList{QStringLiteral("second"), QStringLiteral("first")};
    }

    void writesThroughLinks()
    {
        QFETCH(QStringList, chain);
        const QString target = path(QStringLiteral("target"));
        QVERIFY(TestSupport::write(target, oldBytes));
        QString next = QStringLiteral("target");
        for (const QString &link : chain) {
            QVERIFY(QFile::link(next, path(link)));
            next = link;
        }
        QVERIFY(FileUtils::writeFile(path(next), newBytes, nullptr));
        QCOMPARE(TestSupport::contentsOf(target), newBytes);
        for (const QString &link : chain)
            QVERIFY(QFileInfo(path(link)).isSymLink());
    }

    void writesWhereALinkLeads()
    {
        const QString target = path(QStringLiteral("new"));
        QVERIFY(QFile::link(QStringLiteral("new"), path(QStringLiteral("second"))));
        QVERIFY(QFile::link(path(QStringLiteral("second")), path(QStringLiteral("first"))));
        QVERIFY(FileUtils::writeFile(path(QStringLiteral("first")), newBytes, nullptr));
        QCOMPARE(TestSupport::contentsOf(target), newBytes);
        QVERIFY(QFileInfo(path(QStringLiteral("first"))).isSymLink());
        QVERIFY(QFileInfo(path(QStringLiteral("second"))).isSymLink());

        QVERIFY(QFile::link(QStringLiteral("loop"), path(QStringLiteral("loop"))));
        QString error;
        QVERIFY(!FileUtils::writeFile(path(QStringLiteral("loop")), newBytes, &error));
        QVERIFY2(error.contains(path(QStringLiteral("loop"))), qPrintable(error));
        QVERIFY(QFileInfo(path(QStringLiteral("loop"))).isSymLink());
    }

    void keepsThePermissionsOfAFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("for the owner") << 0600;
        QTest::newRow("for all") << 0666;
        QTest::newRow("to be run") << 0755;
    }

    void keepsThePermissionsOfAFile()
    {
        QFETCH(int, mode);
        const QString file = path(QStringLiteral("file"));
        QVERIFY(TestSupport::write(file, oldBytes));
        QCOMPARE(chmod(QFile::encodeName(file).constData(), mode_t(mode)), 0);
        QVERIFY(FileUtils::writeFile(file, newBytes, nullptr));
        QCOMPARE(int(modeOf(file)), mode);
        QCOMPARE(TestSupport::contentsOf(file), newBytes);
    }

    void needsNoRightToLeaveAFileAsItIs()
    {
        const QString file = path(QStringLiteral("file"));
        QVERIFY(TestSupport::write(file, oldBytes));
        QCOMPARE(chmod(QFile::encodeName(file).constData(), 0444), 0);
        QCOMPARE(chmod(QFile::encodeName(m_dir.path()).constData(), 0755), 0);
        const TestSupport::Unprivileged user;
        if (!user.holds())
            QSKIP("root cannot give up its rights here, and permissions do not bind it");
        QString error;
        QVERIFY2(FileUtils::writeFile(file, oldBytes, &error), qPrintable(error));
        QVERIFY(!FileUtils::writeFile(file, newBytes, &error));
        QVERIFY2(error.contains(file) && error.contains(QStringLiteral("is not writable")),
                 qPrintable(error));
    }

    void placesSeveralFilesOrNone()
    {
        const QString first = path(QStringLiteral("first"));
        const QString second = path(QStringLiteral("second"));
        QVERIFY(TestSupport::write(first, oldBytes));
        QString error;
        {
            FileReplacement a(first);
            FileReplacement b(second);
            QVERIFY(a.prepare(newBytes, &error) && b.prepare(newBytes, &error));
            QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("first")});
            QCOMPARE(TestSupport::contentsOf(first), oldBytes);
            QVERIFY(a.place(&error) && b.place(&error));
            QCOMPARE(TestSupport::contentsOf(first), newBytes);
            QCOMPARE(TestSupport::contentsOf(second), newBytes);
            a.revert();
            b.revert();
        }
        QCOMPARE(TestSupport::contentsOf(first), oldBytes);
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("first")});
        {
            FileReplacement unplaced(first);
            QVERIFY(unplaced.prepare(newBytes, &error));
        }
        QCOMPARE(TestSupport::contentsOf(first), oldBytes);
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("first")});
    }

    // What a process leaves that is killed between the only two steps that can be seen.
    void usesUpWhatAKilledProcessLeft()
    {
        const QString file = path(QStringLiteral("file"));
        QVERIFY(TestSupport::write(file, oldBytes));
        const QString left =
            path(QStringLiteral(".tarvo-") +
                 QString::fromLatin1(
                     QCryptographicHash::hash("file", QCryptographicHash::Sha1).toHex().left(16)) +
                 QStringLiteral(".new"));
        QVERIFY(TestSupport::write(left, "left"));
        QVERIFY(FileUtils::writeFile(file, newBytes, nullptr));
        QCOMPARE(TestSupport::contentsOf(file), newBytes);
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("file")});
    }

    void refusesWhatIsNoPlainFile()
    {
        const QString fifo = path(QStringLiteral("fifo"));
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        for (const QByteArray &bytes : {QByteArray(), newBytes}) {
            QString error;
            QVERIFY(!FileUtils::writeFile(fifo, bytes, &error));
            QVERIFY2(error.contains(fifo) && error.contains(QStringLiteral("not a plain file")),
                     qPrintable(error));
            struct stat status = {};
            QCOMPARE(lstat(QFile::encodeName(fifo).constData(), &status), 0);
            QVERIFY(S_ISFIFO(status.st_mode));
        }
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("fifo")});
    }

    void namesPathAndReasonWhenCopyingFails_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("destination");
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("reason");
        const QString file = QStringLiteral("file");
        const QString folder = QStringLiteral("folder");
        const QString missing = QStringLiteral("missing");
        const QString isFolder = QStringLiteral("it is a folder");
        const QString noFile = QStringLiteral("No such file or directory");
        QTest::newRow("folder as source") << folder << QStringLiteral("new") << folder << isFolder;
        QTest::newRow("folder as target") << file << folder << folder << isFolder;
        QTest::newRow("folder as target, with a slash")
            << file << QStringLiteral("folder/") << folder << isFolder;
        QTest::newRow("source does not exist")
            << missing << QStringLiteral("new") << missing << noFile;
        QTest::newRow("folder of the target does not exist")
            << file << QStringLiteral("missing/new") << QStringLiteral("missing/new") << noFile;
        QTest::newRow("target below a file")
            << file << QStringLiteral("file/new") << QStringLiteral("file/new")
            << QStringLiteral("Not a directory");
        QTest::newRow("source below a file")
            << QStringLiteral("file/old") << QStringLiteral("new") << QStringLiteral("file/old")
            << QStringLiteral("Not a directory");
        QTest::newRow("target's name is too long")
            << file << QString(300, u'n') << QString(300, u'n')
            << QStringLiteral("File name too long");
    }

    void namesPathAndReasonWhenCopyingFails()
    {
        QFETCH(QString, source);
        QFETCH(QString, destination);
        QFETCH(QString, named);
        QFETCH(QString, reason);
        QVERIFY(TestSupport::write(path(QStringLiteral("file")), oldBytes));
        QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder")));
        QString error;
        QVERIFY(!FileUtils::copyFile(path(source), path(destination), &error));
        QVERIFY2(error.contains(path(named)), qPrintable(error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(!FileUtils::copyFile(path(source), path(destination), nullptr));
        QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("file"))), oldBytes);
        QCOMPARE(TestSupport::entriesOf(m_dir.path()),
                 (QStringList{QStringLiteral("file"), QStringLiteral("folder")}));
        QVERIFY(TestSupport::entriesOf(path(QStringLiteral("folder"))).isEmpty());
    }

    void refusesEmptyNames()
    {
        QVERIFY(TestSupport::write(path(QStringLiteral("file")), oldBytes));
        QString error;
        QVERIFY(!FileUtils::copyFile(QString(), path(QStringLiteral("new")), &error));
        QCOMPARE(error, QStringLiteral("Cannot read a file without a name."));
        QVERIFY(!FileUtils::copyFile(path(QStringLiteral("file")), QString(), &error));
        QCOMPARE(error, QStringLiteral("Cannot write a file without a name."));
        error.clear();
        QVERIFY(!FileUtils::writeLines(QString(), {}, &error));
        QCOMPARE(error, QStringLiteral("Cannot write a file without a name."));
        QVERIFY(!FileUtils::makePath(QString(), &error));
        QCOMPARE(error, QStringLiteral("Cannot make a folder without a name."));
        QByteArray bytes;
        QVERIFY(!FileUtils::readFile(QString(), &bytes, nullptr));
        QVERIFY(!FileUtils::makePath(QString(), nullptr));
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{QStringLiteral("file")});
    }

    void takesOddNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("blanks") << QStringLiteral(" two  blanks ");
        QTest::newRow("quotes") << QStringLiteral("a \"double\" and 'single'");
        QTest::newRow("placeholders") << QStringLiteral("%1 of %2 %L3 100%");
        QTest::newRow("backslash") << QStringLiteral("back\\slash");
        QTest::newRow("non-ASCII") << QStringLiteral("Größe 核 \U0001F600");
        QTest::newRow("newline") << QStringLiteral("two\nlines");
        QTest::newRow("hidden") << QStringLiteral(".hidden");
        QTest::newRow("markup") << QStringLiteral("<b>bold &amp;");
        QTest::newRow("pattern") << QStringLiteral("*?[a]{b}~$HOME");
        QTest::newRow("longest") << QString(255, u'n');
    }

    void takesOddNames()
    {
        QFETCH(QString, name);
        const QString source = path(name);
        QString error;
        QVERIFY2(FileUtils::writeFile(source, newBytes, &error), qPrintable(error));
        QCOMPARE(TestSupport::entriesOf(m_dir.path()), QStringList{name});
        QByteArray read;
        QVERIFY(FileUtils::readFile(source, &read, nullptr));
        QCOMPARE(read, newBytes);

        const QString folder = path(QStringLiteral("folder"));
        QVERIFY(FileUtils::makePath(QString(folder + u'/' + name), nullptr));
        QCOMPARE(TestSupport::entriesOf(folder), QStringList{name});
        const QString copy = QString(folder + u'/' + name + u'/' + name);
        QVERIFY2(FileUtils::copyFile(source, copy, &error), qPrintable(error));
        QCOMPARE(TestSupport::contentsOf(copy), newBytes);

        QVERIFY(!FileUtils::writeFile(QString(source + QLatin1String("/below")), newBytes, &error));
        QVERIFY2(error.startsWith(QString(QLatin1String("Cannot write \"") + source +
                                          QLatin1String("/below\": "))),
                 qPrintable(error));
    }

    void writesLinesExactly_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("none") << QStringList() << QByteArray();
        QTest::newRow("one") << QStringList{QStringLiteral("`define A")}
                             << QByteArray("`define A\n");
        QTest::newRow("several") << QStringList{QStringLiteral("a"), QStringLiteral("b")}
                                 << QByteArray("a\nb\n");
        QTest::newRow("an empty one") << QStringList{QString()} << QByteArray("\n");
        QTest::newRow("empty ones between")
            << QStringList{QStringLiteral("a"), QString(), QString(), QStringLiteral("b")}
            << QByteArray("a\n\n\nb\n");
        QTest::newRow("blanks and tabs")
            << QStringList{QStringLiteral("  a\t ")} << QByteArray("  a\t \n");
        QTest::newRow("non-ASCII") << QStringList{QStringLiteral("// Größe \u2014 核")}
                                   << QByteArray("// Gr\xc3\xb6\xc3\x9f"
                                                 "e \xe2\x80\x94 \xe6\xa0\xb8\n");
        QTest::newRow("placeholders")
            << QStringList{QStringLiteral("%1 %n")} << QByteArray("%1 %n\n");
    }

    void writesLinesExactly()
    {
        QFETCH(QStringList, lines);
        QFETCH(QByteArray, bytes);
        const QString file = path(QStringLiteral("lines.v"));
        QVERIFY(TestSupport::write(file, oldBytes));
        QVERIFY(FileUtils::writeLines(file, lines, nullptr));
        QCOMPARE(TestSupport::contentsOf(file), bytes);
        QFile::remove(file);
        QVERIFY(FileUtils::writeLines(file, lines, nullptr));
        QVERIFY(QFileInfo::exists(file));
        QCOMPARE(TestSupport::contentsOf(file), bytes);
    }

    // Such a name was read from bytes that are not UTF-8: the folder that is meant has another.
    void makesNothingOfADamagedName()
    {
        const QString name = path(QStringLiteral("a\ufffd/b"));
        QString error;
        QVERIFY(!FileUtils::makePath(name, &error));
        QVERIFY2(error.contains(QLatin1String("is not UTF-8")), qPrintable(error));
        error.clear();
        QVERIFY(!FileUtils::writeFile(path(QStringLiteral("c\ufffd")), "x", &error));
        QVERIFY2(error.contains(QLatin1String("is not UTF-8")), qPrintable(error));
        QVERIFY(!TestSupport::entriesOf(m_dir.path()).join(QString()).contains(u'\ufffd'));
    }

    void makesAllFoldersOfAPath()
    {
        const QString folder = path(QStringLiteral("a/b c/d"));
        QString error = QStringLiteral("untouched");
        QVERIFY(FileUtils::makePath(folder, &error));
        QVERIFY(QFileInfo(folder).isDir());
        QVERIFY(FileUtils::makePath(folder, &error));
        QVERIFY(FileUtils::makePath(QString(folder + u'/'), &error));
        QCOMPARE(error, QStringLiteral("untouched"));
    }

    void makePathNamesTheFileInTheWay_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::newRow("the folder itself") << QStringLiteral("file");
        QTest::newRow("its parent") << QStringLiteral("file/new");
        QTest::newRow("further up") << QStringLiteral("file/a/b/c");
        QTest::newRow("behind dots") << QStringLiteral("./file/a/../b");
    }

    void makePathNamesTheFileInTheWay()
    {
        QFETCH(QString, wanted);
        const QString file = path(QStringLiteral("file"));
        QVERIFY(TestSupport::write(file, oldBytes));
        QString error;
        QVERIFY(!FileUtils::makePath(path(wanted), &error));
        QCOMPARE(error, QString(QLatin1String("Cannot make the folder \"") + path(wanted) +
                                QLatin1String("\": \"") + file + QLatin1String("\" is a file.")));
        QCOMPARE(TestSupport::contentsOf(file), oldBytes);
    }

    void forbiddenFoldersAreNamed()
    {
        const QString folder = path(QStringLiteral("closed"));
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(TestSupport::write(QString(folder + QLatin1String("/file")), oldBytes));
        QCOMPARE(
            chmod(QFile::encodeName(QString(folder + QLatin1String("/file"))).constData(), 0444),
            0);
        QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0555), 0);
        QCOMPARE(chmod(QFile::encodeName(m_dir.path()).constData(), 0755), 0);
        QString makeError;
        QString writeError;
        bool made = false;
        bool written = false;
        {
            const TestSupport::Unprivileged user;
            if (!user.holds())
                QSKIP("root cannot give up its rights here, and permissions do not bind it");
            made = FileUtils::makePath(QString(folder + QLatin1String("/a/b")), &makeError);
            written = FileUtils::writeFile(QString(folder + QLatin1String("/file")), newBytes,
                                           &writeError);
        }
        QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0755), 0);
        QVERIFY(!made);
        QCOMPARE(makeError, QString(QLatin1String("Cannot make the folder \"") + folder +
                                    QLatin1String("/a/b\": \"") + folder +
                                    QLatin1String("\" is not writable.")));
        QVERIFY(!written);
        QVERIFY2(writeError.contains(QString(folder + QLatin1String("/file"))) &&
                     writeError.contains(QStringLiteral("is not writable")),
                 qPrintable(writeError));
        QCOMPARE(TestSupport::contentsOf(QString(folder + QLatin1String("/file"))), oldBytes);
        QCOMPARE(TestSupport::entriesOf(folder), QStringList{QStringLiteral("file")});
    }

    void aFullDiskLeavesTheOldFileWhole()
    {
        const QString disk = path(QStringLiteral("disk"));
        QVERIFY(QDir().mkdir(disk));
        const QString reason = TestSupport::mountSmallDisk(disk);
        if (!reason.isEmpty())
            QSKIP(qPrintable(reason));
        const auto unmount = qScopeGuard([&disk] { TestSupport::unmount(disk); });
        const QString file = QString(disk + QLatin1String("/file"));
        QVERIFY(TestSupport::write(file, oldBytes));
        const Identity before = identityOf(file);

        // Nothing free, one page free, some pages free: the writing stops at different places.
        for (const int freePages : {0, 1, 3}) {
            QVERIFY(TestSupport::fillDisk(disk, freePages * 4096));
            for (const int size : {10, 5000, 16384, 20000, 1000000}) {
                if (size <= freePages * 4096)
                    continue;
                QString error;
                QVERIFY(!FileUtils::writeFile(file, QByteArray(size, 'n'), &error));
                QVERIFY2(error.contains(file), qPrintable(error));
                QVERIFY2(error.contains(QStringLiteral("No space left on device")),
                         qPrintable(error));
                QCOMPARE(TestSupport::contentsOf(file), oldBytes);
                QVERIFY(identityOf(file) == before);
                QCOMPARE(TestSupport::entriesOf(disk),
                         (QStringList{QStringLiteral("file"), QStringLiteral("filler")}));
            }
        }

        QVERIFY(QFile::remove(QString(disk + QLatin1String("/filler"))));
        QVERIFY(FileUtils::writeFile(file, newBytes, nullptr));
        QCOMPARE(TestSupport::contentsOf(file), newBytes);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestFileUtils)
#include "tst_fileutils.moc"
