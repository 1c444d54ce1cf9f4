#pragma once

#include "desktop/desk/desk.h"
#include "desktop/desk/reader.h"

#include <chrono>
#include <functional>

/// Looks again and again whether it is so; asking a panel takes long itself.
bool comesTrue(const std::function<bool()>& claim,
               std::chrono::milliseconds within = std::chrono::seconds(15));

/// A desk whose Quib has settings of the system of its own, which the test changes meanwhile. An
/// hour was worked on each of the last ten days.
class TravelDesk : public Desk {
public:
    Reader reader{*this};

    /// In that time zone.
    explicit TravelDesk(const char* zone);

    /// Why programs can have no settings of their own here; empty where they can.
    QString hindrance();
    /// Open and pinned.
    Program startQuibElsewhere();

    void travel(const char* zone) const;
    void loseLink() const;
    QString setting(const QString& name) const;

    bool shows(const QString& text);
    /// What was worked since a moment, as the headline of the totals.
    bool showsTotalSince(const QDateTime& moment);
    /// Once it is there.
    void press(const QString& button);

private:
    QString totalSince(const QDateTime& since) const;
    QStringList elsewhere() const;
};
