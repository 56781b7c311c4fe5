#pragma once

#include "simulationchoices.h"
#include "simulationoffer.h"
#include "simulationstate.h"

#include <QWidget>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)
QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)

namespace Workbench
{

class InfoBar;
class MessageModel;
class PinPanel;
class SimulationRun;
class TerminalView;

// Runs programs on the IP that a configuration describes, before there is hardware: what runs, its
// terminals, the pins, how far it is and what it says.
class SimulationPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int messageLimit = 1000;

    // Asks the plug-in; a failure is a sentence.
    using Source = std::function<Utils::Result<SimulationOffer>()>;

    SimulationPage(const Source &source, const QString &ipcFile, const SimulationChoices &choices,
                   QWidget *parent = nullptr);
    ~SimulationPage() override;

    const QString &ipcFile() const { return m_ipcFile; }
    const SimulationState &state() const { return m_state; }
    MessageModel *messages() const { return m_messages; }
    InfoBar *infoBar() const { return m_infoBar; }
    PinPanel *pins() const { return m_pins; }
    // Null if there is no such UART.
    TerminalView *terminal(int uart) const;
    QPushButton *runButton() const { return m_run; }
    // Null while nothing runs.
    const SimulationRun *process() const { return m_process.get(); }

    // As the user does; a file beside the configuration or a full path.
    void choose(const QString &input, const QStringList &files);
    // Full paths.
    QStringList files() const;
    // Of the signals of the last run; empty if it wrote none.
    QString waves() const { return m_waves; }

    // False if nothing can be run, which the page tells.
    bool run();
    void stop();
    // At once.
    void end();

Q_SIGNALS:
    // These files are about to be read.
    void aboutToRun(const QStringList &files);
    void openRequested(const QString &path, int line);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void arrangeChoice();
    void buildHead(QBoxLayout *layout);
    void buildChoice(QBoxLayout *layout);
    QWidget *buildLeft();
    QWidget *buildRight();
    void buildFoot(QBoxLayout *layout);
    void askAnew();
    void showOffer();
    void showChoice(const SimulationChoice &choice);
    SimulationChoice choice() const;
    QString fullPath(const QString &text) const;
    QString shownPath(const QString &path) const;
    void browse();
    void refresh();
    void showTerminals();
    void showOutput(int index);
    void take(const QVector<LiveEvent> &events);
    void takeOne(const LiveEvent &event);
    void addMessage(int severity, const QString &text, const QString &file, int line);
    void takeEnd();
    void print(int index, const QByteArray &bytes);
    void sendBytes(int uart, const QByteArray &bytes);
    void sendLine();
    void sendPins();
    void openWaves();

    const Source m_source;
    const QString m_ipcFile;
    SimulationChoices m_choices;
    SimulationOffer m_offer;
    bool m_isAsked = false;
    bool m_isTold = false; // that something unreadable came
    SimulationState m_state;
    std::unique_ptr<SimulationRun> m_process;
    QString m_waves;
    MessageModel *m_messages;
    InfoBar *m_infoBar;
    QLabel *m_heading;
    QLabel *m_progress;
    QPushButton *m_run;
    QPushButton *m_stop;
    QComboBox *m_input;
    QBoxLayout *m_choiceRows = nullptr;
    QLineEdit *m_files;
    QPushButton *m_browse;
    QComboBox *m_engine;
    QCheckBox *m_hasWaves;
    QComboBox *m_output;
    QStackedWidget *m_terminals; // the UARTs' and, last, what the program says otherwise
    QLineEdit *m_line;
    QPushButton *m_send;
    PinPanel *m_pins;
    QLabel *m_result;
    QPushButton *m_openWaves;
};

} // namespace Workbench
