#include "sayings.h"

#include "tr.h"

#include <QRegularExpression>

#include <array>

namespace Workbench
{

namespace
{

constexpr std::array<const char *, Sayings::Count> sayings = {
    QT_TRANSLATE_NOOP("Workbench", "while it was loaded"),
    QT_TRANSLATE_NOOP("Workbench", "while it was started"),
    QT_TRANSLATE_NOOP("Workbench", "when it was asked for its IPs"),
    QT_TRANSLATE_NOOP("Workbench", "when it was asked what its IPs are"),
    QT_TRANSLATE_NOOP("Workbench", "when it was asked about devices"),
    QT_TRANSLATE_NOOP("Workbench", "when its IPs were released"),
    QT_TRANSLATE_NOOP("Workbench", "It did not stop printing %1."),
    QT_TRANSLATE_NOOP("Workbench", "It did not answer within %1 s %2."),
    QT_TRANSLATE_NOOP("Workbench", "It crashed %1 (signal %2)."),
    QT_TRANSLATE_NOOP("Workbench", "It ended the program %1 (status %2)."),
    QT_TRANSLATE_NOOP("Workbench", "an exception without a text"),
    QT_TRANSLATE_NOOP("Workbench", "an exception of an unknown type"),
    QT_TRANSLATE_NOOP("Workbench", "It failed while it was started: %1."),
    QT_TRANSLATE_NOOP("Workbench", "It is a Qt plug-in, but not one for IPs."),
    QT_TRANSLATE_NOOP("Workbench", "It is no plug-in: %1"),
    QT_TRANSLATE_NOOP("Workbench",
                      "It offers no IP: it finds no usable descriptor in its data folder \"%1\"."),
    QT_TRANSLATE_NOOP("Workbench", "One of its IPs is no object."),
    QT_TRANSLATE_NOOP("Workbench", "It offers one object twice."),
    QT_TRANSLATE_NOOP("Workbench", "It failed when it was asked for an IP: %1."),
    QT_TRANSLATE_NOOP("Workbench", "One of its IPs has no id or no name."),
};

// All places in one pass: an argument may have a text like "%1" of its own.
QString filled(const QString &text, const QStringList &arguments)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int place =
            text.at(i) == u'%' && i + 1 < text.size() ? text.at(i + 1).digitValue() : 0;
        if (place < 1 || place > arguments.size()) {
            result += text.at(i);
            continue;
        }
        result += arguments.at(place - 1);
        ++i;
    }
    return result;
}

} // namespace

QString Sayings::told(Saying saying, const QStringList &arguments)
{
    return filled(QString::fromLatin1(sayings.at(saying)), arguments);
}

QString Sayings::shown(const QString &english)
{
    for (const char *saying : sayings) {
        QString pattern = QRegularExpression::escape(QString::fromLatin1(saying));
        // In all of them the places stand in their order.
        pattern.replace(QRegularExpression(QStringLiteral("\\\\?%\\d")), QStringLiteral("(.*?)"));
        const QRegularExpression whole(u'^' + pattern + QStringLiteral("(?: (It .*|One .*))?$"),
                                       QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = whole.match(english);
        if (!match.hasMatch())
            continue;
        QStringList parts = match.capturedTexts().mid(1);
        const QString rest = whole.captureCount() == parts.size() ? parts.takeLast() : QString();
        for (QString &part : parts)
            part = shown(part);
        const QString sentence = filled(Tr::tr(saying), parts);
        return rest.isEmpty() ? sentence : sentence + u' ' + shown(rest);
    }
    return english;
}

} // namespace Workbench
