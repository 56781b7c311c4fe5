#pragma once

#include "programpart.h"
#include "softwareset.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QModelIndex)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
QT_FORWARD_DECLARE_CLASS(QTabBar)
QT_FORWARD_DECLARE_CLASS(QTreeView)
QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace Utils
{
struct Bundle;
struct BundleReport;
} // namespace Utils

namespace Workbench
{

class InfoBar;
class SoftwareBrowser;
class SoftwareModel;

// What a plug-in makes of a configuration for software: the formats, a look at each file, and a
// folder to export them to; and the way back, a program for the IP's memory, if the plug-in takes
// one. Follows the configuration's file on the disk.
class SoftwarePage : public QWidget
{
    Q_OBJECT

public:
    // Asks the plug-in; both return a failure as a sentence, also what the plug-in itself tells.
    struct Source {
        std::function<Utils::Result<QVector<SoftwareFormat>>()> formats;
        // Of these formats, or of all without a name.
        std::function<Utils::Result<SoftwareSet::Answer>(const QVector<SoftwareFormat> &)> files;
        ProgramPart::Source program;
    };

    SoftwarePage(const Source &source, const QString &ipcFile, QWidget *parent = nullptr);

    const QString &ipcFile() const { return m_ipcFile; }
    SoftwareModel *model() const { return m_model; }
    InfoBar *infoBar() const { return m_infoBar; }
    // Null as long as the plug-in takes no programs.
    ProgramPart *programPart() const;
    // Brings it to the front.
    void showProgram();
    // Full path.
    QString folder() const;
    void setFolder(const QString &folder);
    // Shows a file of the set.
    void select(const QString &path);

    // Shows a document of the set at one of its headings, see SoftwareBrowser::goTo(), and gives it
    // the focus. False if there is no such document or heading, which the page tells.
    bool showPlace(const QString &path, const QStringList &headings);

    // Makes the files anew if the configuration is not what they were made of.
    void checkDisk();
    // Compares the folder with the files, and tells what was found.
    void check();
    // Writes the files of the chosen formats; false if that failed, which the page tells.
    bool exportFiles();
    // The HTML file that is shown or belongs to the selected format; empty: none.
    QString documentPath() const;
    // Writes that document; a failure is told by the page.
    bool savePdf(const QString &path);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildLeft(QWidget *left);
    void buildRight(QWidget *right);
    void buildFolderRow(QVBoxLayout *layout);
    void refreshProgram();
    void watch();
    void readAnew();
    void fail(const QString &reason);
    void showSelected();
    void showFile(const SoftwareFile &file);
    void showMessage(const QString &text);
    void showStates();
    void refreshButtons();
    void chooseFolder();
    void choosePdf();
    void tell(const QStringList &sentences);
    Utils::Bundle bundle() const;

    const Source m_source;
    const QString m_ipcFile;
    QByteArray m_configuration; // the bytes that the files were made of
    bool m_isRead = false;
    QString m_device;   // in words
    QString m_manifest; // name of the file in the folder
    QFileSystemWatcher m_watcher;
    QTimer m_diskTimer;
    SoftwareModel *m_model;
    InfoBar *m_infoBar;
    QTabBar *m_parts;
    QStackedWidget *m_stack;
    ProgramPart *m_program;
    QLabel *m_heading;
    QLabel *m_about;
    QTreeView *m_tree;
    QLabel *m_title;
    QLabel *m_purpose;
    QStackedWidget *m_preview;
    QPlainTextEdit *m_text;
    SoftwareBrowser *m_document;
    QLabel *m_message;
    QLabel *m_told;
    QLineEdit *m_folder;
    QPushButton *m_browse;
    QPushButton *m_check;
    QPushButton *m_pdf;
    QPushButton *m_export;
};

} // namespace Workbench
