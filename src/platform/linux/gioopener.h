#pragma once

#include "integrations/opener.h"

namespace quib {

/// Opens through GIO, and reveals through the file manager on the session bus.
class GioOpener final : public Opener {
public:
    void openPath(const QString& path) override;
    void openAddress(const QUrl& address) override;
    void openWith(const QString& path, const QString& application) override;
    void openInTextEditor(const QString& path) override;
    void reveal(const QString& path) override;
};

} // namespace quib
