#include "diagramrenderer.h"

#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"

#include <utils/fileutils.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QMetaMethod>
#include <QTemporaryDir>

namespace Workbench
{

namespace
{

constexpr const char *saveMethod = "saveDiagram(QString,QString*)";

// How the files of the formats begin, within their first kilobyte.
struct Format {
    const char *ending;
    const char *mark;
};
constexpr Format formats[] = {{"svg", "<svg"}, {"png", "\x89PNG"}, {"pdf", "%PDF"}};

const Format *formatOf(const QString &picture)
{
    const QString ending = QFileInfo(picture).suffix().toLower();
    for (const Format &format : formats) {
        if (ending == QLatin1String(format.ending))
            return &format;
    }
    return nullptr;
}

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
    const Format *format = formatOf(picture);
    if (!format) {
        *error = tr("The picture \"%1\" must end in .svg, .png or .pdf.")
                     .arg(QDir::toNativeSeparators(picture));
        return false;
    }
    const QTemporaryDir scratch;
    m_draft = scratch.filePath(QLatin1String("diagram.") + QLatin1String(format->ending));
    m_drawing.clear();
    m_said.clear();
    m_error.clear();
    m_drawn = false;
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
    if (m_drawing.left(1024).contains(format->mark))
        return Utils::FileUtils::writeFile(QFileInfo(picture).absoluteFilePath(), m_drawing, error);
    if (m_drawn && reasons.isEmpty())
        reasons.append(
            tr("The plug-in of \"%1\" wrote no picture.").arg(QDir::toNativeSeparators(ipcFile)));
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
    bool called = false;
    const QString thrown = PluginLoader::thrownBy([&] {
        called = QMetaObject::invokeMethod(diagram, "saveDiagram", Qt::DirectConnection,
                                           Q_RETURN_ARG(bool, saved), Q_ARG(QString, m_draft),
                                           Q_ARG(QString *, &reason));
    });
    if (!thrown.isEmpty())
        reason = tr("The plug-in failed when it was asked for the diagram: %1.").arg(thrown);
    if (!called || !saved)
        m_error = reason.isEmpty() ? tr("The diagram could not be written.") : reason;
    else if (QFileInfo(m_draft).isFile())
        Utils::FileUtils::readFile(m_draft, &m_drawing, &m_error);
}

} // namespace Workbench
