#include "simulationpages.h"

#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "simulationpage.h"
#include "tr.h"
#include "widgets/symbolicon.h"

#include <QDir>
#include <QFileInfo>

namespace Workbench
{

namespace
{

// The plug-in of a configuration, which may name another IP the next time that it is asked.
SimulationPage::Source sourceOf(const IpCatalogue &catalogue, const QString &ipcFile)
{
    return [&catalogue, ipcFile]() -> Utils::Result<SimulationOffer> {
        QString error;
        QVariantMap answer;
        const int ip = catalogue.indexOf(IpSession::typeOf(ipcFile, &error));
        if (ip < 0)
            return Utils::Failure{error.isEmpty() ? Tr::tr("No plug-in offers the IP of \"%1\".")
                                                        .arg(QDir::toNativeSeparators(ipcFile))
                                                  : error};
        if (!catalogue.simulationCommand(ip, ipcFile, &answer, &error))
            return Utils::Failure{error};
        Utils::Result<SimulationOffer> offer = SimulationAnswer::offerOf(answer);
        if (!offer)
            return Utils::Failure{Tr::tr("What the plug-in of %1 answers cannot be used: %2.")
                                      .arg(catalogue.entries().at(ip).name, offer.reason())};
        return offer;
    };
}

} // namespace

SimulationPages::SimulationPages(const IpCatalogue &catalogue, QSettings &settings,
                                 EditorTabs &tabs, QWidget *window)
    : QObject(window)
    , m_catalogue(catalogue)
    , m_settings(settings)
    , m_tabs(tabs)
    , m_window(window)
{
    connect(&tabs, &EditorTabs::countChanged, this, &SimulationPages::endHidden);
}

SimulationPage *SimulationPages::show(const QString &ipcFile)
{
    const QString path = QFileInfo(ipcFile).absoluteFilePath();
    SimulationPage *&page = m_pages[path];
    if (!page) {
        page = new SimulationPage(sourceOf(m_catalogue, path), path, SimulationChoices(m_settings),
                                  m_window);
        page->hide();
        connect(page, &SimulationPage::openRequested, this, &SimulationPages::openRequested);
        // What is shown is what runs.
        connect(page, &SimulationPage::aboutToRun, this, [this](const QStringList &files) {
            for (const QString &file : files) {
                EditorPage *edited = m_tabs.pageOf(file);
                if (edited && edited->isModified())
                    m_tabs.savePage(edited);
            }
        });
    }
    m_tabs.showPage(page, symbolIcon(QStringLiteral("run")),
                    tr("Simulate %1")
                        .arg(QFileInfo(path).completeBaseName())
                        .replace(u'&', QLatin1String("&&")),
                    path);
    m_tabs.setTabToolTip(m_tabs.indexOf(page), QDir::toNativeSeparators(path));
    page->setFocus();
    return page;
}

SimulationPage *SimulationPages::pageOf(const QString &ipcFile) const
{
    return m_pages.value(QFileInfo(ipcFile).absoluteFilePath());
}

// Nobody could stop what no tab shows.
void SimulationPages::endHidden()
{
    for (SimulationPage *page : qAsConst(m_pages)) {
        if (m_tabs.indexOf(page) < 0)
            page->end();
    }
}

void SimulationPages::clear()
{
    for (SimulationPage *page : qAsConst(m_pages)) {
        page->end();
        page->deleteLater(); // a button of one may be what closes the project
    }
    m_pages.clear();
}

QVector<SimulationExample> SimulationPages::examplesOf(int ip) const
{
    const auto examples = SimulationAnswer::examplesOf(m_catalogue.simulationExamples(ip));
    return examples ? *examples : QVector<SimulationExample>();
}

} // namespace Workbench
