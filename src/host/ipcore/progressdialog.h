#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)
QT_FORWARD_DECLARE_CLASS(QProgressBar)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace IPCore
{

// Shows a running tool. Never ends the run itself: Cancel, the window's close button and Escape,
// pressed twice, only ask for it. No other key does: one may still be on its way to the window that
// was there before.
class ProgressDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ProgressDialog(QWidget *parent = nullptr);

    void setStage(const QString &stage);
    // Until the first call the bar only shows that something is going on.
    void setProgress(int done, int total);
    void appendLog(const QString &text);
    // Empties the window and counts the elapsed time from zero.
    void startClock();
    void stopClock();

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

Q_SIGNALS:
    void cancelRequested();

private:
    void showElapsed();
    void disarm();

    QLabel *m_stage;
    QLabel *m_elapsed;
    QProgressBar *m_bar;
    QPlainTextEdit *m_log;
    QLabel *m_hint;
    QPushButton *m_cancel;
    QTimer m_armed; // runs after a first Escape, while a second one counts
    QTimer m_tick;
    QElapsedTimer m_clock;
};

} // namespace IPCore
