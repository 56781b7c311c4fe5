#pragma once

#include "result.h"
#include "utils_global.h"

#include <QString>
#include <QVariantMap>

namespace Utils
{

// The text of an INI file in the QSettings dialect, see writeIniFile(), or a clause with the
// reason; only values of types that options do not have can fail, since QSettings itself writes
// those, into a temporary file.
TARVO_UTILS_EXPORT Result<QByteArray> iniText(const QVariantMap &header, const QString &group,
                                              const QVariantMap &values);

// Replaces `path` by an INI file in the QSettings dialect: the entries of `header` at the top
// level, those of `values` in the group `group`. What stood in the file before is gone; keys are in
// alphabetical order, so that equal maps give equal bytes. A failure is a sentence with path and
// reason.
TARVO_UTILS_EXPORT Result<void> writeIniFile(const QString &path, const QVariantMap &header,
                                             const QString &group, const QVariantMap &values);

// The same, but the comments of the file that it replaces stay (Reading::withCommentsOf()).
TARVO_UTILS_EXPORT Result<void> rewriteIniFile(const QString &path, const QVariantMap &header,
                                               const QString &group, const QVariantMap &values);

// Whether `bytes` can be the text of an INI file: every line is blank, a comment, a section or a
// key with a value whose quotation marks are closed, and no control character stands in it. A
// failure is a clause with the line number.
TARVO_UTILS_EXPORT Result<void> checkIniText(const QByteArray &bytes);

// The same for an IP configuration, whose values are texts: one that QSettings would decode to an
// object of another kind, which may overflow the stack, is refused by the name of its entry. To be
// asked before QSettings gets the file.
TARVO_UTILS_EXPORT Result<void> checkConfigurationText(const QByteArray &bytes);

} // namespace Utils
