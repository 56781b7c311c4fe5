#pragma once

#include "devicefilter.h"

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QTableView)

namespace Workbench
{

// A table over the device database that is filtered while typing.
class DevicePicker : public QWidget
{
    Q_OBJECT

public:
    explicit DevicePicker(QWidget *parent = nullptr);

    // The selected device; null while none is.
    DEV::DeviceArg device() const;
    // Selects and shows a device. Clears a filter that hides it.
    void setDevice(const QString &id);

    // The table with all its columns.
    QSize sizeHint() const override;

public Q_SLOTS:
    void copyPartNumber();

Q_SIGNALS:
    void deviceChanged();
    // Double-click or Enter on a device.
    void activated();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    int gap() const; // between columns, where there is room
    void fitColumns();
    void showCount();

    DeviceModel *m_model;
    DeviceFilter *m_filter;
    QLineEdit *m_text;
    QList<QComboBox *> m_combos;
    QTableView *m_table;
    QVector<int> m_needed; // widths of the columns
    QLabel *m_count;
};

} // namespace Workbench
