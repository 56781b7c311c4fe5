#pragma once

#include <utils/result.h>

#include <QAbstractListModel>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVariantList>
#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QDialog)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QListView)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace Workbench
{

// The steps by which a configuration was changed, after a first row for what its file has. Those
// behind the current one are undone.
class StepsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int limit = 200000; // steps

    using QAbstractListModel::QAbstractListModel;

    // The names of an answer; a failure is a clause.
    static Utils::Result<QStringList> namesOf(const QVariantList &steps);

    // `current`: how many of them count, from 0 to all.
    void setSteps(const QStringList &names, int current);
    int count() const { return m_names.size(); }
    int current() const { return m_current; }
    QString name(int step) const { return m_names.value(step); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QStringList m_names;
    int m_current = 0;
};

// The steps of the dialog of an IP, to undo them and to do them again.
class StepsPanel : public QWidget
{
    Q_OBJECT

public:
    // Whether the dialog tells its steps.
    static bool isOffered(const QDialog *dialog, const QObject *pluginRoot);

    StepsPanel(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent);

    const StepsModel &model() const { return *m_model; }

Q_SIGNALS:
    // What is shown was brought up to date with the dialog.
    void refreshed();

private Q_SLOTS:
    void onChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    void goTo(int count);
    void show(const QString &error);

    QPointer<QDialog> m_dialog;
    QTimer m_delay;
    StepsModel *m_model;
    QListView *m_list;
    QLabel *m_error;
    QPushButton *m_undo;
    QPushButton *m_redo;
    QPushButton *m_back;
};

} // namespace Workbench
