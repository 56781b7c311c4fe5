#pragma once

#include "softwareset.h"

#include <utils/filebundle.h>

#include <QAbstractItemModel>
#include <QHash>
#include <QStringList>

namespace Workbench
{

// The formats in which an IP is handed on, each with its files and what stands of them in a folder;
// after them, in a group of their own, files of earlier exports that no format has any more.
class SoftwareModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, StateColumn, ColumnCount };

    explicit SoftwareModel(QObject *parent = nullptr);

    // Formats that were there before stay chosen or not; new ones are.
    void setSet(const QVector<SoftwareFormat> &formats, const QVector<SoftwareFile> &files);
    const QVector<SoftwareFormat> &formats() const { return m_formats; }
    const QVector<SoftwareFile> &files() const { return m_files; }

    // By name, in the order of the formats.
    QStringList chosen() const;
    void choose(const QStringList &formats);
    // Those of the chosen formats.
    QVector<SoftwareFile> chosenFiles() const;

    // What a look into the folder has found; no entries: nothing is known.
    void setStates(const QVector<Utils::BundleEntry> &entries);

    // Null where the index is of something else.
    const SoftwareFormat *format(const QModelIndex &index) const; // of a file too
    const SoftwareFile *file(const QModelIndex &index) const;
    QModelIndex indexOf(const QString &path) const;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void choiceChanged();

private:
    bool isLeftOverGroup(const QModelIndex &index) const;
    QVector<int> filesOf(int format) const; // indices in m_files
    QVariant formatData(int row, int column, int role) const;
    QVariant fileData(const QModelIndex &index, int role) const;
    QVariant leftOverData(const QModelIndex &index, int role) const;
    QString stateOf(int format) const;

    QVector<SoftwareFormat> m_formats;
    QVector<SoftwareFile> m_files;
    QVector<QVector<int>> m_rows;                       // by format
    QStringList m_left;                                 // names of the formats that are not chosen
    QHash<QString, Utils::BundleEntry::State> m_states; // by path
    QVector<Utils::BundleEntry> m_leftOver;
};

} // namespace Workbench
