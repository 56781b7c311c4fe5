#pragma once

#include "ipcore_global.h"

#include <utils/pinfigure.h>

#include <QDialog>
#include <QList>

QT_FORWARD_DECLARE_CLASS(QDialogButtonBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QSplitter)
QT_FORWARD_DECLARE_CLASS(QTabWidget)

namespace IPCore
{

class PinFigureView;

// The frame of a block's dialog: a header with the module, the block and what it is for, tabs with
// the block's options, a figure of its pins, and OK and Cancel, which call accept() and reject(). A
// block's dialog derives from it and fills it.
class TARVO_IPCORE_EXPORT MicroSysChildIPGenDlg : public QDialog
{
    Q_OBJECT

public:
    explicit MicroSysChildIPGenDlg(QWidget *parent = nullptr);
    ~MicroSysChildIPGenDlg() override;

    QString moduleName() const;
    QString labelText() const;
    // As it was set; the header leaves out blanks and line ends around it.
    QString summaryText() const { return m_summaryText; }
    QList<Utils::PinFigure> figurePins() const;

    QTabWidget *tabWidget() const { return m_tabs; }
    PinFigureView *pinFigureView() const { return m_figure; }
    QDialogButtonBox *buttonBox() const { return m_buttons; }

    QSize sizeHint() const override;
    void setVisible(bool visible) override;

protected:
    void uiSetModuleName(const QString &name);
    // The block's name, in the header and in the figure.
    void uiSetLabelText(const QString &text);
    // Plain text; line ends count.
    void uiSetSummaryText(const QString &text);
    // Takes ownership of the page. Tab walks the pages' fields before the figure and the buttons.
    void uiAddTab(QWidget *page, const QString &title);
    void uiSetFigurePins(const QList<Utils::PinFigure> &pins);

private:
    QSize optionsSize() const;

    QLabel *m_module;
    QLabel *m_label;
    QLabel *m_summary;
    QSplitter *m_splitter;
    QTabWidget *m_tabs;
    PinFigureView *m_figure;
    QDialogButtonBox *m_buttons;
    QWidget *m_lastField; // the last of the options, as Tab walks
    QString m_summaryText;
    bool m_sized = false; // the first size has been chosen
};

} // namespace IPCore
