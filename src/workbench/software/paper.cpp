#include "paper.h"

#include "softwaredocument.h"
#include "tr.h"
#include "widgets/vectorpicture.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextLayout>

namespace Workbench
{

namespace
{

constexpr int dotsPerInch = 1200;
constexpr qreal margin = 18.0 / 25.4 * dotsPerInch; // of all sides
constexpr int pageLimit = 2000;

// Qt has no way not to write these entries. Blanks of the same length leave all places in the file
// where its table says they are.
void blankOut(QByteArray *pdf, const QByteArray &entry)
{
    const int start = pdf->indexOf("\n/" + entry + " (");
    const int end = start < 0 ? -1 : pdf->indexOf(')', start);
    if (end > start)
        pdf->replace(start + 1, end - start, QByteArray(end - start, ' '));
}

// In a size in which the widest table has room, and in lines that end anywhere if none has.
void fit(SoftwareDocument *document, const QSizeF &room)
{
    document->setPageSize(room);
    for (const qreal size : {10.0, 9.0, 8.0, 7.0}) {
        QFont font = document->defaultFont();
        font.setPointSizeF(size);
        document->setDefaultFont(font);
        if (document->documentLayout()->documentSize().width() <= room.width() + 1)
            return;
    }
    document->keepWords(false);
}

// A heading goes to the page of what it stands above.
void keepHeadings(SoftwareDocument *document, qreal pageHeight)
{
    const QAbstractTextDocumentLayout *layout = document->documentLayout();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QTextBlock next = block.next();
        if (block.blockFormat().headingLevel() == 0 || !next.isValid())
            continue;
        // Of a line that is too high for the rest of the page, the block may begin there.
        const QTextLine line =
            next.layout()->lineCount() > 0 ? next.layout()->lineAt(0) : QTextLine();
        const qreal top = layout->blockBoundingRect(next).top();
        const qreal below = line.isValid() ? top + line.y() : top;
        // A page may begin a fraction of a dot before it does.
        const auto pageOf = [pageHeight](qreal y) { return int((y + 2) / pageHeight); };
        if (pageOf(layout->blockBoundingRect(block).top()) == pageOf(below))
            continue;
        QTextBlockFormat format = block.blockFormat();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }
}

} // namespace

Utils::Result<QByteArray> pdfOf(SoftwareDocument *document)
{
    if (!document->mistake().isEmpty())
        return Utils::Failure{document->mistake()};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(dotsPerInch);
    writer.setTitle(document->title());
    writer.setCreator(QStringLiteral("Tarvo Workbench"));

    QFont small = document->defaultFont();
    small.setPointSizeF(8);
    const QFontMetricsF metrics(small, &writer);
    const QSizeF page(writer.width(), writer.height());
    const qreal footer = metrics.height() * 2;
    const QSizeF room(page.width() - 2 * margin, page.height() - 2 * margin - footer);
    document->documentLayout()->setPaintDevice(&writer);
    document->setDocumentMargin(0);
    document->pictures()->setRoom(room * 0.98); // a line has more than its picture
    fit(document, room);
    if (document->pageCount() <= pageLimit)
        keepHeadings(document, room.height());
    const int count = document->pageCount();
    if (count > pageLimit)
        return Utils::Failure{Tr::tr("The document has more than %1 pages.").arg(pageLimit)};

    QPainter painter;
    if (!painter.begin(&writer))
        return Utils::Failure{Tr::tr("The document cannot be put on paper.")};
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            writer.newPage();
        painter.save();
        painter.translate(margin, margin - i * room.height());
        context.clip = QRectF(0, i * room.height(), room.width(), room.height());
        painter.setClipRect(context.clip);
        document->documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(small);
        painter.setPen(QColor(96, 96, 96));
        const QRectF line(margin, page.height() - margin - metrics.height(), room.width(),
                          metrics.height());
        // As the document is, in English.
        const QString number = QStringLiteral("Page %1 of %2").arg(i + 1).arg(count);
        const qreal left = line.width() - metrics.horizontalAdvance(number) - metrics.height();
        painter.drawText(line, Qt::AlignLeft | Qt::TextSingleLine,
                         metrics.elidedText(document->title(), Qt::ElideRight, left));
        painter.drawText(line, Qt::AlignRight | Qt::TextSingleLine, number);
    }
    painter.end();
    QByteArray pdf = buffer.data();
    blankOut(&pdf, "Producer");
    blankOut(&pdf, "CreationDate");
    return pdf;
}

} // namespace Workbench
