#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace quib {

/// The far side of GioOpener. Everything here may wait for a disk or for the bus, so it runs on a
/// thread of its own, and passes over in silence what it can't open. Texts are bytes as the file
/// system has them; addresses are fully encoded.

void launchPath(const QByteArray& path);
void launchAddress(const QByteArray& address);
void launchWithFirst(const QByteArray& path, const QByteArrayList& candidates);
void launchInTextEditor(const QByteArray& path);

/// Once the bus is lost, or GIO would not connect to the next one. Does not wait.
void forgetBus();

} // namespace quib
