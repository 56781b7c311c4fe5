#include "startpage.h"

#include "catalogue/ipcatalogue.h"
#include "project/ipchead.h"
#include "project/project.h"
#include "widgets/linkbutton.h"
#include "widgets/symbolicon.h"
#include "widgets/wrappedlabel.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

// More are in the dialog.
constexpr int keptShown = 3;
// More are in the catalogue.
constexpr int subsystemsShown = 4;
// More are in the project's tree.
constexpr int ipsShown = 12;

QLabel *makeLabel(const QString &text, qreal scale, bool bold)
{
    auto *label = new WrappedLabel(text);
    label->setProperty("scale", scale);
    label->setProperty("bold", bold);
    return label;
}

LinkButton *makeLink(const QString &text, const QString &description, const QString &icon)
{
    return new LinkButton(text, description, symbolIcon(icon));
}

// An empty folder has all.
bool isIn(const QString &folder, const KeptConfigurations::Item &item)
{
    return item.origin.startsWith(folder + u'/');
}

LinkButton *makeKeptLink(const QString &folder, const KeptConfigurations::Item &item,
                         const QString &description)
{
    const QString name = folder.isEmpty() ? item.origin : item.origin.mid(folder.size() + 1);
    LinkButton *link = makeLink(StartPage::tr("%1…").arg(QDir::toNativeSeparators(name)),
                                description, QStringLiteral("ip-file"));
    link->setObjectName(QStringLiteral("bringBackLink"));
    link->setProperty("keptId", item.id);
    return link;
}

} // namespace

StartPage::StartPage(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &StartPage::fill);
}

StartPage::Hold::Hold(StartPage *page)
    : m_page(page)
{
    ++m_page->m_holds;
}

StartPage::Hold::~Hold()
{
    --m_page->m_holds;
    m_page->fill();
}

void StartPage::outdate(bool soon)
{
    m_isOutdated = true;
    if (soon)
        m_soon.start(0);
}

void StartPage::fill()
{
    if (!m_isOutdated || m_holds > 0 || !isVisible())
        return;
    m_isOutdated = false;
    m_soon.stop();
    if (m_filler)
        m_filler();
}

void StartPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    fill();
}

void StartPage::showState(const Project *project, const QStringList &ips,
                          const IpCatalogue &catalogue, const QStringList &recent,
                          const QList<KeptConfigurations::Item> &kept,
                          const QVector<Example> &examples)
{
    QStringList state = stateOf(project, ips, catalogue, kept);
    state += recent;
    for (const Example &example : examples)
        state << example.title << example.purpose;
    if (widget() && state == m_state)
        return;
    m_state = state;
    auto *content = new QWidget;
    auto *columns = new QHBoxLayout(content);
    auto *page = new QVBoxLayout;
    columns->addLayout(page, 1);
    if (project)
        showProject(page, *project, ips, catalogue, kept);
    else
        showWelcome(page, catalogue, recent, kept, examples);
    showKept(page, project ? project->path() : QString(), kept);
    page->addStretch(1);
    // The old page may be the one whose button is being clicked.
    if (QWidget *old = takeWidget())
        old->deleteLater();
    applyFont(content);
    // Its texts are broken into lines for this width only.
    content->resize(viewport()->size());
    setWidget(content);
    updateGeometry();
}

QSize StartPage::minimumSizeHint() const
{
    QSize result = QScrollArea::minimumSizeHint();
    if (widget())
        result.setWidth(qMax(result.width(), widget()->minimumSizeHint().width() +
                                                 verticalScrollBar()->sizeHint().width()));
    return result;
}

QStringList StartPage::stateOf(const Project *project, const QStringList &ips,
                               const IpCatalogue &catalogue,
                               const QList<KeptConfigurations::Item> &kept)
{
    QStringList state;
    for (const IpEntry &entry : catalogue.entries())
        state << entry.name << entry.version << entry.summary;
    for (const KeptConfigurations::Item &item : kept)
        state << item.id << item.origin << item.description() << item.stepWords();
    if (!project)
        return state;
    const DEV::DeviceArg device = project->device();
    state << project->file() << device.partNumber() << QString::number(ips.size());
    for (const QString &path : ips.mid(0, ipsShown)) {
        const IpcHead head = IpcHead::read(path);
        const int ip = catalogue.indexOf(head.type);
        const bool canSimulate = ip >= 0 && catalogue.canSimulate(ip);
        state << path << head.type << head.differenceSentence(device)
              << QString::number(int(canSimulate));
    }
    return state;
}

void StartPage::applyFont(QWidget *content) const
{
    const int gap = fontMetrics().height();
    content->layout()->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    const QList<QLabel *> labels = content->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        QFont scaled = font();
        const qreal scale = label->property("scale").toReal();
        if (scaled.pointSizeF() > 0)
            scaled.setPointSizeF(scaled.pointSizeF() * scale);
        else
            scaled.setPixelSize(qRound(scaled.pixelSize() * scale));
        scaled.setBold(label->property("bold").toBool());
        label->setFont(scaled);
    }
}

void StartPage::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && widget()) {
        applyFont(widget());
        updateGeometry();
    }
}

void StartPage::showFirstSteps(QVBoxLayout *page, const IpCatalogue &catalogue,
                               const QVector<Example> &examples)
{
    for (const Example &example : examples) {
        auto *link = makeLink(tr("Open the example: %1…").arg(example.title), example.purpose,
                              QStringLiteral("run"));
        link->setObjectName(QStringLiteral("exampleLink"));
        connect(link, &QPushButton::clicked, this,
                [this, example] { Q_EMIT exampleRequested(example.ip, example.number); });
        page->addWidget(link);
    }
    const int count = qMin(catalogue.entries().size(), subsystemsShown);
    for (int ip = 0; ip < count; ++ip) {
        const IpEntry &entry = catalogue.entries().at(ip);
        auto *link = makeLink(tr("New subsystem: %1 %2…").arg(entry.name, entry.version),
                              tr("Choose a device; then its dialog opens."), QStringLiteral("ip"));
        link->setObjectName(QStringLiteral("newSubsystemLink"));
        connect(link, &QPushButton::clicked, this,
                [this, ip] { Q_EMIT newSubsystemRequested(ip); });
        page->addWidget(link);
    }
}

void StartPage::showWelcome(QVBoxLayout *page, const IpCatalogue &catalogue,
                            const QStringList &recent, const QList<KeptConfigurations::Item> &kept,
                            const QVector<Example> &examples)
{
    page->addWidget(makeLabel(tr("Tarvo Workbench"), 1.8, true));
    page->addWidget(makeLabel(
        tr("Configure an IP for a device, generate it, and add the netlist to your design."), 1,
        false));
    page->addSpacing(fontMetrics().height());
    showDrafts(page, QString(), catalogue, kept);

    auto *create = makeLink(tr("New project…"), tr("Choose a folder, a name and a device."),
                            QStringLiteral("new-project"));
    create->setObjectName(QStringLiteral("newProjectLink"));
    connect(create, &QPushButton::clicked, this, &StartPage::newProjectRequested);
    auto *open = makeLink(tr("Open…"),
                          tr("A project (.tvproj), an IP configuration (.ipc) or a source file."),
                          QStringLiteral("open"));
    open->setObjectName(QStringLiteral("openLink"));
    connect(open, &QPushButton::clicked, this, &StartPage::openRequested);
    page->addWidget(create);
    page->addWidget(open);
    if (!examples.isEmpty() || !catalogue.entries().isEmpty()) {
        page->addSpacing(fontMetrics().height());
        page->addWidget(makeLabel(tr("First steps"), 1.2, true));
        showFirstSteps(page, catalogue, examples);
    }

    if (!recent.isEmpty()) {
        page->addSpacing(fontMetrics().height());
        page->addWidget(makeLabel(tr("Recent projects"), 1.2, true));
    }
    for (const QString &path : recent) {
        const QFileInfo file(path);
        auto *link = makeLink(file.completeBaseName(), QDir::toNativeSeparators(file.path()),
                              QStringLiteral("project"));
        link->setProperty("path", path);
        connect(link, &QPushButton::clicked, this,
                [this, path] { Q_EMIT openFileRequested(path); });
        page->addWidget(link);
    }
}

void StartPage::showProject(QVBoxLayout *page, const Project &project, const QStringList &ips,
                            const IpCatalogue &catalogue,
                            const QList<KeptConfigurations::Item> &kept)
{
    const DEV::DeviceArg device = project.device();
    page->addWidget(makeLabel(project.name(), 1.8, true));
    page->addWidget(
        makeLabel(device.isNull() ? tr("No device chosen") : device.partNumber(), 1, false));
    page->addSpacing(fontMetrics().height());
    showDrafts(page, project.path(), catalogue, kept);

    const QDir folder(project.path());
    if (!ips.isEmpty())
        page->addWidget(makeLabel(tr("Change an IP of this project"), 1.2, true));
    for (const QString &path : ips.mid(0, ipsShown)) {
        const IpcHead head = IpcHead::read(path);
        const QString difference = head.differenceSentence(device);
        auto *link = makeLink(
            QDir::toNativeSeparators(folder.relativeFilePath(path)),
            difference.isEmpty() ? tr("Opens its dialog again; OK there generates it anew.")
                                 : difference,
            difference.isEmpty() ? QStringLiteral("ip-file") : QStringLiteral("warning"));
        link->setProperty("path", path);
        connect(link, &QPushButton::clicked, this,
                [this, path] { Q_EMIT openFileRequested(path); });
        page->addWidget(link);
        const int ip = catalogue.indexOf(head.type);
        if (ip < 0 || !catalogue.canSimulate(ip))
            continue;
        auto *simulate =
            makeLink(tr("Simulate %1").arg(QDir::toNativeSeparators(folder.relativeFilePath(path))),
                     tr("Runs a program on it before there is hardware."), QStringLiteral("run"));
        simulate->setObjectName(QStringLiteral("simulateLink"));
        connect(simulate, &QPushButton::clicked, this,
                [this, path] { Q_EMIT simulationRequested(path); });
        page->addWidget(simulate);
    }
    if (ips.size() > ipsShown) {
        auto *more =
            makeLabel(tr("%n more are in the tree of the project.", nullptr, ips.size() - ipsShown),
                      1, false);
        more->setObjectName(QStringLiteral("moreIpsLabel"));
        page->addWidget(more);
    }
    if (!ips.isEmpty())
        page->addSpacing(fontMetrics().height());

    page->addWidget(
        makeLabel(ips.isEmpty() ? tr("Next: create an IP") : tr("Create another IP"), 1.2, true));
    int offered = 0;
    for (int i = 0; i < catalogue.entries().size(); ++i) {
        const IpEntry &entry = catalogue.entries().at(i);
        if (!catalogue.isSupported(i, device))
            continue;
        ++offered;
        auto *link = makeLink(tr("%1 %2…").arg(entry.name, entry.version), entry.summary,
                              QStringLiteral("ip"));
        link->setObjectName(QStringLiteral("createIpLink"));
        connect(link, &QPushButton::clicked, this, [this, i] { Q_EMIT createIpRequested(i); });
        page->addWidget(link);
    }
    if (offered == 0)
        page->addWidget(makeLabel(
            tr("No IP in the catalogue supports this device. Click the device in the status bar to "
               "choose another one."),
            1, false));
    if (ips.isEmpty())
        page->addWidget(makeLabel(
            tr("Its dialog opens. Configure the IP there and press OK: it is generated into a "
               "folder of this project, the netlist joins the sources, and the results are shown "
               "here."),
            1, false));
}

void StartPage::showDrafts(QVBoxLayout *page, const QString &folder, const IpCatalogue &catalogue,
                           const QList<KeptConfigurations::Item> &kept)
{
    int shown = 0;
    for (const KeptConfigurations::Item &item : kept) {
        if (item.kind != KeptConfigurations::Dropped || !isIn(folder, item) || shown == keptShown)
            continue;
        if (shown++ == 0)
            page->addWidget(makeLabel(tr("Go on with a draft"), 1.2, true));
        const int ip = catalogue.indexOf(IpcHead::read(item.copy).type);
        QStringList lines{item.description()};
        if (!item.steps.isEmpty())
            lines.prepend(item.stepWords());
        LinkButton *link = makeKeptLink(folder, item, lines.join(u'\n'));
        if (ip >= 0)
            link->setText(tr("%1: %2").arg(catalogue.entries().at(ip).name, link->text()));
        connect(link, &QPushButton::clicked, this,
                [this, id = item.id] { Q_EMIT bringBackRequested(id); });
        page->addWidget(link);
    }
    if (shown > 0)
        page->addSpacing(fontMetrics().height());
}

void StartPage::showKept(QVBoxLayout *page, const QString &folder,
                         const QList<KeptConfigurations::Item> &kept)
{
    if (kept.isEmpty())
        return;
    page->addSpacing(fontMetrics().height());
    page->addWidget(makeLabel(tr("Bring back a configuration"), 1.2, true));
    int shown = 0;
    for (const KeptConfigurations::Item &item : kept) {
        if (item.kind == KeptConfigurations::Dropped || !isIn(folder, item) || shown == keptShown)
            continue;
        ++shown;
        LinkButton *link = makeKeptLink(folder, item, item.description());
        connect(link, &QPushButton::clicked, this,
                [this, id = item.id] { Q_EMIT bringBackRequested(id); });
        page->addWidget(link);
    }
    auto *all = makeLink(tr("All kept configurations…"),
                         tr("What was replaced, or was in a dialog that was left without OK."),
                         QStringLiteral("folder"));
    all->setObjectName(QStringLiteral("allKeptLink"));
    connect(all, &QPushButton::clicked, this, &StartPage::allKeptRequested);
    page->addWidget(all);
}

} // namespace Workbench
