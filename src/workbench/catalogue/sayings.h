#pragma once

#include <QString>
#include <QStringList>

namespace Workbench
{

// What is said of a library that is not used. From process to process, and from start to start, it
// goes in English; people read it in the language of the window.
namespace Sayings
{

enum Saying {
    WhileLoaded,
    WhileStarted,
    WhenAskedForIps,
    WhenAskedWhatTheyAre,
    WhenAskedAboutDevices,
    WhenReleased,
    PrintedForEver, // when
    DidNotAnswer,   // seconds, when
    Crashed,        // when, signal
    Ended,          // when, status
    NoTextThrown,
    UnknownThrown,
    FailedAtStart, // what was thrown
    NotForIps,
    NoPlugin,   // why
    OffersNone, // its data folder
    IpIsNone,
    IpTwice,
    FailedForIp, // what was thrown
    IpWithoutName,
    Count
};

// In English; the arguments are texts of others, or told() as well.
QString told(Saying saying, const QStringList &arguments = {});
// In the language of the window, as far as it is made of told() sentences with a blank between
// them; what is not stays as it is.
QString shown(const QString &english);

} // namespace Sayings

} // namespace Workbench
