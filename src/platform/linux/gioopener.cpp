#include "platform/linux/gioopener.h"

namespace quib {

void GioOpener::openPath(const QString& /*path*/) { }

void GioOpener::openAddress(const QUrl& /*address*/) { }

void GioOpener::openWith(const QString& /*path*/, const QString& /*application*/) { }

void GioOpener::openInTextEditor(const QString& /*path*/) { }

void GioOpener::reveal(const QString& /*path*/) { }

} // namespace quib
