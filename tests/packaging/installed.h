#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The program as `cmake --install` leaves it, in a folder that goes with this.
class Installed {
public:
    Installed();

    bool isWhole() const { return m_problem.isEmpty(); }
    QByteArray problem() const { return m_problem; } ///< Empty where installing went well.
    QString path(const QString& name = {}) const { return m_folder.filePath(name); }
    QString program() const { return path(QStringLiteral("bin/quib")); }
    /// Of all files, by name.
    QStringList files() const;

private:
    QTemporaryDir m_folder;
    QByteArray m_problem;
};

/// What a tool says about its arguments; empty where it is content and says so by its exit status.
QByteArray complaintOf(const QString& tool, const QStringList& arguments);

/// A file of the checkout.
QString sourceFile(const QString& name);
