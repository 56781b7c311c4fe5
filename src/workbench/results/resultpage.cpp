#include "resultpage.h"

#include "mapview.h"
#include "messages/runsummary.h"
#include "resulttables.h"
#include "widgets/focusforward.h"
#include "widgets/infobar.h"
#include "widgets/scrollingpage.h"
#include "widgets/symbolicon.h"

#include <ipcore/pinfigureview.h>
#include <synthesis/resources.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Workbench
{

namespace
{

QTableView *makeTable(QAbstractItemModel *model, const QString &name)
{
    auto *table = new QTableView;
    table->setModel(model);
    table->setAccessibleName(name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setTabKeyNavigation(false);
    table->setFrameShape(QFrame::NoFrame);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 3 / 2);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->horizontalHeader()->setMinimumSectionSize(table->horizontalHeader()->sectionSizeHint(0));
    return table;
}

bool isConfiguration(const QString &path)
{
    return path.endsWith(QLatin1String(".ipc"));
}

QGroupBox *makeGroup(const QString &title, QWidget *content)
{
    auto *group = new QGroupBox(title);
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(content);
    return group;
}

} // namespace

ResultPage::ResultPage(QWidget *parent)
    : QWidget(parent)
    , m_heading(new QLabel)
    , m_summary(new QLabel)
    , m_age(new QLabel)
    , m_change(new QPushButton(tr("Change the &IP…")))
    , m_leftOver(new InfoBar)
    , m_left(new QTabWidget)
    , m_figure(new IPCore::PinFigureView)
    , m_resources(new ResourceModel(this))
    , m_cells(new CellModel(this))
    , m_resourceTable(makeTable(m_resources, tr("Resources")))
    , m_cellTable(makeTable(m_cells, tr("Primitives")))
    , m_files(new QListWidget)
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    m_heading->setFont(large);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    for (QLabel *label : {m_heading, m_summary, m_age})
        label->setMinimumWidth(1); // a long name must not push the buttons off the window
    m_heading->setObjectName(QStringLiteral("resultHeading"));
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_summary->setObjectName(QStringLiteral("resultSummary"));
    m_age->setTextFormat(Qt::PlainText);
    m_age->setWordWrap(true);
    m_age->setObjectName(QStringLiteral("resultAge"));
    m_age->hide();
    m_resourceTable->setObjectName(QStringLiteral("resourceTable"));
    m_cellTable->setObjectName(QStringLiteral("cellTable"));
    m_figure->setAccessibleName(tr("Ports of the netlist"));
    m_figure->setToolTip(tr("Ctrl and the wheel zoom"));
    m_figure->setFrameShape(QFrame::NoFrame);
    m_files->setObjectName(QStringLiteral("fileList"));
    m_files->setAccessibleName(tr("Files"));
    m_files->setFrameShape(QFrame::NoFrame);
    connect(m_files, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        Q_EMIT openRequested(item->data(Qt::UserRole).toString());
    });

    m_left->setObjectName(QStringLiteral("resultTabs"));
    m_left->setMinimumWidth(fontMetrics().averageCharWidth() * 20); // its tabs scroll
    m_left->addTab(m_figure, tr("Ports"));
    m_left->addTab(m_cellTable, tr("Primitives"));
    auto *right = new QSplitter(Qt::Vertical);
    right->setObjectName(QStringLiteral("resultTablesSplitter"));
    right->addWidget(makeGroup(tr("Share of the device"), m_resourceTable));
    right->addWidget(makeGroup(tr("Files (double-click to open)"), m_files));
    right->setChildrenCollapsible(false);
    auto *halves = new QSplitter(Qt::Horizontal);
    halves->setObjectName(QStringLiteral("resultSplitter"));
    halves->addWidget(m_left);
    halves->addWidget(right);
    // Half and half: sizes are shares until the page has one of its own.
    halves->setSizes({1000, 1000});
    halves->setChildrenCollapsible(false);

    m_change->setObjectName(QStringLiteral("changeIpButton"));
    m_change->setToolTip(tr("Opens its dialog again; OK there generates it anew"));
    m_change->hide();
    connect(m_change, &QPushButton::clicked, this, [this] {
        if (!configuration().isEmpty())
            Q_EMIT openRequested(configuration());
    });
    auto *top = new QHBoxLayout;
    top->addWidget(m_heading, 1);
    top->addWidget(m_change);
    auto *layout = new QVBoxLayout(ScrollingPage::fill(this));
    layout->addLayout(top);
    layout->addWidget(m_summary);
    layout->addWidget(m_age);
    layout->addWidget(m_leftOver);
    layout->addWidget(halves, 1);
    forwardFocus(this, m_files);
}

void ResultPage::showRemark(const QString &text)
{
    m_summary->setText(text);
}

void ResultPage::setReport(const Synthesis::RunReport &report, const QMap<QString, int> &before)
{
    m_report = report;
    const QString name =
        report.job.targetName.isEmpty() ? report.job.ipName : report.job.targetName;
    m_heading->setText(tr("%1 for %2").arg(name, report.job.device.partNumber()));
    const QString seconds = QLocale().toString(double(report.milliseconds) / 1000.0, 'f', 1);
    const QString summary = shownSummary(report);
    QString text = tr("%1 The run took %2 s.").arg(summary, seconds);
    const QString missing = Synthesis::notCountedSentence(report.cells);
    if (!missing.isEmpty() && summary == report.summary && !summary.contains(missing))
        text += u'\n' + missing;
    m_summary->setText(text);
    m_age->hide();
    m_figure->setLabel(name);
    m_figure->setPins(pinsOf(report.ports));
    fitFigure();
    m_left->setTabText(0, tr("Ports (%1)").arg(report.ports.size()));
    m_left->setTabText(1, tr("Primitives (%n kinds)", nullptr, report.cells.size()));
    m_resources->setResources(report.resources, before);
    m_cells->setCells(report.cells);
    m_made = report.files;
    if (!report.logFile.isEmpty())
        m_made.append(report.logFile);
    m_language = report.job.language();
    setDelivered({});
}

void ResultPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitFigure();
}

void ResultPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    fitFigure();
}

void ResultPage::fitFigure()
{
    const int width = m_figure->figureSize().width();
    if (width <= 0 || !isVisible() || !qFuzzyCompare(m_figure->zoom(), m_fittedZoom))
        return;
    // The scroll bar of a long figure counts, whether or not it is there yet.
    const int room = m_figure->width() - m_figure->verticalScrollBar()->sizeHint().width();
    m_figure->setZoom(qBound(0.6, qreal(room) / width, 1.0), {});
    m_fittedZoom = m_figure->zoom();
}

void ResultPage::setDelivered(const QStringList &files, const QStringList &sources)
{
    m_delivered = files;
    m_change->setVisible(!configuration().isEmpty());
    m_superseded = superseded(files, m_language);
    showLeftOvers(sources);
    showFiles();
}

QString ResultPage::configuration() const
{
    const auto ipc = std::find_if(m_delivered.cbegin(), m_delivered.cend(), isConfiguration);
    return ipc == m_delivered.cend() ? QString() : *ipc;
}

void ResultPage::setMaps(const QVector<MapPicture> &maps, const QString &remark)
{
    for (QWidget *tab : qAsConst(m_maps)) {
        m_left->removeTab(m_left->indexOf(tab));
        tab->deleteLater(); // a door of it may be what asks
    }
    m_maps.clear();
    for (const MapPicture &map : maps) {
        auto *tab = new QWidget;
        auto *about = new QLabel(remark.isEmpty() ? map.text : map.text + u'\n' + remark);
        about->setObjectName(QStringLiteral("mapAbout"));
        about->setTextFormat(Qt::PlainText);
        about->setWordWrap(true);
        about->setContentsMargins(4, 4, 4, 0);
        auto *view = new MapView(map);
        connect(view, &MapView::doorOpened, this, &ResultPage::doorOpened);
        auto *layout = new QVBoxLayout(tab);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(about);
        layout->addWidget(view, 1);
        forwardFocus(tab, view);
        m_left->addTab(tab, QString(map.title).replace(u'&', QLatin1String("&&")));
        m_maps.append(tab);
    }
}

void ResultPage::showLeftOvers(const QStringList &sources)
{
    QStringList listed;
    QStringList names;
    for (const QString &file : qAsConst(m_superseded)) {
        if (!sources.contains(file))
            continue;
        listed.append(file);
        names.append(QFileInfo(file).fileName());
    }
    if (listed.isEmpty()) {
        m_leftOver->hide();
        return;
    }
    m_leftOver->showMessage(
        tr("The project still lists %1, of an earlier run in the other language. Both describe "
           "the same module.")
            .arg(names.join(QLatin1String(", "))),
        {{tr("&Remove from Project"), [this, listed] { Q_EMIT removalRequested(listed); }}});
}

void ResultPage::showAge(const QDateTime &when, const QStringList &changed)
{
    QString text = tr("This run ended on %1.").arg(QLocale().toString(when, QLocale::ShortFormat));
    if (changed.isEmpty()) {
        text += u' ' + tr("Its files are as it left them.");
    } else {
        QStringList names;
        for (const QString &file : changed) {
            const QString name = QFileInfo(file).fileName();
            names.append(QFileInfo::exists(file) ? name : tr("%1 (missing)").arg(name));
        }
        text += u' ' + tr("Changed since then: %1.").arg(names.join(QLatin1String(", ")));
    }
    m_age->setText(text);
    m_age->show();
}

QStringList ResultPage::files() const
{
    QStringList all;
    for (const QStringList &some : {m_delivered, m_made}) {
        for (const QString &file : some) {
            if (!all.contains(file) && !m_superseded.contains(file))
                all.append(file);
        }
    }
    return all + m_superseded;
}

void ResultPage::showFiles()
{
    m_files->clear();
    const QStringList all = files();
    if (all.isEmpty())
        return;
    // Names are relative to the folder of the first.
    const QDir base(QFileInfo(all.first()).absolutePath());
    for (const QString &file : all) {
        QString text = QDir::toNativeSeparators(base.relativeFilePath(file));
        const bool isOld = m_superseded.contains(file);
        if (isOld)
            text = tr("%1 (of an earlier run)").arg(text);
        auto *item = new QListWidgetItem(symbolIcon(QStringLiteral("file")), text);
        if (isOld) {
            QFont slanted = m_files->font();
            slanted.setItalic(true);
            item->setFont(slanted);
        }
        item->setData(Qt::UserRole, file);
        item->setToolTip(QDir::toNativeSeparators(file));
        m_files->addItem(item);
    }
}

} // namespace Workbench
