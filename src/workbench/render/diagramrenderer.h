#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace Workbench
{

class IpCatalogue;

// Writes the diagram of an IP into a picture without anyone looking on: opens the IP's dialog, lets
// the dialog draw, and rejects it.
//
// The dialog, or a widget in it, offers its diagram by an invokable method
// `bool saveDiagram(const QString &path, QString *error)`, which chooses the format by the ending
// of the path. It draws into a folder of the renderer's own; what it has drawn there, if it is a
// picture of that format, is then put in place. Everything else that comes up meanwhile is closed,
// and the text of a message box becomes the reason of the failure.
class DiagramRenderer : public QObject
{
    Q_OBJECT

public:
    // The catalogue must outlive the renderer.
    explicit DiagramRenderer(IpCatalogue &catalogue, QObject *parent = nullptr);

    // False, and a sentence in `*error`, if no picture was written.
    bool render(const QString &ipcFile, const QString &picture, QString *error);

private:
    void look();
    void draw(QWidget *dialog);

    IpCatalogue &m_catalogue;
    QTimer m_timer;
    QString m_draft;
    QByteArray m_drawing;
    QStringList m_said; // by message boxes
    QString m_error;
    bool m_drawn = false;
};

} // namespace Workbench
