#pragma once

#include <QCommandLineParser>

namespace quib {

/// The options that choose() understands.
void addOptions(QCommandLineParser& line);

/// Shows the window that the options ask for and waits for its end. What was chosen is printed as
/// "chosen" and the location of a file, or nothing when nothing was. "shown" and the number of the
/// window are printed when it is in sight. It closes when the input ends: with who asked.
/// Needs a QApplication.
void choose(const QCommandLineParser& line);

} // namespace quib
