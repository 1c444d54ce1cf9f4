#pragma once

#include <QObject>

#include <filesystem>

namespace quib {

/// One running program for each data folder. Implemented once per platform.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// True when this process is the only one for the folder, now and until it ends, as far as can
    /// be told without waiting. Otherwise the one that runs already has been told to open its
    /// panel. Called once.
    virtual bool claim(const std::filesystem::path& dataFolder) = 0;

Q_SIGNALS:
    /// Another start asked for the panel.
    void activated();
    /// The desktop's entry of the program was asked to pin the panel, or to let go of it.
    void pinAsked();
    /// A process that runs for the same folder has been found after all, and told to open its
    /// panel. This one is to end, and to leave the folder as it is.
    void superseded();
};

} // namespace quib
