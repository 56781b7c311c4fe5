#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QDialog)

namespace Workbench
{

class IpSession;

// What has to end before the window can go: the runs, then the dialogs from the innermost outwards,
// then the calls that opened them. Made before the program's event loop starts.
class ClosingSequence : public QObject
{
    Q_OBJECT

public:
    // The session must outlive the sequence.
    explicit ClosingSequence(const IpSession &session, QObject *parent = nullptr);

    // From now on the window closes; false if it did before.
    bool begin();
    bool hasBegun() const { return m_begun; }
    // Whether a run or a plug-in keeps the window from closing.
    bool isHeldUp() const;
    // Ends everything without a question. A dialog that stays nevertheless is not asked twice:
    // the sequence goes on when somebody has closed it.
    void run();

Q_SIGNALS:
    void finished();

private:
    enum class Step { None, CloseDialog, Finish };

    Step due() const;
    QDialog *innermost() const;
    void look();
    void take();

    const IpSession &m_session;
    int m_level; // of the program's event loop
    bool m_begun = false;
    bool m_running = false;
    QList<QPointer<QDialog>> m_asked; // to close
};

} // namespace Workbench
