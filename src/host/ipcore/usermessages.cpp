#include "usermessages.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace IPCore
{

namespace
{

using Synthesis::Message;

QStringList &productFolders()
{
    static QStringList folders;
    return folders;
}

bool isProductFile(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    const QStringList &folders = productFolders();
    return std::any_of(folders.begin(), folders.end(),
                       [&clean](const QString &folder) { return clean.startsWith(folder); });
}

// The full paths that a text names, in their order. One with blanks is known by its quotes.
QStringList pathsIn(const QString &text)
{
    static const QRegularExpression path(
        QStringLiteral("[\"'`](/[^\"'`]+)[\"'`]|(?<![\\w./])(/[^\\s\"'`:;,()]+)"));
    QStringList paths;
    for (auto it = path.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        paths.append(match.captured(1).isEmpty() ? match.captured(2) : match.captured(1));
    }
    return paths;
}

QString userFileIn(const QString &text)
{
    const QStringList paths = pathsIn(text);
    const auto found = std::find_if_not(paths.begin(), paths.end(), isProductFile);
    return found == paths.end() ? QString() : *found;
}

Message withUserFile(Message message)
{
    const QString named = message.file.isEmpty() ? pathsIn(message.text).value(0) : message.file;
    if (!isProductFile(named))
        return message;
    const QString mine = userFileIn(message.text);
    if (mine.isEmpty())
        return message;
    if (!message.file.isEmpty()) {
        Message place = message;
        place.text.clear();
        message.text += QLatin1String(" (") + place.toString().chopped(2) + u')';
    }
    message.file = mine;
    message.line = 0;
    return message;
}

enum Rank { UserFile, NoFile, ProductFile };

Rank rankOf(const Message &message)
{
    const QString named = message.file.isEmpty() ? pathsIn(message.text).value(0) : message.file;
    return named.isEmpty() ? NoFile : isProductFile(named) ? ProductFile : UserFile;
}

Message parsed(const QString &detail)
{
    static const QRegularExpression place(
        QStringLiteral("^([^:\\n]*[^:\\s\\d][^:\\n]*):(\\d+): (.*)$"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression file(QStringLiteral("^(/[^:\\n]+): (.*)$"),
                                         QRegularExpression::DotMatchesEverythingOption);
    Message message;
    message.text = detail;
    if (const auto match = place.match(detail); match.hasMatch()) {
        message.file = match.captured(1);
        message.line = match.captured(2).toInt();
        message.text = match.captured(3);
    } else if (const auto other = file.match(detail); other.hasMatch()) {
        message.file = other.captured(1);
        message.text = other.captured(2);
    }
    return message;
}

// What a text says, whatever its beginning and end look like.
QString gist(const QString &text)
{
    static const QRegularExpression start(QStringLiteral("^(error|warning)\\s*:\\s*"),
                                          QRegularExpression::CaseInsensitiveOption);
    QString result = text.simplified();
    result.remove(start);
    while (result.endsWith(u'.') || result.endsWith(u'!'))
        result.chop(1);
    return result;
}

bool says(const QString &title, const QString &text)
{
    constexpr int telling = 16; // shorter texts are found in others by chance
    const QString whole = gist(title);
    const QString part = gist(text);
    return part == whole || (part.size() >= telling && whole.contains(part));
}

} // namespace

void addProductFolder(const QString &folder)
{
    const QFileInfo info(folder);
    for (const QString &path : {info.absoluteFilePath(), info.canonicalFilePath()}) {
        const QString clean = QDir::cleanPath(path) + u'/';
        if (!path.isEmpty() && !productFolders().contains(clean))
            productFolders().append(clean);
    }
}

QList<Message> userFilesFirst(const QList<Message> &messages)
{
    QList<Message> result;
    for (const Message &message : messages)
        result.append(withUserFile(message));
    std::stable_sort(result.begin(), result.end(),
                     [](const Message &a, const Message &b) { return rankOf(a) < rankOf(b); });
    return result;
}

QStringList detailsForUser(const QString &title, const QStringList &details)
{
    QList<Message> messages;
    for (const QString &detail : details) {
        if (!detail.trimmed().isEmpty())
            messages.append(parsed(detail));
    }
    messages = userFilesFirst(messages);

    QStringList result;
    for (const Message &message : qAsConst(messages)) {
        Message shown = message;
        if (says(title, message.text)) {
            if (message.file.isEmpty() || title.contains(message.file))
                continue;
            shown.text.clear();
        } else if (message.file.isEmpty()) {
            // The same with a place says more.
            const bool isPlaced =
                std::any_of(messages.begin(), messages.end(), [&message](const Message &other) {
                    return !other.file.isEmpty() && gist(other.text) == gist(message.text);
                });
            if (isPlaced)
                continue;
        }
        const QString text = shown.text.isEmpty() ? shown.toString().chopped(2) : shown.toString();
        if (!result.contains(text))
            result.append(text);
    }
    return result;
}

} // namespace IPCore
