#include <workbench/widgets/wrappedlabel.h>
#include <workbench/widgets/wrappedtext.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace Workbench;

namespace
{

constexpr int flags = int(Qt::AlignLeft) | int(Qt::AlignTop) | int(Qt::TextWordWrap);

struct Text {
    const char *name;
    const char *text;
};
constexpr Text texts[] = {
    {"of one word", "short"},
    {"of some words", "Choose a folder, a name and a device."},
    {"of many words",
     "A microcontroller subsystem around a processor with tightly coupled memories "
     "and optional peripherals on two buses, and more of them than one expects."},
    {"with a word that fits nowhere", "a Donaudampfschifffahrtsgesellschaftskapitänsmütze of his"},
    {"with paragraphs", "One line.\nAnother line, which is longer.\n\nAnd a last one."},
    {"with signs", "R & D\tA%1 <b>no</b> \"x\" …"},
    {"in Chinese", "选择文件夹、名称和器件。然后打开其对话框。"},
};

void addTexts(bool withParagraphs)
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QFont>("font");
    for (const Text &row : texts) {
        const QString text = QString::fromUtf8(row.text);
        if (!withParagraphs && text.contains(u'\n'))
            continue;
        for (int points : {8, 10, 17}) {
            QFont font = QApplication::font();
            font.setPointSize(points);
            font.setBold(points == 17);
            QTest::addRow("%s, %d points", row.name, points) << text << font;
        }
    }
}

template <typename Paint>
QImage picture(const QSize &size, const QFont &font, Paint paint)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::darkRed);
    paint(&painter);
    return image;
}

void makeSelectable(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setText(text);
}

} // namespace

// What is shaped once is no other than what Qt makes each time.
class TestWrappedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMeasuredAndDrawnAsQtDoes_data() { addTexts(true); }
    void isMeasuredAndDrawnAsQtDoes()
    {
        QFETCH(QString, text);
        QFETCH(QFont, font);
        WrappedText wrapped;
        wrapped.set(text, font, Qt::LeftToRight);
        const QFontMetrics metrics(font);
        // Narrower and wider by turns, each more than once.
        for (int width : {300, 0, 90, 1000, 300, 57, 90, 2000, 150}) {
            const QSize expected =
                metrics.boundingRect(QRect(0, 0, width, 0x4000), flags, text).size();
            QCOMPARE(wrapped.sizeFor(width), expected);
            if (width == 0)
                continue;
            for (const QRect &place :
                 {QRect(10, 7, width, expected.height()), QRect(10, 7, width, 15)}) {
                const QSize whole(width + 20, expected.height() + 20);
                const QImage drawn =
                    picture(whole, font, [&](QPainter *painter) { wrapped.draw(painter, place); });
                QCOMPARE(drawn, picture(whole, font, [&](QPainter *painter) {
                             painter->drawText(place, flags, text);
                         }));
                QVERIFY(drawn != picture(whole, font, [](QPainter *) {}));
            }
        }
        const int natural = wrapped.naturalWidth();
        const int least = wrapped.sizeFor(0x4000).height();
        QCOMPARE(wrapped.sizeFor(natural).height(), least);
        QVERIFY(wrapped.sizeFor(natural * 9 / 10).height() > least || !text.contains(u' '));
    }

    void followsItsTextAndFont()
    {
        WrappedText wrapped;
        QFont font = QApplication::font();
        for (const Text &row : texts) {
            const QString text = QString::fromUtf8(row.text);
            font.setPointSize(font.pointSize() + 1);
            wrapped.set(text, font, Qt::LeftToRight);
            QCOMPARE(wrapped.sizeFor(200),
                     QFontMetrics(font).boundingRect(QRect(0, 0, 200, 0x4000), flags, text).size());
        }
    }

    void aLabelHasTheSizesAndLooksOfQts_data() { addTexts(true); }
    void aLabelHasTheSizesAndLooksOfQts()
    {
        QFETCH(QString, text);
        QFETCH(QFont, font);
        WrappedLabel label(text);
        QLabel own(text);
        own.setTextFormat(Qt::PlainText);
        own.setWordWrap(true);
        for (QLabel *each : {static_cast<QLabel *>(&label), &own})
            each->setFont(font);
        QCOMPARE(label.sizeHint(), own.sizeHint());
        QCOMPARE(label.minimumSizeHint(), own.minimumSizeHint());
        for (int width : {0, 57, 200, 300, 1000}) {
            QCOMPARE(label.heightForWidth(width), own.heightForWidth(width));
            for (bool isEnabled : {true, false}) {
                for (QLabel *each : {static_cast<QLabel *>(&label), &own}) {
                    each->setEnabled(isEnabled);
                    each->resize(qMax(20, width), own.heightForWidth(width) + 5);
                }
                QCOMPARE(label.grab().toImage(), own.grab().toImage());
            }
        }
    }

    void aLabelWhoseTextCanBeSelectedHasTheSizesAndLooksOfQts_data() { addTexts(true); }
    void aLabelWhoseTextCanBeSelectedHasTheSizesAndLooksOfQts()
    {
        QFETCH(QString, text);
        QFETCH(QFont, font);
        WrappedLabel label;
        label.setFont(font);
        label.showSelectable(text);
        QLabel own;
        own.setFont(font);
        makeSelectable(&own, text);
        QCOMPARE(label.focusPolicy(), own.focusPolicy());
        for (QLabel *each : {static_cast<QLabel *>(&label), &own})
            each->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        for (bool hasMouse : {false, true}) {
            QEnterEvent enter({3, 3}, {3, 3}, {3, 3});
            if (hasMouse)
                QCoreApplication::sendEvent(&label, &enter);
            QCOMPARE(label.sizeHint(), own.sizeHint());
            QCOMPARE(label.minimumSizeHint(), own.minimumSizeHint());
            for (int width : {0, 57, 200, 300, 1000}) {
                QCOMPARE(label.heightForWidth(width), own.heightForWidth(width));
                for (QLabel *each : {static_cast<QLabel *>(&label), &own})
                    each->resize(qMax(20, width), own.heightForWidth(width) + 5);
                QCOMPARE(label.grab().toImage(), own.grab().toImage());
            }
        }
        QCOMPARE(label.textInteractionFlags(), own.textInteractionFlags());
    }

    void theMouseSelectsInALabel()
    {
        WrappedLabel label;
        label.showSelectable(QStringLiteral("one word after the other"));
        label.resize(300, 40);
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        const auto drag = [&label] {
            QTest::mousePress(&label, Qt::LeftButton, {}, {1, 20});
            QMouseEvent move(QEvent::MouseMove, {280, 20}, label.mapToGlobal(QPoint(280, 20)),
                             Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&label, &move);
            QTest::mouseRelease(&label, Qt::LeftButton, {}, {280, 20});
        };
        drag();
        QCOMPARE(label.selectedText(), label.text());
        // In another text as well.
        label.showSelectable(QStringLiteral("another"));
        drag();
        QCOMPARE(label.selectedText(), QStringLiteral("another"));
    }
};

QTEST_MAIN(TestWrappedText)
#include "tst_wrappedtext.moc"
