#include <workbench/widgets/scrollingtext.h>
#include <workbench/widgets/wrappedlabel.h>

#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

using namespace Workbench;

namespace
{

const QString &longText()
{
    static const QString text =
        QStringLiteral("A microcontroller subsystem around a processor with tightly coupled "
                       "memories and optional peripherals on two buses.");
    return text;
}

} // namespace

// A text that scrolls where there is less room than it needs.
class tst_ScrollingText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsOnlyWhereSomethingIsHidden_data()
    {
        QTest::addColumn<bool>("isWrapped");
        QTest::newRow("QLabel") << false;
        QTest::newRow("WrappedLabel") << true;
    }

    // Whatever it was before: QScrollArea takes its own bar for a reason to keep it.
    void scrollsOnlyWhereSomethingIsHidden()
    {
        QFETCH(bool, isWrapped);
        auto *label = isWrapped ? new WrappedLabel(longText()) : new QLabel(longText());
        ScrollingText text(label, QStringLiteral("About"));
        text.resize(200, 40);
        text.show();
        QVERIFY(QTest::qWaitForWindowExposed(&text));
        int seen = 0;
        int hidden = 0;
        for (int width : {150, 203, 267, 301, 420}) {
            for (int less : {0, 1, 30, 0, 5, 0}) {
                text.resize(width, label->heightForWidth(width) - less);
                QCoreApplication::processEvents();
                QCOMPARE(text.verticalScrollBar()->isVisible(), less > 0);
                ++(less > 0 ? hidden : seen);
                QCOMPARE(text.focusPolicy(), less > 0 ? Qt::StrongFocus : Qt::NoFocus);
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
            }
        }
        QVERIFY(seen > 0 && hidden > 0);
    }

    void scrollsATextThatWasSetWhileItWasHidden_data() { scrollsOnlyWhereSomethingIsHidden_data(); }

    // Where there is no more room for it than for the one before.
    void scrollsATextThatWasSetWhileItWasHidden()
    {
        QFETCH(bool, isWrapped);
        const QString brief = QStringLiteral("short");
        auto *label = isWrapped ? new WrappedLabel(brief) : new QLabel(brief);
        QWidget around;
        auto *text = new ScrollingText(label, QStringLiteral("About"));
        text->setParent(&around);
        text->setGeometry(0, 0, 200, 40);
        around.resize(200, 40);
        around.show();
        QVERIFY(QTest::qWaitForWindowExposed(&around));
        for (QWidget *hidden : {static_cast<QWidget *>(text), &around}) {
            for (const QString &said : {longText(), brief, longText().repeated(2), brief}) {
                hidden->hide();
                label->setText(said);
                QCoreApplication::processEvents();
                hidden->show();
                QCoreApplication::processEvents();
                QCOMPARE(text->verticalScrollBar()->isVisible(), said != brief);
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
            }
        }
    }

    void takesWhatItsTextNeedsAndNoMore()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *label = new WrappedLabel(QStringLiteral("short"));
        auto *text = new ScrollingText(label, QStringLiteral("About"));
        layout->addWidget(new QWidget, 1);
        layout->addWidget(text);
        window.resize(260, 400);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (const QString &said : {longText(), QStringLiteral("short"), longText().repeated(2)}) {
            for (int width : {260, 180, 300}) {
                label->setText(said);
                window.resize(width, 400);
                QTRY_COMPARE(text->height(), label->heightForWidth(text->width()));
                QVERIFY(!text->verticalScrollBar()->isVisible());
            }
        }
    }
};

QTEST_MAIN(tst_ScrollingText)

#include "tst_scrollingtext.moc"
