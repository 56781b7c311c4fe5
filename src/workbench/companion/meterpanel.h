#pragma once

#include "estimate.h"

#include <QHash>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>
#include <QWidget>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QDialog)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QScrollArea)
QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QSpinBox)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace Workbench
{

class Measurement;
class MeterBar;

// What the configuration in the dialog of an IP takes of the device: estimated with each change,
// and measured by a synthesis in the background after a pause. It asks and runs nothing while its
// window is hidden.
class MeterPanel : public QWidget
{
    Q_OBJECT

public:
    // Whether dialog and plug-in tell what the meter needs.
    static bool isOffered(const QDialog *dialog, const QObject *pluginRoot);

    MeterPanel(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent);
    ~MeterPanel() override;

    // Where it is remembered whether and when to measure; must outlive the panel.
    void setSettings(QSettings *settings);
    // How long it waits after a change before it asks, in milliseconds.
    void setDelay(int delay) { m_delay.setInterval(delay); }
    // How long it waits before it measures, in milliseconds, whatever the settings say.
    void setPause(int pause);
    // As in Measurement.
    void setIdle(bool isIdle) { m_isIdle = isIdle; }

    QList<MeterBar *> bars() const { return m_bars; }
    // Whether a synthesis runs for it now.
    bool isMeasuring() const { return m_run != nullptr; }

    QSize sizeHint() const override;

Q_SIGNALS:
    // What is shown was brought up to date with the dialog.
    void refreshed();
    // A synthesis has come to an end by itself.
    void measured();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onChanged();
    void onPointedAt(const QString &block);

private:
    using Uses = QVector<MeasuredUse>;

    QWidget *makeMeasuring();
    void refresh();
    void ask(const QVariantMap &configuration);
    void show(const QString &error);
    void showBars();
    // Makes the bars compact where all of it would not be seen otherwise.
    void fitBars();
    // Room for the sentences that come and go, so that nothing moves below them.
    int usualStateHeight() const;
    void showShares();
    void showState();
    void point();
    void schedule();
    void measure();
    void endMeasuring();
    void onMeasured();
    void onChoice();
    bool mayMeasure() const;

    QPointer<QDialog> m_dialog;
    QPointer<QObject> m_root;
    QWidget *m_window; // the one that is shown or not
    QSettings *m_settings = nullptr;
    QTimer m_delay;
    QTimer m_pause;
    QTimer m_seconds;
    QTimer *m_pointing;
    int m_fixedPause = -1;
    bool m_isIdle = true;
    bool m_isStale = false; // what is shown

    QVariantMap m_configuration;
    QByteArray m_key; // the configuration as a file; empty: none is known
    Estimate m_estimate;
    QString m_block; // that is pointed at
    QString m_nextBlock;

    std::unique_ptr<Measurement> m_run;
    QByteArray m_runKey;
    int m_runSeconds = 0;
    QHash<QByteArray, Uses> m_measured;
    QHash<QByteArray, QString> m_failures;

    QScrollArea *m_area;
    QWidget *m_inner;
    QLabel *m_state;
    QLabel *m_error;
    QLabel *m_blackBoxes;
    QVBoxLayout *m_barLayout;
    QList<MeterBar *> m_bars;
    QWidget *m_measuring;
    QCheckBox *m_isWanted;
    QSpinBox *m_length;
};

} // namespace Workbench
