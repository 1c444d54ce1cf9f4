#include "app/commandline.h"

using namespace Qt::StringLiterals;

namespace quib {

CommandLine parseArguments(const QStringList& arguments)
{
    using Action = CommandLine::Action;
    const auto snapshot = arguments.indexOf(u"--snapshot"_s);
    if (snapshot >= 0 && snapshot + 1 < arguments.size()) {
        return {.action = Action::Snapshot, .folder = arguments.at(snapshot + 1)};
    }
    if (arguments.contains("--help"_L1)) {
        return {.action = Action::Help};
    }
    if (arguments.contains("--version"_L1)) {
        return {.action = Action::Version};
    }
    return {};
}

QString helpText()
{
    return uR"(Usage: quib [--snapshot FOLDER | --help | --version]

A panel at the top edge of the screen. Touch the notch with the pointer and it
opens. A second start opens the panel of the first.

  --snapshot FOLDER  Draw every tab into a picture in FOLDER, which has to
                     exist, and end. Needs no display.
  --help             Show this text and end.
  --version          Show the version and end.

Environment:
  QUIB_DATA_DIR      The folder to keep the data in.
)"_s;
}

QString versionText()
{
    return u"Korvel Quib " QUIB_VERSION "\n"_s;
}

} // namespace quib
