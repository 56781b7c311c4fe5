#include <diagram/blockfocus.h>
#include <diagram/ipitem.h>

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

#include <cmath>

using namespace TARVOORIXM1;

// A view of three blocks; the last one shows no state.
class tst_BlockFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<QGraphicsScene>();
        m_view = std::make_unique<QGraphicsView>(m_scene.get());
        m_focus = std::make_unique<BlockFocus>(m_view.get());
        m_blocks.clear();
        for (int i = 0; i < 3; ++i) {
            auto *block = new IPItem(60, 40, true, false, Qt::black, Qt::white,
                                     QStringLiteral("block %1").arg(i));
            block->setPos(100 * i, 0);
            m_scene->addItem(block);
            m_focus->append(block, i < 2);
            m_blocks.append(block);
        }
    }
    void cleanup()
    {
        m_focus.reset();
        m_view.reset();
        m_scene.reset();
    }

    void walksToTheEndAndOut()
    {
        QCOMPARE(walk(true), m_blocks);
        QVERIFY(!m_focus->block());
    }

    void walksBackwardsFromTheEnd()
    {
        QCOMPARE(walk(false), QList<IPItem *>({m_blocks[2], m_blocks[1], m_blocks[0]}));
        QVERIFY(!m_focus->block());
    }

    void passesOverWhatCannotBeClicked()
    {
        m_blocks[0]->setVisible(false);
        m_blocks[1]->setClickable(false);
        QCOMPARE(walk(true), QList<IPItem *>({m_blocks[2]}));
        m_focus->enter(true);
        QCOMPARE(m_focus->block(), m_blocks[2]);
        m_blocks[2]->setVisible(false);
        m_focus->enter(false);
        QVERIFY(!m_focus->block());
    }

    void entersAtTheStartOrAtTheEnd()
    {
        m_focus->enter(true);
        QCOMPARE(m_focus->block(), m_blocks.first());
        m_focus->enter(false);
        QCOMPARE(m_focus->block(), m_blocks.last());
    }

    void tellsTheBlockAndItsState()
    {
        m_focus->announce();
        QCOMPARE(m_view->accessibleName(), QStringLiteral("Block diagram"));
        m_focus->set(m_blocks[0]);
        QCOMPARE(m_view->accessibleName(), QStringLiteral("block 0, switched off"));
        m_blocks[0]->onConfigured(true);
        m_focus->announce();
        QCOMPARE(m_view->accessibleName(), QStringLiteral("block 0, switched on"));
        m_focus->set(m_blocks[2]);
        QCOMPARE(m_view->accessibleName(), QStringLiteral("block 2"));
        m_focus->set(nullptr);
        QCOMPARE(m_view->accessibleName(), QStringLiteral("Block diagram"));
    }

    void framesTheBlockOnlyWhileTheViewHasTheFocus()
    {
        const auto drawn = [this] {
            QImage image(400, 100, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.translate(10, 10);
            m_focus->drawFrame(&painter);
            painter.end();
            QImage empty(image.size(), image.format());
            empty.fill(Qt::transparent);
            return image != empty;
        };
        m_focus->set(m_blocks[1]);
        QVERIFY(!drawn());
        m_view->show();
        QApplication::setActiveWindow(m_view.get());
        m_view->setFocus();
        QTRY_VERIFY(m_view->hasFocus());
        QVERIFY(drawn());
        m_focus->set(nullptr);
        QVERIFY(!drawn());
    }

    // The diagram is white in dark themes too, whose highlights are bright.
    void theFrameIsSeenOnPaper_data()
    {
        QTest::addColumn<QColor>("highlight");
        QTest::newRow("light") << QColor(48, 140, 198);
        QTest::newRow("dark") << QColor(61, 174, 233);
        QTest::newRow("yellow") << QColor(Qt::yellow);
        QTest::newRow("white") << QColor(Qt::white);
    }
    void theFrameIsSeenOnPaper()
    {
        QFETCH(QColor, highlight);
        QPalette palette = m_view->palette();
        palette.setColor(QPalette::Highlight, highlight);
        m_view->setPalette(palette);
        m_focus->set(m_blocks[0]);
        m_view->show();
        QApplication::setActiveWindow(m_view.get());
        m_view->setFocus();
        QTRY_VERIFY(m_view->hasFocus());
        QImage image(400, 100, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.translate(10, 10);
        m_focus->drawFrame(&painter);
        painter.end();
        const QColor frame = image.pixelColor(40, 6); // above the block, in its middle
        const auto linear = [](qreal value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        const qreal luminance = 0.2126 * linear(frame.redF()) + 0.7152 * linear(frame.greenF()) +
                                0.0722 * linear(frame.blueF());
        QVERIFY2(1.05 / (luminance + 0.05) >= 3, qPrintable(frame.name()));
    }

private:
    QList<IPItem *> walk(bool next)
    {
        QList<IPItem *> way;
        while (m_focus->step(next))
            way.append(m_focus->block());
        return way;
    }

    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<QGraphicsView> m_view;
    std::unique_ptr<BlockFocus> m_focus;
    QList<IPItem *> m_blocks;
};

QTEST_MAIN(tst_BlockFocus)
#include "tst_blockfocus.moc"
