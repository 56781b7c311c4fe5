#pragma once

#include <QObject>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QMenu)
QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

// The files of the projects that were open last, kept in the settings.
class RecentProjects : public QObject
{
    Q_OBJECT

public:
    // The settings must outlive this.
    explicit RecentProjects(QSettings &settings, QObject *parent = nullptr);

    // The last one first.
    QStringList files() const;
    void add(const QString &file);
    // False if it was not among them.
    bool remove(const QString &file);
    // Fills the menu anew each time that it opens.
    void showIn(QMenu *menu);

Q_SIGNALS:
    // In a menu.
    void chosen(const QString &file);

private:
    void fill(QMenu *menu);

    QSettings &m_settings;
};

} // namespace Workbench
