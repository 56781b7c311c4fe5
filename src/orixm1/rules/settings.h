#pragma once

#include "config/optionmap.h"

#include <utils/result.h>

#include <QString>
#include <QVariant>

namespace TARVOORIXM1
{

struct Setting {
    QString key;
    QVariant value; // of the option's type, within its domain
};

// Reads "KEY=VALUE". A failure is a sentence that names key and value and says what is allowed, or
// which key was meant.
Utils::Result<Setting> settingFromText(const QString &text);

// 'Unknown key "…"; the nearest known one is "…".'
QString unknownKeyText(const QString &key);

// Stores a setting as the dialogs would: with the folder of the ITCM's files goes its absolute
// path, from the folder `createIn`.
void applySetting(const Setting &setting, const QString &createIn, OptionMap *options);

} // namespace TARVOORIXM1
