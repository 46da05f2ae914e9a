import QtQuick
import QtQuick.Templates as T

// Button without a look that Return, Enter and assistive technology press too.
T.AbstractButton {
    id: root

    // Once for each key press: auto-repeat is ignored.
    function press(event: KeyEvent) {
        if (!event.isAutoRepeat)
            clicked();
    }

    focusPolicy: Qt.StrongFocus
    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }
    Keys.onReturnPressed: event => press(event)
    Keys.onEnterPressed: event => press(event)
}
