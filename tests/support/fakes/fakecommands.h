#pragma once

#include "app/shell/commands.h"

#include <QStringList>

#include <utility>

/// Writes down what the views ask for. A choice stays open until the test answers it.
class FakeCommands final : public quib::Commands {
public:
    QStringList asked;
    mutable QStringList named; ///< The applications whose names were asked.
    QList<Completion> choices;
    quib::StatusMenu statusMenu;
    bool inStatusBar = true;
    bool hasKeyboard = false; ///< Before it is taken.

    void pick(bool directories, const std::optional<QUrl>& startIn, Completion completion) override
    {
        asked << QStringLiteral("pick %1 in %2")
                     .arg(directories ? QStringLiteral("folder") : QStringLiteral("application"),
                          startIn.value_or(QUrl()).toLocalFile());
        choices << std::move(completion);
    }
    QString applicationName(const QString& path) const override
    {
        named << path;
        return QStringLiteral("the application at ") + path;
    }
    bool takeKeyboard() override
    {
        asked << QStringLiteral("take keyboard");
        return !hasKeyboard;
    }
    void giveBackKeyboard() override { asked << QStringLiteral("give back keyboard"); }
    void expand(bool toShelf) override
    {
        asked << (toShelf ? QStringLiteral("expand to the shelf") : QStringLiteral("expand"));
    }
    void dismiss() override { asked << QStringLiteral("dismiss"); }
    void editShortcuts() override { asked << QStringLiteral("edit shortcuts"); }
    void quit() override { asked << QStringLiteral("quit"); }
    quib::StatusMenu* menu() override { return &statusMenu; }
    bool isMenuInStatusBar() const override { return inStatusBar; }
};
