#pragma once

#include "optionkeys.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace TARVOORIXM1
{

enum class OptionType { Bool, Int, String };

// What a key of the option map may hold.
struct Option {
    QString key;
    OptionType type = OptionType::Bool;
    // What generation takes when the key is absent; invalid for the TCM sizes (the device decides)
    // and for keys that generation does not read.
    QVariant defaultValue;
    // What the option's dialog takes instead, where it differs; both are fixed. Counts only while
    // the switch `neededSwitch` is on. Not set elsewhere.
    QVariant dialogDefault;
    QString neededSwitch;
    QStringList choices; // texts of a closed domain; empty where the domain is a range or open
    int minimum = 0;     // of an Int without choices; no range if minimum > maximum
    int maximum = -1;
    QString description;
    bool isOption = true; // false: book-keeping of the dialogs in the same map
};

// Every key, in the order in which people read a configuration. Built once.
const QVector<Option> &optionTable();

// The row of a key; null if the key is unknown.
const Option *findOption(const QString &key);

// The known key that is spelled most alike, or an empty text if none is near (more than a third of
// it differs).
QString nearestOptionKey(const QString &key);

// Converts the text of a value; an invalid variant if it is none of the option's type. A bool is
// true, false, 1 or 0 in any letter case.
QVariant optionValueFromText(const Option &option, const QString &text);

// Whether a value of the right type lies in the option's domain.
bool isInDomain(const Option &option, const QVariant &value);

// The domain in words ("one of 1, 8, 16, 32"; "0 to 255"; "true or false"); empty for an open one.
QString domainText(const Option &option);

// "bool", "int" or "string".
QString typeName(OptionType type);

} // namespace TARVOORIXM1
