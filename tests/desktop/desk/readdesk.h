#pragma once

#include "desktop/desk/reader.h"

/// A desk with the panel, open by a second start, on a workspace with so many of everything, and a
/// reader of it.
struct ReadDesk : Desk {
    static const QStringList& titles(); ///< Of the tabs, in order.

    Reader reader{*this};
    Program quib;

    explicit ReadDesk(int many = 3, int scale = 1);

    /// By key; told once its tab is.
    Told showTab(int number);
    /// Once it shows: what a tab is made of may be told a frame later than its tab.
    Told find(const QString& role, const QString& name = {});
};

/// As they are told.
QStringList selectedTabs(const Told& panel);
