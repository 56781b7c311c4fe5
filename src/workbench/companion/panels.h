#pragma once

#include <QString>
#include <QVector>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QDialog)
QT_FORWARD_DECLARE_CLASS(QObject)
QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// Something that is shown beside the dialog of an IP, if dialog and plug-in offer what it needs.
struct CompanionPanel {
    QString title; // with the mark of its key
    std::function<bool(const QDialog *ipDialog, const QObject *pluginRoot)> isOffered;
    // The plug-in's root may be null if `isOffered` allows it.
    std::function<QWidget *(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent)> make;
};

// All of them, in the order of their tabs. The settings must outlive the panels.
QVector<CompanionPanel> companionPanels(QSettings &settings);

} // namespace Workbench
