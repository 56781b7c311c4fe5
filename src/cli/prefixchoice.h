#pragma once

#include "commandline.h"
#include "output.h"

#include <QString>

namespace Cli
{

struct IpcDocument;

// What names begin with: an option of several commands.
struct PrefixChoice {
    QString given; // null: the option was not given

    // The option; --prefix "" is none, whatever the file says.
    void declare(CLI::App *command);
    // The prefix that counts: that of the command line, or else the file's. Unless the status is
    // Done, it cannot be one, and a message has been printed.
    Status choose(const IpcDocument &document, QString *prefix) const;
};

} // namespace Cli
