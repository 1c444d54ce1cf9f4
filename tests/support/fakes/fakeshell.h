#pragma once

#include "platform/platform.h"
#include "support/fakes/fakecalendarstore.h"
#include "support/fakes/fakedisplay.h"
#include "support/fakes/fakeplayerlink.h"
#include "support/fakes/fakeservices.h"

#include <QStringList>

/// A desktop of fakes, and ways to reach them once the delegate owns them.
struct FakeShell {
    QStringList asked; ///< Of the panel's host, in order.
    int reached = 0; ///< How often the services were asked for.
    int trimmed = 0; ///< How often memory was given back.
    quib::Platform platform{.screens = std::make_unique<FakeScreenSource>(),
                            .pointer = std::make_unique<FakePointerSource>(),
                            .panelHost = std::make_unique<FakePanelHost>(asked),
                            .instance = std::make_unique<FakeSingleInstance>(),
                            .sessionLock = std::make_unique<FakeSessionLock>(),
                            .desktop = std::make_unique<FakeDesktop>(),
                            .applications = std::make_unique<FakeAppCatalog>(),
                            .opener = std::make_unique<FakeOpener>(),
                            .player = std::make_unique<FakePlayerLink>(),
                            .calendar = std::make_unique<FakeCalendarStore>(),
                            .icons = std::make_unique<FakeIconSource>(),
                            .files = std::make_unique<FakeFileProbe>(),
                            .statusItem = std::make_unique<FakeStatusItem>(asked),
                            .loginItem = std::make_unique<FakeLoginItem>(),
                            .filePicker = std::make_unique<FakeFilePicker>(),
                            .reachServices = [this] { ++reached; },
                            .trimMemory = [this] { ++trimmed; }};
    FakeScreenSource& screens = static_cast<FakeScreenSource&>(*platform.screens);
    FakePointerSource& pointer = static_cast<FakePointerSource&>(*platform.pointer);
    FakePanelHost& host = static_cast<FakePanelHost&>(*platform.panelHost);
    FakeSingleInstance& instance = static_cast<FakeSingleInstance&>(*platform.instance);
    FakeSessionLock& sessionLock = static_cast<FakeSessionLock&>(*platform.sessionLock);
    FakeDesktop& desktop = static_cast<FakeDesktop&>(*platform.desktop);
    FakeAppCatalog& applications = static_cast<FakeAppCatalog&>(*platform.applications);
    FakeOpener& opener = static_cast<FakeOpener&>(*platform.opener);
    FakePlayerLink& player = static_cast<FakePlayerLink&>(*platform.player);
    FakeCalendarStore& calendar = static_cast<FakeCalendarStore&>(*platform.calendar);
    FakeIconSource& icons = static_cast<FakeIconSource&>(*platform.icons);
    FakeFileProbe& files = static_cast<FakeFileProbe&>(*platform.files);
    FakeStatusItem& statusItem = static_cast<FakeStatusItem&>(*platform.statusItem);
    FakeLoginItem& loginItem = static_cast<FakeLoginItem&>(*platform.loginItem);
    FakeFilePicker& filePicker = static_cast<FakeFilePicker&>(*platform.filePicker);
};
