#include "textcopy.h"

#include <QElapsedTimer>
#include <QTextCursor>
#include <QTextDocument>

#include <utility>

namespace Workbench
{

namespace
{

constexpr int step = 1 << 17; // characters
// So often edits may put the copy back before it goes on to the end without a break.
constexpr int mostRestarts = 100;

} // namespace

TextCopy::TextCopy(QTextDocument *document)
    : m_document(document)
{
    m_text.reserve(document->characterCount());
    document->documentLayout(); // a text without one does not tell of its changes
    m_connection = QObject::connect(document, &QTextDocument::contentsChange, document,
                                    [this](int position, int, int) {
                                        if (position >= m_text.size())
                                            return;
                                        // What stands before is as it was. How much has changed is
                                        // not told reliably.
                                        m_text.truncate(position);
                                        ++m_restarts;
                                    });
}

TextCopy::~TextCopy()
{
    QObject::disconnect(m_connection);
}

bool TextCopy::advance(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QTextCursor cursor(m_document);
    const int size = m_document->characterCount() - 1; // without the end of the last line
    while (m_text.size() < size) {
        cursor.setPosition(m_text.size());
        cursor.setPosition(qMin(size, m_text.size() + step), QTextCursor::KeepAnchor);
        const QString more = cursor.selectedText();
        if (more.size() != cursor.position() - cursor.anchor()) {
            m_text = m_document->toRawText(); // which cannot differ
            return true;
        }
        m_text += more;
        if (milliseconds >= 0 && m_restarts < mostRestarts && clock.elapsed() >= milliseconds)
            break;
    }
    return m_text.size() == size;
}

QString TextCopy::take()
{
    m_restarts = 0;
    return std::exchange(m_text, QString());
}

} // namespace Workbench
