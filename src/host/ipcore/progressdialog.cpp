#include "progressdialog.h"

#include "focusring.h"
#include "screenfit.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace IPCore
{

ProgressDialog::ProgressDialog(QWidget *parent)
    : QDialog(parent)
    , m_stage(new QLabel)
    , m_elapsed(new QLabel)
    , m_bar(new QProgressBar)
    , m_log(new QPlainTextEdit)
    , m_hint(new QLabel)
{
    FocusRing::install();
    setModal(true);

    m_stage->setObjectName(QStringLiteral("stageLabel"));
    m_elapsed->setObjectName(QStringLiteral("elapsedLabel"));
    m_log->setObjectName(QStringLiteral("logEdit"));

    m_stage->setTextFormat(Qt::PlainText);
    m_stage->setWordWrap(true);
    m_stage->setMinimumWidth(1); // a long word must not widen the window
    m_elapsed->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_elapsed->setToolTip(tr("Elapsed time"));
    m_bar->setRange(0, 0); // moves all the time until the first stage is known
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_log->setReadOnly(true);
    m_log->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_log->setMaximumBlockCount(20000);
    m_log->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_log->setAccessibleName(tr("Output of the synthesis tool"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    m_cancel->setText(tr("Cancel")); // whatever language Qt speaks
    m_cancel->setAutoDefault(false); // Enter is for the window before this one
    connect(buttons, &QDialogButtonBox::rejected, this, &ProgressDialog::reject);
    m_hint->setObjectName(QStringLiteral("hintLabel"));
    m_hint->setWordWrap(true);
    constexpr int armedFor = 4000; // ms
    m_armed.setSingleShot(true);
    m_armed.setInterval(armedFor);
    connect(&m_armed, &QTimer::timeout, this, &ProgressDialog::disarm);

    auto *heading = new QHBoxLayout;
    heading->addWidget(m_stage, 1);
    heading->addWidget(m_elapsed);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(heading);
    layout->addWidget(m_bar);
    layout->addWidget(m_log, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_hint, 1);
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    m_log->setFocus();

    const QFontMetrics metrics(m_log->font());
    const QSize wanted(metrics.averageCharWidth() * 92, metrics.lineSpacing() * 26);
    resize(wanted.boundedTo(roomOnScreen(this)));

    m_tick.setInterval(200);
    connect(&m_tick, &QTimer::timeout, this, &ProgressDialog::showElapsed);
}

void ProgressDialog::setStage(const QString &stage)
{
    m_stage->setText(stage);
}

void ProgressDialog::setProgress(int done, int total)
{
    m_bar->setRange(0, total);
    m_bar->setValue(done);
}

void ProgressDialog::appendLog(const QString &text)
{
    m_log->appendPlainText(text);
}

void ProgressDialog::startClock()
{
    m_log->clear();
    m_stage->setText(tr("Starting"));
    m_cancel->setEnabled(true);
    disarm();
    m_bar->setRange(0, 0);
    m_clock.start();
    m_tick.start();
    showElapsed();
}

void ProgressDialog::stopClock()
{
    m_tick.stop();
    disarm();
    m_cancel->setEnabled(false);
    m_bar->setRange(0, 1);
    m_bar->setValue(1);
}

void ProgressDialog::reject()
{
    if (!m_tick.isActive()) {
        QDialog::reject();
        return;
    }
    if (!m_cancel->isEnabledTo(this))
        return; // asked already
    disarm();
    m_stage->setText(tr("Cancelling"));
    m_cancel->setEnabled(false);
    Q_EMIT cancelRequested();
}

void ProgressDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !m_tick.isActive()) {
        disarm();
        QDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || !m_cancel->isEnabledTo(this))
        return;
    if (m_armed.isActive()) {
        reject();
        return;
    }
    m_armed.start();
    m_hint->setText(tr("Press Escape again to cancel the run."));
}

void ProgressDialog::disarm()
{
    m_armed.stop();
    m_hint->clear();
}

void ProgressDialog::showElapsed()
{
    const qint64 seconds = m_clock.elapsed() / 1000;
    m_elapsed->setText(
        QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0')));
}

} // namespace IPCore
