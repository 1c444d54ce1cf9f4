import QtQuick

import Quib.Brand
import Quib.Views

/*!
    The track of the player that runs, and the buttons that command it.
*/
Card {
    id: root

    required property MediaController media
    required property bool isMotionReduced

    FocusScope {
        anchors.fill: parent
        focus: true

        SectionLabel {
            id: heading

            objectName: "heading"
            width: parent.width
            text: root.media.hasTrack ? "Now playing · " + root.media.playerName : "Music"
            elide: Text.ElideRight
        }

        Item {
            id: artwork

            objectName: "artwork"
            anchors.top: heading.bottom
            anchors.topMargin: 12
            width: 48
            height: 48

            ContinuousRectangle {
                objectName: "square"
                anchors.fill: parent
                radius: 10
                color: Brand.purple
                lowerColor: Brand.deep
            }

            Waveform {
                objectName: "waveform"
                anchors.centerIn: parent
                visible: root.media.isPlaying
                moves: root.media.isPlaying && !root.isMotionReduced
            }

            Symbol {
                objectName: "note"
                anchors.centerIn: parent
                visible: !root.media.isPlaying
                name: "music.note"
                size: 18
                weight: Font.DemiBold
            }
        }

        QuibText {
            id: title

            objectName: "title"
            anchors.top: artwork.bottom
            anchors.topMargin: 10
            width: parent.width
            text: root.media.hasTrack ? root.media.title : "Nothing playing"
            size: 12.5
            weight: Font.DemiBold
            elide: Text.ElideRight
        }

        QuibText {
            objectName: "artist"
            anchors.top: title.bottom
            anchors.topMargin: 2
            width: parent.width
            text: root.media.hasTrack ? root.media.artist : "Open Spotify or Music"
            color: Brand.muted
            elide: Text.ElideRight
        }

        Row {
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            Command {
                objectName: "previous"
                symbol: "backward.fill"
                verb: "previous track"
                help: "Previous track"
            }

            Command {
                objectName: "playPause"
                focus: true
                symbol: root.media.isPlaying ? "pause.fill" : "play.fill"
                size: 18
                verb: "playpause"
                help: root.media.isPlaying ? "Pause" : "Play"
            }

            Command {
                objectName: "next"
                symbol: "forward.fill"
                verb: "next track"
                help: "Next track"
            }
        }
    }

    component Command: IconButton {
        required property string verb

        anchors.verticalCenter: parent?.verticalCenter
        size: 13
        tint: "white"

        onClicked: root.media.command(verb)
    }
}
