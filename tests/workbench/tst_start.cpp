#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/widgets/fontconfiguration.h>
#include <workbench/widgets/programstyle.h>
#include <workbench/window/mainwindow.h>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Workbench;

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
