#pragma once

#include <QMetaObject>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QTextDocument)

namespace Workbench
{

// A copy of a document's text, as TextFormat::encode() takes it, which is made in steps of a
// limited time. What is edited meanwhile is copied again: in the end the copy is the text of the
// end.
class TextCopy
{
public:
    // The document must outlive this.
    explicit TextCopy(QTextDocument *document);
    ~TextCopy();
    TextCopy(const TextCopy &) = delete;
    TextCopy &operator=(const TextCopy &) = delete;

    // Goes on for about so many milliseconds, at least one step; below 0: to the end. True if all
    // is there.
    bool advance(int milliseconds);
    // What has been copied; the next call has what comes then.
    QString take();

private:
    QTextDocument *m_document;
    QMetaObject::Connection m_connection;
    QString m_text;
    int m_restarts = 0;
};

} // namespace Workbench
