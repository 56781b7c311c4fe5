#pragma once

#include <QObject>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace Workbench
{

class HelpWindow;
class IpCatalogue;

// Shows the guide and the documents of IPs, in a window of their own that can be used while a
// dialog waits.
class HelpDesk : public QObject
{
    Q_OBJECT

public:
    // Settings, which remember place and zoom, and catalogue must outlive this. `window`: the
    // parent of what it shows.
    HelpDesk(QSettings &settings, const IpCatalogue &catalogue, QWidget *window);

    // Null while there is none.
    HelpWindow *helpWindow() const;
    // At a heading, as links name it; empty: where it was left, or its begin.
    void showGuide(const QString &heading = {});
    // The heading of the guide that is about the place with the focus; empty: about none.
    static QString headingFor(const QWidget *focus);
    // All that headingFor() gives.
    static QStringList headings();
    // The document of an IP of the catalogue.
    void showIp(int ip);
    // Whose dialog is open, for F1; -1: nobody's.
    void setDialogIp(int ip) { m_dialogIp = ip; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showDocument(const QString &path, const QString &title, const QString &heading = {});

    QSettings &m_settings;
    const IpCatalogue &m_catalogue;
    QWidget *m_window;
    QPointer<HelpWindow> m_help;
    int m_dialogIp = -1;
};

} // namespace Workbench
