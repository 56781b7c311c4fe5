#pragma once

#include <dialogdriver.h>
#include <testsupport.h>

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/editor/editortabs.h>
#include <workbench/messages/messagemodel.h>
#include <workbench/window/mainwindow.h>

#include <dev/devicedb.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QMenu>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// A workbench as a person has it before them.
namespace TestSupport
{

// The real plug-in and a fake one, settings of its own, and a window.
class Bench
{
public:
    // `fake` is the fake plug-in.
    explicit Bench(const char *fake = "blinker")
        : settings(folder() + QStringLiteral("/settings.ini"), QSettings::IniFormat)
    {
        // Windows come and go here; none of them ends the program, and with it the dialogs.
        QApplication::setQuitOnLastWindowClosed(false);
        catalogue.setDataFolders({QStringLiteral(TARVO_SHARE_FOLDER)});
        catalogue.loadFolder(QStringLiteral(TARVO_PLUGIN_FOLDER), true);
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/") + QLatin1String(fake), true);
        reopen();
    }

    // Closes the window and opens a new one on the same settings.
    void reopen()
    {
        window.reset();
        window = std::make_unique<Workbench::MainWindow>(catalogue, settings);
        window->show();
        QApplication::setActiveWindow(window.get());
    }

    QString folder() const { return QFileInfo(m_dir.path()).canonicalFilePath(); }

    // A project "board" in the folder of that name.
    QString makeProject(const char *device = "TV2KR-18C-QFN88P-C8/I7")
    {
        QString error;
        const auto project = Workbench::Project::create(
            folder() + QStringLiteral("/board"), QStringLiteral("board"),
            DEV::DeviceDb::bundled().findDevice(QLatin1String(device)), &error);
        if (!project)
            qFatal("%s", qPrintable(error));
        return project->file();
    }

    // The menu entry with this text, without its "&" and "…".
    QAction *action(const char *text) const
    {
        const QStringList names = englishNames.isEmpty() ? namesOfActions() : englishNames;
        const int index = names.indexOf(QLatin1String(text));
        if (index < 0 || index >= actions().size())
            qFatal("there is no action \"%s\"", text);
        return actions().at(index);
    }

    // What action() finds in the window as it is.
    QStringList namesOfActions() const
    {
        QStringList names;
        for (const QAction *action : actions()) {
            QString name = action->text();
            name.remove(u'&');
            name.remove(QChar(0x2026));
            names.append(name);
        }
        return names;
    }

    QStringList tabTexts() const
    {
        QStringList texts;
        for (int i = 0; i < window->tabs()->count(); ++i)
            texts.append(window->tabs()->tabText(i));
        return texts;
    }

    QString message(int row) const { return window->messages()->index(row, 0).data().toString(); }

    static QAbstractButton *ok(QWidget *dialog)
    {
        const auto *buttons = dialog->findChild<QDialogButtonBox *>();
        return buttons ? buttons->button(QDialogButtonBox::Ok) : nullptr;
    }

private:
    QList<QAction *> actions() const
    {
        // Others are of context menus.
        return window->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    }

    QTemporaryDir m_dir;

public:
    QStringList englishNames; // of a window in another language, the names of a new one's actions
    QSettings settings;
    Workbench::IpCatalogue catalogue;
    std::unique_ptr<Workbench::MainWindow> window;
};

// Puts a program "yosys" that does something else first on PATH while it lives.
class FakeTool
{
public:
    explicit FakeTool(const char *kind)
    {
        qputenv("PATH", QByteArray(TARVO_FAKE_TOOLS "/") + kind + ':' + m_before);
    }
    ~FakeTool() { qputenv("PATH", m_before); }

private:
    QByteArray m_before = qgetenv("PATH");
};

} // namespace TestSupport
