#pragma once

#include "integrations/opener.h"

#include <QObject>

#include <chrono>

namespace quib {

/// Opens through GIO, and reveals through the file manager on the session bus.
class GioOpener final : public QObject, public Opener {
public:
    /// A file manager that refuses later than this, or never answers, has most likely taken the
    /// request: to open the folder as well would show it twice, or when nobody cares any more.
    static constexpr auto Patience = std::chrono::seconds(5);

    explicit GioOpener(std::chrono::milliseconds patience = Patience);

    void openPath(const QString& path) override;
    void openAddress(const QUrl& address) override;
    void openWith(const QString& path, const QString& application) override;
    void openInTextEditor(const QString& path) override;
    void reveal(const QString& path) override;

private:
    void openFolderOf(const QString& path);

    std::chrono::milliseconds m_patience;
};

} // namespace quib
