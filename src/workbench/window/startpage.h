#pragma once

#include "kept/keptconfigurations.h"

#include <QScrollArea>
#include <QTimer>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace Workbench
{

class IpCatalogue;
class Project;

// What an empty window says: what can be done next, from no project at all to an IP that is there
// to be changed. It is filled when it is seen, once for all that has changed since.
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

    // How it is filled: by a call of showState().
    void setFiller(const std::function<void()> &filler) { m_filler = filler; }
    // What it shows is no longer so. It is filled anew when it comes up, or is there and fill() is
    // called, or, if `soon`, when the event loop has its turn.
    void outdate(bool soon = false);
    // At once, if it is seen and there is anything new.
    void fill();

    // Nothing is filled while one of these lives, and what is new when the last goes.
    class Hold
    {
    public:
        explicit Hold(StartPage *page);
        ~Hold();
        Q_DISABLE_COPY(Hold)

    private:
        StartPage *m_page;
    };

    // `project` may be null, with the paths of its configurations. What is shown already stays.
    void showState(const Project *project, const QStringList &ips, const IpCatalogue &catalogue,
                   const QStringList &recent, const QList<KeptConfigurations::Item> &kept,
                   const QVector<Example> &examples);

    // Wide enough not to scroll sideways.
    QSize minimumSizeHint() const override;

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
    void showEvent(QShowEvent *event) override;

private:
    // All that is shown, apart from what is handed on as it is.
    static QStringList stateOf(const Project *project, const QStringList &ips,
                               const IpCatalogue &catalogue,
                               const QList<KeptConfigurations::Item> &kept);
    // Headings are larger than the user's font.
    void applyFont(QWidget *content) const;
    void showWelcome(QVBoxLayout *page, const IpCatalogue &catalogue, const QStringList &recent,
                     const QList<KeptConfigurations::Item> &kept, const QVector<Example> &examples);
    void showFirstSteps(QVBoxLayout *page, const IpCatalogue &catalogue,
                        const QVector<Example> &examples);
    void showProject(QVBoxLayout *page, const Project &project, const QStringList &ips,
                     const IpCatalogue &catalogue, const QList<KeptConfigurations::Item> &kept);
    // Of those in the folder, which may be empty for all, the drafts.
    void showDrafts(QVBoxLayout *page, const QString &folder, const IpCatalogue &catalogue,
                    const QList<KeptConfigurations::Item> &kept);
    // And what was replaced.
    void showKept(QVBoxLayout *page, const QString &folder,
                  const QList<KeptConfigurations::Item> &kept);

    std::function<void()> m_filler;
    QTimer m_soon;
    QStringList m_state; // that is shown
    bool m_isOutdated = false;
    int m_holds = 0;
};

} // namespace Workbench
