#pragma once

#include <synthesis/runreport.h>

#include <QAbstractTableModel>

namespace Workbench
{

// What a run had to say: its summary, then its errors and its warnings. Stays until the next
// report.
class MessageModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Text, File, Line, ColumnCount };
    enum Severity { Summary, Error, Warning, Note };
    enum Role { PathRole = Qt::UserRole, LineRole, SeverityRole };

    explicit MessageModel(QObject *parent = nullptr);

    void setReport(const Synthesis::RunReport &report);
    // Puts a message that is of no run of synthesis at the end; line 0: none.
    void append(Severity severity, const QString &text, const QString &file = QString(),
                int line = 0);
    void append(Severity severity, const QStringList &texts);
    void clear();
    // The headline of a run that failed is an error of its own only if nothing explains it.
    int count(Severity severity) const;
    // Whether a message names a file.
    bool hasFiles() const;
    // Whether a message names a line of a file.
    bool hasPlaces() const;
    // One line for each message, "severity: file:line: text".
    QString toText() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Row {
        Severity severity;
        QString text;
        QString file;
        int line = 0;
        bool isHeadline = false; // of a run
    };
    static QString nameOf(Severity severity);

    struct Count {
        int headlines = 0;
        int others = 0;
    };
    void add(const Row &row);
    void forget();

    QList<Row> m_rows;
    Count m_counts[Note + 1]; // by severity
    int m_files = 0;          // rows with one
    int m_places = 0;
};

} // namespace Workbench
