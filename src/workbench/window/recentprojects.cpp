#include "recentprojects.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace Workbench
{

namespace
{

const QString recentKey = QStringLiteral("recentProjects");
constexpr int recentCount = 8;

} // namespace

RecentProjects::RecentProjects(QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
}

QStringList RecentProjects::files() const
{
    return m_settings.value(recentKey).toStringList();
}

void RecentProjects::add(const QString &file)
{
    QStringList all = files();
    // What stands already is not written: the disk is waited for.
    if (all.value(0) == file)
        return;
    all.removeAll(file);
    all.prepend(file);
    m_settings.setValue(recentKey, QStringList(all.mid(0, recentCount)));
}

bool RecentProjects::remove(const QString &file)
{
    QStringList all = files();
    if (all.removeAll(file) == 0)
        return false;
    m_settings.setValue(recentKey, all);
    return true;
}

void RecentProjects::showIn(QMenu *menu)
{
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill(menu); });
}

void RecentProjects::fill(QMenu *menu)
{
    menu->clear();
    const QStringList all = files();
    int number = 1;
    for (const QString &path : all) {
        QString text = QDir::toNativeSeparators(path);
        text.replace(u'&', QLatin1String("&&"));
        QAction *action = menu->addAction(QStringLiteral("&%1  %2").arg(number++).arg(text));
        action->setEnabled(QFileInfo::exists(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT chosen(path); });
    }
    if (all.isEmpty())
        menu->addAction(tr("No project yet"))->setEnabled(false);
}

} // namespace Workbench
