pragma ComponentBehavior: Bound

import QtQuick

import Quib.Brand
import Quib.Controls
import Quib.Core
import Quib.Shapes
import Quib.Symbols

/*!
    The track of the player that runs, and the buttons that command it.
*/
FocusScope {
    id: root

    required property MediaController media
    required property bool isMotionReduced

    Card {
        anchors.fill: parent

        Item {
            id: inside

            // Under a tall bar the gaps give way, then the artwork.
            readonly property int room: Math.floor(height - heading.height - title.height - artist.height - controls.height)
            readonly property int gap: Math.max(3, Math.min(10, Math.floor(inside.room / 8)))

            anchors.fill: parent

            SectionLabel {
                id: heading

                objectName: "heading"
                width: parent.width
                text: root.media.hasTrack ? "Now playing · %1".arg(root.media.playerName) : "Music"
                elide: Text.ElideRight
            }

            Item {
                id: artwork

                objectName: "artwork"
                anchors.top: heading.bottom
                anchors.topMargin: inside.gap
                width: Math.max(24, Math.min(48, 2 * Math.floor((inside.room - 2 * inside.gap - 5) / 2)))
                height: width

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
                    objectName: "musicNote"
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
                anchors.topMargin: inside.gap
                width: parent.width
                text: root.media.hasTrack ? root.media.title : "Nothing playing"
                size: 12.5
                weight: Font.DemiBold
                elide: Text.ElideRight
            }

            QuibText {
                id: artist

                objectName: "artist"
                anchors.top: title.bottom
                anchors.topMargin: 2
                width: parent.width
                text: root.media.hasTrack ? root.media.artist : "Open Spotify or Music"
                color: Brand.muted
                elide: Text.ElideRight
            }

            Row {
                id: controls

                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 8

                PlayerButton {
                    objectName: "previous"
                    symbol: "backward.fill"
                    verb: "previous track"
                    help: "Previous track"
                }

                PlayerButton {
                    objectName: "playPause"
                    focus: true
                    symbol: root.media.isPlaying ? "pause.fill" : "play.fill"
                    size: 18
                    verb: "playpause"
                    help: root.media.isPlaying ? "Pause" : "Play"
                }

                PlayerButton {
                    objectName: "next"
                    symbol: "forward.fill"
                    verb: "next track"
                    help: "Next track"
                }
            }
        }
    }

    component PlayerButton: IconButton {
        required property string verb

        anchors.verticalCenter: parent?.verticalCenter
        size: 13
        tint: "white"

        onClicked: root.media.command(verb)
    }
}
