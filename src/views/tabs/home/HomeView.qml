import QtQuick

import Quib.Core
import Quib.Notch
import Quib.Shell

/*!
    The day at a glance: what is playing, what is left of today, what is at hand, and what to launch.
*/
FocusScope {
    id: root

    required property MediaController media
    required property CalendarController calendar
    required property Store store
    required property NotchModel model
    required property Actions actions
    required property IconSource icons
    required property Commands commands

    NowPlayingCard {
        id: nowPlaying

        objectName: "nowPlayingCard"
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.topMargin: 10
        anchors.bottom: strip.top
        anchors.bottomMargin: 10
        width: 196
        focus: true
        media: root.media
        isMotionReduced: root.model.isMotionReduced
    }

    TodayCard {
        objectName: "todayCard"
        anchors.left: nowPlaying.right
        anchors.leftMargin: 10
        anchors.right: focusCard.left
        anchors.rightMargin: 10
        anchors.top: nowPlaying.top
        anchors.bottom: nowPlaying.bottom
        calendar: root.calendar
    }

    FocusCard {
        id: focusCard

        objectName: "focusCard"
        anchors.right: parent.right
        anchors.top: nowPlaying.top
        anchors.bottom: nowPlaying.bottom
        width: 214
        store: root.store
        model: root.model
    }

    LaunchStrip {
        id: strip

        objectName: "launchStrip"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 40
        store: root.store
        actions: root.actions
        icons: root.icons
        commands: root.commands
    }
}
