#pragma once

#include "softwareset.h"

#include <QWidget>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QCheckBox)
QT_FORWARD_DECLARE_CLASS(QGridLayout)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace Workbench
{

// Takes a program for an IP: its plug-in makes the files of it from which the IP's memory starts,
// and lets the configuration name their folder.
class ProgramPart : public QWidget
{
    Q_OBJECT

public:
    // Asks the plug-in; failures are sentences, as is what the plug-in itself tells.
    struct Source {
        std::function<bool()> isOffered;
        std::function<Utils::Result<SoftwareSet::Program>(const QByteArray &image)> files;
        // An empty folder: the one that the plug-in would take.
        std::function<Utils::Result<SoftwareSet::Start>(const QString &folder, bool write)> start;
        // Keeps a copy of the configuration, which is about to be replaced.
        std::function<bool(QString *error)> keep;
    };

    ProgramPart(const Source &source, const QString &ipcFile, QWidget *parent = nullptr);

    // Asks for the folder, unless the user has given one.
    void refresh();

    // Full paths; empty: none is given.
    QString image() const;
    void setImage(const QString &path);
    QString folder() const;
    // As the user does.
    void setFolder(const QString &folder);
    // What the last run has told.
    QString told() const;

    // Writes the files, all or none, and lets the configuration start from them if that is ticked.
    // False if it failed, and then nothing has changed.
    bool writeFiles();

private:
    void buildRow(QGridLayout *grid, int row, const QString &name, QLineEdit *edit,
                  QPushButton *browse);
    QString fullPath(const QLineEdit *edit) const;
    QString shownPath(const QString &path) const;
    Utils::Result<QStringList> run();
    Utils::Result<SoftwareSet::Start> startFrom(const QString &folder, bool write) const;
    void refreshButtons();
    void chooseImage();
    void chooseFolder();

    const Source m_source;
    const QString m_ipcFile;
    bool m_isOwnFolder = false; // the user has given it
    QLineEdit *m_image;
    QPushButton *m_browseImage;
    QLineEdit *m_folder;
    QPushButton *m_browseFolder;
    QCheckBox *m_initialize;
    QPushButton *m_write;
    QPlainTextEdit *m_told;
};

} // namespace Workbench
