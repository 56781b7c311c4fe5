#include "dialogdriver.h"
#include "testsupport.h"

#include <dialogs/messagebox.h>

#include <QtTest>

using namespace TARVOORIXM1;

// The look that all message boxes of the IP share.
class tst_MessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksTheSameEverywhere_data();
    void looksTheSameEverywhere();
    void pathsAreNoMarkUp();
};

void tst_MessageBox::looksTheSameEverywhere_data()
{
    QTest::addColumn<bool>("isError");
    QTest::addColumn<QString>("details");
    QTest::newRow("a message") << false << QString();
    QTest::newRow("an error with details") << true << QStringLiteral("line one\nline two");
}

void tst_MessageBox::looksTheSameEverywhere()
{
    QFETCH(bool, isError);
    QFETCH(QString, details);
    QWidget parent;
    const QList<TestSupport::SeenBox> boxes = TestSupport::boxesOf([&] {
        showMessageBox(&parent, QMessageBox::Question, QStringLiteral("Title"),
                       QStringLiteral("Text"), isError, details);
    });
    QCOMPARE(boxes.size(), 1);
    const TestSupport::SeenBox &box = boxes.first();
    QCOMPARE(box.title, QStringLiteral("Title"));
    QCOMPARE(box.text, QStringLiteral("Text"));
    QCOMPARE(box.details, details);
    // The picture of an error takes the standard icon's place.
    QCOMPARE(box.icon, isError ? QMessageBox::NoIcon : QMessageBox::Question);
    QVERIFY(box.hasPixmap);
    QVERIFY(box.hasWindowIcon);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.defaultButton, QMessageBox::Ok);
    QCOMPARE(box.escapeButton, QMessageBox::Ok);
    QVERIFY(box.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QCOMPARE(box.parent, &parent);
}

void tst_MessageBox::pathsAreNoMarkUp()
{
    QList<Qt::TextFormat> formats;
    const TestSupport::ModalWatcher watcher([&formats](QWidget *modal) {
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            formats.append(box->textFormat());
            box->button(QMessageBox::Ok)->click();
        }
    });
    showErrorBox(nullptr, QStringLiteral("<b>bold</b> is a folder"));
    QCOMPARE(formats, QList<Qt::TextFormat>{Qt::PlainText});
}

TARVO_TEST_MAIN(QApplication, tst_MessageBox)

#include "tst_messagebox.moc"
