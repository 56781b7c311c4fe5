#include <testsupport.h>

#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QTest>

using namespace TE::TE_IPCore_Def;

namespace
{

// An IP with the operations that every IP must have, and no more.
class PlainIp : public BaseIPCoreInterface
{
public:
    explicit PlainIp(bool *destroyed = nullptr)
        : m_destroyed(destroyed)
    {
    }
    ~PlainIp() override
    {
        if (m_destroyed)
            *m_destroyed = true;
    }
    void createIP(QString, DEV::DeviceArg) override {}
    void openIP(QString, QString) override {}
    bool initialize() override { return true; }
    QString version() override { return QStringLiteral("1.0"); }
    QString id() override { return QStringLiteral("plain.id"); }
    QString name() override { return QStringLiteral("Plain %1 \"IP\""); }
    QStringList category() override { return {}; }
    QString summary() override { return {}; }
    bool isSupported(DEV::DeviceArg) override { return true; }

private:
    bool *m_destroyed;
};

class PlainPlugin : public IPPlugin
{
    Q_OBJECT
    Q_INTERFACES(TE::TE_IPCore_Def::IPPlugin)

public:
    using IPPlugin::IPPlugin;
    QList<BaseIPCoreInterface *> ipCoreInterfaces() override { return {new PlainIp}; }
};

} // namespace

class TestIPPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void creatingByScriptSaysThatTheIpCannot()
    {
        PlainIp ip;
        QVariantMap options = {{QStringLiteral("key"), 1}};
        QStringList errors = {QStringLiteral("earlier")};
        QVERIFY(!ip.createByTcl(options, DEV::DeviceArg(), errors));
        QCOMPARE(errors.size(), 2);
        QCOMPARE(errors.first(), QStringLiteral("earlier"));
        QVERIFY2(errors.last().contains(ip.name()), qPrintable(errors.last()));
        QCOMPARE(options, (QVariantMap{{QStringLiteral("key"), 1}}));
    }

    void openingByScriptSaysThatTheIpCannot()
    {
        PlainIp ip;
        QVariantMap options = {{QStringLiteral("key"), 1}};
        QStringList errors;
        QVERIFY(!ip.openByTcl(QStringLiteral("/a"), QStringLiteral("/a/b.ipc"), options, errors));
        QCOMPARE(errors.size(), 1);
        QVERIFY2(errors.first().contains(ip.name()), qPrintable(errors.first()));
        QCOMPARE(options, (QVariantMap{{QStringLiteral("key"), 1}}));
    }

    void hasNoMapsByItself()
    {
        PlainIp ip;
        QVERIFY(ip.getIpinfoMap().isEmpty());
        QVERIFY(ip.getOptionMap().isEmpty());
    }

    void isDestroyedThroughItsBase()
    {
        bool destroyed = false;
        const BaseIPCoreInterface *ip = new PlainIp(&destroyed);
        delete ip;
        QVERIFY(destroyed);
    }

    void carriesTheDataFolder()
    {
        PlainPlugin plugin;
        QCOMPARE(plugin.dataPath(), QString());
        plugin.setDataPath(QStringLiteral("/data/größe %1"));
        QCOMPARE(plugin.dataPath(), QStringLiteral("/data/größe %1"));
    }

    void isFoundByItsInterfaceId()
    {
        QObject parent;
        auto *plugin = new PlainPlugin(&parent);
        QObject *object = plugin;
        QCOMPARE(qobject_cast<IPPlugin *>(object), static_cast<IPPlugin *>(plugin));
        QVERIFY(object->qt_metacast("tarvo.plugins.IPPlugin/1.0"));
        QVERIFY(!object->qt_metacast("tarvo.plugins.IPPlugin/2.0"));
        QCOMPARE(QByteArray(qobject_interface_iid<IPPlugin *>()),
                 QByteArray("tarvo.plugins.IPPlugin/1.0"));
        QCOMPARE(plugin->parent(), &parent);
    }

    void handsOutNewObjectsOnEveryCall()
    {
        PlainPlugin plugin;
        const QList<BaseIPCoreInterface *> first = plugin.ipCoreInterfaces();
        const QList<BaseIPCoreInterface *> second = plugin.ipCoreInterfaces();
        QVERIFY(first.first() != second.first());
        qDeleteAll(first);
        qDeleteAll(second);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestIPPlugin)
#include "tst_ipplugin.moc"
