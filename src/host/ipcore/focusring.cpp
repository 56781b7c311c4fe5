#include "focusring.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTextEdit>

namespace IPCore
{

namespace
{

class Windows : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::StyleChange) {
            auto *widget = qobject_cast<QWidget *>(watched);
            if (auto *box = qobject_cast<QDialogButtonBox *>(widget))
                box->setFocusProxy(nullptr);
            else if (widget && widget->isWindow())
                widget->setAttribute(Qt::WA_KeyboardFocusChange);
        } else if (event->type() == QEvent::FocusIn) {
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
                scrollTo(qobject_cast<QWidget *>(watched));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // Qt's areas follow the focus only while it moves within them.
    static void scrollTo(QWidget *focus)
    {
        for (QWidget *parent = focus; parent; parent = parent->parentWidget()) {
            auto *area = qobject_cast<QScrollArea *>(parent);
            if (area && area != focus)
                area->ensureWidgetVisible(focus);
        }
    }
};

} // namespace

void FocusRing::install()
{
    static QPointer<QApplication> installed;
    if (installed == qApp)
        return;
    installed = qApp;
    qApp->installEventFilter(new Windows(qApp));
    static QPointer<FocusRing> current;
    connect(qApp, &QApplication::focusChanged, qApp, [](QWidget *, QWidget *now) {
        // Not at once: a view that loses the focus may be going away and the ring with it.
        if (current) {
            current->hide();
            current->deleteLater();
        }
        current = now && isNeeded(now) ? new FocusRing(now) : nullptr;
    });
}

bool FocusRing::isNeeded(const QWidget *widget)
{
    // The default button of a dialog looks the same without the focus, a flat one has no frame.
    if (qobject_cast<const QPushButton *>(widget))
        return true;
    if (!qobject_cast<const QAbstractScrollArea *>(widget))
        return false;
    if (qobject_cast<const QGraphicsView *>(widget))
        return false; // focus is a matter of its items
    // A text that can be edited shows its cursor.
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(widget))
        return text->isReadOnly();
    if (const auto *text = qobject_cast<const QTextEdit *>(widget))
        return text->isReadOnly();
    return true;
}

FocusRing::FocusRing(QWidget *view)
    : QWidget(view)
    , m_view(view)
{
    setObjectName(QStringLiteral("focusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(view->rect());
    view->installEventFilter(this);
    show();
    raise();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::Resize)
        setGeometry(m_view->rect());
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int width = 2;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), width, Qt::SolidLine, Qt::SquareCap,
                        Qt::MiterJoin));
    painter.drawRect(QRectF(rect()).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
}

} // namespace IPCore
