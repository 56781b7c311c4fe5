#include "microsyschildipgendlg.h"

#include "focusring.h"
#include "pinfigureview.h"
#include "screenfit.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace IPCore
{

namespace
{

// Every line without the blanks that only indent it: the header has its own indentation.
QString shownSummary(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines)
        line = line.trimmed();
    return lines.join(u'\n').trimmed();
}

// A form that was set up without being shown has sizes in its nested layouts from before its texts
// were set: a layout tells only a visible parent of a change.
void forgetSizes(const QWidget *page)
{
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->updateGeometry();
    const QList<QLayout *> layouts = page->findChildren<QLayout *>();
    for (QLayout *layout : layouts)
        layout->invalidate();
}

// Everything of the page that can have the focus, as Tab walks within the page.
QList<QWidget *> fieldsOf(QWidget *page)
{
    QList<QWidget *> fields;
    QWidget *widget = page;
    do {
        if ((widget == page || page->isAncestorOf(widget)) && widget->focusPolicy() != Qt::NoFocus)
            fields.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget != page);
    return fields;
}

// Shows a wrapped label in the height that its text needs at the given width, up to a few lines;
// scrolls where that does not do.
class DescriptionArea : public QScrollArea
{
public:
    explicit DescriptionArea(QLabel *label)
    {
        setFrameShape(NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus); // the label has it
        setWidget(label);
        label->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        return qMin(widget()->heightForWidth(width), lines(10));
    }
    QSize sizeHint() const override { return {lines(20), heightForWidth(lines(20))}; }
    QSize minimumSizeHint() const override { return {lines(8), lines(1)}; }

private:
    int lines(int count) const { return fontMetrics().lineSpacing() * count; }
};

} // namespace

MicroSysChildIPGenDlg::MicroSysChildIPGenDlg(QWidget *parent)
    : QDialog(parent)
    , m_module(new QLabel)
    , m_label(new QLabel)
    , m_summary(new QLabel)
    , m_splitter(new QSplitter(Qt::Horizontal))
    , m_tabs(new QTabWidget)
    , m_figure(new PinFigureView)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
    , m_lastField(m_tabs->tabBar())
{
    FocusRing::install();
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_module->setObjectName(QStringLiteral("moduleNameLabel"));
    m_label->setObjectName(QStringLiteral("blockLabel"));
    m_summary->setObjectName(QStringLiteral("summaryLabel"));
    m_figure->setObjectName(QStringLiteral("pinFigure"));
    m_tabs->setObjectName(QStringLiteral("tabWidget"));
    m_splitter->setObjectName(QStringLiteral("splitter"));

    for (QLabel *label : {m_module, m_label, m_summary})
        label->setTextFormat(Qt::PlainText);
    QFont heading = m_label->font();
    heading.setBold(true);
    if (heading.pointSizeF() > 0)
        heading.setPointSizeF(heading.pointSizeF() * 1.3);
    else
        heading.setPixelSize(qRound(heading.pixelSize() * 1.3));
    m_label->setFont(heading);
    m_module->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_summary->setWordWrap(true);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_summary->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_summary->setAccessibleName(tr("Description"));

    auto *title = new QHBoxLayout;
    title->addWidget(m_label);
    title->addStretch();
    title->addWidget(m_module);

    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_tabs);
    m_splitter->addWidget(m_figure);
    m_splitter->setStretchFactor(0, 0); // a larger dialog shows more of the figure
    m_splitter->setStretchFactor(1, 1);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(title);
    layout->addWidget(new DescriptionArea(m_summary));
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_buttons);

    // The header's description comes last when walking with Tab, although it stands first.
    setTabOrder(m_tabs, m_figure);
    setTabOrder(m_figure, m_buttons->button(QDialogButtonBox::Ok));
    setTabOrder(m_buttons->button(QDialogButtonBox::Ok),
                m_buttons->button(QDialogButtonBox::Cancel));
    setTabOrder(m_buttons->button(QDialogButtonBox::Cancel), m_summary);

    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
}

MicroSysChildIPGenDlg::~MicroSysChildIPGenDlg() = default;

QString MicroSysChildIPGenDlg::moduleName() const
{
    return m_module->text();
}

QString MicroSysChildIPGenDlg::labelText() const
{
    return m_label->text();
}

QList<Utils::PinFigure> MicroSysChildIPGenDlg::figurePins() const
{
    return m_figure->pins();
}

QSize MicroSysChildIPGenDlg::optionsSize() const
{
    // Room for all tabs' titles and for a page without horizontal scrolling.
    const int em = fontMetrics().height();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return (m_tabs->sizeHint() + QSize(scrollBar, 0))
        .expandedTo({m_tabs->tabBar()->sizeHint().width(), 20 * em});
}

QSize MicroSysChildIPGenDlg::sizeHint() const
{
    const QSize options = optionsSize();
    const QSize figure = m_figure->sizeHint();
    const QMargins margins = layout()->contentsMargins();
    const int parts = options.width() + m_splitter->handleWidth() + figure.width();
    // Wide enough for a description of a few sentences.
    const int width = qMax(parts, 36 * fontMetrics().height()) + margins.left() + margins.right();
    // The description's height follows from the dialog's width, not the other way round.
    const int others = layout()->totalHeightForWidth(width) - m_splitter->sizeHint().height();
    return {width, others + qMax(options.height(), figure.height())};
}

void MicroSysChildIPGenDlg::setVisible(bool visible)
{
    if (visible && !m_sized) {
        m_sized = true;
        // Left to itself, a dialog would take no more than two thirds of the screen.
        constexpr qreal shareOfScreen = 0.9;
        const QSize room = (QSizeF(screen()->availableSize()) * shareOfScreen).toSize();
        if (!testAttribute(Qt::WA_Resized))
            resize(sizeHint().boundedTo(room.boundedTo(roomOnScreen(this))));
        const int options = optionsSize().width();
        m_splitter->setSizes({options, qMax(1, width() - options)});
    }
    QDialog::setVisible(visible);
}

void MicroSysChildIPGenDlg::uiSetModuleName(const QString &name)
{
    m_module->setText(name);
}

void MicroSysChildIPGenDlg::uiSetLabelText(const QString &text)
{
    m_label->setText(text);
    m_figure->setLabel(text);
}

void MicroSysChildIPGenDlg::uiSetSummaryText(const QString &text)
{
    m_summaryText = text;
    m_summary->setText(shownSummary(text));
}

void MicroSysChildIPGenDlg::uiAddTab(QWidget *page, const QString &title)
{
    forgetSizes(page);
    // An area that only scrolls would take the focus and not show it; it follows its fields.
    const QList<QScrollArea *> areas = page->findChildren<QScrollArea *>();
    for (QScrollArea *area : areas)
        area->setFocusPolicy(Qt::NoFocus);
    m_tabs->addTab(page, title);
    const QList<QWidget *> fields = fieldsOf(page);
    for (QWidget *field : fields) {
        setTabOrder(m_lastField, field);
        m_lastField = field;
    }
}

void MicroSysChildIPGenDlg::uiSetFigurePins(const QList<Utils::PinFigure> &pins)
{
    m_figure->setPins(pins);
}

} // namespace IPCore
