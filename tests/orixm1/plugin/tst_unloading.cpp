#include "dialogdriver.h"

#include <dev/devicedb.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QAccessible>
#include <QDialog>
#include <QFile>
#include <QGraphicsView>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QtTest>

using TestSupport::ModalWatcher;

// A host that lets the plug-in go while assistive tools still ask.
class tst_Unloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingOfThePluginIsAskedAfterwards()
    {
        QPluginLoader loader(QStringLiteral(TARVO_PLUGIN_FILE));
        loader.setLoadHints({});
        for (int round = 0; round < 2; ++round) {
            QVector<QAccessible::Id> held = heldWhileTheDialogIsOpen(loader);
            QVERIFY(held.size() > 20);
            for (const QAccessible::Id id : qAsConst(held)) {
                QAccessibleInterface *left = QAccessible::accessibleInterface(id);
                QVERIFY(!left || !left->isValid());
            }
            QVERIFY2(loader.unload(), qPrintable(loader.errorString()));
            QVERIFY(!isMapped());
            QGraphicsView other;
            QVERIFY(QAccessible::queryAccessibleInterface(&other)->isValid());
        }
    }

private:
    static bool isMapped()
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) &&
               maps.readAll().contains(
                   QFileInfo(QStringLiteral(TARVO_PLUGIN_FILE)).canonicalFilePath().toLocal8Bit());
    }

    // Ids of everything below the dialog, as a tool keeps them.
    static QVector<QAccessible::Id> heldWhileTheDialogIsOpen(QPluginLoader &loader)
    {
        QVector<QAccessible::Id> held;
        auto *plugin = qobject_cast<TE::TE_IPCore_Def::IPPlugin *>(loader.instance());
        if (!plugin || !isMapped())
            return held;
        plugin->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
        const std::unique_ptr<TE::TE_IPCore_Def::BaseIPCoreInterface> core(
            plugin->ipCoreInterfaces().value(0));
        const ModalWatcher watcher([&held](QWidget *modal) {
            auto *view = modal->findChild<QGraphicsView *>();
            QAccessibleInterface *diagram = QAccessible::queryAccessibleInterface(view);
            held.append(QAccessible::uniqueId(diagram));
            for (int i = 0; i < diagram->childCount(); ++i)
                held.append(QAccessible::uniqueId(diagram->child(i)));
            qobject_cast<QDialog *>(modal)->reject();
        });
        const QTemporaryDir folder;
        core->createIP(folder.path(), DEV::DeviceDb::bundled().findDevice(
                                          QStringLiteral("TV2KR-18C-QFN88P-C8/I7")));
        return held;
    }
};

QTEST_MAIN(tst_Unloading)
#include "tst_unloading.moc"
