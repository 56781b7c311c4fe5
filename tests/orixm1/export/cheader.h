#pragma once

#include <QMap>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

// What a device header defines, found in its text.
struct CHeader {
    struct Member {
        QString qualifier; // "TARVO_ORIX_M1_RW"
        QString name;
    };
    struct Type {
        QString name;
        QVector<Member> members; // without those that fill gaps
    };

    QMap<QString, QString> numbers;  // macros that are numbers: name, number as it is written
    QMap<QString, QString> pointers; // macros that are instances: name, type
    QStringList enumerators;
    QVector<Type> types;

    explicit CHeader(const QString &text)
    {
        static const QRegularExpression number(
            QStringLiteral("^#define +(\\w+) +((?:0x[0-9A-F]+|[0-9]+)u?)(?: |$)"),
            QRegularExpression::MultilineOption);
        static const QRegularExpression pointer(
            QStringLiteral("^#define +(\\w+) +\\(\\((\\w+) \\*\\)\\(uintptr_t\\)\\w+\\)$"),
            QRegularExpression::MultilineOption);
        static const QRegularExpression enumerator(QStringLiteral("^    (\\w+_IRQn_?\\w*) = "),
                                                   QRegularExpression::MultilineOption);
        static const QRegularExpression type(
            QStringLiteral("^typedef struct \\{\\n([^}]*)\\} (\\w+);"),
            QRegularExpression::MultilineOption);
        static const QRegularExpression member(QStringLiteral("^    (TARVO_\\w+) uint32_t (\\w+);"),
                                               QRegularExpression::MultilineOption);
        const auto each = [](const QRegularExpression &rule, const QString &in, auto take) {
            auto matches = rule.globalMatch(in);
            while (matches.hasNext())
                take(matches.next());
        };
        using Match = QRegularExpressionMatch;
        each(number, text, [this](const Match &m) { numbers[m.captured(1)] = m.captured(2); });
        each(pointer, text, [this](const Match &m) { pointers[m.captured(1)] = m.captured(2); });
        each(enumerator, text, [this](const Match &m) { enumerators.append(m.captured(1)); });
        each(type, text, [&](const Match &m) {
            Type found{m.captured(2), {}};
            each(member, m.captured(1), [&found](const Match &inner) {
                found.members.append({inner.captured(1), inner.captured(2)});
            });
            types.append(found);
        });
    }

    const Type *findType(const QString &name) const
    {
        for (const Type &type : types) {
            if (type.name == name)
                return &type;
        }
        return nullptr;
    }
};
