#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <memory>

/// The arguments of each application that was started.
using Started = QList<QStringList>;

/// A desktop of its own in a folder of its own: applications that record how they were started, and
/// one program that opens things. Applications are known to it that were there when it started.
class OpenerDesk {
public:
    OpenerDesk();
    ~OpenerDesk();
    Q_DISABLE_COPY_MOVE(OpenerDesk)

    QProcessEnvironment environment; ///< Of all programs.

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Makes a file, with the folders above it.
    QString makeFile(const QString& name, const QByteArray& bytes = "x") const;
    QString makeFolder(const QString& name) const;
    /// An application whose first argument is its own name; the others as the command says.
    QString install(const QString& name, const QString& command = QStringLiteral("%f"),
                    const QString& lines = {}) const;
    /// "text/plain=editor", each on a line.
    void setDefaults(const QString& lines) const;

    /// A session bus for everything that starts from now on.
    void startBus();
    void killBus();
    /// A program that owns a name on the bus.
    std::unique_ptr<QProcess> startService(const QString& name, const QStringList& more = {}) const;

    void start();
    void tell(const QStringList& command);
    /// False when the program is not free again.
    bool ask(const QStringList& command);
    /// What it says to that; empty when it is not free again.
    QString answer(const QStringList& command);
    bool quit();
    void kill();
    qint64 pid() const { return m_opener.processId(); }
    QByteArray complaints();

    /// Of the applications that were started, in any order.
    QList<QJsonObject> records() const;
    /// Sorted.
    Started started() const;

private:
    QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_opener;
};
