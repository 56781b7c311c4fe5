#include "hands.h"

#include <workbench/catalogue/ipsession.h>
#include <workbench/window/closingsequence.h>

#include <QDialog>
#include <QMessageBox>

using namespace Workbench;

namespace
{

// Asks, when it is to be closed, whether that is meant.
class AskingDialog : public QDialog
{
public:
    explicit AskingDialog(bool stays)
        : m_stays(stays)
    {
    }

    int asked() const { return m_asked; }

    void reject() override
    {
        ++m_asked;
        QMessageBox box(QMessageBox::Question, QString(), QStringLiteral("Really?"),
                        QMessageBox::Yes | QMessageBox::No);
        box.exec();
        if (!m_stays)
            QDialog::reject();
    }

private:
    bool m_stays;
    int m_asked = 0;
};

} // namespace

class TestClosingSequence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sequence = std::make_unique<ClosingSequence>(m_session);
        m_finished = std::make_unique<QSignalSpy>(m_sequence.get(), &ClosingSequence::finished);
    }
    void cleanup()
    {
        m_finished.reset();
        m_sequence.reset();
    }

    void beginsOnce()
    {
        QVERIFY(!m_sequence->hasBegun());
        QVERIFY(m_sequence->begin());
        QVERIFY(m_sequence->hasBegun());
        QVERIFY(!m_sequence->begin());
    }

    void isOverAtOnceWhereNothingIsOpen()
    {
        QVERIFY(!m_sequence->isHeldUp());
        m_sequence->run();
        QCOMPARE(m_finished->size(), 1);
    }

    void closesDialogsFromTheInnermostOutwards()
    {
        QStringList closed;
        QDialog outer;
        QDialog inner(&outer);
        connect(&outer, &QDialog::finished, this, [&] { closed << QStringLiteral("outer"); });
        connect(&inner, &QDialog::finished, this, [&] { closed << QStringLiteral("inner"); });
        connect(m_sequence.get(), &ClosingSequence::finished, this,
                [&] { closed << QStringLiteral("finished"); });
        QTimer::singleShot(0, this, [&] {
            outer.exec();
            closed << QStringLiteral("outer call");
        });
        QTimer::singleShot(0, this, [&] {
            QTimer::singleShot(0, m_sequence.get(), &ClosingSequence::run);
            inner.exec();
            closed << QStringLiteral("inner call");
        });
        QVERIFY(m_finished->wait());
        QCOMPARE(closed, QStringList({QStringLiteral("inner"), QStringLiteral("inner call"),
                                      QStringLiteral("outer"), QStringLiteral("outer call"),
                                      QStringLiteral("finished")}));
    }

    void isOverOnlyWhenTheCallsHaveReturned()
    {
        bool returned = false;
        connect(m_sequence.get(), &ClosingSequence::finished, this, [&] { QVERIFY(returned); });
        QTimer::singleShot(0, this, [&] {
            QDialog dialog;
            QTimer::singleShot(0, m_sequence.get(), &ClosingSequence::run);
            dialog.exec();
            returned = true;
        });
        QVERIFY(m_finished->wait());
    }

    void closesWhatADialogAsksWhenItIsClosed()
    {
        AskingDialog dialog(false);
        QTimer::singleShot(0, m_sequence.get(), &ClosingSequence::run);
        dialog.exec();
        QCOMPARE(dialog.asked(), 1);
        QTRY_COMPARE(m_finished->size(), 1);
    }

    void aDialogThatStaysIsAskedOnce()
    {
        AskingDialog dialog(true);
        QTimer::singleShot(0, m_sequence.get(), &ClosingSequence::run);
        int turns = 0;
        QTimer others; // keep the loop going
        connect(&others, &QTimer::timeout, this, [&] {
            if (dialog.asked() > 0 && QApplication::activeModalWidget() == &dialog && ++turns == 20)
                dialog.done(0);
        });
        others.start(0);
        dialog.exec();
        QCOMPARE(dialog.asked(), 1);
        others.stop();
        QTRY_COMPARE(m_finished->size(), 1);
    }

private:
    IpCatalogue m_catalogue;
    IpSession m_session{m_catalogue};
    std::unique_ptr<ClosingSequence> m_sequence;
    std::unique_ptr<QSignalSpy> m_finished;
};

QTEST_MAIN(TestClosingSequence)
#include "tst_closingsequence.moc"
