// Turns the outputs of a compositor, "kwin" or "mutter", on and off: those with the numbers named
// behind that are on.
#include "outputs.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const auto arguments = QCoreApplication::arguments();
    QList<int> numbers;
    for (const auto& number : arguments.sliced(2)) {
        numbers << number.toInt();
    }
    const auto refusal = arguments.at(1) == QLatin1String("mutter") ? setOutputsOfMutter(numbers)
                                                                    : setOutputsOfKWin(numbers);
    std::cerr << refusal.constData();
    return refusal.isEmpty() ? 0 : 1;
}
