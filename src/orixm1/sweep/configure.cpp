#include "configure.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "rules/check.h"
#include "rules/itcmpath.h"
#include "rules/newoptions.h"
#include "rules/retarget.h"

#include <QDir>

namespace TARVOORIXM1
{

namespace
{

// As seen from the point's folder, so that no name of a machine comes into its file. The absolute
// path, which generation needs, follows.
void placeInitialisation(OptionMap &options, const QString &from, const QString &folder)
{
    const QString path = textOf(options, Key::itcmInitializationPath);
    if (path.isEmpty())
        return;
    const QString absolute = QDir::cleanPath(absoluteItcmPath(path, from));
    if (QDir::isRelativePath(path))
        options.insert(Key::itcmInitializationPath, QDir(folder).relativeFilePath(absolute));
    options.insert(Key::itcmInitializationAbsolutePath, absolute);
}

// On another device, but with everything that the new one cannot have.
OptionMap movedWhole(const OptionMap &options, const DEV::DeviceArg &from, const DEV::DeviceArg &to,
                     QStringList *losses)
{
    const Retargeted moved = retarget(options, from, to);
    OptionMap result = moved.options;
    for (const Loss &loss : moved.losses) {
        losses->append(lossSentence(loss, moved, to));
        result.insert(loss.key, loss.before);
    }
    return result;
}

QString clauses(const QVector<Finding> &findings)
{
    QStringList texts;
    for (const Finding &finding : findings)
        texts.append(finding.key + ": "_l1 + finding.message);
    return texts.join("; "_l1);
}

QVector<Finding> errorsOf(const OptionMap &options, const DEV::DeviceArg &device,
                          const QString &folder)
{
    QVector<Finding> errors;
    const QVector<Finding> findings = checkOptions(options, device, folder);
    for (const Finding &finding : findings) {
        if (finding.severity == Finding::Error)
            errors.append(finding);
    }
    return errors;
}

} // namespace

PointConfiguration configure(const SweepPoint &point, const SweepBase &base, const QString &folder,
                             const QString &planFolder)
{
    PointConfiguration result;
    OptionMap choices = point.settings;
    placeInitialisation(choices, planFolder, folder);
    QStringList losses;
    if (base.device.isNull()) {
        result.options = optionsForChoices(choices, point.device.device(), folder);
    } else {
        OptionMap options = base.options;
        if (options.contains(Key::itcmInitializationAbsolutePath) ||
            !textOf(options, Key::itcmInitializationPath).isEmpty())
            placeInitialisation(options, base.folder, folder);
        options = withChoices(options, choices);
        result.options = base.device == point.device
                             ? options
                             : movedWhole(options, base.device, point.device, &losses);
    }

    const QVector<Finding> errors = errorsOf(result.options, point.device, folder);
    if (!errors.isEmpty()) {
        // What is wrong on any device is no fault of this one.
        const QVector<Finding> everywhere = errorsOf(result.options, {}, folder);
        if (!everywhere.isEmpty())
            result.mistake = clauses(everywhere);
        else
            result.impossible = clauses(errors);
    } else if (!losses.isEmpty()) {
        result.impossible = losses.join(u' ');
        if (result.impossible.endsWith(u'.'))
            result.impossible.chop(1);
    }
    return result;
}

} // namespace TARVOORIXM1
