#pragma once

#include "blockfocus.h"
#include "config/optionmap.h"
#include "diagramdialogs.h"

#include <QGraphicsView>
#include <QHash>
#include <QList>
#include <QMap>

QT_FORWARD_DECLARE_CLASS(QToolButton)

namespace TARVOORIXM1
{

class IPItem;
class LineItem;

// The picture of the subsystem: a double-click on a block, or Enter on the one that Tab has
// focused, opens the block's dialog. Works on the caller's option map, which must outlive it.
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

    // Draws the whole diagram as it is now, without the focus frame, into `target`, keeping its
    // proportions.
    void renderDiagram(QPainter *painter, const QRectF &target) const;
    // The format follows from the ending: .svg, .png or .pdf. False, and a sentence in `*error`, if
    // it is another one or the file cannot be written.
    Q_INVOKABLE bool saveDiagram(const QString &path, QString *error) const;

public Q_SLOTS:
    void zoomOut();
    void zoomIn();
    // Shows the state of the option map.
    void updateView();
    // Open the dialog of a block.
    void onCortexM1() { open(BlockDialog::CortexM1); }
    void onGpio() { open(BlockDialog::Gpio); }
    void onCan() { open(BlockDialog::Can); }
    void onEhternet() { open(BlockDialog::Ethernet); }
    void onDDR3() { open(BlockDialog::Ddr3); }
    void onPsram() { open(BlockDialog::Psram); }
    void onSpiFlash() { open(BlockDialog::SpiFlash); }
    void onSDCard() { open(BlockDialog::SdCard); }
    void onAHB2Extension() { open(BlockDialog::Ahb2Extension); }
    void onUart() { open(BlockDialog::Uart); }
    void onTimer() { open(BlockDialog::Timer); }
    void onWatchDog() { open(BlockDialog::WatchDog); }
    void onRtc() { open(BlockDialog::Rtc); }
    void onI2C() { open(BlockDialog::I2c); }
    void onSPI() { open(BlockDialog::Spi); }
    void onTRNG() { open(BlockDialog::Trng); }
    void onDualTimer() { open(BlockDialog::DualTimer); }
    void onAPB2Extension() { open(BlockDialog::Apb2Extension); }

private Q_SLOTS:
    void onSavePicture();

protected:
    bool event(QEvent *event) override;
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
    void open(BlockDialog block);

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
    QHash<QString, LineItem *> m_dropByLabel;
    QHash<QString, const char *> m_slotByLabel;
    BlockFocus m_focus{this};
    QFont m_labelFont;
    bool m_fitted = false;
};

} // namespace TARVOORIXM1
