#include "helpdesk.h"

#include "catalogue/ipcatalogue.h"
#include "helpwindow.h"
#include "widgets/errorbox.h"
#include "widgets/windowplace.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSettings>

namespace Workbench
{

namespace
{

const QString zoomKey = QStringLiteral("help/zoom"); // in steps

// What the guide says of a part of the window; the innermost that has a row counts.
struct Topic {
    const char *widget; // its class or its object's name
    const char *heading;
};

constexpr Topic topics[] = {
    {"Workbench::FindBar", "find-and-replace"},
    {"Workbench::EditorPage", "files-and-projects"},
    {"Workbench::SoftwarePage", "hand-off"},
    {"Workbench::SimulationPage", "simulation"},
    {"Workbench::MapView", "maps"},
    {"Workbench::ResultPage", "use-the-results"},
    {"Workbench::Companion", "beside-the-dialog-of-an-ip"},
    {"Workbench::SettingsDialog", "settings"},
    {"Workbench::PluginsDialog", "plug-ins"},
    {"Workbench::MoveDialog", "another-device"},
    {"Workbench::KeptDialog", "nothing-of-an-ip-is-lost"},
    {"projectDock", "files-and-projects"},
    {"catalogueDock", "the-workbench"},
    {"outputDock", "files-and-projects"},
};

} // namespace

HelpDesk::HelpDesk(QSettings &settings, const IpCatalogue &catalogue, QWidget *window)
    : QObject(window)
    , m_settings(settings)
    , m_catalogue(catalogue)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

HelpWindow *HelpDesk::helpWindow() const
{
    return m_help;
}

void HelpDesk::showDocument(const QString &path, const QString &title, const QString &heading)
{
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *parent = modal ? modal : m_window;
    if (m_help && m_help->parentWidget() != parent) {
        m_help->hide(); // so that its place is kept
        delete m_help;
    }
    if (!m_help) {
        m_help = new HelpWindow(parent);
        (new WindowPlace(m_settings, QStringLiteral("window/help"), m_help))->restore();
        HelpBrowser *browser = m_help->browser();
        if (const int zoom = m_settings.value(zoomKey).toInt())
            browser->zoomBy(zoom);
        connect(browser, &HelpBrowser::zoomed, this,
                [this](int zoom) { m_settings.setValue(zoomKey, zoom); });
    }
    if (!m_help->showDocument(path, title, heading))
        showError(m_window, tr("\"%1\" cannot be read.").arg(QDir::toNativeSeparators(path)));
}

QString HelpDesk::headingFor(const QWidget *focus)
{
    for (const QWidget *widget = focus; widget; widget = widget->parentWidget()) {
        for (const Topic &topic : topics) {
            if (widget->inherits(topic.widget) ||
                widget->objectName() == QLatin1String(topic.widget))
                return QLatin1String(topic.heading);
        }
    }
    return {};
}

QStringList HelpDesk::headings()
{
    QStringList result;
    for (const Topic &topic : topics)
        result.append(QLatin1String(topic.heading));
    return result;
}

void HelpDesk::showGuide(const QString &heading)
{
    for (const QString &folder : m_catalogue.dataFolders()) {
        const QString path = folder + QLatin1String("/guide/user-guide.md");
        if (QFileInfo(path).isFile()) {
            showDocument(path, tr("User Guide"), heading);
            return;
        }
    }
    showError(m_window,
              tr("The user guide is not installed. It belongs into the folder \"guide\" of %1.")
                  .arg(QDir::toNativeSeparators(m_catalogue.dataFolders().value(0))));
}

void HelpDesk::showIp(int ip)
{
    if (ip < 0 || m_catalogue.entries().at(ip).help.isEmpty())
        return;
    const IpEntry &entry = m_catalogue.entries().at(ip);
    showDocument(entry.help, tr("%1 %2").arg(entry.name, entry.version));
}

// The window's own F1 does not reach the dialogs in front of it.
bool HelpDesk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        !QApplication::activeModalWidget())
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    const bool hasDocument =
        m_dialogIp >= 0 && !m_catalogue.entries().at(m_dialogIp).help.isEmpty();
    if (hasDocument)
        showIp(m_dialogIp);
    else
        showGuide(headingFor(static_cast<QWidget *>(watched)));
    return true;
}

} // namespace Workbench
