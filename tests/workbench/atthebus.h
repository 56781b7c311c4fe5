#pragma once

#include <markedprocesses.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcess>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

// A workbench as a screen reader's user has it: nothing but the accessibility bus (AT-SPI), and a
// keyboard.
namespace TestSupport
{

constexpr int patience = 60000; // milliseconds for what the program does at once
constexpr int forARun = 240000; // for a synthesis

inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

// Bits of a state as the bus has them.
enum State {
    Active = 1,
    Checked = 4,
    Enabled = 8,
    Focusable = 11,
    Focused = 12,
    Sensitive = 24,
    Showing = 25
};

// An object of the program, as the bus names it.
struct Node {
    QString bus;
    QString path;

    bool isNull() const { return path.isEmpty(); }
    bool operator==(const Node &other) const { return bus == other.bus && path == other.path; }
};

inline const QDBusArgument &operator>>(const QDBusArgument &argument, Node &node)
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

    // What has got the focus last; null until something has.
    Node focused() const { return m_focused; }
    // How often something has got the focus.
    int focusCount() const { return m_focusCount; }

public Q_SLOTS:
    void onStateChanged(const QDBusMessage &message)
    {
        m_seen.append(key(message.path(), message.arguments().value(0).toString(),
                          message.arguments().value(1).toInt()));
        if (message.arguments().value(0).toString() == latin1("focused") &&
            message.arguments().value(1).toInt() == 1) {
            m_focused = {message.service(), message.path()};
            ++m_focusCount;
        }
    }

private:
    static QString key(const QString &path, const QString &what, int value)
    {
        return path + u' ' + what + u' ' + QString::number(value);
    }

    QStringList m_seen;
    Node m_focused;
    int m_focusCount = 0;
};

// What a window manager does for the keyboard: it goes to the window that has come up last, unless
// that does not want it.
class Focus : public QObject
{
public:
    explicit Focus(const QString &display)
        : m_connection(xcb_connect(qPrintable(display), nullptr))
        , m_notifier(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read)
    {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
        connect(&m_notifier, &QSocketNotifier::activated, this, [this] { readEvents(); });
        // A program may have given it to a window that went.
        connect(&m_check, &QTimer::timeout, this, &Focus::give);
        m_check.start(200);
    }

    ~Focus() override { xcb_disconnect(m_connection); }

private:
    struct Freed {
        void operator()(void *memory) const { std::free(memory); }
    };

    void readEvents()
    {
        if (xcb_connection_has_error(m_connection)) {
            m_notifier.setEnabled(false);
            return;
        }
        const QVector<xcb_window_t> before = m_windows;
        while (const std::unique_ptr<xcb_generic_event_t, Freed> event{
            xcb_poll_for_event(m_connection)}) {
            const int kind = event->response_type & 0x7f;
            if (kind == XCB_MAP_NOTIFY) {
                const auto *map = reinterpret_cast<xcb_map_notify_event_t *>(event.get());
                if (map->override_redirect)
                    continue;
                m_shown.insert(map->window);
                if (wantsKeys(map->window))
                    m_windows.append(map->window);
            } else if (kind == XCB_UNMAP_NOTIFY) {
                const auto window =
                    reinterpret_cast<xcb_unmap_notify_event_t *>(event.get())->window;
                m_windows.removeAll(window);
                m_shown.remove(window);
            }
        }
        if (m_windows != before)
            m_given = XCB_NONE;
    }

    void give()
    {
        readEvents(); // that came with an answer
        if (m_windows.isEmpty() || xcb_connection_has_error(m_connection))
            return;
        const std::unique_ptr<xcb_get_input_focus_reply_t, Freed> has(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        // Where the program has led it to is its own matter.
        if (m_given == m_windows.last() && has && m_shown.contains(has->focus))
            return;
        m_given = m_windows.last();
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_given, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }

    // Not one with the time 0 of its user's last action, by the rules of window managers.
    bool wantsKeys(xcb_window_t window) const
    {
        static const char name[] = "_NET_WM_USER_TIME";
        const std::unique_ptr<xcb_intern_atom_reply_t, Freed> atom(xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, sizeof(name) - 1, name), nullptr));
        if (!atom)
            return true;
        const std::unique_ptr<xcb_get_property_reply_t, Freed> time(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, window, atom->atom, XCB_ATOM_CARDINAL, 0, 1),
            nullptr));
        return !time || xcb_get_property_value_length(time.get()) != sizeof(std::uint32_t) ||
               *static_cast<std::uint32_t *>(xcb_get_property_value(time.get())) != 0;
    }

    xcb_connection_t *m_connection;
    QSocketNotifier m_notifier;
    QTimer m_check;
    QVector<xcb_window_t> m_windows; // that want keys, the last one on top
    QSet<xcb_window_t> m_shown;      // all
    xcb_window_t m_given = XCB_NONE;
};

// A display, a session bus and an accessibility bus of its own, which end with it, and the
// workbench on them: TARVO_TEST_WORKBENCH, words with blanks between, in its place where that is
// set. Folders are made below TARVO_TEST_WORKBENCH_FOLDER then, if that is set; they must have the
// same paths for that program.
class Session
{
public:
    explicit Session(const Mark &mark)
        : m_home(folderForHomes() + latin1("/tst-XXXXXX"))
        , m_environment(QProcessEnvironment::systemEnvironment())
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
        m_focus.reset();
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
        m_focus = std::make_unique<Focus>(u':' + display);
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
        QStringList command = qEnvironmentVariable("TARVO_TEST_WORKBENCH")
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (command.isEmpty())
            command.append(QStringLiteral(TARVO_WORKBENCH));
        m_program.setProcessEnvironment(m_environment);
        m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_program.start(command.takeFirst(), command);
        return m_program;
    }

    QString home() const { return m_home.path(); }

    static constexpr char registry[] = "org.a11y.atspi.Registry";
    Events events;

private:
    static QString folderForHomes()
    {
        return qEnvironmentVariable("TARVO_TEST_WORKBENCH_FOLDER", QDir::tempPath());
    }

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
    std::unique_ptr<Focus> m_focus;
    QProcess m_bus;
    QProcess m_program;
};

// Hands and ears at the bus.
namespace Bus
{

inline QDBusMessage message(const Node &node, const char *interface, const char *method,
                            const QVariantList &arguments = {})
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(node.bus, node.path, latin1(interface), latin1(method));
    message.setArguments(arguments);
    return message;
}

// Null of what is no longer there.
inline QVariant ask(const Node &node, const char *interface, const char *method,
                    const QVariantList &arguments = {})
{
    const QDBusMessage answer =
        QDBusConnection(latin1("accessibility"))
            .call(message(node, interface, method, arguments), QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr char action[] = "org.a11y.atspi.Action";

inline QVariant property(const Node &node, const char *interface, const char *name)
{
    return ask(node, "org.freedesktop.DBus.Properties", "Get", {latin1(interface), latin1(name)})
        .value<QDBusVariant>()
        .variant();
}

inline QString nameOf(const Node &node)
{
    return property(node, accessible, "Name").toString();
}

inline QString roleOf(const Node &node)
{
    return ask(node, accessible, "GetRoleName").toString();
}

inline bool is(const Node &node, State state)
{
    const auto bits = qdbus_cast<QList<uint>>(ask(node, accessible, "GetState"));
    return (bits.value(state / 32) >> (state % 32)) & 1U;
}

inline QList<Node> childrenOf(const Node &node)
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
inline Node find(const Node &from, const char *role, const char *name)
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
inline Node findAnywhere(const char *role, const char *name)
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

inline Node await(const char *role, const char *name, int milliseconds = patience)
{
    return awaited([=] { return findAnywhere(role, name); }, milliseconds);
}

// A window, as soon as it gets the keys.
inline Node awaitWindow(const char *role, const char *name)
{
    return awaited([=] {
        const Node window = findAnywhere(role, name);
        return !window.isNull() && is(window, Active) ? window : Node();
    });
}

// False where there is no such action. Does not wait for what it opens.
inline bool act(const Node &node, const char *name)
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

inline bool setText(const Node &node, const QString &text)
{
    return ask(node, "org.a11y.atspi.EditableText", "SetTextContents", {text}).toBool();
}

inline QString textOf(const Node &node)
{
    constexpr char text[] = "org.a11y.atspi.Text";
    return ask(node, text, "GetText", {0, property(node, text, "CharacterCount").toInt()})
        .toString();
}

} // namespace Bus

// Types, with the keyboard of the display, as the registry does it for who asks: the window with
// the focus gets real key events. Keys are X11's key symbols.
namespace Keyboard
{

enum Key : int {
    Backspace = 0xff08,
    Tab = 0xff09,
    Return = 0xff0d,
    Escape = 0xff1b,
    Home = 0xff50,
    Left = 0xff51,
    Up = 0xff52,
    Right = 0xff53,
    Down = 0xff54,
    End = 0xff57,
    F1 = 0xffbe,
    Space = 0x20
};

// Codes of keys that are held, as each PC keyboard of X11 has them.
enum Modifier : int { NoModifier = 0, Control = 37, Shift = 50, Alt = 64 };

inline bool generate(int key, const QString &text, uint kind)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        latin1(Session::registry), latin1("/org/a11y/atspi/registry/deviceeventcontroller"),
        latin1("org.a11y.atspi.DeviceEventController"), latin1("GenerateKeyboardEvent"));
    message.setArguments({key, text, kind});
    return QDBusConnection(latin1("accessibility")).call(message, QDBus::Block, patience).type() ==
           QDBusMessage::ReplyMessage;
}

inline bool press(int symbol, Modifier modifier = NoModifier)
{
    enum : uint { Press, Release, Symbol = 3 };
    bool good = modifier == NoModifier || generate(modifier, {}, Press);
    good = generate(symbol, {}, Symbol) && good;
    return (modifier == NoModifier || generate(modifier, {}, Release)) && good;
}

// ASCII.
inline bool type(const QString &text)
{
    for (const QChar character : text) {
        if (!press(character.unicode()))
            return false;
    }
    return true;
}

} // namespace Keyboard

} // namespace TestSupport
