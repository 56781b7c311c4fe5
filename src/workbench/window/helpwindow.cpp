#include "helpwindow.h"

#include "widgets/colours.h"
#include "widgets/focusforward.h"
#include "widgets/symbolicon.h"

#include <ipcore/screenfit.h>

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

constexpr qint64 sizeLimit = 16 << 20; // bytes

QByteArray contents(const QUrl &url)
{
    QFile file(url.toLocalFile());
    if (!url.isLocalFile() || !QFileInfo(file).isFile() || file.size() > sizeLimit ||
        !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

// A heading as links name it: "VHDL outputs" is "vhdl-outputs".
QString linkName(const QString &heading)
{
    QString name;
    for (const QChar c : heading.toLower()) {
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            name += c;
        else if (c.isSpace())
            name += u'-';
    }
    return name;
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent)
    : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("helpText"));
    setAccessibleName(tr("Help"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(fontMetrics().height());
    // A bar that comes and goes while one document takes the place of another changes the width,
    // and with it the pictures.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::finishSource);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    const QUrl url = name.isRelative() ? source().resolved(name) : name;
    if (type != QTextDocument::ImageResource) {
        m_loaded = QString::fromUtf8(contents(url));
        return QStringLiteral(" "); // finishSource() has the rest
    }
    const QImage image = QImage::fromData(contents(url));
    const int room = viewport()->width() - 3 * int(document()->documentMargin());
    return image.width() > room && room > 0 ? image.scaledToWidth(room, Qt::SmoothTransformation)
                                            : image;
}

void HelpBrowser::setSource(const QUrl &name)
{
    const QUrl url = name.isRelative() ? source().resolved(name) : name;
    if (!url.isLocalFile())
        return;
    QTextBrowser::setSource(url);
}

void HelpBrowser::finishSource(const QUrl &url)
{
    if (!m_loaded.isNull()) {
        m_pictureWidth = viewport()->width();
        QTextCursor edit(document());
        edit.beginEditBlock();
        if (url.path().endsWith(QLatin1String(".md"), Qt::CaseInsensitive))
            document()->setMarkdown(m_loaded);
        else
            document()->setHtml(m_loaded);
        colourLinks();
        edit.endEditBlock();
        m_loaded.clear();
    }
    if (url.hasFragment() && !goToHeading(url.fragment()))
        scrollToAnchor(url.fragment());
}

// The colour that readers of documents give links is made for white paper.
void HelpBrowser::colourLinks()
{
    const QColor &paper = palette().color(QPalette::Base);
    if (paper.lightness() > 127)
        return;
    QTextCharFormat format;
    format.setForeground(Colours::link(palette()));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QVector<QPair<int, int>> links;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isAnchor())
                links.append({it.fragment().position(), it.fragment().length()});
        }
        for (const auto &[position, length] : qAsConst(links)) {
            QTextCursor cursor(block);
            cursor.setPosition(position);
            cursor.setPosition(position + length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(format);
        }
    }
}

bool HelpBrowser::goToHeading(const QString &name)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || linkName(block.text()) != name)
            continue;
        setTextCursor(QTextCursor(block));
        verticalScrollBar()->setValue(
            int(document()->documentLayout()->blockBoundingRect(block).top()));
        return true;
    }
    return false;
}

void HelpBrowser::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    if (viewport()->width() == m_pictureWidth || source().isEmpty())
        return;
    m_pictureWidth = viewport()->width();
    // The pictures are made for the new width.
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

HelpWindow::HelpWindow(QWidget *parent)
    : QWidget(parent, Qt::Window)
    , m_browser(new HelpBrowser)
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowIcon(applicationIcon());
    auto *bar = new QToolBar;
    const auto add = [&](const QString &text, const QKeySequence &key, auto slot) {
        QAction *action = bar->addAction(text);
        action->setShortcut(key);
        connect(action, &QAction::triggered, m_browser, slot);
        return action;
    };
    QAction *back =
        add(tr("&Back"), QKeySequence(int(Qt::ALT) + Qt::Key_Left), &QTextBrowser::backward);
    QAction *forward =
        add(tr("&Forward"), QKeySequence(int(Qt::ALT) + Qt::Key_Right), &QTextBrowser::forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_browser, 1);
    forwardFocus(this, m_browser);
    const QSize wanted(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 46);
    resize(wanted.boundedTo(IPCore::roomOnScreen(this)));
}

bool HelpWindow::showDocument(const QString &path, const QString &title)
{
    if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable())
        return false;
    setWindowTitle(title);
    show(); // before the text comes: pictures are made for the window's width
    m_browser->setSource(QUrl::fromLocalFile(path));
    raise();
    activateWindow();
    m_browser->setFocus();
    return true;
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace Workbench
