#pragma once

#include "terminaltext.h"

#include <QPlainTextEdit>

namespace Workbench
{

// A terminal: what was sent last, and the keys that are typed into it. Tab leaves it.
class TerminalView : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int lineCountLimit = 5000;

    explicit TerminalView(QWidget *parent = nullptr);

    void take(const QByteArray &bytes);
    void clearAll();
    // Whether keys are for somebody.
    void setListened(bool isListened) { m_isListened = isListened; }

Q_SIGNALS:
    void typed(const QByteArray &bytes);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isInput(const QKeyEvent &event) const;

    TerminalText m_reader;
    bool m_isListened = false;
};

} // namespace Workbench
