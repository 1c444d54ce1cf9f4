#include "pictures/scene.h"

using namespace Qt::StringLiterals;
using quib::Tab;

namespace {

constexpr std::array Scales{1.0, 1.25, 1.5, 2.0};

void dragAbove(PanelForPicture& panel)
{
    panel.model().setDropTargeted(true);
}

void underACamera(PanelForPicture& panel)
{
    panel.model().setNotchSize({188, 37});
    panel.model().setPinned(true);
}

void selectFirstClient(PanelForPicture& panel)
{
    panel.click({140, 98});
}

void armDeletion(PanelForPicture& panel)
{
    selectFirstClient(panel);
    panel.picture(); // The editor finds its place.
    panel.click({695, 174});
}

void openMenu(PanelForPicture& panel)
{
    panel.click({638, 62});
}

void editLinks(PanelForPicture& panel)
{
    panel.click({695, 256});
}

QString nameOf(Tab tab)
{
    return quib::title(tab).toLower();
}

Scene open(Tab tab, const QString& how, DayMaker day, double scale = 1)
{
    return {.name = nameOf(tab) + u", "_s + how,
            .day = day,
            .tab = tab,
            .prepare = tab == Tab::Clients ? selectFirstClient : nullptr,
            .scale = scale};
}

/// Every tab as a new user, a busy one and an unlucky one see it.
QList<Scene> tabs()
{
    QList<Scene> scenes;
    for (const auto tab : quib::AllTabs) {
        scenes << open(tab, u"empty"_s, emptyDay) << open(tab, u"rich"_s, richDay)
               << open(tab, u"hostile"_s, hostileDay) << open(tab, u"rich"_s, richDay, 2);
    }
    return scenes;
}

/// Where a point is no whole number of pixels.
QList<Scene> betweenPixels()
{
    return {open(Tab::Home, u"rich"_s, richDay, 1.25), open(Tab::Clients, u"rich"_s, richDay, 1.25),
            open(Tab::Links, u"rich"_s, richDay, 1.5), open(Tab::Tasks, u"rich"_s, richDay, 1.5),
            open(Tab::Time, u"rich"_s, richDay, 1.5)};
}

QList<Scene> collapsed()
{
    QList<Scene> scenes;
    for (const auto scale : Scales) {
        scenes << Scene{.name = u"notch"_s, .scale = scale}
               << Scene{.name = u"notch, drag above"_s, .prepare = dragAbove, .scale = scale}
               << Scene{.name = u"wings"_s, .day = richDay, .scale = scale}
               << Scene{.name = u"wings, long"_s, .day = hostileDay, .scale = scale};
    }
    return scenes;
}

/// Of more clients than fit.
Scene menu(double scale)
{
    auto scene = open(Tab::Tasks, u"menu"_s, hostileDay, scale);
    scene.prepare = openMenu;
    return scene;
}

QList<Scene> elsewhere()
{
    auto light = open(Tab::Time, u"light desktop"_s, emptyDay);
    light.desktop = QColorConstants::Svg::whitesmoke;
    auto camera = open(Tab::Home, u"camera"_s, emptyDay);
    camera.prepare = underACamera;
    auto editing = open(Tab::Home, u"editing"_s, richDay);
    editing.prepare = editLinks;
    auto armed = open(Tab::Clients, u"deletion armed"_s, richDay);
    armed.prepare = armDeletion;
    return {light, camera, editing, armed, menu(1), menu(2)};
}

QList<Scene> inCairo()
{
    QList<Scene> scenes{{.name = u"wings, Arabic"_s, .day = arabicDay}};
    for (const auto tab : {Tab::Home, Tab::Clients, Tab::Tasks, Tab::Time, Tab::Notes}) {
        scenes << open(tab, u"Arabic"_s, arabicDay);
    }
    for (auto& scene : scenes) {
        scene.locale = u"ar_EG.UTF-8"_s;
    }
    return scenes;
}

} // namespace

QString Scene::title() const
{
    return scale == 1 ? name : u"%1, at %2"_s.arg(name).arg(scale);
}

QString Scene::file() const
{
    return title().toLower().replace(u", "_s, u"-"_s).replace(u' ', u'-') + u".png"_s;
}

QList<Scene> scenes()
{
    return tabs() + betweenPixels() + collapsed() + elsewhere() + inCairo();
}
