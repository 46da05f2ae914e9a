import QtQuick
import QtQuick.Templates as T

// Unstyled button that is also clicked by Return, Enter and assistive technology.
T.AbstractButton {
    id: root

    // Clicks once for each key press; auto-repeat is ignored.
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
