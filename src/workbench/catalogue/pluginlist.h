#pragma once

#include <QObject>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

class InfoBar;
class IpCatalogue;
class MessageModel;

// The plug-ins that the user has chosen, in the settings, and those that could not be used.
class PluginList : public QObject
{
    Q_OBJECT

public:
    // All must outlive this. `window`: the parent of what it shows.
    PluginList(IpCatalogue &catalogue, QSettings &settings, InfoBar &infoBar, QWidget *window);

    // The folders that the user has chosen.
    static QStringList folders(const QSettings &settings);
    // As messages, and above the page.
    void tellFailures(MessageModel *messages);
    void show();

Q_SIGNALS:
    // The catalogue has other IPs now.
    void changed();

private:
    void tryAgain();

    IpCatalogue &m_catalogue;
    QSettings &m_settings;
    InfoBar &m_infoBar;
    QWidget *m_window;
};

} // namespace Workbench
