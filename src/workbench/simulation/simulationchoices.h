#pragma once

#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

// What was chosen for the simulation of an IP.
struct SimulationChoice {
    QString input;     // name of a kind
    QStringList files; // full paths
    QString engine;    // name
    bool hasWaves = false;
};

// The choices of the IPs that were simulated last, in the settings.
class SimulationChoices
{
public:
    static constexpr int limit = 50; // IPs

    // The settings must outlive this.
    explicit SimulationChoices(QSettings &settings)
        : m_settings(settings)
    {
    }

    // Empty if there is none, or none that can be read.
    SimulationChoice of(const QString &ipcFile) const;
    void keep(const QString &ipcFile, const SimulationChoice &choice);

private:
    QSettings &m_settings;
};

} // namespace Workbench
