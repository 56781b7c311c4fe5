#pragma once

#include "kept/keptconfigurations.h"

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

    // An example of the plug-in of an IP.
    struct Example {
        int ip = 0;     // in the catalogue
        int number = 0; // among those of its plug-in
        QString title;
        QString purpose;
    };

    // `project` may be null. Nothing is kept of the arguments.
    void showState(const Project *project, const IpCatalogue &catalogue, const QStringList &recent,
                   const QList<KeptConfigurations::Item> &kept, const QVector<Example> &examples);

Q_SIGNALS:
    void newProjectRequested();
    void newSubsystemRequested(int ip);
    void openRequested();
    void openFileRequested(const QString &path);
    void createIpRequested(int ip);
    void bringBackRequested(const QString &keptId);
    void allKeptRequested();
    void exampleRequested(int ip, int number);
    void simulationRequested(const QString &ipcFile);

protected:
    void changeEvent(QEvent *event) override;

private:
    // Headings are larger than the user's font.
    void applyFont();
    void showWelcome(QVBoxLayout *page, const IpCatalogue &catalogue, const QStringList &recent,
                     const QList<KeptConfigurations::Item> &kept, const QVector<Example> &examples);
    void showFirstSteps(QVBoxLayout *page, const IpCatalogue &catalogue,
                        const QVector<Example> &examples);
    void showProject(QVBoxLayout *page, const Project &project, const IpCatalogue &catalogue,
                     const QList<KeptConfigurations::Item> &kept);
    // Of those in the folder, which may be empty for all, the drafts.
    void showDrafts(QVBoxLayout *page, const QString &folder, const IpCatalogue &catalogue,
                    const QList<KeptConfigurations::Item> &kept);
    // And what was replaced.
    void showKept(QVBoxLayout *page, const QString &folder,
                  const QList<KeptConfigurations::Item> &kept);
};

} // namespace Workbench
