#pragma once

#include "settingstable.h"

#include <QDialog>
#include <QMap>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QFormLayout)
QT_FORWARD_DECLARE_CLASS(QTabWidget)

namespace Workbench
{

// The settings, a tab for each page. What is chosen is written and counts at once; Cancel writes
// what stood there before.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    // The settings must outlive the dialog.
    SettingsDialog(QSettings &settings, QWidget *parent);

    // Shows what stands in the settings now, after somebody else has written there.
    void showSettings();

    void reject() override;

Q_SIGNALS:
    // Something was written.
    void changed();

private:
    void addRow(QFormLayout *form, const Settings::Row &row);
    QWidget *makeFont(const Settings::Row &row);
    QWidget *makeNumber(const Settings::Row &row);
    QWidget *makeChoice(const Settings::Row &row);
    QWidget *makeProgram(const Settings::Row &row);
    void store(const Settings::Row &row, const QVariant &value);
    void restoreDefaults();

    QSettings &m_settings;
    QMap<QString, QVariant> m_before;                         // what there was
    QVector<std::function<void(const QVariant &)>> m_setters; // as Settings::rows()
};

} // namespace Workbench
