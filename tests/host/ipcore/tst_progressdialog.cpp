#include <testsupport.h>
#include <windowwalk.h>

#include <ipcore/progressdialog.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using IPCore::ProgressDialog;

class TestProgressDialog : public QObject
{
    Q_OBJECT

private:
    static QString label(const ProgressDialog &dialog, const char *name)
    {
        const auto *found = dialog.findChild<QLabel *>(QString::fromLatin1(name));
        return found ? found->text() : QStringLiteral("no such label");
    }

    static QString log(const ProgressDialog &dialog)
    {
        const auto *found = dialog.findChild<QPlainTextEdit *>(QStringLiteral("logEdit"));
        return found ? found->toPlainText() : QStringLiteral("no log");
    }

private Q_SLOTS:
    void showsTheStageAsPlainText()
    {
        ProgressDialog dialog;
        dialog.setStage(QStringLiteral("Reading <b>%1</b> & more"));
        QCOMPARE(label(dialog, "stageLabel"), QStringLiteral("Reading <b>%1</b> & more"));
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("stageLabel"))->textFormat(),
                 Qt::PlainText);
    }

    void showsTheLogLineByLine()
    {
        ProgressDialog dialog;
        dialog.appendLog(QStringLiteral("first <b>line</b>"));
        dialog.appendLog(QString());
        dialog.appendLog(QStringLiteral("third\nfourth %1"));
        QCOMPARE(log(dialog), QStringLiteral("first <b>line</b>\n\nthird\nfourth %1"));
        QVERIFY(dialog.findChild<QPlainTextEdit *>(QStringLiteral("logEdit"))->isReadOnly());
    }

    void keepsTheEndOfAVeryLongLog()
    {
        ProgressDialog dialog;
        for (int line = 0; line < 21000; ++line)
            dialog.appendLog(QString::number(line));
        const QString text = log(dialog);
        QVERIFY(text.endsWith(QStringLiteral("\n20999")));
        QVERIFY(text.count(u'\n') < 20500);
    }

    void theClockRunsFromZero()
    {
        ProgressDialog dialog;
        dialog.startClock();
        QCOMPARE(label(dialog, "elapsedLabel"), QStringLiteral("0:00"));
        QTRY_COMPARE(label(dialog, "elapsedLabel"), QStringLiteral("0:01"));
        dialog.stopClock();
        QCOMPARE(label(dialog, "elapsedLabel"), QStringLiteral("0:01"));
        dialog.startClock();
        QCOMPARE(label(dialog, "elapsedLabel"), QStringLiteral("0:00"));
    }

    void aNewRunStartsWithAnEmptyWindow()
    {
        ProgressDialog dialog;
        dialog.startClock();
        dialog.appendLog(QStringLiteral("old"));
        dialog.setStage(QStringLiteral("Old stage"));
        dialog.reject();
        dialog.stopClock();
        dialog.startClock();
        QCOMPARE(log(dialog), QString());
        QCOMPARE(label(dialog, "stageLabel"), QStringLiteral("Starting"));
        QVERIFY(dialog.findChild<QPushButton *>()->isEnabledTo(&dialog));
    }

    void showsWhetherARunIsActive()
    {
        ProgressDialog dialog;
        dialog.startClock();
        const auto *bar = dialog.findChild<QProgressBar *>();
        const auto *cancel = dialog.findChild<QPushButton *>();
        QVERIFY(bar && cancel);
        QCOMPARE(bar->maximum(), 0); // moves all the time
        QVERIFY(cancel->isEnabledTo(&dialog));
        dialog.stopClock();
        QCOMPARE(bar->maximum(), 1);
        QCOMPARE(bar->value(), 1);
        QVERIFY(!cancel->isEnabledTo(&dialog));
    }

    void theBarAdvancesByStage()
    {
        ProgressDialog dialog;
        dialog.startClock();
        const auto *bar = dialog.findChild<QProgressBar *>();
        for (int done = 0; done < 6; ++done) {
            dialog.setProgress(done, 6);
            QCOMPARE(bar->maximum(), 6);
            QCOMPARE(bar->value(), done);
        }
        dialog.startClock();
        QCOMPARE(bar->maximum(), 0);
    }

    void asksOnceForCancellation_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"Cancel", "Escape twice", "closing"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }

    void asksOnceForCancellation()
    {
        QFETCH(QString, way);
        ProgressDialog dialog;
        QSignalSpy asked(&dialog, &ProgressDialog::cancelRequested);
        dialog.open();
        dialog.startClock();
        auto *cancel = dialog.findChild<QPushButton *>();
        QVERIFY(cancel);
        for (int turn = 0; turn < 2; ++turn) {
            if (way == QLatin1String("Cancel"))
                cancel->click();
            else if (way == QLatin1String("Escape twice"))
                for (int press = 0; press < 2; ++press)
                    QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                QVERIFY(!dialog.close());
            QCOMPARE(asked.count(), 1);
            QVERIFY(dialog.isVisible());
            QCOMPARE(label(dialog, "stageLabel"), QStringLiteral("Cancelling"));
            QVERIFY(!cancel->isEnabled());
        }
        dialog.stopClock();
        dialog.startClock();
        dialog.reject();
        QCOMPARE(asked.count(), 2);
    }

    void oneStrayKeyCancelsNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Escape") << int(Qt::Key_Escape);
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("space bar") << int(Qt::Key_Space);
    }

    // Meant for the window that was in front a moment ago.
    void oneStrayKeyCancelsNothing()
    {
        QFETCH(int, key);
        ProgressDialog dialog;
        QSignalSpy asked(&dialog, &ProgressDialog::cancelRequested);
        dialog.open();
        dialog.startClock();
        QApplication::setActiveWindow(&dialog);
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(dialog.focusWidget());
        QTest::keyClick(dialog.focusWidget(), Qt::Key(key));
        QCOMPARE(asked.count(), 0);
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.findChild<QPushButton *>()->isEnabled());
    }

    void aFirstEscapeTellsOfTheSecond()
    {
        ProgressDialog dialog;
        QSignalSpy asked(&dialog, &ProgressDialog::cancelRequested);
        dialog.open();
        dialog.startClock();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(label(dialog, "hintLabel").contains(QLatin1String("Escape")));
        // A key that is held is one press.
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&dialog, &held);
        QCOMPARE(asked.count(), 0);
        // Any other key takes it back.
        QTest::keyClick(&dialog, Qt::Key_Left);
        QCOMPARE(label(dialog, "hintLabel"), QString());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(asked.count(), 0);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(asked.count(), 1);
    }

    void closesWithoutAskingWhenNothingRuns_data()
    {
        QTest::addColumn<bool>("afterARun");
        QTest::newRow("before the first run") << false;
        QTest::newRow("after a run") << true;
    }

    void closesWithoutAskingWhenNothingRuns()
    {
        QFETCH(bool, afterARun);
        ProgressDialog dialog;
        QSignalSpy asked(&dialog, &ProgressDialog::cancelRequested);
        dialog.open();
        if (afterARun) {
            dialog.startClock();
            dialog.stopClock();
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(asked.count(), 0);
    }

    void isUsableWithoutAMouseAndOnASmallScreen()
    {
        const QFont before = QApplication::font();
        QFont large = before;
        large.setPointSize(16);
        QApplication::setFont(large);
        ProgressDialog dialog;
        dialog.open();
        dialog.startClock();
        dialog.setStage(QStringLiteral("a stage with many words ").repeated(6));
        dialog.appendLog(QStringLiteral("x").repeated(500));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(TestSupport::cutOff(&dialog, TestSupport::smallScreen()).join(u';'), QString());
        dialog.stopClock(); // nothing moves now
        dialog.findChild<QPushButton *>()->setEnabled(true);
        const TestSupport::TabWalk walk(&dialog);
        QCOMPARE(walk.stops.size(), 2);
        QCOMPARE(walk.unseen().join(u';'), QString());
        QApplication::setFont(before);
    }

    void whatHasNoTextHasAName()
    {
        const ProgressDialog dialog;
        QVERIFY(!dialog.findChild<QPlainTextEdit *>()->accessibleName().isEmpty());
        QVERIFY(!dialog.findChild<QProgressBar *>()->accessibleName().isEmpty());
    }
};

TARVO_TEST_MAIN(QApplication, TestProgressDialog)
#include "tst_progressdialog.moc"
