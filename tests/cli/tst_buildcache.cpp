#include "simulate/buildcache.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Cli::BuildCache;

namespace
{

QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void setContents(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void setAge(const QString &path, int seconds)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                             QFileDevice::FileModificationTime));
}

} // namespace

class tst_BuildCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = m_dir->filePath(QStringLiteral("made/when/needed"));
    }

    void findsWhatWasKeptUnderTheSameKeyOnly()
    {
        const BuildCache cache(m_folder);
        QCOMPARE(cache.find("a"), QByteArray());
        QVERIFY(!QFileInfo::exists(m_folder));
        const QByteArray program("\0\n\xFFprogram\n", 11);
        cache.keep("a", program);
        cache.keep("b", "other");
        cache.keep("b", "newer");
        QCOMPARE(BuildCache(m_folder).find("a"), program);
        QCOMPARE(cache.find("b"), QByteArray("newer"));
        QCOMPARE(cache.find("ab"), QByteArray());
    }

    void aPartOfAnEntryIsNone_data()
    {
        QTest::addColumn<int>("bytes");
        for (const int bytes : {0, 1, 63, 64, 65, 66, 70})
            QTest::addRow("%d bytes", bytes) << bytes;
    }

    void aPartOfAnEntryIsNone()
    {
        QFETCH(int, bytes);
        const BuildCache cache(m_folder);
        cache.keep("a", "program");
        const QString entry = m_folder + u'/' + entriesOf(m_folder).constFirst();
        const QByteArray whole = contentsOf(entry);
        QVERIFY(whole.size() > bytes);
        setContents(entry, whole.left(bytes));
        QCOMPARE(cache.find("a"), QByteArray());
        cache.keep("a", "program");
        QCOMPARE(cache.find("a"), QByteArray("program"));
    }

    void aChangedEntryIsNone()
    {
        const BuildCache cache(m_folder);
        cache.keep("a", "program");
        const QString entry = m_folder + u'/' + entriesOf(m_folder).constFirst();
        const QByteArray whole = contentsOf(entry);
        for (int place = 0; place < whole.size(); ++place) {
            QByteArray changed = whole;
            changed[place] = char(changed.at(place) ^ 1);
            setContents(entry, changed);
            QCOMPARE(cache.find("a"), QByteArray());
        }
    }

    void whatWasUsedLongestAgoGoes()
    {
        const BuildCache cache(m_folder);
        for (int i = 0; i < BuildCache::mostEntries; ++i)
            cache.keep(QByteArray::number(i), "program");
        const QStringList entries = entriesOf(m_folder);
        QCOMPARE(entries.size(), BuildCache::mostEntries);
        for (int i = 0; i < entries.size(); ++i)
            setAge(m_folder + u'/' + entries.at(i), 1000 + i);
        // The one that is oldest now is used again.
        QByteArray oldest;
        for (int i = 0; i < BuildCache::mostEntries; ++i) {
            const QFileInfo before(m_folder + u'/' + entries.last());
            const QDateTime age = before.lastModified();
            QVERIFY(!cache.find(QByteArray::number(i)).isEmpty());
            if (QFileInfo(before.filePath()).lastModified() != age)
                oldest = QByteArray::number(i);
        }
        QVERIFY(!oldest.isEmpty());
        for (int i = 0; i + 1 < entries.size(); ++i)
            setAge(m_folder + u'/' + entries.at(i), 1000 + i);
        cache.keep("new", "program");
        QCOMPARE(entriesOf(m_folder).size(), BuildCache::mostEntries);
        QVERIFY(!QFileInfo::exists(m_folder + u'/' + entries.at(entries.size() - 2)));
        QVERIFY(!cache.find(oldest).isEmpty());
        QVERIFY(!cache.find("new").isEmpty());
    }

    void whatIsTooMuchGoes()
    {
        const BuildCache cache(m_folder);
        cache.keep("old", "program");
        const QString old = m_folder + u'/' + entriesOf(m_folder).constFirst();
        QFile file(old);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(BuildCache::mostBytes));
        file.close();
        setAge(old, 1000);
        cache.keep("new", "program");
        QVERIFY(!QFileInfo::exists(old));
        QVERIFY(!cache.find("new").isEmpty());
    }

    void hasTheLimitsThatItIsGiven()
    {
        const BuildCache cache(m_folder, 3, 1000);
        for (int i = 0; i < 5; ++i)
            cache.keep(QByteArray::number(i), "program");
        QCOMPARE(entriesOf(m_folder).size(), 3);
        cache.keep("large", QByteArray(900, 'x'));
        QCOMPARE(entriesOf(m_folder).size(), 1);
        QVERIFY(!cache.find("large").isEmpty());
    }

    void anEntryUnderAnotherNameIsDroppedWithANote()
    {
        const BuildCache cache(m_folder);
        cache.keep("a", "program");
        const QString a = m_folder + u'/' + entriesOf(m_folder).constFirst();
        const QByteArray entry = contentsOf(a);
        QVERIFY(QFile::remove(a));
        cache.keep("b", "other");
        const QString b = m_folder + u'/' + entriesOf(m_folder).constFirst();
        setContents(b, entry);
        QString note;
        QCOMPARE(cache.find("b", &note), QByteArray());
        QVERIFY2(note.contains(b), qPrintable(note));
        QVERIFY(!QFileInfo::exists(b));
        note.clear();
        QCOMPARE(cache.find("b", &note), QByteArray());
        QCOMPARE(note, QString());
    }

    void whereNothingCanBeKeptNothingIs()
    {
        setContents(m_dir->filePath(QStringLiteral("file")), {});
        const BuildCache cache(m_dir->filePath(QStringLiteral("file/folder")));
        cache.keep("a", "program");
        QCOMPARE(cache.find("a"), QByteArray());
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
};

QTEST_GUILESS_MAIN(tst_BuildCache)
#include "tst_buildcache.moc"
