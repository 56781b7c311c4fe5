#include "dialogdriver.h"
#include "testsupport.h"

#include <config/blocks.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <diagram/diagramdialogs.h>

#include <QFileDialog>
#include <QSet>
#include <QtTest>

using namespace TARVOORIXM1;
using namespace TestSupport;

class tst_DiagramDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBlockHasADialogOfItsOwn()
    {
        QSet<QByteArray> kinds;
        QWidget parent;
        QVector<QLatin1String> names = {QLatin1String("CortexM1")};
        for (const Block &block : blocks())
            names.append(block.dialog);
        for (const QLatin1String name : qAsConst(names)) {
            OptionMap map = {
                {Key::ipDeviceId, DEV::DeviceDb::bundled()
                                      .findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"))
                                      .id()}};
            const OptionMap before = map;
            const ModalWatcher watcher([&](QWidget *modal) {
                kinds.insert(modal->metaObject()->className());
                QCOMPARE(modal->parentWidget(), &parent);
                static_cast<QDialog *>(modal)->reject();
            });
            QVERIFY(!runBlockDialog(name, &map, &parent));
            QCOMPARE(watcher.count(), 1);
            QVERIFY(map == before);
        }
        QCOMPARE(kinds.size(), names.size());
        OptionMap map;
        QVERIFY(!runBlockDialog(QLatin1String("NoDlg"), &map, &parent));
    }

    void tellsThatADialogWasAccepted()
    {
        OptionMap map;
        const ModalWatcher watcher([](QWidget *modal) { static_cast<QDialog *>(modal)->accept(); });
        QVERIFY(runBlockDialog(QLatin1String("RTCDlg"), &map, nullptr));
        QVERIFY(map.contains(Key::enableRtc));
    }

    void aPictureThatCannotBeSavedIsTold()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QString asked;
        QString told;
        const ModalWatcher watcher([&](QWidget *modal) {
            if (auto *files = qobject_cast<QFileDialog *>(modal)) {
                files->selectFile(QDir::tempPath() + QStringLiteral("/no-such-picture.svg"));
                static_cast<QDialog *>(modal)->accept();
            } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                told = box->text();
                box->close();
            }
        });
        runSavePictureDialog(nullptr, [&](const QString &path, QString *error) {
            asked = path;
            *error = QStringLiteral("No room.");
            return false;
        });
        QVERIFY(asked.endsWith(QLatin1String("/no-such-picture.svg")));
        QCOMPARE(told, QStringLiteral("No room."));
    }

    void nothingIsSavedWithoutAFile()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        bool saved = false;
        const ModalWatcher watcher([](QWidget *modal) { static_cast<QDialog *>(modal)->reject(); });
        runSavePictureDialog(nullptr, [&](const QString &, QString *) { return saved = true; });
        QVERIFY(!saved);
        QCOMPARE(watcher.count(), 1);
    }
};

QTEST_MAIN(tst_DiagramDialogs)
#include "tst_diagramdialogs.moc"
