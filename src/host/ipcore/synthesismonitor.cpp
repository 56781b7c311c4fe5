#include "synthesismonitor.h"

#include "synthesishelper.h"

#include <QPointer>

namespace IPCore
{

SynthesisMonitor &SynthesisMonitor::instance()
{
    static SynthesisMonitor monitor;
    return monitor;
}

SynthesisMonitor::SynthesisMonitor()
{
    qRegisterMetaType<Synthesis::RunReport>();
    qRegisterMetaType<IPCore::SynthesisHelper *>();
}

SynthesisMonitor::~SynthesisMonitor() = default;

QList<SynthesisHelper *> SynthesisMonitor::activeRuns() const
{
    return m_active;
}

void SynthesisMonitor::cancelAll()
{
    // A run that ends may take other helpers along.
    QList<QPointer<SynthesisHelper>> runs;
    for (SynthesisHelper *helper : qAsConst(m_active))
        runs << helper;
    for (const QPointer<SynthesisHelper> &helper : qAsConst(runs)) {
        if (helper)
            helper->cancel();
    }
}

bool SynthesisMonitor::isCancellation(const QString &message) const
{
    return !m_cancellation.isEmpty() && message == m_cancellation;
}

void SynthesisMonitor::add(SynthesisHelper *helper)
{
    m_cancellation.clear();
    m_active << helper;
    Q_EMIT runStarted(helper);
}

void SynthesisMonitor::remove(SynthesisHelper *helper, const Synthesis::RunReport &report)
{
    m_cancellation = report.cancelled ? report.summary : QString();
    if (m_active.removeOne(helper))
        Q_EMIT runFinished(report);
}

} // namespace IPCore
