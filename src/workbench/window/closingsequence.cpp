#include "closingsequence.h"

#include "catalogue/ipsession.h"

#include <ipcore/synthesismonitor.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QThread>

#include <algorithm>
#include <utility>

namespace Workbench
{

ClosingSequence::ClosingSequence(const IpSession &session, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_level(QThread::currentThread()->loopLevel() + 1)
{
}

bool ClosingSequence::begin()
{
    return !std::exchange(m_begun, true);
}

bool ClosingSequence::isHeldUp() const
{
    return m_session.isActive() || !IPCore::SynthesisMonitor::instance().activeRuns().isEmpty();
}

void ClosingSequence::run()
{
    // Whatever happens, a run that ends, a dialog that closes, a call that returns: the loop that
    // is in charge then tells of its next turn.
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &ClosingSequence::look);
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &ClosingSequence::look);
    m_running = true;
    IPCore::SynthesisMonitor::instance().cancelAll();
    take();
}

QDialog *ClosingSequence::innermost() const
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

ClosingSequence::Step ClosingSequence::due() const
{
    if (!m_running || !IPCore::SynthesisMonitor::instance().activeRuns().isEmpty())
        return Step::None;
    if (QDialog *dialog = innermost())
        return m_asked.contains(dialog) ? Step::None : Step::CloseDialog;
    if (m_session.isActive() || QThread::currentThread()->loopLevel() > m_level)
        return Step::None;
    return Step::Finish;
}

// Not within the dispatcher's signal: a dialog may ask back in a loop of its own.
void ClosingSequence::look()
{
    if (due() != Step::None)
        QMetaObject::invokeMethod(this, &ClosingSequence::take, Qt::QueuedConnection);
}

void ClosingSequence::take()
{
    // One that comes up again is asked again.
    m_asked.erase(std::remove_if(m_asked.begin(), m_asked.end(),
                                 [](const QPointer<QDialog> &dialog) {
                                     return !dialog || dialog->isHidden();
                                 }),
                  m_asked.end());
    switch (due()) {
    case Step::None:
        break;
    case Step::CloseDialog:
        m_asked.append(innermost());
        innermost()->reject();
        break;
    case Step::Finish:
        m_running = false;
        QAbstractEventDispatcher::instance()->disconnect(this);
        Q_EMIT finished();
        break;
    }
}

} // namespace Workbench
