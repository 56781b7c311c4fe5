#pragma once

#include <QByteArray>
#include <QString>
#include <QTextCodec>

#include <memory>

namespace Workbench
{

// What a terminal shows of the bytes that it gets, in steps: characters that are taken back from
// the end of the last line, then text. UTF-8; bytes that are none and control characters have signs
// of their own. A carriage return counts as a part of a line end.
class TerminalText
{
public:
    static constexpr int lineLimit = 1000; // characters, after which a line is broken

    struct Step {
        int takenBack = 0; // of the line as it is; never past its beginning
        QString text;
    };

    TerminalText();
    ~TerminalText();

    Step take(const QByteArray &bytes);
    void clear();

private:
    std::unique_ptr<QTextDecoder> m_decoder;
    int m_column = 0;
    bool m_isAfterReturn = false; // a line feed behind it belongs to it
};

} // namespace Workbench
