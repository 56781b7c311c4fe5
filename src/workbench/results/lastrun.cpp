#include "lastrun.h"

#include "messages/messagemodel.h"
#include "project/project.h"
#include "resultpage.h"

#include <QFileInfo>

#include <optional>
#include <utility>

namespace Workbench
{

namespace
{

// In bytes: a few hundredths of a second.
constexpr qint64 readAtOnce = 8 << 20;

} // namespace

LastRun::LastRun(MessageModel &messages, QWidget *window)
    : QObject(window)
    , m_messages(messages)
    , m_window(window)
    , m_store(RunStore::defaultFolder())
{
}

void LastRun::setStore(const RunStore &store)
{
    m_store = store;
    m_isKept = m_project && m_store.has(m_project->file());
    Q_EMIT changed();
}

void LastRun::setProject(Project *project)
{
    if (m_page)
        m_page->deleteLater(); // its button may be what closes the project
    m_page = nullptr;
    m_comparison.drop();
    m_reading.drop();
    m_readingEarlier.drop();
    m_hasEarlier = false;
    m_report.reset();
    m_earlier = {};
    m_project = project;
    m_isKept = project && m_store.has(project->file());
}

QStringList LastRun::sources() const
{
    return m_project ? m_project->files() : QStringList();
}

ResultPage *LastRun::page()
{
    if (!m_page) {
        m_page = new ResultPage(m_window);
        m_page->hide();
        connect(m_page, &ResultPage::openRequested, this, &LastRun::openRequested);
        connect(m_page, &ResultPage::doorOpened, this,
                [this](const MapDoor &door) { Q_EMIT doorOpened(m_page->configuration(), door); });
        connect(m_page, &ResultPage::removalRequested, this, [this](const QStringList &files) {
            if (m_project)
                m_project->removeFiles(files);
        });
    }
    return m_page;
}

bool LastRun::prepare(QString *error)
{
    if (m_report)
        return true;
    const QString project = m_project ? m_project->file() : QString();
    if (m_store.isLarge(project)) {
        if (!m_page)
            page()->showRemark(tr("The results of the last run are being read…"));
        if (!m_reading.isBusy())
            m_reading.start([store = m_store, project] { return read(store, project); },
                            [this](const Stored &stored) { showStored(stored); });
        return true;
    }
    const Stored stored = read(m_store, project);
    if (stored.isThere)
        showStored(stored);
    else if (error)
        *error = stored.error;
    return stored.isThere;
}

bool LastRun::complete(QString *error)
{
    if (!prepare(error))
        return false;
    if (!m_reading.isBusy())
        return true;
    m_reading.finish();
    if (!m_mistake.isEmpty())
        *error = m_mistake;
    return m_mistake.isEmpty();
}

LastRun::Stored LastRun::read(const RunStore &store, const QString &project)
{
    Stored stored;
    stored.isThere = store.load(project, &stored.run, &stored.error);
    return stored;
}

void LastRun::showStored(const Stored &stored)
{
    m_mistake = stored.error;
    if (!stored.isThere) {
        page()->showRemark(stored.error);
        return;
    }
    const KeptRun &run = stored.run;
    m_messages.setReport(run.report);
    page()->setReport(run.report, run.before);
    if (run.size() <= readAtOnce) {
        showAsKept(run, run.changedFiles());
        return;
    }
    page()->setDelivered(run.delivered, sources());
    page()->setMaps({});
    m_comparison.start([run] { return run.changedFiles(); },
                       [this, run](const QStringList &changed) { showAsKept(run, changed); });
}

void LastRun::showAsKept(const KeptRun &run, const QStringList &changed)
{
    showDelivered(run.delivered, changed);
    page()->showAge(run.when, changed);
}

void LastRun::showDelivered(const QStringList &files, const QStringList &changed)
{
    page()->setDelivered(files, sources());
    const QString ipcFile = page()->configuration();
    if (ipcFile.isEmpty() || !m_mapSource) {
        page()->setMaps({});
        return;
    }
    const Utils::Result<QVector<MapPicture>> maps = m_mapSource(ipcFile);
    if (!maps)
        m_messages.append(MessageModel::Warning, maps.reason(), ipcFile);
    page()->setMaps(maps ? *maps : QVector<MapPicture>(),
                    changed.contains(ipcFile)
                        ? tr("The configuration has changed since the run; this is how it is now.")
                        : QString());
}

void LastRun::expect()
{
    m_isNew = false;
    m_hasEarlier = false;
    if (!m_project || m_keeping.isBusy() || !m_store.isLarge(m_project->file()))
        return;
    // Until the run ends there is time.
    const auto read = [store = m_store, project = m_project->file()] {
        const Stored stored = LastRun::read(store, project);
        return stored.isThere ? std::make_optional(stored.run.figures) : std::nullopt;
    };
    m_readingEarlier.start(read, [this](const std::optional<Figures> &figures) {
        if (figures)
            m_earlier = *figures;
        m_hasEarlier = true;
    });
}

void LastRun::setReport(const Synthesis::RunReport &report)
{
    m_readingEarlier.finish();
    if (!std::exchange(m_hasEarlier, false) && m_project && m_store.has(m_project->file())) {
        const Stored earlier = read(m_store, m_project->file());
        if (earlier.isThere)
            m_earlier = earlier.run.figures;
    }
    m_reading.drop();
    m_comparison.drop();
    page()->setReport(report, m_earlier.value(RunStore::ipOf(report)));
    page()->setMaps({});
    m_report = std::make_unique<Synthesis::RunReport>(report);
    m_isNew = true;
    Q_EMIT changed();
}

bool LastRun::setDelivered(const QStringList &files)
{
    if (!m_isNew)
        return false;
    m_isNew = false;
    showDelivered(files);
    keep(files);
    return true;
}

void LastRun::keep(const QStringList &delivered)
{
    if (!m_report || !m_project)
        return;
    const QString ip = RunStore::ipOf(*m_report);
    KeptRun told;
    told.figures = m_earlier;
    told.before = told.figures.value(ip);
    for (const Synthesis::ResourceUse &use : m_report->resources)
        told.figures[ip].insert(use.resource, use.used);
    const auto keep = [store = m_store, project = m_project->file(), report = *m_report, delivered,
                       told] {
        KeptRun run = KeptRun::of(report, delivered);
        run.figures = told.figures;
        run.before = told.before;
        QString error;
        return store.keep(project, run, &error) ? QString() : error;
    };
    const auto tell = [this](const QString &error) {
        if (!error.isEmpty())
            m_messages.append(MessageModel::Warning,
                              tr("The results cannot be shown after a restart. %1").arg(error));
    };
    qint64 size = 0;
    for (const QStringList &files : {delivered, m_report->files}) {
        for (const QString &file : files)
            size += QFileInfo(file).size();
    }
    if (size <= readAtOnce)
        tell(keep());
    else
        m_keeping.start(keep, tell);
}

} // namespace Workbench
