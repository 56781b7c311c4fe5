#include "blockhands.h"
#include "dialogdriver.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>

using namespace TARVOORIXM1;
using TestSupport::ModalWatcher;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// A block of the diagram, and one of the check boxes that its look follows.
struct Opening {
    const Expected::Block *block;
    const Expected::Box *box;
    const Expected::Switch *shownBy;
};

const std::vector<Opening> &openings()
{
    static const std::vector<Opening> list = [] {
        std::vector<Opening> all;
        for (const Expected::Block &block : Expected::blocks()) {
            for (size_t i = 0; i < block.boxes.size(); ++i)
                all.push_back({&block, &block.boxes.at(i), &block.shownBy(i)});
        }
        return all;
    }();
    return list;
}

class View : public IPView
{
public:
    explicit View(OptionMap *options)
        : IPView(options)
    {
        resize(1060, 620);
        show();
        QApplication::setActiveWindow(this);
    }

    QList<IPItem *> blocks() const
    {
        QList<IPItem *> found;
        for (QGraphicsItem *item : scene()->items()) {
            auto *block = qgraphicsitem_cast<IPItem *>(item);
            if (block && block->isClickable())
                found.append(block);
        }
        return found;
    }
    IPItem *block(const QString &label) const
    {
        for (IPItem *candidate : blocks()) {
            if (candidate->text() == label)
                return candidate;
        }
        return nullptr;
    }
    QStringList active() const
    {
        QStringList labels;
        for (const IPItem *each : blocks()) {
            if (each->isActive())
                labels.append(each->text());
        }
        return labels;
    }
    void doubleClick(const IPItem *item)
    {
        const QPoint position = mapFromScene(item->sceneBoundingRect().center());
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, position);
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, position);
    }
    // No block looks hovered then.
    void leaveBlocks()
    {
        const QPoint corner(2, 2);
        QMouseEvent move(QEvent::MouseMove, corner, viewport()->mapToGlobal(corner), Qt::NoButton,
                         Qt::NoButton, {});
        QCoreApplication::sendEvent(viewport(), &move);
    }
    // Of the block's ground, beside its label.
    QColor colorOf(const IPItem *item)
    {
        const QPoint corner = mapFromScene(item->sceneBoundingRect().topLeft());
        return viewport()->grab().toImage().pixelColor(corner + QPoint(3, 3));
    }
};

} // namespace

class tst_OpeningBlocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickOpensTheDialog_data();
    void aDoubleClickOpensTheDialog();
    void enterOpensTheDialogToo();
    void aBlockNeedsNoSlotOfItsOwn();
    void everyBlockIsCovered();
};

void tst_OpeningBlocks::aDoubleClickOpensTheDialog_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < openings().size(); ++i)
        QTest::newRow(openings().at(i).box->label) << int(i);
}

// Cancelled, accepted with the block on, and accepted with it off again.
void tst_OpeningBlocks::aDoubleClickOpensTheDialog()
{
    QFETCH(int, index);
    const Opening &row = openings().at(size_t(index));
    OptionMap map = {{Key::ipDevice, text("TV2KR-18C")}};
    View view(&map);
    const IPItem *block = view.block(text(row.box->label));
    QVERIFY(block);
    const QStringList justThis =
        row.box->recolours ? QStringList(text(row.box->label)) : QStringList();

    const auto open = [&](QDialogButtonBox::StandardButton button) {
        QString opened;
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *dialog = qobject_cast<Expected::Dialog *>(modal);
            if (!dialog || dialog->parentWidget() != &view) {
                modal->close();
                return;
            }
            opened = text(dialog->metaObject()->className());
            auto *box = dialog->findChild<QCheckBox *>(text(row.shownBy->objectName));
            if (!box) {
                modal->close();
                return;
            }
            Hands::click(box);
            QTest::mouseClick(dialog->buttonBox()->button(button), Qt::LeftButton);
        });
        view.doubleClick(block);
        return watcher.count() == 1 ? opened : QStringLiteral("%1 windows").arg(watcher.count());
    };
    const QString name = u"TARVOORIXM1::" + text(row.block->dialog);

    QCOMPARE(open(QDialogButtonBox::Cancel), name);
    QCOMPARE(map.size(), 1);
    QCOMPARE(view.active(), QStringList());
    // An option that changed meanwhile shows that nothing was redrawn.
    map.insert(Key::enableRtc, true);
    QCOMPARE(open(QDialogButtonBox::Cancel), name);
    QCOMPARE(view.active(), QStringList());
    map.remove(Key::enableRtc);

    QCOMPARE(open(QDialogButtonBox::Ok), name);
    QCOMPARE(map.value(text(row.shownBy->key)), QVariant(true));
    QCOMPARE(view.active(), justThis);
    view.leaveBlocks();
    QCOMPARE(view.colorOf(block), QColor(row.box->recolours ? Qt::darkGreen : Qt::white));

    QCOMPARE(open(QDialogButtonBox::Ok), name);
    QCOMPARE(map.value(text(row.shownBy->key)), QVariant(false));
    QCOMPARE(view.active(), QStringList());
}

void tst_OpeningBlocks::enterOpensTheDialogToo()
{
    OptionMap map;
    View view(&map);
    view.setFocus(Qt::TabFocusReason);
    QStringList opened;
    for (int i = 0; i <= int(openings().size()); ++i) {
        const ModalWatcher watcher([&opened](QWidget *modal) {
            opened.append(text(modal->metaObject()->className()).section(u':', -1));
            modal->close();
        });
        QTest::keyClick(&view, Qt::Key_Return);
        QTest::keyClick(&view, Qt::Key_Tab);
    }
    QStringList expected = {text("CortexM1")};
    for (const Opening &row : openings())
        expected.append(text(row.block->dialog));
    std::sort(opened.begin(), opened.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(opened, expected);
}

void tst_OpeningBlocks::aBlockNeedsNoSlotOfItsOwn()
{
    for (const Opening &row : openings()) {
        OptionMap map;
        View view(&map);
        const IPItem *block = view.block(text(row.box->label));
        QVERIFY(disconnect(block, SIGNAL(doubleClicked()), &view, row.block->slot));
        QVERIFY(connect(block, SIGNAL(doubleClicked()), &view, SLOT(onBlock())));
        QString opened;
        const ModalWatcher watcher([&](QWidget *modal) {
            opened = text(modal->metaObject()->className());
            QCOMPARE(modal->parentWidget(), &view);
            auto *box = modal->findChild<QCheckBox *>(text(row.shownBy->objectName));
            QVERIFY(box);
            Hands::click(box);
            static_cast<QDialog *>(modal)->accept();
        });
        view.doubleClick(block);
        QCOMPARE(watcher.count(), 1);
        QCOMPARE(opened, QString(u"TARVOORIXM1::" + text(row.block->dialog)));
        QCOMPARE(map.value(text(row.shownBy->key)), QVariant(true));
        QCOMPARE(block->isActive(), row.box->recolours);
    }
}

void tst_OpeningBlocks::everyBlockIsCovered()
{
    OptionMap map;
    const View view(&map);
    QCOMPARE(view.blocks().size(), int(openings().size()) + 1); // and the core
    for (const Opening &row : openings())
        QVERIFY2(view.block(text(row.box->label)), row.box->label);
}

TARVO_TEST_MAIN(QApplication, tst_OpeningBlocks)
#include "tst_openingblocks.moc"
