#include "hands.h"

#include <windowwalk.h>

#include <workbench/widgets/shortcuts.h>

#include <QRegularExpression>

// A desktop without a single key: what the workbench asks it for is answered here, before Qt.
QList<QKeySequence> QKeySequence::keyBindings(StandardKey /*key*/)
{
    return {};
}

using namespace Workbench;
using namespace TestSupport;

class TestShortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>(); }
    void cleanup() { m_bench.reset(); }

    void theDesktopHasNoKeysHere()
    {
        QVERIFY(QKeySequence::keyBindings(QKeySequence::Copy).isEmpty());
        QCOMPARE(keysOf(QKeySequence::Copy),
                 QList<QKeySequence>{QKeySequence(QStringLiteral("Ctrl+C"))});
    }

    void everyKeyOfTheGuideIsOfAnAction_data()
    {
        QTest::addColumn<QString>("key");
        const QString guide =
            QString::fromUtf8(contentsOf(QStringLiteral(TARVO_SOURCE_DIR "/docs/user-guide.md")));
        const QStringList lines = guide.split(u'\n');
        bool inTable = false;
        for (const QString &line : lines) {
            if (line.startsWith(QLatin1String("| keys |")))
                inTable = true;
            else if (!line.startsWith(u'|'))
                inTable = false;
            else if (inTable && !line.contains(QLatin1String("---"))) {
                const QStringList keys = line.section(u'|', 1, 1).split(u',');
                for (const QString &key : keys)
                    QTest::newRow(qPrintable(key.trimmed())) << key.trimmed();
            }
        }
    }

    void everyKeyOfTheGuideIsOfAnAction()
    {
        QFETCH(QString, key);
        key.replace(QLatin1String("Page Down"), QLatin1String("PgDown"));
        key.replace(QLatin1String("Page Up"), QLatin1String("PgUp"));
        const QKeySequence wanted(key);
        QVERIFY(!wanted.isEmpty());
        int owners = 0;
        const auto actions = m_bench->window->findChildren<QAction *>();
        for (const QAction *action : actions)
            owners += action->shortcuts().contains(wanted);
        QCOMPARE(owners, 1);
    }

    void whatTheDesktopNamesHasAKey()
    {
        for (const char *name :
             {"New Project", "Open", "Save", "Close Tab", "Quit", "Undo", "Redo", "Cut", "Copy",
              "Paste", "Select All", "Find", "Larger Text", "Smaller Text", "Contents"})
            QVERIFY2(!m_bench->action(name)->shortcut().isEmpty(), name);
    }

    void noKeyBelongsToTwoActions()
    {
        QHash<QKeySequence, QString> owners;
        const auto actions = m_bench->window->findChildren<QAction *>();
        for (const QAction *action : actions) {
            if (action->shortcutContext() == Qt::WidgetShortcut)
                continue;
            const auto keys = action->shortcuts();
            for (const QKeySequence &key : keys) {
                QVERIFY2(!owners.contains(key) || key.isEmpty(),
                         qPrintable(owners.value(key) + u' ' + action->text()));
                owners.insert(key, action->text());
            }
        }
    }

private:
    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestShortcuts)
#include "tst_shortcuts.moc"
