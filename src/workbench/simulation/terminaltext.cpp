#include "terminaltext.h"

namespace Workbench
{

namespace
{

const QTextCodec *utf8()
{
    return QTextCodec::codecForName("UTF-8");
}

} // namespace

TerminalText::TerminalText()
{
    clear();
}

TerminalText::~TerminalText() = default;

void TerminalText::clear()
{
    m_decoder.reset(utf8()->makeDecoder(QTextCodec::IgnoreHeader));
    m_column = 0;
    m_isAfterReturn = false;
}

TerminalText::Step TerminalText::take(const QByteArray &bytes)
{
    Step step;
    const QString text = m_decoder->toUnicode(bytes);
    int own = 0; // characters of the last line that are in the step
    for (const QChar c : text) {
        const bool endsReturn = m_isAfterReturn && c == u'\n';
        m_isAfterReturn = c == u'\r';
        if (endsReturn)
            continue;
        if (c == u'\b') {
            if (m_column == 0)
                continue;
            --m_column;
            if (own > 0) {
                --own;
                step.text.chop(1);
            } else {
                ++step.takenBack;
            }
            continue;
        }
        const bool isEnd = c == u'\n' || c == u'\r';
        if (isEnd || m_column >= lineLimit) {
            step.text += u'\n';
            m_column = 0;
            own = 0;
            if (isEnd)
                continue;
        }
        // The pictures of control characters are in their order.
        QChar shown = c;
        if (c < u' ' && c != u'\t')
            shown = QChar(0x2400 + c.unicode());
        else if (c == QChar(0x7f))
            shown = QChar(0x2421);
        else if (!c.isPrint() && !c.isSurrogate() && c != u'\t')
            shown = QChar::ReplacementCharacter;
        step.text += shown;
        ++m_column;
        ++own;
    }
    return step;
}

} // namespace Workbench
