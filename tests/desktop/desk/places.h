#pragma once

/// Where things are on a screen of 1600 by 900 points at scale 1, for whoever moves a pointer
/// there: the tests of the whole program, the bench, and the showcase, which reads these lines as
/// they stand.
namespace places {

struct Place {
    int x;
    int y;

    /// As a point of any kind.
    template <typename Point>
    constexpr operator Point() const
    {
        return Point{x, y};
    }
};

constexpr Place Notch{800, 4};
constexpr Place InTheNotch{800, 12};
constexpr Place BesideTheNotch{660, 25};
constexpr Place InTheCard{800, 200};
constexpr Place FarAway{300, 700};

// On the top bar.
constexpr Place FirstTab{507, 23};
constexpr int TabStep = 32;
constexpr Place MenuCorner{720, 15};
constexpr Place Pin{1102, 23};

// On the home tab.
constexpr Place ConnectCalendar{748, 117};
constexpr Place FirstEvent{691, 96}; // Its bar.
constexpr Place PlayPause{569, 197}; // Between the bars of pause.
constexpr Place LeftInPlayPause{566, 197}; // White in either symbol.
constexpr Place EditLaunch{1114, 256};
constexpr Place AddWebsite{1084, 256};

// On the clients tab.
constexpr Place FirstClient{540, 100};
constexpr Place ChooseFolder{830, 143};
constexpr Place DeleteClient{1115, 174};

// On the tasks tab.
constexpr Place TaskField{600, 60};

// On the time tab.
constexpr Place Export{923, 108};

/// The button of a tab, counted from the left.
constexpr Place tabButton(int number)
{
    return {FirstTab.x + TabStep * number, FirstTab.y};
}

} // namespace places
