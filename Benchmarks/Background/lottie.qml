import QtQuick
import Qt.labs.lottieqt

Item {
    id: root

    required property url source

    LottieAnimation {
        source: root.source
        quality: LottieAnimation.HighQuality
        loops: LottieAnimation.Infinite
        autoPlay: true
    }
}
