#pragma once

#include "mappicture.h"
#include "superseded.h"

#include <synthesis/runreport.h>

#include <QMap>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QListWidget)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QTabWidget)
QT_FORWARD_DECLARE_CLASS(QTableView)

namespace IPCore
{
class PinFigureView;
}

namespace Workbench
{

class CellModel;
class InfoBar;
class ResourceModel;

// What came of a successful run: the ports as a figure, what the netlist takes of the device, and
// the files.
class ResultPage : public QWidget
{
    Q_OBJECT

public:
    explicit ResultPage(QWidget *parent = nullptr);

    // Instead of a report.
    void showRemark(const QString &text);
    // `before`: what each resource was used in the run before of the same IP; empty if there was
    // none, and then nothing is compared.
    void setReport(const Synthesis::RunReport &report, const QMap<QString, int> &before = {});
    // What setReport() was given.
    const Synthesis::RunReport &report() const { return m_report; }
    // The files that the IP delivered, shown before those of the run itself. Full paths. With a
    // configuration among them the page offers to change the IP. Those of an earlier run in the
    // other language come last, and the page offers to take them out of `sources`, the project's.
    void setDelivered(const QStringList &files, const QStringList &sources = {});
    QStringList files() const;
    // The configuration among the delivered files; empty if there is none.
    QString configuration() const;
    // Pictures of that configuration, a tab each. With a sentence that says what else to know.
    void setMaps(const QVector<MapPicture> &maps, const QString &remark = {});
    // Says when the run of the report was, and what is no longer as it left it.
    void showAge(const QDateTime &when, const QStringList &changed);
    IPCore::PinFigureView *figure() const { return m_figure; }

Q_SIGNALS:
    void openRequested(const QString &path);
    // The user wants `files` out of the project's sources.
    void removalRequested(const QStringList &files);
    // What stands behind a place of a map is asked for.
    void doorOpened(const Workbench::MapDoor &door);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void showLeftOvers(const QStringList &sources);
    void showFiles();
    // Shows the figure in its whole width, until the user chooses a scale.
    void fitFigure();

    Synthesis::RunReport m_report;
    QLabel *m_heading;
    QLabel *m_summary;
    QLabel *m_age;
    QPushButton *m_change;
    InfoBar *m_leftOver;
    QTabWidget *m_left;
    IPCore::PinFigureView *m_figure;
    ResourceModel *m_resources;
    CellModel *m_cells;
    QTableView *m_resourceTable;
    QTableView *m_cellTable;
    QListWidget *m_files;
    QVector<QWidget *> m_maps; // tabs
    qreal m_fittedZoom = 1;
    QStringList m_delivered;
    QStringList m_made;
    QStringList m_superseded;
    Language m_language = Language::Verilog;
};

} // namespace Workbench
