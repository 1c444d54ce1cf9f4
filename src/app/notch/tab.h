#pragma once

#include <QObject>
#include <QString>

#include <qqmlintegration.h>

#include <array>

/// The tabs of the open card, `Tab.Home` and so on in QML.
namespace quib::tabs {
Q_NAMESPACE
QML_NAMED_ELEMENT(Tab)

enum class Tab { Home, Links, Clients, Tasks, Time, Shelf, Notes };
Q_ENUM_NS(Tab)

} // namespace quib::tabs

namespace quib {

using tabs::Tab;

/// In the order of the tab bar.
inline constexpr std::array AllTabs{Tab::Home, Tab::Links, Tab::Clients, Tab::Tasks,
                                    Tab::Time, Tab::Shelf, Tab::Notes};

/// The tab's identity as a text: "home", "links" and so on.
QString rawText(Tab tab);

/// The heading: the raw text with a capital, but "Shortcuts" for links.
QString title(Tab tab);

/// The tab that many places further on, round the end.
Tab tabBeside(Tab tab, int by);

/// The name of the symbol on the tab's button.
QString symbol(Tab tab);

} // namespace quib
