#include "simulationpage.h"

#include "messages/messagemodel.h"
#include "messages/messagesview.h"
#include "pinpanel.h"
#include "pinswitch.h"
#include "simulationrun.h"
#include "terminalview.h"
#include "widgets/arrangement.h"
#include "widgets/assistance.h"
#include "widgets/infobar.h"
#include "widgets/scrollingpage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

// Between the names of files in a line.
const QString separator = QStringLiteral("; ");

QLabel *makeLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // a long text must not push the buttons off the window
    return label;
}

void fillCombo(QComboBox *combo, int width)
{
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(width);
}

} // namespace

SimulationPage::SimulationPage(const Source &source, const QString &ipcFile,
                               const SimulationChoices &choices, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_ipcFile(ipcFile)
    , m_choices(choices)
    , m_messages(new MessageModel(this))
    , m_infoBar(new InfoBar)
    , m_heading(makeLabel(QStringLiteral("simulationHeading")))
    , m_progress(makeLabel(QStringLiteral("simulationProgress")))
    , m_run(new QPushButton(tr("&Run")))
    , m_stop(new QPushButton(tr("&Stop")))
    , m_input(new QComboBox)
    , m_files(new QLineEdit)
    , m_browse(new QPushButton(tr("&Browse…")))
    , m_engine(new QComboBox)
    , m_hasWaves(new QCheckBox(tr("&Waves")))
    , m_output(new QComboBox)
    , m_terminals(new QStackedWidget)
    , m_line(new QLineEdit)
    , m_send(new QPushButton(tr("Sen&d")))
    , m_pins(new PinPanel)
    , m_result(makeLabel(QStringLiteral("simulationResult")))
    , m_openWaves(new QPushButton(tr("&Open Waves")))
{
    setObjectName(QStringLiteral("simulationPage"));
    auto *layout = new QVBoxLayout(ScrollingPage::fill(this));
    buildHead(layout);
    layout->addWidget(m_infoBar);
    buildChoice(layout);
    connect(m_pins, &PinPanel::switched, this, &SimulationPage::sendPins);
    layout->addWidget(m_pins);
    auto *halves = new QSplitter(Qt::Horizontal);
    halves->setObjectName(QStringLiteral("simulationSplitter"));
    halves->addWidget(buildLeft());
    halves->addWidget(buildRight());
    // Sizes are shares until the page has one of its own.
    halves->setSizes({1400, 1000});
    halves->setChildrenCollapsible(false);
    layout->addWidget(halves, 1);
    buildFoot(layout);
    setFocusPolicy(Qt::ClickFocus);
    showTerminals();
    refresh();
}

SimulationPage::~SimulationPage()
{
    m_process.reset(); // before what its signals reach
}

void SimulationPage::buildHead(QBoxLayout *layout)
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    m_heading->setFont(large);
    // A usual name is whole.
    m_heading->setMinimumWidth(
        qMin(QFontMetrics(large).horizontalAdvance(QFileInfo(m_ipcFile).fileName()),
             fontMetrics().averageCharWidth() * 30));
    m_heading->setText(tr("Simulate %1").arg(QFileInfo(m_ipcFile).fileName()));
    m_heading->setToolTip(QDir::toNativeSeparators(m_ipcFile));
    m_progress->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_run->setObjectName(QStringLiteral("runButton"));
    m_stop->setObjectName(QStringLiteral("stopButton"));
    m_stop->setToolTip(tr("Ends the simulation"));
    connect(m_run, &QPushButton::clicked, this, &SimulationPage::run);
    connect(m_stop, &QPushButton::clicked, this, &SimulationPage::stop);
    auto *row = new QHBoxLayout;
    row->addWidget(m_heading, 1);
    row->addWidget(m_progress, 1);
    row->addWidget(m_run);
    row->addWidget(m_stop);
    layout->addLayout(row);
}

void SimulationPage::buildChoice(QBoxLayout *layout)
{
    m_input->setObjectName(QStringLiteral("inputCombo"));
    fillCombo(m_input, 8);
    m_files->setObjectName(QStringLiteral("inputEdit"));
    m_files->setAccessibleName(tr("Files that the simulation starts from"));
    m_files->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    m_browse->setObjectName(QStringLiteral("inputButton"));
    m_browse->setAccessibleName(tr("Choose what the simulation starts from"));
    m_engine->setObjectName(QStringLiteral("engineCombo"));
    fillCombo(m_engine, 9);
    m_hasWaves->setObjectName(QStringLiteral("wavesBox"));
    connect(m_input, qOverload<int>(&QComboBox::activated), this, [this] {
        m_files->clear(); // the files of another kind
        refresh();
    });
    connect(m_files, &QLineEdit::textChanged, this, &SimulationPage::refresh);
    connect(m_files, &QLineEdit::returnPressed, this, &SimulationPage::run);
    connect(m_browse, &QPushButton::clicked, this, &SimulationPage::browse);
    connect(m_engine, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &SimulationPage::refresh);
    auto *start = new QHBoxLayout;
    start->addWidget(m_input);
    start->addWidget(m_files, 1);
    start->addWidget(m_browse);
    auto *how = new QHBoxLayout;
    how->addWidget(m_engine);
    how->addWidget(m_hasWaves);
    how->addStretch();
    m_choiceRows = new QBoxLayout(QBoxLayout::LeftToRight);
    m_choiceRows->addLayout(start, 1);
    m_choiceRows->addLayout(how);
    layout->addLayout(m_choiceRows);
    labelUnseen(m_input, tr("What the simulation starts from"));
    labelUnseen(m_engine, tr("Simulator"));
}

QWidget *SimulationPage::buildLeft()
{
    m_output->setObjectName(QStringLiteral("outputCombo"));
    fillCombo(m_output, 8);
    m_line->setObjectName(QStringLiteral("lineEdit"));
    m_line->setAccessibleName(tr("Line for the UART"));
    m_line->setPlaceholderText(tr("a line for the program"));
    m_send->setObjectName(QStringLiteral("sendButton"));
    m_send->setToolTip(tr("Sends the line, and a line feed; keys that are typed in the terminal "
                          "are sent at once"));
    connect(m_output, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &SimulationPage::showOutput);
    connect(m_line, &QLineEdit::returnPressed, this, &SimulationPage::sendLine);
    connect(m_send, &QPushButton::clicked, this, &SimulationPage::sendLine);
    auto *row = new QHBoxLayout;
    row->addWidget(m_output);
    row->addWidget(m_line, 1);
    row->addWidget(m_send);
    auto *left = new QWidget;
    auto *layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_terminals, 1);
    layout->addLayout(row);
    labelUnseen(m_output, tr("Terminal that is shown"));
    return left;
}

QWidget *SimulationPage::buildRight()
{
    auto *messages = new MessagesView(m_messages);
    auto *list = messages->findChild<QTreeView *>();
    list->setObjectName(QStringLiteral("simulationMessages"));
    list->setAccessibleName(tr("Messages of the simulation"));
    list->setFrameShape(QFrame::StyledPanel);
    list->setMinimumHeight(fontMetrics().height() * 3);
    connect(messages, &MessagesView::openRequested, this, &SimulationPage::openRequested);
    auto *right = new QWidget;
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(messages);
    return right;
}

void SimulationPage::buildFoot(QBoxLayout *layout)
{
    QFont bold = font();
    bold.setBold(true);
    m_result->setFont(bold);
    m_result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_openWaves->setObjectName(QStringLiteral("openWavesButton"));
    connect(m_openWaves, &QPushButton::clicked, this, &SimulationPage::openWaves);
    auto *row = new QHBoxLayout;
    row->addWidget(m_result, 1);
    row->addWidget(m_openWaves);
    layout->addLayout(row);
}

TerminalView *SimulationPage::terminal(int uart) const
{
    return uart >= 0 && uart < m_offer.uarts
               ? qobject_cast<TerminalView *>(m_terminals->widget(uart))
               : nullptr;
}

// Where one goes on: to what runs, else to running it.
void SimulationPage::focusInEvent(QFocusEvent *event)
{
    QWidget *next = m_output;
    if (m_process)
        next = m_terminals->currentWidget();
    else if (m_run->isEnabled())
        next = m_run;
    else if (m_files->isEnabled())
        next = m_files;
    next->setFocus(event->reason());
}

void SimulationPage::arrangeChoice()
{
    const QMargins margins = m_choiceRows->parentWidget()->layout()->contentsMargins();
    // Beside what scrolls a page that is too low for its parts.
    const int room = width() - margins.left() - margins.right() -
                     style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    arrangeIn(m_choiceRows, room);
    m_pins->arrange(room);
}

void SimulationPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrangeChoice();
}

void SimulationPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_process)
        askAnew();
}

// The configuration may have changed since.
void SimulationPage::askAnew()
{
    Utils::Result<SimulationOffer> offer = m_source();
    if (!offer) {
        m_offer = SimulationOffer();
        m_offer.error = offer.reason();
    } else {
        m_offer = *offer;
    }
    if (!m_offer.error.isEmpty())
        m_infoBar->showMessage(m_offer.error, {});
    showOffer();
}

void SimulationPage::showOffer()
{
    const SimulationChoice before = m_isAsked ? choice() : m_choices.of(m_ipcFile);
    showTerminals();
    if (m_offer.error.isEmpty()) {
        m_isAsked = true;
        m_input->clear();
        for (const SimulationInput &input : qAsConst(m_offer.inputs))
            m_input->addItem(input.title, input.name);
        m_engine->clear();
        for (const SimulationEngine &engine : qAsConst(m_offer.engines)) {
            m_engine->addItem(engine.title, engine.name);
            m_engine->setItemData(m_engine->count() - 1, engine.purpose, Qt::ToolTipRole);
        }
        m_hasWaves->setVisible(!m_offer.wavesArguments.isEmpty());
        showChoice(before);
    }
    m_pins->setCount(m_offer.pins);
    m_pins->setVisible(m_offer.pins > 0);
    refresh();
    arrangeChoice();
}

void SimulationPage::showChoice(const SimulationChoice &choice)
{
    m_input->setCurrentIndex(qMax(0, m_input->findData(choice.input)));
    m_engine->setCurrentIndex(qMax(0, m_engine->findData(choice.engine)));
    m_hasWaves->setChecked(choice.hasWaves);
    QStringList shown;
    for (const QString &file : choice.files)
        shown.append(shownPath(file));
    m_files->setText(shown.join(separator));
}

SimulationChoice SimulationPage::choice() const
{
    SimulationChoice chosen;
    chosen.input = m_input->currentData().toString();
    chosen.files = files();
    chosen.engine = m_engine->currentData().toString();
    chosen.hasWaves = m_hasWaves->isChecked();
    return chosen;
}

void SimulationPage::choose(const QString &input, const QStringList &files)
{
    if (!m_isAsked)
        askAnew();
    SimulationChoice chosen = choice();
    chosen.input = input;
    chosen.files.clear();
    for (const QString &file : files)
        chosen.files.append(fullPath(file));
    showChoice(chosen);
    refresh();
    if (m_files->hasFocus() && m_run->isEnabled())
        m_run->setFocus();
}

// What is not a full path is beside the configuration.
QString SimulationPage::fullPath(const QString &text) const
{
    return QDir::cleanPath(
        QFileInfo(m_ipcFile).absoluteDir().absoluteFilePath(QDir::fromNativeSeparators(text)));
}

QString SimulationPage::shownPath(const QString &path) const
{
    const QString relative = QFileInfo(m_ipcFile).absoluteDir().relativeFilePath(path);
    return QDir::toNativeSeparators(relative.startsWith(QLatin1String("../../")) ? path : relative);
}

QStringList SimulationPage::files() const
{
    const SimulationInput *input = m_offer.input(m_input->currentData().toString());
    QStringList texts(m_files->text());
    if (input && input->takesSeveral)
        texts = m_files->text().split(u';');
    QStringList paths;
    for (const QString &text : qAsConst(texts)) {
        if (!text.trimmed().isEmpty())
            paths.append(fullPath(text.trimmed()));
    }
    return paths;
}

void SimulationPage::browse()
{
    const SimulationInput *input = m_offer.input(m_input->currentData().toString());
    if (!input)
        return;
    const QStringList before = files();
    const QString start = before.isEmpty() ? QFileInfo(m_ipcFile).absolutePath() : before.first();
    const QString filter =
        tr("%1 (%2);;All files (*)")
            .arg(QString(input->title).remove(u'(').remove(u')'), input->patterns.join(u' '));
    QStringList chosen;
    if (input->takesSeveral) {
        chosen = QFileDialog::getOpenFileNames(this, input->title, start, filter);
    } else {
        const QString one = QFileDialog::getOpenFileName(this, input->title, start, filter);
        if (!one.isEmpty())
            chosen.append(one);
    }
    if (!chosen.isEmpty())
        choose(input->name, chosen);
}

void SimulationPage::refresh()
{
    const bool isActive = m_process != nullptr;
    const bool isOffered = m_offer.error.isEmpty() && !m_offer.inputs.isEmpty();
    const QStringList chosen = files();
    m_run->setEnabled(isOffered && !isActive && !chosen.isEmpty());
    m_run->setToolTip(!isOffered         ? m_offer.error
                      : chosen.isEmpty() ? tr("Choose what the simulation starts from")
                                         : tr("Simulates the IP with the program"));
    m_stop->setEnabled(isActive && m_state.phase != SimulationState::Stopping);
    for (QWidget *widget : QList<QWidget *>{m_input, m_files, m_browse, m_engine, m_hasWaves})
        widget->setEnabled(isOffered && !isActive);
    const SimulationInput *input = m_offer.input(m_input->currentData().toString());
    m_files->setPlaceholderText(
        !input ? QString()
        : input->takesSeveral
            ? tr("%1, with \";\" between them").arg(input->patterns.join(QLatin1String(", ")))
            : input->patterns.join(QLatin1String(", ")));
    QStringList shown;
    for (const QString &file : chosen)
        shown.append(QDir::toNativeSeparators(file));
    m_files->setToolTip(shown.join(u'\n'));
    m_engine->setToolTip(m_engine->currentData(Qt::ToolTipRole).toString());
    m_hasWaves->setToolTip(
        tr("Writes all signals into \"%1\" beside the configuration; takes time")
            .arg(QFileInfo(m_ipcFile).completeBaseName() + u'.' + m_offer.wavesSuffix));
    const bool isHeard = isActive && terminal(m_output->currentIndex());
    m_line->setEnabled(isHeard);
    m_send->setEnabled(isHeard);
    for (int i = 0; i < m_terminals->count(); ++i)
        static_cast<TerminalView *>(m_terminals->widget(i))
            ->setListened(isActive && i < m_offer.uarts);
    m_openWaves->setVisible(!m_offer.wavesArguments.isEmpty());
    m_openWaves->setEnabled(!isActive && !m_waves.isEmpty());
    m_openWaves->setToolTip(m_waves.isEmpty() ? tr("The last run has written no waves")
                                              : QDir::toNativeSeparators(m_waves));
    m_progress->setText(m_state.progress(qMax(1, m_offer.clock)));
    m_result->setText(m_state.result());
}

// As many as there are UARTs, and one for everything else.
void SimulationPage::showTerminals()
{
    if (m_terminals->count() == m_offer.uarts + 1)
        return;
    const QSignalBlocker blocker(m_output);
    m_output->clear();
    while (m_terminals->count() > 0)
        delete m_terminals->widget(0);
    for (int i = 0; i <= m_offer.uarts; ++i) {
        const bool isUart = i < m_offer.uarts;
        auto *view = new TerminalView;
        view->setObjectName(QStringLiteral("terminal%1").arg(i));
        const QString name = isUart ? tr("UART%1").arg(i) : tr("Other");
        view->setAccessibleName(isUart ? tr("Terminal of %1").arg(name)
                                       : tr("What the program says by other ways"));
        m_output->addItem(name, name);
        m_output->setItemData(
            i, isUart ? tr("Bytes of the UART") : tr("Lines by semihosting and of the simulator"),
            Qt::ToolTipRole);
        connect(view, &TerminalView::typed, this,
                [this, i](const QByteArray &bytes) { sendBytes(i, bytes); });
        m_terminals->addWidget(view);
    }
    showOutput(0);
}

void SimulationPage::showOutput(int index)
{
    if (index < 0)
        return;
    m_terminals->setCurrentIndex(index);
    m_output->setItemText(index, m_output->itemData(index).toString()); // nothing new in it
    refresh();
}

bool SimulationPage::run()
{
    if (m_process)
        return false;
    askAnew();
    const SimulationInput *input = m_offer.input(m_input->currentData().toString());
    const SimulationEngine *engine = m_offer.engine(m_engine->currentData().toString());
    const QStringList chosen = files();
    if (!m_offer.error.isEmpty() || !input || !engine || chosen.isEmpty())
        return false;
    m_infoBar->hide();
    Q_EMIT aboutToRun(chosen);
    m_choices.keep(m_ipcFile, choice());
    m_messages->clear();
    for (int i = 0; i < m_terminals->count(); ++i)
        static_cast<TerminalView *>(m_terminals->widget(i))->clearAll();
    m_pins->showPins(0, 0);
    m_state = SimulationState();
    m_state.phase = SimulationState::Running;
    m_isTold = false;
    m_waves.clear();
    const QString folder = QFileInfo(m_ipcFile).absolutePath();
    if (m_hasWaves->isChecked() && !m_offer.wavesArguments.isEmpty())
        m_waves =
            folder + u'/' + QFileInfo(m_ipcFile).completeBaseName() + u'.' + m_offer.wavesSuffix;
    m_process = std::make_unique<SimulationRun>(
        m_offer.program, m_offer.commandLine(*input, chosen, *engine, m_waves), folder);
    connect(m_process.get(), &SimulationRun::received, this, &SimulationPage::take);
    m_process->start();
    // Typing is for the program from now on; the button that was pressed is disabled.
    if (const QWidget *focus = focusWidget(); focus && focus->hasFocus())
        m_terminals->currentWidget()->setFocus();
    refresh();
    // Pins that are driven from the beginning.
    if (m_pins->mask() != 0)
        sendPins();
    return true;
}

void SimulationPage::stop()
{
    if (!m_process)
        return;
    m_process->stop();
    m_state.phase = SimulationState::Stopping;
    refresh();
}

void SimulationPage::end()
{
    if (!m_process)
        return;
    m_process.reset();
    LiveEvent event;
    event.kind = LiveEvent::End;
    event.result = LiveEvent::Cancelled;
    event.clockCycles = m_state.clockCycles;
    m_state.take(event);
    m_waves.clear();
    refresh();
}

void SimulationPage::take(const QVector<LiveEvent> &events)
{
    bool isOver = false;
    for (const LiveEvent &event : events) {
        takeOne(event);
        isOver = isOver || event.kind == LiveEvent::End;
    }
    m_pins->showPins(m_state.levels, m_state.driven);
    if (isOver)
        takeEnd();
    refresh();
}

void SimulationPage::takeOne(const LiveEvent &event)
{
    m_state.take(event);
    switch (event.kind) {
    case LiveEvent::Uart:
        if (event.number < m_offer.uarts)
            print(event.number, event.bytes);
        break;
    case LiveEvent::Text:
        print(m_offer.uarts, event.text.toUtf8() + '\n');
        break;
    case LiveEvent::Message:
        addMessage(event.severity == LiveEvent::Error     ? MessageModel::Error
                   : event.severity == LiveEvent::Warning ? MessageModel::Warning
                                                          : MessageModel::Note,
                   event.text, event.file, event.line);
        break;
    case LiveEvent::Unreadable:
        if (!m_isTold)
            addMessage(
                MessageModel::Warning,
                tr("The program that simulates says what cannot be read: %1").arg(event.text), {},
                0);
        m_isTold = true;
        break;
    case LiveEvent::Stage:
    case LiveEvent::Pins:
    case LiveEvent::Time:
    case LiveEvent::End:
        break;
    }
}

void SimulationPage::addMessage(int severity, const QString &text, const QString &file, int line)
{
    const int rows = m_messages->rowCount();
    if (rows == messageLimit)
        m_messages->append(MessageModel::Warning, tr("There are more messages."));
    else if (rows < messageLimit)
        m_messages->append(MessageModel::Severity(severity), text, file, line);
}

void SimulationPage::takeEnd()
{
    // Not now: the signal is one of the process.
    m_process.release()->deleteLater();
    for (const QString &line : qAsConst(m_state.end.lines))
        addMessage(MessageModel::Summary, line, {}, 0);
    if (!m_waves.isEmpty() && !QFileInfo(m_waves).isFile())
        m_waves.clear();
}

void SimulationPage::print(int index, const QByteArray &bytes)
{
    static_cast<TerminalView *>(m_terminals->widget(index))->take(bytes);
    if (index != m_terminals->currentIndex())
        m_output->setItemText(index, m_output->itemData(index).toString() + QStringLiteral(" •"));
}

void SimulationPage::sendBytes(int uart, const QByteArray &bytes)
{
    if (m_process && uart < m_offer.uarts && !m_process->send(LiveReader::input(uart, bytes)))
        m_infoBar->showMessage(tr("The simulation does not take what is typed."), {});
}

void SimulationPage::sendLine()
{
    if (!m_line->isEnabled())
        return;
    sendBytes(m_output->currentIndex(), m_line->text().toUtf8() + '\n');
    m_line->clear();
}

void SimulationPage::sendPins()
{
    if (m_process)
        m_process->send(LiveReader::pins(m_pins->mask(), m_pins->levels()));
}

void SimulationPage::openWaves()
{
    // A file beside it says how they are shown.
    const QFileInfo info(m_waves);
    const QString view = info.path() + u'/' + info.completeBaseName() + QStringLiteral(".gtkw");
    QStringList arguments(m_waves);
    if (QFileInfo(view).isFile())
        arguments.append(view);
    const QString viewer = QStandardPaths::findExecutable(QStringLiteral("gtkwave"));
    if (!viewer.isEmpty() && QProcess::startDetached(viewer, arguments, info.path()))
        return;
    m_infoBar->showMessage(
        tr("The waves are in \"%1\". The program gtkwave shows them; the Debian package gtkwave "
           "has it.")
            .arg(QDir::toNativeSeparators(m_waves)),
        {});
    QDesktopServices::openUrl(QUrl::fromLocalFile(info.path()));
}

} // namespace Workbench
