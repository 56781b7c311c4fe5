#include "diagramrenderer.h"

#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QMetaMethod>

namespace Workbench
{

namespace
{

constexpr const char *saveMethod = "saveDiagram(QString,QString*)";

QWidget *findDiagram(QWidget *dialog)
{
    if (dialog->metaObject()->indexOfMethod(saveMethod) >= 0)
        return dialog;
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->metaObject()->indexOfMethod(saveMethod) >= 0)
            return widget;
    }
    return nullptr;
}

} // namespace

DiagramRenderer::DiagramRenderer(IpCatalogue &catalogue, QObject *parent)
    : QObject(parent)
    , m_catalogue(catalogue)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &DiagramRenderer::look);
}

bool DiagramRenderer::render(const QString &ipcFile, const QString &picture, QString *error)
{
    static const QStringList endings{QStringLiteral("svg"), QStringLiteral("png"),
                                     QStringLiteral("pdf")};
    if (!endings.contains(QFileInfo(picture).suffix().toLower())) {
        *error = tr("The picture \"%1\" must end in .svg, .png or .pdf.")
                     .arg(QDir::toNativeSeparators(picture));
        return false;
    }
    m_picture = QFileInfo(picture).absoluteFilePath();
    m_said.clear();
    m_error.clear();
    m_drawn = false;
    m_saved = false;
    IpSession session(m_catalogue);
    m_timer.start();
    QString opening;
    session.open(ipcFile, &opening);
    m_timer.stop();

    QStringList reasons;
    for (const QString &reason : {opening, m_error, m_said.join(u'\n')}) {
        if (!reason.isEmpty())
            reasons.append(reason);
    }
    if (m_saved)
        return true;
    if (reasons.isEmpty())
        reasons.append(
            tr("The dialog of \"%1\" did not open.").arg(QDir::toNativeSeparators(ipcFile)));
    *error = reasons.join(u'\n');
    return false;
}

void DiagramRenderer::look()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    if (const auto *box = qobject_cast<QMessageBox *>(modal)) {
        m_said.append(box->text());
        if (!box->detailedText().isEmpty())
            m_said.append(box->detailedText());
    } else if (!m_drawn) {
        m_drawn = true;
        draw(modal);
    }
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->reject();
    else
        modal->close();
}

void DiagramRenderer::draw(QWidget *dialog)
{
    QWidget *diagram = findDiagram(dialog);
    if (!diagram) {
        m_error = tr("The dialog of this IP offers no diagram.");
        return;
    }
    QString reason;
    bool saved = false;
    const bool called = QMetaObject::invokeMethod(
        diagram, "saveDiagram", Qt::DirectConnection, Q_RETURN_ARG(bool, saved),
        Q_ARG(QString, m_picture), Q_ARG(QString*, &reason));
    m_saved = called && saved;
    if (!m_saved)
        m_error = reason.isEmpty() ? tr("The diagram could not be written.") : reason;
}

} // namespace Workbench
