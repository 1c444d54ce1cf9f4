#include "app/entry.h"

int main(int argc, char** argv)
{
    return quib::runQuib(argc, argv);
}
