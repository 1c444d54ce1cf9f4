#pragma once

#include <QtGlobal>

/// How often a test of chance is to try: the second number of times in `./test --long`.
inline quint32 rounds(quint32 shortly, quint32 forLong)
{
    return qEnvironmentVariableIsSet("QUIB_TEST_LONG") ? forLong : shortly;
}
