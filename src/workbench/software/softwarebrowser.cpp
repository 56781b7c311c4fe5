#include "softwarebrowser.h"

#include "softwaredocument.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

namespace Workbench
{

SoftwareBrowser::SoftwareBrowser(QWidget *parent)
    : QTextBrowser(parent)
    , m_empty(std::make_unique<QTextDocument>())
{
    setObjectName(QStringLiteral("softwareDocument"));
    setAccessibleName(tr("The document"));
    setOpenLinks(false);
    setOpenExternalLinks(false);
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WordWrap); // a view has its own for each document
    QPalette paper = palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Link, QColor(0, 60, 160));
    setPalette(paper);
    connect(this, &QTextBrowser::anchorClicked, this, &SoftwareBrowser::follow);
}

SoftwareBrowser::~SoftwareBrowser()
{
    // The view's own goes before the documents do.
    setDocument(nullptr);
}

bool SoftwareBrowser::showFile(const QVector<SoftwareFile> &files, const QString &path,
                               QString *error)
{
    auto document = std::make_unique<SoftwareDocument>(files, path);
    if (!document->mistake().isEmpty()) {
        *error = document->mistake();
        return false;
    }
    document->setDefaultFont(font());
    document->setDocumentMargin(fontMetrics().height());
    setDocument(document.get());
    m_document = std::move(document);
    return true;
}

bool SoftwareBrowser::goTo(const QStringList &headings)
{
    int found = 0;
    int level = 0; // of the last one found
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int own = block.blockFormat().headingLevel();
        if (own == 0)
            continue;
        if (found > 0 && own <= level)
            return false;
        if (block.text() != headings.value(found))
            continue;
        level = own;
        if (++found < headings.size())
            continue;
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        verticalScrollBar()->setValue(
            int(document()->documentLayout()->blockBoundingRect(block).top()));
        return true;
    }
    return false;
}

void SoftwareBrowser::forget()
{
    setDocument(m_empty.get());
    m_document.reset();
}

void SoftwareBrowser::follow(const QUrl &link)
{
    if (!m_document)
        return;
    if (link.path().isEmpty() && link.host().isEmpty() && link.hasFragment()) {
        scrollToAnchor(link.fragment());
        return;
    }
    const QString path = m_document->resolved(link.toString(QUrl::RemoveFragment));
    if (!path.isEmpty())
        Q_EMIT fileRequested(path);
}

// Documents bring what they show.
QVariant SoftwareBrowser::loadResource(int /*type*/, const QUrl & /*name*/)
{
    return {};
}

} // namespace Workbench
