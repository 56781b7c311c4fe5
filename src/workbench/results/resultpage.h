#pragma once

#include "superseded.h"

#include <synthesis/runreport.h>

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

    void setReport(const Synthesis::RunReport &report);
    // The files that the IP delivered, shown before those of the run itself. Full paths. With a
    // configuration among them the page offers to change the IP. Those of an earlier run in the
    // other language come last, and the page offers to take them out of `sources`, the project's.
    void setDelivered(const QStringList &files, const QStringList &sources = {});
    QStringList files() const;
    // Says when the run of the report was, and what is no longer as it left it.
    void showAge(const QDateTime &when, const QStringList &changed);
    IPCore::PinFigureView *figure() const { return m_figure; }

Q_SIGNALS:
    void openRequested(const QString &path);
    // The user wants `files` out of the project's sources.
    void removalRequested(const QStringList &files);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void showLeftOvers(const QStringList &sources);
    void showFiles();
    // Shows the figure in its whole width, until the user chooses a scale.
    void fitFigure();

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
    qreal m_fittedZoom = 1;
    QStringList m_delivered;
    QStringList m_made;
    QStringList m_superseded;
    Language m_language = Language::Verilog;
};

} // namespace Workbench
