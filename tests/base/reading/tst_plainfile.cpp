#include <reading/plainfile.h>
#include <testsupport.h>

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using Reading::readPlainFile;

class tst_PlainFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWholeFiles_data();
    void readsWholeFiles();
    void refusesWhatIsNoPlainFile_data();
    void refusesWhatIsNoPlainFile();
    void neverReadsMoreThanTheLimit_data();
    void neverReadsMoreThanTheLimit();
    void readsAFileWithoutASize();
    void sizesAreTold();

private:
    QTemporaryDir m_dir;
};

void tst_PlainFile::readsWholeFiles_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 65535, 65536, 65537, 300000})
        QTest::addRow("%d bytes", size) << size;
}

void tst_PlainFile::readsWholeFiles()
{
    QFETCH(int, size);
    QByteArray written;
    for (int i = 0; i < size; ++i)
        written += char(i * 7);
    const QString path = m_dir.filePath(QStringLiteral("ü %1").arg(size));
    QVERIFY(TestSupport::write(path, written));
    QByteArray bytes;
    QString reason;
    QVERIFY2(readPlainFile(path, size, &bytes, &reason), qPrintable(reason));
    QCOMPARE(bytes, written);
    // A link is followed.
    const QString link = path + QLatin1String(".link");
    QVERIFY(QFile::link(path, link));
    bytes.clear();
    QVERIFY(readPlainFile(link, size, &bytes, &reason));
    QCOMPARE(bytes, written);
}

void tst_PlainFile::refusesWhatIsNoPlainFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const QString pipe = m_dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString link = m_dir.filePath(QStringLiteral("link to a pipe"));
    QVERIFY(QFile::link(pipe, link));
    const QString socket = m_dir.filePath(QStringLiteral("socket"));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(socket).constData(), sizeof address.sun_path);
    const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(server, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    ::close(server);

    const QString notPlain = QStringLiteral("it is not a plain file");
    const QString missing = QStringLiteral("No such file or directory");
    QTest::newRow("a pipe without a writer") << pipe << notPlain;
    QTest::newRow("a link to a pipe") << link << notPlain;
    QTest::newRow("a socket") << socket << notPlain;
    QTest::newRow("an endless device") << QStringLiteral("/dev/zero") << notPlain;
    QTest::newRow("an empty device") << QStringLiteral("/dev/null") << notPlain;
    QTest::newRow("a folder") << m_dir.path() << QStringLiteral("it is a folder");
    QTest::newRow("nothing") << m_dir.filePath(QStringLiteral("nothing")) << missing;
    QTest::newRow("no name") << QString() << missing;
    QTest::newRow("a name with a zero byte")
        << QString(m_dir.filePath(QStringLiteral("a")) + QChar(0)) << missing;
}

void tst_PlainFile::refusesWhatIsNoPlainFile()
{
    QFETCH(QString, path);
    QByteArray bytes("kept");
    QString reason;
    QVERIFY(!readPlainFile(path, 1000, &bytes, &reason));
    QTEST(reason, "reason");
    QCOMPARE(bytes, QByteArray("kept"));
}

void tst_PlainFile::neverReadsMoreThanTheLimit_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("one byte more") << qint64(1025);
    QTest::newRow("far more, none of it on the disk") << (qint64(1) << 40);
}

void tst_PlainFile::neverReadsMoreThanTheLimit()
{
    QFETCH(qint64, size);
    const QString path = m_dir.filePath(QStringLiteral("large"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size));
    file.close();
    QByteArray bytes;
    QString reason;
    QVERIFY(!readPlainFile(path, 1024, &bytes, &reason));
    QCOMPARE(reason, QStringLiteral("it is larger than 1 KiB, the most that is read"));
    QVERIFY(bytes.isEmpty());
}

// The system makes up such files while they are read, and tells no size before.
void tst_PlainFile::readsAFileWithoutASize()
{
    const QString path = QStringLiteral("/proc/self/maps");
    if (!QFileInfo::exists(path))
        QSKIP("There is no such file here.");
    QByteArray bytes;
    QString reason;
    QVERIFY2(readPlainFile(path, 10000000, &bytes, &reason), qPrintable(reason));
    QVERIFY(bytes.contains("[stack]"));
    QVERIFY(!readPlainFile(path, 100, &bytes, &reason));
    QCOMPARE(reason, QStringLiteral("it is larger than 100 bytes, the most that is read"));
}

void tst_PlainFile::sizesAreTold()
{
    QCOMPARE(Reading::sizeText(1), QStringLiteral("1 bytes"));
    QCOMPARE(Reading::sizeText(256 * 1024), QStringLiteral("256 KiB"));
    QCOMPARE(Reading::sizeText(16 << 20), QStringLiteral("16 MiB"));
}

TARVO_TEST_MAIN(QCoreApplication, tst_PlainFile)

#include "tst_plainfile.moc"
