#include "findline.h"

#include "config/latin1literal.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace TARVOORIXM1
{

namespace
{

constexpr int shownHits = 8; // without scrolling

} // namespace

FindLine::FindLine(QWidget *parent)
    : QFrame(parent)
    , m_edit(new QLineEdit(this))
    , m_list(new QListWidget(this))
    , m_notice(new QLabel(this))
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor); // not the diagram's hand
    setAccessibleName(tr("Find"));
    m_edit->setPlaceholderText(tr("Block, option, pin, address or interrupt"));
    m_edit->setAccessibleName(tr("Find a block, an option, a pin, an address or an interrupt"));
    m_edit->setClearButtonEnabled(true);
    if (auto *clear = m_edit->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction")))
        clear->setText(tr("Clear the text"));
    m_list->setAccessibleName(tr("What is found"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setUniformItemSizes(true);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_edit);
    layout->addWidget(m_list);
    layout->addWidget(m_notice);
    m_edit->installEventFilter(this);
    connect(m_edit, SIGNAL(textChanged(QString)), this, SLOT(search(QString)));
    connect(m_list, SIGNAL(currentRowChanged(int)), this, SLOT(onCurrentChanged(int)));
    connect(m_list, SIGNAL(itemClicked(QListWidgetItem *)), this, SLOT(take()));
    hide();
}

void FindLine::open(const FindIndex &index)
{
    m_index = index;
    search(m_edit->text());
    show();
    raise();
    m_edit->selectAll();
    m_edit->setFocus(Qt::ShortcutFocusReason);
}

void FindLine::search(const QString &query)
{
    m_hits = found(m_index.all, query);
    m_list->clear();
    for (const Findable &hit : qAsConst(m_hits)) {
        auto *item = new QListWidgetItem(
            tr("%1 (%2): %3").arg(hit.name, kindName(hit.kind), hit.detail), m_list);
        item->setToolTip(item->text());
    }
    if (!m_hits.isEmpty())
        m_list->setCurrentRow(0);
    else
        Q_EMIT chosen(QString());
    QString text = m_index.failure;
    if (m_hits.isEmpty() && !query.trimmed().isEmpty())
        text = queriedAddress(query) ? tr("Nothing answers at %1.").arg(query.trimmed())
                                     : tr("There is nothing like \"%1\".").arg(query.trimmed());
    setNotice(text);
}

void FindLine::onCurrentChanged(int row)
{
    if (row < 0 || row >= m_hits.size())
        return;
    // The keyboard is in the line, so that is where assistive tools look.
    m_edit->setAccessibleDescription(
        tr("%1 of %2: %3").arg(row + 1).arg(m_hits.size()).arg(m_list->item(row)->text()));
    setNotice(m_index.failure);
    Q_EMIT chosen(m_hits.at(row).box);
}

void FindLine::setNotice(const QString &text)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
    if (!text.isEmpty())
        m_edit->setAccessibleDescription(text);
    place();
}

QString FindLine::notice() const
{
    return m_notice->text();
}

void FindLine::place()
{
    const QWidget *over = parentWidget();
    constexpr int distance = 6;
    const int wide = fontMetrics().averageCharWidth() * 64;
    const int width = qMin(over->width() - 2 * distance, wide);
    const int rows = qMin(m_hits.size(), shownHits);
    const int row = m_hits.isEmpty() ? 0 : m_list->sizeHintForRow(0);
    m_list->setVisible(rows > 0);
    m_list->setFixedHeight(rows * row + 2 * m_list->frameWidth());
    ensurePolished();
    layout()->activate();
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                     : layout()->totalSizeHint().height();
    const int height = qMin(needed, over->height() - 2 * distance);
    setGeometry((over->width() - width) / 2, distance, width, height);
}

void FindLine::take()
{
    const int row = m_list->currentRow();
    if (row >= 0 && row < m_hits.size())
        Q_EMIT taken(m_hits.at(row).name, m_hits.at(row).box);
}

void FindLine::step(int by)
{
    if (m_hits.isEmpty())
        return;
    m_list->setCurrentRow(qBound(0, m_list->currentRow() + by, m_hits.size() - 1));
}

void FindLine::leave(bool stays)
{
    if (isHidden())
        return;
    hide();
    Q_EMIT closed(stays);
}

bool FindLine::onKey(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        leave(false);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        take();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        leave(true);
        return true;
    case Qt::Key_Up:
        step(-1);
        return true;
    case Qt::Key_Down:
        step(1);
        return true;
    case Qt::Key_PageUp:
        step(-shownHits);
        return true;
    case Qt::Key_PageDown:
        step(shownHits);
        return true;
    default:
        return false;
    }
}

bool FindLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_edit && event->type() == QEvent::KeyPress)
        return onKey(static_cast<QKeyEvent *>(event));
    if (watched == m_edit && event->type() == QEvent::FocusOut) {
        // Not for a menu, nor for another window.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
            reason == Qt::BacktabFocusReason)
            leave(true);
    }
    return QFrame::eventFilter(watched, event);
}

void FindLine::keyPressEvent(QKeyEvent *event)
{
    event->accept(); // none is the diagram's
}

void FindLine::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void FindLine::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        place();
}

} // namespace TARVOORIXM1
