#include <testsupport.h>

#include <utils/folderlock.h>

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using Utils::FolderLock;

namespace
{

// A child that takes the lock, says so and waits to be killed. Its process id, or -1.
pid_t otherOwner(const QString &folder)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = FolderLock::take(folder, nullptr);
        const char byte = lock ? 1 : 0;
        if (::write(ends[1], &byte, 1) == 1) {
            for (;;)
                ::pause();
        }
        ::_exit(1);
    }
    char byte = 0;
    const bool taken = child > 0 && ::read(ends[0], &byte, 1) == 1 && byte == 1;
    ::close(ends[0]);
    ::close(ends[1]);
    return taken ? child : -1;
}

void end(pid_t child)
{
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

} // namespace

class TestFolderLock : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;

    QString folder() const { return m_dir->path(); }
    QString file() const { return m_dir->filePath(QStringLiteral(".tarvo-run.lock")); }

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void onlyOneHasAFolder()
    {
        QString error = QStringLiteral("untouched");
        auto first = FolderLock::take(folder(), &error);
        QVERIFY(first);
        QCOMPARE(error, QStringLiteral("untouched"));
        QVERIFY(!FolderLock::take(folder(), &error));
        QVERIFY2(error.contains(folder()) && error.contains(file()) &&
                     error.endsWith(QStringLiteral("another run is working there.")),
                 qPrintable(error));
        QVERIFY(!FolderLock::take(folder(), nullptr));
        first.reset();
        QVERIFY(FolderLock::take(folder(), &error));
        QCOMPARE(TestSupport::entriesOf(folder()), QStringList());
    }

    void knowsItsFolderByEveryName()
    {
        const auto lock = FolderLock::take(folder(), nullptr);
        QVERIFY(lock->covers(folder()));
        QVERIFY(lock->covers(QString(folder() + QLatin1String("/."))));
        QVERIFY(!lock->covers(QDir::tempPath()));
        QVERIFY(!lock->covers(QString()));
        const QTemporaryDir other;
        const QString link = other.filePath(QStringLiteral("link"));
        QVERIFY(QFile::link(folder(), link));
        QVERIFY(lock->covers(link));
        QVERIFY(!FolderLock::take(link, nullptr));
    }

    void endsWithItsOwnerHoweverThatEnds()
    {
        const pid_t child = otherOwner(folder());
        QVERIFY(child > 0);
        QString error;
        QVERIFY(!FolderLock::take(folder(), &error));
        QVERIFY2(error.contains(file()), qPrintable(error));
        end(child);
        QVERIFY2(FolderLock::take(folder(), &error), qPrintable(error));
        QCOMPARE(TestSupport::entriesOf(folder()), QStringList());
    }

    void takesOverWhatIsLeft_data()
    {
        QTest::addColumn<QByteArray>("left");
        QTest::newRow("nothing in it") << QByteArray();
        QTest::newRow("garbage") << QByteArray("\0\xff lock\n", 8);
        QTest::newRow("another host's process") << QByteArray("1\norixm1\nsome-other-host\n");
        QTest::newRow("this process")
            << QByteArray(QByteArray::number(qint64(::getpid())) + "\ntst_folderlock\nhost\n");
    }

    void takesOverWhatIsLeft()
    {
        QFETCH(QByteArray, left);
        QVERIFY(TestSupport::write(file(), left));
        QString error;
        QVERIFY2(FolderLock::take(folder(), &error), qPrintable(error));
        QCOMPARE(TestSupport::entriesOf(folder()), QStringList());
    }

    void refusesWhatIsNoPlainFile_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("a pipe") << 0;
        QTest::newRow("a folder") << 1;
        QTest::newRow("a link to a file") << 2;
        QTest::newRow("a link to nowhere") << 3;
    }

    void refusesWhatIsNoPlainFile()
    {
        QFETCH(int, kind);
        const QTemporaryDir other;
        const QString target = other.filePath(QStringLiteral("file"));
        if (kind == 0)
            QCOMPARE(::mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
        else if (kind == 1)
            QVERIFY(QDir().mkdir(file()));
        else
            QVERIFY(QFile::link(target, file()));
        if (kind == 2)
            QVERIFY(TestSupport::write(target, "mine"));
        QString error;
        QVERIFY(!FolderLock::take(folder(), &error));
        QVERIFY2(error.contains(file()) && error.contains(QStringLiteral("delete it")),
                 qPrintable(error));
        QCOMPARE(TestSupport::entriesOf(other.path()).size(), kind == 2 ? 1 : 0);
        QCOMPARE(TestSupport::entriesOf(folder()), QStringList{QStringLiteral(".tarvo-run.lock")});
    }

    // A file that is removed by its owner must not be taken for the lock.
    void isNotHeldByAFileThatIsGone()
    {
        auto lock = FolderLock::take(folder(), nullptr);
        const int stale = ::open(QFile::encodeName(file()).constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(stale >= 0);
        lock.reset();
        QCOMPARE(::flock(stale, LOCK_EX | LOCK_NB), 0);
        QString error;
        lock = FolderLock::take(folder(), &error);
        QVERIFY2(lock, qPrintable(error));
        ::close(stale);
        QVERIFY(!FolderLock::take(folder(), nullptr));
    }

    void leavesAFileThatIsNotItsOwn()
    {
        auto first = FolderLock::take(folder(), nullptr);
        QVERIFY(QFile::remove(file())); // somebody tidied up
        const auto second = FolderLock::take(folder(), nullptr);
        QVERIFY(second);
        first.reset();
        QVERIFY(QFile::exists(file()));
        QVERIFY(!FolderLock::take(folder(), nullptr));
    }

    void namesTheReasonWithoutAFolder()
    {
        QString error;
        const QString missing = m_dir->filePath(QStringLiteral("missing"));
        QVERIFY(!FolderLock::take(missing, &error));
        QVERIFY2(error.contains(missing) && error.contains(QStringLiteral("No such file")),
                 qPrintable(error));
        QVERIFY(!FolderLock::take(QString(), &error));
        QVERIFY(!FolderLock::take(QStringLiteral("/proc/self"), &error));
        QVERIFY2(error.contains(QStringLiteral("/proc/self/.tarvo-run.lock")), qPrintable(error));
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestFolderLock)
#include "tst_folderlock.moc"
