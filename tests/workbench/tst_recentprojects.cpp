#include <testsupport.h>

#include <workbench/window/recentprojects.h>

#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

class TestRecentProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_settings = std::make_unique<QSettings>(
            m_dir.filePath(QString::fromLatin1(QTest::currentTestFunction())),
            QSettings::IniFormat);
        m_recent = std::make_unique<RecentProjects>(*m_settings);
    }
    void cleanup()
    {
        m_recent.reset();
        m_settings.reset();
    }

    void theLastOneComesFirstAndOnce()
    {
        for (const char *file : {"/a", "/b", "/a"})
            m_recent->add(QLatin1String(file));
        QCOMPARE(m_recent->files(), QStringList({QStringLiteral("/a"), QStringLiteral("/b")}));
    }

    void keepsEight()
    {
        for (int i = 0; i < 12; ++i)
            m_recent->add(QString::number(i));
        QCOMPARE(m_recent->files().size(), 8);
        QCOMPARE(m_recent->files().first(), QStringLiteral("11"));
        QCOMPARE(m_recent->files().last(), QStringLiteral("4"));
    }

    void forgetsWhatItKnows()
    {
        m_recent->add(QStringLiteral("/a"));
        QVERIFY(!m_recent->remove(QStringLiteral("/b")));
        QVERIFY(m_recent->remove(QStringLiteral("/a")));
        QVERIFY(m_recent->files().isEmpty());
    }

    void outlivesTheProgram()
    {
        m_recent->add(QStringLiteral("/a"));
        m_settings->sync();
        QSettings other(m_settings->fileName(), QSettings::IniFormat);
        QCOMPARE(RecentProjects(other).files(), QStringList(QStringLiteral("/a")));
    }

    void theMenuOffersThoseThatExist()
    {
        const QString there = m_dir.filePath(QStringLiteral("this & that"));
        write(there, "x");
        m_recent->add(there);
        m_recent->add(QStringLiteral("/no/such"));
        QMenu menu;
        m_recent->showIn(&menu);
        Q_EMIT menu.aboutToShow();
        Q_EMIT menu.aboutToShow(); // anew, not once more
        QCOMPARE(menu.actions().size(), 2);
        QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("&1  /no/such"));
        QVERIFY(!menu.actions().at(0)->isEnabled());
        QVERIFY(menu.actions().at(1)->text().endsWith(QLatin1String("this && that")));
        QSignalSpy chosen(m_recent.get(), &RecentProjects::chosen);
        menu.actions().at(1)->trigger();
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), there);
    }

    void theEmptyMenuSaysSo()
    {
        QMenu menu;
        m_recent->showIn(&menu);
        Q_EMIT menu.aboutToShow();
        QCOMPARE(menu.actions().size(), 1);
        QCOMPARE(menu.actions().first()->text(), QStringLiteral("No project yet"));
        QVERIFY(!menu.actions().first()->isEnabled());
    }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<RecentProjects> m_recent;
};

QTEST_MAIN(TestRecentProjects)
#include "tst_recentprojects.moc"
