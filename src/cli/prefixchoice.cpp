#include "prefixchoice.h"

#include "ipcdocument.h"

#include <config/nameprefix.h>
#include <config/optionkeys.h>
#include <config/optionvalue.h>

namespace Cli
{

using namespace TARVOORIXM1;

void PrefixChoice::declare(CLI::App *command)
{
    CommandLine::text(command, "--prefix", given,
                      "What names begin with, so that several subsystems stand in one design or "
                      "program (\"cpu0_\")",
                      "NAME_");
}

Status PrefixChoice::choose(const IpcDocument &document, QString *prefix) const
{
    const bool isOption = !given.isNull();
    const QString wanted = isOption ? given : textOf(document.options, Key::namePrefix);
    const PrefixMistake mistake = prefixMistake(wanted);
    if (!mistake.text.isEmpty()) {
        printProblem({mistake.text,
                      isOption ? QStringLiteral("--prefix") : QString(Key::namePrefix),
                      isOption ? QString() : document.path, 0,
                      mistake.fix.isEmpty()
                          ? QStringLiteral("Take letters and digits and an underscore at the end, "
                                           "as in \"cpu0_\".")
                          : didYouMean(mistake.fix)});
        return isOption ? WrongUsage : BadInput;
    }
    *prefix = wanted;
    return Done;
}

} // namespace Cli
