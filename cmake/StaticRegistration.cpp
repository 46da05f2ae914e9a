// Linked to every host of the static library, as an object of its own. It refers to the generated function, so that the
// linker keeps the function's file, which registers the types of the QML module at start-up.

void qml_register_types_TQFoundation();

static void (*const volatile registration)() = qml_register_types_TQFoundation;
