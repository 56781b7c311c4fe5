#pragma once

#include "utils_global.h"

#include <QString>
#include <QVariantMap>

namespace Utils
{

// The text of an INI file in the QSettings dialect, see writeIniFile(). Returns false and stores a
// clause with the reason in `*error` (may be null); only values of types that options do not have
// can fail, since QSettings itself writes those, into a temporary file.
TARVO_UTILS_EXPORT bool iniText(const QVariantMap &header, const QString &group,
                                const QVariantMap &values, QByteArray *text, QString *error);

// Replaces `path` by an INI file in the QSettings dialect: the entries of `header` at the top
// level, those of `values` in the group `group`. What stood in the file before is gone; keys are in
// alphabetical order, so that equal maps give equal bytes. Returns false and stores a sentence with
// path and reason in `*error` (may be null).
TARVO_UTILS_EXPORT bool writeIniFile(const QString &path, const QVariantMap &header,
                                     const QString &group, const QVariantMap &values,
                                     QString *error);

// Whether `bytes` can be the text of an INI file: every line is blank, a comment, a section or a
// key with a value whose quotation marks are closed, and no control character stands in it. Returns
// the reason in `*error` (may be null), with the line number.
TARVO_UTILS_EXPORT bool checkIniText(const QByteArray &bytes, QString *error);

// The same for an IP configuration, whose values are texts: one that QSettings would decode to an
// object of another kind, which may overflow the stack, is refused by the name of its entry. To be
// asked before QSettings gets the file.
TARVO_UTILS_EXPORT bool checkConfigurationText(const QByteArray &bytes, QString *error);

} // namespace Utils
