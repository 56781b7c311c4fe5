#include "helpwindow.h"

#include "widgets/assistance.h"
#include "widgets/colours.h"
#include "widgets/enterkey.h"
#include "widgets/focusforward.h"
#include "widgets/shortcuts.h"
#include "widgets/symbolicon.h"

#include <ipcore/screenfit.h>

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

constexpr qint64 sizeLimit = 16 << 20; // bytes
constexpr int mostResults = 300;
constexpr int placeRole = Qt::UserRole;
constexpr int lengthRole = Qt::UserRole + 1;

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
    setWordWrapMode(QTextOption::WordWrap); // tables keep their words and numbers
    document()->setDocumentMargin(fontMetrics().height());
    // A bar that comes and goes while one document takes the place of another changes the width,
    // and with it the pictures.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::finishSource);
}

QVector<HelpBrowser::Heading> HelpBrowser::headings() const
{
    QVector<Heading> result;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (const int level = block.blockFormat().headingLevel())
            result.append({level, block.text(), block.position()});
    }
    return result;
}

void HelpBrowser::goTo(int position, int length)
{
    QTextCursor cursor(document());
    const int last = document()->characterCount() - 1;
    cursor.setPosition(qMin(position, last));
    cursor.setPosition(qMin(position + length, last), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(int(
        document()->documentLayout()->blockBoundingRect(document()->findBlock(position)).top()));
    ensureCursorVisible();
}

void HelpBrowser::zoomBy(int steps)
{
    const int wanted = steps == 0 ? 0 : qBound(-5, m_zoom + qBound(-100, steps, 100), 20);
    if (wanted == m_zoom)
        return;
    zoomIn(wanted - m_zoom);
    m_zoom = wanted;
    Q_EMIT zoomed(m_zoom);
}

void HelpBrowser::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QTextBrowser::wheelEvent(event);
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
        Q_EMIT documentShown();
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
        goTo(block.position());
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
    , m_side(new QTabWidget)
    , m_contents(nullptr)
    , m_wanted(new QLineEdit)
    , m_results(nullptr)
    , m_found(new QLabel)
{
    speakAsWindow(this);
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
    bar->addSeparator();
    const auto addOwn = [&](const QString &text, const QList<QKeySequence> &keys, auto slot) {
        QAction *action = bar->addAction(text);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, slot);
    };
    addOwn(tr("&Larger"), keysOf(QKeySequence::ZoomIn), [this] { m_browser->zoomBy(1); });
    addOwn(tr("&Smaller"), keysOf(QKeySequence::ZoomOut), [this] { m_browser->zoomBy(-1); });
    addOwn(tr("&Usual Size"), {QKeySequence(int(Qt::CTRL) + Qt::Key_0)},
           [this] { m_browser->zoomBy(0); });
    bar->addSeparator();
    addOwn(tr("&Contents"), {QKeySequence(int(Qt::CTRL) + Qt::Key_1)}, [this] {
        m_side->setCurrentIndex(0);
        m_contents->setFocus();
    });
    addOwn(tr("F&ind"), keysOf(QKeySequence::Find), [this] {
        m_side->setCurrentIndex(1);
        m_wanted->setFocus();
        m_wanted->selectAll();
    });
    buildSide();
    auto *parts = new QSplitter;
    parts->setObjectName(QStringLiteral("helpParts"));
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_side);
    parts->addWidget(m_browser);
    parts->setStretchFactor(1, 1);
    const int letter = fontMetrics().averageCharWidth();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(parts, 1);
    connect(m_browser, &HelpBrowser::documentShown, this, &HelpWindow::fillContents);
    connect(m_browser->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &HelpWindow::followScrolling);
    forwardFocus(this, m_browser);
    const QSize wanted(letter * 140, fontMetrics().height() * 46);
    const QSize size = wanted.boundedTo(IPCore::roomOnScreen(this));
    resize(size);
    const int side = qMin(letter * 34, size.width() * 3 / 10);
    parts->setSizes({side, size.width() - side});
}

void HelpWindow::buildSide()
{
    const auto tree = [this](const char *objectName, const QString &name) {
        auto *result = new QTreeWidget;
        result->setObjectName(QLatin1String(objectName));
        result->setAccessibleName(name);
        result->setHeaderHidden(true);
        result->setTextElideMode(Qt::ElideRight);
        result->installEventFilter(this);
        connect(result, &QTreeWidget::itemActivated, this, &HelpWindow::open);
        connect(result, &QTreeWidget::itemClicked, this, &HelpWindow::open);
        return result;
    };
    m_contents = tree("helpContents", tr("Contents"));
    m_results = tree("helpResults", tr("Places in the text"));
    m_results->setRootIsDecorated(false);
    m_results->setWordWrap(true);
    m_wanted->setObjectName(QStringLiteral("helpFindEdit"));
    m_wanted->setAccessibleName(tr("Find in the text"));
    m_wanted->setPlaceholderText(tr("Find in the text"));
    addClearButton(m_wanted);
    m_wanted->installEventFilter(this);
    connect(m_wanted, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] {
        if (m_results->topLevelItemCount() > 0) {
            m_results->setCurrentItem(m_results->topLevelItem(0));
            m_results->setFocus();
            open(m_results->topLevelItem(0));
        }
    });
    m_found->setObjectName(QStringLiteral("helpFound"));
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(2, 4, 2, 0);
    layout->addWidget(m_wanted);
    layout->addWidget(m_found);
    layout->addWidget(m_results, 1);
    m_side->setObjectName(QStringLiteral("helpSide"));
    m_side->setDocumentMode(true);
    m_side->addTab(m_contents, tr("Contents"));
    m_side->addTab(page, tr("Find"));
}

void HelpWindow::fillContents()
{
    m_contents->clear();
    QVector<QPair<int, QTreeWidgetItem *>> above; // with their levels
    const QVector<HelpBrowser::Heading> headings = m_browser->headings();
    for (const HelpBrowser::Heading &heading : headings) {
        while (!above.isEmpty() && above.last().first >= heading.level)
            above.removeLast();
        auto *item = above.isEmpty() ? new QTreeWidgetItem(m_contents)
                                     : new QTreeWidgetItem(above.last().second);
        item->setText(0, heading.text);
        item->setToolTip(0, heading.text);
        item->setData(0, placeRole, heading.position);
        item->setExpanded(heading.level < 2);
        above.append({heading.level, item});
    }
    search();
    QTimer::singleShot(0, this, &HelpWindow::followScrolling); // when the text has its places
}

// The heading above what is seen is the current one.
void HelpWindow::followScrolling()
{
    if (m_contents->hasFocus())
        return;
    // A line below the edge: above a heading is room.
    const QPoint place(m_browser->viewport()->width() / 2, fontMetrics().height());
    const bool isBegin = m_browser->verticalScrollBar()->value() == 0;
    const int top = isBegin ? 0 : m_browser->cursorForPosition(place).position();
    QTreeWidgetItem *current = nullptr;
    for (QTreeWidgetItemIterator it(m_contents); *it; ++it) {
        if ((*it)->data(0, placeRole).toInt() > top)
            break;
        current = *it;
    }
    m_contents->setCurrentItem(current);
}

void HelpWindow::search()
{
    m_results->clear();
    m_found->clear();
    const QString wanted = m_wanted->text().simplified();
    if (wanted.isEmpty())
        return;
    QString heading;
    int count = 0;
    const QTextDocument *document = m_browser->document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QString text = block.text();
        if (block.blockFormat().headingLevel() > 0)
            heading = text;
        const int at = text.indexOf(wanted, 0, Qt::CaseInsensitive);
        if (at < 0 || ++count > mostResults)
            continue;
        const int start = qMax(0, at - 40);
        const QString piece = text.mid(start, 120).simplified();
        auto *item = new QTreeWidgetItem(m_results);
        item->setText(0, heading == text ? heading : heading + QLatin1String("\n") + piece);
        item->setToolTip(0, piece);
        item->setData(0, placeRole, block.position() + at);
        item->setData(0, lengthRole, wanted.size());
    }
    m_found->setText(count == 0            ? tr("Not found")
                     : count > mostResults ? tr("The first %1 of %2").arg(mostResults).arg(count)
                                           : tr("Places: %1").arg(count));
}

void HelpWindow::open(const QTreeWidgetItem *item)
{
    if (item)
        m_browser->goTo(item->data(0, placeRole).toInt(), item->data(0, lengthRole).toInt());
}

bool HelpWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        m_browser->setFocus();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool HelpWindow::showDocument(const QString &path, const QString &title, const QString &heading)
{
    if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable())
        return false;
    setWindowTitle(title);
    show(); // before the text comes: pictures are made for the window's width
    QUrl url = QUrl::fromLocalFile(path);
    if (!heading.isEmpty())
        url.setFragment(heading);
    m_browser->setSource(url);
    raise();
    activateWindow();
    m_browser->setFocus();
    return true;
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else if (!pressFocusedButton(event))
        QWidget::keyPressEvent(event);
}

} // namespace Workbench
