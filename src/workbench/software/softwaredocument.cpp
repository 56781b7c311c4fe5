#include "softwaredocument.h"

#include "widgets/vectorpicture.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTextTable>
#include <QUrl>

#include <cctype>

namespace Workbench
{

namespace
{

// Laying out takes the longer the deeper elements lie in each other, and the stack as well; and for
// some of them with the square of their number. Of what is too much, in one document:
constexpr int sizeLimit = 4 << 20; // bytes
constexpr int tableDepthLimit = 8;
constexpr int elementDepthLimit = 1000;
constexpr int elementLimit = 40000;
constexpr int innerTableLimit = 500;
constexpr int itemLimit = 4000;
constexpr int pictureLimit = 1000;

enum class Excess { None, Size, Depth };

Excess excessOf(const QByteArray &html)
{
    if (html.size() > sizeLimit)
        return Excess::Size;
    // These have no end, or need none where the next one begins.
    static const QSet<QByteArray> unended = {
        "area", "base", "br",    "col",   "dd", "dt",    "hr", "img",   "input", "li", "link",
        "meta", "p",    "param", "tbody", "td", "tfoot", "th", "thead", "tr",    "wbr"};
    int depth = 0;
    int tableDepth = 0;
    int elements = 0;
    int innerTables = 0;
    int items = 0;
    int pictures = 0;
    for (int at = html.indexOf('<'); at >= 0; at = html.indexOf('<', at + 1)) {
        const bool isEnd = html.mid(at + 1, 1) == "/";
        const int from = at + (isEnd ? 2 : 1);
        int to = from;
        while (to < html.size() && std::isalnum(static_cast<unsigned char>(html.at(to))))
            ++to;
        const QByteArray name = html.mid(from, to - from).toLower();
        if (name.isEmpty())
            continue;
        const bool isTable = name == "table";
        if (!isEnd) {
            ++elements;
            innerTables += isTable && tableDepth > 0;
            items += name == "li";
            pictures += name == "img";
        }
        if (elements > elementLimit || innerTables > innerTableLimit || items > itemLimit ||
            pictures > pictureLimit)
            return Excess::Size;
        // An end without a beginning takes nothing off.
        const int step = isEnd ? -1 : 1;
        if (isTable)
            tableDepth = qMax(0, tableDepth + step);
        if (!unended.contains(name))
            depth = qMax(0, depth + step);
        if (depth > elementDepthLimit || tableDepth > tableDepthLimit)
            return Excess::Depth;
    }
    return Excess::None;
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
        format.setCellSpacing(-1);
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
    // Before there is a picture, so that nothing else draws one.
    documentLayout()->registerHandler(QTextFormat::ImageObject, m_pictures);
    const QByteArray html = bytesOf(path);
    const Excess excess = excessOf(html);
    if (excess == Excess::Size)
        m_mistake = tr("The document is too large to be laid out.");
    else if (excess == Excess::Depth)
        m_mistake = tr("The document is nested too deep to be laid out.");
    else if (const SoftwareFile *file = SoftwareSet::find(m_files, path);
             file && SoftwareSet::isPicture(*file))
        setHtml(QStringLiteral("<img src=\"%1\">")
                    .arg(QString::fromLatin1(QUrl::toPercentEncoding(QFileInfo(path).fileName()))));
    else
        setHtml(withoutStyles(html));
    QTextCursor edit(this); // laid out once, not for each table
    edit.beginEditBlock();
    ruleTables(rootFrame());
    edit.endEditBlock();
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
