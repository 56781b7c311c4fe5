#pragma once

#include "simulationchoices.h"
#include "simulationoffer.h"

#include <QHash>
#include <QObject>

namespace Workbench
{

class EditorTabs;
class IpCatalogue;
class SimulationPage;

// The pages on which IPs are simulated, one for each configuration that was asked for. A run ends
// with its page's tab, a page with its project.
class SimulationPages : public QObject
{
    Q_OBJECT

public:
    // All of it must outlive this; the tabs show the pages.
    SimulationPages(const IpCatalogue &catalogue, QSettings &settings, EditorTabs &tabs,
                    QWidget *window);

    // Brings the page of a configuration to the front.
    SimulationPage *show(const QString &ipcFile);
    // Null if it was not asked for.
    SimulationPage *pageOf(const QString &ipcFile) const;
    // Ends all runs and forgets all pages.
    void clear();

    // The examples of an IP's plug-in; none if what it answers is not sound.
    QVector<SimulationExample> examplesOf(int ip) const;

Q_SIGNALS:
    void openRequested(const QString &path, int line);

private:
    void endHidden();

    const IpCatalogue &m_catalogue;
    QSettings &m_settings;
    EditorTabs &m_tabs;
    QWidget *m_window;
    QHash<QString, SimulationPage *> m_pages; // by full path
};

} // namespace Workbench
