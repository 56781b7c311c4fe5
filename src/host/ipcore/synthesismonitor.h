#pragma once

#include "ipcore_global.h"

#include <synthesis/runreport.h>

#include <QList>
#include <QObject>

namespace IPCore
{

class SynthesisHelper;

// Tells an application of all synthesis runs in its process, whoever started them: a plug-in's
// dialog keeps its helper to itself. Lives in the GUI thread, as the helpers do.
class TARVO_IPCORE_EXPORT SynthesisMonitor : public QObject
{
    Q_OBJECT

public:
    // The only one; it lives as long as the process.
    static SynthesisMonitor &instance();
    ~SynthesisMonitor() override;

    // In the order in which they were started; owned by whoever made them.
    QList<SynthesisHelper *> activeRuns() const;
    // Asks all active runs to end; runFinished() follows for each.
    void cancelAll();
    // Whether `message` is the summary of the last run, and that was cancelled.
    bool isCancellation(const QString &message) const;

Q_SIGNALS:
    // The helper's own signals tell how the run goes on.
    void runStarted(IPCore::SynthesisHelper *helper);
    // Once for each runStarted(), before the helper's finished(). A run whose helper is destroyed
    // counts as cancelled.
    void runFinished(const Synthesis::RunReport &report);
    // What a plug-in has to say of a run beside its report, a sentence each. Comes after
    // runFinished(), or without a run if none could begin.
    void noticed(const QStringList &notices);

private:
    friend class SynthesisHelper;
    SynthesisMonitor();

    void add(SynthesisHelper *helper);
    void remove(SynthesisHelper *helper, const Synthesis::RunReport &report);

    QList<SynthesisHelper *> m_active;
    QString m_cancellation; // summary of the last run, if it was cancelled
};

} // namespace IPCore
