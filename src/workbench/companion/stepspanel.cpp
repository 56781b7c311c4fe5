#include "stepspanel.h"

#include "catalogue/answers.h"
#include "catalogue/pluginloader.h"
#include "tr.h"
#include "widgets/shortcuts.h"

#include <QApplication>
#include <QDialog>
#include <QFont>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMetaMethod>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

namespace Workbench
{

// The model

Utils::Result<QStringList> StepsModel::namesOf(const QVariantList &steps)
{
    if (steps.size() > limit)
        return Utils::Failure{Tr::tr("there are more than %1 of them").arg(limit)};
    QStringList names;
    for (const QVariant &step : steps) {
        QString name;
        if (step.userType() != QMetaType::QVariantMap ||
            !Answers::takeText(step.toMap(), QStringLiteral("name"), &name) || name.isEmpty())
            return Utils::Failure{
                Tr::tr("one of them has no \"name\" of a line: number %1").arg(names.size() + 1)};
        names.append(name);
    }
    return names;
}

void StepsModel::setSteps(const QStringList &names, int current)
{
    if (names == m_names && current == m_current)
        return;
    beginResetModel();
    m_names = names;
    m_current = current;
    endResetModel();
}

int StepsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_names.size() + 1;
}

QVariant StepsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() > m_names.size())
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: {
        const QString text = row == 0 ? tr("What the file has")
                                      : tr("%1. %2").arg(QString::number(row), name(row - 1));
        if (row == m_current)
            return tr("%1 (now)").arg(text);
        return row > m_current ? tr("%1 (undone)").arg(text) : text;
    }
    case Qt::FontRole:
        if (row >= m_current) {
            QFont font = QApplication::font("QAbstractItemView");
            font.setBold(row == m_current);
            font.setItalic(row > m_current);
            return font;
        }
        return {};
    default:
        return {};
    }
}

// The panel

bool StepsPanel::isOffered(const QDialog *dialog, const QObject * /*pluginRoot*/)
{
    return Answers::offers(dialog, "steps()", QMetaType::QVariantList) &&
           Answers::offers(dialog, "currentStep()", QMetaType::Int) &&
           Answers::offers(dialog, "goToStep(int)", QMetaType::Bool) &&
           Answers::tells(dialog, "configurationChanged()");
}

StepsPanel::StepsPanel(QDialog *ipDialog, QObject * /*pluginRoot*/, QWidget *parent)
    : QWidget(parent)
    , m_dialog(ipDialog)
    , m_model(new StepsModel(this))
    , m_list(new QListView)
    , m_error(new QLabel)
    , m_undo(new QPushButton(tr("&Undo")))
    , m_redo(new QPushButton(tr("&Redo")))
    , m_back(new QPushButton(tr("&Back to What the File Has")))
{
    m_list->setObjectName(QStringLiteral("stepList"));
    m_list->setAccessibleName(tr("Steps"));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setModel(m_model);
    m_list->setToolTip(tr("Enter or a double click goes to a step"));
    m_error->setObjectName(QStringLiteral("stepError"));
    m_error->setWordWrap(true);
    m_error->setTextFormat(Qt::PlainText);
    m_error->hide();
    m_undo->setObjectName(QStringLiteral("undoButton"));
    m_redo->setObjectName(QStringLiteral("redoButton"));
    m_back->setObjectName(QStringLiteral("backButton"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_undo);
    buttons->addWidget(m_redo);
    buttons->addWidget(m_back, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_error);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);

    const auto connectButton = [this](QPushButton *button, const auto &target) {
        connect(button, &QPushButton::clicked, this, [this, target] { goTo(target()); });
    };
    connectButton(m_undo, [this] { return m_model->current() - 1; });
    connectButton(m_redo, [this] { return m_model->current() + 1; });
    connectButton(m_back, [] { return 0; });
    qApp->installEventFilter(this);
    connect(m_list, &QListView::activated, this,
            [this](const QModelIndex &index) { goTo(index.row()); });

    m_delay.setSingleShot(true);
    m_delay.setInterval(0);
    connect(&m_delay, &QTimer::timeout, this, &StepsPanel::refresh);
    connect(m_dialog, SIGNAL(configurationChanged()), this, SLOT(onChanged()));
    refresh();
}

// The keys of undo and redo are the panel's in its whole window, whichever tab is in front. As
// shortcuts they would be nobody's: texts keep them for themselves, and the dialog, whose shortcuts
// reach its tool windows, may have the same.
bool StepsPanel::eventFilter(QObject *watched, QEvent *event)
{
    if ((event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) ||
        !watched->isWidgetType() || static_cast<QWidget *>(watched)->window() != window() ||
        watched->inherits("QLineEdit") || watched->inherits("QAbstractSpinBox"))
        return QWidget::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const QKeySequence pressed(int(key->modifiers()) | key->key());
    QPushButton *button = keysOf(QKeySequence::Undo).contains(pressed)   ? m_undo
                          : keysOf(QKeySequence::Redo).contains(pressed) ? m_redo
                                                                         : nullptr;
    if (!button)
        return QWidget::eventFilter(watched, event);
    key->accept();
    if (event->type() == QEvent::KeyPress)
        button->click();
    return true;
}

// Not at once: the dialog may be in the middle of it.
void StepsPanel::onChanged()
{
    m_delay.start();
}

void StepsPanel::refresh()
{
    if (!m_dialog)
        return;
    QVariantList steps;
    int current = -1;
    bool isCalled = false;
    const QString thrown = PluginLoader::thrownBy([&] {
        isCalled = QMetaObject::invokeMethod(m_dialog, "steps", Qt::DirectConnection,
                                             Q_RETURN_ARG(QVariantList, steps)) &&
                   QMetaObject::invokeMethod(m_dialog, "currentStep", Qt::DirectConnection,
                                             Q_RETURN_ARG(int, current));
    });
    const Utils::Result<QStringList> names = StepsModel::namesOf(steps);
    if (!isCalled || !thrown.isEmpty()) {
        show(tr("The dialog failed when it was asked for its steps: %1.").arg(thrown));
    } else if (!names) {
        show(tr("The steps that the dialog tells cannot be used: %1.").arg(names.reason()));
    } else if (current < 0 || current > names->size()) {
        show(tr("The steps that the dialog tells cannot be used: %1 of %2 are said to count.")
                 .arg(current)
                 .arg(names->size()));
    } else {
        m_model->setSteps(*names, current);
        show({});
    }
}

void StepsPanel::goTo(int count)
{
    if (!m_dialog || count < 0 || count > m_model->count() || count == m_model->current())
        return;
    bool isDone = false;
    const QString thrown = PluginLoader::thrownBy([&] {
        QMetaObject::invokeMethod(m_dialog, "goToStep", Qt::DirectConnection,
                                  Q_RETURN_ARG(bool, isDone), Q_ARG(int, count));
    });
    refresh();
    if (!thrown.isEmpty())
        show(tr("The dialog failed when it was to go to a step: %1.").arg(thrown));
    else if (!isDone)
        show(tr("The dialog cannot go there now."));
}

void StepsPanel::show(const QString &error)
{
    const int current = m_model->current();
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
    // The focus would leave the panel with a button that it is on.
    const QWidget *focus = focusWidget();
    const bool hadFocus = focus == m_undo || focus == m_redo || focus == m_back;
    m_undo->setEnabled(current > 0);
    m_redo->setEnabled(current < m_model->count());
    m_back->setEnabled(current > 0);
    if (hadFocus && !focus->isEnabled())
        m_list->setFocus();
    m_undo->setToolTip(current > 0 ? m_model->name(current - 1) : QString());
    m_redo->setToolTip(current < m_model->count() ? m_model->name(current) : QString());
    const QModelIndex index = m_model->index(current);
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
    Q_EMIT refreshed();
}

} // namespace Workbench
