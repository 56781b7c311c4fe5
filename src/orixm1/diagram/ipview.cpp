#include "ipview.h"

#include "accessiblediagram.h"
#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "diagrampicture.h"
#include "diagramtable.h"
#include "findline.h"
#include "ipitem.h"
#include "labelfont.h"
#include "lineitem.h"
#include "rules/devicerules.h"
#include "rules/dialogdefaults.h"
#include "textitem.h"

#include <QAccessible>
#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

constexpr qreal zoomInFactor = 1.2;
constexpr qreal zoomOutFactor = 0.8;
constexpr qreal largestScale = 4.0;
constexpr qreal smallestScale = 0.1;
constexpr qreal sceneMargin = 5;

// The blocks that a device may lack, by the option key that they are registered under. SPI-Flash is
// registered under the key of SPI.
struct AvailabilityRow {
    QLatin1String key;
    QLatin1String block;
};

constexpr AvailabilityRow availabilityRows[] = {
    {Key::enableCan, "CAN"_l1},           {Key::enableDdr3, "DDR3"_l1},
    {Key::enableEthernet, "Ethernet"_l1}, {Key::enablePsram, "PSRAM"_l1},
    {Key::enableSpi, "SPI-Flash"_l1},
};

// The diagram is paper: white in every theme.
constexpr Qt::GlobalColor paper = Qt::white;

QColor fillColor(DiagramRow::Fill fill)
{
    switch (fill) {
    case DiagramRow::White:
        return Qt::white;
    case DiagramRow::LightBlue:
        return {173, 216, 230};
    case DiagramRow::Nothing:
        break;
    }
    return Qt::transparent;
}

QList<QPoint> linePoints(const DiagramRow &row)
{
    QList<QPoint> points;
    for (int i = 0; i < row.pointCount; ++i)
        points.append(row.points[i]);
    return points;
}

// The place in the block's table of the one switch that a box stands for; -1: there is no such one.
int switchOfBox(const Block &block, const QString &label)
{
    for (int i = 0; i < int(std::size(block.boxes)) && !block.hasPorts(); ++i) {
        if (label == block.boxes[i].label)
            return i;
    }
    return -1;
}

// How a slot is named where a connection is made.
QByteArray slotSignature(const char *slot)
{
    return QByteArray::number(QSLOT_CODE) + slot;
}

} // namespace

IPView::IPView(OptionMap *options, QWidget *parent)
    : QGraphicsView(parent)
    , m_scene(new QGraphicsScene(this))
    , m_options(options)
{
    installAccessibleDiagram();
    setScene(m_scene);
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    buildScene();
    buildButtons();
    updateLabelFont();
    m_focus.announce();
    m_focus.setListener([this] { focusChanged(); });

    auto *find = new QAction(tr("Find..."), this);
    find->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_F));
    connect(find, SIGNAL(triggered()), this, SLOT(onFind()));
    addAction(find);
    auto *savePicture = new QAction(tr("Save Picture As..."), this);
    connect(savePicture, SIGNAL(triggered()), this, SLOT(onSavePicture()));
    addAction(savePicture);
}

void IPView::buildScene()
{
    IPItem *parents[] = {nullptr, nullptr, nullptr};
    int nextParent = DiagramRow::Frame;
    for (const DiagramRow &row : diagramRows()) {
        QGraphicsItem *item = nullptr;
        QGraphicsItem *parent = parents[row.parent];
        if (row.kind == DiagramRow::Text) {
            item = new TextItem(row.text, parent);
        } else if (row.kind == DiagramRow::Line) {
            auto *line = new LineItem(linePoints(row), row.dashed,
                                      row.color == DiagramRow::Red ? Qt::red : Qt::black,
                                      row.startHead, row.endHead, parent);
            if (row.dropOf.size() > 0)
                m_dropByLabel.insert(row.dropOf, line);
            item = line;
        } else {
            auto *block = new IPItem(row.width, row.height, row.slot != nullptr, false, Qt::black,
                                     fillColor(row.fill), row.text, parent);
            if (nextParent <= DiagramRow::SubSystem)
                parents[nextParent++] = block;
            if (row.text.size() > 0)
                m_boxByLabel.insert(row.text, block);
            if (row.toolTip.size() > 0)
                block->setToolTip(row.toolTip);
            if (row.slot) {
                m_blockByLabel.insert(row.text, block);
                m_slotByLabel.insert(row.text, row.slot);
                m_focus.append(block, row.key.size() > 0);
                connect(block, SIGNAL(doubleClicked()), this, slotSignature(row.slot).constData());
            }
            if (row.ports > 0)
                m_portBlocks.append({block, row.key, row.ports});
            else if (row.key.size() > 0)
                m_blocks.insert(row.key, block);
            item = block;
        }
        item->setPos(row.x, row.y);
        if (!parent)
            m_scene->addItem(item);
    }
    m_scene->setBackgroundBrush(paper);
    m_scene->setSceneRect(parents[DiagramRow::Frame]->boundingRect().adjusted(
        -sceneMargin, -sceneMargin, sceneMargin, sceneMargin));
}

void IPView::buildButtons()
{
    const auto makeButton = [this](const QString &icon, const QString &name, const char *slot) {
        auto *button = new QToolButton(this);
        button->setIcon(QIcon(icon));
        button->setToolTip(name);
        button->setAccessibleName(name);
        button->setCursor(Qt::ArrowCursor); // not the view's hand
        connect(button, SIGNAL(clicked()), this, slot);
        return button;
    };
    m_zoomOutButton =
        makeButton(QStringLiteral(":/image/zoom_out.png"), tr("Zoom out"), SLOT(zoomOut()));
    m_zoomInButton =
        makeButton(QStringLiteral(":/image/zoom_in.png"), tr("Zoom in"), SLOT(zoomIn()));
    reserveRoom();
}

void IPView::reserveRoom()
{
    const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int widest =
        qMax(m_zoomInButton->sizeHint().width(), m_zoomOutButton->sizeHint().width());
    constexpr int ring = 2; // of the focus
    setViewportMargins(ring, ring, widest + extent + 2 * ring, ring);
}

bool IPView::event(QEvent *event)
{
    const bool result = QGraphicsView::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        constexpr int width = 2;
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine,
                            Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
    return result;
}

// Opening and updating

void IPView::open(QLatin1String dialog)
{
    const OptionMap before = *m_options;
    const bool accepted = runBlockDialog(dialog, m_options, this);
    if (accepted)
        updateView();
    // Not every dialog that is cancelled leaves the map alone.
    if (accepted || *m_options != before)
        Q_EMIT optionsChanged();
}

bool IPView::toggle(IPItem *item)
{
    const Block *block = blockOfBox(item->text());
    const int index = block ? switchOfBox(*block, item->text()) : -1;
    if (index >= 0)
        return switchIn(item, {index}, Switching::Toggle);
    if (block)
        say(tr("%1 has a switch for each port: its dialog switches one, + and - all of them.")
                .arg(item->text()),
            item);
    else
        say(tr("%1 cannot be switched off.").arg(item->text()), item);
    return false;
}

bool IPView::switchPorts(IPItem *item, Switching switching)
{
    const Block *block = blockOfBox(item->text());
    QVector<int> all;
    for (int i = 0; block && i < block->switches.size(); ++i)
        all.append(i);
    return !all.isEmpty() && switchIn(item, all, switching);
}

bool IPView::switchIn(const IPItem *item, const QVector<int> &switches, Switching switching)
{
    const Block &block = *blockOfBox(item->text());
    if (!switchInBlockDialog(block.dialog, switches, switching, m_options, this)) {
        say(refusal(item), item);
        return false;
    }
    updateView();
    if (!m_focus.hasState(m_blockByLabel.value(item->text())))
        sayState(item, isOn(*m_options, block.switches[switches.first()].key()));
    Q_EMIT optionsChanged();
    return true;
}

// What was switched is no longer in focus then, so it is said.
void IPView::toggleAndGoOn()
{
    IPItem *item = m_focus.block();
    if (!toggle(item))
        return;
    const Block *block = blockOfBox(item->text());
    m_focus.goOn();
    sayState(item, isOn(*m_options, block->switches[switchOfBox(*block, item->text())].key()));
}

void IPView::switchFocused(Switching switching)
{
    IPItem *item = m_focus.block();
    const Block *block = blockOfBox(item->text());
    if (!block) {
        say(tr("%1 cannot be switched off.").arg(item->text()), item);
        return;
    }
    const int index = switchOfBox(*block, item->text());
    const bool on = switching == Switching::On;
    bool isSo = true;
    for (int i = 0; i < block->switches.size(); ++i) {
        if (block->hasPorts() || i == index)
            isSo = isSo && isShownOn(*block, i) == on &&
                   isOn(*m_options, block->switches[i].key()) == on;
    }
    if (isSo)
        sayState(item, on);
    else if (block->hasPorts())
        switchPorts(item, switching);
    else if (index >= 0)
        switchIn(item, {index}, switching);
}

bool IPView::isShownOn(const Block &block, int index) const
{
    return dialogValue(*m_options, block.switches[index].key(), textOf(*m_options, Key::ipDevice))
        .toBool();
}

void IPView::sayState(const IPItem *item, bool isOn)
{
    say(isOn ? tr("%1 is switched on.").arg(item->text())
             : tr("%1 is switched off.").arg(item->text()),
        item);
}

void IPView::say(const QString &text, const IPItem *about)
{
    m_notice = text;
    setAccessibleDescription(text);
    if (text.isEmpty())
        return;
    const QPoint below = mapFromScene(about->sceneBoundingRect().bottomLeft());
    QToolTip::showText(viewport()->mapToGlobal(below), text, viewport());
}

void IPView::addBlockActions(QMenu *menu, IPItem *item)
{
    QAction *open = menu->addAction(tr("Open %1...").arg(item->text()) + "\tEnter"_l1);
    connect(open, &QAction::triggered, item, &IPItem::doubleClicked);
    const Block *block = blockOfBox(item->text());
    const int index = block ? switchOfBox(*block, item->text()) : -1;
    if (block && block->hasPorts()) {
        int on = 0;
        for (int i = 0; i < block->switches.size(); ++i)
            on += isShownOn(*block, i) ? 1 : 0;
        QAction *all = menu->addAction(tr("Switch All Ports On") + "\t+"_l1);
        all->setEnabled(on < block->switches.size());
        connect(all, &QAction::triggered, this, [this, item] { switchPorts(item, Switching::On); });
        QAction *none = menu->addAction(tr("Switch All Ports Off") + "\t-"_l1);
        none->setEnabled(on > 0);
        connect(none, &QAction::triggered, this,
                [this, item] { switchPorts(item, Switching::Off); });
        return;
    }
    const bool isOn = index >= 0 && isShownOn(*block, index);
    QAction *toggled =
        menu->addAction((isOn ? tr("Switch %1 Off") : tr("Switch %1 On")).arg(item->text()) +
                        (index >= 0 ? "\tSpace"_l1 : ""_l1));
    toggled->setEnabled(index >= 0);
    connect(toggled, &QAction::triggered, this, [this, item] { toggle(item); });
}

void IPView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    IPItem *item = byMouse ? topBlockAt(event->pos()) : m_focus.block();
    if (item && (!item->isClickable() || !m_blockByLabel.contains(item->text())))
        item = nullptr;
    if (item && !byMouse)
        popUpMenu(item);
    else
        popUpMenu(item, event->globalPos());
    event->accept();
}

void IPView::popUpMenu(IPItem *item)
{
    popUpMenu(item, viewport()->mapToGlobal(mapFromScene(item->sceneBoundingRect().bottomLeft())));
}

void IPView::popUpMenu(IPItem *item, const QPoint &at)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (item) {
        addBlockActions(menu, item);
        menu->addSeparator();
    }
    menu->addActions(actions());
    menu->popup(at);
}

void IPView::onBlock()
{
    const auto *item = qobject_cast<const IPItem *>(sender());
    if (const Block *block = item ? blockOfBox(item->text()) : nullptr)
        open(block->dialog);
}

void IPView::updateView()
{
    for (auto it = m_blocks.cbegin(); it != m_blocks.cend(); ++it)
        it.value()->onConfigured(isOn(*m_options, it.key()));
    for (const PortBlock &entry : qAsConst(m_portBlocks)) {
        bool any = false;
        for (int port = 1; port <= entry.ports && !any; ++port)
            any = isOn(*m_options, Key::extensionPortKey(entry.keyPrefix, port));
        entry.block->onConfigured(any);
    }
    m_focus.announce();
    tellStates();
}

void IPView::setCanAvailable(bool available)
{
    setAvailable(Key::enableCan, available);
}

void IPView::setDdr3Available(bool available)
{
    setAvailable(Key::enableDdr3, available);
}

void IPView::setEthernetAvailable(bool available)
{
    setAvailable(Key::enableEthernet, available);
}

void IPView::setPsramAvailable(bool available)
{
    setAvailable(Key::enablePsram, available);
}

void IPView::setSpiFlashAvailable(bool available)
{
    setAvailable(Key::enableSpi, available);
}

void IPView::setAvailable(QLatin1String key, bool available)
{
    QString label;
    for (const AvailabilityRow &row : availabilityRows) {
        if (row.key == key)
            label = row.block;
    }
    IPItem *block = m_blockByLabel.value(label);
    const QByteArray slot = slotSignature(m_slotByLabel.value(label));
    if (available) {
        m_availableBlocks.insert(key, block);
        connect(block, SIGNAL(doubleClicked()), this, slot.constData(), Qt::UniqueConnection);
    } else {
        m_availableBlocks.remove(key);
        disconnect(block, SIGNAL(doubleClicked()), this, slot.constData());
        if (block == m_focus.block())
            m_focus.set(nullptr);
        if (block == m_focusedBefore)
            m_focusedBefore = nullptr;
        if (block == m_pointed)
            pointAt(QString());
    }
    const bool changes = available != block->isVisible();
    block->setClickable(available);
    block->setVisible(available);
    if (changes) {
        QAccessibleEvent event(block,
                               available ? QAccessible::ObjectShow : QAccessible::ObjectHide);
        QAccessible::updateAccessibility(&event);
    }
    m_dropByLabel.value(label)->setVisible(available);
    updateView();
}

// Find

void IPView::onFind()
{
    if (!m_findLine) {
        m_findLine = new FindLine(this);
        connect(m_findLine, SIGNAL(taken(QString, QString)), this,
                SLOT(onFindTaken(QString, QString)));
        connect(m_findLine, &FindLine::chosen, this, &IPView::pointAt);
        connect(m_findLine, SIGNAL(closed(bool)), this, SLOT(onFindClosed(bool)));
    }
    if (m_findLine->isHidden())
        m_focusedBefore = m_focus.block();
    m_findLine->open(m_findIndex ? m_findIndex() : FindIndex());
}

void IPView::onFindTaken(const QString &name, const QString &box)
{
    IPItem *block = m_blockByLabel.value(box);
    if (!block) {
        m_findLine->setNotice(tr("%1 comes by itself: no dialog decides over it.").arg(name));
    } else if (!block->isClickable() || !block->isVisible()) {
        m_findLine->setNotice(tr("There is no %1 on %2, the device of this configuration.")
                                  .arg(box, textOf(*m_options, Key::ipDevice)));
    } else {
        m_findLine->leave(true);
        Q_EMIT block->doubleClicked();
    }
}

void IPView::onFindClosed(bool stays)
{
    IPItem *hit = m_pointed;
    pointAt(QString());
    const bool canFocus =
        hit && m_blockByLabel.value(hit->text()) == hit && hit->isClickable() && hit->isVisible();
    setFocus(Qt::OtherFocusReason);
    m_focus.set(stays && canFocus ? hit : m_focusedBefore);
}

// Pointing

void IPView::pointAt(const QString &block)
{
    IPItem *item = m_boxByLabel.value(block);
    if (item && !item->isVisible())
        item = nullptr;
    if (item == m_pointed)
        return;
    for (IPItem *changed : {m_pointed, item}) {
        if (changed)
            m_scene->invalidate(BlockFocus::frameOf(changed).adjusted(-3, -3, 3, 3),
                                QGraphicsScene::ForegroundLayer);
    }
    m_pointed = item;
    if (item)
        ensureVisible(item);
}

void IPView::hover(const IPItem *block)
{
    const QString label = block ? block->text() : QString();
    if (label == m_hovered)
        return;
    m_hovered = label;
    const IPItem *focused = m_focus.block();
    tellPointed(label.isEmpty() && focused ? focused->text() : label);
}

void IPView::focusChanged()
{
    if (!m_notice.isEmpty())
        say(QString(), nullptr); // it was about another block
    const IPItem *focused = m_focus.block();
    tellPointed(focused ? focused->text() : m_hovered);
    tellFocus();
}

void IPView::tellPointed(const QString &label)
{
    if (label == m_toldPointed)
        return;
    m_toldPointed = label;
    Q_EMIT pointedAt(label);
}

bool IPView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        hover(nullptr);
    return QGraphicsView::viewportEvent(event);
}

// Assistive tools

QList<IPItem *> IPView::shownBoxes() const
{
    QList<IPItem *> boxes = m_focus.reachable();
    // Not the frames, which have no label.
    for (const DiagramRow &row : diagramRows()) {
        IPItem *box = row.kind == DiagramRow::Block ? m_boxByLabel.value(row.text) : nullptr;
        if (box && box->isVisible() && !box->isClickable() && !boxes.contains(box))
            boxes.append(box);
    }
    return boxes;
}

QRect IPView::placeOf(const IPItem *item) const
{
    return mapFromScene(item->sceneBoundingRect()).boundingRect();
}

bool IPView::hasSwitch(const IPItem *item) const
{
    const Block *block = blockOfBox(item->text());
    return block && switchOfBox(*block, item->text()) >= 0;
}

bool IPView::isSwitchedOn(const IPItem *item) const
{
    const Block *block = blockOfBox(item->text());
    const int index = block ? switchOfBox(*block, item->text()) : -1;
    return index >= 0 && isOn(*m_options, block->switches[index].key());
}

QString IPView::stateText(const IPItem *item) const
{
    const Block *block = blockOfBox(item->text());
    if (!block)
        return {};
    if (!block->hasPorts())
        return isSwitchedOn(item) ? tr("switched on") : tr("switched off");
    int on = 0;
    for (const SwitchRow &row : block->switches)
        on += isOn(*m_options, row.key()) ? 1 : 0;
    return tr("%1 of %2 ports switched on").arg(on).arg(block->switches.size());
}

QString IPView::refusal(const IPItem *item) const
{
    return tr("%1 cannot be switched on: %2 cannot have it.")
        .arg(item->text(), textOf(*m_options, Key::ipDevice));
}

QString IPView::remarkOn(const IPItem *item) const
{
    const Block *block = blockOfBox(item->text());
    const bool isLocked = block && block->switches[0].key() == Key::enableDdr3 &&
                          isDdr3Locked(textOf(*m_options, Key::ipDevice));
    return !item->isVisible() || isLocked ? refusal(item) : item->toolTip();
}

void IPView::focusOn(IPItem *item)
{
    setFocus(Qt::OtherFocusReason);
    if (item->isClickable() && item->isVisible())
        m_focus.set(item);
}

void IPView::tellFocus() const
{
    if (!hasFocus() || !m_focus.block())
        return;
    QAccessibleEvent event(m_focus.block(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void IPView::tellStates()
{
    const bool isFirst = m_toldStates.isEmpty();
    for (IPItem *box : qAsConst(m_blockByLabel)) {
        QString &told = m_toldStates[box];
        const QString text = stateText(box);
        if (text == told)
            continue;
        told = text;
        if (isFirst)
            continue;
        if (hasSwitch(box)) {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent event(box, changed);
            QAccessible::updateAccessibility(&event);
        } else {
            QAccessibleValueChangeEvent event(box, text);
            QAccessible::updateAccessibility(&event);
        }
    }
}

// Zoom

void IPView::scaleTo(qreal horizontal, qreal vertical)
{
    setTransform(QTransform::fromScale(horizontal, vertical));
}

void IPView::zoomIn()
{
    m_fitted = false;
    scaleTo(qMin(transform().m11() * zoomInFactor, largestScale),
            qMin(transform().m22() * zoomInFactor, largestScale));
}

void IPView::zoomOut()
{
    m_fitted = false;
    scaleTo(qMax(transform().m11() * zoomOutFactor, smallestScale),
            qMax(transform().m22() * zoomOutFactor, smallestScale));
}

void IPView::setFitted(bool fitted)
{
    m_fitted = fitted;
    if (fitted)
        fit();
}

void IPView::fit()
{
    const QSize room = maximumViewportSize();
    // A little less than what fits, so that rounding never brings in a scroll bar.
    constexpr qreal slack = 0.999;
    const qreal scale =
        qMin(room.width() / sceneRect().width(), room.height() / sceneRect().height()) * slack;
    const qreal bounded = qBound(smallestScale, scale, largestScale);
    scaleTo(bounded, bounded);
}

void IPView::wheelEvent(QWheelEvent *event)
{
    const ViewportAnchor before = transformationAnchor();
    setTransformationAnchor(AnchorUnderMouse);
    if (event->angleDelta().y() > 0)
        zoomIn();
    else if (event->angleDelta().y() < 0)
        zoomOut();
    setTransformationAnchor(before);
    QGraphicsView::wheelEvent(event);
}

void IPView::resizeEvent(QResizeEvent *event)
{
    const int extent = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    int spacing = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, this);
    if (spacing < 0)
        spacing = style()->layoutSpacing(QSizePolicy::ToolButton, QSizePolicy::ToolButton,
                                         Qt::Vertical, nullptr, this);
    const QPoint corner(width() - 2 - extent, height() - 2 - extent);
    QRect out(QPoint(), m_zoomOutButton->sizeHint());
    out.moveBottomRight(corner);
    m_zoomOutButton->setGeometry(out);
    QRect in(QPoint(), m_zoomInButton->sizeHint());
    in.moveBottomRight({corner.x(), out.top() - spacing});
    m_zoomInButton->setGeometry(in);
    QGraphicsView::resizeEvent(event);
    if (m_findLine && !m_findLine->isHidden())
        m_findLine->place();
    if (m_fitted)
        fit();
}

// Mouse

IPItem *IPView::topBlockAt(const QPoint &position) const
{
    const QList<QGraphicsItem *> under = items(position);
    for (QGraphicsItem *item : under) {
        if (auto *block = qgraphicsitem_cast<IPItem *>(item))
            return block;
    }
    return nullptr;
}

void IPView::mousePressEvent(QMouseEvent *event)
{
    m_focus.set(nullptr);
    if (event->button() == Qt::LeftButton && !m_panning) {
        m_pressedBlock = topBlockAt(event->pos());
        if (!m_pressedBlock || !m_pressedBlock->isClickable()) {
            m_panning = true;
            m_lastPos = event->pos();
            setCursor(Qt::ClosedHandCursor);
        }
    }
    QGraphicsView::mousePressEvent(event);
}

void IPView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_panning) {
        const QPoint moved = event->pos() - m_lastPos;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
        m_lastPos = event->pos();
    } else {
        const IPItem *block = topBlockAt(event->pos());
        setCursor(block && block->isClickable() ? Qt::ArrowCursor : Qt::OpenHandCursor);
        hover(block);
    }
    QGraphicsView::mouseMoveEvent(event);
}

void IPView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_panning) {
        m_panning = false;
        setCursor(Qt::OpenHandCursor);
    }
    QGraphicsView::mouseReleaseEvent(event);
}

void IPView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The scene takes a double-click for a mere press if the press before it was on another item,
    // or if there was none, as when a tool sends it.
    if (event->button() == Qt::LeftButton && topBlockAt(event->pos()) != m_pressedBlock) {
        m_pressedBlock = topBlockAt(event->pos());
        QMouseEvent press(QEvent::MouseButtonPress, event->localPos(), event->screenPos(),
                          event->button(), event->buttons(), event->modifiers());
        QGraphicsView::mousePressEvent(&press);
        QMouseEvent release(QEvent::MouseButtonRelease, event->localPos(), event->screenPos(),
                            event->button(), event->buttons() & ~event->button(),
                            event->modifiers());
        QGraphicsView::mouseReleaseEvent(&release);
    }
    QGraphicsView::mouseDoubleClickEvent(event);

    // A dialog that came up swallows the button's release. Without it the block would keep the
    // mouse and get the next click, wherever that goes.
    if (QGraphicsItem *grabber = m_scene->mouseGrabberItem())
        grabber->ungrabMouse();
}

// Keyboard

bool IPView::focusNextPrevChild(bool next)
{
    // A button inside the view asks it, too, and is left at once.
    const QWidget *focused = window()->focusWidget();
    const bool isInside = focused && focused != this && isAncestorOf(focused);
    return (!isInside && m_focus.step(next)) || QGraphicsView::focusNextPrevChild(next);
}

void IPView::focusInEvent(QFocusEvent *event)
{
    QGraphicsView::focusInEvent(event);
    update(); // the ring around the view
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        m_focus.enter(event->reason() == Qt::TabFocusReason);
    else
        m_focus.updateFrame();
    // After Qt has told that the view has it.
    QMetaObject::invokeMethod(this, &IPView::tellFocus, Qt::QueuedConnection);
}

void IPView::focusOutEvent(QFocusEvent *event)
{
    QGraphicsView::focusOutEvent(event);
    update();
    m_focus.updateFrame();
}

void IPView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_focus.block())
            Q_EMIT m_focus.block()->doubleClicked();
        else
            event->ignore();
        return;
    }
    if (!m_notice.isEmpty())
        say(QString(), nullptr);
    // "+" may need Shift, or be on the keypad.
    const Qt::KeyboardModifiers further = event->modifiers() & ~Qt::KeypadModifier;
    const bool isSwitch = event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus;
    const bool isShifted = further == Qt::ShiftModifier;
    if ((event->key() == Qt::Key_Space || isSwitch) &&
        (further == Qt::NoModifier || (isShifted && event->key() != Qt::Key_Minus))) {
        if (!m_focus.block())
            event->ignore();
        else if (isSwitch)
            switchFocused(event->key() == Qt::Key_Plus ? Switching::On : Switching::Off);
        else if (isShifted)
            toggleAndGoOn();
        else
            toggle(m_focus.block());
        return;
    }
    // Those of the actions come here where no window is active.
    const QKeySequence pressed(int(event->modifiers()) | event->key());
    const QList<QAction *> all = actions();
    for (QAction *action : all) {
        if (action->shortcuts().contains(pressed)) {
            action->trigger();
            return;
        }
    }
    const bool control = event->modifiers() & Qt::ControlModifier;
    // Also where the desktop has no keys of its own for it; "+" may need Shift.
    if (event->matches(QKeySequence::ZoomIn) ||
        (control && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)))
        zoomIn();
    else if (event->matches(QKeySequence::ZoomOut) || (control && event->key() == Qt::Key_Minus))
        zoomOut();
    else if (event->key() == Qt::Key_0 && event->modifiers() == Qt::ControlModifier)
        setFitted(true);
    else
        QGraphicsView::keyPressEvent(event);
}

void IPView::drawForeground(QPainter *painter, const QRectF & /*rect*/)
{
    m_focus.drawFrame(painter);
    if (!m_pointed)
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(palette().color(QPalette::Highlight), 3, Qt::DotLine));
    painter->drawRoundedRect(BlockFocus::frameOf(m_pointed), 3, 3);
}

// Font and pictures

void IPView::changeEvent(QEvent *event)
{
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateLabelFont();
    else if (event->type() == QEvent::StyleChange)
        reserveRoom();
}

void IPView::updateLabelFont()
{
    m_labelFont = fittingFont(font(), diagramLabels());
    viewport()->setFont(m_labelFont); // what items are painted with
    const QList<QGraphicsItem *> all = m_scene->items();
    for (QGraphicsItem *item : all) {
        if (auto *label = qgraphicsitem_cast<TextItem *>(item))
            label->setFont(m_labelFont);
    }
}

void IPView::renderDiagram(QPainter *painter, const QRectF &target) const
{
    painter->save();
    painter->setFont(m_labelFont);
    painter->setRenderHints(renderHints());
    m_scene->render(painter, target, sceneRect(), Qt::KeepAspectRatio);
    painter->restore();
}

bool IPView::saveDiagram(const QString &path, QString *error) const
{
    return writePicture(
        path, sceneRect().size().toSize(),
        [this](QPainter *painter, const QRectF &target) { renderDiagram(painter, target); }, error);
}

void IPView::onSavePicture()
{
    runSavePictureDialog(
        this, [this](const QString &path, QString *error) { return saveDiagram(path, error); });
}

} // namespace TARVOORIXM1
