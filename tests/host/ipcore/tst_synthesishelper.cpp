#include <testsupport.h>

#include <ipcore/synthesishelper.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>

#include <memory>

using IPCore::SynthesisHelper;

namespace
{

QDialog *progressWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("IPCore::ProgressDialog"))
            return qobject_cast<QDialog *>(window);
    }
    return nullptr;
}

} // namespace

class TestSynthesisHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!progressWindow()); }

    void toolsHaveTheirNumbers()
    {
        QCOMPARE(int(SynthesisHelper::SynplifyPro), 0);
        QCOMPARE(int(SynthesisHelper::TarvoSynthesis), 1);
    }

    void keepsTheChosenTool()
    {
        SynthesisHelper helper;
        QCOMPARE(helper.synthesizeTool(), SynthesisHelper::TarvoSynthesis);
        helper.setSynthesizeTool(SynthesisHelper::SynplifyPro);
        QCOMPARE(helper.synthesizeTool(), SynthesisHelper::SynplifyPro);
        helper.setSynthesizeTool(SynthesisHelper::TarvoSynthesis);
        QCOMPARE(helper.synthesizeTool(), SynthesisHelper::TarvoSynthesis);
    }

    void isIdleBeforeTheFirstRun()
    {
        SynthesisHelper helper;
        QVERIFY(!helper.isRunning());
        QVERIFY(helper.errorMsg().isEmpty());
        QVERIFY(helper.detailErrorMsgs().isEmpty());
        helper.cancel();
        QVERIFY(!helper.isRunning());
    }

    void showsAndHidesItsWindow()
    {
        SynthesisHelper helper;
        helper.setProgressDlgWindowTitle(QStringLiteral("Generating %1"));
        const QPointer<QDialog> window = progressWindow();
        QVERIFY(window);
        QVERIFY(!window->isVisible());
        QCOMPARE(window->windowTitle(), QStringLiteral("Generating %1"));
        for (int turn = 0; turn < 2; ++turn) {
            helper.showProgressDlg();
            QVERIFY(window->isVisible());
            QVERIFY(window->isModal());
            helper.hideProgressDlg();
            QVERIFY(!window->isVisible());
        }
        helper.hideProgressDlg();
        QVERIFY(!window->isVisible());
    }

    void itsWindowBelongsToAParentWidget()
    {
        QWidget parent;
        parent.show();
        auto *helper = new SynthesisHelper(&parent);
        QCOMPARE(helper->parent(), &parent);
        QVERIFY(progressWindow());
        QCOMPARE(progressWindow()->parentWidget(), &parent);
        helper->showProgressDlg();
        QCOMPARE(progressWindow()->windowModality(), Qt::WindowModal);
        QCOMPARE(QApplication::activeModalWidget(), progressWindow());
    }

    void itsWindowStandsAloneForAnotherParent()
    {
        QObject parent;
        new SynthesisHelper(&parent);
        QVERIFY(progressWindow());
        QVERIFY(!progressWindow()->parentWidget());
    }

    void takesItsWindowAlong()
    {
        QWidget parent;
        auto helper = std::make_unique<SynthesisHelper>(&parent);
        helper->showProgressDlg();
        QVERIFY(progressWindow());
        helper.reset();
        QVERIFY(!progressWindow());
        QVERIFY(!QApplication::activeModalWidget());
    }

    void outlivesItsWindow()
    {
        auto parent = std::make_unique<QWidget>();
        SynthesisHelper *owned = new SynthesisHelper(parent.get());
        owned->setParent(nullptr);
        const std::unique_ptr<SynthesisHelper> helper(owned);
        helper->showProgressDlg();
        QVERIFY(progressWindow());
        parent.reset();
        QVERIFY(!progressWindow());
        helper->setProgressDlgWindowTitle(QStringLiteral("late"));
        helper->showProgressDlg();
        helper->hideProgressDlg();
        helper->cancel();
        QVERIFY(!helper->isRunning());
        QVERIFY(!progressWindow());
    }

    void twoHelpersHaveTwoWindows()
    {
        SynthesisHelper first;
        const QDialog *window = progressWindow();
        {
            SynthesisHelper second;
            second.showProgressDlg();
            QVERIFY(!window->isVisible());
        }
        QCOMPARE(progressWindow(), window);
        first.showProgressDlg();
        QVERIFY(window->isVisible());
    }
};

TARVO_TEST_MAIN(QApplication, TestSynthesisHelper)
#include "tst_synthesishelper.moc"
