import QtQuick

// The medium status widget as somebody would write it for Qt Quick. `content` holds its words, `look` its colours.
Item {
    id: widget

    property var look
    property var content
    property string breatheNow
    property real radius

    component Words: Text {
        property int lineSpace: 16
        font.family: "Nunito"
        font.hintingPreference: Font.PreferNoHinting
        textFormat: Text.PlainText
        lineHeight: lineSpace
        lineHeightMode: Text.FixedHeight
        elide: Text.ElideRight
    }

    Rectangle {
        objectName: "background"
        anchors.fill: parent
        radius: widget.radius
        gradient: Gradient {
            GradientStop { position: widget.look.background[0].location; color: widget.look.background[0].color }
            GradientStop { position: widget.look.background[1].location; color: widget.look.background[1].color }
            GradientStop { position: widget.look.background[2].location; color: widget.look.background[2].color }
        }
    }

    Item {
        id: left
        x: 18; y: 16
        width: 222; height: 138

        Rectangle {
            id: disc
            width: 24; height: 24
            radius: 12
            color: widget.content.discColor

            Image {
                x: 5; y: 5
                width: 14.5; height: 14.5
                source: "image://symbols/" + widget.content.symbol + "/14.5/" + widget.content.symbolColor
            }
        }
        Words {
            x: 32
            anchors.verticalCenter: disc.verticalCenter
            lineSpace: 13
            text: widget.content.kicker.toUpperCase()
            color: widget.look.kicker
            font { pixelSize: 11; weight: Font.Bold; letterSpacing: 1.32 }
        }
        Column {
            y: 32
            width: parent.width

            Words {
                width: parent.width
                lineSpace: 22
                text: widget.content.title
                color: widget.look.title
                wrapMode: Text.Wrap
                maximumLineCount: 2
                font { pixelSize: 17; weight: Font.DemiBold }
            }
            Words {
                width: parent.width
                text: widget.content.detail
                color: widget.look.detail
                wrapMode: Text.Wrap
                maximumLineCount: 2
                font { pixelSize: 12 }
            }
        }
        Rectangle {
            visible: widget.content.progress >= 0
            anchors.bottom: parent.bottom
            width: parent.width; height: 4
            radius: 2
            color: widget.look.track

            Rectangle {
                width: parent.width * widget.content.progress; height: 4
                radius: 2
                color: widget.look.progress
            }
        }
        Rectangle {
            visible: widget.content.progress < 0
            anchors.bottom: parent.bottom
            width: 6 + 18 + 7 + label.implicitWidth + 12; height: 28
            radius: 14
            color: widget.look.capsule

            Image {
                x: 6; y: 5
                width: 18; height: 18
                source: "image://symbols/circle.circle/18/" + widget.look.onCapsule
            }
            Words {
                id: label
                x: 31
                anchors.verticalCenter: parent.verticalCenter
                text: widget.breatheNow
                color: widget.look.onCapsule
                font { pixelSize: 12; weight: Font.DemiBold }
            }
        }
    }

    Column {
        x: 254; y: 20
        width: 92

        Repeater {
            model: 3

            Item {
                required property int index
                width: 92
                height: index < 2 ? 46 : 38

                Words {
                    lineSpace: 24
                    text: widget.content.numbers[index].value
                    color: widget.look.title
                    font { pixelSize: 20; weight: Font.Light }
                }
                Words {
                    y: 24
                    lineSpace: 14
                    text: widget.content.numbers[index].label
                    color: widget.look.detail
                    font { pixelSize: 11 }
                }
                Rectangle {
                    visible: index < 2
                    y: 41.5
                    width: parent.width; height: 1
                    color: widget.look.line
                }
            }
        }
    }
}
