#include "movedialog.h"

#include <ipcore/screenfit.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Workbench
{

MoveDialog::MoveDialog(const QString &file, const QString &from, const QString &to,
                       const QStringList &losses, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Move to Device"));
    const auto label = [](const QString &text) {
        auto *result = new QLabel(text);
        result->setTextFormat(Qt::PlainText);
        result->setWordWrap(true);
        return result;
    };
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label(from.isEmpty()
                                ? tr("Move \"%1\" to the device %2?").arg(file, to)
                                : tr("Move \"%1\" from the device %2 to %3?").arg(file, from, to)));
    if (losses.isEmpty()) {
        layout->addWidget(label(tr("Nothing of the configuration is lost.")));
    } else {
        auto *list = new QListWidget;
        auto *heading = label(tr("What is &lost or changed:"));
        heading->setBuddy(list);
        layout->addWidget(heading);
        list->setObjectName(QStringLiteral("lossList"));
        list->setAccessibleName(tr("What is lost or changed"));
        list->setWordWrap(true);
        list->addItems(losses);
        list->setCurrentRow(0);
        layout->addWidget(list, 1);
    }
    layout->addWidget(label(tr("A copy of the present configuration is kept. What was generated "
                               "stays as it is until you generate the IP anew.")));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton *move = buttons->addButton(tr("&Move"), QDialogButtonBox::AcceptRole);
    move->setObjectName(QStringLiteral("moveButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    move->setDefault(true);
    move->setFocus();
    const QFontMetrics metrics = fontMetrics();
    setMinimumWidth(metrics.averageCharWidth() * 70);
    if (!losses.isEmpty())
        resize(QSize(metrics.averageCharWidth() * 80, metrics.height() * 18)
                   .boundedTo(IPCore::roomOnScreen(this)));
}

} // namespace Workbench
