#pragma once

#include "estimate.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>

namespace Synthesis
{
class ToolRun;
}

namespace Workbench
{

// One synthesis in the background, of a configuration that stands in a folder of its own. It gets
// the processor when nothing else wants it. The program and whatever it has started end with this
// object, and with the workbench even if that is killed; the folder goes with them.
class Measurement : public QObject
{
    Q_OBJECT

public:
    explicit Measurement(const MeasureCommand &command, QObject *parent = nullptr);
    ~Measurement() override;

    // Whether it leaves the processor to everything else; it does.
    void setIdle(bool isIdle) { m_isIdle = isIdle; }
    // Once. finished() follows, from the event loop.
    void start();

    // After finished(); a failure is a sentence.
    const Utils::Result<QVector<MeasuredUse>> &result() const { return m_result; }

Q_SIGNALS:
    // Do not delete the object in a slot; deleteLater() is fine.
    void finished();

private:
    void fail(const QString &reason);
    void onEnded();

    const MeasureCommand m_command;
    bool m_isIdle = true;
    QTemporaryDir m_folder;
    std::unique_ptr<Synthesis::ToolRun> m_run;
    QByteArray m_output;
    Utils::Result<QVector<MeasuredUse>> m_result;
};

} // namespace Workbench
