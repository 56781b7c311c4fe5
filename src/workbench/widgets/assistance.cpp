#include "assistance.h"

#include "tr.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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

} // namespace Workbench
