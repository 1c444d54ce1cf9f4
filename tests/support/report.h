#pragma once

#include "support/datafolderfortest.h"
#include "support/fakes/handclock.h"
#include "support/valueof.h"
#include "views/models/totallistmodel.h"

#include <QAbstractItemModelTester>

/// A store and a model that follows it, their time and place in the test's hand.
struct Report {
    DataFolderForTest folder;
    HandClock hands;
    quib::Store store;
    quib::TotalListModel model;
    QAbstractItemModelTester tester{&model};

    explicit Report(const quib::UserLocale& locale = {.dates = "en_GB"})
        : store({.clock = hands.clock(), .schedule = hands.scheduler(), .locale = locale})
    {
        store.setData({});
        model.setStore(&store);
    }

    QUuid client(const QString& name, double rate = 35)
    {
        auto data = store.data();
        data.clients.append({.id = QUuid::createUuid(), .name = name, .hourlyRate = rate});
        store.setData(data);
        return data.clients.back().id;
    }

    /// An entry from one moment to another, as many hours from now; without an end it runs.
    void entry(double from, std::optional<double> to, const std::optional<QUuid>& client = {})
    {
        const auto at = [&](double hours) { return hands.now.addMSecs(qRound64(hours * 3.6e6)); };
        auto data = store.data();
        data.entries.append({.id = QUuid::createUuid(),
                             .clientID = client,
                             .start = at(from),
                             .end = to ? std::optional(at(*to)) : std::nullopt});
        store.setData(data);
    }

    /// "Café 3600 0.5 35" for each row.
    QStringList rows() const
    {
        QStringList found;
        for (int row = 0; row < model.count(); ++row) {
            const auto get = [&](const char* role) { return valueOf(model, row, role).toString(); };
            found << QStringList{get("name"), get("seconds"), get("fraction"), get("amount")}.join(
                QLatin1Char(' '));
        }
        return found;
    }
};
