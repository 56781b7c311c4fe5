#pragma once

#include "mappicture.h"
#include "runstore.h"
#include "widgets/background.h"

#include <utils/result.h>

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace Workbench
{

class MessageModel;
class Project;
class ResultPage;

// The last successful run of the open project, since the start or from before it.
class LastRun : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this. The messages are those of a run from before that is shown.
    LastRun(MessageModel &messages, QWidget *window);

    // Gives the maps of a configuration; a failure is a sentence.
    using MapSource = std::function<Utils::Result<QVector<MapPicture>>(const QString &ipcFile)>;
    void setMapSource(const MapSource &source) { m_mapSource = source; }
    // Where runs are kept; the user's cache at first.
    void setStore(const RunStore &store);
    // Forgets what is of another project; null: none is open.
    void setProject(Project *project);
    // Whether figures and messages of it have been made, for the page or without it.
    bool isShown() const { return m_page != nullptr; }
    bool isThere() const { return m_report || m_isKept; }
    // Made when it is first asked for.
    ResultPage *page();
    // Fills the page; false and a sentence in `*error` if there is nothing that can be shown. Of a
    // large report this is only begun, and the page tells what goes wrong.
    bool prepare(QString *error);
    // The same, and waits for the end.
    bool complete(QString *error);

    // What is delivered from now on is of a run that is still to come.
    void expect();
    void setReport(const Synthesis::RunReport &report);
    // What the IP of the expected run delivered; false if there was no such run.
    bool setDelivered(const QStringList &files);
    void keep(const QStringList &delivered);

Q_SIGNALS:
    void openRequested(const QString &path);
    // A place of a map of the configuration is to be opened.
    void doorOpened(const QString &ipcFile, const Workbench::MapDoor &door);
    // Whether it is there has changed.
    void changed();

private:
    // What a store has of a run.
    struct Stored {
        bool isThere = false;
        QString error;
        KeptRun run;
    };
    static Stored read(const RunStore &store, const QString &project);
    QStringList sources() const;
    void showStored(const Stored &stored);
    // `changed`: files that are no longer as the run left them.
    void showDelivered(const QStringList &files, const QStringList &changed = {});

    // The same, and how old it is.
    void showAsKept(const KeptRun &run, const QStringList &changed);

    MessageModel &m_messages;
    QWidget *m_window;
    QPointer<Project> m_project;
    RunStore m_store;
    MapSource m_mapSource;
    using Figures = QMap<QString, QMap<QString, int>>;
    Figures m_earlier;         // as those of a KeptRun, from before m_report
    bool m_hasEarlier = false; // for the expected run
    ResultPage *m_page = nullptr;
    std::unique_ptr<Synthesis::RunReport> m_report; // since the start
    bool m_isKept = false;                          // from before the start
    bool m_isNew = false;
    QString m_mistake;    // of the last reading
    Background m_reading; // of a kept run, for the page
    Background m_readingEarlier;
    Background m_comparison; // of a kept run with the disk
    Background m_keeping;
};

} // namespace Workbench
