// The whole job through the accessibility bus: what a screen reader's user has, and nothing else.

#include <markedprocesses.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;

namespace
{

constexpr int patience = 60000; // milliseconds for what the program does at once
constexpr int forARun = 240000; // for a synthesis

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

// Bits of a state as the bus has them.
enum State { Checked = 4, Enabled = 8, Focusable = 11, Focused = 12, Sensitive = 24, Showing = 25 };

// An object of the program, as the bus names it.
struct Node {
    QString bus;
    QString path;

    bool isNull() const { return path.isEmpty(); }
    bool operator==(const Node &other) const { return bus == other.bus && path == other.path; }
};

const QDBusArgument &operator>>(const QDBusArgument &argument, Node &node)
{
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> node.bus >> path;
    argument.endStructure();
    node.path = path.path();
    return argument;
}

// What the bus tells of, while it lives.
class Events : public QObject
{
    Q_OBJECT

public:
    bool has(const Node &node, const char *what, int value) const
    {
        return m_seen.contains(key(node.path, latin1(what), value));
    }

public Q_SLOTS:
    void onStateChanged(const QDBusMessage &message)
    {
        m_seen.append(key(message.path(), message.arguments().value(0).toString(),
                          message.arguments().value(1).toInt()));
    }

private:
    static QString key(const QString &path, const QString &what, int value)
    {
        return path + u' ' + what + u' ' + QString::number(value);
    }

    QStringList m_seen;
};

// A display, a session bus and an accessibility bus of its own, which end with it.
class Session
{
public:
    explicit Session(const Mark &mark)
        : m_environment(QProcessEnvironment::systemEnvironment())
    {
        const QString home = m_home.path();
        m_environment.insert(QLatin1String(mark.name()), QLatin1String(mark.value()));
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            m_environment.insert(latin1(name), home);
        m_environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        m_environment.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
        m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"),
                             QStringLiteral("1"));
        // What the display's libraries leave behind is no matter of this test.
        m_environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    }

    ~Session()
    {
        QDBusConnection::disconnectFromBus(latin1("accessibility"));
        QDBusConnection::disconnectFromBus(latin1("session"));
        // The launcher of the accessibility bus ends with the session's.
        for (QProcess *process : {&m_program, &m_bus, &m_display}) {
            process->terminate();
            if (!process->waitForFinished(10000))
                process->kill();
            process->waitForFinished(10000);
        }
    }

    // Why there is no such session here; empty: it is there.
    QString start()
    {
        const QString display = firstLine(m_display, QStringLiteral("Xvfb"),
                                          {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                           QStringLiteral("-noreset"), QStringLiteral("-screen"),
                                           QStringLiteral("0"), QStringLiteral("1366x768x24"),
                                           QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        if (display.isEmpty())
            return QStringLiteral("Xvfb does not start: ") + m_display.errorString();
        m_environment.insert(QStringLiteral("DISPLAY"), u':' + display);
        const QString address = firstLine(m_bus, QStringLiteral("dbus-daemon"),
                                          {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                           QStringLiteral("--print-address=1")});
        if (address.isEmpty())
            return QStringLiteral("dbus-daemon does not start: ") + m_bus.errorString();
        m_environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
        QDBusConnection session = QDBusConnection::connectToBus(address, latin1("session"));
        const QDBusMessage answer = session.call(
            QDBusMessage::createMethodCall(latin1("org.a11y.Bus"), latin1("/org/a11y/bus"),
                                           latin1("org.a11y.Bus"), latin1("GetAddress")),
            QDBus::Block, patience);
        if (answer.type() != QDBusMessage::ReplyMessage)
            return answer.errorMessage();
        QDBusConnection bus = QDBusConnection::connectToBus(answer.arguments().value(0).toString(),
                                                            latin1("accessibility"));
        // A program sends what somebody has asked for.
        QDBusMessage wish = QDBusMessage::createMethodCall(
            latin1(registry), latin1("/org/a11y/atspi/registry"), latin1("org.a11y.atspi.Registry"),
            latin1("RegisterEvent"));
        wish.setArguments({latin1("object:"), QStringList(), QString()});
        const QDBusMessage registered = bus.call(wish, QDBus::Block, patience);
        if (registered.type() != QDBusMessage::ReplyMessage)
            return registered.errorMessage();
        bus.connect(QString(), QString(), latin1("org.a11y.atspi.Event.Object"),
                    latin1("StateChanged"), &events, SLOT(onStateChanged(QDBusMessage)));
        return {};
    }

    QProcess &startProgram()
    {
        m_program.setProcessEnvironment(m_environment);
        m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_program.start(QStringLiteral(TARVO_WORKBENCH), QStringList());
        return m_program;
    }

    QString home() const { return m_home.path(); }

    static constexpr char registry[] = "org.a11y.atspi.Registry";
    Events events;

private:
    QString firstLine(QProcess &process, const QString &program, const QStringList &arguments)
    {
        process.setProcessEnvironment(m_environment);
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(patience))
                return {};
        }
        return QString::fromLatin1(process.readLine()).trimmed();
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_display;
    QProcess m_bus;
    QProcess m_program;
};

// Hands and ears at the bus.
namespace Bus
{

QDBusMessage message(const Node &node, const char *interface, const char *method,
                     const QVariantList &arguments = {})
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(node.bus, node.path, latin1(interface), latin1(method));
    message.setArguments(arguments);
    return message;
}

// Null of what is no longer there.
QVariant ask(const Node &node, const char *interface, const char *method,
             const QVariantList &arguments = {})
{
    const QDBusMessage answer =
        QDBusConnection(latin1("accessibility"))
            .call(message(node, interface, method, arguments), QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr char action[] = "org.a11y.atspi.Action";

QVariant property(const Node &node, const char *interface, const char *name)
{
    return ask(node, "org.freedesktop.DBus.Properties", "Get", {latin1(interface), latin1(name)})
        .value<QDBusVariant>()
        .variant();
}

QString nameOf(const Node &node)
{
    return property(node, accessible, "Name").toString();
}

QString roleOf(const Node &node)
{
    return ask(node, accessible, "GetRoleName").toString();
}

bool is(const Node &node, State state)
{
    const auto bits = qdbus_cast<QList<uint>>(ask(node, accessible, "GetState"));
    return (bits.value(state / 32) >> (state % 32)) & 1U;
}

QList<Node> childrenOf(const Node &node)
{
    QList<Node> nodes;
    const QVariant answer = ask(node, accessible, "GetChildren");
    if (!answer.canConvert<QDBusArgument>())
        return nodes;
    const auto list = answer.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Node child;
        list >> child;
        nodes.append(child);
    }
    list.endArray();
    return nodes;
}

// The first that is shown, has the role, and a name that begins so. Views are looked through for
// their own cells only.
Node find(const Node &from, const char *role, const char *name)
{
    const QString itsRole = roleOf(from);
    if (itsRole == latin1(role) && nameOf(from).startsWith(latin1(name)) && is(from, Showing))
        return from;
    const QString wanted = latin1(role);
    const bool isView = itsRole == latin1("table") || itsRole == latin1("tree");
    if (isView && wanted != latin1("cell") && wanted != latin1("tree item"))
        return {};
    const QList<Node> children = childrenOf(from);
    for (const Node &child : children) {
        const Node found = find(child, role, name);
        if (!found.isNull())
            return found;
    }
    return {};
}

// Below all windows of all programs.
Node findAnywhere(const char *role, const char *name)
{
    return find({latin1(Session::registry), latin1("/org/a11y/atspi/accessible/root")}, role, name);
}

// As soon as it is there; null after a while.
template <class Finder>
Node awaited(const Finder &finder, int milliseconds = patience)
{
    Node node;
    return QTest::qWaitFor(
               [&] {
                   node = finder();
                   return !node.isNull();
               },
               milliseconds)
               ? node
               : Node();
}

Node await(const char *role, const char *name, int milliseconds = patience)
{
    return awaited([=] { return findAnywhere(role, name); }, milliseconds);
}

// False where there is no such action. Does not wait for what it opens.
bool act(const Node &node, const char *name)
{
    const QVariant answer = ask(node, action, "GetActions");
    if (!answer.canConvert<QDBusArgument>())
        return false;
    const auto list = answer.value<QDBusArgument>();
    int found = -1;
    list.beginArray();
    for (int i = 0; !list.atEnd(); ++i) {
        QString actionName;
        QString description;
        QString keys;
        list.beginStructure();
        list >> actionName >> description >> keys;
        list.endStructure();
        if (actionName.compare(latin1(name), Qt::CaseInsensitive) == 0)
            found = i;
    }
    list.endArray();
    return found >= 0 && QDBusConnection(latin1("accessibility"))
                             .send(message(node, action, "DoAction", {found}));
}

bool setText(const Node &node, const QString &text)
{
    return ask(node, "org.a11y.atspi.EditableText", "SetTextContents", {text}).toBool();
}

QString textOf(const Node &node)
{
    constexpr char text[] = "org.a11y.atspi.Text";
    return ask(node, text, "GetText", {0, property(node, text, "CharacterCount").toInt()})
        .toString();
}

} // namespace Bus

} // namespace

class TestAssistive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromAnEmptyFolderToANetlist();

private:
    // Each ends the test where it fails.
    void makeProject(Session &session);
    void configureAndGenerate(Session &session);
    void readResults();
};

#define PRESS(node, action) QVERIFY2(Bus::act(node, action), qPrintable(Bus::nameOf(node)))

void TestAssistive::makeProject(Session &session)
{
    const Node create = Bus::await("push button", "New project");
    QVERIFY(!create.isNull());
    PRESS(create, "Press");
    const Node dialog = Bus::await("dialog", "New Project");
    QVERIFY(!dialog.isNull());
    const Node ok = Bus::find(dialog, "push button", "Create Project");
    QVERIFY(!ok.isNull() && !Bus::is(ok, Sensitive));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Name:"), QStringLiteral("sensor")));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Create in:"), session.home()));
    QVERIFY(Bus::setText(Bus::find(dialog, "text", "Filter of the devices"),
                         QStringLiteral("TV1KL-5A")));
    const Node device =
        Bus::awaited([&] { return Bus::find(dialog, "cell", "TV1KL-LV5QN48C6/I5"); });
    QVERIFY(!device.isNull());
    PRESS(device, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(ok, Sensitive); }, patience));
    PRESS(ok, "Press");
}

void TestAssistive::configureAndGenerate(Session &session)
{
    // The catalogue.
    const Node ip = Bus::await("tree item", "Tarvo_ORIX_M1");
    QVERIFY(!ip.isNull());
    PRESS(ip, "Toggle");
    const Node create = Bus::awaited([] {
        const Node button = Bus::findAnywhere("push button", "Create IP");
        return Bus::is(button, Sensitive) ? button : Node();
    });
    QVERIFY(!create.isNull());
    PRESS(create, "Press");

    // The diagram.
    const Node dialog = Bus::await("dialog", "Tarvo ORIX M1");
    QVERIFY(!dialog.isNull());
    const Node gpio = Bus::find(dialog, "check box", "GPIO");
    const Node trng = Bus::find(dialog, "check box", "TRNG");
    QVERIFY(!gpio.isNull() && !trng.isNull());
    QVERIFY(!Bus::is(gpio, Checked) && Bus::is(gpio, Focusable) && Bus::is(gpio, Enabled));
    PRESS(gpio, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return session.events.has(gpio, "checked", 1); }, patience));
    QVERIFY(Bus::is(gpio, Checked));
    QVERIFY(!Bus::is(trng, Checked));
    PRESS(trng, "SetFocus");
    QVERIFY(QTest::qWaitFor([&] { return session.events.has(trng, "focused", 1); }, patience));
    QVERIFY(Bus::is(trng, Focused));

    // The dialog of a block.
    PRESS(trng, "Press");
    const Node block = Bus::await("dialog", "TRNG");
    QVERIFY(!block.isNull());
    const Node enable = Bus::find(block, "check box", "Enable TRNG");
    PRESS(enable, "Toggle");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(enable, Checked); }, patience));
    PRESS(Bus::find(block, "push button", "OK"), "Press");
    QVERIFY(QTest::qWaitFor([&] { return Bus::is(trng, Checked); }, patience));
    PRESS(Bus::find(dialog, "push button", "OK"), "Press");
}

void TestAssistive::readResults()
{
    QVERIFY(!Bus::await("page tab", "Results", forARun).isNull());
    const Node summary = Bus::await("label", "Used ");
    QVERIFY(!summary.isNull());
    QVERIFY2(Bus::nameOf(summary).contains(latin1("LUT4")), qPrintable(Bus::nameOf(summary)));
    QVERIFY(Bus::nameOf(summary).contains(latin1("trng_core")));
    QVERIFY(!Bus::findAnywhere("cell", "LUT4").isNull());
    const Node figure = Bus::findAnywhere("list", "Pins of tarvo_orix_m1");
    QVERIFY(!figure.isNull());
    QStringList pins;
    for (const Node &pin : Bus::childrenOf(figure))
        pins.append(Bus::nameOf(pin));
    QVERIFY2(pins.join(u' ').contains(latin1("gpio"), Qt::CaseInsensitive) &&
                 pins.join(u' ').contains(latin1("bidirectional")),
             qPrintable(pins.join(u' ')));

    const Node tab = Bus::findAnywhere("page tab", "tarvo_orix_m1.v");
    QVERIFY(!tab.isNull());
    PRESS(tab, "Press");
    const Node netlist = Bus::await("text", "tarvo_orix_m1.v");
    QVERIFY(!netlist.isNull());
    const QString text = Bus::textOf(netlist);
    QVERIFY(text.contains(latin1("module")) && text.contains(latin1("GPIO")) &&
            text.contains(latin1("TV_LUT4")));
}

void TestAssistive::fromAnEmptyFolderToANetlist()
{
    const Mark mark;
    {
        Session session(mark);
        const QString missing = session.start();
        QVERIFY2(missing.isEmpty(), qPrintable(missing));
        QProcess &program = session.startProgram();
        QVERIFY(program.waitForStarted());
        makeProject(session);
        if (!QTest::currentTestFailed())
            configureAndGenerate(session);
        if (!QTest::currentTestFailed())
            readResults();
        if (!QTest::currentTestFailed()) {
            const QString netlist =
                session.home() + QStringLiteral("/sensor/tarvo_orix_m1/tarvo_orix_m1.v");
            QVERIFY(QFileInfo(netlist).size() > 1000);
            Node quit;
            const Node bar = Bus::findAnywhere("menu bar", "");
            for (const Node &menu : Bus::childrenOf(bar)) {
                for (const Node &popup : Bus::childrenOf(menu)) {
                    for (const Node &item : Bus::childrenOf(popup)) {
                        if (Bus::nameOf(item) == latin1("Quit"))
                            quit = item;
                    }
                }
            }
            PRESS(quit, "Press");
            QVERIFY(
                QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, patience));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), 0);
        }
    }
    QVERIFY(QTest::qWaitFor([&] { return mark.processes().isEmpty(); }, patience));
}

QTEST_GUILESS_MAIN(TestAssistive)
#include "tst_assistive.moc"
