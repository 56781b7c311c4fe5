#pragma once

#include "blockfocus.h"
#include "config/latin1literal.h"
#include "config/optionmap.h"
#include "diagramdialogs.h"

#include <QGraphicsView>
#include <QHash>
#include <QList>
#include <QMap>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QMenu)
QT_FORWARD_DECLARE_CLASS(QToolButton)

namespace TARVOORIXM1
{

class FindLine;
class IPItem;
class LineItem;
struct Block;
struct FindIndex;

// The picture of the subsystem: a double-click on a block, or Enter on the one that Tab has
// focused, opens the block's dialog; Space, or the context menu, switches the block without it,
// Shift+Space goes on to the next one then, + and - switch it, or all its ports, on and off.
// Works on the caller's option map, which must outlive it.
class IPView : public QGraphicsView
{
    Q_OBJECT

public:
    IPView(OptionMap *options, QWidget *parent = nullptr);

    // Show or hide the blocks that not every device can have.
    void setCanAvailable(bool available);
    void setDdr3Available(bool available);
    void setEthernetAvailable(bool available);
    void setPsramAvailable(bool available);
    void setSpiFlashAvailable(bool available);

    // Whether the block registered under this option key is offered.
    bool isBlockAvailable(const QString &key) const { return m_availableBlocks.contains(key); }

    // Scales the diagram so that all of it is seen, now and after every change of size, until the
    // user zooms. Off at first: the scale is 1.
    void setFitted(bool fitted);
    bool isFitted() const { return m_fitted; }

    // The block that the keyboard has reached; null if none.
    IPItem *focusedBlock() const { return m_focus.block(); }

    // What Ctrl+F looks through, asked for each time; without it, nothing is found.
    void setFindIndex(const std::function<FindIndex()> &index) { m_findIndex = index; }

    // Frames the block with this label; an empty or an unknown one: none.
    void pointAt(const QString &block);

    // Why the last key or command did nothing, or what it did where the diagram does not show it.
    QString notice() const { return m_notice; }

    // The boxes with a label that are shown: those on the keyboard's way in its order, then the
    // others.
    QList<IPItem *> shownBoxes() const;
    // Where the box is in the viewport.
    QRect placeOf(const IPItem *item) const;
    // Whether the box stands for one switch, which toggle() switches, and whether that is on.
    bool hasSwitch(const IPItem *item) const;
    bool isSwitchedOn(const IPItem *item) const;
    // In words whether the box is switched on, or how many of its ports; empty: it has no state.
    QString stateText(const IPItem *item) const;
    // What else is to be known: why it cannot be switched, or its tool tip.
    QString remarkOn(const IPItem *item) const;
    // Gives the keyboard to the block.
    void focusOn(IPItem *item);
    // Switches the block that the box stands for; false, and it is said why, where that cannot be.
    bool toggle(IPItem *item);
    // The menu that the context menu's key opens on the block.
    void popUpMenu(IPItem *item);

    // Draws the whole diagram as it is now, without the focus frame, into `target`, keeping its
    // proportions.
    void renderDiagram(QPainter *painter, const QRectF &target) const;
    // The format follows from the ending: .svg, .png or .pdf. False, and a sentence in `*error`, if
    // it is another one or the file cannot be written.
    Q_INVOKABLE bool saveDiagram(const QString &path, QString *error) const;

Q_SIGNALS:
    // Options were stored in the caller's map; they may be those of before.
    void optionsChanged();
    // The block under the mouse or, where none is, the one that the keyboard has reached; empty:
    // none.
    void pointedAt(const QString &block);

public Q_SLOTS:
    void zoomOut();
    void zoomIn();
    // Shows the state of the option map.
    void updateView();
    // Open the dialog of a block.
    void onCortexM1() { open("CortexM1"_l1); }
    void onGpio() { open("GPIODlg"_l1); }
    void onCan() { open("CANDlg"_l1); }
    void onEhternet() { open("EthernetDlg"_l1); }
    void onDDR3() { open("DDR3Dlg"_l1); }
    void onPsram() { open("PSRAMDlg"_l1); }
    void onSpiFlash() { open("SPIFlashDlg"_l1); }
    void onSDCard() { open("SDCardDlg"_l1); }
    void onAHB2Extension() { open("AHB2ExtensionDlg"_l1); }
    void onUart() { open("UartDlg"_l1); }
    void onTimer() { open("TimerDlg"_l1); }
    void onWatchDog() { open("WatchDogDlg"_l1); }
    void onRtc() { open("RTCDlg"_l1); }
    void onI2C() { open("I2CDlg"_l1); }
    void onSPI() { open("SPIDlg"_l1); }
    void onTRNG() { open("TrngDlg"_l1); }
    void onDualTimer() { open("DualTimerDlg"_l1); }
    void onAPB2Extension() { open("APB2ExtensionDlg"_l1); }

private Q_SLOTS:
    // Opens the dialog of the block that was double-clicked: for blocks without a slot of their
    // own.
    void onBlock();
    void onSavePicture();
    void onFind();
    void onFindTaken(const QString &name, const QString &box);
    void onFindClosed(bool stays);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void drawForeground(QPainter *painter, const QRectF &rect) override;

private:
    // A block that any of several options switches on.
    struct PortBlock {
        IPItem *block;
        QLatin1String keyPrefix;
        int ports;
    };

    void buildScene();
    void buildButtons();
    // Leaves a strip beside the diagram for the zoom buttons, so that they never cover a block.
    void reserveRoom();
    void setAvailable(QLatin1String key, bool available);
    // Of the class `dialog`.
    void open(QLatin1String dialog);

    bool switchPorts(IPItem *item, Switching switching);
    bool switchIn(const IPItem *item, const QVector<int> &switches, Switching switching);
    void toggleAndGoOn();
    // On or off, with all its ports; nothing where it is so.
    void switchFocused(Switching switching);
    // What its dialog would show of a switch.
    bool isShownOn(const Block &block, int index) const;
    void sayState(const IPItem *item, bool isOn);
    void addBlockActions(QMenu *menu, IPItem *item);
    void popUpMenu(IPItem *item, const QPoint &at);
    // Why the device keeps it from being switched on, a sentence.
    QString refusal(const IPItem *item) const;
    // To assistive tools: those of the states that have changed, and where the keyboard is.
    void tellStates();
    void tellFocus() const;
    // Tells people and assistive tools something about the block.
    void say(const QString &text, const IPItem *about);
    // Null: the mouse is over none.
    void hover(const IPItem *block);
    void tellPointed(const QString &label);
    void focusChanged();

    IPItem *topBlockAt(const QPoint &position) const;
    void scaleTo(qreal horizontal, qreal vertical);
    void fit();
    void updateLabelFont();

    QGraphicsScene *m_scene;
    QToolButton *m_zoomOutButton;
    QToolButton *m_zoomInButton;
    bool m_panning = false;
    QPoint m_lastPos;                       // while panning
    const IPItem *m_pressedBlock = nullptr; // compared only
    QHash<QString, IPItem *> m_availableBlocks;
    OptionMap *m_options;
    QMap<QString, IPItem *> m_blocks; // those whose look one option decides
    QList<PortBlock> m_portBlocks;
    QHash<QString, IPItem *> m_blockByLabel; // the clickable ones
    QHash<QString, IPItem *> m_boxByLabel;   // all
    QHash<QString, LineItem *> m_dropByLabel;
    QHash<QString, const char *> m_slotByLabel;
    BlockFocus m_focus{this};
    QFont m_labelFont;
    bool m_fitted = false;
    IPItem *m_pointed = nullptr; // framed by pointAt()
    QString m_hovered;           // labels
    QString m_toldPointed;
    QString m_notice;
    std::function<FindIndex()> m_findIndex;
    FindLine *m_findLine = nullptr; // made by the first search
    IPItem *m_focusedBefore = nullptr;
    QHash<const IPItem *, QString> m_toldStates;
};

} // namespace TARVOORIXM1
