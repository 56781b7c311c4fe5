#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/widgets/fontconfiguration.h>
#include <workbench/widgets/infobar.h>
#include <workbench/widgets/programstyle.h>
#include <workbench/widgets/symbolicon.h>
#include <workbench/window/mainwindow.h>
#include <workbench/window/startpage.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QPainter>
#include <QRegularExpression>
#include <QSettings>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <utility>

using namespace Workbench;

namespace
{

// Counts how often start pages are filled while it lives.
class Fillings : public QObject
{
    Q_OBJECT

public:
    Fillings() { qApp->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *page = qobject_cast<const StartPage *>(watched->parent());
        if (event->type() == QEvent::ChildAdded && page && watched == page->viewport())
            ++count;
        return false;
    }
};

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The path of its file: a project in a folder of its own, with IPs.
QString makeProject(const QString &folder, int ips)
{
    QString error;
    const auto project = Project::create(folder, QStringLiteral("p"), {}, &error);
    for (int i = 0; i < ips; ++i) {
        QDir(folder).mkdir(QStringLiteral("ip%1").arg(i));
        if (!write(folder + QStringLiteral("/ip%1/a.ipc").arg(i), "[General]\ntype=none\n"))
            return {};
    }
    return project ? project->file() : QString();
}

// Of the tabs, those whose files have been read.
QList<int> readTabs(const EditorTabs *tabs)
{
    QList<int> read;
    for (int i = 0; i < tabs->count(); ++i) {
        if (!tabs->widget(i)->findChild<CodeEditor *>()->document()->isEmpty())
            read.append(i);
    }
    return read;
}

// The fonts' library, of which a configuration's files and number of fonts are asked.
class FontLibrary
{
public:
    struct Configuration;

    template <typename Result, typename... Arguments>
    Result call(const char *function, Arguments... arguments)
    {
        const auto address =
            reinterpret_cast<Result (*)(Arguments...)>(m_library.resolve(function));
        if (!address)
            qFatal("there is no %s", function);
        return address(arguments...);
    }

    QList<QByteArray> texts(const char *function, Configuration *configuration)
    {
        struct Texts;
        auto *list = call<Texts *>(function, configuration);
        QList<QByteArray> result;
        while (const char *text = call<char *>("FcStrListNext", list))
            result.append(text);
        call<void>("FcStrListDone", list);
        return result;
    }

    int fontsOf(Configuration *configuration)
    {
        constexpr int system = 0;
        return *call<int *>("FcConfigGetFonts", configuration, system);
    }

private:
    QLibrary m_library{QStringLiteral("fontconfig"), 1};
};

} // namespace

// What a start does is counted here; the benches time it.
class TestStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstWindowLoadsNoLibraryForLater()
    {
        readFontConfiguration().wait();
        QApplication::setStyle(new ProgramStyle);
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        IpCatalogue catalogue;
        MainWindow window(catalogue, settings);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(!window.grab().isNull());
        QFile maps(QStringLiteral("/proc/self/maps"));
        QVERIFY(maps.open(QIODevice::ReadOnly));
        const QByteArray mapped = maps.readAll();
        QVERIFY(mapped.contains("libQt5Widgets"));
        for (const char *later : {"/imageformats/", "/iconengines/", "SyntaxHighlighting"})
            QVERIFY2(!mapped.contains(later), later);
    }

    void theFontsAreTheSystems()
    {
        readFontConfiguration().wait();
        FontLibrary library;
        using Configuration = FontLibrary::Configuration;
        auto *current = library.call<Configuration *>("FcConfigGetCurrent");
        auto *usual = library.call<Configuration *>("FcInitLoadConfigAndFonts");
        for (const char *list : {"FcConfigGetConfigFiles", "FcConfigGetCacheDirs",
                                 "FcConfigGetFontDirs", "FcConfigGetConfigDirs"}) {
            const QList<QByteArray> files = library.texts(list, current);
            QVERIFY2(!files.isEmpty(), list);
            QCOMPARE(files, library.texts(list, usual));
        }
        QVERIFY(library.fontsOf(current) > 0);
        QCOMPARE(library.fontsOf(current), library.fontsOf(usual));
        library.call<void>("FcConfigDestroy", usual);
    }

    void theStartPageIsFilledOnceForWhatIsSeen()
    {
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        const QString first = makeProject(dir.filePath(QStringLiteral("first")), 3);
        const QString second = makeProject(dir.filePath(QStringLiteral("second")), 3);
        IpCatalogue catalogue;
        Fillings fillings;
        const auto since = [&fillings] {
            QCoreApplication::processEvents();
            return std::exchange(fillings.count, 0);
        };
        MainWindow window(catalogue, settings);
        QCOMPARE(since(), 0);
        QVERIFY(window.beginWith(first));
        window.show();
        QCOMPARE(since(), 1);
        QVERIFY(window.openProject(second));
        QCOMPARE(since(), 1);
        // Of the sources it tells nothing.
        window.project()->addFiles({dir.filePath(QStringLiteral("a.v"))});
        QCOMPARE(since(), 0);
        QVERIFY(write(dir.filePath(QStringLiteral("second/ip0/b.ipc")), "[General]\n"));
        QTRY_COMPARE(fillings.count, 1);
        QCOMPARE(since(), 1);
        QVERIFY(window.closeProject());
        QCOMPARE(since(), 1);
        // Not while a file is in front of it, nor if it would be the same.
        QVERIFY(window.openPath(first, 1));
        QCOMPARE(since(), 0);
        window.hide();
        window.show();
        QVERIFY(window.tabs()->closeAll());
        QCOMPARE(since(), 0);
    }

    // Each writing waits for the disk, before anything is seen.
    void theSameStartAgainWritesNoSettings()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("settings.ini"));
        QSettings settings(path, QSettings::IniFormat);
        const QString project = makeProject(dir.filePath(QStringLiteral("p")), 1);
        IpCatalogue catalogue;
        const auto start = [&] {
            MainWindow window(catalogue, settings);
            QVERIFY(window.beginWith(project));
            window.show();
            QCoreApplication::processEvents();
        };
        start();
        settings.sync();
        // Whoever writes the settings puts another file in this one's place, whose number is
        // another as long as this one is open.
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        struct stat before = {};
        struct stat after = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &before), 0);
        start();
        settings.sync();
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
        QVERIFY(settings.value(QStringLiteral("recentProjects")).toStringList().contains(project));
    }

    void aProjectThatCannotBeOpenedIsLeftForTheWindowToTell()
    {
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        const QString broken = dir.filePath(QStringLiteral("p.tvproj"));
        QVERIFY(write(broken, "{"));
        IpCatalogue catalogue;
        MainWindow window(catalogue, settings);
        QVERIFY(!window.beginWith(broken));
        QVERIFY(!window.project());
        QVERIFY(window.infoBar()->isHidden());
    }

    void onlyTheTabInFrontIsReadWhenTabsComeBack_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::newRow("into a window that is there") << true;
        QTest::newRow("before the window is shown") << false;
    }
    void onlyTheTabInFrontIsReadWhenTabsComeBack()
    {
        QFETCH(bool, isShown);
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        const QString project = makeProject(dir.filePath(QStringLiteral("p")), 0);
        IpCatalogue catalogue;
        QStringList files;
        {
            MainWindow window(catalogue, settings);
            window.show();
            QVERIFY(window.openProject(project));
            for (int i = 0; i < 6; ++i) {
                files.append(dir.filePath(QStringLiteral("f%1.v").arg(i)));
                QVERIFY(write(files.last(), QByteArray("line\n").repeated(300)));
                QVERIFY(window.openPath(files.last(), 200 + i));
            }
            window.tabs()->setCurrentIndex(2);
            QVERIFY(window.close());
        }
        MainWindow window(catalogue, settings);
        if (isShown)
            window.show();
        window.restoreSession();
        window.show();
        QCoreApplication::processEvents();
        EditorTabs *tabs = window.tabs();
        QCOMPARE(tabs->count(), 6);
        QCOMPARE(tabs->currentIndex(), 2);
        QCOMPARE(readTabs(tabs), QList<int>{2});
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(tabs->pageOf(files.at(i)), tabs->widget(i));
            QCOMPARE(tabs->pages().at(i)->place().line, 200 + i);
            QVERIFY(!tabs->pages().at(i)->isModified());
        }
        // Looking at the disk or saving everything reads nothing; what is written is the file.
        for (EditorPage *page : tabs->pages())
            page->checkDisk();
        tabs->saveAll();
        QCOMPARE(readTabs(tabs), QList<int>{2});
        QString error;
        QVERIFY(tabs->pages().at(4)->save(&error));
        QCOMPARE(QFileInfo(files.at(4)).size(), qint64(1500));
        tabs->setCurrentIndex(3);
        QCOMPARE(readTabs(tabs), QList<int>({2, 3, 4}));
        QCOMPARE(tabs->currentPage()->editor()->currentLine(), 203);
        // Who asks for the text gets it.
        QCOMPARE(tabs->pages().at(5)->editor()->lineCount(), 301);
        // A file that went meanwhile is told when its tab is seen, and is not written.
        QVERIFY(QFile::remove(files.at(0)));
        tabs->setCurrentIndex(0);
        EditorPage *gone = tabs->currentPage();
        QVERIFY(!gone->infoBar()->isHidden());
        QVERIFY2(gone->infoBar()->text().contains(files.at(0)),
                 qPrintable(gone->infoBar()->text()));
        QVERIFY(!gone->isModified());
        gone->startEditing();
        QVERIFY(!gone->isEditable());
        QVERIFY(!gone->save(&error));
        QVERIFY(!QFile::exists(files.at(0)));
        // And shown when it is back.
        QVERIFY(write(files.at(0), "back\n"));
        gone->checkDisk();
        QCOMPARE(gone->editor()->toPlainText(), QStringLiteral("back\n"));
    }

    // What the build takes from a symbol's file is what the file draws.
    void symbolsLookAsTheirFilesDo()
    {
        QVERIFY(!symbolIcon(QStringLiteral("open")).isNull());
        const QDir folder(QStringLiteral(":/workbench/icons"));
        const QStringList names = folder.entryList(QDir::Files);
        QVERIFY(names.size() > 20);
        const QPalette palette = QGuiApplication::palette();
        const struct {
            QIcon::Mode mode;
            QColor ink;
        } cases[] = {{QIcon::Normal, palette.color(QPalette::Active, QPalette::WindowText)},
                     {QIcon::Disabled, palette.color(QPalette::Disabled, QPalette::WindowText)},
                     {QIcon::Selected, palette.color(QPalette::HighlightedText)}};
        const QRegularExpression ownColour(QStringLiteral("\"#[0-9a-fA-F]{3,6}\""));
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString svg = QString::fromUtf8(file.readAll());
            for (const auto &row : cases) {
                QString coloured = svg;
                coloured.replace(QLatin1String("currentColor"), row.ink.name());
                if (row.mode == QIcon::Selected)
                    coloured.replace(ownColour, u'"' + row.ink.name() + u'"');
                QSvgRenderer renderer(coloured.toUtf8());
                for (int side : {12, 16, 20, 24, 25, 32, 48, 64}) {
                    QImage expected(side, side, QImage::Format_ARGB32_Premultiplied);
                    expected.fill(Qt::transparent);
                    QPainter painter(&expected);
                    renderer.render(&painter, QRectF(0, 0, side, side));
                    painter.end();
                    const QImage drawn = symbolIcon(QFileInfo(name).completeBaseName())
                                             .pixmap(QSize(side, side), row.mode)
                                             .toImage()
                                             .convertToFormat(expected.format());
                    QVERIFY2(drawn == expected, qPrintable(QStringLiteral("%1, mode %2, %3 pixels")
                                                               .arg(name)
                                                               .arg(row.mode)
                                                               .arg(side)));
                }
            }
        }
    }

    void theProgramsOwnPicturesAreThere()
    {
        const ProgramStyle style;
        for (const auto picture :
             {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_CommandLink,
              QStyle::SP_TitleBarCloseButton, QStyle::SP_TitleBarNormalButton})
            QVERIFY(!style.standardIcon(picture).pixmap(16).isNull());
    }
};

QTEST_MAIN(TestStart)
#include "tst_start.moc"
