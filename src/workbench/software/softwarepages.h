#pragma once

#include <QHash>
#include <QObject>

namespace Workbench
{

class EditorTabs;
class IpCatalogue;
class KeptConfigurations;
class SoftwarePage;

// The pages on the software of IPs, one for each configuration that was asked for. They close with
// their project.
class SoftwarePages : public QObject
{
    Q_OBJECT

public:
    // All of it must outlive this; the tabs show the pages.
    SoftwarePages(const IpCatalogue &catalogue, KeptConfigurations &kept, EditorTabs &tabs,
                  QWidget *window);

    // Brings the page of a configuration to the front.
    SoftwarePage *show(const QString &ipcFile);
    // Null if it was not asked for.
    SoftwarePage *pageOf(const QString &ipcFile) const;
    // Forgets all pages.
    void clear();

private:
    const IpCatalogue &m_catalogue;
    KeptConfigurations &m_kept;
    EditorTabs &m_tabs;
    QWidget *m_window;
    QHash<QString, SoftwarePage *> m_pages; // by full path
};

} // namespace Workbench
