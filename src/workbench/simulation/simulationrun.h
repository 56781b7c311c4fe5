#pragma once

#include "livereader.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace Workbench
{

// A program that simulates, as a process that ends with this object, and with the workbench even if
// that is killed. What it has started is its own to end.
class SimulationRun : public QObject
{
    Q_OBJECT

public:
    // `program`: full path.
    SimulationRun(const QString &program, const QStringList &arguments, const QString &folder);
    ~SimulationRun() override;

    // Once.
    void start();
    // Asks it to end, and ends it if it does not.
    void stop();
    // How long a program may take to stop, and to follow SIGTERM, in milliseconds.
    void setPatience(int toStop, int toTerminate);

    // Lines of LiveReader. False if the program does not read them.
    bool send(const QByteArray &line);
    qint64 processId() const;

Q_SIGNALS:
    // What was told since the last time; the last one of all is the event End, whatever the program
    // does.
    void received(const QVector<LiveEvent> &events);

private:
    class Process;

    void read();
    void pressOn();
    void onFinished();
    void finish(const QString &reason);
    void forward(QVector<LiveEvent> events);
    QString lastWords() const;

    const QString m_program;
    const QStringList m_arguments;
    std::unique_ptr<Process> m_process;
    LiveReader m_reader;
    QByteArray m_errors; // the end of what stands on standard error
    LiveEvent m_end;
    bool m_hasEnd = false;
    bool m_isOver = false;
    bool m_isStopped = false;
    bool m_isTerminated = false;
    QTimer m_patience;
    int m_toTerminate = 3000;
};

} // namespace Workbench
