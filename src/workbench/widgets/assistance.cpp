#include "assistance.h"

#include "tr.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace Workbench
{

void labelUnseen(QComboBox *field, const QString &text)
{
    Q_ASSERT(field->parentWidget());
    field->setAccessibleName(text);
    auto *label = new QLabel(text, field->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    label->hide();
}

void addClearButton(QLineEdit *field)
{
    field->setClearButtonEnabled(true);
    if (auto *clear = field->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction")))
        clear->setText(Tr::tr("Clear the text"));
}

static constexpr char isWindowProperty[] = "spokenAsWindow";

// A widget without a parent may still get one, so that Qt's own word for a window says nothing.
static QAccessibleInterface *makeWindow(const QString & /*className*/, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && widget->property(isWindowProperty).toBool()
               ? new QAccessibleWidget(widget, QAccessible::Window)
               : nullptr;
}

void speakAsWindow(QWidget *window)
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(&makeWindow);
        return true;
    }();
    Q_UNUSED(isInstalled)
    window->setProperty(isWindowProperty, true);
}

QString spokenLabel(const QString &label)
{
    static const QRegularExpression behind(QStringLiteral("\\s*\\(&\\w\\)"));
    static const QRegularExpression colon(QStringLiteral("\\s*[:\\x{ff1a}]$"));
    QString result = label;
    return result.remove(behind).remove(u'&').remove(colon);
}

} // namespace Workbench
