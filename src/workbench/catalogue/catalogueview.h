#pragma once

#include <dev/devicearg.h>

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QSortFilterProxyModel)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace Workbench
{

class CatalogueModel;
class IpCatalogue;
class WrappedLabel;

// The catalogue with a filter and, below it, what the selected IP is and why it cannot be made.
class CatalogueView : public QWidget
{
    Q_OBJECT

public:
    explicit CatalogueView(const IpCatalogue &catalogue, QWidget *parent = nullptr);

    // Reads the catalogue again.
    void reload();
    void setDevice(const DEV::DeviceArg &device);
    // The index of the selected IP in the catalogue; -1 while none is selected.
    int currentIp() const;
    void setCurrentIp(int index);

Q_SIGNALS:
    // Double-click, Enter or the button; also for an IP that does not support the device.
    void activated(int index);
    void selectionChanged();
    // Its document, from the context menu; the IP has one.
    void helpRequested(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitColumns();
    void showDetails();

    const IpCatalogue &m_catalogue;
    CatalogueModel *m_model;
    QSortFilterProxyModel *m_filter;
    QLineEdit *m_text;
    QTreeView *m_tree;
    WrappedLabel *m_details;
    QPushButton *m_create;
    QAction *m_createAction;
    QAction *m_help;
};

} // namespace Workbench
