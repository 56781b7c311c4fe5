#pragma once

#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>

// As much as the block diagram shows, in stock items: 60 of them.
inline void fillBareScene(QGraphicsScene &scene)
{
    for (int i = 0; i < 20; ++i) {
        const qreal x = (i % 10) * 100;
        const qreal y = (i / 10) * 250;
        scene.addRect(x, y, 60, 40, QPen(Qt::black), QBrush(Qt::white));
        auto *text = scene.addSimpleText(QStringLiteral("Block %1").arg(i));
        text->setPos(x + 5, y + 10);
        scene.addLine(x + 30, y - 30, x + 30, y, QPen(Qt::black));
    }
    scene.setSceneRect(-10, -40, 1010, 570);
}
