#include "app/notch/tab.h"

using namespace Qt::StringLiterals;

namespace quib {

QString rawText(Tab tab)
{
    switch (tab) {
    case Tab::Home: return u"home"_s;
    case Tab::Links: return u"links"_s;
    case Tab::Clients: return u"clients"_s;
    case Tab::Tasks: return u"tasks"_s;
    case Tab::Time: return u"time"_s;
    case Tab::Shelf: return u"shelf"_s;
    case Tab::Notes: return u"notes"_s;
    }
    Q_UNREACHABLE();
}

QString title(Tab tab)
{
    if (tab == Tab::Links) {
        return u"Shortcuts"_s; // After the buttons on it.
    }
    auto text = rawText(tab);
    text[0] = text[0].toUpper();
    return text;
}

Tab tabBeside(Tab tab, int by)
{
    const auto count = static_cast<int>(AllTabs.size());
    const int place = (static_cast<int>(tab) + by) % count;
    return AllTabs.at(static_cast<std::size_t>((place + count) % count));
}

QString symbol(Tab tab)
{
    switch (tab) {
    case Tab::Home: return u"circle.hexagongrid"_s;
    case Tab::Links: return u"square.grid.2x2"_s;
    case Tab::Clients: return u"person.2"_s;
    case Tab::Tasks: return u"checklist"_s;
    case Tab::Time: return u"stopwatch"_s;
    case Tab::Shelf: return u"tray"_s;
    case Tab::Notes: return u"note.text"_s;
    }
    Q_UNREACHABLE();
}

} // namespace quib
