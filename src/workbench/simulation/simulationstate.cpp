#include "simulationstate.h"

#include "language/languages.h"
#include "tr.h"

namespace Workbench
{

namespace
{

QString cycles(qulonglong count)
{
    return count == 1 ? Tr::tr("1 clock cycle")
                      : Tr::tr("%1 clock cycles").arg(Languages::locale().toString(count));
}

QString headline(const LiveEvent &end)
{
    const QString passed = cycles(end.clockCycles);
    // Nothing has run.
    if (end.clockCycles == 0 && end.result != LiveEvent::Passed)
        return end.result == LiveEvent::Cancelled ? Tr::tr("Stopped before the program ran")
                                                  : Tr::tr("The program did not run");
    switch (end.result) {
    case LiveEvent::Passed:
        return Tr::tr("Passed after %1").arg(passed);
    case LiveEvent::TimeLimit:
        return Tr::tr("Ended by the time limit after %1").arg(passed);
    case LiveEvent::Cancelled:
        return Tr::tr("Stopped after %1").arg(passed);
    case LiveEvent::Failed:
        break;
    }
    return Tr::tr("Failed after %1").arg(passed);
}

} // namespace

void SimulationState::take(const LiveEvent &event)
{
    switch (event.kind) {
    case LiveEvent::Stage:
        stage = event.text;
        break;
    case LiveEvent::Pins:
        levels = event.levels;
        driven = event.driven;
        break;
    case LiveEvent::Time:
        clockCycles = qMax(clockCycles, event.clockCycles);
        break;
    case LiveEvent::End:
        end = event;
        phase = Ended;
        clockCycles = event.clockCycles;
        break;
    case LiveEvent::Uart:
    case LiveEvent::Text:
    case LiveEvent::Message:
    case LiveEvent::Unreadable:
        break;
    }
}

QString SimulationState::simulatedTime(quint64 clockCycles, int clock)
{
    const double seconds = double(clockCycles) / clock;
    const QLocale locale = Languages::locale();
    if (seconds < 1e-3)
        return Tr::tr("%1 µs").arg(locale.toString(seconds * 1e6, 'f', 2));
    if (seconds < 1)
        return Tr::tr("%1 ms").arg(locale.toString(seconds * 1e3, 'f', 2));
    return Tr::tr("%1 s").arg(locale.toString(seconds, 'f', 2));
}

QString SimulationState::progress(int clock) const
{
    if (phase == Idle)
        return {};
    const QString far =
        Tr::tr("%1, %2").arg(simulatedTime(clockCycles, clock), cycles(clockCycles));
    if (phase == Ended)
        return clockCycles > 0 ? far : QString();
    if (phase == Stopping)
        return Tr::tr("Stopping…");
    if (stage == QLatin1String("program"))
        return Tr::tr("Compiling the program…");
    if (stage == QLatin1String("simulator"))
        return Tr::tr("Building the simulation…");
    if (stage == QLatin1String("run") || clockCycles > 0)
        return Tr::tr("Running: %1").arg(far);
    return Tr::tr("Starting…");
}

QString SimulationState::result() const
{
    if (phase != Ended)
        return {};
    const QString line = headline(end);
    const bool explains = !end.text.isEmpty() && end.result == LiveEvent::Failed;
    return explains ? Tr::tr("%1: %2").arg(line, end.text) : line;
}

} // namespace Workbench
