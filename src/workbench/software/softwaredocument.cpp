#include "softwaredocument.h"

#include "vectorpicture.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace Workbench
{

namespace
{

// Laying out takes the longer the deeper tables lie in each other, and the stack as well.
constexpr int sizeLimit = 4 << 20; // bytes
constexpr int tableDepthLimit = 8;
constexpr int elementDepthLimit = 1000;

int depthOf(const QByteArray &html, const QByteArray &opening, const QByteArray &closing)
{
    int depth = 0;
    int deepest = 0;
    for (int at = html.indexOf('<'); at >= 0; at = html.indexOf('<', at + 1)) {
        const QByteArray tag = html.mid(at, closing.size()).toLower();
        if (tag.startsWith(closing))
            --depth;
        else if (tag.startsWith(opening))
            deepest = qMax(deepest, ++depth);
    }
    return deepest;
}

} // namespace

SoftwareDocument::SoftwareDocument(const QVector<SoftwareFile> &files, const QString &path,
                                   QObject *parent)
    : QTextDocument(parent)
    , m_files(files)
    , m_path(path)
    , m_pictures(
          new VectorPictures([this](const QString &name) { return bytesOf(resolved(name)); }, this))
{
    setUndoRedoEnabled(false);
    documentLayout()->registerHandler(QTextFormat::ImageObject, m_pictures);
    const QByteArray html = bytesOf(path);
    if (html.size() > sizeLimit)
        m_mistake = tr("The document is too large to be laid out.");
    else if (depthOf(html, "<table", "</table") > tableDepthLimit ||
             depthOf(html, "<ul", "</ul") + depthOf(html, "<ol", "</ol") +
                     depthOf(html, "<div", "</div") >
                 elementDepthLimit)
        m_mistake = tr("The document is nested too deep to be laid out.");
    else if (const SoftwareFile *file = SoftwareSet::find(m_files, path);
             file && SoftwareSet::isPicture(*file))
        setHtml(QStringLiteral("<img src=\"%1\">")
                    .arg(QString::fromLatin1(QUrl::toPercentEncoding(QFileInfo(path).fileName()))));
    else
        setHtml(QString::fromUtf8(html));
}

QString SoftwareDocument::title() const
{
    const QString own = metaInformation(DocumentTitle).simplified();
    return own.isEmpty() ? QFileInfo(m_path).fileName() : own;
}

QString SoftwareDocument::resolved(const QString &name) const
{
    const QUrl url(name);
    if (!url.isRelative() || !url.host().isEmpty() || url.path().isEmpty())
        return {};
    const QString folder = QFileInfo(m_path).path();
    const QString path = QDir::cleanPath(folder + u'/' + url.path());
    return SoftwareSet::find(m_files, path) ? path : QString();
}

QByteArray SoftwareDocument::bytesOf(const QString &name) const
{
    const SoftwareFile *file = SoftwareSet::find(m_files, name);
    return file ? file->bytes : QByteArray();
}

// Pictures are drawn by m_pictures and never loaded.
QVariant SoftwareDocument::loadResource(int type, const QUrl &name)
{
    if (type != StyleSheetResource)
        return {};
    return QString::fromUtf8(bytesOf(resolved(name.toString())));
}

} // namespace Workbench
