#include "errordialog.h"

#include "focusring.h"
#include "screenfit.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>

namespace IPCore
{

ErrorDialog::ErrorDialog(const QString &title, const QStringList &details, QWidget *parent)
    : QDialog(parent)
    , m_title(title)
    , m_details(new QPlainTextEdit)
{
    FocusRing::install();
    setWindowTitle(tr("Error"));

    auto *icon = new QLabel;
    const int extent = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, this).pixmap(extent));
    auto *heading = new QLabel(title);
    heading->setObjectName(QStringLiteral("titleLabel"));
    heading->setTextFormat(Qt::PlainText);
    heading->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    heading->setWordWrap(true);
    heading->setMinimumWidth(fontMetrics().averageCharWidth() *
                             50); // a wrapping label has no width of its own

    QStringList lines = details;
    lines.removeAll(QString());
    m_details->setObjectName(QStringLiteral("detailsEdit"));
    m_details->setAccessibleName(tr("Details"));
    m_details->setReadOnly(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_details->setTabChangesFocus(true);
    m_details->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // paths have no blanks
    m_details->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_details->setPlainText(lines.join(u'\n'));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *close = buttons->button(QDialogButtonBox::Close);
    close->setText(tr("Close")); // whatever language Qt speaks
    auto *copy = buttons->addButton(tr("Cop&y"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copyButton"));
    connect(copy, &QPushButton::clicked, this, &ErrorDialog::copyAll);
    connect(buttons, &QDialogButtonBox::rejected, this, &ErrorDialog::reject);

    auto *layout = new QGridLayout(this);
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(heading, 0, 1);
    layout->addWidget(m_details, 1, 0, 1, 2);
    layout->addWidget(buttons, 2, 0, 1, 2);
    // Only now: without a parent it would come up as a window of its own.
    m_details->setVisible(!lines.isEmpty());
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);

    close->setDefault(true); // only now: a button without a dialog cannot be its default
    close->setFocus();       // Enter and the space bar close it
    if (!lines.isEmpty()) {
        const QFontMetrics metrics(m_details->font());
        const QSize wanted(metrics.averageCharWidth() * 88, metrics.lineSpacing() * 20);
        resize(wanted.boundedTo(roomOnScreen(this)));
    }
}

void ErrorDialog::copyAll()
{
    const QString details = m_details->toPlainText();
    QGuiApplication::clipboard()->setText(details.isEmpty() ? m_title
                                                            : QString(m_title + u'\n' + details));
}

} // namespace IPCore
