#include <reading/filelist.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Reading::filesEndingIn;

class TestFileList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheFilesOfAnEndingByName()
    {
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        for (const char *name : {"b.c", "a.c", "C.C", "a.h", "a.cc", "c", ".hidden.c", "a.c.txt"}) {
            QFile file(dir.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(dir.mkdir(QStringLiteral("folder.c")));
        QVERIFY(QFile::link(dir.filePath(QStringLiteral("a.h")),
                            dir.filePath(QStringLiteral("link.c"))));
        const QStringList sources = filesEndingIn(dir, {QLatin1String(".c")});
        QCOMPARE(QSet<QString>(sources.begin(), sources.end()),
                 QSet<QString>({QStringLiteral("a.c"), QStringLiteral("b.c"), QStringLiteral("C.C"),
                                QStringLiteral("link.c")}));
        // As QDir's own filters do.
        QCOMPARE(sources, dir.entryList({QStringLiteral("*.c")}, QDir::Files, QDir::Name));
        QCOMPARE(
            filesEndingIn(dir, {QLatin1String(".c"), QLatin1String(".h")}),
            dir.entryList({QStringLiteral("*.c"), QStringLiteral("*.h")}, QDir::Files, QDir::Name));
        QVERIFY(filesEndingIn(dir, {QLatin1String(".v")}).isEmpty());
        QVERIFY(
            filesEndingIn(dir.filePath(QStringLiteral("none")), {QLatin1String(".c")}).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestFileList)
#include "tst_filelist.moc"
