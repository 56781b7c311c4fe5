#include "companion.h"

#include "widgets/assistance.h"
#include "widgets/enterkey.h"
#include "widgets/windowplace.h"

#include <ipcore/screenfit.h>

#include <QCloseEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Workbench
{

namespace
{

constexpr int comfortableColumns = 100; // of two texts side by side

} // namespace

Companion::Companion(QDialog *ipDialog, QObject *pluginRoot, const QVector<CompanionPanel> &panels)
    : QWidget(ipDialog, Qt::Tool)
    , m_dialog(ipDialog)
    , m_root(pluginRoot)
    , m_panels(panels)
    , m_tabs(new QTabWidget)
{
    speakAsWindow(this);
    setObjectName(QStringLiteral("companion"));
    setWindowTitle(tr("Companion"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setUsesScrollButtons(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs);
}

QVector<CompanionPanel> Companion::offered(const QVector<CompanionPanel> &panels,
                                           const QDialog *ipDialog, const QObject *pluginRoot)
{
    QVector<CompanionPanel> result;
    std::copy_if(
        panels.begin(), panels.end(), std::back_inserter(result),
        [&](const CompanionPanel &panel) { return panel.isOffered(ipDialog, pluginRoot); });
    return result;
}

QRect Companion::placeBeside(const QRect &dialog, const QSize &size, const QRect &screen)
{
    const QSize seen = size.boundedTo(screen.size());
    const auto at = [&](int x, int height) {
        const int y = std::clamp(dialog.top(), screen.top(), screen.bottom() + 1 - height);
        return QRect(x, y, seen.width(), height);
    };
    if (dialog.right() + seen.width() <= screen.right())
        return at(dialog.right() + 1, seen.height());
    if (dialog.left() - seen.width() >= screen.left())
        return at(dialog.left() - seen.width(), seen.height());
    // What is at the bottom of a dialog, its OK, stays free.
    return at(screen.right() + 1 - seen.width(), std::min(seen.height(), dialog.height() * 2 / 3));
}

int Companion::widthBeside(const QRect &dialog, int width, const QRect &screen)
{
    return std::min(width,
                    std::max(screen.right() - dialog.right(), dialog.left() - screen.left()));
}

void Companion::makePanels()
{
    for (const CompanionPanel &panel : qAsConst(m_panels))
        m_tabs->addTab(panel.make(m_dialog, m_root, this), panel.title);
    m_panels.clear();
    m_tabs->setTabBarAutoHide(true);
}

void Companion::showBeside()
{
    if (!m_dialog || !m_dialog->isVisible())
        return;
    const bool isFirst = !m_panels.isEmpty();
    if (isFirst) {
        makePanels();
        // Where people have put it, it does not follow the dialog.
        if (!m_place || !m_place->restore())
            goBeside();
    }
    show();
    // Not every window system knows that a window can come up without the focus. Whoever works with
    // another program keeps it there.
    if (QGuiApplication::applicationState() == Qt::ApplicationActive)
        m_dialog->activateWindow();
}

void Companion::goBeside()
{
    const QRect screen(m_dialog->screen()->availableGeometry().topLeft(),
                       IPCore::roomOnScreen(m_dialog));
    const QRect dialog = m_dialog->frameGeometry();
    QSize size(widthBeside(dialog, fontMetrics().averageCharWidth() * comfortableColumns, screen),
               m_dialog->height());
    size = size.expandedTo(sizeHint());
    WindowPlace::put(this, placeBeside(dialog, size, screen));
}

void Companion::rememberPlace(QSettings &settings)
{
    m_place = new WindowPlace(settings, QStringLiteral("window/companion"), this);
}

void Companion::takeFocus()
{
    activateWindow();
    raise();
    if (!focusWidget())
        focusNextChild();
}

void Companion::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void Companion::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier && m_dialog)
        m_dialog->activateWindow();
    else if (!pressFocusedButton(event))
        QWidget::keyPressEvent(event);
}

} // namespace Workbench
