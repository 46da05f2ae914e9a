import QtQuick
import TQFoundation

Window {
    visible: true
    width: 390
    height: 844

    TQAppView { app: TQApp.birch; width: 390 }
}
