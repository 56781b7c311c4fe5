#include "meterpanel.h"

#include "catalogue/answers.h"
#include "catalogue/pluginloader.h"
#include "measurement.h"
#include "meterbar.h"

#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>
#include <utils/inifile.h>

#include <QCheckBox>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace Workbench
{

namespace
{

constexpr const char *estimateMethod = "estimate(QVariantMap)";
constexpr const char *measureMethod = "measureCommand(QVariantMap)";
constexpr const char *configurationMethod = "configuration()";
constexpr const char *changeSignal = "configurationChanged()";
constexpr const char *pointSignal = "pointedAt(QString)";

const QString wantedKey = QStringLiteral("companion/measure");
const QString lengthKey = QStringLiteral("companion/measurePause");
constexpr int usualLength = 5; // seconds
constexpr int longestLength = 600;
constexpr int measuredLimit = 100; // configurations that are remembered

// Asks the object for a map; false and a clause if it throws or is not there.
bool askMap(QObject *object, const char *method, const QVariantMap *argument, QVariantMap *answer,
            QString *error)
{
    bool isCalled = false;
    *error = PluginLoader::thrownBy([&] {
        isCalled =
            object && (argument ? QMetaObject::invokeMethod(object, method, Qt::DirectConnection,
                                                            Q_RETURN_ARG(QVariantMap, *answer),
                                                            Q_ARG(QVariantMap, *argument))
                                : QMetaObject::invokeMethod(object, method, Qt::DirectConnection,
                                                            Q_RETURN_ARG(QVariantMap, *answer)));
    });
    return isCalled && error->isEmpty();
}

QLabel *makeLabel(const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

bool MeterPanel::isOffered(const QDialog *dialog, const QObject *pluginRoot)
{
    return Answers::offers(pluginRoot, estimateMethod, QMetaType::QVariantMap) &&
           Answers::offers(dialog, configurationMethod, QMetaType::QVariantMap) &&
           Answers::tells(dialog, changeSignal);
}

MeterPanel::MeterPanel(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent)
    : QWidget(parent)
    , m_dialog(ipDialog)
    , m_root(pluginRoot)
    , m_window(parent ? parent->window() : this)
    , m_pointing(new QTimer(this))
    , m_area(new QScrollArea)
    , m_inner(new QWidget)
    , m_state(makeLabel("meterState"))
    , m_error(makeLabel("meterError"))
    , m_blackBoxes(makeLabel("meterBlackBoxes"))
    , m_barLayout(new QVBoxLayout)
    , m_measuring(makeMeasuring())
{
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus); // its contents lead through it
    m_area->setWidget(m_inner);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_area);
    auto *inner = new QVBoxLayout(m_inner);
    inner->addWidget(m_state);
    inner->addWidget(m_error);
    m_state->setMinimumHeight(usualStateHeight());
    m_state->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_barLayout->setSpacing(0);
    inner->addLayout(m_barLayout);
    inner->addWidget(m_blackBoxes);
    inner->addWidget(m_measuring);
    inner->addStretch(1);
    m_error->hide();
    m_blackBoxes->hide();
    m_measuring->setVisible(Answers::offers(pluginRoot, measureMethod, QMetaType::QVariantMap));

    for (QTimer *timer : {&m_delay, &m_pause, m_pointing})
        timer->setSingleShot(true);
    m_delay.setInterval(60);
    m_pointing->setObjectName(QStringLiteral("pointingTimer"));
    m_pointing->setInterval(150);
    m_seconds.setInterval(1000);
    connect(&m_delay, &QTimer::timeout, this, &MeterPanel::refresh);
    connect(&m_pause, &QTimer::timeout, this, &MeterPanel::measure);
    connect(m_pointing, &QTimer::timeout, this, &MeterPanel::point);
    connect(&m_seconds, &QTimer::timeout, this, [this] {
        ++m_runSeconds;
        showState();
    });
    connect(m_dialog, SIGNAL(configurationChanged()), this, SLOT(onChanged()));
    if (Answers::tells(m_dialog, pointSignal))
        connect(m_dialog, SIGNAL(pointedAt(QString)), this, SLOT(onPointedAt(QString)));
    // Somebody waits for that run.
    connect(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::runStarted, this,
            [this] {
                m_pause.stop();
                endMeasuring();
            });
    m_window->installEventFilter(this);
    m_area->installEventFilter(this);
    refresh(); // so that its size is known before it is shown
}

MeterPanel::~MeterPanel() = default;

QWidget *MeterPanel::makeMeasuring()
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_isWanted = new QCheckBox(tr("&Measure after a pause of"));
    m_isWanted->setObjectName(QStringLiteral("measureCheck"));
    m_isWanted->setChecked(true);
    m_isWanted->setToolTip(tr("Runs the synthesis of this configuration in the background, in a "
                              "folder of its own, while nothing else wants the processor"));
    m_length = new QSpinBox;
    m_length->setObjectName(QStringLiteral("measurePause"));
    m_length->setAccessibleName(tr("Seconds without a change before it is measured"));
    m_length->setRange(1, longestLength);
    m_length->setSuffix(tr(" s"));
    m_length->setValue(usualLength);
    layout->addWidget(m_isWanted);
    layout->addWidget(m_length);
    layout->addStretch(1);
    connect(m_isWanted, &QCheckBox::toggled, this, &MeterPanel::onChoice);
    connect(m_length, qOverload<int>(&QSpinBox::valueChanged), this, &MeterPanel::onChoice);
    return row;
}

void MeterPanel::setSettings(QSettings *settings)
{
    m_settings = nullptr;
    const int length = settings->value(lengthKey, usualLength).toInt();
    m_isWanted->setChecked(settings->value(wantedKey, true).toBool());
    m_length->setValue(length >= 1 && length <= longestLength ? length : usualLength);
    m_settings = settings;
    onChoice();
}

void MeterPanel::setPause(int pause)
{
    m_fixedPause = pause;
}

void MeterPanel::onChoice()
{
    m_length->setEnabled(m_isWanted->isChecked());
    m_failures.clear(); // it is tried again
    if (m_settings && m_settings->value(wantedKey, true).toBool() != m_isWanted->isChecked())
        m_settings->setValue(wantedKey, m_isWanted->isChecked());
    if (m_settings && m_settings->value(lengthKey, usualLength).toInt() != m_length->value())
        m_settings->setValue(lengthKey, m_length->value());
    if (!m_isWanted->isChecked())
        endMeasuring();
    schedule();
    showState();
}

QSize MeterPanel::sizeHint() const
{
    const QSize inner = m_inner->sizeHint();
    return {inner.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), inner.height()};
}

bool MeterPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_area && event->type() == QEvent::Resize) {
        fitBars();
    } else if (watched == m_window && event->type() == QEvent::Show) {
        if (m_isStale)
            m_delay.start();
        else
            schedule();
        showState();
    } else if (watched == m_window && event->type() == QEvent::Hide && !event->spontaneous()) {
        m_isStale = true;
        m_delay.stop();
        m_pause.stop();
        endMeasuring();
    }
    return QWidget::eventFilter(watched, event);
}

void MeterPanel::onChanged()
{
    m_pause.stop();
    m_isStale = true;
    if (m_window->isVisible())
        m_delay.start();
}

void MeterPanel::refresh()
{
    m_isStale = false;
    QString error;
    QVariantMap configuration;
    if (!askMap(m_dialog, "configuration", nullptr, &configuration, &error)) {
        m_key.clear();
        endMeasuring();
        show(tr("The dialog does not tell its configuration: %1.").arg(error));
        return;
    }
    const Utils::Result<QByteArray> text = Utils::iniText(
        configuration.value(QStringLiteral("header")).toMap(), QStringLiteral("Config"),
        configuration.value(QStringLiteral("options")).toMap());
    m_key = text ? *text : QByteArray();
    if (m_runKey != m_key)
        endMeasuring();
    m_configuration = configuration;
    ask(configuration);
}

void MeterPanel::ask(const QVariantMap &configuration)
{
    QString error;
    QVariantMap answer;
    if (!askMap(m_root, "estimate", &configuration, &answer, &error)) {
        show(tr("The plug-in failed when it was asked for an estimate: %1.").arg(error));
        return;
    }
    const Utils::Result<Estimate> estimate = EstimateAnswer::estimateOf(answer);
    if (!estimate) {
        show(tr("What the plug-in estimates cannot be used: %1.").arg(estimate.reason()));
        return;
    }
    m_estimate = *estimate;
    show(estimate->error);
}

// `error`: why there are no bars, a sentence.
void MeterPanel::show(const QString &error)
{
    if (!error.isEmpty())
        m_estimate = Estimate();
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
    showBars();
    QStringList boxes;
    for (const Estimate::BlackBox &box : qAsConst(m_estimate.blackBoxes))
        boxes.append(box.note.isEmpty()
                         ? tr("%1 %2").arg(box.count).arg(box.cell)
                         : tr("%1 %2 (%3)").arg(QString::number(box.count), box.cell, box.note));
    m_blackBoxes->setText(tr("Not counted are the contents of black boxes: %1.")
                              .arg(boxes.join(QLatin1String(", "))));
    m_blackBoxes->setVisible(!boxes.isEmpty());
    schedule();
    showState();
    fitBars();
    Q_EMIT refreshed();
}

void MeterPanel::showBars()
{
    QVector<ResourceReading> readings = m_estimate.resources;
    const auto found = m_measured.constFind(m_key);
    if (!m_key.isEmpty() && found != m_measured.constEnd()) {
        for (ResourceReading &reading : readings) {
            for (const MeasuredUse &use : *found) {
                if (use.resource == reading.resource)
                    reading.value = reading.low = reading.high = use.used;
            }
        }
    }
    if (m_estimate.hasPins) {
        readings.append(m_estimate.pins);
        readings.last().resource = tr("Pins");
    }
    QStringList before;
    QStringList now;
    for (const MeterBar *bar : qAsConst(m_bars))
        before.append(bar->title());
    for (const ResourceReading &reading : qAsConst(readings))
        now.append(reading.resource);
    if (before != now) {
        qDeleteAll(m_bars);
        m_bars.clear();
        QWidget *last = nullptr;
        for (const QString &title : qAsConst(now)) {
            auto *bar = new MeterBar(title);
            m_barLayout->addWidget(bar);
            if (last)
                setTabOrder(last, bar);
            last = bar;
            m_bars.append(bar);
        }
        if (last)
            setTabOrder(last, m_isWanted);
        setTabOrder(m_isWanted, m_length);
    }
    for (int i = 0; i < m_bars.size(); ++i)
        m_bars.at(i)->setReading(readings.at(i));
    showShares();
    fitBars();
}

void MeterPanel::fitBars()
{
    const QLayout *inner = m_inner->layout();
    const int width = std::max(m_area->width(), inner->minimumSize().width());
    int height = inner->hasHeightForWidth() ? inner->minimumHeightForWidth(width)
                                            : inner->minimumSize().height();
    for (const MeterBar *bar : qAsConst(m_bars))
        height += bar->heightIn(false) - bar->heightIn(bar->isCompact());
    if (m_state->minimumHeight() == 0)
        height += std::max(0, usualStateHeight() - m_state->heightForWidth(m_state->width()));
    const bool isCompact = height > m_area->height();
    m_state->setMinimumHeight(isCompact ? 0 : usualStateHeight());
    for (MeterBar *bar : qAsConst(m_bars))
        bar->setCompact(isCompact);
}

int MeterPanel::usualStateHeight() const
{
    return 2 * m_state->fontMetrics().lineSpacing();
}

void MeterPanel::showShares()
{
    const bool isKnown =
        std::any_of(m_estimate.blocks.begin(), m_estimate.blocks.end(),
                    [this](const Estimate::Block &block) { return block.name == m_block; });
    for (MeterBar *bar : qAsConst(m_bars)) {
        const bool isResource = bar != m_bars.last() || !m_estimate.hasPins;
        bar->setShare(isKnown && isResource ? m_block : QString(),
                      m_estimate.shareOf(m_block, bar->title()));
    }
}

void MeterPanel::showState()
{
    const bool isMeasured = !m_key.isEmpty() && m_measured.contains(m_key);
    QStringList sentences;
    if (!m_estimate.resources.isEmpty())
        sentences.append(isMeasured ? tr("= Exact: a synthesis of this configuration has counted.")
                                    : tr("%1 Estimated.").arg(QChar(0x2248)));
    if (m_run)
        sentences.append(
            tr("The synthesis counts in the background, for %1 s now.").arg(m_runSeconds));
    else if (m_pause.isActive() && m_fixedPause < 0)
        sentences.append(
            tr("The synthesis counts after %1 s without a change.").arg(m_length->value()));
    else if (!isMeasured && m_failures.contains(m_key))
        sentences.append(tr("It could not be measured: %1").arg(m_failures.value(m_key)));
    m_state->setText(sentences.join(u' '));
    m_state->setVisible(!sentences.isEmpty());
}

void MeterPanel::onPointedAt(const QString &block)
{
    m_nextBlock = block;
    m_pointing->start();
}

// Who goes to the meter to read it points at nothing any more, and still wants to know.
void MeterPanel::point()
{
    if (m_nextBlock.isEmpty() && window()->isActiveWindow())
        return;
    m_block = m_nextBlock;
    showShares();
}

bool MeterPanel::mayMeasure() const
{
    return m_isWanted->isChecked() && m_window->isVisible() && !m_key.isEmpty() &&
           !m_estimate.resources.isEmpty() && !m_run && !m_measured.contains(m_key) &&
           !m_failures.contains(m_key) &&
           IPCore::SynthesisMonitor::instance().activeRuns().isEmpty() &&
           Answers::offers(m_root, measureMethod, QMetaType::QVariantMap);
}

void MeterPanel::schedule()
{
    if (mayMeasure())
        m_pause.start(m_fixedPause >= 0 ? m_fixedPause : m_length->value() * 1000);
    else
        m_pause.stop();
}

void MeterPanel::measure()
{
    if (!mayMeasure())
        return;
    QString error;
    QVariantMap answer;
    const auto fail = [this](const QString &reason) {
        if (m_failures.size() >= measuredLimit)
            m_failures.clear();
        m_failures.insert(m_key, reason);
        showState();
        Q_EMIT measured();
    };
    if (!askMap(m_root, "measureCommand", &m_configuration, &answer, &error)) {
        fail(tr("The plug-in failed: %1.").arg(error));
        return;
    }
    const Utils::Result<MeasureCommand> command = EstimateAnswer::measureCommandOf(answer);
    if (!command) {
        fail(tr("What the plug-in answers cannot be used: %1.").arg(command.reason()));
        return;
    }
    if (!command->error.isEmpty()) {
        fail(command->error);
        return;
    }
    m_run = std::make_unique<Measurement>(*command);
    m_run->setIdle(m_isIdle);
    m_runKey = m_key;
    m_runSeconds = 0;
    m_seconds.start();
    connect(m_run.get(), &Measurement::finished, this, &MeterPanel::onMeasured);
    m_run->start();
    showState();
}

void MeterPanel::endMeasuring()
{
    m_seconds.stop();
    m_run.reset();
    m_runKey.clear();
    showState();
}

void MeterPanel::onMeasured()
{
    m_seconds.stop();
    if (m_measured.size() >= measuredLimit)
        m_measured.clear();
    if (m_run->result())
        m_measured.insert(m_runKey, *m_run->result());
    else
        m_failures.insert(m_runKey, m_run->result().reason());
    m_run.release()->deleteLater();
    m_runKey.clear();
    showBars();
    schedule();
    showState();
    Q_EMIT measured();
}

} // namespace Workbench
