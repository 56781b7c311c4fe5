#pragma once

#include <QScrollArea>

QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace Workbench
{

class IpCatalogue;
class Project;

// What an empty window says: what can be done next, from no project at all to an IP that is there
// to be changed.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);

    // `project` may be null. Nothing is kept of the arguments.
    void showState(const Project *project, const IpCatalogue &catalogue, const QStringList &recent);

Q_SIGNALS:
    void newProjectRequested();
    void openRequested();
    void openFileRequested(const QString &path);
    void createIpRequested(int ip);

private:
    void showWelcome(QVBoxLayout *page, const QStringList &recent);
    void showProject(QVBoxLayout *page, const Project &project, const IpCatalogue &catalogue);
};

} // namespace Workbench
