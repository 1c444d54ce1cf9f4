// Moves a compositor's pointer and presses its keys, as the lines say that it reads: "move X Y",
// "button CODE 0|1", "key CODE 0|1", with the codes of Linux, "screens WIDTH HEIGHT". It prints
// "ready", and "done" for each line once the compositor has read it. Devices go with the program
// that made them, and then the pointer leaves every window: it lives as long as the desktop.
#include "hand.h"

#include <QCoreApplication>

#include <iostream>
#include <sstream>
#include <string>

namespace {

void carryOut(Hand& hand, const std::string& line)
{
    std::istringstream words(line);
    std::string what;
    int first = 0;
    int second = 0;
    words >> what >> first >> second;
    if (what == "move") {
        hand.moveTo({first, second});
    } else if (what == "button") {
        hand.button(static_cast<uint32_t>(first), second == 1);
    } else if (what == "key") {
        hand.key(static_cast<uint32_t>(first), second == 1);
    } else if (what == "screens") {
        hand.setScreens({first, second});
    }
}

std::unique_ptr<Hand> makeHand(const QStringList& arguments)
{
    if (arguments.value(1) == QLatin1String("mutter")) {
        return makeMutterHand();
    }
    return makeWaylandHand({arguments.value(2).toInt(), arguments.value(3).toInt()});
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    try {
        const auto hand = makeHand(QCoreApplication::arguments());
        std::cout << "ready" << std::endl;
        for (std::string line; std::getline(std::cin, line) && hand->isHeard();) {
            carryOut(*hand, line);
            std::cout << (hand->isHeard() ? "done" : "unheard") << std::endl;
        }
    } catch (const NoHand& none) {
        std::cerr << none.reason.constData() << std::endl;
        return 1;
    }
    return 0;
}
