#include "projectpane.h"

#include "projectmodel.h"
#include "widgets/errorbox.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>

namespace Workbench
{

ProjectPane::ProjectPane(QWidget *parent)
    : QStackedWidget(parent)
    , m_model(new ProjectModel(this))
    , m_noProject(new QLabel(tr("No project is open.")))
    , m_tree(new QTreeView)
{
    m_noProject->setAlignment(Qt::AlignCenter);
    m_noProject->setEnabled(false);
    m_tree->setObjectName(QStringLiteral("projectTree"));
    m_tree->setAccessibleName(tr("Project"));
    m_tree->setModel(m_model);
    m_tree->setHeaderHidden(true);
    // Scrolls to what is wider, such as an IP's device and the project's.
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_tree->header()->setResizeContentsPrecision(100); // rows: each IP's file has to be read
    m_tree->setUniformRowHeights(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setMinimumHeight(fontMetrics().height() * 3); // on a small screen
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_tree, &QTreeView::activated, this, &ProjectPane::activate);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ProjectPane::selectionChanged);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, [this] {
        m_tree->expandAll();
        Q_EMIT contentChanged();
    });
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &ProjectPane::contentChanged);
    addWidget(m_noProject);
    addWidget(m_tree);
}

void ProjectPane::setProject(Project *project)
{
    m_model->setProject(project);
    if (project)
        m_tree->expandAll();
    setCurrentWidget(project ? static_cast<QWidget *>(m_tree) : m_noProject);
}

void ProjectPane::refresh()
{
    m_model->refresh();
}

QModelIndex ProjectPane::selected() const
{
    return m_tree->currentIndex();
}

QString ProjectPane::selectedFile() const
{
    return selected().data(ProjectModel::PathRole).toString();
}

QString ProjectPane::selectedPlace() const
{
    const QString file = selectedFile();
    return file.isEmpty() && selected().isValid() ? m_model->projectFile() : file;
}

void ProjectPane::select(const QString &file)
{
    m_tree->setFocus();
    m_model->finishReading();
    const QModelIndex index = m_model->indexOf(file);
    m_tree->setCurrentIndex(index);
    m_tree->scrollTo(index);
}

void ProjectPane::activateSelected()
{
    activate(selected());
}

void ProjectPane::activate(const QModelIndex &index)
{
    const QString path = index.data(ProjectModel::PathRole).toString();
    if (path.isEmpty())
        return;
    if (!QFileInfo::exists(path)) {
        m_model->refresh();
        showError(window(), tr("\"%1\" does not exist.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    Q_EMIT openRequested(path);
}

QStringList ProjectPane::ipsOfOtherDevices() const
{
    QStringList others;
    m_model->finishReading();
    const QModelIndex ips = m_model->groupIndex(ProjectModel::Ips);
    for (int row = 0; row < m_model->rowCount(ips); ++row) {
        const QModelIndex index = m_model->index(row, 0, ips);
        if (index.data(ProjectModel::OtherDeviceRole).toBool())
            others.append(index.data(ProjectModel::PathRole).toString());
    }
    return others;
}

} // namespace Workbench
