#include <ipcore/microsyschildipgendlg.h>
#include <ipcore/pinfigureview.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

using IPCore::MicroSysChildIPGenDlg;
using Utils::PinFigure;

namespace
{

class Dialog : public MicroSysChildIPGenDlg
{
public:
    using MicroSysChildIPGenDlg::MicroSysChildIPGenDlg;
    using MicroSysChildIPGenDlg::uiAddTab;
    using MicroSysChildIPGenDlg::uiSetFigurePins;
    using MicroSysChildIPGenDlg::uiSetLabelText;
    using MicroSysChildIPGenDlg::uiSetModuleName;
    using MicroSysChildIPGenDlg::uiSetSummaryText;

    int accepts = 0;
    int rejects = 0;
    void accept() override
    {
        ++accepts;
        MicroSysChildIPGenDlg::accept();
    }
    void reject() override
    {
        ++rejects;
        MicroSysChildIPGenDlg::reject();
    }

    QLabel *label(const char *name) const { return findChild<QLabel *>(QString::fromLatin1(name)); }
    void press(QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(buttonBox()->button(which), Qt::LeftButton);
    }
};

QList<PinFigure> manyPins(int count)
{
    QList<PinFigure> pins;
    for (int i = 0; i < count; ++i)
        pins.append({QStringLiteral("A_LONG_SIGNAL_NAME_%1[31:0]").arg(i), i % 3, true,
                     i % 3 ? Qt::AlignRight : Qt::AlignLeft});
    return pins;
}

} // namespace

class tst_ChildDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatWasSet();
    void showsTheHeader();
    void theDescriptionWrapsAndCanBeSelected();
    void longDescriptionsScroll();
    void pagesAreItsChildren();
    void okAndCancelReachTheOverrides();
    void escapeRejects();
    void enterAccepts();
    void theFirstSizeShowsTheOptions_data();
    void theFirstSizeShowsTheOptions();
    void aChosenSizeIsKept();
    void theSplitterSharesTheRoom();
    void tabReachesEverything();
};

void tst_ChildDialog::givesBackWhatWasSet()
{
    Dialog dialog;
    QCOMPARE(dialog.moduleName(), QString());
    QCOMPARE(dialog.figurePins(), QList<PinFigure>());
    dialog.uiSetModuleName(QStringLiteral("Tarvo AHB Bus"));
    dialog.uiSetLabelText(QStringLiteral("CAN"));
    const QString summary = QStringLiteral("   Two\n  lines.\n");
    dialog.uiSetSummaryText(summary);
    const QList<PinFigure> pins = manyPins(3);
    dialog.uiSetFigurePins(pins);
    QCOMPARE(dialog.moduleName(), QStringLiteral("Tarvo AHB Bus"));
    QCOMPARE(dialog.labelText(), QStringLiteral("CAN"));
    QCOMPARE(dialog.summaryText(), summary);
    QCOMPARE(dialog.figurePins(), pins);
    QCOMPARE(dialog.pinFigureView()->label(), QStringLiteral("CAN"));
    dialog.uiSetFigurePins({});
    QCOMPARE(dialog.figurePins(), QList<PinFigure>());
}

void tst_ChildDialog::showsTheHeader()
{
    Dialog dialog;
    dialog.uiSetModuleName(QStringLiteral("Tarvo <b>Bus</b>"));
    dialog.uiSetLabelText(QStringLiteral("CAN"));
    dialog.show();
    QVERIFY(dialog.label("moduleNameLabel")->isVisible());
    QCOMPARE(dialog.label("moduleNameLabel")->text(), QStringLiteral("Tarvo <b>Bus</b>"));
    QCOMPARE(dialog.label("moduleNameLabel")->textFormat(), Qt::PlainText);
    QVERIFY(dialog.label("blockLabel")->font().bold());
    QVERIFY(dialog.label("blockLabel")->isVisible());
}

void tst_ChildDialog::theDescriptionWrapsAndCanBeSelected()
{
    Dialog dialog;
    dialog.uiSetSummaryText(QStringLiteral("word ").repeated(100));
    dialog.show();
    QLabel *label = dialog.label("summaryLabel");
    QVERIFY(label->wordWrap());
    QVERIFY(label->width() <= dialog.width());
    QVERIFY(label->height() > 2 * label->fontMetrics().lineSpacing());
    QVERIFY(label->visibleRegion().boundingRect().height() >=
            label->heightForWidth(label->width()));
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(1, 4));
    QMouseEvent drag(QEvent::MouseMove, QPoint(label->width() / 2, 4), Qt::LeftButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(label, &drag);
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(label->width() / 2, 4));
    QVERIFY(label->hasSelectedText());
    QVERIFY(label->selectedText().startsWith(QLatin1String("word")));
}

void tst_ChildDialog::longDescriptionsScroll()
{
    Dialog dialog;
    dialog.uiAddTab(new QWidget, QStringLiteral("Options"));
    dialog.uiSetSummaryText(QStringLiteral("word ").repeated(2000));
    dialog.show();
    const QLabel *label = dialog.label("summaryLabel");
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
    QVERIFY(label->visibleRegion().boundingRect().height() < dialog.height() / 2);
}

void tst_ChildDialog::pagesAreItsChildren()
{
    Dialog dialog;
    auto *page = new QWidget;
    dialog.uiAddTab(page, QStringLiteral("Options"));
    dialog.uiAddTab(new QWidget, QStringLiteral("More"));
    QCOMPARE(dialog.tabWidget()->count(), 2);
    QCOMPARE(dialog.tabWidget()->widget(0), page);
    QCOMPARE(dialog.tabWidget()->tabText(1), QStringLiteral("More"));
    QVERIFY(dialog.isAncestorOf(page));
}

void tst_ChildDialog::okAndCancelReachTheOverrides()
{
    Dialog dialog;
    dialog.show();
    dialog.press(QDialogButtonBox::Ok);
    QCOMPARE(dialog.accepts, 1);
    QCOMPARE(dialog.rejects, 0);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    dialog.press(QDialogButtonBox::Cancel);
    QCOMPARE(dialog.accepts, 1);
    QCOMPARE(dialog.rejects, 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_ChildDialog::escapeRejects()
{
    Dialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(dialog.rejects, 1);
}

void tst_ChildDialog::enterAccepts()
{
    Dialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.accepts, 1);
}

void tst_ChildDialog::theFirstSizeShowsTheOptions_data()
{
    QTest::addColumn<int>("pins");
    for (int pins : {0, 8, 192})
        QTest::addRow("%d pins", pins) << pins;
}

void tst_ChildDialog::theFirstSizeShowsTheOptions()
{
    QFETCH(int, pins);
    Dialog dialog;
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    for (int i = 0; i < 6; ++i)
        layout->addWidget(new QLabel(QStringLiteral("An option with a long title %1").arg(i)));
    for (int i = 0; i < 3; ++i)
        dialog.uiAddTab(i ? new QWidget : page, QStringLiteral("Options"));
    dialog.uiSetLabelText(QStringLiteral("Block"));
    dialog.uiSetFigurePins(manyPins(pins));
    dialog.show();
    QVERIFY(page->width() >= page->sizeHint().width());
    QVERIFY(page->height() >= page->sizeHint().height());
    QVERIFY(dialog.tabWidget()->tabBar()->width() >=
            dialog.tabWidget()->tabBar()->sizeHint().width());
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    QVERIFY(dialog.width() <= screen.width());
    QVERIFY(dialog.height() <= screen.height());
    QVERIFY(dialog.pinFigureView()->width() >= dialog.pinFigureView()->minimumSizeHint().width());
    QVERIFY(dialog.buttonBox()->visibleRegion().boundingRect().height() > 10);
}

void tst_ChildDialog::aChosenSizeIsKept()
{
    Dialog dialog;
    dialog.resize(701, 503);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(701, 503));
    dialog.hide();
    dialog.resize(640, 480);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(640, 480));
}

void tst_ChildDialog::theSplitterSharesTheRoom()
{
    Dialog dialog;
    dialog.uiAddTab(new QWidget, QStringLiteral("Options"));
    dialog.resize(700, 500);
    dialog.show();
    auto *splitter = dialog.findChild<QSplitter *>(QStringLiteral("splitter"));
    const QList<int> before = splitter->sizes();
    dialog.resize(800, 500);
    QCoreApplication::processEvents();
    const QList<int> after = splitter->sizes();
    QCOMPARE(after.at(0), before.at(0));
    QVERIFY(after.at(1) > before.at(1));
    splitter->setSizes({0, 5000});
    QVERIFY(splitter->sizes().at(0) > 0); // neither side can be lost
}

void tst_ChildDialog::tabReachesEverything()
{
    Dialog dialog;
    dialog.uiAddTab(new QLineEdit, QStringLiteral("Options"));
    dialog.uiSetSummaryText(QStringLiteral("text"));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QSet<QWidget *> reached;
    dialog.buttonBox()->button(QDialogButtonBox::Ok)->setFocus();
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    QVERIFY(reached.contains(dialog.pinFigureView()));
    QVERIFY(reached.contains(dialog.tabWidget()->widget(0)));
    QVERIFY(reached.contains(dialog.buttonBox()->button(QDialogButtonBox::Ok)));
    QVERIFY(reached.contains(dialog.buttonBox()->button(QDialogButtonBox::Cancel)));
}

QTEST_MAIN(tst_ChildDialog)
#include "tst_childdialog.moc"
