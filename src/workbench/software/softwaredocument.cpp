#include "softwaredocument.h"

#include "widgets/vectorpicture.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextTable>
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

// A drawing that stands in the document itself; empty where the name is none.
QByteArray embedded(const QString &name)
{
    const QLatin1String head("data:image/svg+xml;base64,");
    if (!name.startsWith(head, Qt::CaseInsensitive))
        return {};
    return QByteArray::fromBase64(name.midRef(head.size()).toLatin1());
}

// The text without its style sheets: they are made for browsers, and rich text knows too little of
// them to come out well.
QString withoutStyles(const QByteArray &html)
{
    static const QRegularExpression style(
        QStringLiteral("<style\\b[^>]*>.*?(</style\\s*>|$)|<link\\b[^>]*>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return QString::fromUtf8(html).remove(style);
}

// Tables get lines and room between them.
void ruleTables(QTextFrame *frame)
{
    const QList<QTextFrame *> frames = frame->childFrames();
    for (QTextFrame *child : frames) {
        ruleTables(child);
        auto *table = qobject_cast<QTextTable *>(child);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(190, 190, 190));
        format.setBorderCollapse(true);
        format.setCellSpacing(0);
        format.setCellPadding(3);
        table->setFormat(format);
    }
}

} // namespace

SoftwareDocument::SoftwareDocument(const QVector<SoftwareFile> &files, const QString &path,
                                   QObject *parent)
    : QTextDocument(parent)
    , m_files(files)
    , m_path(path)
    , m_pictures(new VectorPictures(
          [this](const QString &name) {
              const QByteArray own = embedded(name);
              return own.isEmpty() ? bytesOf(resolved(name)) : own;
          },
          this))
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
        setHtml(withoutStyles(html));
    ruleTables(rootFrame());
    keepWords(true);
}

void SoftwareDocument::keepWords(bool keep)
{
    QTextOption option = defaultTextOption();
    option.setWrapMode(keep ? QTextOption::WordWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    setDefaultTextOption(option);
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
QVariant SoftwareDocument::loadResource(int /*type*/, const QUrl & /*name*/)
{
    return {};
}

} // namespace Workbench
